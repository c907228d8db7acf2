// Keeps the messages that a unit under test reports.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "base/message_reporter.h"
#include "base/text.h"

namespace orvane::testing {

class CollectingReporter : public MessageReporter {
 public:
  void Report(TextView text, TextView caption, MessageIcon icon) override {
    texts.push_back(ToUtf8(text));
    allErrorsOfTheProgram = allErrorsOfTheProgram && caption == u"Orvane" && icon == MessageIcon::kError;
  }

  // The texts since the last call.
  std::vector<std::string> Take() { return std::exchange(texts, {}); }

  std::vector<std::string> texts;
  bool allErrorsOfTheProgram = true;  // every message had the program's caption and the error icon
};

}  // namespace orvane::testing
