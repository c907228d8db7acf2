#include "cli/message_collector.h"

#include "cli/plain_text.h"

namespace orvane {

void FailWithMessages(Session& session, const MessageCollector& messages) {
  for (const MessageRun& run : messages.Runs()) {
    session.Fail(PlainText(run.text) + (run.count > 1 ? " (" + std::to_string(run.count) + " times)" : ""));
  }
}

}  // namespace orvane
