#include "tests/platform/chrome_test_bed.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orvane::chrome_test {
namespace {

std::string IconName(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kNone:
      return "none";
    case MessageIcon::kError:
      return "error";
    case MessageIcon::kExclamation:
      return "exclamation";
    case MessageIcon::kInformation:
      return "information";
  }
  return "";
}

DeviceOptions Options(PanelMode mode, TraceSink& trace) {
  DeviceOptions options;
  options.recordRuns = true;
  options.panelMode = mode;
  options.trace = &trace;
  return options;
}

}  // namespace

void NotingTrace::BarCall(std::string_view call, int bar, int commandOrIndex, int value) {
  barCalls.push_back(std::string(call) + ' ' + std::to_string(bar) + ' ' + std::to_string(commandOrIndex) +
                     ' ' + std::to_string(value));
}

void NotingTrace::MessageBoxShown(TextView caption, TextView text, MessageIcon icon) {
  boxes.push_back(IconName(icon) + '|' + ToUtf8(caption) + '|' + ToUtf8(text));
}

FrameBuffer MemoryHost::Frame(int width, int height) {
  width_ = width;
  pixels_.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  return {pixels_.data(), width, height, width};
}

Bed::Bed(PanelMode mode) : device(std::make_unique<Device>(host, Options(mode, trace))) {
  WindowClass windowClass;
  windowClass.name = u"Test";
  windowClass.background = kWhite;
  windowClass.procedure = [this](WindowHandle window, std::uint32_t message, WParam w, LParam l) -> Result {
    Noted noted{window, message, w, l, {}};
    if (message == WM_NOTIFY) noted.notification = *reinterpret_cast<const BarNotification*>(l);
    notes.push_back(noted);
    if (whenNoted) whenNoted(noted);
    return device->DefaultProcedure(window, message, w, l);
  };
  device->RegisterWindowClass(windowClass);
  main = device->CreateWindow({u"Test", u"Orvane", WS_VISIBLE, kClientArea, kNoWindow});
  device->SetMainWindow(main);
  tool = MakeTool(u"Periodic table");
  device->SetFocus(tool);
  Step();
  notes.clear();
}

void Bed::Step() {
  do device->Step(0);
  while (!device->Quiescent());
}

void Bed::Tap(Point point, PointerKind kind) {
  device->PenDown(point, kind);
  device->PenUp(point);
  Step();
}

void Bed::Key(int key) {
  device->KeyDown(key, {});
  device->KeyUp(key, {});
  Step();
}

WindowHandle Bed::MakeTool(TextView title) {
  return device->CreateWindow({u"Test", Text(title), WS_VISIBLE, {0, 0, 240, 268}, main});
}

std::vector<Noted> Bed::Of(std::uint32_t message) const {
  std::vector<Noted> found;
  std::copy_if(notes.begin(), notes.end(), std::back_inserter(found),
               [message](const Noted& noted) { return noted.message == message; });
  return found;
}

std::vector<int> Bed::Commands(WindowHandle window) const {
  std::vector<int> ids;
  for (const Noted& noted : Of(WM_COMMAND)) {
    if (noted.window == window) ids.push_back(CommandId(noted.w));
  }
  return ids;
}

std::vector<std::string> Bed::Shown(std::string_view layer) const {
  std::vector<std::string> texts;
  for (const ScreenRun& run : device->VisibleRuns()) {
    if (run.window == layer) texts.push_back(ToUtf8(run.run.text));
  }
  return texts;
}

bool Bed::Shows(std::string_view layer, std::string_view text) const {
  const std::vector<std::string> texts = Shown(layer);
  return std::find(texts.begin(), texts.end(), text) != texts.end();
}

MenuItem Entry(int id, TextView label) {
  MenuItem item;
  item.id = id;
  item.label = label;
  return item;
}

MenuItem Separator() {
  MenuItem item;
  item.separator = true;
  return item;
}

Menu MenuOf(std::vector<MenuItem> items) { return Menu(std::move(items)); }

std::vector<BarButton> MainButtons() {
  BarButton app;
  app.style = ButtonStyle::kMenu;
  app.label = u"App";
  app.menu = MenuOf({Entry(1, u"About"), Entry(2, u"Exit")});
  BarButton tools;
  tools.style = ButtonStyle::kMenu;
  tools.label = u"Tools";
  tools.menu = MenuOf({Entry(11, u"Periodic table"), Entry(12, u"Find element"), Entry(13, u"Plot")});
  BarButton separator;
  separator.style = ButtonStyle::kSeparator;
  return {app, tools, separator};
}

BarButton Push(int id) {
  BarButton button;
  button.id = id;
  return button;
}

BarButton DropDown(int id) {
  BarButton button = Push(id);
  button.style = ButtonStyle::kDropDown;
  return button;
}

Point ButtonPoint(Bed& bed, int position) {
  const std::vector<BarButtonPlace> places = bed.Get().Bars().Places();
  EXPECT_LT(static_cast<std::size_t>(position), places.size());
  if (static_cast<std::size_t>(position) >= places.size()) return {-1, -1};
  const Rect rect = places[static_cast<std::size_t>(position)].rect;
  return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

Point LabelPoint(Bed& bed, std::string_view layer, std::string_view label) {
  bed.Step();
  for (const ScreenRun& run : bed.Get().VisibleRuns()) {
    if (run.window != layer || ToUtf8(run.run.text) != label) continue;
    const Rect rect = run.run.rect;
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
  }
  ADD_FAILURE() << layer << " shows no " << label;
  return {-1, -1};
}

Point RowPoint(Bed& bed, std::string_view label) { return LabelPoint(bed, "menu", label); }

}  // namespace orvane::chrome_test
