#include "framework/ctl_checkbox.h"

#include <array>

#include "framework/control_messages.h"

namespace orvane {

namespace {

constexpr Rect kBox{0, 0, 14, 14};
constexpr Size kCorner{6, 6};
constexpr Colour kBoxPressed = Rgb(187, 220, 255);
constexpr std::array<Point, 3> kTick{{{3, 7}, {7, 11}, {11, 3}}};
constexpr int kTickWidth = 2;
constexpr Colour kTickColour = Rgb(0, 121, 255);
constexpr int kCaptionLeft = 18;
constexpr int kCaptionMiddle = 7;  // the caption's line box is centred on the box
constexpr Colour kCaption = Rgb(0, 39, 83);
constexpr Colour kCaptionPressed = Rgb(0, 121, 255);

}  // namespace

ctlCheckbox::ctlCheckbox(Shell& shell, WindowHandle parent, int x, int y, int width, int height)
    : PressableControl(shell, parent, x, y, width, height) {
  Show();
}

void ctlCheckbox::OnRelease(bool inside) {
  if (!inside) return;
  checked = !checked;
  Notify(kCheckboxChanged);
  Notify(checked ? kCheckboxChecked : kCheckboxUnchecked);
}

void ctlCheckbox::Paint(Canvas& canvas, int width, int height) {
  canvas.FillRect({0, 0, width, height}, background);
  canvas.RoundRect(kBox, kCorner, kBlack, IsPressed() ? kBoxPressed : kWhite);
  if (checked) canvas.Polyline(kTick, kTickColour, kTickWidth);
  DrawCaption(canvas, {kCaptionLeft, kCaptionMiddle - MeasureCaption().height / 2},
              IsPressed() ? kCaptionPressed : kCaption);
}

}  // namespace orvane
