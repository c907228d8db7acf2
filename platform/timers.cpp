#include "platform/timers.h"

#include <algorithm>

namespace orvane {

std::vector<Timers::Timer>::iterator Timers::Find(TimerKey key) {
  return std::find_if(timers_.begin(), timers_.end(), [key](const Timer& timer) { return timer.key == key; });
}

void Timers::Set(TimerKey key, int milliseconds) {
  Kill(key);
  timers_.push_back({key, std::max(milliseconds, 1), std::nullopt});
}

void Timers::Kill(TimerKey key) {
  const auto found = Find(key);
  if (found != timers_.end()) timers_.erase(found);
}

void Timers::Forget(WindowHandle window) {
  timers_.erase(std::remove_if(timers_.begin(), timers_.end(),
                               [window](const Timer& timer) { return timer.key.window == window; }),
                timers_.end());
}

void Timers::StartCounting(std::int64_t now) {
  for (Timer& timer : timers_) {
    if (!timer.due) timer.due = now + timer.period;
  }
}

std::vector<TimerKey> Timers::Due(std::int64_t now) const {
  std::vector<const Timer*> due;
  for (const Timer& timer : timers_) {
    if (timer.due && *timer.due <= now) due.push_back(&timer);
  }
  std::stable_sort(due.begin(), due.end(), [](const Timer* a, const Timer* b) { return *a->due < *b->due; });
  std::vector<TimerKey> keys;
  keys.reserve(due.size());
  for (const Timer* timer : due) keys.push_back(timer->key);
  return keys;
}

bool Timers::Answer(TimerKey key, std::int64_t now) {
  const auto timer = Find(key);
  if (timer == timers_.end() || !timer->due || *timer->due > now) return false;
  *timer->due += timer->period;
  if (*timer->due <= now) timer->due = now + timer->period;
  return true;
}

std::optional<std::int64_t> Timers::Next() const {
  std::optional<std::int64_t> next;
  for (const Timer& timer : timers_) {
    if (timer.due && (!next || *timer.due < *next)) next = timer.due;
  }
  return next;
}

}  // namespace orvane
