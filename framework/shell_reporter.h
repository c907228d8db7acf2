// Passes what is reported on to message boxes of the main window.
#pragma once

#include "base/message_reporter.h"
#include "framework/shell.h"

namespace orvane {

class ShellReporter : public MessageReporter {
 public:
  explicit ShellReporter(Shell& shell) : shell_(shell) {}
  void Report(TextView text, TextView caption, MessageIcon icon) override {
    shell_.GetDevice().Boxes().Show(shell_.MainWindow(), text, caption, icon);
  }

 private:
  Shell& shell_;
};

}  // namespace orvane
