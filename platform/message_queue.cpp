#include "platform/message_queue.h"

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

// A handler that posts more than it handles would fill the memory; beyond this many its posts are lost.
constexpr std::size_t kMostPosted = 10000;

}  // namespace

void MessageQueue::Post(const PostedMessage& message) {
  if (entries_.size() < kMostPosted) entries_.emplace_back(message);
}

std::optional<QueueEntry> MessageQueue::Take() {
  if (entries_.empty()) return std::nullopt;
  QueueEntry entry = std::move(entries_.front());
  entries_.pop_front();
  return entry;
}

void MessageQueue::Forget(WindowHandle window) {
  const auto isForWindow = [window](const QueueEntry& entry) {
    const auto* const posted = std::get_if<PostedMessage>(&entry);
    return posted != nullptr && posted->window == window;
  };
  entries_.erase(std::remove_if(entries_.begin(), entries_.end(), isForWindow), entries_.end());
}

}  // namespace orvane
