// Message boxes: modal to input, not to code. They queue and are shown one at a time; equal ones that follow
// each other are kept once with a count. From more than ten waiting on, the box also offers "Dismiss all".
#pragma once

#include <functional>

#include "base/message_reporter.h"
#include "platform/messages.h"

namespace orvane {

struct MessageBoxText {
  Text caption;
  Text text;
  MessageIcon icon = MessageIcon::kNone;
};

class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  virtual void Show(WindowHandle owner, TextView text, TextView caption, MessageIcon icon) = 0;
  // Called once, when the last waiting box has been dismissed (at the next step when none waits).
  virtual void WhenAllDismissed(std::function<void()> action) = 0;

  virtual bool Open() const = 0;
  virtual const MessageBoxText& Front() const = 0;  // only while Open
  virtual long long Waiting() const = 0;            // boxes still to come after the front one
  virtual bool OffersDismissAll() const = 0;
  virtual void Dismiss() = 0;  // the front one; nothing when none is open
  virtual void DismissAll() = 0;
};

}  // namespace orvane
