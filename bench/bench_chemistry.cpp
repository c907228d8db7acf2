// Masses and balanced equations by library call, one core. "Typed" goes from the text to the rounded mass,
// the way of every key stroke.
#include <benchmark/benchmark.h>

#include "chemistry/balance.h"
#include "chemistry/mass.h"
#include "data/elements_database.h"

namespace orvane {
namespace {

class Silent : public MessageReporter {
 public:
  void Report(TextView, TextView, MessageIcon) override {}
};

const ElementTable& Elements() {
  static const ElementTable table = [] {
    Silent silent;
    ElementsDatabase elements;
    elements.Load(ORVANE_BIN_DIR "/periodic.dat", silent);
    return ElementTable::From(elements.Symbol(), elements.AtomicMass());
  }();
  return table;
}

Text DeeplyBracketed() {
  Text text = u"Fe";
  for (int i = 0; i < 50; ++i) text = u"(" + text + u"O2)";
  return text;
}

void MassTyped(benchmark::State& state, const Text& formula) {
  FormulaTokens tokens;
  Text mass;
  int decimals = 0;
  for ([[maybe_unused]] auto _ : state) {
    TokeniseFormula(formula, Elements(), tokens);
    CalculateMass(tokens, Elements(), mass, decimals);
    benchmark::DoNotOptimize(mass.data());
  }
  state.counters["masses/s"] = benchmark::Counter(1, benchmark::Counter::kIsIterationInvariantRate);
}

BENCHMARK_CAPTURE(MassTyped, h2o, u"h2o");
BENCHMARK_CAPTURE(MassTyped, C6H12O6, u"C6H12O6");
BENCHMARK_CAPTURE(MassTyped, CaOH2, u"ca(oh)2");
BENCHMARK_CAPTURE(MassTyped, C254H377N65O75S6, u"C254H377N65O75S6");
BENCHMARK_CAPTURE(MassTyped, FiftyBrackets, DeeplyBracketed());
// Beyond a machine word, where the digits are kept in a row.
BENCHMARK_CAPTURE(MassTyped, TwelveDigits, u"(((Pb999)999)999)999");

// With every text that the screen shows.
void MassShown(benchmark::State& state) {
  const FormulaTokens tokens = TokeniseFormula(u"h2o", Elements());
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(CalculateMass(tokens, Elements()));
}
BENCHMARK(MassShown);

void Balance(benchmark::State& state, const Text& left, const Text& right) {
  Silent silent;
  FormulaTokens leftTokens;
  FormulaTokens rightTokens;
  for ([[maybe_unused]] auto _ : state) {
    TokeniseEquationSide(left, Elements(), leftTokens);
    TokeniseEquationSide(right, Elements(), rightTokens);
    benchmark::DoNotOptimize(BalanceEquation(leftTokens, rightTokens, silent));
  }
  state.counters["equations/s"] = benchmark::Counter(1, benchmark::Counter::kIsIterationInvariantRate);
}

BENCHMARK_CAPTURE(Balance, water, u"h2+o2", u"h2o");
BENCHMARK_CAPTURE(Balance, permanganate, u"kmno4+hcl", u"kcl+mncl2+h2o+cl2");
BENCHMARK_CAPTURE(Balance, first, u"h2+ca(cn)2+naalf4+feso4+mgsio3+ki+h3po4+pbcro4+brcl+cf2cl2+so2",
                  u"pbbr2+crcl3+mgco3+kal(oh)4+fe(scn)3+pi3+na2sio3+caf2+h2o");
BENCHMARK_CAPTURE(Balance, general, u"kmno4+h2o2+hcl", u"kcl+mncl2+h2o+cl2+o2");

}  // namespace
}  // namespace orvane
