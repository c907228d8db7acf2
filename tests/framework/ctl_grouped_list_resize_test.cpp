// Columns of the grouped list dragged with the action key, and what is seen meanwhile.
#include "tests/framework/list_test_bed.h"

namespace orvane {
namespace {

using testing::GroupedListTest;

constexpr std::uint32_t kBeyond = 0xE8E8E8;
constexpr std::uint32_t kGuide = 0x03429C;

class GroupedListResizeTest : public GroupedListTest {
 protected:
  // With the action key held: the pen down at a content point and moved to others.
  void Begin(Point at, bool action = true) {
    GetDevice().HoldActionKey(action);
    GetDevice().PenDown(shell_.OnScreen(list_->Handle(), at));
  }
  void Move(Point to) {
    GetDevice().PenMove(shell_.OnScreen(list_->Handle(), to));
    shell_.Settle();
  }
  void End(Point at) {
    GetDevice().PenUp(shell_.OnScreen(list_->Handle(), at));
    shell_.Settle();
  }
};

TEST_F(GroupedListResizeTest, DraggingAnEdgeWithTheActionKeySetsTheWidth) {
  FillTwoGroups();
  list_->columns[1].autoSize = true;
  Begin({100, 25});
  Move({110, 25});
  EXPECT_EQ(list_->ResizingColumn(), 0);
  EXPECT_EQ(list_->columns[0].width, 110);
  EXPECT_EQ(list_->contentWidth, 210);
  EXPECT_FALSE(list_->privateBuffer);
  EXPECT_EQ(list_->bufferWidth, 240);  // the shared one, as much of it as shows
  EXPECT_EQ(list_->bufferHeight, 245);
  EXPECT_EQ(GetDevice().Capture(), list_->Handle());
  Move({80, 200});
  EXPECT_EQ(list_->columns[0].width, 80);
  EXPECT_EQ(list_->scrollX, 0);
  EXPECT_EQ(list_->scrollY, 0);
  End({80, 200});
  EXPECT_EQ(list_->ResizingColumn(), -1);
  EXPECT_TRUE(list_->privateBuffer);
  EXPECT_EQ(GetDevice().Capture(), kNoWindow);
  EXPECT_EQ(list_->columns[0].width, 80);
  // The automatic columns are measured again at the end.
  EXPECT_EQ(list_->columns[1].width, 6);
  EXPECT_EQ(list_->bufferWidth, 80 + 6 + 40);
  EXPECT_TRUE(owner_->tapped.empty());
}

TEST_F(GroupedListResizeTest, DraggingAnAutomaticColumnMakesItFixed) {
  FillTwoGroups();
  list_->columns[0].autoSize = true;
  LayOut();
  const int edge = list_->columns[0].width;
  Begin({edge, 25});
  Move({90, 25});
  EXPECT_FALSE(list_->columns[0].autoSize);
  End({90, 25});
  EXPECT_EQ(list_->columns[0].width, 90);
}

TEST_F(GroupedListResizeTest, WidthsCountFromTheVisibleColumnsBefore) {
  FillTwoGroups();
  list_->columns[0].visible = false;
  LayOut();
  Begin({100, 25});  // the edge of the third column: 60 + 40
  Move({125, 25});
  EXPECT_EQ(list_->ResizingColumn(), 2);
  EXPECT_EQ(list_->columns[2].width, 65);
  End({125, 25});
}

TEST_F(GroupedListResizeTest, WidthsCountFromTheContentWhenScrolled) {
  Columns({200, 200});
  Group(u"", std::vector<Text>(60, u"row"));
  LayOut();
  list_->ScrollBy(30, 40);
  Begin({170, 25});
  Move({180, 25});
  EXPECT_EQ(list_->columns[0].width, 210);
  End({180, 25});
  EXPECT_EQ(list_->scrollX, 30);
}

TEST_F(GroupedListResizeTest, AColumnIsNotDraggedBelowTheMinimum) {
  FillTwoGroups();
  Begin({160, 25});
  Move({110, 25});
  EXPECT_EQ(list_->columns[1].width, 15);
  Move({20, 25});
  EXPECT_EQ(list_->columns[1].width, 15);
  End({20, 25});
  EXPECT_EQ(list_->columns[1].width, 15);
  EXPECT_EQ(list_->contentWidth, 155);
}

TEST_F(GroupedListResizeTest, WithoutTheActionKeyADragScrolls) {
  FillTwoGroups();
  list_->Move(0, 23, 120, 50);
  Begin({100, 25}, false);
  Move({80, 25});
  EXPECT_EQ(list_->ResizingColumn(), -1);
  EXPECT_EQ(list_->columns[0].width, 100);
  EXPECT_GT(list_->scrollX, 0);
  End({80, 25});
}

TEST_F(GroupedListResizeTest, TheActionKeyIsAskedForWhenTheDragBegins) {
  FillTwoGroups();
  Begin({100, 25}, false);
  Move({103, 25});  // not yet a drag
  GetDevice().HoldActionKey(true);
  Move({106, 25});
  EXPECT_EQ(list_->ResizingColumn(), 0);
  GetDevice().HoldActionKey(false);
  Move({120, 25});
  EXPECT_EQ(list_->columns[0].width, 120);
  End({120, 25});
}

TEST_F(GroupedListResizeTest, AwayFromAnEdgeTheActionKeyChangesNothing) {
  FillTwoGroups();
  list_->Move(0, 23, 120, 50);
  Begin({50, 25});
  Move({30, 25});
  EXPECT_EQ(list_->ResizingColumn(), -1);
  EXPECT_GT(list_->scrollX, 0);
  End({30, 25});
}

// Titles are hit before column edges.
TEST_F(GroupedListResizeTest, OnATitleNoColumnCanBeDragged) {
  FillTwoGroups();
  Begin({100, 10});
  Move({120, 10});
  EXPECT_EQ(list_->ResizingColumn(), -1);
  End({120, 10});
  EXPECT_EQ(list_->columns[0].width, 100);
}

TEST_F(GroupedListResizeTest, WithoutVisibleColumnsThereIsNothingToDrag) {
  FillTwoGroups();
  for (ListColumn& column : list_->columns) column.visible = false;
  LayOut();
  Begin({0, 25});
  Move({20, 25});
  EXPECT_EQ(list_->ResizingColumn(), -1);
  End({20, 25});
}

TEST_F(GroupedListResizeTest, ALineAndAnIconFollowThePen) {
  FillTwoGroups();
  Begin({100, 25});
  Move({110, 40});
  for (const int y : {0, 25, 60, 97, 98}) EXPECT_EQ(At(110, y), kGuide) << y;
  EXPECT_EQ(At(110, 99), kBeyond);
  EXPECT_NE(At(109, 25), kGuide);
  EXPECT_NE(At(111, 25), kGuide);
  ASSERT_FALSE(shell_.icons.empty());
  EXPECT_EQ(shell_.icons.back(), (testing::DrawnIcon{{110, 40}, 2}));
  End({110, 40});
  EXPECT_NE(At(110, 25), kGuide);
}

TEST_F(GroupedListResizeTest, TheLineOfTheFourthColumnStandsOnItsLastPixel) {
  Columns({50, 50, 50, 50});
  Group(u"", std::vector<Text>(3, u"x"));
  LayOut();
  Begin({200, 25});
  Move({190, 25});
  EXPECT_EQ(list_->contentWidth, 190);
  EXPECT_EQ(At(189, 25), kGuide);
  EXPECT_EQ(At(190, 25), kBeyond);
  End({190, 25});
}

TEST_F(GroupedListResizeTest, AListHiddenUnderThePenHasEndedItsDrag) {
  FillTwoGroups();
  Begin({100, 25});
  Move({110, 25});
  ASSERT_EQ(list_->ResizingColumn(), 0);
  owner_->Hide();
  EXPECT_EQ(list_->ResizingColumn(), -1);
  EXPECT_TRUE(list_->privateBuffer);
  End({120, 25});
  owner_->Show();
  GetDevice().SetFocus(list_->Handle());
  shell_.Settle();
  EXPECT_NE(At(110, 25), kGuide);
  EXPECT_EQ(list_->columns[0].width, 110);
  // A stroke that begins on the owner, above the list, is none of the list's.
  GetDevice().PenDown(shell_.OnScreen(owner_->Handle(), {100, 5}));
  Move({140, 25});
  End({140, 25});
  EXPECT_EQ(list_->columns[0].width, 110);
  EXPECT_EQ(list_->scrollX, 0);
}

// The owner may take the columns away under the pen.
TEST_F(GroupedListResizeTest, AColumnThatIsGoneIsNotDragged) {
  FillTwoGroups();
  Begin({160, 25});
  Move({170, 25});
  ASSERT_EQ(list_->ResizingColumn(), 1);
  std::vector<ListColumn>().swap(list_->columns);
  LayOut();
  Move({180, 25});
  EXPECT_TRUE(list_->columns.empty());
  End({180, 25});
  EXPECT_EQ(list_->ResizingColumn(), -1);
  EXPECT_TRUE(list_->privateBuffer);
  EXPECT_EQ(list_->contentWidth, 0);
}

TEST_F(GroupedListResizeTest, TheLineStaysWithThePenWhenTheColumnCannot) {
  FillTwoGroups();
  Begin({160, 25});
  Move({60, 25});
  EXPECT_EQ(list_->columns[1].width, 15);
  EXPECT_EQ(At(60, 37), kGuide);
  End({60, 25});
}

}  // namespace
}  // namespace orvane
