// Dialogs of static texts, pictures and push buttons, made from a template.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/colour.h"
#include "base/geometry.h"
#include "base/text.h"
#include "platform/canvas.h"

namespace orvane {

enum class Align { kLeft, kCentre, kRight };

struct DialogLabel {
  Rect rect;  // in the dialog
  Text text;
  Text face;
  int points = 0;
  bool bold = false;
  Align align = Align::kLeft;
  Colour colour = kBlack;
};

struct DialogPicture {
  Rect rect;  // of the picture's size
  std::shared_ptr<const Image> image;
};

// A push button of a dialog; pressing it closes a modal dialog.
struct DialogPush {
  Rect rect;
  Text label;
  int id = 0;
};

struct DialogTemplate {
  std::string name;  // as reports name it: "about", "loading"
  Rect rect;         // on the screen
  Colour background = kWhite;
  std::vector<DialogLabel> labels;
  std::vector<DialogPush> buttons;
  std::vector<DialogPicture> pictures;
};

using DialogHandle = int;
inline constexpr DialogHandle kNoDialog = 0;

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  virtual DialogHandle Create(const DialogTemplate& dialogTemplate) = 0;  // hidden and modeless
  virtual void Show(DialogHandle dialog, bool visible) = 0;
  virtual void Destroy(DialogHandle dialog) = 0;
  // Shows a dialog that takes all input until one of its buttons (or Enter, Escape) closes it.
  virtual DialogHandle ShowModal(const DialogTemplate& dialogTemplate) = 0;
  virtual std::string FrontName() const = 0;  // the topmost visible dialog, "" when there is none
  virtual bool ModalOpen() const { return false; }
  virtual bool DismissFront() = 0;  // presses the first button of the open modal dialog
};

}  // namespace orvane
