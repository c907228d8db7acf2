// The on-screen keyboard, y 214 to 294 when raised. Its keys go to the window with the focus as WM_KEYDOWN,
// WM_CHAR and WM_KEYUP, like those of a real keyboard. Each raise or lowering sends WM_SETTINGCHANGE to the
// main window.
#pragma once

namespace orvane {

enum class PanelMode { kAuto, kAlways, kNever };

class InputPanel {
 public:
  virtual ~InputPanel() = default;
  virtual bool Visible() const = 0;
  // A text box asks for the panel (true) or no longer needs it (false). The mode decides whether asking
  // raises it: kAlways does, kNever does not, kAuto does when the last input came from a pen or finger
  // rather than from keys or a mouse. Asking for it to go down always lowers it.
  virtual void Request(bool raised) = 0;
  virtual void Toggle() = 0;  // the bar's button
};

}  // namespace orvane
