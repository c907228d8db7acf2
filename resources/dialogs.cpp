#include "resources/dialogs.h"

#include <array>

#include "resources/contact.h"
#include "resources/images.h"

namespace orvane {
namespace {

constexpr TextView kFace = u"Tahoma";
constexpr Size kScreen{240, 320};

// An underscore of 9 points is five pixels wide, so 28 of them make a line of 140 pixels and 44 one
// of 220.
constexpr TextView kLine28 = u"____________________________";
constexpr TextView kLine44 = u"____________________________________________";

constexpr Size kLoadingSize{160, 76};
constexpr Rect kLoadingRect =
    Rect::At((kScreen.width - kLoadingSize.width) / 2, (kScreen.height - kLoadingSize.height) / 2,
             kLoadingSize.width, kLoadingSize.height);

constexpr std::array kLoadingTexts{
    DialogText{Rect::At(10, 11, 140, 19), u"Orvane", 12, true, TextAlignment::kCentre},
    DialogText{Rect::At(10, 28, 140, 14), kLine28, 9, false, TextAlignment::kCentre},
    DialogText{Rect::At(10, 50, 140, 14), u"Loading...", 9, false, TextAlignment::kCentre},
};

// The about box covers the area between the title and the menu bar.
constexpr Rect kAboutRect = Rect::At(0, 26, 240, 268);

constexpr DialogText AboutLine(int y, TextView text) {
  return {Rect::At(10, y, 220, 14), text, 9, false, TextAlignment::kCentre};
}

constexpr std::array kAboutTexts{
    DialogText{Rect::At(10, 46, 220, 34), u"Orvane", 21, true, TextAlignment::kCentre},
    AboutLine(81, u"Version 1.41 (ARM 2003)"),
    AboutLine(94, kLine44),
    AboutLine(115, u"Made by the Orvane developers"),
    AboutLine(128, kLine44),
    AboutLine(149, u"Problems and comments welcome at"),
    AboutLine(164, kContactAddress),
    AboutLine(186, u"Free software, distributed under the"),
    AboutLine(201, u"MIT licence from the project's page."),
};

constexpr std::array kAboutImages{
    DialogImage{Rect::At(104, 12, 32, 32), kApplicationIcon},
};

constexpr std::array kAboutButtons{
    DialogButton{Rect::At(90, 232, 60, 22), u"OK", kOkButton},
};

constexpr std::array kDialogs{
    DialogResource{kLoadingDialog, u"Orvane", kFace, kLoadingRect, kLoadingTexts, {}, {}},
    DialogResource{kAboutDialog, u"About Orvane", kFace, kAboutRect, kAboutTexts, kAboutImages,
                   kAboutButtons},
};

}  // namespace

const DialogResource* FindDialog(int id) {
  for (const DialogResource& dialog : kDialogs) {
    if (dialog.id == id) return &dialog;
  }
  return nullptr;
}

}  // namespace orvane
