// The application on a device without a screen, with a stand-in for each of its tools. Everything that
// happens goes into one log, in order.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/application.h"
#include "data/memory_settings.h"
#include "framework/zel_tool_window.h"
#include "platform/device_factories.h"
#include "platform/host_headless.h"
#include "tests/data/temp_folder.h"

namespace orvane::app_test {

using Log = std::vector<std::string>;

// Every slot, in the order in which the tools are made.
inline constexpr ToolSlot kAllSlots[] = {
    ToolSlot::kHelpViewer,   ToolSlot::kElement,   ToolSlot::kPeriodic, ToolSlot::kFind,
    ToolSlot::kMass,         ToolSlot::kSeries,    ToolSlot::kBalancer, ToolSlot::kPlot,
    ToolSlot::kPlotSettings, ToolSlot::kConstants,
};
// "wnd_periodic" and the like.
std::string NameOf(ToolSlot slot);

// What a stand-in does when it comes forward.
struct Part {
  int topic = 0;                                      // 0: it sets none
  std::vector<int> buttons;                           // it adds these to the main bar
  Result settingResult = 0;                           // its answer to WM_SETTINGCHANGE
  std::function<Result(StandardCommand)> standard{};  // its commands for the desktop's keys
  std::function<void()> whenShown;
};

class StandIn : public ZelToolWindow {
 public:
  StandIn(Shell& shell, std::string name, const Part& part, Log& log);
  ~StandIn() override;

  std::string ClassName() const override { return name_; }
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override;

  std::function<void(Canvas&)> onPaint;

 protected:
  void Paint(Canvas& canvas, int width, int height) override;

 private:
  void ComeForward();

  std::string name_;
  const Part& part_;
  Log& log_;
};

class LoggingTrace : public TraceSink {
 public:
  explicit LoggingTrace(Log& log) : log_(log) {}
  void MessageDispatched(WindowHandle window, std::uint32_t message, WParam w, LParam l) override;
  void CursorChanged(bool wait) override;
  void BarCall(std::string_view call, int bar, int commandOrIndex, int value) override;
  void MessageBoxShown(TextView caption, TextView text, MessageIcon icon) override;

  const Device* device = nullptr;

 private:
  Log& log_;
};

// Notes what each change of the frame shows.
class LoggingHost : public HeadlessHost {
 public:
  explicit LoggingHost(Log& log) : log_(log) {}
  void FrameChanged(const Rect& devicePixels) override;

  const Device* device = nullptr;

 private:
  Log& log_;
};

struct BedOptions {
  bool realPeriodic = false;  // the program's own periodic table in place of its stand-in
  DeviceFactories factories = StandardFactories();
  std::vector<ToolSlot> absent{};     // slots without a tool
  std::optional<std::string> data{};  // the program folder; without it one with the real elements
};

class Bed {
 public:
  explicit Bed(BedOptions options = {});
  ~Bed();

  // Start, and all that follows from it.
  void Start();
  void Settle();
  void Command(int id);  // WM_COMMAND to the main window, as the menu sends it
  void Key(int key, Modifiers modifiers = {});
  void Tap(Point point);

  Application& App() { return *application_; }
  Device& TheDevice() { return *device_; }
  MenuBars& Bars() { return device_->Bars(); }
  StandIn& Tool(ToolSlot slot) { return static_cast<StandIn&>(*application_->Tool(slot)); }
  Part& PartOf(ToolSlot slot) { return parts_[static_cast<std::size_t>(slot)]; }
  void Destroy() { application_.reset(); }

  // The names of the tools that are visible, in the order of the slots.
  std::vector<std::string> VisibleTools();
  // The command ids of the main bar, position by position.
  std::vector<int> BarIds();
  std::vector<std::string> Texts(std::string_view window);  // what a layer or unit shows

  Log log;
  std::string folder;
  LoggingHost host{log};
  MemorySettings settings;
  bool viewerHasPage = false;
  std::function<void(ToolSlot)> whenMade;

 private:
  MadeTool Make(ToolSlot slot, const ToolContext& context);

  LoggingTrace trace_{log};
  std::array<Part, kToolSlots> parts_;
  std::unique_ptr<Device> device_;
  std::unique_ptr<Application> application_;
};

// The log without the changes of the frame.
Log Steps(const Log& log);
// The entries of the log that begin with the text.
Log Only(const Log& log, std::string_view start);
// The place of the first entry that is this text; a failure when there is none.
std::size_t PlaceOf(const Log& log, std::string_view entry);
// Both are there, the first one earlier.
bool InOrder(const Log& log, std::string_view first, std::string_view second);

}  // namespace orvane::app_test
