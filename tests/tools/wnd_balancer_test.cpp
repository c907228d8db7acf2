// The balancer: how it is made and shown, its buttons, its keys, what it keeps.
#include "tests/tools/wnd_balancer_fixture.h"

namespace orvane {
namespace {

using testing::AddedButton;
using testing::kExampleLeft;
using testing::kExampleRight;
using testing::WndBalancerTest;

// --- How it is made and shown

TEST_F(WndBalancerTest, IsMadeHiddenWithBoxesButtonsAndAHiddenView) {
  Make();
  EXPECT_FALSE(tool_->IsVisible());
  EXPECT_TRUE(tool_->IsTopLevel());
  EXPECT_EQ(GetDevice().Title(tool_->Handle()), u"Equation balancer");
  EXPECT_EQ(GetDevice().WindowRect(tool_->Handle()), Rect::At(0, 0, 240, 268));
  EXPECT_EQ(GetDevice().Style(tool_->Handle()), 0u);
  EXPECT_EQ(tool_->ClassName(), "wnd_balancer");
  EXPECT_EQ(GetDevice().WindowRect(Left().Handle()), Rect::At(8, 45, 224, 27));
  EXPECT_EQ(GetDevice().WindowRect(Right().Handle()), Rect::At(8, 95, 224, 27));
  EXPECT_EQ(GetDevice().WindowRect(tool_->BalanceButton().Handle()), Rect::At(8, 135, 140, 20));
  EXPECT_EQ(GetDevice().WindowRect(tool_->ClearButton().Handle()), Rect::At(156, 135, 76, 20));
  EXPECT_EQ(GetDevice().WindowRect(Solution().Handle()), Rect::At(7, 188, 226, 72));
  EXPECT_FALSE(Solution().IsVisible());
  for (const WindowHandle child : {Left().Handle(), Right().Handle(), tool_->BalanceButton().Handle(),
                                   tool_->ClearButton().Handle(), Solution().Handle()}) {
    EXPECT_EQ(GetDevice().Parent(child), tool_->Handle());
  }
}

TEST_F(WndBalancerTest, BothBoxesLookAlike) {
  Make();
  for (EquationBox* box : {&Left(), &Right()}) {
    const FontFamily& font = box->Font();
    EXPECT_EQ(font.Variant({}).face, u"Tahoma");
    EXPECT_EQ(font.Variant({}).points, 10);
    EXPECT_EQ(font.Variant({false, false, TextPosition::kLowered}).points, 7);
    EXPECT_EQ(font.Variant({false, false, TextPosition::kRaised}).points, 7);
    EXPECT_EQ(font.spacing1, 2);
    EXPECT_EQ(font.spacing2, 2);
    EXPECT_EQ(box->surround, Rgb(230, 242, 255));
    EXPECT_EQ(box->field, kWhite);
    EXPECT_EQ(box->outline, kBlack);
  }
}

TEST_F(WndBalancerTest, ItsButtonsAreLabelled) {
  MakeAndShow();
  ctlButton& balance = tool_->BalanceButton();
  EXPECT_EQ(balance.caption, u"Balance the equation");
  EXPECT_EQ(balance.font.Variant({}).points, 9);
  EXPECT_EQ(balance.font.lineHeight, balance.font.Variant({}).font->Height());
  EXPECT_EQ(balance.background, Rgb(230, 242, 255));
  ctlButton& clear = tool_->ClearButton();
  EXPECT_EQ(clear.caption, u"Clear eq\u0001\u00A0n");
  EXPECT_EQ(clear.font.Variant({}).points, 9);
  EXPECT_EQ(clear.font.Variant({false, false, TextPosition::kRaised}).points, 8);
  EXPECT_EQ(clear.font.spacing1, 2);
  EXPECT_EQ(clear.font.spacing2, 2);
  EXPECT_EQ(clear.background, Rgb(230, 242, 255));
}

TEST_F(WndBalancerTest, TheLastLetterOfTheClearButtonIsRaised) {
  MakeAndShow();
  const std::vector<TextRun> runs = RunsOf(tool_->ClearButton().Handle());
  ASSERT_EQ(Joined(runs), u"Clear eqn");
  const TextRun& before = runs[runs.size() - 2];
  const TextRun& raised = runs.back();
  EXPECT_EQ(raised.text, u"n");
  EXPECT_LT(raised.font.pixels, before.font.pixels);
  EXPECT_LT(raised.rect.bottom, before.rect.bottom);
  EXPECT_LT(raised.rect.top, before.rect.top);
}

TEST_F(WndBalancerTest, ShowingAddsTheButtonsAndSetsTopicAndFocus) {
  MakeAndShow();
  EXPECT_EQ(shell_.buttons, (std::vector<AddedButton>{
                                {8820, 3, -1, TBSTATE_ENABLED, ButtonStyle::kPush},
                                {8821, 4, -1, TBSTATE_ENABLED, ButtonStyle::kPush},
                            }));
  EXPECT_EQ(shell_.helpTopic, 2200);
  EXPECT_EQ(shell_.currentTool, tool_->Handle());
  EXPECT_EQ(GetDevice().Focus(), Left().Handle());
  EXPECT_EQ(tool_->DisplayState(), BalanceState::kPrompt);
  EXPECT_FALSE(Solution().IsVisible());
}

TEST_F(WndBalancerTest, PassesTheFocusOnToTheLeftBoxAndBecomesCurrent) {
  MakeAndShow();
  Right().TakeFocus();
  shell_.currentTool = kNoWindow;
  Tap(tool_->Handle(), {120, 175});  // above the panel, which is up
  EXPECT_EQ(GetDevice().Focus(), Left().Handle());
  EXPECT_EQ(shell_.currentTool, tool_->Handle());
}

TEST_F(WndBalancerTest, WhatShowsStaysWhileItIsAway) {
  MakeAndShow();
  Balance(u"h2", u"h2+h2");
  ASSERT_EQ(tool_->DisplayState(), BalanceState::kLines);
  tool_->Hide();
  tool_->Show();
  shell_.Settle();
  EXPECT_EQ(tool_->DisplayState(), BalanceState::kLines);
  EXPECT_TRUE(Solution().IsVisible());
  EXPECT_EQ(Texts(), "H2 = H2+H2");
}

// --- The input panel

TEST_F(WndBalancerTest, BeginsWithThePanelDownThoughABoxHasTheFocus) {
  MakeAndShow();
  EXPECT_TRUE(Left().HasFocus());
  EXPECT_FALSE(GetDevice().Panel().Visible());
}

TEST_F(WndBalancerTest, ATapInABoxRaisesThePanelAndBalancingLowersIt) {
  MakeAndShow();
  for (EquationBox* box : {&Right(), &Left()}) {
    Tap(box->Handle(), {30, 12});
    EXPECT_TRUE(box->HasFocus());
    EXPECT_TRUE(GetDevice().Panel().Visible());
    PressBalance();
    EXPECT_FALSE(GetDevice().Panel().Visible());
  }
  Tap(Left().Handle(), {30, 12});
  ASSERT_TRUE(GetDevice().Panel().Visible());
  Key(VK_RETURN);
  EXPECT_FALSE(GetDevice().Panel().Visible());
  EXPECT_TRUE(Left().HasFocus());
}

TEST_F(WndBalancerTest, ClearingRaisesThePanel) {
  MakeAndShow();
  PressBalance();
  PressClear();
  EXPECT_TRUE(GetDevice().Panel().Visible());
  EXPECT_TRUE(Left().HasFocus());
}

class BalancerWithoutPanelTest : public WndBalancerTest {
 protected:
  BalancerWithoutPanelTest() : WndBalancerTest(PanelMode::kNever) {}
};

TEST_F(BalancerWithoutPanelTest, ThePanelStaysDown) {
  MakeAndShow();
  Tap(Right().Handle(), {30, 12});
  EXPECT_FALSE(GetDevice().Panel().Visible());
  PressClear();
  EXPECT_FALSE(GetDevice().Panel().Visible());
  EXPECT_TRUE(Left().HasFocus());
}

// --- Buttons

TEST_F(WndBalancerTest, OnlyAClickBalances) {
  MakeAndShow();
  const WindowHandle button = tool_->BalanceButton().Handle();
  GetDevice().PenDown(shell_.OnScreen(button, {70, 10}));
  EXPECT_EQ(tool_->DisplayState(), BalanceState::kPrompt);
  GetDevice().PenMove(shell_.OnScreen(button, {70, -30}));
  GetDevice().PenUp(shell_.OnScreen(button, {70, -30}));
  EXPECT_EQ(tool_->DisplayState(), BalanceState::kPrompt);
  PressBalance();
  EXPECT_EQ(tool_->DisplayState(), BalanceState::kMessage);
}

TEST_F(WndBalancerTest, ClearEmptiesBothBoxesAndReturnsToThePrompt) {
  MakeAndShow();
  Balance(u"h2", u"h2+h2");
  ASSERT_TRUE(Solution().IsVisible());
  Left().TakeFocus();
  Left().SelectAll();
  PressClear();
  for (EquationBox* box : {&Left(), &Right()}) {
    EXPECT_EQ(box->GetText(), u"");
    EXPECT_TRUE(box->Tokens().empty());
    EXPECT_EQ(box->Caret(), 0);
    EXPECT_EQ(box->SelectionLength(), 0);
    EXPECT_EQ(box->Offset(), 4);
  }
  EXPECT_FALSE(Solution().IsVisible());
  EXPECT_EQ(tool_->DisplayState(), BalanceState::kPrompt);
  for (const Char c : TextView(u"o3")) GetDevice().Character(c);
  EXPECT_EQ(Texts(), "o3 = ");
}

TEST_F(WndBalancerTest, AnyChangeOfATextReturnsToThePrompt) {
  MakeAndShow();
  for (EquationBox* box : {&Left(), &Right()}) {
    for (int way = 0; way < 3; ++way) {
      Balance(u"h2", u"h2+h2");
      ASSERT_EQ(tool_->DisplayState(), BalanceState::kLines);
      box->TakeFocus();
      Key(VK_END);
      EXPECT_EQ(tool_->DisplayState(), BalanceState::kLines);  // a move of the caret changes nothing
      if (way == 0) GetDevice().Character(u'o');
      if (way == 1) Key(VK_BACK);
      if (way == 2) Command(8821);
      EXPECT_EQ(tool_->DisplayState(), BalanceState::kPrompt);
      EXPECT_FALSE(Solution().IsVisible());
    }
  }
}

// --- Copy and paste

TEST_F(WndBalancerTest, CopyAndPasteActOnTheFocusedBox) {
  MakeAndShow();
  EXPECT_EQ(Ask(StandardCommand::kCopy), 8820);
  EXPECT_EQ(Ask(StandardCommand::kPaste), 8821);
  EXPECT_EQ(Ask(StandardCommand::kClose), 0);
  Fill(u"h2", u"o3");
  Left().SelectAll();
  Right().SelectAll();
  Right().TakeFocus();
  Command(8820);
  EXPECT_EQ(GetDevice().ClipboardText(), u"o3");
  Left().TakeFocus();
  Command(8820);
  EXPECT_EQ(GetDevice().ClipboardText(), u"h2");
  GetDevice().SetClipboardText(u"ca");
  GetDevice().Send(tool_->Handle(), WM_COMMAND, PackCommand(8821, 0));
  EXPECT_EQ(Texts(), "ca = o3");
  Right().TakeFocus();
  Command(8821);
  EXPECT_EQ(Texts(), "ca = ca");
  GetDevice().Send(tool_->Handle(), WM_COMMAND, PackCommand(8821, 1));  // no menu command
  EXPECT_EQ(Texts(), "ca = ca");
}

TEST_F(WndBalancerTest, WithoutAFocusedBoxTheyDoNothing) {
  MakeAndShow();
  Fill(u"h2", u"o3");
  GetDevice().SetClipboardText(u"ca");
  Left().SelectAll();
  Right().SelectAll();
  GetDevice().SetFocus(tool_->BalanceButton().Handle());
  Command(8820);
  Command(8821);
  EXPECT_EQ(GetDevice().ClipboardText(), u"ca");
  EXPECT_EQ(Texts(), "h2 = o3");
}

// --- Keys

TEST_F(WndBalancerTest, TabGoesFromBoxToBox) {
  MakeAndShow();
  Key(VK_TAB);
  EXPECT_TRUE(Right().HasFocus());
  Key(VK_TAB);
  EXPECT_TRUE(Left().HasFocus());
  GetDevice().SetFocus(tool_->ClearButton().Handle());
  Key(VK_TAB);
  EXPECT_TRUE(Left().HasFocus());
}

TEST_F(WndBalancerTest, EnterBalancesFromBothBoxes) {
  MakeAndShow();
  Fill(u"h2+o2", u"h2o");
  Key(VK_RETURN);
  EXPECT_EQ(Texts(), "2H2+O2 = 2H2O");
  Fill(u"na+h2o", u"naoh+h2");
  Left().TakeFocus();
  Key(VK_RETURN);
  EXPECT_EQ(Texts(), "2Na+2H2O = 2NaOH+H2");
}

// Each button is itself pressed by Enter.
TEST_F(WndBalancerTest, EnterOnTheClearButtonClears) {
  MakeAndShow();
  GetDevice().SetFocus(tool_->ClearButton().Handle());
  Key(VK_RETURN);
  EXPECT_EQ(Texts(), " = ");
  EXPECT_EQ(tool_->DisplayState(), BalanceState::kPrompt);
}

TEST_F(WndBalancerTest, ArrowsScrollASolutionFromBoxAndButton) {
  MakeAndShow();
  Key(VK_DOWN);
  EXPECT_EQ(Solution().scrollY, 0);
  Fill(u"h+h+h+h+h+h+h+h", u"h");
  Key(VK_RETURN);
  ASSERT_TRUE(Solution().IsVisible());
  ASSERT_TRUE(Right().HasFocus());
  Key(VK_DOWN);
  EXPECT_EQ(Solution().scrollY, 10);
  GetDevice().SetFocus(tool_->BalanceButton().Handle());
  Key(VK_DOWN);
  EXPECT_EQ(Solution().scrollY, 20);
  Key(VK_UP);
  EXPECT_EQ(Solution().scrollY, 10);
  Key(VK_PRIOR);
  EXPECT_EQ(Solution().scrollY, 0);
  Key(VK_NEXT);
  EXPECT_GT(Solution().scrollY, 10);
}

TEST_F(WndBalancerTest, TabLeavesTheSolutionForABox) {
  MakeAndShow();
  Balance(u"h2", u"h2+h2");
  Tap(Solution().Handle(), {100, 50});
  ASSERT_EQ(GetDevice().Focus(), Solution().Handle());
  EXPECT_FALSE(GetDevice().Panel().Visible());
  Key(VK_TAB);
  EXPECT_TRUE(Left().HasFocus());
}

// --- What it keeps

TEST_F(WndBalancerTest, BeginsWithAnExample) {
  Make();
  EXPECT_EQ(Left().GetText(), kExampleLeft);
  EXPECT_EQ(Right().GetText(), kExampleRight);
  EXPECT_EQ(Left().Tokens().front().text, u"H");
  EXPECT_EQ(Right().Tokens().front().text, u"Pb");
  EXPECT_EQ(Left().Caret(), 0);
  tool_.reset();
  EXPECT_EQ(Stored(u"wnd_balancer.LHStext"), kExampleLeft);
  EXPECT_EQ(Stored(u"wnd_balancer.RHStext"), kExampleRight);
}

TEST_F(WndBalancerTest, KeepsBothTexts) {
  MakeAndShow();
  Fill(u"h2 \"x\"", u"");
  MakeAgain();
  EXPECT_EQ(Texts(), "h2 \"x\" = ");
  tool_->Show();
  Balance(u"h2+o2", u"h2o");
  MakeAgain();
  EXPECT_EQ(Texts(), "2H2+O2 = 2H2O");
  EXPECT_EQ(Stored(u"wnd_balancer.LHStext"), u"2H2+O2");
  EXPECT_EQ(Stored(u"wnd_balancer.RHStext"), u"2H2O");
  EXPECT_EQ(tool_->DisplayState(), BalanceState::kPrompt);  // results are not kept
}

// The hand-held reads texts of 255 characters at most, though a box takes more by pasting.
TEST_F(WndBalancerTest, ASideTooLongToReadGivesWayToItsDefault) {
  MakeAndShow();
  Fill(Text(256, u'h'), Text(255, u'o'));
  MakeAgain();
  EXPECT_EQ(Left().GetText(), kExampleLeft);
  EXPECT_EQ(Right().GetText(), Text(255, u'o'));
}

// --- A database with nothing in it

TEST_F(WndBalancerTest, WithoutElementsEverySymbolIsUnknown) {
  const ElementsDatabase unread;
  elements_ = ElementTable::From(unread.Symbol(), unread.AtomicMass());
  MakeAndShow();
  PressBalance();
  EXPECT_EQ(Joined(TitleRuns()), u"Errors in input - left-hand side");
  EXPECT_EQ(Left().GetText(), kExampleLeft);
}

}  // namespace
}  // namespace orvane
