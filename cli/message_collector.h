// Keeps the messages that a data file's reader reports, in order.
#pragma once

#include <cstddef>
#include <vector>

#include "base/message_reporter.h"
#include "cli/session.h"

namespace orvane {

// Equal messages that follow each other, kept once: a damaged file can give the same one a million times.
struct MessageRun {
  Text text;
  std::size_t count = 0;
};

class MessageCollector : public MessageReporter {
 public:
  void Report(TextView text, TextView, MessageIcon) override {
    if (runs_.empty() || runs_.back().text != text) runs_.push_back({Text(text), 0});
    ++runs_.back().count;
  }
  const std::vector<MessageRun>& Runs() const { return runs_; }

 private:
  std::vector<MessageRun> runs_;
};

// Tells a person every message as a failure, equal ones that follow each other once with their number.
void FailWithMessages(Session& session, const MessageCollector& messages);

}  // namespace orvane
