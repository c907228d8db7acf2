// The text of a play script, read into commands. Nothing here plays anything: a script is read whole before
// its first verb has any effect, so that a mistake on the last line costs nothing.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/colour.h"
#include "platform/play_keys.h"

namespace orvane {

enum class Verb {
  kTap,
  kPress,
  kMove,
  kRelease,
  kDrag,
  kWheel,
  kKey,
  kHoldAction,
  kLetGoAction,
  kType,
  kMenu,
  kButton,
  kChoose,
  kPanel,
  kOk,
  kDismissAll,
  kClose,
  kClipboard,
  kWait,
  kShot,
  kTrace,
  kReport,
  kRestart,
  kExpectTool,
  kExpectTitle,
  kExpectText,
  kExpectNoText,
  kExpectMessage,
  kExpectNoMessage,
  kExpectPopup,
  kExpectChecked,
  kExpectClipboard,
  kExpectPixel,
  kExpectExit
};

// One line of a script.
struct PlayCommand {
  int line = 0;  // 1 is the first
  Verb verb = Verb::kReport;
  std::vector<int> numbers;  // in the order of the line; an optional number has its default
  std::vector<Text> texts;   // labels and texts, likewise
  std::string file;          // of shot and trace: relative, and never leading out of its folder
  KeyStroke stroke;          // of key
  Colour colour;             // of expect pixel
  bool sideways = false;     // of wheel
};

struct ScriptError {
  int line = 0;
  std::string message;
};

struct PlayScript {
  std::vector<PlayCommand> commands;
  std::vector<ScriptError> errors;  // not empty: nothing of the script may be played
};

// Reads a script in UTF-8. Lines end with a line feed, or with a carriage return and a line feed.
PlayScript ParsePlayScript(std::string_view script);

// Cuts one line into its words. Blanks and tabs part words; a word that begins with # starts a comment; a
// word in double quotes may hold blanks and the escapes \n, \", \\ and \uXXXX. False with a message when a
// quote or an escape is wrong.
bool SplitScriptLine(TextView line, std::vector<Text>& words, std::string& message);

}  // namespace orvane
