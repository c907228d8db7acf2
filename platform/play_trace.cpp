#include "platform/play_trace.h"

#include <array>
#include <nlohmann/json.hpp>

#include "platform/menu_bar.h"

namespace orvane {
namespace {

using Json = nlohmann::ordered_json;

struct MessageName {
  std::uint32_t message;
  std::string_view name;
};

constexpr std::array<MessageName, 23> kMessageNames = {{{WM_CREATE, "WM_CREATE"},
                                                        {WM_DESTROY, "WM_DESTROY"},
                                                        {WM_MOVE, "WM_MOVE"},
                                                        {WM_SIZE, "WM_SIZE"},
                                                        {WM_ACTIVATE, "WM_ACTIVATE"},
                                                        {WM_SETFOCUS, "WM_SETFOCUS"},
                                                        {WM_KILLFOCUS, "WM_KILLFOCUS"},
                                                        {WM_PAINT, "WM_PAINT"},
                                                        {WM_CLOSE, "WM_CLOSE"},
                                                        {WM_QUIT, "WM_QUIT"},
                                                        {WM_SHOWWINDOW, "WM_SHOWWINDOW"},
                                                        {WM_SETTINGCHANGE, "WM_SETTINGCHANGE"},
                                                        {WM_NOTIFY, "WM_NOTIFY"},
                                                        {WM_DISPLAYCHANGE, "WM_DISPLAYCHANGE"},
                                                        {WM_KEYDOWN, "WM_KEYDOWN"},
                                                        {WM_KEYUP, "WM_KEYUP"},
                                                        {WM_CHAR, "WM_CHAR"},
                                                        {WM_COMMAND, "WM_COMMAND"},
                                                        {WM_TIMER, "WM_TIMER"},
                                                        {WM_MOUSEMOVE, "WM_MOUSEMOVE"},
                                                        {WM_LBUTTONDOWN, "WM_LBUTTONDOWN"},
                                                        {WM_LBUTTONUP, "WM_LBUTTONUP"},
                                                        {WM_MOUSEWHEEL, "WM_MOUSEWHEEL"}}};

void WriteLine(std::ofstream& file, const Json& event) {
  file << event.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
}

}  // namespace

bool JsonTrace::Open(const std::string& path) {
  file_ = std::ofstream(path, std::ios::binary | std::ios::trunc);
  return file_.is_open();
}

void JsonTrace::MessageDispatched(WindowHandle window, std::uint32_t message, WParam w, LParam l) {
  if (!file_.is_open()) return;
  Json event = {{"time", time_}, {"event", "message"}, {"window", window}, {"message", message}};
  for (const MessageName& known : kMessageNames) {
    if (known.message == message) event["name"] = known.name;
  }
  event["w"] = w;
  if (message == WM_NOTIFY && l != 0) {
    const BarNotification& notification = *NotificationOf(l);
    event["code"] = notification.code;
    event["id"] = notification.id;
  } else if (message != WM_CREATE) {
    event["l"] = l;
  }
  WriteLine(file_, event);
}

void JsonTrace::CursorChanged(bool wait) {
  if (!file_.is_open()) return;
  WriteLine(file_, {{"time", time_}, {"event", "cursor"}, {"shape", wait ? "wait" : "arrow"}});
}

void JsonTrace::BarCall(std::string_view call, int bar, int commandOrIndex, int value) {
  if (!file_.is_open()) return;
  WriteLine(file_, {{"time", time_},
                    {"event", "bar"},
                    {"call", call},
                    {"bar", bar},
                    {"argument", commandOrIndex},
                    {"value", value}});
}

void JsonTrace::MessageBoxShown(TextView caption, TextView text, MessageIcon icon) {
  if (!file_.is_open()) return;
  WriteLine(file_, {{"time", time_},
                    {"event", "box"},
                    {"caption", JsonText(caption)},
                    {"text", JsonText(text)},
                    {"icon", IconName(icon)}});
}

std::string_view IconName(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kError:
      return "error";
    case MessageIcon::kExclamation:
      return "exclamation";
    case MessageIcon::kInformation:
      return "information";
    case MessageIcon::kNone:
      break;
  }
  return "none";
}

std::string JsonText(TextView text) { return ToUtf8(WithoutLoneSurrogates(text)); }

std::string HexColour(Colour colour) {
  return HexText(colour.red, 2) + HexText(colour.green, 2) + HexText(colour.blue, 2);
}

}  // namespace orvane
