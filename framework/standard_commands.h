// Keys that every desktop program knows. They belong to the tool in front: the main window asks it which of
// its own commands such a key runs and gives it that command, as if it had been pressed on the bar. So a tool
// has one way to copy, and declares the key by answering
//
//   case kAskStandardCommand:
//     return AnswerStandardCommand(w, {.copy = kCopyButton, .paste = 0, .close = 0});
//
// Ctrl+C copies, Ctrl+V pastes, Escape closes a tool that was opened over another one.
#pragma once

#include "platform/messages.h"

namespace orvane {

enum class StandardCommand { kCopy = 1, kPaste = 2, kClose = 3 };

// wParam: the StandardCommand. The result is the tool's command for it, 0 when it has none.
inline constexpr std::uint32_t kAskStandardCommand = 0xA081;

constexpr WParam PackStandardCommand(StandardCommand command) { return static_cast<WParam>(command); }
constexpr StandardCommand StandardCommandOf(WParam packed) { return static_cast<StandardCommand>(packed); }

// A tool's own commands for the standard ones; 0 for those that it does not have.
struct OwnCommands {
  int copy = 0;
  int paste = 0;
  int close = 0;
};

constexpr int AnswerStandardCommand(WParam asked, const OwnCommands& own) {
  switch (StandardCommandOf(asked)) {
    case StandardCommand::kCopy:
      return own.copy;
    case StandardCommand::kPaste:
      return own.paste;
    case StandardCommand::kClose:
      return own.close;
  }
  return 0;
}

}  // namespace orvane
