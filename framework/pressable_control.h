// What a push button and a check box have in common: a stroke of the pen that began on the control presses
// it for as long as the pen is inside, and counts when it ends inside. Space and Enter press it too.
#pragma once

#include "framework/font_family.h"
#include "framework/zel_tool_window.h"

namespace orvane {

class PressableControl : public ZelToolWindow {
 public:
  // A visible child of `parent` at the rectangle.
  PressableControl(Shell& shell, WindowHandle parent, int x, int y, int width, int height);

  // What the owner sets; read at each painting only, so follow a change by Redraw. The font is made by the
  // owner after the control.
  FontFamily font;
  Text caption;  // may hold style codes
  Colour background = Rgb(230, 242, 255);

  bool IsPressed() const { return pressed_; }
  bool IsTracking() const { return tracking_; }

  // ZelWindow
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override;

 protected:
  // A stroke has begun on the control; it has ended, in or outside.
  virtual void OnPress() {}
  virtual void OnRelease(bool inside) = 0;

  // To the parent, with the control as sender.
  void Notify(std::uint32_t message);
  // Draws the caption in the colour, its line box at the point.
  Size MeasureCaption() const;
  void DrawCaption(Canvas& canvas, Point at, Colour colour) const;

 private:
  void OnPenDown();
  void OnPenMove(Point point);
  void OnPenUp(Point point);
  void OnKeyDown(int key);
  bool IsInside(Point point) const { return Rect::At({0, 0}, ClientSize()).Contains(point); }

  bool pressed_ = false;   // the pen is down on the control and inside it
  bool tracking_ = false;  // a stroke that began on it has not ended
};

}  // namespace orvane
