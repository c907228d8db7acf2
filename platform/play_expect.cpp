#include "platform/play_expect.h"

#include "base/styled_text.h"
#include "platform/front_title.h"
#include "platform/play_report.h"
#include "platform/play_trace.h"

namespace orvane {
namespace {

std::string Quoted(const std::string& text) { return "\"" + text + "\""; }
std::string Quoted(TextView text) { return Quoted(ToUtf8(text)); }

std::string Compare(const std::string& what, const std::string& expected, const std::string& actual) {
  if (expected == actual) return {};
  return "expected the " + what + " " + expected + ", it is " + actual;
}

bool SomeLineContains(const Device& device, TextView text) {
  const Text plain = WithoutCodes(text);
  for (const Text& line : VisibleLines(device)) {
    if (line.find(plain) != Text::npos) return true;
  }
  return false;
}

std::string ExpectText(const Device& device, TextView text) {
  if (SomeLineContains(device, text)) return {};
  return "no visible line contains " + Quoted(text);
}

std::string ExpectNoText(const Device& device, TextView text) {
  if (!SomeLineContains(device, text)) return {};
  return "a visible line contains " + Quoted(text);
}

std::string ExpectMessage(const MessageBoxes& boxes, TextView text) {
  if (!boxes.Open()) return "no message box is open; expected one that contains " + Quoted(text);
  const Text& shown = boxes.Front().text;
  if (WithoutCodes(shown).find(WithoutCodes(text)) != Text::npos) return {};
  return "the front message box does not contain " + Quoted(text) + ", it says " + Quoted(shown);
}

std::string ExpectNoMessage(const MessageBoxes& boxes) {
  return boxes.Open() ? "a message box is open, it says " + Quoted(boxes.Front().text) : std::string();
}

std::string ExpectPopup(const PopupMenus& popups, TextView label) {
  if (!popups.Open()) return "no pop-up menu is open; expected one with the entry " + Quoted(label);
  if (FindEntry(popups.Current().Items(), label) != nullptr) return {};
  return "the open pop-up menu has no entry " + Quoted(label);
}

std::string ExpectChecked(const PopupMenus& popups, TextView label) {
  if (std::string failure = ExpectPopup(popups, label); !failure.empty()) return failure;
  if (FindEntry(popups.Current().Items(), label)->checked) return {};
  return "the entry " + Quoted(label) + " is not checked";
}

std::string ExpectPixel(const PlayCommand& command, const Device& device, const HeadlessHost& host) {
  const Point at{command.numbers[0], command.numbers[1]};
  return Compare("pixel at " + std::to_string(at.x) + " " + std::to_string(at.y), HexColour(command.colour),
                 HexColour(host.PixelAt(at, device.Scale())));
}

std::string ExpectExit(std::optional<int> exit, int expected) {
  if (!exit) return "the program has not ended; expected the exit code " + std::to_string(expected);
  return Compare("exit code", std::to_string(expected), std::to_string(*exit));
}

}  // namespace

std::string CheckExpectation(const PlayCommand& command, PlayedProgram& program, const HeadlessHost& host) {
  Device& device = program.GetDevice();
  const Text text = command.texts.empty() ? Text() : command.texts[0];
  switch (command.verb) {
    case Verb::kExpectTool:
      return Compare("front tool", Quoted(text), Quoted(program.FrontTool()));
    case Verb::kExpectTitle:
      return Compare("title", Quoted(text), Quoted(FrontTitle(device)));
    case Verb::kExpectText:
      return ExpectText(device, text);
    case Verb::kExpectNoText:
      return ExpectNoText(device, text);
    case Verb::kExpectMessage:
      return ExpectMessage(device.Boxes(), text);
    case Verb::kExpectNoMessage:
      return ExpectNoMessage(device.Boxes());
    case Verb::kExpectPopup:
      return ExpectPopup(device.Popups(), text);
    case Verb::kExpectChecked:
      return ExpectChecked(device.Popups(), text);
    case Verb::kExpectClipboard:
      return Compare("clipboard", Quoted(text), Quoted(device.ClipboardText().value_or(Text())));
    case Verb::kExpectPixel:
      return ExpectPixel(command, device, host);
    case Verb::kExpectExit:
      return ExpectExit(program.Ended(), command.numbers[0]);
    default:
      return "this verb expects nothing";
  }
}

}  // namespace orvane
