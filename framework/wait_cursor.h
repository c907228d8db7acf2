// The wait cursor for as long as the object lives.
#pragma once

#include "platform/device.h"

namespace orvane {

class WaitCursor {
 public:
  explicit WaitCursor(Device& device) : device_(device) { device_.SetWaitCursor(true); }
  ~WaitCursor() { device_.SetWaitCursor(false); }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;

 private:
  Device& device_;
};

}  // namespace orvane
