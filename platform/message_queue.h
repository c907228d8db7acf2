// What waits for the next step: posted messages, input that came while messages waited, the quit message.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <variant>

#include "platform/messages.h"

namespace orvane {

struct PostedMessage {
  WindowHandle window = kNoWindow;
  std::uint32_t message = 0;
  WParam w = 0;
  LParam l = 0;
};

struct QuitMessage {
  int code = 0;
};

using QueuedAction = std::function<void()>;
using QueueEntry = std::variant<PostedMessage, QuitMessage, QueuedAction>;

class MessageQueue {
 public:
  bool Empty() const { return entries_.empty(); }
  std::size_t Count() const { return entries_.size(); }
  void Post(const PostedMessage& message);
  void Add(QueueEntry entry) { entries_.push_back(std::move(entry)); }
  std::optional<QueueEntry> Take();  // the oldest
  void Forget(WindowHandle window);
  void Clear() { entries_.clear(); }

 private:
  std::deque<QueueEntry> entries_;
};

}  // namespace orvane
