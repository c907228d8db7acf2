// What the constants screen does when its buttons, menu and rows are used.
#include "tests/tools/wnd_const_fixture.h"

namespace orvane {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::WndConstTest;

constexpr Rect kStripRect{0, 240, 240, 268};

// --- The menu of categories

TEST_F(WndConstTest, TheMenuMarksTheCategoryAndTheColumnsThatShow) {
  MakeAndShow();
  DropDown(8820);
  EXPECT_EQ(GetDevice().Popups().Anchor(), (Point{30, 295}));
  EXPECT_THAT(Labels(), ElementsAre("+ Show symbol", "+ Show value", "+ Show units", "-", "Copy to clipboard",
                                    "-", "* First", "Second"));
  GetDevice().Popups().Close();
  Choose(40153);
  Choose(40155);
  Choose(1001);
  DropDown(8820);
  EXPECT_THAT(Labels(), ElementsAre("Show symbol", "+ Show value", "Show units", "-", "Copy to clipboard",
                                    "-", "First", "* Second"));
  GetDevice().Popups().Close();
}

TEST_F(WndConstTest, ColumnsAreShownAndHiddenOneByOne) {
  MakeAndShow();
  const int all = List().contentWidth;
  for (const int column : {1, 2, 3}) {
    Choose(40152 + column);
    EXPECT_FALSE(List().columns[static_cast<std::size_t>(column)].visible);
    EXPECT_LT(List().contentWidth, all);
    Choose(40152 + column);
    EXPECT_TRUE(List().columns[static_cast<std::size_t>(column)].visible);
    EXPECT_EQ(List().contentWidth, all);
  }
  EXPECT_TRUE(List().columns[0].visible);
}

TEST_F(WndConstTest, AnotherCategoryBeginsAtItsTopWithNothingSelected) {
  MakeAndShow();
  Choose(1001);
  TapRow(0, 3);
  List().ScrollBy(5, 100);
  ASSERT_NE(List().scrollY, 0);
  ASSERT_TRUE(StripShown());
  List().groups[0].expanded = false;
  Choose(1000);
  EXPECT_EQ(Title(), "First");
  EXPECT_EQ(List().scrollX, 0);
  EXPECT_EQ(List().scrollY, 0);
  EXPECT_EQ(List().selectedGroup, -1);
  EXPECT_EQ(List().selectedRow, -1);
  EXPECT_EQ(Strip().Content(), u"");
  EXPECT_TRUE(StripShown());
  for (const ListGroup& group : List().groups) EXPECT_TRUE(group.expanded);
}

TEST_F(WndConstTest, TheSameCategoryAgainKeepsItsPlace) {
  MakeAndShow();
  Choose(1001);
  TapRow(0, 3);
  List().ScrollBy(0, 100);
  const int scroll = List().scrollY;
  Choose(1001);
  EXPECT_EQ(List().scrollY, scroll);
  EXPECT_EQ(List().selectedRow, -1);
  EXPECT_EQ(Strip().Content(), u"");
}

TEST_F(WndConstTest, ACategoryIsReadAnewEachTime) {
  MakeAndShow();
  auto changed = testing::SmallConstants();
  changed[0].groups.pop_back();
  Write(changed);
  Choose(1000);
  EXPECT_EQ(List().groups.size(), 2u);
}

TEST_F(WndConstTest, NumbersThatNameNoCategoryDoNothing) {
  MakeAndShow();
  TapRow(0, 0);
  for (const int command : {999, 1002, 8119, 0, -1, 2147483647}) Choose(command);
  EXPECT_EQ(tool_->Category(), 0);
  EXPECT_EQ(List().selectedRow, 0);
  EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(WndConstTest, LoadingFromTheMenuShowsTheWaitCursor) {
  MakeAndShow();
  RemoveFile();
  bool waited = false;
  shell_.Trace().watch = [&](const testing::Dispatched&) { waited = waited || GetDevice().WaitCursor(); };
  Choose(1001);
  shell_.Trace().watch = nullptr;
  EXPECT_TRUE(waited);
  EXPECT_FALSE(GetDevice().WaitCursor());
}

// --- Buttons

TEST_F(WndConstTest, TheTitleCanBeHidden) {
  MakeAndShow();
  EXPECT_EQ(GetDevice().WindowRect(List().Handle()), (Rect{0, 23, 240, 268}));
  EXPECT_TRUE(IsChecked(8821));
  Command(8821);
  EXPECT_EQ(GetDevice().WindowRect(List().Handle()), (Rect{0, 0, 240, 268}));
  EXPECT_FALSE(IsChecked(8821));
  Command(8821);
  EXPECT_EQ(GetDevice().WindowRect(List().Handle()), (Rect{0, 23, 240, 268}));
}

TEST_F(WndConstTest, TheStripCanBeShownAndHidden) {
  MakeAndShow();
  EXPECT_FALSE(IsChecked(8822));
  Command(8822);
  EXPECT_TRUE(StripShown());
  EXPECT_TRUE(IsChecked(8822));
  EXPECT_EQ(GetDevice().WindowRect(Strip().Handle()), kStripRect);
  EXPECT_EQ(GetDevice().WindowRect(List().Handle()), (Rect{0, 23, 240, 240}));
  Command(8821);
  EXPECT_EQ(GetDevice().WindowRect(List().Handle()), (Rect{0, 0, 240, 240}));
  Command(8822);
  EXPECT_FALSE(StripShown());
  EXPECT_EQ(GetDevice().WindowRect(List().Handle()), (Rect{0, 0, 240, 268}));
}

TEST_F(WndConstTest, TheMarksAreThereAgainWhenTheScreenComesBack) {
  MakeAndShow();
  Command(8822);
  tool_->HideOnly();
  shell_.RemoveAddedButtons();
  tool_->Show();
  EXPECT_TRUE(IsChecked(8821));
  EXPECT_TRUE(IsChecked(8822));
}

TEST_F(WndConstTest, GroupsFoldAndUnfoldTogether) {
  MakeAndShow();
  List().groups[0].expanded = false;
  List().ScrollBy(0, 50);
  Command(8823);
  EXPECT_FALSE(List().groups[0].expanded);
  EXPECT_FALSE(List().groups[2].expanded);
  EXPECT_EQ(List().scrollY, 0);
  // Two titles and the one row of the group that never folds.
  EXPECT_EQ(List().contentHeight, 2 * 19 + 12);
  Command(8823);
  EXPECT_TRUE(List().groups[0].expanded);
  EXPECT_TRUE(List().groups[2].expanded);
}

TEST_F(WndConstTest, TheHelpButtonOpensThePageAboutColumns) {
  MakeAndShow();
  Command(8824);
  EXPECT_THAT(navigator_.calls, ElementsAre("help 1340"));
}

// --- The strip

TEST_F(WndConstTest, ATappedRowShowsInFull) {
  MakeAndShow();
  TapRow(0, 0);
  EXPECT_TRUE(StripShown());
  EXPECT_EQ(Strip().Content(),
            u"N\u0001`A\u0001  = 6.022\u00D710\u0001\u00A023\u0001  mol\u0001\u00A0\u20131\u0001 \nexact");
  EXPECT_EQ(List().selectedGroup, 0);
  EXPECT_EQ(List().selectedRow, 0);
  TapRow(0, 1);
  EXPECT_EQ(Strip().Content(), u"42");
  EXPECT_TRUE(IsChecked(8822));
}

TEST_F(WndConstTest, TheTappedRowStaysInSightAboveTheStrip) {
  MakeAndShow();
  Choose(1001);
  // The row that the strip will lie over: y 222 to 234 of the list's 245.
  TapRow(0, 17);
  ASSERT_TRUE(StripShown());
  const Rect row = List().RectOf(0, 17);
  EXPECT_LE(row.bottom - List().scrollY, 240 - 23);
}

TEST_F(WndConstTest, TheStripScrollsWhatIsWiderAndHigherThanItself) {
  MakeAndShow();
  EXPECT_EQ(Strip().contentWidth, 240);
  TapRow(0, 1);
  // "Courier New" 11: 8 pixels a character, 16 a line.
  EXPECT_EQ(Strip().contentWidth, 240);
  EXPECT_EQ(Strip().contentHeight, 16 + 6);
  TapRow(0, 0);
  EXPECT_EQ(Strip().contentHeight, 2 * 16 + 6);
  Strip().ScrollBy(0, 100);
  EXPECT_EQ(Strip().scrollY, 2 * 16 + 6 - 28);
  TapRow(0, 1);
  EXPECT_EQ(Strip().scrollY, 0);
  Strip().SetContent(Text(100, u'8'));
  EXPECT_EQ(Strip().contentWidth, 800);
}

TEST_F(WndConstTest, TheStripMovesSidewaysOnlyForATextThatDoesNotFit) {
  MakeAndShow();
  Strip().SetContent(Text(29, u'8'));  // 232 pixels from x = 8: up to the edge
  Strip().ScrollBy(100, 0);
  EXPECT_EQ(Strip().scrollX, 0);
  Strip().SetContent(Text(30, u'8'));
  Strip().ScrollBy(100, 0);
  EXPECT_EQ(Strip().scrollX, 16);
  Strip().SetContent(u"42");
  EXPECT_EQ(Strip().scrollX, 0);
}

TEST_F(WndConstTest, TheStripDrawsItsTextUnderASeparator) {
  MakeAndShow();
  TapRow(0, 1);
  bool found = false;
  for (const ScreenRun& run : GetDevice().VisibleRuns()) {
    if (run.run.text != u"42" || run.run.rect.top < 26 + 240) continue;
    found = true;
    EXPECT_EQ(run.run.rect.left, 8);
    EXPECT_EQ(run.run.rect.top, 26 + 240 + 3);
  }
  EXPECT_TRUE(found);
  EXPECT_NE(shell_.Pixel({200, 26 + 240}), 0xFFFFFFu);
  EXPECT_EQ(shell_.Pixel({200, 26 + 250}), 0xFFFFFFu);
  // It stays at the top while the text scrolls.
  Strip().SetContent(Text(300, u'8') + u"\n\n\n\n");
  Strip().ScrollBy(300, 60);
  shell_.Settle();
  EXPECT_NE(shell_.Pixel({200, 26 + 240}), 0xFFFFFFu);
}

TEST_F(WndConstTest, TheStripClosesOnRequestAndByEscape) {
  MakeAndShow();
  EXPECT_EQ(OwnCommand(StandardCommand::kClose), 0);
  TapRow(0, 0);
  GetDevice().Send(Strip().Handle(), WM_CLOSE);
  EXPECT_FALSE(StripShown());
  TapRow(0, 0);
  EXPECT_EQ(OwnCommand(StandardCommand::kClose), 8822);
  Command(OwnCommand(StandardCommand::kClose));
  EXPECT_FALSE(StripShown());
}

TEST_F(WndConstTest, TheFocusGoesBackToTheListWhenTheStripCloses) {
  MakeAndShow();
  TapRow(0, 0);
  shell_.Tap(Strip().Handle(), {20, 10});
  shell_.Settle();
  ASSERT_EQ(GetDevice().Focus(), Strip().Handle());
  Command(8822);
  EXPECT_EQ(GetDevice().Focus(), List().Handle());
}

// --- Copying

TEST_F(WndConstTest, CopyingNeedsASelection) {
  MakeAndShow();
  GetDevice().SetClipboardText(u"before");
  Choose(40166);
  ASSERT_EQ(shell_.Trace().boxes.size(), 1u);
  EXPECT_EQ(shell_.Trace().boxes[0].caption, u"Orvane");
  EXPECT_EQ(shell_.Trace().boxes[0].icon, MessageIcon::kExclamation);
  EXPECT_THAT(Boxes(),
              ElementsAre("Please select the constant that you want to copy before using this command."));
  EXPECT_EQ(Clipboard(), "before");
}

TEST_F(WndConstTest, CopiesTheValueAlone) {
  MakeAndShow();
  const struct {
    int group;
    int row;
    const char* copied;
  } cases[] = {{0, 0, "6.022*10^23"}, {0, 1, "42"}, {0, 2, "3.1-4.4"}, {1, 0, ""}, {2, 0, "12^3"}};
  for (const auto& c : cases) {
    TapRow(c.group, c.row);
    Choose(40166);
    EXPECT_EQ(Clipboard(), c.copied);
  }
  EXPECT_EQ(OwnCommand(StandardCommand::kCopy), 40166);
  EXPECT_EQ(OwnCommand(StandardCommand::kPaste), 0);
  EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(WndConstTest, CopiesTheSelectedConstantWhileItsColumnIsHiddenOrItsGroupFolded) {
  MakeAndShow();
  TapRow(0, 1);
  Choose(40154);
  Command(8823);
  Choose(40166);
  EXPECT_EQ(Clipboard(), "42");
}

TEST_F(WndConstTest, AnotherCategoryLeavesNothingToCopy) {
  MakeAndShow();
  TapRow(0, 1);
  Choose(1001);
  Choose(40166);
  EXPECT_EQ(Boxes().size(), 1u);
}

}  // namespace
}  // namespace orvane
