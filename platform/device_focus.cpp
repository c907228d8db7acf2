// Who gets the keys (focus), who keeps the pen (capture), which top-level window is in use (activation).
#include <utility>

#include "platform/device_parts.h"

namespace orvane {

void Device::Parts::ChangeFocus(WindowHandle window) {
  const WindowHandle before = std::exchange(focus, window);
  if (before == window) return;
  Send(before, WM_KILLFOCUS, window, 0);
  // The loser may have given the focus to a third window, which has been told so already.
  if (focus == window) Send(window, WM_SETFOCUS, before, 0);
}

void Device::Parts::ReleaseInput(WindowHandle window) {
  if (windows.IsWithin(capture, window)) capture = kNoWindow;
  if (windows.IsWithin(active, window)) {
    const WindowHandle before = std::exchange(active, kNoWindow);
    Send(before, WM_ACTIVATE, 0, 0);
  }
  if (windows.IsWithin(focus, window)) ChangeFocus(kNoWindow);
}

// Only what can be seen gets the focus, the capture or the activation, as hiding a window takes them away.
void Device::SetFocus(WindowHandle window) {
  if (window == kNoWindow || IsVisible(window)) parts_->ChangeFocus(window);
}

WindowHandle Device::Focus() const { return parts_->focus; }

void Device::ActivateWindow(WindowHandle window) {
  const WindowHandle topLevel = parts_->windows.TopLevelOf(window);
  if (!IsVisible(topLevel)) return;
  BringToTop(topLevel);
  const WindowHandle before = std::exchange(parts_->active, topLevel);
  if (before == topLevel) return;
  Send(before, WM_ACTIVATE, 0);
  if (parts_->active == topLevel) Send(topLevel, WM_ACTIVATE, 1);
}

void Device::SetCapture(WindowHandle window) {
  if (IsVisible(window)) parts_->capture = window;
}

void Device::ReleaseCapture() { parts_->capture = kNoWindow; }

WindowHandle Device::Capture() const { return parts_->capture; }

}  // namespace orvane
