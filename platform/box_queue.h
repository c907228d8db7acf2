// The message boxes that wait. A damaged file can report a hundred thousand failures: equal ones that follow
// each other are kept once with a count, and the texts that are kept have a limit, but every box is counted.
#pragma once

#include <cstddef>
#include <deque>

#include "platform/message_boxes.h"

namespace orvane {

// The most text that the queue keeps, in 16-bit units with a charge for each entry. Boxes beyond it lose
// their text: they wait as equal boxes that say so.
inline constexpr std::size_t kBoxTextBudget = 256 * 1024;
inline constexpr std::size_t kBoxEntryCharge = 64;
// The longest text that one box shows; the rest is cut, with an ellipsis.
inline constexpr std::size_t kLongestBoxText = 16 * 1024;
// "Dismiss all" is offered when more boxes than this wait.
inline constexpr long long kPatience = 10;

inline constexpr TextView kLostBoxText =
    u"There was another message. Too many were waiting to keep its text.";

class BoxQueue {
 public:
  void Add(MessageBoxText box);
  bool Empty() const { return runs_.empty(); }
  const MessageBoxText& Front() const { return runs_.front().box; }  // only while not Empty
  long long Waiting() const { return Empty() ? 0 : total_ - 1; }     // after the front one
  void RemoveFront();
  void Clear();
  std::size_t Kept() const { return runs_.size(); }  // entries in memory

 private:
  struct Run {
    MessageBoxText box;
    long long count = 1;
  };

  std::deque<Run> runs_;
  long long total_ = 0;
  std::size_t charge_ = 0;
};

}  // namespace orvane
