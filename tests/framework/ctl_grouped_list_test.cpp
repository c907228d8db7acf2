// Layout, hit order, folding and selection.
#include "framework/ctl_grouped_list.h"

#include "tests/framework/list_test_bed.h"

namespace orvane {
namespace {

using testing::GroupedListTest;
using testing::kRow;
using testing::kTitle;
using Part = ctlGroupedList::Part;

constexpr ctlGroupedList::Hit TitleHit(int group) { return {Part::kTitle, group, -1, -1}; }
constexpr ctlGroupedList::Hit EdgeHit(int column) { return {Part::kColumnEdge, -1, -1, column}; }
constexpr ctlGroupedList::Hit RowHit(int group, int row) { return {Part::kRow, group, row, -1}; }
constexpr ctlGroupedList::Hit NoHit() { return {}; }

TEST_F(GroupedListTest, BeginsEmpty) {
  EXPECT_EQ(list_->ResizingColumn(), -1);
  EXPECT_EQ(list_->marginX, 40);
  EXPECT_EQ(list_->marginY, 20);
  EXPECT_EQ(list_->background, Rgb(232, 232, 232));
  EXPECT_TRUE(list_->privateBuffer);
  EXPECT_TRUE(list_->groups.empty());
  EXPECT_TRUE(list_->columns.empty());
  EXPECT_EQ(Selected(), ListRow{});
  EXPECT_EQ(list_->margin, 3);
  EXPECT_EQ(list_->minimumColumnWidth, 15);
  LayOut();
  EXPECT_EQ(list_->contentWidth, 0);
  EXPECT_EQ(list_->contentHeight, 0);
  EXPECT_EQ(At(0, 0), 0xE8E8E8u);
}

TEST_F(GroupedListTest, TakesItsHeightsFromItsFonts) {
  EXPECT_EQ(list_->titleHeight, kTitle);
  EXPECT_EQ(list_->rowHeight, kRow);
}

TEST_F(GroupedListTest, TitlesTakeOneHeightAndRowsFollowWhenTheyShow) {
  FillTwoGroups();
  EXPECT_EQ(list_->RectOf(0, -1), (Rect{0, 0, 200, 19}));
  EXPECT_EQ(list_->RectOf(0, 0), (Rect{0, 19, 200, 31}));
  EXPECT_EQ(list_->RectOf(0, 2), (Rect{0, 43, 200, 55}));
  EXPECT_EQ(list_->RectOf(1, -1), (Rect{0, 55, 200, 74}));
  EXPECT_EQ(list_->RectOf(1, 1), (Rect{0, 86, 200, 98}));
  list_->groups[0].expanded = false;
  EXPECT_EQ(list_->RectOf(0, 0), Rect{});
  EXPECT_EQ(list_->RectOf(1, -1), (Rect{0, 19, 200, 38}));
}

TEST_F(GroupedListTest, AGroupWithoutATitleAlwaysShowsItsRows) {
  Columns({50});
  Group(u"", {u"x", u"y"}, false);
  LayOut();
  EXPECT_EQ(list_->RectOf(0, 0), (Rect{0, 0, 50, 12}));
  EXPECT_EQ(list_->contentHeight, 25);
}

TEST_F(GroupedListTest, TheContentHasALineMoreUnlessItEndsInAFoldedTitle) {
  FillTwoGroups();
  EXPECT_EQ(list_->contentHeight, 2 * kTitle + 5 * kRow + 1);
  list_->groups[1].expanded = false;
  LayOut();
  EXPECT_EQ(list_->contentHeight, 2 * kTitle + 3 * kRow);
  list_->groups[1].expanded = true;
  list_->groups[0].expanded = false;
  LayOut();
  EXPECT_EQ(list_->contentHeight, 2 * kTitle + 2 * kRow + 1);
  list_->groups[1].rows.clear();
  LayOut();
  EXPECT_EQ(list_->contentHeight, 2 * kTitle + 1);
}

TEST_F(GroupedListTest, TheContentIsAsWideAsTheVisibleColumns) {
  FillTwoGroups();
  EXPECT_EQ(list_->contentWidth, 200);
  list_->columns[1].visible = false;
  LayOut();
  EXPECT_EQ(list_->contentWidth, 140);
  for (ListColumn& column : list_->columns) column.visible = false;
  LayOut();
  EXPECT_EQ(list_->contentWidth, 0);
}

TEST_F(GroupedListTest, AutomaticColumnsAreAsWideAsTheirWidestText) {
  Columns({100, 7});
  list_->columns[1].autoSize = true;
  Group(u"A very long title that does not count at all", {u"x"});
  list_->groups[0].rows = {{u"name", u"1"}, {u"name", u"12345"}};
  Group(u"B", {u"x"}, false);
  list_->groups[1].rows = {{u"a name longer than all", u"1234567890"}};
  LayOut();
  // The widest one is folded away. Fixed columns stay as they are.
  EXPECT_EQ(list_->columns[1].width, WidthOf(u"1234567890") + 6);
  EXPECT_EQ(list_->columns[0].width, 100);
  list_->margin = 5;
  LayOut();
  EXPECT_EQ(list_->columns[1].width, WidthOf(u"1234567890") + 10);
}

TEST_F(GroupedListTest, AutomaticColumnsMeasureTextsWithoutTheirCodes) {
  Columns({0});
  list_->columns[0].autoSize = true;
  Group(u"", {u"10\x0001\x00A0"
              u"23"});
  LayOut();
  EXPECT_EQ(list_->columns[0].width, WidthOf(u"10") + WidthOf(u"23") + 6);
}

TEST_F(GroupedListTest, AnAutomaticColumnWithoutTextsHasNoWidth) {
  Columns({80, 80});
  list_->columns[0].autoSize = true;
  LayOut();
  EXPECT_EQ(list_->columns[0].width, 0);
  Group(u"A", {u"x"});  // has no text for the second column: only its margins
  list_->columns[1].autoSize = true;
  LayOut();
  EXPECT_EQ(list_->columns[1].width, 6);
}

TEST_F(GroupedListTest, InvisibleAutomaticColumnsKeepTheirWidth) {
  Columns({80});
  list_->columns[0].autoSize = true;
  list_->columns[0].visible = false;
  Group(u"A", {u"x"});
  LayOut();
  EXPECT_EQ(list_->columns[0].width, 80);
}

TEST_F(GroupedListTest, WidthsAndCountsBeyondReasonAreBounded) {
  Columns({2'000'000'000, 2'000'000'000, -50});
  Group(u"A", {u"x"});
  LayOut();
  EXPECT_EQ(list_->contentWidth, 200'000);
  Tap(150, 25);
  EXPECT_EQ(Selected(), (ListRow{0, 0}));
}

TEST_F(GroupedListTest, LayingOutPaintsAnew) {
  FillTwoGroups();
  EXPECT_EQ(list_->bufferWidth, 200);
  EXPECT_EQ(list_->bufferHeight, 99);
  EXPECT_EQ(At(50, 19 + 12 + 6), 0xCCFFDEu);
  Group(u"C", {});
  list_->groups.erase(list_->groups.begin());
  LayOut();
  EXPECT_EQ(list_->bufferHeight, 19 + 24 + 19 + 1);
  EXPECT_EQ(Shown(), (std::vector<std::string>{"B", "b0", "b1", "C"}));
}

TEST_F(GroupedListTest, TextsAreKeptInFieldsOf255Characters) {
  Columns({100});
  Group(Text(300, u't'), {Text(253, u'x') + u"\x0001!bold"});
  LayOut();
  EXPECT_EQ(list_->groups[0].title, Text(254, u't'));
  EXPECT_EQ(list_->groups[0].rows[0][0], Text(253, u'x'));
}

TEST_F(GroupedListTest, ToggleAllFoldsWhenAnythingIsOpen) {
  FillTwoGroups();
  Group(u"", {u"free"});
  list_->groups[0].expanded = false;
  LayOut();
  list_->ScrollBy(0, 10'000);
  list_->ScrollBy(10'000, 0);
  list_->ToggleAll();
  EXPECT_FALSE(list_->groups[0].expanded);
  EXPECT_FALSE(list_->groups[1].expanded);
  EXPECT_TRUE(list_->groups[2].expanded);  // has nothing to fold it by
  EXPECT_EQ(list_->contentHeight, 2 * kTitle + kRow + 1);
  EXPECT_EQ(list_->scrollX, 0);
  EXPECT_EQ(list_->scrollY, 0);
  list_->ToggleAll();
  EXPECT_TRUE(list_->groups[0].expanded);
  EXPECT_TRUE(list_->groups[1].expanded);
}

TEST_F(GroupedListTest, ToggleAllScrollsBack) {
  Columns({300});
  Group(u"A", std::vector<Text>(60, u"row"));
  LayOut();
  list_->ScrollBy(30, 200);
  ASSERT_EQ(list_->scrollY, 200);
  list_->ToggleAll();
  EXPECT_EQ(list_->scrollX, 0);
  EXPECT_EQ(list_->scrollY, 0);
}

TEST_F(GroupedListTest, ToggleAllOfGroupsWithoutTitlesChangesNothing) {
  Columns({50});
  Group(u"", {u"x"});
  LayOut();
  list_->ToggleAll();
  list_->ToggleAll();
  EXPECT_EQ(list_->contentHeight, 13);
}

TEST_F(GroupedListTest, ATitleIsHitInsideItsOutermostLines) {
  FillTwoGroups();
  EXPECT_EQ(list_->HitTest({50, 0}), NoHit());
  EXPECT_EQ(list_->HitTest({50, 1}), TitleHit(0));
  EXPECT_EQ(list_->HitTest({50, 18}), TitleHit(0));
  EXPECT_EQ(list_->HitTest({50, 19}), RowHit(0, 0));
  EXPECT_EQ(list_->HitTest({50, 55}), NoHit());
  EXPECT_EQ(list_->HitTest({50, 56}), TitleHit(1));
  EXPECT_EQ(list_->HitTest({50, 73}), TitleHit(1));
  // At any x, beyond the columns too.
  EXPECT_EQ(list_->HitTest({230, 10}), TitleHit(0));
}

TEST_F(GroupedListTest, TitlesAreHitBeforeColumnEdges) {
  FillTwoGroups();
  EXPECT_EQ(list_->HitTest({100, 10}), TitleHit(0));
  EXPECT_EQ(list_->HitTest({100, 0}), EdgeHit(0));  // the title's first line is none of it
  EXPECT_EQ(list_->HitTest({100, 55}), EdgeHit(0));
}

TEST_F(GroupedListTest, ColumnEdgesAreHitWithinTheMarginAtAnyHeight) {
  FillTwoGroups();
  EXPECT_EQ(list_->HitTest({96, 25}), RowHit(0, 0));
  EXPECT_EQ(list_->HitTest({97, 25}), EdgeHit(0));
  EXPECT_EQ(list_->HitTest({103, 25}), EdgeHit(0));
  EXPECT_EQ(list_->HitTest({104, 25}), RowHit(0, 0));
  EXPECT_EQ(list_->HitTest({157, 40}), EdgeHit(1));
  EXPECT_EQ(list_->HitTest({203, 500}), EdgeHit(2));
  EXPECT_EQ(list_->HitTest({204, 500}), NoHit());
}

TEST_F(GroupedListTest, HiddenColumnsHaveNoEdge) {
  FillTwoGroups();
  list_->columns[0].visible = false;
  LayOut();
  EXPECT_EQ(list_->HitTest({100, 25}), EdgeHit(2));
  EXPECT_EQ(list_->HitTest({60, 25}), EdgeHit(1));
  EXPECT_EQ(list_->HitTest({0, 25}), RowHit(0, 0));
  for (ListColumn& column : list_->columns) column.visible = false;
  LayOut();
  EXPECT_EQ(list_->HitTest({0, 25}), RowHit(0, 0));
}

TEST_F(GroupedListTest, RowsAreHitFromTheirTopToAboveTheirBottom) {
  FillTwoGroups();
  EXPECT_EQ(list_->HitTest({50, 30}), RowHit(0, 0));
  EXPECT_EQ(list_->HitTest({50, 31}), RowHit(0, 1));
  EXPECT_EQ(list_->HitTest({50, 54}), RowHit(0, 2));
  EXPECT_EQ(list_->HitTest({50, 97}), RowHit(1, 1));
  EXPECT_EQ(list_->HitTest({50, 98}), NoHit());
  EXPECT_EQ(list_->HitTest({230, 30}), RowHit(0, 0));
  list_->groups[0].expanded = false;
  EXPECT_EQ(list_->HitTest({50, 40}), RowHit(1, 0));
}

TEST_F(GroupedListTest, ThePenTakesTheFocus) {
  FillTwoGroups();
  GetDevice().SetFocus(owner_->Handle());
  Tap(50, 200);
  EXPECT_EQ(GetDevice().Focus(), list_->Handle());
}

TEST_F(GroupedListTest, ATapOnATitleFoldsItsGroup) {
  FillTwoGroups();
  Tap(50, 10);
  EXPECT_FALSE(list_->groups[0].expanded);
  EXPECT_EQ(list_->contentHeight, 2 * kTitle + 2 * kRow + 1);
  EXPECT_EQ(Shown(), (std::vector<std::string>{"A", "B", "b0", "b1"}));
  Tap(50, 10);
  EXPECT_TRUE(list_->groups[0].expanded);
  EXPECT_TRUE(owner_->tapped.empty());
}

TEST_F(GroupedListTest, ATapOnATitleFoldsAlsoWhereAColumnEnds) {
  FillTwoGroups();
  Tap(100, 10);
  EXPECT_FALSE(list_->groups[0].expanded);
  EXPECT_FALSE(list_->columns[0].autoSize);
}

TEST_F(GroupedListTest, ATapNearAColumnEdgeMakesTheColumnAutomatic) {
  FillTwoGroups();
  Tap(98, 25);
  EXPECT_TRUE(list_->columns[0].autoSize);
  EXPECT_EQ(list_->columns[0].width, std::max(WidthOf(u"a0"), WidthOf(u"b0")) + 6);
  EXPECT_EQ(Selected(), ListRow{});
  EXPECT_TRUE(owner_->tapped.empty());
}

TEST_F(GroupedListTest, ATapOnARowTellsTheOwnerAndSelects) {
  FillTwoGroups();
  ListRow selectedWhenTold{9, 9};
  owner_->whenTapped = [&] { selectedWhenTold = Selected(); };
  Tap(50, 90);
  EXPECT_EQ(owner_->tapped, (std::vector<ListRow>{{1, 1}}));
  EXPECT_EQ(selectedWhenTold, ListRow{});  // it is told first
  EXPECT_EQ(Selected(), (ListRow{1, 1}));
  EXPECT_EQ(At(60, 92), 0xC1C1FFu);
  Tap(50, 25);
  EXPECT_EQ(owner_->tapped, (std::vector<ListRow>{{1, 1}, {0, 0}}));
  EXPECT_EQ(At(60, 92), 0xCCFFDEu);
  EXPECT_EQ(At(60, 25), 0xC1C1FFu);
}

TEST_F(GroupedListTest, ASecondTapOnTheSelectedRowTellsAgain) {
  FillTwoGroups();
  Tap(50, 25);
  Tap(50, 25);
  EXPECT_EQ(owner_->tapped.size(), 2u);
  EXPECT_EQ(At(60, 25), 0xC1C1FFu);
}

TEST_F(GroupedListTest, TheMessageHasItsNumberGroupAndRow) {
  FillTwoGroups();
  shell_.Trace().messages.clear();
  Tap(50, 90);
  const testing::Dispatched told{owner_->Handle(), 0x8190, 1, 1};
  EXPECT_EQ(std::count(shell_.Trace().messages.begin(), shell_.Trace().messages.end(), told), 1);
}

TEST_F(GroupedListTest, TheOwnerMayEmptyTheListWhenItIsTold) {
  FillTwoGroups();
  owner_->whenTapped = [&] {
    list_->ClearGroups();
    list_->Relayout();
  };
  Tap(50, 90);
  EXPECT_EQ(Selected(), ListRow{});
  EXPECT_EQ(list_->contentHeight, 0);
}

TEST_F(GroupedListTest, ATapCountsWhereThePenWentDown) {
  FillTwoGroups();
  shell_.Stroke(list_->Handle(), {{50, 33}, {50, 29}});
  EXPECT_EQ(Selected(), (ListRow{0, 1}));
}

TEST_F(GroupedListTest, ATapCountsFromWhatIsScrolledIn) {
  Columns({300});
  Group(u"A", std::vector<Text>(60, u"row"));
  LayOut();
  list_->ScrollBy(20, 100);
  shell_.Tap(list_->Handle(), {50, 19});
  EXPECT_EQ(Selected(), (ListRow{0, 8}));  // y 119: 100 below the title
}

TEST_F(GroupedListTest, ADragScrolls) {
  Columns({200});
  Group(u"A", std::vector<Text>(60, u"row"));
  LayOut();
  shell_.Stroke(list_->Handle(), {{120, 100}, {120, 90}});
  // 10 × 740 × 1.8 ÷ 245, cut.
  EXPECT_EQ(list_->contentHeight, 740);
  EXPECT_EQ(list_->scrollY, 54);
  EXPECT_TRUE(owner_->tapped.empty());
}

TEST_F(GroupedListTest, TheSelectionSurvivesLayoutAndFolding) {
  FillTwoGroups();
  Tap(50, 90);
  LayOut();
  EXPECT_EQ(Selected(), (ListRow{1, 1}));
  Tap(50, 60);
  EXPECT_FALSE(list_->groups[1].expanded);
  EXPECT_EQ(Selected(), (ListRow{1, 1}));
  Tap(50, 60);
  EXPECT_EQ(At(60, 92), 0xC1C1FFu);
  list_->ToggleAll();
  list_->ToggleAll();
  EXPECT_EQ(Selected(), (ListRow{1, 1}));
}

TEST_F(GroupedListTest, ASelectionThatTheGroupsNoLongerHaveGoesAway) {
  FillTwoGroups();
  Tap(50, 90);
  list_->groups[1].rows.pop_back();
  LayOut();
  EXPECT_EQ(Selected(), ListRow{});
}

TEST_F(GroupedListTest, ClearingTheGroupsClearsTheSelection) {
  FillTwoGroups();
  Tap(50, 90);
  list_->ClearGroups();
  EXPECT_TRUE(list_->groups.empty());
  EXPECT_EQ(Selected(), ListRow{});
  list_->ClearColumns();
  EXPECT_TRUE(list_->columns.empty());
  LayOut();
  EXPECT_EQ(list_->contentWidth, 0);
}

TEST_F(GroupedListTest, ReportsItsClassAndSelection) {
  FillTwoGroups();
  WindowReport report = list_->Describe();
  EXPECT_EQ(report.className, "ctlGroupedList");
  EXPECT_EQ(report.selected, (std::pair{-1, -1}));
  EXPECT_EQ(report.content, (Size{200, 99}));
  EXPECT_EQ(report.scroll, (Point{0, 0}));
  Tap(50, 90);
  EXPECT_EQ(list_->Describe().selected, (std::pair{1, 1}));
}

TEST_F(GroupedListTest, CanBeDestroyedWithASelection) {
  FillTwoGroups();
  Tap(50, 90);
  list_.reset();
  shell_.Settle();
  EXPECT_EQ(owner_->tapped.size(), 1u);
}

}  // namespace
}  // namespace orvane
