// The constants screen as a user feels it, on a headless host: its first display, loading a category, folding
// all groups, each to the frame. The argument is the scale.
#include <benchmark/benchmark.h>

#include <memory>

#include "app/commands.h"
#include "app/played_application.h"
#include "data/memory_settings.h"
#include "platform/host_headless.h"

namespace orvane {
namespace {

constexpr int kFold = 8823;
constexpr int kAtomic = 1002;
constexpr int kAqueous = 1007;

class RunningProgram {
 public:
  explicit RunningProgram(const benchmark::State& state)
      : program_(host_, Options(state), store_, {ORVANE_BIN_DIR "/", StandardTools()}) {
    Step();
  }

  void ShowConstants() {
    GetDevice().Send(GetDevice().MainWindow(), WM_COMMAND, PackCommand(kCommandConstants, 0));
    Step();
  }
  void Command(int command) {
    const ZelWindow* tool = program_.GetApplication().Tool(ToolSlot::kConstants);
    GetDevice().Send(tool->Handle(), kToolCommand, static_cast<WParam>(command), kFromMenu);
    Step();
  }

 private:
  static DeviceOptions Options(const benchmark::State& state) {
    DeviceOptions options;
    options.scale = static_cast<double>(state.range(0));
    return options;
  }
  Device& GetDevice() { return program_.GetDevice(); }
  void Step() { GetDevice().Step(host_.Now()); }

  HeadlessHost host_;
  MemorySettings store_;
  PlayedApplication program_;
};

// From the menu's command to the frame, with a program that has not read the file yet.
void FirstDisplay(benchmark::State& state) {
  for ([[maybe_unused]] auto _ : state) {
    state.PauseTiming();
    auto program = std::make_unique<RunningProgram>(state);
    state.ResumeTiming();
    program->ShowConstants();
    state.PauseTiming();
    program.reset();
    state.ResumeTiming();
  }
}

// The largest two categories in turn: read, measured, drawn.
void LoadCategory(benchmark::State& state) {
  RunningProgram program(state);
  program.ShowConstants();
  bool aqueous = false;
  for ([[maybe_unused]] auto _ : state) {
    aqueous = !aqueous;
    program.Command(aqueous ? kAqueous : kAtomic);
  }
}

void FoldAll(benchmark::State& state) {
  RunningProgram program(state);
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
