#include "framework/ctl_button.h"

#include "framework/control_messages.h"

namespace orvane {

namespace {

constexpr Size kCorner{8, 8};
constexpr Colour kFace = Rgb(240, 250, 255);
constexpr Colour kFacePressed = Rgb(0, 66, 138);
constexpr Colour kCaption = Rgb(0, 39, 83);
constexpr Colour kCaptionPressed = kFace;

}  // namespace

ctlButton::ctlButton(Shell& shell, WindowHandle parent, int x, int y, int width, int height)
    : PressableControl(shell, parent, x, y, width, height) {
  Show();
}

void ctlButton::OnPress() { Notify(kButtonPressed); }

void ctlButton::OnRelease(bool inside) {
  Notify(kButtonReleased);
  if (inside) Notify(kButtonClicked);
}

void ctlButton::Paint(Canvas& canvas, int width, int height) {
  const Rect whole{0, 0, width, height};
  canvas.FillRect(whole, background);
  canvas.RoundRect(whole, kCorner, kBlack, IsPressed() ? kFacePressed : kFace);
  const Size text = MeasureCaption();
  DrawCaption(canvas, {(width - text.width) / 2, (height - text.height) / 2},
              IsPressed() ? kCaptionPressed : kCaption);
}

}  // namespace orvane
