#include "chemistry/balance.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "chemistry/equation_solver.h"
#include "tests/chemistry/balance_cases.h"

namespace orvane::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// The general solution without its style codes: "A = a + b; B = a".
std::string Lines(const BalanceResult& result) {
  Text out;
  for (Text line : result.lines) {
    if (!out.empty()) out += u"; ";
    const TextView bold = TextView(line).substr(0, 2);
    const TextView plain = TextView(line).substr(3, 2);
    EXPECT_EQ(bold, u"\u0001!");
    EXPECT_EQ(plain, u"\u0001 ");
    out += line[2];
    out += line.substr(5);
  }
  return ToUtf8(out);
}

TEST(BalanceEquation, FindsTheCoefficientsOfTheTable) {
  const std::vector<TableLine> lines = ReadTable("equations.txt");
  EXPECT_GE(lines.size(), 200u);
  for (const TableLine& line : lines) {
    const std::vector<std::string> columns = Columns(line.text);
    ASSERT_EQ(columns.size(), 2u) << Where(line);
    const Equation equation = SplitEquation(columns[0]);
    const BalanceResult result = Balance(equation.left, equation.right);
    EXPECT_EQ(Coefficients(result, TermCount(equation.left)), columns[1]) << Where(line);
    // What was written into the sides balances as it stands, unless a coefficient is longer than one may be.
    if (columns[1].find("1176") != std::string::npos) continue;
    EXPECT_EQ(Coefficients(Balance(result.newLhs, result.newRhs), TermCount(equation.left)), columns[1])
        << Where(line);
  }
}

TEST(BalanceEquation, FindsTheGeneralSolutionsOfTheTable) {
  for (const TableLine& line : ReadTable("general.txt")) {
    const std::vector<std::string> columns = Columns(line.text);
    ASSERT_EQ(columns.size(), 2u) << Where(line);
    const Equation equation = SplitEquation(columns[0]);
    const BalanceResult result = Balance(equation.left, equation.right);
    EXPECT_EQ(result.state, BalanceState::kLines) << Where(line);
    EXPECT_EQ(Lines(result), columns[1]) << Where(line);
    EXPECT_EQ(result.leftLineCount, TermCount(equation.left)) << Where(line);
  }
}

TEST(BalanceEquation, ShowsTheCoefficientsAndWritesThemIntoTheSides) {
  const BalanceResult result = Balance(u"h2+o2", u"h2o");
  EXPECT_EQ(result.state, BalanceState::kMessage);
  EXPECT_EQ(result.title, u"Equation balanced");
  EXPECT_EQ(
      result.text,
      u"The coefficients are:\n\u0001!LHS:\u0001  2, 1\n\u0001!RHS:\u0001  2\n\nThese coefficients have "
      u"been inserted into the equation above.");
  EXPECT_THAT(result.coefficients, ElementsAre(u"2", u"1", u"2"));
  EXPECT_TRUE(result.rewritten);
  EXPECT_EQ(result.newLhs, u"2H2+O2");
  EXPECT_EQ(result.newRhs, u"2H2O");
  EXPECT_TRUE(result.lines.empty());
}

TEST(BalanceEquation, BalancesTheEquationThatANewUserFinds) {
  const BalanceResult result = Balance(u"h2+ca(cn)2+naalf4+feso4+mgsio3+ki+h3po4+pbcro4+brcl+cf2cl2+so2",
                                       u"pbbr2+crcl3+mgco3+kal(oh)4+fe(scn)3+pi3+na2sio3+caf2+h2o");
  EXPECT_EQ(Coefficients(result, 11), "88 15 6 10 3 6 2 6 12 3 20 = 6 6 3 6 10 2 3 15 79");
  EXPECT_EQ(result.newLhs, u"88H2+15Ca(CN)2+6NaAlF4+10FeSO4+3MgSiO3+6KI+2H3PO4+6PbCrO4+12BrCl+3CF2Cl2+20SO2");
  EXPECT_EQ(result.newRhs, u"6PbBr2+6CrCl3+3MgCO3+6KAl(OH)4+10Fe(SCN)3+2PI3+3Na2SiO3+15CaF2+79H2O");
}

TEST(BalanceEquation, ReplacesTheUsersCoefficients) {
  const BalanceResult result = Balance(u"7h2+99o2", u"3h2o");
  EXPECT_EQ(result.newLhs, u"2H2+O2");
  EXPECT_EQ(result.newRhs, u"2H2O");
  const BalanceResult general = Balance(u"2h2", u"3h2+1H2");
  EXPECT_EQ(general.newLhs, u"H2");
  EXPECT_EQ(general.newRhs, u"H2+H2");
}

TEST(BalanceEquation, WritesNoOnes) {
  const BalanceResult result = Balance(u"h", u"H");
  EXPECT_THAT(result.coefficients, ElementsAre(u"1", u"1"));
  EXPECT_EQ(result.newLhs, u"H");
  EXPECT_EQ(result.newRhs, u"H");
}

TEST(BalanceEquation, ShowsAGeneralSolutionAsLines) {
  const BalanceResult result = Balance(u"h2", u"h2+h2");
  EXPECT_EQ(result.state, BalanceState::kLines);
  EXPECT_EQ(result.title, u"Equation balanced \u0001!(non-regular)");
  EXPECT_EQ(result.text, u"");
  EXPECT_THAT(result.lines,
              ElementsAre(u"\u0001!A\u0001  = a + b", u"\u0001!B\u0001  = a", u"\u0001!C\u0001  = b"));
  EXPECT_EQ(result.leftLineCount, 1u);
  EXPECT_TRUE(result.coefficients.empty());
  EXPECT_TRUE(result.rewritten);
}

TEST(BalanceEquation, SaysWhenThereIsNoSolution) {
  // Of no free column; of a coefficient 0, 0 and negative.
  const Equation cases[] = {{u"h2", u"o2"},        {u"c", u"co"},        {u"h2+o2+n2", u"h2o"},
                            {u"h2+o2", u"h2o+n2"}, {u"co+o2+co2", u"n"}, {u"c+co2", u"o2"},
                            {u"h0", u"o"}};
  for (const Equation& equation : cases) {
    const BalanceResult result = Balance(equation.left, equation.right);
    EXPECT_EQ(result.state, BalanceState::kMessage) << ToUtf8(equation.left);
    EXPECT_EQ(result.title, u"No solutions exist") << ToUtf8(equation.left);
    EXPECT_EQ(
        result.text,
        u"There are no solutions to this equation.\n\nA possible cause for this is incorrect capitalization "
        u"resulting in a wrong equation.");
    EXPECT_FALSE(result.rewritten);
    EXPECT_TRUE(result.coefficients.empty() && result.lines.empty());
  }
}

TEST(BalanceEquation, ShowsWhatTheCheckFinds) {
  const BalanceResult result = Balance(u"h2+2", u"h2o");
  EXPECT_EQ(result.state, BalanceState::kMessage);
  EXPECT_EQ(result.title, u"Errors in input - left-hand side");
  EXPECT_EQ(result.text,
            u"The left-hand side ends with a coefficient, which is invalid. Please correct this before "
            u"proceeding.");
  EXPECT_FALSE(result.rewritten);
}

TEST(BalanceEquation, ReportsOverflowAndGoesOn) {
  CollectingReporter reporter;
  const BalanceResult result = Balance(u"h623o448n6+h26o86n76", u"h870o11n85+h583o463n401", reporter);
  ASSERT_FALSE(reporter.texts.empty());
  EXPECT_EQ(reporter.texts.front(), "Overflow in FractMul: dest=-47192/623, src=54701/5990.");
  EXPECT_TRUE(reporter.allErrorsOfTheProgram);
  EXPECT_NE(result.state, BalanceState::kPrompt);
}

TEST(BalanceEquation, CutsARewrittenSideBehindATokenThatFits) {
  // 511 characters without coefficients, in 171 terms.
  Text left;
  for (int i = 0; i < 169; ++i) left += u"h2+";
  left += u"fe+o";
  ASSERT_EQ(left.size(), 511u);
  CollectingReporter reporter;
  const BalanceLimits limits;
  const std::vector<Text> twelves(171, u"12");
  const BalanceResult result = Balanced(
      Side(left), Side(left), 171,
      [&] {
        std::vector<Text> both = twelves;
        both.insert(both.end(), twelves.begin(), twelves.end());
        return both;
      }(),
      limits);
  // Each term takes five characters, "12", "H", "2", "+": the 103rd begins at 510 and its coefficient does
  // not fit.
  EXPECT_EQ(result.newLhs.size(), 510u);
  EXPECT_EQ(result.newLhs.substr(500), u"12H2+12H2+");
  EXPECT_EQ(result.newRhs, result.newLhs);
  // A larger field keeps more, a smaller one less.
  EXPECT_EQ(Balanced(Side(u"h2+fe"), Side(u"h"), 2, {u"7", u"8", u"9"}, {255, 6}).newLhs, u"7H2+8");
  EXPECT_EQ(Balanced(Side(u"h2+fe"), Side(u"h"), 2, {u"7", u"8", u"9"}, {255, 7}).newLhs, u"7H2+8Fe");
  EXPECT_EQ(Balanced(Side(u"h2+fe"), Side(u"h"), 2, {u"7", u"888", u"9"}, {255, 6}).newLhs, u"7H2+");
}

TEST(BalanceEquation, CutsALineThatIsTooLong) {
  // Eighty free amounts make the first line "A = a + b + ...", four characters each but the first.
  Text right = u"h";
  for (int i = 0; i < 79; ++i) right += u"+h";
  const BalanceResult result = Balance(u"h", right);
  ASSERT_EQ(result.lines.size(), 81u);
  EXPECT_EQ(result.lines[0].size(), 255u);
  EXPECT_EQ(result.lines[0].substr(0, 13), u"\u0001!A\u0001  = a + b");
  EXPECT_EQ(result.lines[27], u"\u0001!\\\u0001  = {");
}

TEST(BalanceEquation, BalancesWithoutAnyElement) {
  // Nothing restricts the amounts of empty terms.
  EXPECT_EQ(Lines(Balance(u"+", u"h+")), "A = a; B = b; C = ; D = c");
}

TEST(CountElements, WalksATerm) {
  const struct {
    TextView side;
    TextView symbol;
    int atoms;
    std::size_t end;
  } cases[] = {
      {u"h2o", u"H", 2, 3},       {u"h2o", u"O", 1, 3},      {u"h2o", u"N", 0, 3},
      {u"hh2h3", u"h", 6, 5},     {u"h0o", u"h", 0, 3},      {u"(oh)2", u"h", 2, 5},
      {u"(oh)2h", u"h", 3, 6},    {u"ca(oh)2", u"CA", 1, 6}, {u"((h2)3h)4", u"h", 28, 9},
      {u"(h)(h2)0h", u"h", 2, 9}, {u"3h2", u"h", 2, 3},      {u"h2+h7", u"h", 2, 2},
      {u"", u"h", 0, 0},          {u"+h", u"h", 0, 0},       {u"(h+h)", u"h", 1, 2},
      {u"h2)h", u"h", 2, 3},      {u"(h2(h", u"h", 3, 5},    {u"h1234o", u"h", 123, 4},
  };
  CollectingReporter reporter;
  for (const auto& c : cases) {
    std::size_t position = 0;
    const Wrapped32 atoms =
        CountElements<Wrapped32>(Side(c.side), position, TestElements().Find(c.symbol), reporter);
    EXPECT_EQ(atoms.Value(), c.atoms) << ToUtf8(c.side);
    EXPECT_EQ(position, c.end) << ToUtf8(c.side);
  }
  EXPECT_THAT(reporter.texts, IsEmpty());
}

TEST(CountElements, GoesOnAtTheNextTerm) {
  CollectingReporter reporter;
  const FormulaTokens side = Side(u"h2+h3");
  std::size_t position = 3;
  EXPECT_EQ(CountElements<Wrapped32>(side, position, 0, reporter).Value(), 3);
  EXPECT_EQ(position, 5u);
}

TEST(CountElements, ReportsATokenThatNoSideShouldHold) {
  CollectingReporter reporter;
  std::size_t position = 0;
  EXPECT_EQ(CountElements<Wrapped32>(Side(u"h2 h"), position, 0, reporter).Value(), 0);
  EXPECT_EQ(position, 3u);
  EXPECT_THAT(reporter.Take(), ElementsAre("wnd_balancer::CountElements - DEFAULT switch statement reached"));
  // Inside brackets it ends the group, which then counts for nothing.
  position = 0;
  EXPECT_EQ(CountElements<Wrapped32>(Side(u"h(h2 h3"), position, 0, reporter).Value(), 4);
  EXPECT_EQ(position, 7u);
  EXPECT_EQ(reporter.texts.size(), 1u);
  EXPECT_TRUE(reporter.allErrorsOfTheProgram);
}

TEST(CountElements, WrapsAroundLikeEverythingElse) {
  CollectingReporter reporter;
  Text powers = u"h";
  for (int i = 0; i < 30; ++i) powers = u"(" + powers + u")999";
  std::uint32_t expected = 1;
  for (int i = 0; i < 30; ++i) expected *= 999;
  std::size_t position = 0;
  EXPECT_EQ(CountElements<Wrapped32>(Side(powers), position, 0, reporter).Value(),
            static_cast<std::int32_t>(expected));
}

TEST(EquationSolver, FillsItsMatrixWithTheAtomsOfEachTerm) {
  CollectingReporter reporter;
  const FormulaTokens left = Side(u"h2+o2");
  const FormulaTokens right = Side(u"h2o");
  const EquationSolver<Wrapped32> solver(left, right, {}, reporter);
  const FractionMatrix<Wrapped32>& matrix = solver.Matrix();
  ASSERT_EQ(matrix.Rows(), 2u);
  ASSERT_EQ(matrix.Columns(), 3u);
  std::vector<int> numerators;
  for (std::size_t row = 0; row < 2; ++row) {
    for (std::size_t column = 0; column < 3; ++column) {
      numerators.push_back(matrix.At(row, column).numerator.Value());
      EXPECT_EQ(matrix.At(row, column).denominator, 1);
    }
  }
  EXPECT_THAT(numerators, ElementsAre(2, 0, -2, 0, 2, -1));
}

TEST(EquationSolver, HasNineteenElementsAndTwentyTermsForTheNewUsersEquation) {
  CollectingReporter reporter;
  const FormulaTokens left = Side(u"h2+ca(cn)2+naalf4+feso4+mgsio3+ki+h3po4+pbcro4+brcl+cf2cl2+so2");
  const FormulaTokens right = Side(u"pbbr2+crcl3+mgco3+kal(oh)4+fe(scn)3+pi3+na2sio3+caf2+h2o");
  const EquationSolver<Wrapped32> solver(left, right, {}, reporter);
  EXPECT_EQ(solver.Matrix().Rows(), 19u);
  EXPECT_EQ(solver.Matrix().Columns(), 20u);
}

TEST(EquationSolver, ReportsTheLackOfAFreeColumn) {
  CollectingReporter reporter;
  const FormulaTokens left = Side(u"h2");
  const FormulaTokens right = Side(u"o2");
  EquationSolver<Wrapped32> solver(left, right, {}, reporter);
  EXPECT_EQ(solver.Solve().title, u"No solutions exist");
  EXPECT_THAT(reporter.Take(), IsEmpty());
  EXPECT_EQ(solver.InsertSimpleCoeffs().state, BalanceState::kPrompt);
  EXPECT_THAT(reporter.texts, ElementsAre("wnd_balancer::InsertSimpleCoeffs() - nonpivotal==-1 is true."));
  EXPECT_TRUE(reporter.allErrorsOfTheProgram);
}

}  // namespace
}  // namespace orvane::testing
