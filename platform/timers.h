// The timers of a device, on the clock that the steps bring along.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/messages.h"

namespace orvane {

struct TimerKey {
  WindowHandle window = kNoWindow;
  int id = 0;
  friend bool operator==(const TimerKey&, const TimerKey&) = default;
};

class Timers {
 public:
  // Restarts a timer that runs already. It begins to count at the next step: only then is the time known.
  void Set(TimerKey key, int milliseconds);
  void Kill(TimerKey key);
  void Forget(WindowHandle window);
  void Clear() { timers_.clear(); }

  void StartCounting(std::int64_t now);
  // The timers due at `now`, the longest due first.
  std::vector<TimerKey> Due(std::int64_t now) const;
  // True when the timer is (still) due, which is thereby answered; its next time lies after `now`, however
  // late it was.
  bool Answer(TimerKey key, std::int64_t now);
  std::optional<std::int64_t> Next() const;

 private:
  struct Timer {
    TimerKey key;
    std::int64_t period = 1;
    std::optional<std::int64_t> due;  // empty until a step has told the time
  };
  std::vector<Timer>::iterator Find(TimerKey key);

  std::vector<Timer> timers_;
};

}  // namespace orvane
