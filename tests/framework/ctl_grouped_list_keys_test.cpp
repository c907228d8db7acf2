// The keyboard's cursor, and the plain arrows beside it.
#include "tests/framework/list_test_bed.h"

namespace orvane {
namespace {

using testing::GroupedListTest;

constexpr Modifiers kControl{.shift = false, .control = true, .alt = false};
constexpr std::uint32_t kFrame = 0x03429C;

TEST_F(GroupedListTest, TheCursorWalksOverTitlesAndRows) {
  FillTwoGroups();
  EXPECT_EQ(list_->Cursor(), ListRow{});
  const ListRow expected[] = {{0, -1}, {0, 0}, {0, 1}, {0, 2}, {1, -1}, {1, 0}, {1, 1}, {1, 1}};
  for (const ListRow& stop : expected) {
    Press(VK_DOWN, kControl);
    EXPECT_EQ(list_->Cursor(), stop);
  }
  for (const ListRow& stop : {ListRow{1, 0}, {1, -1}, {0, 2}}) {
    Press(VK_UP, kControl);
    EXPECT_EQ(list_->Cursor(), stop);
  }
  for (int i = 0; i < 9; ++i) Press(VK_UP, kControl);
  EXPECT_EQ(list_->Cursor(), (ListRow{0, -1}));
  // It selects nothing by itself.
  EXPECT_EQ(Selected(), ListRow{});
  EXPECT_TRUE(owner_->tapped.empty());
}

TEST_F(GroupedListTest, UpwardsTheCursorBeginsAtTheLowestThatShows) {
  FillTwoGroups();
  Press(VK_UP, kControl);
  EXPECT_EQ(list_->Cursor(), (ListRow{1, 1}));
}

TEST_F(GroupedListTest, TheCursorBeginsWithWhatShowsWhole) {
  Columns({100});
  Group(u"A", std::vector<Text>(60, u"row"));
  LayOut();
  list_->ScrollBy(0, 100);  // row 6 begins at 91, row 7 at 103
  Press(VK_DOWN, kControl);
  EXPECT_EQ(list_->Cursor(), (ListRow{0, 7}));
  EXPECT_EQ(list_->scrollY, 100);
}

TEST_F(GroupedListTest, TheCursorBeginsBesideTheSelectedRow) {
  FillTwoGroups();
  Tap(50, 37);
  Press(VK_DOWN, kControl);
  EXPECT_EQ(list_->Cursor(), (ListRow{0, 2}));
  Tap(50, 37);
  EXPECT_EQ(list_->Cursor(), ListRow{});
  Press(VK_UP, kControl);
  EXPECT_EQ(list_->Cursor(), (ListRow{0, 0}));
}

TEST_F(GroupedListTest, TheCursorIsAFrame) {
  FillTwoGroups();
  Press(VK_DOWN, kControl);
  Press(VK_DOWN, kControl);
  for (const auto& [x, y] : {std::pair{0, 19}, {60, 19}, {199, 19}, {60, 30}, {0, 25}, {199, 25}}) {
    EXPECT_EQ(At(x, y), kFrame) << x << ", " << y;
  }
  EXPECT_EQ(At(60, 25), 0xFFFFFFu);
  Press(VK_DOWN, kControl);
  EXPECT_EQ(At(60, 19), 0xFFFFFFu);
  EXPECT_EQ(At(60, 31), kFrame);
  shell_.Tap(list_->Handle(), {50, 150});  // the pen takes it away
  shell_.Settle();
  EXPECT_EQ(At(60, 31), 0xD8D8D8u);
}

TEST_F(GroupedListTest, EnterOpensTheRow) {
  FillTwoGroups();
  Press(VK_RETURN);
  EXPECT_TRUE(owner_->tapped.empty());
  for (int i = 0; i < 7; ++i) Press(VK_DOWN, kControl);
  Press(VK_RETURN);
  EXPECT_EQ(owner_->tapped, (std::vector<ListRow>{{1, 1}}));
  EXPECT_EQ(Selected(), (ListRow{1, 1}));
  EXPECT_EQ(list_->Cursor(), (ListRow{1, 1}));
}

TEST_F(GroupedListTest, EnterFoldsTheTitleAndTheCursorStays) {
  FillTwoGroups();
  Press(VK_DOWN, kControl);
  Press(VK_RETURN);
  EXPECT_FALSE(list_->groups[0].expanded);
  EXPECT_EQ(list_->Cursor(), (ListRow{0, -1}));
  Press(VK_DOWN, kControl);
  EXPECT_EQ(list_->Cursor(), (ListRow{1, -1}));
  Press(VK_UP, kControl);
  Press(VK_RETURN);
  EXPECT_TRUE(list_->groups[0].expanded);
}

TEST_F(GroupedListTest, ACursorInAFoldedGroupMovesToItsTitle) {
  FillTwoGroups();
  for (int i = 0; i < 3; ++i) Press(VK_DOWN, kControl);
  list_->ToggleAll();
  EXPECT_EQ(list_->Cursor(), (ListRow{0, -1}));
}

TEST_F(GroupedListTest, ACursorOnWhatIsGoneGoesToo) {
  FillTwoGroups();
  Press(VK_UP, kControl);
  list_->groups[1].rows.pop_back();
  LayOut();
  EXPECT_EQ(list_->Cursor(), ListRow{});
  Press(VK_UP, kControl);
  list_->groups.pop_back();
  LayOut();
  EXPECT_EQ(list_->Cursor(), ListRow{});
  Press(VK_UP, kControl);
  list_->ClearGroups();
  EXPECT_EQ(list_->Cursor(), ListRow{});
  LayOut();
  Press(VK_DOWN, kControl);
  EXPECT_EQ(list_->Cursor(), ListRow{});
}

TEST_F(GroupedListTest, TheCursorStaysInView) {
  Columns({100});
  Group(u"A", std::vector<Text>(60, u"row"));
  LayOut();
  for (int i = 0; i < 25; ++i) Press(VK_DOWN, kControl);
  EXPECT_EQ(list_->Cursor(), (ListRow{0, 23}));
  EXPECT_EQ(list_->scrollY, 19 + 24 * 12 - 245);
  for (int i = 0; i < 25; ++i) Press(VK_UP, kControl);
  EXPECT_EQ(list_->scrollY, 0);
}

TEST_F(GroupedListTest, PlainArrowsScroll) {
  Columns({300});
  Group(u"A", std::vector<Text>(60, u"row"));
  LayOut();
  Press(VK_DOWN);
  Press(VK_DOWN);
  Press(VK_RIGHT);
  EXPECT_EQ(list_->scrollY, 20);
  EXPECT_EQ(list_->scrollX, 10);
  Press(VK_UP);
  Press(VK_LEFT);
  EXPECT_EQ(list_->scrollY, 10);
  EXPECT_EQ(list_->scrollX, 0);
  EXPECT_EQ(list_->Cursor(), ListRow{});
}

// A screenful of 245 leaves a row of 12 in view; 60 rows below a title are 740 high.
TEST_F(GroupedListTest, PageKeysScrollByScreenfuls) {
  Columns({900});
  Group(u"A", std::vector<Text>(60, u"row"));
  LayOut();
  const auto after = [this](int key, Modifiers held = {}) {
    Press(key, held);
    return Point{list_->scrollX, list_->scrollY};
  };
  EXPECT_EQ(after(VK_NEXT), (Point{0, 233}));
  EXPECT_EQ(after(VK_NEXT), (Point{0, 466}));
  EXPECT_EQ(after(VK_NEXT), (Point{0, 740 - 245 + 20}));
  EXPECT_EQ(after(VK_PRIOR), (Point{0, 515 - 233}));
  EXPECT_EQ(after(VK_RIGHT, kControl), (Point{228, 282}));
  EXPECT_EQ(after(VK_RIGHT, kControl), (Point{456, 282}));
  EXPECT_EQ(after(VK_LEFT, kControl), (Point{228, 282}));
  EXPECT_EQ(after(VK_END), (Point{228, 515}));
  for (int i = 0; i < 4; ++i) Press(VK_RIGHT, kControl);
  EXPECT_EQ(after(VK_RIGHT, kControl), (Point{900 - 240 + 40, 515}));
  EXPECT_EQ(after(VK_HOME), (Point{0, 0}));
  EXPECT_EQ(list_->Cursor(), ListRow{});
}

TEST_F(GroupedListTest, PageKeysOfAListThatIsAllInViewChangeNothing) {
  FillTwoGroups();
  list_->marginX = list_->marginY = 0;
  for (const int key : {VK_NEXT, VK_END, VK_PRIOR, VK_HOME}) {
    Press(key);
    EXPECT_EQ(list_->scrollY, 0);
  }
  Press(VK_RIGHT, kControl);
  EXPECT_EQ(list_->scrollX, 0);
}

// The extra room beyond the content.
TEST_F(GroupedListTest, ScrollsFortyAndTwentyBeyondTheContent) {
  Columns({300});
  Group(u"A", std::vector<Text>(60, u"row"));
  LayOut();
  list_->ScrollBy(1000, 5000);
  EXPECT_EQ(list_->scrollX, 300 - 240 + 40);
  EXPECT_EQ(list_->scrollY, 740 - 245 + 20);
}

}  // namespace
}  // namespace orvane
