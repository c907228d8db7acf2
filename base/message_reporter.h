// How the rooms below the screen report a failure: the text goes to whoever was handed in. The
// hand-held shows a message box, the command line prints a line, a test collects the texts.
#pragma once

#include "base/text.h"

namespace orvane {

enum class MessageIcon { kNone, kError, kExclamation, kInformation };

class MessageReporter {
 public:
  virtual ~MessageReporter() = default;
  virtual void Report(TextView text, TextView caption, MessageIcon icon) = 0;
};

inline constexpr TextView kProgramName = u"Orvane";

}  // namespace orvane
