#include "tests/platform/hosts/fake_program.h"

namespace orvane::hosts_test {
namespace {

std::string At(LParam point) {
  const Point p = UnpackPoint(point);
  return std::to_string(p.x) + " " + std::to_string(p.y);
}

class FakeTool : public WindowObject {
 public:
  WindowReport Describe() const override {
    WindowReport report;
    report.className = "ZelPanel";
    report.scroll = Point{3, 4};
    report.content = Size{500, 600};
    report.selected = std::pair(1, -1);
    return report;
  }
  std::string UnitName() const override { return "wnd_fake"; }
};

class FakeBox : public WindowObject {
 public:
  WindowReport Describe() const override {
    WindowReport report;
    report.className = "FakeBox";
    report.text = text;
    report.caret = static_cast<int>(text.size());
    report.selection = std::pair(0, 2);
    return report;
  }
  std::string UnitName() const override { return {}; }
  Text text;
};

class FakeProgram : public PlayedProgram {
 public:
  FakeProgram(Host& host, const DeviceOptions& options, Memory& memory)
      : host_(dynamic_cast<HeadlessHost&>(host)), memory_(memory), device_(host, options) {
    ++memory_.starts;
    MakeWindows();
    MakeBar();
  }
  ~FakeProgram() override {
    if (tool_ != kNoWindow) device_.SetUserData(tool_, nullptr);
    if (box_ != kNoWindow) device_.SetUserData(box_, nullptr);
  }

  Device& GetDevice() override { return device_; }
  std::string FrontTool() const override { return exit_ ? "" : "wnd_fake"; }
  std::string CurrentTool() const override { return FrontTool(); }
  std::vector<std::string> ToolStack() const override {
    return exit_ ? std::vector<std::string>() : std::vector<std::string>{"wnd_first", "wnd_fake"};
  }
  int HelpTopic() const override { return 2100; }
  std::optional<int> Ended() const override { return exit_; }
  void AfterStep() override {
    memory_.lastScale = device_.Scale();
    if (exit_ || !device_.QuitCode()) return;
    exit_ = device_.QuitCode();
    ++memory_.ends;
  }

 private:
  void Log(const std::string& entry) { memory_.log.push_back(entry); }
  void MakeWindows();
  void MakeBar();
  Result Main(WindowHandle window, std::uint32_t message, WParam w, LParam l);
  Result Tool(WindowHandle window, std::uint32_t message, WParam w, LParam l);
  Result Box(WindowHandle window, std::uint32_t message, WParam w, LParam l);
  void Command(int id);
  void Paint(Canvas& canvas);
  void OpenPopup();

  HeadlessHost& host_;
  Memory& memory_;
  Device device_;
  FakeTool toolObject_;
  FakeBox boxObject_;
  WindowHandle main_ = kNoWindow;
  WindowHandle tool_ = kNoWindow;
  WindowHandle box_ = kNoWindow;
  BarHandle bar_ = kNoBar;
  std::optional<int> exit_;
};

void FakeProgram::MakeWindows() {
  const auto add = [this](const char16_t* name, auto member) {
    device_.RegisterWindowClass({name,
                                 [this, member](WindowHandle window, std::uint32_t message, WParam w,
                                                LParam l) { return (this->*member)(window, message, w, l); },
                                 Rgb(64, 64, 64)});
  };
  add(u"FakeMain", &FakeProgram::Main);
  add(u"FakeToolWC", &FakeProgram::Tool);
  add(u"FakeBoxWC", &FakeProgram::Box);
  const Size client = kClientArea.GetSize();
  main_ = device_.CreateWindow({u"FakeMain", u"Orvane", WS_VISIBLE, kClientArea, kNoWindow});
  device_.SetMainWindow(main_);
  tool_ = device_.CreateWindow({u"FakeToolWC", u"Fake tool", WS_VISIBLE, Rect::At({0, 0}, client), main_});
  device_.SetUserData(tool_, &toolObject_);
  box_ = device_.CreateWindow({u"FakeBoxWC", u"", WS_VISIBLE | WS_CHILD, Rect::At(8, 200, 224, 20), tool_});
  device_.SetUserData(box_, &boxObject_);
  device_.SetFocus(box_);
}

void FakeProgram::MakeBar() {
  const auto entry = [](int id, const char16_t* label) {
    MenuItem item;
    item.id = id;
    item.label = label;
    item.enabled = id != kLater;
    return item;
  };
  BarButton app;
  app.style = ButtonStyle::kMenu;
  app.label = u"App";
  for (const auto& [id, label] :
       {std::pair(kAbout, u"About"), std::pair(kExit, u"Exit"), std::pair(kLater, u"Later"),
        std::pair(kTwoBoxes, u"Two boxes"), std::pair(kSpin, u"Spin"), std::pair(kTimers, u"Timers"),
        std::pair(kCopy, u"Copy"), std::pair(kWaitCursor, u"Wait cursor"),
        std::pair(kQuitWithOne, u"Quit with 1")}) {
    app.menu.Append(entry(id, label));
  }
  BarButton closed = app;
  closed.label = u"Closed";
  closed.state = 0;
  const BarButton separator{0, 0, ButtonStyle::kSeparator, TBSTATE_ENABLED, u"", {}};
  const BarButton push{kPushId, 3, ButtonStyle::kPush, TBSTATE_ENABLED, u"", {}};
  const BarButton disabled{kDisabledId, 4, ButtonStyle::kPush, 0, u"", {}};
  const BarButton dropDown{kDropDownId, 5, ButtonStyle::kDropDown, TBSTATE_ENABLED, u"", {}};
  const BarButton checked{kCheckedId, 6, ButtonStyle::kCheck, TBSTATE_ENABLED | TBSTATE_CHECKED, u"", {}};
  bar_ = device_.Bars().Create(main_, 0, {app, closed, separator, push, disabled, dropDown, checked});
  device_.Bars().Show(bar_, true);
}

Result FakeProgram::Main(WindowHandle window, std::uint32_t message, WParam w, LParam l) {
  switch (message) {
    case WM_COMMAND:
      Command(CommandId(w));
      return 0;
    case WM_NOTIFY:
      OpenPopup();
      return 0;
    case WM_CLOSE:
      Log("close");
      device_.PostQuit(0);
      return 0;
    case WM_TIMER:
      Log("timer " + std::to_string(w) + " at " + std::to_string(host_.Now()));
      return 0;
    default:
      return device_.DefaultProcedure(window, message, w, l);
  }
}

void FakeProgram::Command(int id) {
  Log("command " + std::to_string(id));
  switch (id) {
    case kAbout:
      device_.DialogBoxes().ShowModal(
          {"about", {20, 60, 220, 200}, kWhite, {}, {{{60, 100, 140, 120}, u"OK", 1}}, {}});
      break;
    case kExit:
      device_.PostQuit(0);
      break;
    case kTwoBoxes:
      device_.Boxes().Show(main_, u"First \u0001!bold\u0001  box", u"Caption", MessageIcon::kExclamation);
      device_.Boxes().Show(main_, u"Second box", u"Orvane", MessageIcon::kError);
      break;
    case kSpin:
      device_.Post(main_, WM_COMMAND, PackCommand(kSpin, 0));
      break;
    case kTimers:
      device_.SetTimer(main_, 1, 500);
      device_.SetTimer(main_, 2, 300);
      break;
    case kCopy:
      device_.SetClipboardText(u"copied");
      break;
    case kWaitCursor:
      device_.SetWaitCursor(true);
      break;
    case kQuitWithOne:
      device_.PostQuit(1);
      break;
    default:
      break;
  }
}

void FakeProgram::OpenPopup() {
  Menu menu;
  menu.Append({50, u"Narrow", false, true, true, true, {}});
  menu.Append({51, u"Wide", false, true, false, true, {}});
  menu.Append({0, u"", true, true, false, false, {}});
  menu.Append({52, u"Grey", false, false, false, false, {}});
  device_.Popups().Track(menu, {30, 295}, main_);
}

Result FakeProgram::Tool(WindowHandle window, std::uint32_t message, WParam w, LParam l) {
  switch (message) {
    case WM_PAINT:
      Paint(device_.WindowCanvas(window));
      device_.Validate(window);
      return 0;
    case WM_LBUTTONDOWN:
      device_.SetCapture(window);
      Log("down " + At(l) + (device_.IsKeyDown(VK_ACTION) ? " with action" : ""));
      return 0;
    case WM_MOUSEMOVE:
      Log("move " + At(l));
      return 0;
    case WM_LBUTTONUP:
      device_.ReleaseCapture();
      Log("up " + At(l));
      return 0;
    case WM_MOUSEWHEEL:
      Log("wheel " + std::to_string(WheelNotches(w)) + (WheelSideways(w) ? " sideways" : ""));
      return 0;
    default:
      return device_.DefaultProcedure(window, message, w, l);
  }
}

void FakeProgram::Paint(Canvas& canvas) {
  canvas.FillRect({0, 0, 240, 268}, kWhite);
  canvas.FillRect({10, 100, 11, 101}, Rgb(255, 0, 160));
  const Font& plain = device_.Fonts().GetFont({u"Tahoma", 13, false, false, false});
  const Font& bold = device_.Fonts().GetFont({u"Tahoma", 13, true, false, false});
  const std::uint32_t line = canvas.NextTextLine();
  const int x = 8 + canvas.DrawRun(u"Mass of ", {8, 20}, plain, kBlack, line);
  canvas.DrawRun(u"water", {x, 20}, bold, Rgb(0, 66, 138), line);
  canvas.DrawRun(u"second line", {8, 40}, plain, kBlack, canvas.NextTextLine());
  canvas.DrawRun(u"hidden", {8, 202}, plain, kBlack, canvas.NextTextLine());  // under the text box
}

Result FakeProgram::Box(WindowHandle window, std::uint32_t message, WParam w, LParam l) {
  switch (message) {
    case WM_CHAR:
      boxObject_.text += static_cast<Char>(w);
      device_.Invalidate(window);
      return 0;
    case WM_KEYDOWN:
      Log("key down " + std::to_string(w));
      return 0;
    case WM_KEYUP:
      Log("key up " + std::to_string(w));
      return 0;
    case WM_PAINT: {
      Canvas& canvas = device_.WindowCanvas(window);
      canvas.FillRect({0, 0, 224, 20}, Rgb(230, 242, 255));
      const Font& font = device_.Fonts().GetFont({u"Courier New", 12, false, false, false});
      if (!boxObject_.text.empty()) {
        canvas.DrawRun(boxObject_.text, {2, 2}, font, kBlack, canvas.NextTextLine());
      }
      device_.Validate(window);
      return 0;
    }
    default:
      return device_.DefaultProcedure(window, message, w, l);
  }
}

}  // namespace

Outcome PlayFake(const std::string& script, PlayOptions options) {
  Outcome outcome;
  std::ostringstream out;
  std::ostringstream errors;
  options.start = [&outcome](Host& host, const DeviceOptions& deviceOptions) {
    return std::make_unique<FakeProgram>(host, deviceOptions, outcome.memory);
  };
  outcome.status = Play(script, options, out, errors);
  outcome.out = out.str();
  outcome.errors = errors.str();
  return outcome;
}

}  // namespace orvane::hosts_test
