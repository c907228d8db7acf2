// The element view as a user feels it, on a headless host: from the tap on a cell of the periodic table to
// the painted view, in both forms; folding and unfolding all groups; one step of a drag. Arguments are the
// form (0 summary, 1 full list) and the scale.
#include <benchmark/benchmark.h>

#include "app/played_application.h"
#include "data/memory_settings.h"
#include "platform/host_headless.h"
#include "tools/wnd_element.h"
#include "tools/wnd_periodic.h"

namespace orvane {
namespace {

constexpr int kClose = 8350;
constexpr int kFirstInitialView = 40190;

class RunningProgram {
 public:
  RunningProgram(int form, int scale)
      : program_(host_, Options(scale), store_, {ORVANE_BIN_DIR "/", StandardTools()}) {
    View().OnMessage(kToolCommand, static_cast<WParam>(kFirstInitialView + form), kFromMenu);
    Step();
  }

  Device& GetDevice() { return program_.GetDevice(); }
  wnd_element& View() {
    return static_cast<wnd_element&>(*program_.GetApplication().Tool(ToolSlot::kElement));
  }
  // The middle of an element's cell on the screen.
  Point CellOf(int element) {
    auto& table = static_cast<wnd_periodic&>(*program_.GetApplication().Tool(ToolSlot::kPeriodic));
    const Rect& cell = table.Panel().Layout().cells[static_cast<std::size_t>(element)].rect;
    return {(cell.left + cell.right) / 2, kClientArea.top + (cell.top + cell.bottom) / 2};
  }
  void Step() { GetDevice().Step(host_.Now()); }
  void Tap(Point point) {
    GetDevice().PenDown(point);
    GetDevice().PenUp(point);
    Step();
  }
  void Close() {
    View().OnMessage(kToolCommand, kClose, kFromMenu);
    Step();
  }

 private:
  static DeviceOptions Options(int scale) {
    DeviceOptions options;
    options.scale = scale;
    return options;
  }

  HeadlessHost host_;
  MemorySettings store_;
  PlayedApplication program_;
};

// Hydrogen, iron, gold and element 112 in turn.
void ShowElement(benchmark::State& state) {
  RunningProgram program(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  constexpr int kElements[] = {0, 25, 78, 111};
  bool shown = true;
  std::size_t next = 0;
  for ([[maybe_unused]] auto _ : state) {
    state.PauseTiming();
    const int element = kElements[next++ % std::size(kElements)];
    const Point cell = program.CellOf(element);
    state.ResumeTiming();
    program.Tap(cell);
    state.PauseTiming();
    shown = shown && program.View().IsVisible() && program.View().Element() == element;
    program.Close();
    state.ResumeTiming();
  }
  if (!shown) state.SkipWithError("an element was not shown");
}

// Each step folds, or unfolds again, and paints.
void ToggleAll(benchmark::State& state) {
  RunningProgram program(1, static_cast<int>(state.range(1)));
  program.View().ShowElement(25);
  program.Step();
  const bool unfold = state.range(0) != 0;
  for ([[maybe_unused]] auto _ : state) {
    state.PauseTiming();
    for (ListGroup& group : program.View().List().groups) group.expanded = !unfold;
    program.View().List().Relayout();
    program.Step();
    state.ResumeTiming();
    program.View().List().ToggleAll();
    program.Step();
  }
}

void DragStep(benchmark::State& state) {
  RunningProgram program(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  program.View().ShowElement(25);
  program.Step();
  Device& device = program.GetDevice();
  device.PenDown({120, 160});
  device.PenMove({120, 150});
  int y = 150;
  int direction = -1;
  for ([[maybe_unused]] auto _ : state) {
    y += 3 * direction;
    if (y < 60 || y > 280) direction = -direction;
    device.PenMove({120, y});
    program.Step();
  }
  device.PenUp({120, y});
}

void FormsAndScales(benchmark::internal::Benchmark* benchmark) {
  benchmark->Unit(benchmark::kMicrosecond)->ArgNames({"form", "scale"});
  for (const int form : {0, 1}) {
    for (const int scale : {1, 2, 3}) benchmark->Args({form, scale});
  }
}
void WaysAndScales(benchmark::internal::Benchmark* benchmark) {
  benchmark->Unit(benchmark::kMicrosecond)->ArgNames({"unfold", "scale"});
  for (const int unfold : {0, 1}) {
    for (const int scale : {1, 2, 3}) benchmark->Args({unfold, scale});
  }
}

BENCHMARK(ShowElement)->Apply(FormsAndScales);
BENCHMARK(ToggleAll)->Apply(WaysAndScales);
BENCHMARK(DragStep)->Apply(FormsAndScales);

}  // namespace
}  // namespace orvane
