// The mass calculator: how it is made and shown, what it says while a formula is typed, what it keeps.
#include "tools/wnd_mass.h"
#include "tests/tools/calculator_bed.h"

namespace orvane {
namespace {

using testing::AddedButton;
using testing::DrawnTitle;

constexpr int kUnderBox = 80;  // below this y stand the message and the result

class WndMassTest : public testing::CalculatorBed<wnd_mass> {
 protected:
  using CalculatorBed::CalculatorBed;
  FormulaBox& Box() { return tool_->Box(); }
  // Message and result line as they show.
  Text Answer() { return Joined(RunsBelow(kUnderBox)); }
};

// --- How it is made and shown

TEST_F(WndMassTest, IsMadeHiddenWithItsBoxInside) {
  Make();
  EXPECT_FALSE(tool_->IsVisible());
  EXPECT_TRUE(tool_->IsTopLevel());
  EXPECT_EQ(GetDevice().Title(tool_->Handle()), u"Molecular mass");
  EXPECT_EQ(GetDevice().WindowRect(tool_->Handle()), Rect::At(0, 0, 240, 268));
  EXPECT_EQ(GetDevice().Style(tool_->Handle()), 0u);
  EXPECT_EQ(tool_->ClassName(), "wnd_mass");
  EXPECT_EQ(GetDevice().Parent(Box().Handle()), tool_->Handle());
  EXPECT_EQ(GetDevice().WindowRect(Box().Handle()), Rect::At(8, 46, 224, 30));
  EXPECT_EQ(Box().surround, Rgb(230, 242, 255));
  EXPECT_EQ(Box().field, kWhite);
  EXPECT_EQ(Box().outline, kBlack);
}

TEST_F(WndMassTest, TheFormulaIsLargeAndItsIndicesALittleSmaller) {
  Make();
  const FontFamily& font = Box().Font();
  for (const auto& [position, points] :
       {std::pair{TextPosition::kNormal, 12}, {TextPosition::kLowered, 10}, {TextPosition::kRaised, 10}}) {
    EXPECT_EQ(font.Variant({false, false, position}).face, u"Tahoma");
    EXPECT_EQ(font.Variant({false, false, position}).points, points);
  }
  EXPECT_EQ(font.spacing1, 3);
  EXPECT_EQ(font.spacing2, 3);
}

TEST_F(WndMassTest, ShowingAddsTheButtonsSetsTheTopicAndComputes) {
  MakeAndShow();
  EXPECT_EQ(shell_.buttons, (std::vector<AddedButton>{
                                {8820, 3, -1, TBSTATE_ENABLED, ButtonStyle::kPush},
                                {8821, 4, -1, TBSTATE_ENABLED, ButtonStyle::kPush},
                            }));
  EXPECT_EQ(shell_.helpTopic, 2100);
  EXPECT_EQ(shell_.currentTool, tool_->Handle());
  EXPECT_EQ(GetDevice().Focus(), Box().Handle());
  EXPECT_EQ(Box().Tokens().size(), 3u);
  EXPECT_EQ(tool_->Shown().mass, u"18.015");
}

TEST_F(WndMassTest, PassesTheFocusOnToTheBoxAndBecomesCurrent) {
  MakeAndShow();
  GetDevice().SetFocus(shell_.MainWindow());
  shell_.currentTool = kNoWindow;
  GetDevice().SetFocus(tool_->Handle());
  EXPECT_EQ(GetDevice().Focus(), Box().Handle());
  EXPECT_EQ(shell_.currentTool, tool_->Handle());
}

TEST_F(WndMassTest, TextCaretAndAnswerStayWhileItIsAway) {
  MakeAndShow();
  Enter(Box(), u"co2");
  tool_->Hide();
  shell_.RemoveAddedButtons();
  tool_->Show();
  EXPECT_EQ(Box().GetText(), u"co2");
  EXPECT_EQ(Box().Caret(), 3);
  EXPECT_EQ(tool_->Shown().mass, u"44.009");
  EXPECT_EQ(shell_.buttons.size(), 2u);
}

// --- The input panel

TEST_F(WndMassTest, BeginsWithThePanelDownThoughTheBoxHasTheFocus) {
  MakeAndShow();
  EXPECT_TRUE(Box().HasFocus());
  EXPECT_FALSE(GetDevice().Panel().Visible());
  tool_->Hide();
  tool_->Show();
  EXPECT_FALSE(GetDevice().Panel().Visible());
}

TEST_F(WndMassTest, ATapInTheBoxRaisesThePanel) {
  MakeAndShow();
  Tap(Box().Handle(), {40, 15});
  EXPECT_TRUE(GetDevice().Panel().Visible());
  EXPECT_EQ(Box().Caret(), 3);
}

// Whoever taps beside the box gets it all the same: there is nothing else to type into.
TEST_F(WndMassTest, ATapBesideTheBoxFocusesItToo) {
  MakeAndShow();
  GetDevice().SetFocus(shell_.MainWindow());
  Tap(tool_->Handle(), {100, 200});
  EXPECT_TRUE(Box().HasFocus());
  EXPECT_TRUE(GetDevice().Panel().Visible());
}

class MassWithoutPanelTest : public WndMassTest {
 protected:
  MassWithoutPanelTest() : WndMassTest(PanelMode::kNever) {}
};

TEST_F(MassWithoutPanelTest, AllOfItWorksWithThePanelDown) {
  MakeAndShow();
  Tap(Box().Handle(), {40, 15});
  EXPECT_FALSE(GetDevice().Panel().Visible());
  Key(VK_BACK);
  EXPECT_EQ(Box().GetText(), u"h2");
  EXPECT_EQ(tool_->Shown().mass, u"2.016");
}

// --- What it says

TEST_F(WndMassTest, AnswersKeyByKey) {
  MakeAndShow();
  Enter(Box(), u"n");
  EXPECT_EQ(Answer(), u"Calculation was successful.Mass: 14.007, 3 d.p.");
  GetDevice().Character(u'a');
  EXPECT_EQ(Answer(), u"Calculation was successful.Mass: 22.98976928, 8 d.p.");
  GetDevice().Character(u'(');
  EXPECT_FALSE(tool_->Shown().ok);
  Key(VK_BACK);
  Key(VK_BACK);
  EXPECT_EQ(Answer(), u"Calculation was successful.Mass: 14.007, 3 d.p.");
}

TEST_F(WndMassTest, APasteComputesToo) {
  MakeAndShow();
  PasteOver(Box(), u"NaCl");
  EXPECT_EQ(tool_->Shown().mass, u"58.44");
  Key('A', testing::kCalculatorControl);
  Key(VK_DELETE);
  EXPECT_EQ(Box().GetText(), u"");
  EXPECT_FALSE(tool_->Shown().ok);
}

TEST_F(WndMassTest, TheMessageIsSmallAndTheResultAsLargeAsTheFormula) {
  MakeAndShow();
  const std::vector<TextRun> runs = RunsBelow(kUnderBox);
  ASSERT_EQ(runs.size(), 6u);  // three words of the message and three parts of the line
  EXPECT_EQ(runs[0].rect.TopLeft(), (Point{8, 86}));
  for (int i = 0; i < 3; ++i) {
    const TextRun& run = runs[static_cast<std::size_t>(i)];
    EXPECT_EQ(run.font.pixels, 10);
    EXPECT_FALSE(run.font.bold);
    EXPECT_EQ(run.colour, kBlack);
  }
  EXPECT_EQ(runs[3].text, u"Mass: ");
  EXPECT_EQ(runs[4].text, u"18.015");
  EXPECT_EQ(runs[5].text, u", 3 d.p.");
  EXPECT_EQ(runs[3].rect.left, 8);
  for (std::size_t i = 3; i < 6; ++i) {
    EXPECT_EQ(runs[i].rect.top, 101 + 3);  // the line box has room for raised text above
    EXPECT_EQ(runs[i].font.pixels, 16);
    EXPECT_EQ(runs[i].font.bold, i == 4);
    EXPECT_EQ(runs[i].colour, kBlack);
  }
}

TEST_F(WndMassTest, DrawsItsTitleAndLabel) {
  MakeAndShow();
  EXPECT_EQ(shell_.titles.back(), (DrawnTitle{u"Molecular mass", true, true}));
  std::vector<TextRun> label;
  for (const TextRun& run : RunsOf(tool_->Handle())) {
    if (run.rect.top > 20 && run.rect.top < 46) label.push_back(run);
  }
  EXPECT_EQ(Joined(label), u"Type your formula below:");
  EXPECT_EQ(label.front().rect.TopLeft(), (Point{8, 28}));
  EXPECT_EQ(label.front().font.pixels, 13);
  EXPECT_EQ(label.front().colour, kBlack);
  EXPECT_EQ(Pixel(tool_->Handle(), {120, 250}), 0xE6F2FFu);
}

constexpr TextView kFailed = u"Calculation failed due to errors in formula.";
constexpr TextView kUnknown =
    u"The elements highlighted with red cannot be recognized. Check spelling and capitalization (see help "
    u"for more info on automatic capitalization).";
constexpr TextView kBrackets =
    u"Brackets in your formula are not correct. Every opening bracket should have a matching closing "
    u"bracket after it.";
constexpr TextView kLeadingNumber =
    u"The formula cannot begin with a number. Start the formula with a symbol or a bracket.";
constexpr TextView kNumberInBracket =
    u"A number cannot follow an opening bracket. Please correct this before the mass can be calculated.";

struct Fault {
  TextView formula;
  TextView headline;
  TextView explanation;
};
constexpr Fault kFaults[] = {
    {u"", u"Please enter a formula.",
     u"Be sure to read help about molecular mass calculator - there is a lot of useful information there."},
    {u"2h", kFailed, kLeadingNumber},
    {u"h 2", kFailed, kUnknown},
    {u"(2h)", kFailed, kNumberInBracket},
    {u"h1234", kFailed, u"Index numbers must not exceed a maximum length of three digits."},
    {u")h(", kFailed, kBrackets},
    {u"(h", kFailed, kBrackets},
    {u"NACL", kFailed, kUnknown},
    {u"2(x", kFailed, kUnknown},  // what is unknown is said first
};

TEST_F(WndMassTest, AFaultIsABoldHeadlineAndAnExplanationBelow) {
  MakeAndShow();
  const int line = GetDevice().Fonts().GetFont({.face = u"Tahoma", .pixels = 10}).Height();
  for (const Fault& fault : kFaults) {
    SCOPED_TRACE(ToUtf8(fault.formula));
    PasteOver(Box(), fault.formula);
    if (fault.formula.empty()) Enter(Box(), u"");
    const std::vector<TextRun> runs = RunsBelow(kUnderBox);
    const std::vector<TextRun> headline = OnlyBold(runs, true);
    const std::vector<TextRun> explanation = OnlyBold(runs, false);
    EXPECT_EQ(Joined(headline), fault.headline);
    EXPECT_EQ(Joined(explanation), fault.explanation);
    ASSERT_FALSE(headline.empty());
    ASSERT_FALSE(explanation.empty());
    EXPECT_EQ(headline.front().rect.TopLeft(), (Point{8, 86}));
    EXPECT_EQ(explanation.front().rect.TopLeft(), (Point{8, 86 + 2 * line}));  // a blank line between them
    for (const TextRun& run : runs) {
      EXPECT_EQ(run.font.pixels, 10);
      EXPECT_EQ(run.colour, kBlack);
      EXPECT_LE(run.rect.right, 232);
      EXPECT_LE(run.rect.bottom, 268);
    }
  }
}

TEST_F(WndMassTest, EmptyBracketsWeighNothing) {
  MakeAndShow();
  Enter(Box(), u"()");
  EXPECT_EQ(Answer(), u"Calculation was successful.Mass: 0.00000000, 8 d.p.");
}

TEST_F(WndMassTest, PastedRubbishIsRedAndSaysSo) {
  MakeAndShow();
  PasteOver(Box(), u"h2\u0001!o \n[\u00A0]");
  EXPECT_EQ(Box().GetText(), u"h2\u0001!o \n[\u00A0]");
  EXPECT_EQ(tool_->Shown().explanation.substr(2), kUnknown);
  // The style codes among it mean nothing to the label and the message.
  EXPECT_EQ(Joined(OnlyBold(RunsBelow(kUnderBox), true)), kFailed);
  int red = 0;
  for (const TextRun& run : RunsOf(Box().Handle())) red += run.colour == Rgb(255, 0, 0) ? 1 : 0;
  EXPECT_GT(red, 0);
}

TEST_F(WndMassTest, AMassWiderThanTheScreenBreaksNothing) {
  MakeAndShow();
  Text tower = u"u";
  for (int i = 0; i < 100; ++i) tower = u"(" + tower + u")999";
  ASSERT_LE(tower.size(), 511u);
  PasteOver(Box(), tower);
  EXPECT_TRUE(tool_->Shown().ok);
  EXPECT_GT(tool_->Shown().mass.size(), 200u);
}

// --- Copy and paste

TEST_F(WndMassTest, CopyAndPasteAreCommandsOfTheBox) {
  MakeAndShow();
  EXPECT_EQ(Ask(StandardCommand::kCopy), 8820);
  EXPECT_EQ(Ask(StandardCommand::kPaste), 8821);
  EXPECT_EQ(Ask(StandardCommand::kClose), 0);
  Box().SelectAll();
  Command(8820);
  EXPECT_EQ(GetDevice().ClipboardText(), u"h2o");
  GetDevice().SetClipboardText(u"co");
  GetDevice().Send(tool_->Handle(), WM_COMMAND, PackCommand(8821, 0));
  EXPECT_EQ(Box().GetText(), u"co");
  GetDevice().Send(tool_->Handle(), WM_COMMAND, PackCommand(8821, 1));  // no menu command
  Command(8822);
  EXPECT_EQ(Box().GetText(), u"co");
}

TEST_F(WndMassTest, CopyAndPasteDoNotNeedTheFocus) {
  MakeAndShow();
  GetDevice().SetFocus(shell_.MainWindow());
  Box().SelectAll();
  GetDevice().SetClipboardText(u"o3");
  Command(8821);
  EXPECT_EQ(Box().GetText(), u"o3");
  EXPECT_EQ(tool_->Shown().mass, u"47.997");
}

// --- What it keeps

TEST_F(WndMassTest, BeginsWithWater) {
  Make();
  EXPECT_EQ(Box().GetText(), u"h2o");
  EXPECT_TRUE(Box().Tokens().empty());  // they come with showing
  tool_.reset();
  EXPECT_EQ(Stored(u"wnd_mass.Formula"), u"h2o");
}

TEST_F(WndMassTest, KeepsTheFormulaAsItWasTyped) {
  MakeAndShow();
  for (const TextView formula : {TextView(u"Ca(oh)2"), TextView(u"x (?"), TextView()}) {
    PasteOver(Box(), formula);
    if (formula.empty()) Enter(Box(), u"");
    MakeAgain();
    EXPECT_EQ(Stored(u"wnd_mass.Formula"), formula);
    EXPECT_EQ(Box().GetText(), formula);
    tool_->Show();
  }
}

// The hand-held reads texts of 255 characters at most, though a box takes more by pasting.
TEST_F(WndMassTest, AFormulaTooLongToReadGivesWayToTheDefault) {
  MakeAndShow();
  PasteOver(Box(), Text(255, u'h'));
  MakeAgain();
  EXPECT_EQ(Box().GetText(), Text(255, u'h'));
  tool_->Show();
  PasteOver(Box(), Text(256, u'h'));
  MakeAgain();
  EXPECT_EQ(Box().GetText(), u"h2o");
}

// --- A database with nothing in it

TEST_F(WndMassTest, WithoutElementsEverySymbolIsUnknown) {
  const ElementsDatabase unread;
  elements_ = ElementTable::From(unread.Symbol(), unread.AtomicMass());
  MakeAndShow();
  EXPECT_EQ(tool_->Shown().explanation.substr(2), kUnknown);
}

}  // namespace
}  // namespace orvane
