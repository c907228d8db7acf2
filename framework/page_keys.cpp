#include "framework/page_keys.h"

#include <algorithm>

namespace orvane {

namespace {

int Screenful(int length, int kept) { return std::max(length - kept, 1); }

}  // namespace

bool ScrollByPageKey(ZelPanel& panel, Device& device, int key, int kept) {
  const Size visible = device.ClientSize(panel.Handle());
  const int down = Screenful(visible.height, kept);
  const int across = Screenful(visible.width, kept);
  const bool sideways = device.CurrentModifiers().control;
  switch (key) {
    case VK_PRIOR:
      return panel.ScrollBy(0, -down), true;
    case VK_NEXT:
      return panel.ScrollBy(0, down), true;
    case VK_HOME:
      return panel.ScrollBy(-panel.scrollX, -panel.scrollY), true;
    case VK_END:
      return panel.ScrollBy(0, panel.contentHeight), true;
    case VK_LEFT:
      if (sideways) panel.ScrollBy(-across, 0);
      return sideways;
    case VK_RIGHT:
      if (sideways) panel.ScrollBy(across, 0);
      return sideways;
    default:
      return false;
  }
}

}  // namespace orvane
