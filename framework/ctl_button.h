// A push button. It tells its parent kButtonPressed, kButtonReleased and, when the pen was lifted inside,
// kButtonClicked (control_messages.h).
#pragma once

#include "framework/pressable_control.h"

namespace orvane {

class ctlButton : public PressableControl {
 public:
  ctlButton(Shell& shell, WindowHandle parent, int x, int y, int width, int height);

  std::string ClassName() const override { return "ctlButton"; }

 protected:
  // PressableControl
  void OnPress() override;
  void OnRelease(bool inside) override;
  // ZelToolWindow
  void Paint(Canvas& canvas, int width, int height) override;
};

}  // namespace orvane
