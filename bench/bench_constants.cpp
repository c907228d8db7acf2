// The constants screen as a user feels it, on a headless host: its first display, loading a category, folding
// all groups, each to the frame. The argument is the scale.
#include <benchmark/benchmark.h>

#include <memory>

#include "bench/running_program.h"
#include "resources/commands.h"

namespace orvane {
namespace {

constexpr int kFold = 8823;
constexpr int kAtomic = 1002;
constexpr int kAqueous = 1007;

class RunningConstants : public RunningProgram {
 public:
  explicit RunningConstants(const benchmark::State& state)
      : RunningProgram(static_cast<double>(state.range(0))) {}

  void ShowConstants() { Choose(kCommandConstants); }
  void Command(int command) { RunningProgram::Command(ToolSlot::kConstants, command); }
};

// From the menu's command to the frame, with a program that has not read the file yet.
void FirstDisplay(benchmark::State& state) {
  for ([[maybe_unused]] auto _ : state) {
    state.PauseTiming();
    auto program = std::make_unique<RunningConstants>(state);
    state.ResumeTiming();
    program->ShowConstants();
    state.PauseTiming();
    program.reset();
    state.ResumeTiming();
  }
}

// The largest two categories in turn: read, measured, drawn.
void LoadCategory(benchmark::State& state) {
  RunningConstants program(state);
  program.ShowConstants();
  bool aqueous = false;
  for ([[maybe_unused]] auto _ : state) {
    aqueous = !aqueous;
    program.Command(aqueous ? kAqueous : kAtomic);
  }
}

void FoldAll(benchmark::State& state) {
  RunningConstants program(state);
  program.ShowConstants();
  program.Command(kAqueous);
  for ([[maybe_unused]] auto _ : state) program.Command(kFold);
}

void Scales(benchmark::internal::Benchmark* benchmark) {
  benchmark->Unit(benchmark::kMicrosecond)->ArgName("scale");
  for (const int scale : {1, 2, 3}) benchmark->Arg(scale);
}

BENCHMARK(FirstDisplay)->Apply(Scales)->Iterations(20);
BENCHMARK(LoadCategory)->Apply(Scales);
BENCHMARK(FoldAll)->Apply(Scales);

}  // namespace
}  // namespace orvane
