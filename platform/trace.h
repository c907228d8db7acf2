// What can be watched from outside while the device works.
#pragma once

#include <string_view>

#include "base/message_reporter.h"
#include "platform/messages.h"

namespace orvane {

class TraceSink {
 public:
  virtual ~TraceSink() = default;
  virtual void MessageDispatched(WindowHandle window, std::uint32_t message, WParam w, LParam l) = 0;
  virtual void CursorChanged(bool wait) = 0;
  // A call of the menu bar: "create", "images", "show", "hide", "add", "insert", "delete", "enable",
  // "check", "destroy".
  virtual void BarCall(std::string_view call, int bar, int commandOrIndex, int value) = 0;
  virtual void MessageBoxShown(TextView caption, TextView text, MessageIcon icon) = 0;
};

}  // namespace orvane
