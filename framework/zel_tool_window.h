// A full-screen tool, or a control, that paints its whole client area through the shared back buffer.
#pragma once

#include "framework/zel_window.h"

namespace orvane {

class ZelToolWindow : public ZelWindow {
 public:
  using ZelWindow::ZelWindow;

  // Takes WM_PAINT; a pen that goes down gives the window the focus and is passed on; everything else goes to
  // OnMessage. A drop-down button of the tool's own menu bar arrives there as kToolCommand (id,
  // kFromDropDown).
  Result WndProc(WindowHandle window, std::uint32_t message, WParam w, LParam l) override;
  // Hands commands to OnCommand.
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override;

 protected:
  // A command for the tool: from a menu, from a button of either bar or its drop-down, or by key. A
  // notification of a child (WM_COMMAND with a code) is none.
  virtual void OnCommand(int command);
  // Draws the client area, (0, 0) to (width, height), into the back buffer.
  virtual void Paint(Canvas& canvas, int width, int height) = 0;

 private:
  void PaintThroughBackBuffer();
};

}  // namespace orvane
