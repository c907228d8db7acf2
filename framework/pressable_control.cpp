#include "framework/pressable_control.h"

#include "framework/control_messages.h"

namespace orvane {

PressableControl::PressableControl(Shell& shell, WindowHandle parent, int x, int y, int width, int height)
    : ZelToolWindow(shell, parent, false) {
  Move(x, y, width, height);
}

Result PressableControl::OnMessage(std::uint32_t message, WParam w, LParam l) {
  switch (message) {
    case WM_LBUTTONDOWN:
      OnPenDown();
      return 0;
    case WM_MOUSEMOVE:
      OnPenMove(UnpackPoint(l));
      return 0;
    case WM_LBUTTONUP:
      OnPenUp(UnpackPoint(l));
      return 0;
    case WM_KEYDOWN:
      OnKeyDown(static_cast<int>(w));
      return 0;
    default:
      return ZelToolWindow::OnMessage(message, w, l);
  }
}

void PressableControl::OnPenDown() {
  tracking_ = pressed_ = true;
  Redraw();
  GetDevice().SetCapture(Handle());
  OnPress();
}

void PressableControl::OnPenMove(Point point) {
  if (!tracking_ || IsInside(point) == pressed_) return;
  pressed_ = !pressed_;
  Redraw();
}

void PressableControl::OnPenUp(Point point) {
  if (!tracking_) return;
  tracking_ = pressed_ = false;
  OnRelease(IsInside(point));
  Redraw();
  if (GetDevice().Capture() == Handle()) GetDevice().ReleaseCapture();
}

// As the pen that taps it. Other keys are for the screen that the control lies in.
void PressableControl::OnKeyDown(int key) {
  if (key != VK_SPACE && key != VK_RETURN) {
    GetDevice().Send(GetDevice().Parent(Handle()), WM_KEYDOWN, static_cast<WParam>(key), 0);
    return;
  }
  if (tracking_) return;
  OnPress();
  OnRelease(true);
  Redraw();
}

void PressableControl::Notify(std::uint32_t message) {
  GetDevice().Send(GetDevice().Parent(Handle()), message, PackSender(Handle()), 0);
}

Size PressableControl::MeasureCaption() const {
  GetShell().Engine().SelectFontFamily(&font);
  return GetShell().Engine().MeasureText(caption);
}

void PressableControl::DrawCaption(Canvas& canvas, Point at, Colour colour) const {
  TextEngine& engine = GetShell().Engine();
  engine.SelectFontFamily(&font);
  engine.SetTextColour(colour);
  engine.DrawText(canvas, caption, at.x, at.y);
}

}  // namespace orvane
