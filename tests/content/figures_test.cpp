#include "content/figures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "content/cell_text.h"
#include "content/facts.h"
#include "content/table_reader.h"

namespace orvane::testing {
namespace {

// --- Decimals of tables of facts

TEST(ParseDecimal, KeepsEveryDigit) {
  EXPECT_EQ(ParseDecimal("299792458"), (Decimal{false, "299792458", 0, false}));
  EXPECT_EQ(ParseDecimal("6.67430e-11"), (Decimal{false, "667430", -16, false}));
  EXPECT_EQ(ParseDecimal("-1.15170753496"), (Decimal{true, "115170753496", -11, false}));
  EXPECT_EQ(ParseDecimal("8.314462618..."), (Decimal{false, "8314462618", -9, true}));
  EXPECT_EQ(ParseDecimal("1.054571817...e-34"), (Decimal{false, "1054571817", -43, true}));
  EXPECT_EQ(ParseDecimal("1e7"), (Decimal{false, "1", 7, false}));
}

TEST(ParseDecimal, RefusesWhatIsNone) {
  for (const char* text :
       {"", "-", "e5", ".5", "1.", "1e", "1e-", "1.5x", "1 000", "+1", "1e99999", "1,5", "--1"}) {
    EXPECT_FALSE(ParseDecimal(text)) << text;
  }
}

// --- Figures as they are shown

Text Shown(const char* cell) { return ParseCellText(cell).text; }

TEST(ShownFigure, ReadsWhatTheScreensShow) {
  const struct {
    const char* cell = nullptr;
    Decimal figure;
  } cases[] = {
      {"1", {false, "1", 0, false}},
      {"–0.09", {true, "009", -2, false}},
      {"1836", {false, "1836", 0, false}},
      {"10 973 731.568 157", {false, "10973731568157", -6, false}},
      {"9.109 383 7139×10^{–31}", {false, "91093837139", -41, false}},
      {"0.000 000 012", {false, "0000000012", -9, false}},
      {"1.602 176 634×10^{–19}", {false, "1602176634", -28, false}},
      {"6.022 140 76×10^{23}", {false, "602214076", 15, false}},
  };
  for (const auto& c : cases) EXPECT_EQ(ParseShownFigure(Shown(c.cell)), c.figure) << c.cell;
}

TEST(ShownFigure, RefusesEveryOtherWayOfWriting) {
  for (const char* cell :
       {"12345", "1.23456", "1 234", "1.234 5", "1.23 456", "-1", "1.5 ", "1×10^{5", "1*10^{5}", "1×10_{5}",
        "1×10^{-5}", "1×10^{05}", "1×10^{5} ", "1.5e5", "x", "", "1.000 000 0", "12 34", "1×10^{0}"}) {
    const CellText parsed = ParseCellText(cell);
    EXPECT_TRUE(!parsed.problem.empty() || !ParseShownFigure(parsed.text)) << cell;
  }
}

TEST(ShownFigure, IsWrittenInGroupsWithTheExponentApart) {
  EXPECT_EQ(ShowFigure({false, "52", -38, false}, -27), Shown("0.000 000 000 52×10^{–27}"));
  EXPECT_EQ(ShowFigure({true, "1234567", -4, false}, 0), Shown("–123.4567"));
  EXPECT_EQ(ShowFigure({false, "12", 4, false}, 0), Shown("120 000"));
  EXPECT_EQ(ShowFigure({false, "12345678", -7, false}, 0), Shown("1.234 5678"));
  EXPECT_EQ(ShowFigure({false, "123456", -5, false}, 0), Shown("1.234 56"));
}

// --- Formulas

class Formulas : public ::testing::Test {
 protected:
  Formulas() {
    std::vector<TableProblem> problems;
    facts_.Read(ReadTable("f",
                          "facts\tbook\nname\tvalue\tuncertainty\tunit\n"
                          "h\t6.5e-3\texact\tJ\nopen\t1.5...\texact\t-\n"),
                {"book"}, problems);
    EXPECT_TRUE(problems.empty());
  }
  double Value(std::string_view formula) {
    const Evaluation result = Evaluate(formula, facts_);
    EXPECT_EQ(result.problem, "") << formula;
    return static_cast<double>(result.value);
  }
  Facts facts_;
};

TEST_F(Formulas, FollowTheOrdinaryPrecedence) {
  EXPECT_DOUBLE_EQ(Value("2+3*4"), 14);
  EXPECT_DOUBLE_EQ(Value("(2+3)*4"), 20);
  EXPECT_DOUBLE_EQ(Value("8/4/2"), 1);
  EXPECT_DOUBLE_EQ(Value("10-4-3"), 3);
  EXPECT_DOUBLE_EQ(Value("2*3^2"), 18);
  EXPECT_DOUBLE_EQ(Value("2^-2"), 0.25);
  EXPECT_DOUBLE_EQ(Value("-2+5"), 3);
  EXPECT_DOUBLE_EQ(Value(" sqrt( 16 ) "), 4);
  EXPECT_DOUBLE_EQ(Value("exp10(-{h}/{h}*2)"), 0.01);
  EXPECT_DOUBLE_EQ(Value("1.5e-3*2"), 0.003);
  EXPECT_DOUBLE_EQ(Value("{h}*2"), 0.013);
  EXPECT_NEAR(Value("pi"), 3.141592653589793, 1e-15);
}

TEST_F(Formulas, SayWhatIsWrong) {
  for (const char* formula : {"", "2+", "(1", "1)", "{h", "{unknown}", "{open}", "1/0", "x", "2^", "2^x",
                              "1..2", "sqrt(0-1)", "exp10(2", "exp10(9999)"}) {
    EXPECT_NE(Evaluate(formula, facts_).problem, "") << formula;
  }
  EXPECT_NE(Evaluate(std::string(500, '('), facts_).problem, "");
  EXPECT_NE(Evaluate(std::string(500, '-') + "1", facts_).problem, "");
}

}  // namespace
}  // namespace orvane::testing
