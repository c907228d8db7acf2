// The menu bar of one tool, in place of the main one while the tool shows it.
#pragma once

#include "framework/shell.h"

namespace orvane {

class ctlToolbar {
 public:
  // An empty bar whose presses go to the owner. `visible` gives the bar an input-panel button; every bar
  // appears by its Show. On failure a message box says so, and every operation does nothing.
  ctlToolbar(Shell& shell, WindowHandle owner, bool visible);
  ~ctlToolbar();
  ctlToolbar(const ctlToolbar&) = delete;
  ctlToolbar& operator=(const ctlToolbar&) = delete;

  // Appends a button: its cell of the bar images, its state and its style. A separator has command and image
  // 0.
  void AddButton(int commandId, int imageIndex, int state, ButtonStyle style);
  void EnableButton(int commandId, bool enable);
  void CheckButton(int commandId, bool checked);
  void Show();
  void Hide();
  void Destroy();

  WindowHandle Owner() const { return owner_; }
  BarHandle Handle() const { return hwndBar_; }

 private:
  MenuBars& Bars() const { return shell_->GetDevice().Bars(); }

  Shell* shell_;
  WindowHandle owner_;
  BarHandle hwndBar_ = kNoBar;
};

}  // namespace orvane
