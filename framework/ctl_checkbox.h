// A check box with its caption. When a stroke or a key changes it, it tells its parent kCheckboxChanged and
// then kCheckboxChecked or kCheckboxUnchecked (control_messages.h).
#pragma once

#include "framework/pressable_control.h"

namespace orvane {

class ctlCheckbox : public PressableControl {
 public:
  ctlCheckbox(Shell& shell, WindowHandle parent, int x, int y, int width, int height);

  // The owner may set it; it follows by Redraw and tells nobody.
  bool checked = false;

  std::string ClassName() const override { return "ctlCheckbox"; }

 protected:
  // PressableControl
  void OnRelease(bool inside) override;
  // ZelToolWindow
  void Paint(Canvas& canvas, int width, int height) override;
};

}  // namespace orvane
