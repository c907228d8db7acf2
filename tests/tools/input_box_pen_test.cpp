// The pen, the focus and the clipboard in an input box.
#include "tests/tools/input_box_fixture.h"

namespace orvane {
namespace {

using Changes = std::vector<Text>;

class InputBoxPenTest : public testing::InputBoxTest {
 protected:
  // The client x at which character `index` of the text in the box begins.
  int XOf(int index) {
    return box_->Offset() + WidthOf(box_->GetText().substr(0, static_cast<std::size_t>(index)));
  }
  void Down(int x) { GetDevice().PenDown(OnScreen(x)); }
  void MoveTo(int x) { GetDevice().PenMove(OnScreen(x)); }
  void Up(int x) { GetDevice().PenUp(OnScreen(x)); }
};

// --- Where the pen hits

TEST_F(InputBoxPenTest, ATapPutsTheCaretAtTheNearestGap) {
  MakeFocused(u"iron");
  for (int index = 0; index < 4; ++index) {
    // The gap before a character is nearer up to half of its width.
    const int left = XOf(index);
    const int right = XOf(index + 1);
    for (int x = left; x < right; ++x) {
      Down(x);
      Up(x);
      EXPECT_EQ(box_->Caret(), 2 * x < left + right ? index : index + 1) << x;
    }
  }
}

TEST_F(InputBoxPenTest, ATapBeyondTheTextGoesToItsEnds) {
  MakeFocused(u"iron");
  Down(0);
  Up(0);
  EXPECT_EQ(State(), "0 0 0");
  Down(200);
  Up(200);
  EXPECT_EQ(State(), "4 0 0");
}

TEST_F(InputBoxPenTest, ATapDropsTheSelection) {
  MakeFocused(u"iron");
  ShiftKey(VK_HOME);
  Down(XOf(2));
  EXPECT_EQ(State(), "2 0 0");
  Up(XOf(2));
  EXPECT_EQ(State(), "2 0 0");
}

// Shift does not make a tap select.
TEST_F(InputBoxPenTest, ATapNeverExtendsTheSelection) {
  MakeFocused(u"iron");
  GetDevice().KeyDown(VK_SHIFT, {.shift = true, .control = false, .alt = false});
  Down(XOf(1));
  Up(XOf(1));
  EXPECT_EQ(State(), "1 0 0");
}

// --- Dragging

TEST_F(InputBoxPenTest, DraggingSelects) {
  MakeFocused(u"chlorine");
  Down(XOf(2));
  EXPECT_EQ(GetDevice().Capture(), box_->Handle());
  MoveTo(XOf(5));
  EXPECT_EQ(State(), "5 2 3");
  MoveTo(XOf(1));
  EXPECT_EQ(State(), "1 1 1");
  MoveTo(XOf(2));
  EXPECT_EQ(State(), "2 0 0");
  MoveTo(XOf(6));
  Up(XOf(6));
  EXPECT_EQ(State(), "6 2 4");
  EXPECT_EQ(GetDevice().Capture(), kNoWindow);
  EXPECT_EQ(changes_, Changes{});
}

TEST_F(InputBoxPenTest, DraggingBeyondBothEndsSelectsUpToThem) {
  MakeFocused(u"chlorine");
  Down(XOf(3));
  MoveTo(-5);
  EXPECT_EQ(State(), "0 0 3");
  MoveTo(-100);
  EXPECT_EQ(State(), "0 0 3");
  MoveTo(223);
  EXPECT_EQ(State(), "8 3 5");
  MoveTo(230);
  EXPECT_EQ(State(), "8 3 5");
  Up(230);
  EXPECT_EQ(State(), "8 3 5");
}

TEST_F(InputBoxPenTest, AStrokeThatBeganElsewhereSelectsNothing) {
  MakeFocused(u"chlorine");
  GetDevice().PenDown(shell_.OnScreen(owner_->Handle(), {20, 20}));
  MoveTo(XOf(3));
  Up(XOf(3));
  GetDevice().Send(box_->Handle(), WM_MOUSEMOVE, 0, PackPoint({XOf(3), 5}));
  EXPECT_EQ(State(), "8 0 0");
}

TEST_F(InputBoxPenTest, ABoxHiddenUnderThePenHasEndedItsStroke) {
  MakeFocused(u"iron");
  Down(XOf(1));
  owner_->Hide();
  Up(XOf(1));
  shell_.Settle();
  owner_->Show();
  box_->TakeFocus();
  shell_.Settle();
  GetDevice().PenDown(shell_.OnScreen(owner_->Handle(), {1, 1}));
  MoveTo(XOf(3));
  EXPECT_EQ(State(), "1 0 0");
  Up(XOf(3));
}

// The panel lowers its pen before its keys come, so that its arrows move the caret and do not select.
TEST_F(InputBoxPenTest, KeysOfTheInputPanelDoNotSelect) {
  MakeFocused(u"chlorine");
  ASSERT_TRUE(GetDevice().Panel().Visible());
  GetDevice().PenDown({190, 285});  // the left arrow
  GetDevice().PenUp({190, 285});
  EXPECT_EQ(State(), "7 0 0");
}

// While the pen is down in the box a key that moves the caret selects.
TEST_F(InputBoxPenTest, AKeyDuringAStrokeSelects) {
  MakeFocused(u"chlorine");
  Down(XOf(3));
  Key(VK_RIGHT);
  EXPECT_EQ(State(), "4 3 1");
  Up(XOf(3));
}

// --- Focus

TEST_F(InputBoxPenTest, TheFocusRaisesThePanelAndTellsTheOwner) {
  MakePlain();
  EXPECT_FALSE(box_->HasFocus());
  owner_->seen.clear();
  bool raised = false;
  bool focused = true;
  owner_->hook = [&](std::uint32_t message) {
    if (message != kInputBoxFocused) return;
    raised = GetDevice().Panel().Visible();
    focused = box_->HasFocus();
  };
  box_->TakeFocus();
  EXPECT_EQ(owner_->Count(1416), 1);
  EXPECT_EQ(owner_->seen.back().first, kInputBoxFocused);
  EXPECT_EQ(SenderOf(owner_->seen.back().second), box_->Handle());
  EXPECT_TRUE(raised);
  EXPECT_FALSE(focused);  // the flag follows the message
  EXPECT_TRUE(box_->HasFocus());
  EXPECT_TRUE(box_->CaretVisible());
}

TEST_F(InputBoxPenTest, LosingItLowersThePanelAndTellsTheOwner) {
  MakeFocused(u"iron");
  ASSERT_TRUE(GetDevice().Panel().Visible());
  owner_->seen.clear();
  GetDevice().SetFocus(owner_->Handle());
  EXPECT_FALSE(GetDevice().Panel().Visible());
  EXPECT_EQ(owner_->seen.front().first, kInputBoxBlurred);
  EXPECT_EQ(owner_->seen.front().first, 1417u);
  EXPECT_EQ(SenderOf(owner_->seen.front().second), box_->Handle());
  EXPECT_FALSE(box_->HasFocus());
}

TEST_F(InputBoxPenTest, ATapTakesTheFocusAndAsksForThePanelEachTime) {
  MakePlain();
  Down(20);
  Up(20);
  EXPECT_TRUE(box_->HasFocus());
  EXPECT_TRUE(GetDevice().Panel().Visible());
  GetDevice().Panel().Request(false);
  shell_.Settle();
  Down(20);
  Up(20);
  EXPECT_TRUE(GetDevice().Panel().Visible());
}

TEST_F(InputBoxPenTest, ABoxThatGoesAwayWithTheFocusLowersThePanel) {
  MakeFocused(u"iron");
  const WindowHandle window = box_->Handle();
  box_.reset();
  EXPECT_FALSE(GetDevice().Panel().Visible());
  EXPECT_FALSE(GetDevice().IsWindow(window));
  shell_.now += 5000;
  shell_.Settle();
}

// --- Clipboard

TEST_F(InputBoxPenTest, CopyPutsTheSelectedCharactersOnTheClipboard) {
  MakeFocused(u"chlorine");
  ShiftKey(VK_LEFT);
  ShiftKey(VK_LEFT);
  ShiftKey(VK_LEFT);
  box_->CopySelection();
  EXPECT_EQ(GetDevice().ClipboardText(), u"ine");
  EXPECT_EQ(box_->GetText(), u"chlorine");
  EXPECT_EQ(State(), "5 5 3");
  EXPECT_EQ(changes_, Changes{});
}

TEST_F(InputBoxPenTest, CopyWithoutASelectionLeavesTheClipboard) {
  MakeFocused(u"chlorine");
  GetDevice().SetClipboardText(u"before");
  box_->CopySelection();
  EXPECT_EQ(GetDevice().ClipboardText(), u"before");
}

TEST_F(InputBoxPenTest, PasteStandsAtTheCaret) {
  MakeFocused(u"cine");
  Key(VK_HOME);
  Key(VK_RIGHT);
  GetDevice().SetClipboardText(u"hlor");
  box_->Paste();
  EXPECT_EQ(box_->GetText(), u"chlorine");
  EXPECT_EQ(State(), "5 0 0");
  EXPECT_EQ(changes_, (Changes{u"chlorine"}));
  EXPECT_EQ(box_->Tokens().size(), 8u);
}

TEST_F(InputBoxPenTest, PasteReplacesTheSelection) {
  MakeFocused(u"chlorine");
  ShiftKey(VK_HOME);
  GetDevice().SetClipboardText(u"iron");
  box_->Paste();
  EXPECT_EQ(box_->GetText(), u"iron");
  EXPECT_EQ(State(), "4 0 0");
}

TEST_F(InputBoxPenTest, WithoutTextOnTheClipboardNothingHappens) {
  MakeFocused(u"chlorine");
  ShiftKey(VK_HOME);
  ASSERT_EQ(GetDevice().ClipboardText(), std::nullopt);
  box_->Paste();
  EXPECT_EQ(box_->GetText(), u"chlorine");
  EXPECT_EQ(State(), "0 0 8");
  EXPECT_EQ(changes_, Changes{});
}

TEST_F(InputBoxPenTest, PasteIsNotFiltered) {
  MakeFocused();
  const Text odd = u"a\u0001!b\nc\t\u00b0\u4e2d";
  GetDevice().SetClipboardText(odd);
  box_->Paste();
  EXPECT_EQ(box_->GetText(), odd);
  ShiftKey(VK_HOME);
  box_->CopySelection();
  EXPECT_EQ(GetDevice().ClipboardText(), odd);
}

TEST_F(InputBoxPenTest, PasteGoesBeyondWhatCanBeTypedUpToTheBuffer) {
  MakeFocused(Text(250, u'x'));
  GetDevice().SetClipboardText(Text(300, u'y'));
  box_->Paste();
  EXPECT_EQ(box_->GetText(), Text(250, u'x') + Text(261, u'y'));
  EXPECT_EQ(box_->Caret(), 511);
  box_->Paste();
  EXPECT_EQ(box_->GetText().size(), 511u);
  EXPECT_EQ(changes_.size(), 2u);
}

TEST_F(InputBoxPenTest, AShorterLimitHoldsForPasteToo) {
  MakeFocused(Text(300, u'x'));
  box_->SetLongest(254);
  EXPECT_EQ(box_->GetText(), Text(254, u'x'));
  box_->retokenise();
  box_->Reset();
  ShiftKey(VK_HOME);
  GetDevice().SetClipboardText(Text(300, u'y'));
  box_->Paste();
  EXPECT_EQ(box_->GetText(), Text(254, u'y'));
}

TEST_F(InputBoxPenTest, PasteEndsBeforeACharacterZero) {
  MakeFocused();
  GetDevice().SetClipboardText(Text(u"iron\0steel", 10));
  box_->Paste();
  EXPECT_EQ(box_->GetText(), u"iron");
}

// --- The owner's text

TEST_F(InputBoxPenTest, AfterTheOwnersTextCaretAndSelectionAreValid) {
  MakeFocused(u"praseodymium");
  ShiftKey(VK_HOME);
  ShiftKey(VK_RIGHT);
  ASSERT_EQ(State(), "1 1 11");
  box_->ReplaceText(u"tin");
  EXPECT_EQ(State(), "1 1 2");
  box_->retokenise();
  box_->Reset();
  EXPECT_EQ(State(), "1 0 0");
  Key(VK_END);
  box_->ReplaceText(u"");
  EXPECT_EQ(State(), "0 0 0");
  box_->retokenise();
  box_->Reset();
  EXPECT_EQ(changes_, Changes{});
}

TEST_F(InputBoxPenTest, TheOwnersTextIsCutToTheLimit) {
  MakePlain();
  box_->ReplaceText(Text(600, u'x'));
  EXPECT_EQ(box_->GetText().size(), 511u);
  box_->ReplaceText(Text(u"ab\0cd", 5));
  EXPECT_EQ(box_->GetText(), u"ab");
}

// A callback that writes into its box is not called again, and what it wrote stands.
TEST_F(InputBoxPenTest, TheCallbackMayReplaceTheText) {
  MakeFocused();
  int calls = 0;
  box_->changed = [&](CInputBox& box) {
    ++calls;
    box.ReplaceText(u"H2O");
    box.retokenise();
    box.Reset();
  };
  Type(u"h");
  EXPECT_EQ(calls, 1);
  EXPECT_EQ(box_->GetText(), u"H2O");
  EXPECT_EQ(State(), "1 0 0");
}

TEST_F(InputBoxPenTest, ABoxWithoutCallbackCanBeEdited) {
  MakeFocused(u"iro");
  box_->changed = nullptr;
  Type(u"n");
  Key(VK_BACK);
  box_->Paste();
  EXPECT_EQ(box_->GetText(), u"iro");
}

}  // namespace
}  // namespace orvane
