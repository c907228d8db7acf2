// The dialogs as tables: what stands where, in logical pixels of the dialog.
#pragma once

#include <span>

#include "base/geometry.h"
#include "base/text.h"

namespace orvane {

inline constexpr int kLoadingDialog = 105;
inline constexpr int kAboutDialog = 106;
// The button that closes a dialog.
inline constexpr int kOkButton = 1;

enum class TextAlignment { kLeft, kCentre, kRight };

// One line of text; it is never wrapped, and clipped to its rectangle.
struct DialogText {
  Rect rect;
  TextView text;
  int pointSize = 9;
  bool bold = false;
  TextAlignment alignment = TextAlignment::kCentre;
};

struct DialogImage {
  Rect rect;
  int imageId = 0;  // an id that FindImage knows, of the rectangle's size
};

struct DialogButton {
  Rect rect;
  TextView label;
  int id = 0;
};

struct DialogResource {
  int id = 0;
  TextView title;
  TextView face;  // of all texts and labels
  Rect rect;      // on the screen of 240 x 320
  std::span<const DialogText> texts;
  std::span<const DialogImage> images;
  std::span<const DialogButton> buttons;
};

// Null for a number that names no dialog.
const DialogResource* FindDialog(int id);

}  // namespace orvane
