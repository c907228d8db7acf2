// The quick plot as a user feels it, on a headless host: making the points, drawing everything, one step of a
// pan. Arguments are what is shown (0 the default plot, 1 every element with its label) and the scale.
#include <benchmark/benchmark.h>

#include "app/played_application.h"
#include "data/memory_settings.h"
#include "platform/host_headless.h"
#include "tools/plot_state.h"
#include "tools/wnd_plot.h"

namespace orvane {
namespace {

class SilentReporter : public MessageReporter {
 public:
  void Report(TextView, TextView, MessageIcon) override {}
};

constexpr int kShowPlot = 40065;
constexpr int kToggleLabels = 40205;
constexpr int kFit = 8122;

// The running program with the plot in front.
class RunningPlot {
 public:
  explicit RunningPlot(const benchmark::State& state)
      : store_(StoreFor(state)),
        program_(host_, Options(state), store_, {ORVANE_BIN_DIR "/", StandardTools()}) {
    Device& device = GetDevice();
    device.Send(device.MainWindow(), WM_COMMAND, PackCommand(kShowPlot, 0), 0);
    if (state.range(0) != 0) Command(kToggleLabels);
    Step();
  }

  Device& GetDevice() { return program_.GetDevice(); }
  void Command(int id) {
    const ZelWindow* plot = program_.GetApplication().Tool(ToolSlot::kPlot);
    GetDevice().Send(plot->Handle(), kToolCommand, static_cast<WParam>(id), kFromMenu);
  }
  void Step() { GetDevice().Step(host_.Now()); }

 private:
  static DeviceOptions Options(const benchmark::State& state) {
    DeviceOptions options;
    options.scale = static_cast<double>(state.range(1));
    return options;
  }
  // Every element: the current setup is stored, with an empty filter.
  static MemorySettings StoreFor(const benchmark::State& state) {
    MemorySettings store;
    if (state.range(0) == 0) return store;
    ZelRegistry registry(store);
    registry.SetKey(kSettingsKey);
    registry.Open();
    registry.WriteBool(u"wnd_plot.Cur.ShowLines", true);
    registry.WriteString(u"wnd_plot.Cur.xFilter", u"");
    registry.Close();
    return store;
  }

  HeadlessHost host_;
  MemorySettings store_;
  PlayedApplication program_;
};

// Reading the values of all elements, filtering them, and placing the points.
void PlotRebuild(benchmark::State& state) {
  SilentReporter reporter;
  ElementsDatabase elements;
  elements.Load(ORVANE_BIN_DIR "/periodic.dat", reporter);
  MemorySettings store;
  ZelRegistry registry(store);
  PlotState plot(elements, reporter, ReadPlotSettings(registry, elements));
  const PropertyAddress x = plot.AxisProperty(true);
  for ([[maybe_unused]] auto _ : state) plot.SetAxisProperty(true, x);
  if (plot.GetPlot().IsEmpty()) state.SkipWithError("periodic.dat has nothing to plot");
}

// From the command to the frame.
void PlotRedraw(benchmark::State& state) {
  RunningPlot plot(state);
  for ([[maybe_unused]] auto _ : state) {
    plot.Command(kFit);
    plot.Step();
  }
}

// From the pen's move to the frame.
void PlotPanStep(benchmark::State& state) {
  RunningPlot plot(state);
  Device& device = plot.GetDevice();
  device.PenDown({120, 160});
  device.PenMove({108, 160});
  int x = 108;
  int direction = -1;
  for ([[maybe_unused]] auto _ : state) {
    x += 3 * direction;
    if (x < 80 || x > 160) direction = -direction;
    device.PenMove({x, 160 + (x - 108) / 4});
    plot.Step();
  }
  device.PenUp({x, 160});
}

void ContentsAndScales(benchmark::internal::Benchmark* benchmark) {
  benchmark->Unit(benchmark::kMicrosecond)->ArgNames({"all", "scale"});
  for (const int all : {0, 1}) {
    for (const int scale : {1, 2, 3}) benchmark->Args({all, scale});
  }
}

BENCHMARK(PlotRebuild)->Unit(benchmark::kMicrosecond);
BENCHMARK(PlotRedraw)->Apply(ContentsAndScales);
BENCHMARK(PlotPanStep)->Apply(ContentsAndScales);

}  // namespace
}  // namespace orvane
