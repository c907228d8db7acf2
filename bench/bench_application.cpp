// The program as a user feels it, on a headless host: loading the elements, drawing the whole table, one step
// of a drag, opening a menu. Arguments are the form (0 short, 1 long with everything shown) and the scale.
#include <benchmark/benchmark.h>

#include "bench/running_program.h"
#include "resources/commands.h"
#include "tools/wnd_periodic.h"

namespace orvane {
namespace {

class SilentReporter : public MessageReporter {
 public:
  void Report(TextView, TextView, MessageIcon) override {}
};

void LoadElements(benchmark::State& state) {
  SilentReporter reporter;
  ElementsDatabase elements;
  for ([[maybe_unused]] auto _ : state) elements.Load(ORVANE_BIN_DIR "/periodic.dat", reporter);
  if (elements.CategoryCount() == 0) state.SkipWithError("periodic.dat could not be loaded");
}

// The periodic table in the form and at the scale that the arguments ask for.
class RunningTable : public RunningProgram {
 public:
  explicit RunningTable(const benchmark::State& state) : RunningProgram(static_cast<double>(state.range(1))) {
    if (state.range(0) == 0) return;
    for (const int command : {kCommandWideMode, kCommandShowNumber, kCommandShowName, kCommandShowMass}) {
      Command(ToolSlot::kPeriodic, command);
    }
  }

  wnd_periodic& Table() { return Tool<wnd_periodic>(ToolSlot::kPeriodic); }
};

void DrawWholeTable(benchmark::State& state) {
  RunningTable program(state);
  for ([[maybe_unused]] auto _ : state) {
    program.Table().Panel().LayOut();
    program.Step();
  }
}

// From the pen's move to the frame.
void DragStep(benchmark::State& state) {
  RunningTable program(state);
  Device& device = program.GetDevice();
  device.PenDown({120, 160});
  device.PenMove({110, 150});
  int x = 110;
  int direction = -1;
  for ([[maybe_unused]] auto _ : state) {
    x += 3 * direction;
    if (x < 20 || x > 220) direction = -direction;
    device.PenMove({x, 160 + (x - 110) / 4});
    program.Step();
  }
  device.PenUp({x, 160});
}

// An arrow key's step, which may uncover a part that has to be drawn.
void ArrowStep(benchmark::State& state) {
  RunningTable program(state);
  int key = VK_RIGHT;
  int steps = 0;
  for ([[maybe_unused]] auto _ : state) {
    program.Key(key);
    if (++steps % 40 == 0) key = key == VK_RIGHT ? VK_LEFT : VK_RIGHT;
  }
}

void OpenPopup(benchmark::State& state) {
  RunningTable program(state);
  for ([[maybe_unused]] auto _ : state) {
    program.GetDevice().Bars().Press(8867);
    program.Step();
    program.GetDevice().Popups().Close();
    program.Step();
  }
}

void FormsAndScales(benchmark::internal::Benchmark* benchmark) {
  benchmark->Unit(benchmark::kMicrosecond)->ArgNames({"form", "scale"});
  for (const int form : {0, 1}) {
    for (const int scale : {1, 2, 3}) benchmark->Args({form, scale});
  }
}

BENCHMARK(LoadElements)->Unit(benchmark::kMicrosecond);
BENCHMARK(DrawWholeTable)->Apply(FormsAndScales);
BENCHMARK(DragStep)->Apply(FormsAndScales);
BENCHMARK(ArrowStep)->Apply(FormsAndScales);
BENCHMARK(OpenPopup)->Apply(FormsAndScales);

}  // namespace
}  // namespace orvane
