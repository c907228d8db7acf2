// Any bytes as a play script.
#pragma once

#include <string_view>

#include "fuzz/require.h"
#include "platform/device.h"
#include "platform/play_script.h"

namespace orvane::fuzz {

inline void CheckPlayCommand(const PlayCommand& command) {
  for (const int number : command.numbers) Require(number >= -10000 && number <= 24 * 60 * 60 * 1000);
  switch (command.verb) {
    case Verb::kDrag:
      Require(command.numbers.size() == 5 && command.numbers[4] >= 1);
      break;
    case Verb::kShot:
    case Verb::kTrace:
      Require(!command.file.empty() && command.file.front() != '/');
      Require(("/" + command.file + "/").find("/../") == std::string::npos);
      break;
    case Verb::kExpectPixel:
      Require(Rect::At({0, 0}, kScreenSize).Contains(Point{command.numbers[0], command.numbers[1]}));
      break;
    case Verb::kMenu:
      Require(command.texts.size() == 2);
      break;
    case Verb::kKey:
      Require(command.stroke.key > 0 && command.stroke.key < 0x100);
      break;
    default:
      break;
  }
}

// A word that is quoted again reads the same.
inline void CheckScriptLine(TextView line) {
  std::vector<Text> words;
  std::string message;
  if (!SplitScriptLine(line, words, message)) return Require(!message.empty());
  Text quoted;
  for (const Text& word : words) {
    quoted += u" \"";
    for (const Char c : word) {
      if (c == u'"' || c == u'\\') quoted += u'\\';
      if (c == u'\n') {
        quoted += u"\\n";
      } else {
        quoted += c;
      }
    }
    quoted += u'"';
  }
  std::vector<Text> again;
  Require(SplitScriptLine(quoted, again, message) && again == words);
}

inline void CheckPlayScript(std::string_view bytes) {
  const PlayScript script = ParsePlayScript(bytes);
  int lastLine = 0;
  for (const PlayCommand& command : script.commands) {
    Require(command.line > lastLine);
    lastLine = command.line;
    CheckPlayCommand(command);
  }
  for (const ScriptError& error : script.errors) Require(error.line > 0 && !error.message.empty());
  CheckScriptLine(FromUtf8(bytes));
}

}  // namespace orvane::fuzz
