#include "platform/play_script.h"

#include <array>
#include <optional>

#include "platform/device.h"

namespace orvane {
namespace {

// What may stand behind a verb, in order.
enum class Argument {
  kNone,
  kPosition,      // a coordinate; a pen that is held outside the window may be beyond the screen
  kScreenX,       // a coordinate on the screen
  kScreenY,       //
  kSteps,         // optional, at least 1
  kNotches,       //
  kSideways,      // optional: the word "sideways"
  kCommandId,     //
  kMilliseconds,  //
  kExitCode,      //
  kText,          //
  kFile,          //
  kKey,           //
  kColour,        // RRGGBB
};

constexpr int kDefaultDragSteps = 8;
constexpr int kFarthestPosition = 10000;
constexpr int kMostSteps = 10000;
constexpr int kMostNotches = 1000;
constexpr int kLongestWait = 24 * 60 * 60 * 1000;

using Arguments = std::array<Argument, 5>;

struct VerbForm {
  TextView first;
  TextView second;  // the word that goes with the first, empty if none
  Verb verb;
  Arguments arguments;
};

constexpr Arguments kNothing{};
constexpr Arguments kAt{Argument::kPosition, Argument::kPosition};
constexpr Arguments kOneText{Argument::kText};

constexpr std::array<VerbForm, 34> kForms = {{
    {u"tap", u"", Verb::kTap, kAt},
    {u"press", u"", Verb::kPress, kAt},
    {u"move", u"", Verb::kMove, kAt},
    {u"release", u"", Verb::kRelease, kNothing},
    {u"drag",
     u"",
     Verb::kDrag,
     {Argument::kPosition, Argument::kPosition, Argument::kPosition, Argument::kPosition, Argument::kSteps}},
    {u"wheel",
     u"",
     Verb::kWheel,
     {Argument::kPosition, Argument::kPosition, Argument::kNotches, Argument::kSideways}},
    {u"key", u"", Verb::kKey, {Argument::kKey}},
    {u"hold", u"action", Verb::kHoldAction, kNothing},
    {u"let-go", u"action", Verb::kLetGoAction, kNothing},
    {u"type", u"", Verb::kType, kOneText},
    {u"menu", u"", Verb::kMenu, {Argument::kText, Argument::kText}},
    {u"button", u"", Verb::kButton, {Argument::kCommandId}},
    {u"choose", u"", Verb::kChoose, kOneText},
    {u"panel", u"", Verb::kPanel, kNothing},
    {u"ok", u"", Verb::kOk, kNothing},
    {u"dismiss-all", u"", Verb::kDismissAll, kNothing},
    {u"close", u"", Verb::kClose, kNothing},
    {u"clipboard", u"", Verb::kClipboard, kOneText},
    {u"wait", u"", Verb::kWait, {Argument::kMilliseconds}},
    {u"shot", u"", Verb::kShot, {Argument::kFile}},
    {u"trace", u"", Verb::kTrace, {Argument::kFile}},
    {u"report", u"", Verb::kReport, kNothing},
    {u"restart", u"", Verb::kRestart, kNothing},
    {u"expect", u"tool", Verb::kExpectTool, kOneText},
    {u"expect", u"title", Verb::kExpectTitle, kOneText},
    {u"expect", u"text", Verb::kExpectText, kOneText},
    {u"expect", u"no-text", Verb::kExpectNoText, kOneText},
    {u"expect", u"message", Verb::kExpectMessage, kOneText},
    {u"expect", u"no-message", Verb::kExpectNoMessage, kNothing},
    {u"expect", u"popup", Verb::kExpectPopup, kOneText},
    {u"expect", u"checked", Verb::kExpectChecked, kOneText},
    {u"expect", u"clipboard", Verb::kExpectClipboard, kOneText},
    {u"expect", u"pixel", Verb::kExpectPixel, {Argument::kScreenX, Argument::kScreenY, Argument::kColour}},
    {u"expect", u"exit", Verb::kExpectExit, {Argument::kExitCode}},
}};

constexpr bool Blank(Char c) { return c == u' ' || c == u'\t'; }

// The value of a hexadecimal digit, −1 for another character.
constexpr int HexDigit(Char c) {
  if (IsAsciiDigit(c)) return c - u'0';
  const Char small = AsciiLower(c);
  return small >= u'a' && small <= u'f' ? small - u'a' + 10 : -1;
}

std::optional<std::uint32_t> HexNumber(TextView digits) {
  std::uint32_t value = 0;
  for (const Char c : digits) {
    const int digit = HexDigit(c);
    if (digit < 0) return std::nullopt;
    value = value * 16 + static_cast<std::uint32_t>(digit);
  }
  return value;
}

// A whole decimal number in the range, with a sign or without.
std::optional<int> WholeNumber(TextView word, int least, int greatest) {
  const bool negative = !word.empty() && word[0] == u'-';
  if (negative || (!word.empty() && word[0] == u'+')) word.remove_prefix(1);
  if (word.empty() || word.size() > 9) return std::nullopt;
  int value = 0;
  for (const Char c : word) {
    if (!IsAsciiDigit(c)) return std::nullopt;
    value = value * 10 + (c - u'0');
  }
  if (negative) value = -value;
  if (value < least || value > greatest) return std::nullopt;
  return value;
}

// Reads a quoted word from behind its opening quote; `at` then stands behind the closing one.
bool ReadQuoted(TextView line, std::size_t& at, Text& word, std::string& message) {
  for (; at < line.size(); ++at) {
    const Char c = line[at];
    if (c == u'"') {
      ++at;
      if (at == line.size() || Blank(line[at])) return true;
      message = "a closing quote is followed by a blank or the end of the line";
      return false;
    }
    if (c != u'\\') {
      word += c;
      continue;
    }
    const Char escape = ++at < line.size() ? line[at] : u'\0';
    if (escape == u'n') {
      word += u'\n';
    } else if (escape == u'"' || escape == u'\\') {
      word += escape;
    } else if (escape == u'u' && line.size() - at > 4 && HexNumber(line.substr(at + 1, 4))) {
      word += static_cast<Char>(*HexNumber(line.substr(at + 1, 4)));
      at += 4;
    } else {
      message = "the escapes of a quoted text are \\n, \\\", \\\\ and \\uXXXX";
      return false;
    }
  }
  message = "the closing quote is missing";
  return false;
}

// A file below the output folder: no root, no way up, no empty name.
bool StaysInside(std::string_view path) {
  if (path.empty() || path.front() == '/' || path.back() == '/') return false;
  if (path.find('\0') != std::string_view::npos) return false;
  while (!path.empty()) {
    const std::size_t slash = path.find('/');
    if (path.substr(0, slash) == "..") return false;
    if (slash == std::string_view::npos) break;
    path.remove_prefix(slash + 1);
  }
  return true;
}

std::string Quoted(TextView word) { return "\"" + ToUtf8(word) + "\""; }

bool ReadNumber(TextView word, int least, int greatest, PlayCommand& command, std::string& message) {
  const std::optional<int> number = WholeNumber(word, least, greatest);
  if (number) {
    command.numbers.push_back(*number);
  } else {
    message = Quoted(word) + " is no whole number from " + std::to_string(least) + " to " +
              std::to_string(greatest);
  }
  return number.has_value();
}

bool ReadFile(TextView word, PlayCommand& command, std::string& message) {
  command.file = ToUtf8(word);
  if (StaysInside(command.file)) return true;
  message = Quoted(word) + " is no file below the output folder";
  return false;
}

bool ReadKey(TextView word, PlayCommand& command, std::string& message) {
  const std::optional<KeyStroke> stroke = ParseKeyStroke(word);
  if (stroke) {
    command.stroke = *stroke;
  } else {
    message = Quoted(word) + " is no key";
  }
  return stroke.has_value();
}

bool ReadColour(TextView word, PlayCommand& command, std::string& message) {
  const std::optional<std::uint32_t> bits = word.size() == 6 ? HexNumber(word) : std::nullopt;
  if (bits) {
    command.colour = Rgb(static_cast<int>(*bits >> 16), static_cast<int>((*bits >> 8) & 0xFFu),
                         static_cast<int>(*bits & 0xFFu));
  } else {
    message = Quoted(word) + " is no colour of the form RRGGBB";
  }
  return bits.has_value();
}

bool ReadArgument(Argument argument, const Text& word, PlayCommand& command, std::string& message) {
  switch (argument) {
    case Argument::kPosition:
      return ReadNumber(word, -kFarthestPosition, kFarthestPosition, command, message);
    case Argument::kScreenX:
      return ReadNumber(word, 0, kScreenSize.width - 1, command, message);
    case Argument::kScreenY:
      return ReadNumber(word, 0, kScreenSize.height - 1, command, message);
    case Argument::kSteps:
      return ReadNumber(word, 1, kMostSteps, command, message);
    case Argument::kNotches:
      return ReadNumber(word, -kMostNotches, kMostNotches, command, message);
    case Argument::kCommandId:
      return ReadNumber(word, 0, 0xFFFF, command, message);
    case Argument::kMilliseconds:
      return ReadNumber(word, 0, kLongestWait, command, message);
    case Argument::kExitCode:
      return ReadNumber(word, -255, 255, command, message);
    case Argument::kSideways:
      command.sideways = word == u"sideways";
      if (!command.sideways) message = Quoted(word) + " is not the word sideways";
      return command.sideways;
    case Argument::kText:
      command.texts.push_back(word);
      return true;
    case Argument::kFile:
      return ReadFile(word, command, message);
    case Argument::kKey:
      return ReadKey(word, command, message);
    case Argument::kColour:
      return ReadColour(word, command, message);
    case Argument::kNone:
      break;
  }
  message = "too many words: " + Quoted(word);
  return false;
}

constexpr bool Optional(Argument argument) {
  return argument == Argument::kSteps || argument == Argument::kSideways;
}

bool ReadArguments(const VerbForm& form, const std::vector<Text>& words, std::size_t at, PlayCommand& command,
                   std::string& message) {
  for (const Argument argument : form.arguments) {
    if (argument == Argument::kNone) break;
    if (at < words.size()) {
      if (!ReadArgument(argument, words[at++], command, message)) return false;
    } else if (!Optional(argument)) {
      message = "a word is missing behind " + Quoted(words[at - 1]);
      return false;
    } else if (argument == Argument::kSteps) {
      command.numbers.push_back(kDefaultDragSteps);
    }
  }
  return at == words.size() || ReadArgument(Argument::kNone, words[at], command, message);
}

bool ReadCommand(const std::vector<Text>& words, PlayCommand& command, std::string& message) {
  bool firstKnown = false;
  for (const VerbForm& form : kForms) {
    if (form.first != words[0]) continue;
    firstKnown = true;
    const bool two = !form.second.empty();
    if (two && (words.size() < 2 || form.second != words[1])) continue;
    command.verb = form.verb;
    return ReadArguments(form, words, two ? 2 : 1, command, message);
  }
  if (!firstKnown) {
    message = "unknown verb " + Quoted(words[0]);
  } else if (words.size() < 2) {
    message = "a word is missing behind " + Quoted(words[0]);
  } else {
    message = Quoted(words[0]) + " does not go with " + Quoted(words[1]);
  }
  return false;
}

}  // namespace

bool SplitScriptLine(TextView line, std::vector<Text>& words, std::string& message) {
  std::size_t at = 0;
  while (at < line.size()) {
    if (Blank(line[at])) {
      ++at;
    } else if (line[at] == u'#') {
      break;
    } else if (line[at] == u'"') {
      words.emplace_back();
      if (!ReadQuoted(line, ++at, words.back(), message)) return false;
    } else {
      std::size_t end = at;
      while (end < line.size() && !Blank(line[end])) ++end;
      words.emplace_back(line.substr(at, end - at));
      if (words.back().find(u'"') != Text::npos) {
        message = "a quote stands in the middle of a word";
        return false;
      }
      at = end;
    }
  }
  return true;
}

PlayScript ParsePlayScript(std::string_view script) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  PlayScript parsed;
  if (script.substr(0, kByteOrderMark.size()) == kByteOrderMark) script.remove_prefix(kByteOrderMark.size());
  for (int number = 1; !script.empty(); ++number) {
    const std::size_t end = script.find('\n');
    std::string_view line = script.substr(0, end);
    script.remove_prefix(end == std::string_view::npos ? script.size() : end + 1);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    if (!IsValidUtf8(line)) {
      parsed.errors.push_back({number, "the line is not UTF-8"});
      continue;
    }
    std::vector<Text> words;
    std::string message;
    PlayCommand command;
    command.line = number;
    const bool split = SplitScriptLine(FromUtf8(line), words, message);
    if (split && words.empty()) continue;
    if (split && ReadCommand(words, command, message)) {
      parsed.commands.push_back(std::move(command));
    } else {
      parsed.errors.push_back({number, message});
    }
  }
  return parsed;
}

}  // namespace orvane
