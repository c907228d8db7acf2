#include "chemistry/mass.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "base/text_scan.h"
#include "tests/chemistry/case_table.h"
#include "tests/chemistry/paper_decimal.h"
#include "tests/chemistry/random_text.h"

namespace orvane::testing {
namespace {

MassResult MassIn(const ElementTable& elements, TextView formula) {
  return CalculateMass(TokeniseFormula(formula, elements), elements);
}

MassResult MassOf(TextView formula) { return MassIn(TestElements(), formula); }

// Mass and decimals as one text: "18.015, 3".
std::string Short(const MassResult& result) {
  return result.ok ? ToUtf8(result.mass) + ", " + std::to_string(result.dp) : "no mass";
}

TEST(Mass, IsThatOfTheTableForRealFormulas) {
  const std::vector<TableLine> lines = ReadTable("masses.txt");
  EXPECT_GE(lines.size(), 200u);
  for (const TableLine& line : lines) {
    const std::vector<std::string> columns = Columns(line.text);
    ASSERT_EQ(columns.size(), 4u) << Where(line);
    EXPECT_EQ(Short(MassOf(FromUtf8(columns[0]))), columns[1] + ", " + columns[2]) << Where(line);
  }
}

// Element masses of the worked examples: older standard values.
ElementTable ExampleElements() {
  ElementTable elements;
  elements.Add(u"H", u"1.00794");
  elements.Add(u"C", u"12.0107");
  elements.Add(u"O", u"15.9994");
  elements.Add(u"Ca", u"40.078");
  elements.Add(u"Tc", u"[98]");
  elements.Add(u"Qa", u"0.99996");
  elements.Add(u"Qb", u"9.5");
  elements.Add(u"Qc", u"0.5");
  elements.Add(u"Qd", u"0.123456789");
  elements.Add(u"Qe", u"");
  elements.Add(u"Qf", u"0.49");
  elements.Add(u"Qg", u"0.44");
  elements.Add(u"Qh", u"1.0");
  elements.Add(u"Qi", u"99999999.5");
  elements.Add(u"Qj", u"123456789012345678901234567890.125");
  elements.Add(u"Qk", u"9.99999999");
  elements.Add(u"Ql", u".5");
  return elements;
}

TEST(Mass, IsWorkedOutDigitByDigit) {
  const ElementTable elements = ExampleElements();
  const std::map<Text, std::string> cases{
      // Sums have the decimals of their least exact term.
      {u"h2o", "18.0153, 4"},
      {u"ca", "40.078, 3"},
      {u"cao", "56.077, 3"},
      {u"hqh", "2.0, 1"},
      // Products lose the figures that they gain in front.
      {u"h", "1.00794, 5"},
      {u"h9", "9.07146, 5"},
      {u"h10", "10.0794, 4"},
      {u"o6", "95.9964, 4"},
      {u"o7", "111.996, 3"},
      {u"o10", "159.994, 3"},
      {u"o100", "1599.94, 2"},
      {u"h100", "100.794, 3"},
      {u"h999", "1006.93, 2"},
      {u"c6h12o6", "180.1559, 4"},
      {u"ca(oh)2", "74.093, 3"},
      {u"(oh)10", "170.073, 3"},
      {u"tc99", "9702, 0"},
      {u"qh99", "99, 0"},
      {u"qh9", "9.0, 1"},
      // An index of 0 takes the mass away, but no decimals; zeros in front of an index count for nothing.
      {u"h0", "0.00000, 5"},
      {u"h00", "0.00000, 5"},
      {u"ca0", "0.000, 3"},
      {u"ca0h", "1.008, 3"},
      {u"h002", "2.01588, 5"},
      {u"h010", "10.0794, 4"},
      {u"h1", "1.00794, 5"},
      // Brackets.
      {u"()", "0.00000000, 8"},
      {u"()h", "1.00794, 5"},
      {u"()1", "0.00000000, 8"},
      {u"()12", "00.0000000, 7"},
      {u"()123", "000.000000, 6"},
      {u"()012", "00.0000000, 7"},
      {u"()010", "00.0000000, 7"},
      {u"()100", "000.000000, 6"},
      {u"(())", "0.00000000, 8"},
      {u"(h2o)", "18.0153, 4"},
      {u"((((h2o))))", "18.0153, 4"},
      {u"((h)2o)", "18.0153, 4"},
      {u"(ca(oh)2)2", "148.19, 2"},
      {u"((h2)3)4", "24.1906, 4"},
      // Mass numbers have no decimals, and neither has a sum with one.
      {u"tc", "98, 0"},
      {u"tco", "114, 0"},
      {u"tc2", "196, 0"},
      // Rounding looks at the first digit that is dropped and carries as far as it must.
      {u"qaca0", "1.000, 3"},
      {u"qbqc", "10.0, 1"},
      {u"qftc0", "0, 0"},
      {u"qctc0", "1, 0"},
      {u"qgtc0", "0, 0"},
      {u"qbtc0", "10, 0"},
      {u"qk10", "99.9999999, 7"},
      {u"qkqktc0", "20, 0"},
      {u"qktc0", "10, 0"},
      // Odd data: more decimals than there is room for, and none.
      {u"qd", "0.12345678, 8"},
      {u"qd10", "01.23456780, 8"},
      {u"qe", "0, 0"},
      {u"hqe", "1, 0"},
      // A mass without a figure in front of its point: even the product with 1 gains one.
      {u"ql", "0.5, 1"},
      {u"ql1", "1, 0"},
      // Beyond a machine word.
      {u"qi", "99999999.5, 1"},
      {u"qi2", "199999999, 0"},
      {u"qiqc", "100000000.0, 1"},
      {u"(qiqc)999h", "99900000001, 0"},
      {u"qj", "123456789012345678901234567890.125, 3"},
      {u"qj8", "987654312098765431209876543121.000, 3"},
      {u"qj10", "1234567890123456789012345678901.25, 2"},
      {u"qjql", "123456789012345678901234567890.6, 1"},
      {u"qjql1", "123456789012345678901234567891, 0"},
      {u"((((((h999)999)999)999)999)999)999", "1000905551497356740315, 0"},
  };
  for (const auto& [formula, expected] : cases) {
    EXPECT_EQ(Short(MassIn(elements, formula)), expected) << ToUtf8(formula);
  }
}

TEST(Mass, KeepsFourOfFiveNines) {
  ElementTable elements;
  elements.Add(u"Qa", u"0.99996");
  elements.Add(u"Qb", u"0.0000");
  EXPECT_EQ(Short(MassIn(elements, u"qaqb")), "1.0000, 4");
}

TEST(Mass, HasTheFaultsOfTheTable) {
  const std::map<std::string, FormulaFault> faults{
      {"empty", FormulaFault::kEmpty},
      {"unknown", FormulaFault::kUnknownSymbol},
      {"leading-number", FormulaFault::kLeadingNumber},
      {"number-after-opening", FormulaFault::kNumberAfterOpening},
      {"long-number", FormulaFault::kLongNumber},
      {"unmatched-closing", FormulaFault::kUnmatchedClosing},
      {"unmatched-opening", FormulaFault::kUnmatchedOpening},
  };
  for (const TableLine& line : ReadTable("mass_faults.txt")) {
    const std::vector<std::string> columns = Columns(line.text);
    ASSERT_EQ(columns.size(), 2u) << Where(line);
    ASSERT_EQ(faults.count(columns[1]), 1u) << Where(line);
    const FormulaFault expected = faults.at(columns[1]);
    const FormulaTokens tokens = TokeniseFormula(Unescaped(columns[0]), TestElements());
    EXPECT_EQ(CheckFormula(tokens), expected) << Where(line);
    const MassResult result = CalculateMass(tokens, TestElements());
    EXPECT_FALSE(result.ok) << Where(line);
    EXPECT_EQ(result.headline, FaultHeadline(expected)) << Where(line);
    EXPECT_EQ(result.explanation, FaultExplanation(expected)) << Where(line);
    EXPECT_EQ(result.message,
              Text(u"\u0001!").append(result.headline).append(u"\u0001 ").append(result.explanation))
        << Where(line);
    EXPECT_TRUE(result.line.empty() && result.mass.empty() && result.dp == 0) << Where(line);
  }
}

TEST(Mass, SaysWhatIsWrong) {
  const TextView failed = u"Calculation failed due to errors in formula.";
  const TextView brackets =
      u"\n\nBrackets in your formula are not correct. Every opening bracket should have a matching closing "
      u"bracket after it.";
  const auto expect = [](FormulaFault fault, TextView headline, TextView explanation) {
    EXPECT_EQ(FaultHeadline(fault), headline);
    EXPECT_EQ(FaultExplanation(fault), explanation);
  };
  expect(FormulaFault::kNone, u"", u"");
  expect(FormulaFault::kEmpty, u"Please enter a formula.",
         u"\n\nBe sure to read help about molecular mass calculator - there is a lot of useful information "
         u"there.");
  expect(FormulaFault::kLeadingNumber, failed,
         u"\n\nThe formula cannot begin with a number. Start the formula with a symbol or a bracket.");
  expect(FormulaFault::kUnknownSymbol, failed,
         u"\n\nThe elements highlighted with red cannot be recognized. Check spelling and capitalization "
         u"(see help "
         u"for more info on automatic capitalization).");
  expect(FormulaFault::kUnmatchedOpening, failed, brackets);
  expect(FormulaFault::kNumberAfterOpening, failed,
         u"\n\nA number cannot follow an opening bracket. Please correct this before the mass can be "
         u"calculated.");
  expect(FormulaFault::kLongNumber, failed,
         u"\n\nIndex numbers must not exceed a maximum length of three digits.");
  expect(FormulaFault::kUnmatchedClosing, failed, brackets);
}

TEST(Mass, ShowsItsLineWithTheValueInBold) {
  const MassResult result = MassOf(u"h2o");
  EXPECT_TRUE(result.ok);
  EXPECT_EQ(result.message, u"Calculation was successful.");
  EXPECT_EQ(result.line, u"Mass: \u0001!18.015\u0001 , 3 d.p.");
  EXPECT_TRUE(result.headline.empty() && result.explanation.empty());
  EXPECT_EQ(MassOf(u"tc").line, u"Mass: \u0001!97\u0001 , 0 d.p.");
}

TEST(Mass, TakesAPlusSignForUnknownWhoeverCutTheTokens) {
  EXPECT_EQ(CheckFormula(TokeniseEquationSide(u"h+h", TestElements())), FormulaFault::kUnknownSymbol);
  EXPECT_EQ(CheckFormula(TokeniseEquationSide(u"2h", TestElements())), FormulaFault::kUnknownSymbol);
}

TEST(Mass, UsesTheMemoryOfItsResultAgain) {
  Text mass = u"rubbish";
  int dp = 7;
  EXPECT_EQ(CalculateMass(TokeniseFormula(u"h2o", TestElements()), TestElements(), mass, dp),
            FormulaFault::kNone);
  EXPECT_EQ(mass, u"18.015");
  EXPECT_EQ(dp, 3);
  EXPECT_EQ(CalculateMass(TokeniseFormula(u"2", TestElements()), TestElements(), mass, dp),
            FormulaFault::kLeadingNumber);
  EXPECT_EQ(mass, u"");
  EXPECT_EQ(dp, 0);
}

TEST(MassOnRandomFormulas, IsThatOfPaper) {
  RandomText random(1);
  for (int i = 0; i < 3000; ++i) {
    const Text formula = random.Formula(i % 6);
    const FormulaTokens tokens = TokeniseFormula(formula, TestElements());
    ASSERT_EQ(TokensText(tokens), formula);
    const PaperNumber expected = PaperMass(tokens, TestElements());
    ASSERT_EQ(Short(CalculateMass(tokens, TestElements())),
              expected.digits + ", " + std::to_string(expected.decimalPlaces))
        << ToUtf8(formula);
  }
}

TEST(MassOnRandomFormulas, IsTheSumOfItsAtomsRoundedToItsDecimals) {
  RandomText random(2);
  for (int i = 0; i < 2000; ++i) {
    // Indices on single symbols, and every symbol as often as its index says.
    double sum = 0;
    Text formula;
    for (std::size_t parts = 1 + random.Below(6); parts > 0; --parts) {
      const int element = static_cast<int>(random.Below(4));
      const auto index = static_cast<int>(random.Below(1000));
      constexpr TextView kSymbols[] = {u"H", u"O", u"Ca", u"Pb"};
      constexpr double kMasses[] = {1.008, 15.999, 40.078, 207.2};
      formula.append(kSymbols[element]).append(DecimalText(index));
      sum += kMasses[element] * index;
    }
    const MassResult result = MassOf(formula);
    const double halfAUnit = 0.5 * std::pow(10, -result.dp);
    ASSERT_NEAR(ToReal(result.mass), sum, halfAUnit * 1.000001) << ToUtf8(formula);
  }
}

TEST(MassOnRandomFormulas, DoesNotDependOnBrackets) {
  RandomText random(3);
  for (int i = 0; i < 1000; ++i) {
    const Text a = random.Formula(3);
    const Text b = random.Formula(2);
    const std::string plain = Short(MassOf(a + b));
    EXPECT_EQ(Short(MassOf(u"(" + a + u")" + b)), plain);
    EXPECT_EQ(Short(MassOf(a + u"(" + b + u")")), plain);
    EXPECT_EQ(Short(MassOf(u"((" + a + u")((" + b + u")))")), plain);
    EXPECT_EQ(Short(MassOf(b + a)), plain);
  }
}

TEST(MassOnRandomText, AlwaysAnswers) {
  RandomText random(4);
  int masses = 0;
  for (int i = 0; i < 4000; ++i) {
    const Text text = i % 2 == 0 ? random.Rubbish(511) : random.Scrambled(i % 8 == 1 ? 511 : 12);
    const FormulaTokens tokens = TokeniseFormula(text, TestElements());
    const Text read = TokensText(tokens);
    const TextView upToZero = TextView(text).substr(0, text.find(u'\0'));
    ASSERT_EQ(read.size(), upToZero.size());
    for (std::size_t k = 0; k < read.size(); ++k) {
      ASSERT_TRUE(read[k] == upToZero[k] || read[k] == AsciiUpper(upToZero[k]));
    }
    const MassResult result = CalculateMass(tokens, TestElements());
    ASSERT_EQ(result.ok, CheckFormula(tokens) == FormulaFault::kNone);
    ASSERT_EQ(result.ok, !result.mass.empty());
    masses += result.ok ? 1 : 0;
  }
  EXPECT_GT(masses, 100);
}

TEST(Mass, OfTheDeepestBracketsAnswers) {
  const Text opening(255, u'(');
  const Text closing(255, u')');
  EXPECT_EQ(Short(MassOf(opening + u"h" + closing)), "1.008, 3");
  EXPECT_EQ(CheckFormula(TokeniseFormula(Text(511, u'('), TestElements())), FormulaFault::kUnmatchedOpening);
  // Far deeper than any box lets a person go.
  const Text deep = Text(200000, u'(') + u"fe" + Text(200000, u')');
  EXPECT_EQ(Short(MassOf(deep)), "55.845, 3");
  Text powers = u"h";
  for (int i = 0; i < 100; ++i) powers = u"(" + powers + u")999";
  const MassResult result = MassOf(powers);
  EXPECT_TRUE(result.ok);
  EXPECT_EQ(result.dp, 0);
  // 1.008 times 999 to the hundredth power is 9.1204... times 10 to the 299th.
  EXPECT_EQ(result.mass.size(), 300u);
  EXPECT_EQ(result.mass.substr(0, 4), u"9120");
}

}  // namespace
}  // namespace orvane::testing
