// The quick plot as a user feels it, on a headless host: making the points, drawing everything, one step of a
// pan. Arguments are what is shown (0 the default plot, 1 every element with its label) and the scale.
#include <benchmark/benchmark.h>

#include "bench/running_program.h"
#include "resources/commands.h"
#include "tools/plot_state.h"
#include "tools/wnd_plot.h"

namespace orvane {
namespace {

class SilentReporter : public MessageReporter {
 public:
  void Report(TextView, TextView, MessageIcon) override {}
};

constexpr int kFit = 8122;

// The running program with the plot in front.
class RunningPlot : public RunningProgram {
 public:
  explicit RunningPlot(const benchmark::State& state)
      : RunningProgram(static_cast<double>(state.range(1)), PanelMode::kAuto, StoreFor(state)) {
    Choose(kCommandPlot);
    if (state.range(0) != 0) Command(kCommandToggleLabels);
  }

  void Command(int command) { RunningProgram::Command(ToolSlot::kPlot, command); }

 private:
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
