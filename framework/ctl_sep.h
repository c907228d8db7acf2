// A separator line: the program's picture of one.
#pragma once

#include "framework/zel_window.h"

namespace orvane {

class ctlSep : public ZelWindow {
 public:
  // A visible child; the owner gives it its place by Move.
  ctlSep(Shell& shell, WindowHandle parent);

  // ZelWindow
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override;
  std::string ClassName() const override { return "ctlSep"; }
};

}  // namespace orvane
