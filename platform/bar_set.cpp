#include "platform/bar_set.h"

#include <algorithm>

namespace orvane {

BarButton* Bar::Find(int id) {
  for (BarButton& button : buttons) {
    if (button.id == id && button.style != ButtonStyle::kSeparator) return &button;
  }
  return nullptr;
}

BarHandle BarSet::Create(WindowHandle owner, int flags, std::vector<BarButton> buttons) {
  bars_.emplace(++last_, Bar{owner, flags, std::move(buttons), {}});
  return last_;
}

bool BarSet::Destroy(BarHandle bar) {
  if (bars_.erase(bar) == 0) return false;
  std::erase(shown_, bar);
  return true;
}

void BarSet::Show(BarHandle bar, bool visible) {
  if (!bars_.contains(bar)) return;
  std::erase(shown_, bar);
  if (visible) shown_.push_back(bar);
}

Bar* BarSet::Find(BarHandle bar) {
  const auto found = bars_.find(bar);
  return found == bars_.end() ? nullptr : &found->second;
}

const Bar* BarSet::Find(BarHandle bar) const {
  const auto found = bars_.find(bar);
  return found == bars_.end() ? nullptr : &found->second;
}

}  // namespace orvane
