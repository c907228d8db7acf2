// The calculators as a user feels them: from a key or a click to the frame that shows what came of it. The
// argument is the scale.
#include <benchmark/benchmark.h>

#include "bench/running_program.h"
#include "resources/commands.h"

namespace orvane {
namespace {

// The running program with one of its calculators in front, as on a first run.
class RunningCalculator : public RunningProgram {
 public:
  RunningCalculator(const benchmark::State& state, int command)
      : RunningProgram(static_cast<double>(state.range(0)), PanelMode::kNever) {
    Choose(command);
  }
  void Type(Char character) {
    GetDevice().Character(character);
    Step();
  }
};

constexpr Point kBalanceButton{78, 171};  // of the screen
constexpr Point kFirstBox{60, 84};

// A digit and Backspace, behind the text of a first run: two strokes a round.
void TypeAndTakeBack(benchmark::State& state, RunningCalculator& calculator) {
  calculator.Key(VK_END);
  for ([[maybe_unused]] auto _ : state) {
    calculator.Type(u'2');
    calculator.Key(VK_BACK);
  }
  state.SetItemsProcessed(state.iterations() * 2);
}

void MassKeyStroke(benchmark::State& state) {
  RunningCalculator calculator(state, kCommandMass);
  TypeAndTakeBack(state, calculator);
}

// Brackets, indices and a mass, in a box that holds as much as can be typed.
void MassKeyStrokeLongFormula(benchmark::State& state) {
  RunningCalculator calculator(state, kCommandMass);
  for (int i = 0; i < 31; ++i) {
    for (const Char c : TextView(u"ca(oh)2")) calculator.GetDevice().Character(c);
  }
  calculator.Step();
  TypeAndTakeBack(state, calculator);
}

void BalancerKeyStroke(benchmark::State& state) {
  RunningCalculator calculator(state, kCommandBalancer);
  TypeAndTakeBack(state, calculator);
}

// A click on the button, with the equation of a first run; from the second on its coefficients are in it.
void BalanceClick(benchmark::State& state) {
  RunningCalculator calculator(state, kCommandBalancer);
  for ([[maybe_unused]] auto _ : state) calculator.Tap(kBalanceButton);
}

// By Enter: many solutions, laid out in their view.
void BalanceGeneral(benchmark::State& state) {
  RunningCalculator calculator(state, kCommandBalancer);
  calculator.Tap(kFirstBox);
  const auto replace = [&calculator](TextView text) {
    calculator.Key('A', {.shift = false, .control = true, .alt = false});
    for (const Char c : text) calculator.Type(c);
  };
  replace(u"kmno4+h2o2+hcl");
  calculator.Key(VK_TAB);
  replace(u"kcl+mncl2+h2o+cl2+o2");
  for ([[maybe_unused]] auto _ : state) calculator.Key(VK_RETURN);
}

BENCHMARK(MassKeyStroke)->Arg(1)->Arg(2)->Arg(3)->Unit(benchmark::kMicrosecond);
BENCHMARK(MassKeyStrokeLongFormula)->Arg(2)->Unit(benchmark::kMicrosecond);
BENCHMARK(BalancerKeyStroke)->Arg(1)->Arg(2)->Arg(3)->Unit(benchmark::kMicrosecond);
BENCHMARK(BalanceClick)->Arg(1)->Arg(2)->Arg(3)->Unit(benchmark::kMicrosecond);
BENCHMARK(BalanceGeneral)->Arg(2)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace orvane
