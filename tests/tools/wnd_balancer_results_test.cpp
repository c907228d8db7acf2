// The balancer: what it shows before, after and instead of balancing.
#include "tests/tools/wnd_balancer_fixture.h"

namespace orvane {
namespace {

using testing::DrawnTitle;
using testing::WndBalancerTest;

constexpr Colour kDarkRed = Rgb(193, 0, 0);

class BalancerResultsTest : public WndBalancerTest {
 protected:
  Text Title() { return Joined(TitleRuns()); }
  Text Message() { return Joined(TextRuns()); }
  int SmallLine() { return GetDevice().Fonts().GetFont({.face = u"Tahoma", .pixels = 10}).Height(); }
  // How every title looks.
  void ExpectTitleLooks() {
    const std::vector<TextRun> runs = TitleRuns();
    ASSERT_FALSE(runs.empty());
    EXPECT_EQ(runs.front().rect.TopLeft(), (Point{8, 163}));
    for (const TextRun& run : runs) {
      EXPECT_EQ(run.font.pixels, 13);
      EXPECT_EQ(run.colour, kDarkRed);
    }
  }
  void ExpectMessageLooks() {
    const std::vector<TextRun> runs = TextRuns();
    ASSERT_FALSE(runs.empty());
    EXPECT_EQ(runs.front().rect.TopLeft(), (Point{8, 188}));
    for (const TextRun& run : runs) {
      EXPECT_EQ(run.font.pixels, 10);
      EXPECT_EQ(run.colour, kBlack);
      EXPECT_LE(run.rect.right, 224);
      EXPECT_LE(run.rect.bottom, 264);
    }
  }
};

// --- Before

TEST_F(BalancerResultsTest, PromptsForTheButton) {
  MakeAndShow();
  EXPECT_EQ(Title(), u"Press the button to balance equation");
  ExpectTitleLooks();
  EXPECT_TRUE(OnlyBold(TitleRuns(), true).empty());
  EXPECT_TRUE(TextRuns().empty());
}

TEST_F(BalancerResultsTest, DrawsItsTitleAndLabels) {
  MakeAndShow();
  Balance(u"h2", u"h2+h2");  // whose title ends bold, which must not leak into the next painting
  tool_->Redraw();
  EXPECT_EQ(shell_.titles.back(), (DrawnTitle{u"Equation balancer", true, true}));
  std::vector<TextRun> labels = RunsBetween(24, 160);
  Text said;
  for (const TextRun& run : labels) {
    said += run.text;
    EXPECT_EQ(run.font.pixels, 10);
    EXPECT_EQ(run.colour, kBlack);
    EXPECT_FALSE(run.font.bold);
  }
  EXPECT_EQ(said, u"Enter the left hand side of the equation:Enter the right hand side of the equation:");
  EXPECT_EQ(labels.front().rect.TopLeft(), (Point{8, 31}));
  EXPECT_EQ(labels[labels.size() / 2].rect.TopLeft(), (Point{8, 81}));
  EXPECT_EQ(Pixel(tool_->Handle(), {236, 170}), 0xE6F2FFu);
}

// --- Errors in the input

constexpr TextView kLeftFault = u"Errors in input - left-hand side";
constexpr TextView kRightFault = u"Errors in input - right-hand side";

struct Fault {
  TextView left;
  TextView right;
  TextView title;
  TextView text;
};
constexpr TextView kUnknown =
    u"Elements highlighted with red could not be recognized. Please check spelling and/or capitalization. "
    u"See help for more information.";
constexpr TextView kPlusInside =
    u"One of the '+' signs in your equation is inside the brackets. Check if all brackets are correctly "
    u"matched.";
constexpr TextView kOnlyCoefficient =
    u"One of the terms in your equation contains nothing but a coefficient. Please correct this and try "
    u"again.";
constexpr TextView kNoTerm =
    u"One of the terms in your equation is empty. Check and remove any double '+' signs.";
constexpr Fault kFaults[] = {
    {u"", u"", kLeftFault, u"The left-hand side of your equation is empty. Please enter your equation."},
    {u"h2", u"", kRightFault, u"The right-hand side of your equation is empty. Please enter your equation."},
    {u"h2 + o2", u"h2o", kLeftFault, kUnknown},
    {u"h2", u"x", kRightFault, kUnknown},
    {u"h2+(o+h)", u"h2o", kLeftFault, kPlusInside},
    {u"h2", u"(h+h)", kRightFault, kPlusInside},
    {u"h)", u"h", kLeftFault,
     u"There is a closing bracket in your equation which has no matching opening bracket."},
    {u"h", u"(h", kRightFault,
     u"There is an opening bracket in your equation which has no matching closing bracket."},
    {u"h2+2+o", u"h2o", kLeftFault, kOnlyCoefficient},
    {u"h2+2", u"+h", kRightFault, kOnlyCoefficient},  // the right side goes on where the left one ended
    {u"h++h", u"h", kLeftFault, kNoTerm},
    {u"h+", u"+h", kRightFault, kNoTerm},
    {u"h1234", u"h", kLeftFault,
     u"Maximum length of an index is 3 digits. Please correct this and try again."},
    {u"h", u"1234h", kRightFault,
     u"Maximum length of a coefficient is 3 digits. Please check that there is no subscript number "
     u"following a coefficient."},
    {u"(2oh)", u"h", kLeftFault,
     u"An index in your equation follows a bracket. Index numbers are only allowed after element symbols."},
    {u"()h", u"h", kLeftFault,
     u"There is an opening bracket followed by a closing bracket in your equation. Please remove that "
     u"before proceeding."},
    {u"h2+2", u"h2o", kLeftFault,
     u"The left-hand side ends with a coefficient, which is invalid. Please correct this before "
     u"proceeding."},
    {u"h2", u"h+12", kRightFault,
     u"The right-hand side ends with a coefficient, which is invalid. Please correct this before "
     u"proceeding."},
};

TEST_F(BalancerResultsTest, NamesTheSideAndTheFault) {
  MakeAndShow();
  for (const Fault& fault : kFaults) {
    SCOPED_TRACE(ToUtf8(fault.left) + " = " + ToUtf8(fault.right));
    Balance(fault.left, fault.right);
    EXPECT_EQ(tool_->DisplayState(), BalanceState::kMessage);
    EXPECT_EQ(Title(), fault.title);
    EXPECT_EQ(Message(), fault.text);
    ExpectTitleLooks();
    ExpectMessageLooks();
    EXPECT_EQ(Left().GetText(), fault.left);
    EXPECT_EQ(Right().GetText(), fault.right);
    EXPECT_TRUE(shell_.Trace().boxes.empty());
    EXPECT_FALSE(Solution().IsVisible());
  }
}

// --- Balanced

TEST_F(BalancerResultsTest, ListsTheCoefficientsAndWritesThemIntoTheEquation) {
  MakeAndShow();
  Balance(u"h2+o2", u"h2o");
  EXPECT_EQ(tool_->DisplayState(), BalanceState::kMessage);
  EXPECT_EQ(Title(), u"Equation balanced");
  ExpectTitleLooks();
  EXPECT_EQ(Message(),
            u"The coefficients are:LHS: 2, 1RHS: 2These coefficients have been inserted into the "
            u"equation above.");
  ExpectMessageLooks();
  EXPECT_EQ(Joined(OnlyBold(TextRuns(), true)), u"LHS:RHS:");
  std::vector<int> lines;  // the first lines, by their distance from the top
  for (const TextRun& run : TextRuns()) {
    if (lines.empty() || run.rect.top - 188 != lines.back()) lines.push_back(run.rect.top - 188);
  }
  const int line = SmallLine();
  ASSERT_GE(lines.size(), 4u);
  EXPECT_EQ((std::vector<int>(lines.begin(), lines.begin() + 4)),
            (std::vector<int>{0, line, 2 * line, 4 * line}));
  EXPECT_EQ(Texts(), "2H2+O2 = 2H2O");
}

TEST_F(BalancerResultsTest, TheRewrittenBoxesAreTokenisedAndShownFromTheirBeginning) {
  MakeAndShow();
  Fill(u"h2+o2", u"h2o");
  Right().SelectAll();
  Key(VK_RETURN);
  EXPECT_EQ(Left().Tokens().size(), 6u);
  EXPECT_EQ(Left().Tokens().front().kind, 6);  // a coefficient
  EXPECT_EQ(Right().Tokens().size(), 4u);
  EXPECT_EQ(Right().SelectionLength(), 0);
  EXPECT_LE(Right().Caret(), 4);
  const std::vector<TextRun> runs = RunsOf(Left().Handle());
  EXPECT_EQ(Joined(runs), u"2 H2 + O2");
  EXPECT_EQ(runs.front().colour, Rgb(0, 159, 0));
  EXPECT_EQ(runs[1].text, u" ");  // the lowered gap behind the coefficient
  EXPECT_EQ(runs[1].font.pixels, 9);
}

TEST_F(BalancerResultsTest, BalancesTheExampleWithoutAWarning) {
  MakeAndShow();
  PressBalance();
  EXPECT_EQ(Title(), u"Equation balanced");
  EXPECT_EQ(Message(),
            u"The coefficients are:LHS: 88, 15, 6, 10, 3, 6, 2, 6, 12, 3, 20RHS: 6, 6, 3, 6, 10, 2, 3, "
            u"15, 79These coefficients have been inserted into the equation above.");
  ExpectMessageLooks();
  EXPECT_EQ(Texts(),
            "88H2+15Ca(CN)2+6NaAlF4+10FeSO4+3MgSiO3+6KI+2H3PO4+6PbCrO4+12BrCl+3CF2Cl2+20SO2 = "
            "6PbBr2+6CrCl3+3MgCO3+6KAl(OH)4+10Fe(SCN)3+2PI3+3Na2SiO3+15CaF2+79H2O");
  EXPECT_TRUE(shell_.Trace().boxes.empty());
}

TEST_F(BalancerResultsTest, BalancingAgainChangesNothing) {
  MakeAndShow();
  PressBalance();
  const std::string once = Texts();
  PressBalance();
  EXPECT_EQ(Texts(), once);
  EXPECT_EQ(Title(), u"Equation balanced");
}

struct Balanced {
  TextView left;
  TextView right;
  std::string_view texts;
};

TEST_F(BalancerResultsTest, WritesNoOnesAndReplacesTheUsersCoefficients) {
  MakeAndShow();
  for (const Balanced& one : {Balanced{u"h", u"h", "H = H"},
                              {u"5h2+7o2", u"9h2o", "2H2+O2 = 2H2O"},
                              {u"kmno4+hcl", u"kcl+mncl2+h2o+cl2", "2KMnO4+16HCl = 2KCl+2MnCl2+8H2O+5Cl2"},
                              {u"na+h2o", u"naoh+h2", "2Na+2H2O = 2NaOH+H2"}}) {
    Balance(one.left, one.right);
    EXPECT_EQ(Title(), u"Equation balanced");
    EXPECT_EQ(Texts(), one.texts);
  }
}

TEST_F(BalancerResultsTest, ImpossibleEquationsStayAsTheyAre) {
  MakeAndShow();
  for (const Balanced& one : {Balanced{u"h2", u"o2", "h2 = o2"},
                              {u"c", u"co", "c = co"},
                              {u"2h2+o2+n2", u"h2o", "2h2+o2+n2 = h2o"}}) {
    Balance(one.left, one.right);
    EXPECT_EQ(tool_->DisplayState(), BalanceState::kMessage);
    EXPECT_EQ(Title(), u"No solutions exist");
    EXPECT_EQ(Message(),
              u"There are no solutions to this equation.A possible cause for this is incorrect "
              u"capitalization resulting in a wrong equation.");
    ExpectTitleLooks();
    ExpectMessageLooks();
    EXPECT_EQ(Texts(), one.texts);
  }
}

// --- Balanced in more than one way

TEST_F(BalancerResultsTest, ShowsAGeneralSolutionInItsView) {
  MakeAndShow();
  Balance(u"3h2", u"h2+2h2");
  EXPECT_EQ(tool_->DisplayState(), BalanceState::kLines);
  EXPECT_EQ(Title(), u"Equation balanced (non-regular)");
  EXPECT_EQ(Joined(OnlyBold(TitleRuns(), true)), u"(non-regular)");
  ExpectTitleLooks();
  EXPECT_TRUE(TextRuns().empty());
  ASSERT_TRUE(Solution().IsVisible());
  EXPECT_EQ(Joined(RunsOf(Solution().Handle())), u"A = a + bB = aC = b");
  EXPECT_EQ(Joined(OnlyBold(RunsOf(Solution().Handle()), true)), u"ABC");
  EXPECT_EQ(Texts(), "H2 = H2+H2");
}

TEST_F(BalancerResultsTest, ABoxBehindAPlusSignMayBeEmpty) {
  MakeAndShow();
  Balance(u"h+", u"h");
  EXPECT_EQ(Joined(RunsOf(Solution().Handle())), u"A = bB = aC = b");
}

TEST_F(BalancerResultsTest, NegativeAmountsHaveADash) {
  MakeAndShow();
  Balance(u"h+h", u"h");
  EXPECT_EQ(Joined(RunsOf(Solution().Handle())), u"A = \u2013a + bB = aC = b");
}

TEST_F(BalancerResultsTest, ATermWithNothingBehindTheEqualsSign) {
  MakeAndShow();
  Balance(u"h", u"h+h+n");
  EXPECT_EQ(Joined(RunsOf(Solution().Handle())), u"A = a + bB = aC = bD = ");
}

TEST_F(BalancerResultsTest, ASecondSolutionTakesThePlaceOfTheFirst) {
  MakeAndShow();
  Balance(u"h+h+h+h+h+h+h+h", u"h");
  Solution().ScrollBy(0, 30);
  Balance(u"h2", u"h2+h2");
  EXPECT_EQ(Solution().scrollY, 0);
  EXPECT_EQ(Joined(RunsOf(Solution().Handle())), u"A = a + bB = aC = b");
  Balance(u"h2+o2", u"h2o");
  EXPECT_FALSE(Solution().IsVisible());
  EXPECT_EQ(Title(), u"Equation balanced");
}

// --- Beyond 32 bits

TEST_F(BalancerResultsTest, WarnsOfOverflowAndGoesOn) {
  MakeAndShow();
  Balance(u"h623o448n6+h26o86n76", u"h870o11n85+h583o463n401");
  const std::vector<MessageBoxText>& boxes = shell_.Trace().boxes;
  ASSERT_FALSE(boxes.empty());
  for (const MessageBoxText& box : boxes) {
    EXPECT_EQ(box.caption, u"Orvane");
    EXPECT_EQ(box.text.substr(0, 27), u"Overflow in FractMul: dest=");
    EXPECT_EQ(box.icon, MessageIcon::kError);
  }
  EXPECT_EQ(boxes.front().text, u"Overflow in FractMul: dest=-47192/623, src=54701/5990.");
  EXPECT_NE(tool_->DisplayState(), BalanceState::kPrompt);
}

// --- Whatever is pasted

TEST_F(BalancerResultsTest, PastedRubbishIsRedAndIsReported) {
  MakeAndShow();
  Balance(u"h2\u0001!+o2\n\U0001F9EA=\u2192", u"h2o");
  EXPECT_EQ(Title(), kLeftFault);
  EXPECT_EQ(Message(), kUnknown);
  EXPECT_TRUE(OnlyBold(TextRuns(), true).empty());  // the style codes among it mean nothing here
  int red = 0;
  for (const TextRun& run : RunsOf(Left().Handle())) red += run.colour == Rgb(255, 0, 0) ? 1 : 0;
  EXPECT_GT(red, 0);
  Balance(u"h2", Text(511, u')'));
  EXPECT_EQ(Title(), kRightFault);
}

// Coefficients make a text longer than the box holds: it ends behind the last piece that fits.
TEST_F(BalancerResultsTest, ARewrittenSideIsCutToTheBox) {
  MakeAndShow();
  Balance(Text(511, u'h'), u"h2");
  EXPECT_EQ(Title(), u"Equation balanced");
  EXPECT_EQ(Left().GetText(), u"2" + Text(510, u'H'));
  EXPECT_EQ(Right().GetText(), u"511H2");
}

TEST_F(BalancerResultsTest, ASolutionOfManyTermsScrollsToItsEnd) {
  MakeAndShow();
  Text many = u"h";
  while (many.size() + 2 <= 511) many += u"+h";
  Balance(many, u"h");
  ASSERT_EQ(tool_->DisplayState(), BalanceState::kLines);
  EXPECT_EQ(Left().GetText().size(), many.size());
  EXPECT_EQ(Solution().contentHeight, 256 * SmallLine());
  EXPECT_GT(Solution().contentWidth, 224);
  Solution().ScrollBy(0, 100000);
  EXPECT_EQ(Solution().scrollY, 256 * SmallLine() - 70);
  EXPECT_FALSE(RunsOf(Solution().Handle()).empty());
}

}  // namespace
}  // namespace orvane
