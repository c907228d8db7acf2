// The menu bars as data: their buttons, their images and the order in which they were shown.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include "platform/menu_bar.h"

namespace orvane {

struct Bar {
  WindowHandle owner = kNoWindow;
  int flags = 0;
  std::vector<BarButton> buttons;
  std::vector<std::shared_ptr<const Image>> images;

  bool HasPanelButton() const { return (flags & kBarWithoutPanelButton) == 0; }
  // The first button with the id that is no separator; null when there is none.
  BarButton* Find(int id);
};

class BarSet {
 public:
  BarHandle Create(WindowHandle owner, int flags, std::vector<BarButton> buttons);
  bool Destroy(BarHandle bar);
  // Showing moves a bar above all shown ones; hiding reveals the one shown before it.
  void Show(BarHandle bar, bool visible);

  Bar* Find(BarHandle bar);
  const Bar* Find(BarHandle bar) const;
  BarHandle Shown() const { return shown_.empty() ? kNoBar : shown_.back(); }

 private:
  std::map<BarHandle, Bar> bars_;
  std::vector<BarHandle> shown_;  // the last one is drawn
  BarHandle last_ = kNoBar;       // handles are never used twice
};

}  // namespace orvane
