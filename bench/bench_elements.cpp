// The element view as a user feels it, on a headless host: from the tap on a cell of the periodic table to
// the painted view, in both forms; folding and unfolding all groups; one step of a drag. Arguments are the
// form (0 summary, 1 full list) and the scale.
#include <benchmark/benchmark.h>

#include "bench/running_program.h"
#include "resources/commands.h"
#include "tools/wnd_element.h"
#include "tools/wnd_periodic.h"

namespace orvane {
namespace {

constexpr int kClose = 8350;

class RunningElements : public RunningProgram {
 public:
  RunningElements(int form, int scale) : RunningProgram(scale) {
    Command(ToolSlot::kElement, kCommandFirstInitialView + form);
  }

  wnd_element& View() { return Tool<wnd_element>(ToolSlot::kElement); }
  // The middle of an element's cell on the screen.
  Point CellOf(int element) {
    const PeriodicLayout& layout = Tool<wnd_periodic>(ToolSlot::kPeriodic).Panel().Layout();
    const Rect& cell = layout.cells[static_cast<std::size_t>(element)].rect;
    return {(cell.left + cell.right) / 2, kClientArea.top + (cell.top + cell.bottom) / 2};
  }
  void Close() { Command(ToolSlot::kElement, kClose); }
};

// Hydrogen, iron, gold and element 112 in turn.
void ShowElement(benchmark::State& state) {
  RunningElements program(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
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
  RunningElements program(1, static_cast<int>(state.range(1)));
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
  RunningElements program(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
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
