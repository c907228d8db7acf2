#include "platform/play_report.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "base/styled_text.h"
#include "platform/front_title.h"
#include "platform/play_trace.h"

namespace orvane {
namespace {

using Json = nlohmann::ordered_json;

Json MessageJson(const MessageBoxes& boxes) {
  if (!boxes.Open()) return nullptr;
  const MessageBoxText& front = boxes.Front();
  return {{"caption", JsonText(front.caption)},
          {"icon", IconName(front.icon)},
          {"text", JsonText(front.text)},
          {"waiting", boxes.Waiting()}};
}

Json DialogJson(const Dialogs& dialogs) {
  const std::string name = dialogs.FrontName();
  return name.empty() ? Json(nullptr) : Json(name);
}

// An entry that opens a menu of its own has that menu's entries beside the usual fields.
Json MenuJson(const std::vector<MenuItem>& items) {
  Json list = Json::array();
  for (const MenuItem& item : items) {
    Json entry = {{"id", item.id},       {"label", JsonText(item.label)}, {"checked", item.checked},
                  {"radio", item.radio}, {"enabled", item.enabled},       {"separator", item.separator}};
    if (!item.submenu.empty()) entry["items"] = MenuJson(item.submenu);
    list.push_back(std::move(entry));
  }
  return list;
}

Json PopupJson(const PopupMenus& popups) {
  if (!popups.Open()) return nullptr;
  const Point anchor = popups.Anchor();
  return {{"x", anchor.x}, {"y", anchor.y}, {"items", MenuJson(popups.Current().Items())}};
}

std::string_view StyleName(ButtonStyle style) {
  switch (style) {
    case ButtonStyle::kSeparator:
      return "separator";
    case ButtonStyle::kCheck:
      return "check";
    case ButtonStyle::kDropDown:
      return "dropdown";
    case ButtonStyle::kMenu:
      return "menu";
    case ButtonStyle::kPush:
      break;
  }
  return "push";
}

Json BarJson(const MenuBars& bars) {
  Json list = Json::array();
  for (const BarButtonPlace& place : bars.Places()) {
    const BarButton& button = place.button;
    list.push_back({{"id", button.id},
                    {"image", button.image},
                    {"style", StyleName(button.style)},
                    {"label", JsonText(button.label)},
                    {"enabled", (button.state & TBSTATE_ENABLED) != 0},
                    {"pressed", place.pressed || (button.state & TBSTATE_CHECKED) != 0},
                    {"x", place.rect.left},
                    {"y", place.rect.top},
                    {"w", place.rect.Width()},
                    {"h", place.rect.Height()}});
  }
  return list;
}

// The unit that a window belongs to: its own name, or that of the window it lies in.
std::string OwnerName(const Device& device, WindowHandle window) {
  for (WindowHandle at = window; at != kNoWindow; at = device.Parent(at)) {
    const WindowObject* object = device.UserData(at);
    std::string name = object != nullptr ? object->UnitName() : std::string();
    if (!name.empty()) return name;
  }
  return {};
}

void AddDescription(const WindowReport& report, Json& json) {
  if (report.scroll) json["scroll"] = {report.scroll->x, report.scroll->y};
  if (report.content) json["content"] = {report.content->width, report.content->height};
  if (report.text) json["text"] = JsonText(*report.text);
  if (report.caret) json["caret"] = *report.caret;
  if (report.selection) json["selection"] = {report.selection->first, report.selection->second};
  if (report.selected) json["selected"] = {report.selected->first, report.selected->second};
}

Json WindowsJson(const Device& device) {
  Json list = Json::array();
  for (const WindowHandle window : device.VisibleWindows()) {
    const WindowObject* object = device.UserData(window);
    const WindowReport report = object != nullptr ? object->Describe() : WindowReport{};
    const Rect rect = device.ScreenRect(window);
    Json json = {{"id", window},
                 {"class", report.className.empty() ? JsonText(device.ClassName(window)) : report.className},
                 {"owner", OwnerName(device, window)},
                 {"x", rect.left},
                 {"y", rect.top},
                 {"w", rect.Width()},
                 {"h", rect.Height()}};
    AddDescription(report, json);
    list.push_back(std::move(json));
  }
  return list;
}

Json RunsJson(const Device& device) {
  Json list = Json::array();
  for (const ScreenRun& shown : device.VisibleRuns()) {
    const TextRun& run = shown.run;
    list.push_back({{"window", shown.window},
                    {"line", run.line},
                    {"x", run.rect.left},
                    {"y", run.rect.top},
                    {"w", run.rect.Width()},
                    {"h", run.rect.Height()},
                    {"text", JsonText(run.text)},
                    {"face", JsonText(run.font.face)},
                    {"px", run.font.pixels},
                    {"bold", run.font.bold},
                    {"italic", run.font.italic},
                    {"color", HexColour(run.colour)}});
  }
  return list;
}

}  // namespace

std::string ReportLine(PlayedProgram& program) {
  Device& device = program.GetDevice();
  const std::optional<int> exit = program.Ended();
  const std::optional<Text> clipboard = device.ClipboardText();
  const Json report = {{"tool", program.FrontTool()},
                       {"current", program.CurrentTool()},
                       {"title", JsonText(FrontTitle(device))},
                       {"stack", Json(program.ToolStack())},
                       {"message", MessageJson(device.Boxes())},
                       {"dialog", DialogJson(device.DialogBoxes())},
                       {"popup", PopupJson(device.Popups())},
                       {"bar", BarJson(device.Bars())},
                       {"input_panel", device.Panel().Visible()},
                       {"focus", device.Focus()},
                       {"help_topic", program.HelpTopic()},
                       {"clipboard", clipboard ? JsonText(*clipboard) : std::string()},
                       {"cursor", device.WaitCursor() ? "wait" : "arrow"},
                       {"exit", exit ? Json(*exit) : Json(nullptr)},
                       {"windows", WindowsJson(device)},
                       {"runs", RunsJson(device)}};
  return report.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::vector<Text> VisibleLines(const Device& device) {
  struct Line {
    WindowHandle handle;
    std::string window;
    std::uint32_t number;
    Text text;
  };
  std::vector<Line> lines;
  for (const ScreenRun& shown : device.VisibleRuns()) {
    const auto same = [&shown](const Line& line) {
      return line.handle == shown.handle && line.window == shown.window && line.number == shown.run.line;
    };
    auto line = std::find_if(lines.rbegin(), lines.rend(), same);
    if (line == lines.rend()) {
      lines.push_back({shown.handle, shown.window, shown.run.line, shown.run.text});
    } else {
      line->text += shown.run.text;
    }
  }
  std::vector<Text> texts;
  texts.reserve(lines.size());
  for (const Line& line : lines) texts.push_back(WithoutCodes(line.text));
  return texts;
}

const MenuItem* FindEntry(const std::vector<MenuItem>& items, TextView label) {
  for (const MenuItem& item : items) {
    if (!item.separator && item.label == label) return &item;
  }
  for (const MenuItem& item : items) {
    if (const MenuItem* found = FindEntry(item.submenu, label)) return found;
  }
  return nullptr;
}

}  // namespace orvane
