// The search as a user feels it: from a key that goes down to the frame that shows what it has found. The
// argument is the scale.
#include <benchmark/benchmark.h>

#include "app/commands.h"
#include "app/played_application.h"
#include "chemistry/element_search.h"
#include "data/memory_settings.h"
#include "platform/host_headless.h"

namespace orvane {
namespace {

DeviceOptions OptionsOf(const benchmark::State& state) {
  DeviceOptions options;
  options.scale = static_cast<double>(state.range(0));
  options.panelMode = PanelMode::kNever;  // the long list
  return options;
}

// The running program with the search in front.
class RunningSearch {
 public:
  explicit RunningSearch(const benchmark::State& state)
      : program_(host_, OptionsOf(state), store_, {ORVANE_BIN_DIR "/", StandardTools()}) {
    Step();
    Device& device = GetDevice();
    device.Post(device.MainWindow(), WM_COMMAND, PackCommand(kCommandFind, 0));
    Step();
  }
  Device& GetDevice() { return program_.GetDevice(); }
  void Step() { GetDevice().Step(host_.Now()); }

 private:
  HeadlessHost host_;
  MemorySettings store_;
  PlayedApplication program_;
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
