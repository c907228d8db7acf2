#include "framework/ctl_sep.h"

namespace orvane {

ctlSep::ctlSep(Shell& shell, WindowHandle parent) : ZelWindow(shell, parent, false) { Show(); }

Result ctlSep::OnMessage(std::uint32_t message, WParam w, LParam l) {
  if (message != WM_PAINT) return ZelWindow::OnMessage(message, w, l);
  GetShell().SeparatorBitmap().Draw(GetDevice().WindowCanvas(Handle()), 0, 0);
  GetDevice().Validate(Handle());
  return 0;
}

}  // namespace orvane
