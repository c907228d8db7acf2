// The strip at the bottom of the constants screen that shows one constant in full. It scrolls, since many are
// wider than the screen and have a remark below.
#pragma once

#include "framework/zel_panel.h"

namespace orvane {

class ConstStrip : public ZelPanel {
 public:
  // A request to close it is passed to the parent as the command `closeCommand`.
  ConstStrip(Shell& shell, WindowHandle parent, int closeCommand);

  // Shows another text from its beginning.
  void SetContent(Text text);
  const Text& Content() const { return content_; }

  // ZelWindow
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override;

 protected:
  // ZelPanel
  void Paint(Canvas& canvas, int left, int top, int right, int bottom) override;

 private:
  int closeCommand_;
  FontFamily font_;  // "Courier New" 11
  Text content_;
};

}  // namespace orvane
