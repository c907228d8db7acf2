// The search as a user feels it: from a key that goes down to the frame that shows what it has found. The
// argument is the scale.
#include <benchmark/benchmark.h>

#include "bench/running_program.h"
#include "chemistry/element_search.h"
#include "resources/commands.h"

namespace orvane {
namespace {

// The running program with the search in front and its list at its longest.
class RunningSearch : public RunningProgram {
 public:
  explicit RunningSearch(const benchmark::State& state)
      : RunningProgram(static_cast<double>(state.range(0)), PanelMode::kNever) {
    Choose(kCommandFind);
  }
};

// A letter that leaves a full list, and Backspace, which brings back the whole: two strokes a round.
void SearchKeyStrokes(benchmark::State& state) {
  RunningSearch search(state);
  Device& device = search.GetDevice();
  for ([[maybe_unused]] auto _ : state) {
    device.KeyDown('C', {});
    device.Character(u'c');
    device.KeyUp('C', {});
    search.Step();
    device.KeyDown(VK_BACK, {});
    device.KeyUp(VK_BACK, {});
    search.Step();
  }
  state.SetItemsProcessed(state.iterations() * 2);
}

// In a box that holds as much as can be typed.
void KeyStrokeInALongText(benchmark::State& state) {
  RunningSearch search(state);
  Device& device = search.GetDevice();
  for (int i = 0; i < 249; ++i) device.Character(u'w');
  for ([[maybe_unused]] auto _ : state) {
    device.Character(u'c');
    search.Step();
    device.KeyDown(VK_BACK, {});
    search.Step();
  }
  state.SetItemsProcessed(state.iterations() * 2);
}

void FindByPrefix(benchmark::State& state) {
  const NamesOfElements names{};
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(FindElements(u"so", names));
}

BENCHMARK(FindByPrefix)->Unit(benchmark::kMicrosecond);
BENCHMARK(SearchKeyStrokes)->Arg(1)->Arg(2)->Arg(3)->Unit(benchmark::kMicrosecond);
BENCHMARK(KeyStrokeInALongText)->Arg(2)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace orvane
