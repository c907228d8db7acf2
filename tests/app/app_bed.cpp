#include "tests/app/app_bed.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "platform/play_trace.h"

namespace orvane::app_test {

std::string NameOf(ToolSlot slot) {
  switch (slot) {
    case ToolSlot::kHelpViewer:
      return "helpView";
    case ToolSlot::kElement:
      return "wnd_element";
    case ToolSlot::kPeriodic:
      return "wnd_periodic";
    case ToolSlot::kFind:
      return "wnd_find";
    case ToolSlot::kMass:
      return "wnd_mass";
    case ToolSlot::kSeries:
      return "wnd_series";
    case ToolSlot::kBalancer:
      return "wnd_balancer";
    case ToolSlot::kPlot:
      return "wnd_plot";
    case ToolSlot::kPlotSettings:
      return "wnd_plotset";
    case ToolSlot::kConstants:
      return "wnd_const";
  }
  return "";
}

// --- A stand-in.

StandIn::StandIn(Shell& shell, std::string name, const Part& part, Log& log)
    : ZelToolWindow(shell, shell.MainWindow(), true), name_(std::move(name)), part_(part), log_(log) {
  Move(0, 0, 240, 268);
  SetText(FromUtf8(name_));
  log_.push_back("make " + name_);
}

StandIn::~StandIn() { log_.push_back("destroy " + name_); }

Result StandIn::OnMessage(std::uint32_t message, WParam w, LParam l) {
  switch (message) {
    case WM_SETFOCUS:
      GetShell().SetCurrentTool(Handle());
      return 0;
    case kBeforeShow:
      log_.push_back("show " + name_);
      ComeForward();
      return 0;
    case kBeforeHide:
      log_.push_back("hide " + name_);
      return 0;
    case kToolCommand:
      log_.push_back("command " + name_ + ' ' + std::to_string(w) + ' ' + std::to_string(l));
      return 0;
    case kAskStandardCommand:
      return part_.standard ? part_.standard(StandardCommandOf(w)) : 0;
    case WM_SETTINGCHANGE:
      log_.push_back("setting " + name_ + ' ' + std::to_string(w) + ' ' + std::to_string(l));
      return part_.settingResult;
    default:
      return ZelToolWindow::OnMessage(message, w, l);
  }
}

void StandIn::ComeForward() {
  Shell& shell = GetShell();
  if (part_.topic != 0) shell.SetHelpTopic(part_.topic);
  for (const int id : part_.buttons) {
    shell.AddBarButton(id, 5, -1, TBSTATE_ENABLED, ButtonStyle::kDropDown);
  }
  shell.SetCurrentTool(Handle());
  if (part_.whenShown) part_.whenShown();
}

void StandIn::Paint(Canvas& canvas, int width, int height) {
  canvas.FillRect(Rect::At(0, 0, width, height), kWhite);
  if (onPaint) onPaint(canvas);
}

// --- What is noted from outside.

void LoggingTrace::MessageDispatched(WindowHandle window, std::uint32_t message, WParam, LParam) {
  if (!device || device->ClassName(window) != kMainWindowClass) return;
  if (message == WM_CREATE) log_.emplace_back("main window created");
  if (message == WM_DESTROY) log_.emplace_back("main window destroyed");
}

void LoggingTrace::CursorChanged(bool wait) { log_.emplace_back(wait ? "cursor wait" : "cursor arrow"); }

void LoggingTrace::BarCall(std::string_view call, int bar, int commandOrIndex, int value) {
  log_.push_back("bar " + std::string(call) + ' ' + std::to_string(bar) + ' ' +
                 std::to_string(commandOrIndex) + ' ' + std::to_string(value));
}

void LoggingTrace::MessageBoxShown(TextView caption, TextView text, MessageIcon icon) {
  log_.push_back("box " + std::string(IconName(icon)) + '|' + ToUtf8(caption) + '|' + ToUtf8(text));
}

void LoggingHost::FrameChanged(const Rect&) {
  if (!device) return;
  const bool mainWindow = device->FindWindow(kMainWindowClass, u"") != kNoWindow;
  std::string texts;
  for (const ScreenRun& run : device->VisibleRuns()) {
    if (run.window == "dialog") texts += ' ' + ToUtf8(run.run.text);
  }
  log_.push_back("frame:" + texts + (mainWindow ? "" : " (no main window)"));
}

// --- The bed.

Bed::Bed(BedOptions options) : folder(options.data.value_or(ORVANE_BIN_DIR "/")) {
  DeviceOptions deviceOptions;
  deviceOptions.recordRuns = true;
  deviceOptions.panelMode = PanelMode::kAlways;
  deviceOptions.trace = &trace_;
  device_ = std::make_unique<Device>(host, deviceOptions, options.factories);
  trace_.device = device_.get();
  host.device = device_.get();
  ApplicationOptions applicationOptions;
  applicationOptions.dataFolder = folder;
  for (const ToolSlot slot : kAllSlots) {
    if (std::find(options.absent.begin(), options.absent.end(), slot) != options.absent.end()) continue;
    applicationOptions.tools[static_cast<std::size_t>(slot)] = [this, slot](const ToolContext& context) {
      return Make(slot, context);
    };
  }
  constexpr auto kPeriodic = static_cast<std::size_t>(ToolSlot::kPeriodic);
  if (options.realPeriodic) applicationOptions.tools[kPeriodic] = StandardTools()[kPeriodic];
  application_ = std::make_unique<Application>(*device_, settings, std::move(applicationOptions));
}

Bed::~Bed() {
  application_.reset();
  host.device = nullptr;
  trace_.device = nullptr;
}

MadeTool Bed::Make(ToolSlot slot, const ToolContext& context) {
  MadeTool tool;
  tool.window = MakeWindow<StandIn>(context.shell, NameOf(slot), PartOf(slot), log);
  if (whenMade) whenMade(slot);
  ZelWindow* window = tool.window.get();
  if (slot == ToolSlot::kElement) {
    tool.showElement = [this, window](int element) {
      log.push_back("element " + std::to_string(element));
      window->Show();
    };
  }
  if (slot == ToolSlot::kHelpViewer) {
    tool.openPage = [this, window](int page) {
      log.push_back("page " + std::to_string(page));
      viewerHasPage = true;
      window->Show();
    };
    tool.hasPage = [this] { return viewerHasPage; };
  }
  if (slot == ToolSlot::kConstants) {
    tool.load = [this] { log.emplace_back("load constants"); };
  }
  return tool;
}

void Bed::Start() {
  application_->Start();
  Settle();
}

void Bed::Settle() {
  do {
    device_->Step(0);
    application_->AfterStep();
  } while (!device_->Quiescent() && !application_->Ended());
}

void Bed::Command(int id) {
  device_->Send(application_->MainWindow(), WM_COMMAND, PackCommand(id, 0));
  Settle();
}

void Bed::Key(int key, Modifiers modifiers) {
  device_->KeyDown(key, modifiers);
  device_->KeyUp(key, modifiers);
  Settle();
}

void Bed::Tap(Point point) {
  device_->PenDown(point);
  device_->PenUp(point);
  Settle();
}

std::vector<std::string> Bed::VisibleTools() {
  std::vector<std::string> names;
  for (const ToolSlot slot : kAllSlots) {
    const ZelWindow* tool = application_->Tool(slot);
    if (tool && tool->IsVisible()) names.push_back(tool->ClassName());
  }
  return names;
}

std::vector<int> Bed::BarIds() {
  std::vector<int> ids;
  for (const BarButtonPlace& place : Bars().Places()) ids.push_back(place.button.id);
  return ids;
}

std::vector<std::string> Bed::Texts(std::string_view window) {
  std::vector<std::string> texts;
  for (const ScreenRun& run : device_->VisibleRuns()) {
    if (run.window == window) texts.push_back(ToUtf8(run.run.text));
  }
  return texts;
}

// --- Questions to the log.

Log Steps(const Log& log) {
  Log steps = log;
  std::erase_if(steps, [](const std::string& entry) { return entry.rfind("frame:", 0) == 0; });
  return steps;
}

Log Only(const Log& log, std::string_view start) {
  Log found;
  std::copy_if(log.begin(), log.end(), std::back_inserter(found),
               [start](const std::string& entry) { return entry.rfind(start, 0) == 0; });
  return found;
}

std::size_t PlaceOf(const Log& log, std::string_view entry) {
  const auto at = std::find(log.begin(), log.end(), entry);
  EXPECT_NE(at, log.end()) << "nothing noted as " << entry;
  return static_cast<std::size_t>(at - log.begin());
}

bool InOrder(const Log& log, std::string_view first, std::string_view second) {
  return PlaceOf(log, first) < PlaceOf(log, second);
}

}  // namespace orvane::app_test
