#include "platform/front_title.h"

#include <vector>

#include "base/message_reporter.h"
#include "platform/device.h"

namespace orvane {

Text FrontTitle(const Device& device) {
  const WindowHandle main = device.MainWindow();
  const std::vector<WindowHandle> windows = device.VisibleWindows();
  for (auto it = windows.rbegin(); main != kNoWindow && it != windows.rend(); ++it) {
    if (device.Parent(*it) != main || (device.Style(*it) & WS_CHILD) != 0) continue;
    if (Text title = device.Title(*it); !title.empty()) return title;
  }
  return Text(kProgramName);
}

}  // namespace orvane
