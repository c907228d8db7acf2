#include "framework/zel_tool_window.h"

namespace orvane {

Result ZelToolWindow::WndProc(WindowHandle, std::uint32_t message, WParam w, LParam l) {
  if (message == WM_PAINT) {
    PaintThroughBackBuffer();
    return 0;
  }
  if (message == WM_LBUTTONDOWN) GetDevice().SetFocus(Handle());
  if (message == WM_NOTIFY && l != 0) {
    const BarNotification* notification = NotificationOf(l);
    if (notification->code == TBN_DROPDOWN) {
      return OnMessage(kToolCommand, static_cast<WParam>(notification->id), kFromDropDown);
    }
  }
  return OnMessage(message, w, l);
}

Result ZelToolWindow::OnMessage(std::uint32_t message, WParam w, LParam l) {
  switch (message) {
    case WM_COMMAND:
      if (CommandCode(w) == 0) OnCommand(CommandId(w));
      return 0;
    case kToolCommand:
      OnCommand(static_cast<int>(w));
      return 0;
    default:
      return ZelWindow::OnMessage(message, w, l);
  }
}

void ZelToolWindow::OnCommand(int) {}

void ZelToolWindow::PaintThroughBackBuffer() {
  Bitmap& buffer = GetShell().BackBuffer();
  const Size size = ClientSize();
  Paint(buffer.GetCanvas(), size.width, size.height);
  if (const Surface* surface = buffer.GetSurface()) {
    GetDevice().WindowCanvas(Handle()).CopySurface(*surface, Rect::At({0, 0}, size), {0, 0});
  }
  GetDevice().Validate(Handle());
}

}  // namespace orvane
