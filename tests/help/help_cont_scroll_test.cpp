// The contents where they are larger than the screen.
#include "tests/help/help_contents_bed.h"

namespace orvane::testing {
namespace {

using Rows = std::vector<int>;

// Thirteen rows and a part of the fourteenth fit.
class LongContents : public HelpContentsTest {
 protected:
  // Pages 0 to 99, a row each.
  LongContents() {
    std::vector<BuiltEntry> entries;
    std::vector<int> ids;
    for (int id = 0; id < 100; ++id) {
      entries.push_back(PageAt(0, id));
      ids.push_back(id);
    }
    Save(entries, Pages(ids));
  }
};

TEST_F(LongContents, BeginsAtTheSelectedRow) {
  // The scroll position at which a row shows when the tree opens at it: its bottom at the bottom of the view.
  const std::pair<int, int> cases[] = {
      {0, 0}, {12, 0}, {13, 2 + 18 * 14 - 245}, {50, 2 + 18 * 51 - 245}, {99, 2 + 18 * 100 - 245}};
  for (const auto& [id, scroll] : cases) {
    ShowContentsAt(id);
    EXPECT_EQ(Tree().scrollY, scroll) << id;
    EXPECT_TRUE(Press(8511));
  }
}

TEST_F(LongContents, FollowsTheSelection) {
  ShowContentsAt(12);
  Key(VK_DOWN);
  EXPECT_EQ(Tree().scrollY, 2 + 18 * 14 - 245);
  Key(VK_DOWN);
  EXPECT_EQ(Tree().scrollY, 2 + 18 * 15 - 245);
  for (int i = 0; i < 12; ++i) Key(VK_UP);
  EXPECT_EQ(Selected(), 2);
  EXPECT_EQ(Tree().scrollY, 2 + 18 * 15 - 245);  // row 2 shows whole
  Key(VK_UP);
  EXPECT_EQ(Tree().scrollY, 2 + 18 * 1);
  Key(VK_UP);
  EXPECT_EQ(Tree().scrollY, 0);  // exactly 2 would hide nothing but the margin
}

TEST_F(LongContents, TurnsPagesOfRows) {
  ShowContentsAt(0);
  Key(VK_NEXT);
  EXPECT_EQ(Selected(), 12);
  Key(VK_NEXT);
  EXPECT_EQ(Selected(), 24);
  Key(VK_PRIOR);
  EXPECT_EQ(Selected(), 12);
  Key(VK_END);
  EXPECT_EQ(Selected(), 99);
  EXPECT_EQ(Tree().scrollY, 2 + 18 * 100 - 245);
  Key(VK_HOME);
  EXPECT_EQ(Tree().scrollY, 0);
}

TEST_F(LongContents, TakesTapsWhereItIsScrolled) {
  ShowContentsAt(50);
  Tap({60, 2 + 18 * 45 + 5});
  EXPECT_EQ(Selected(), 45);
  EXPECT_TRUE(Press(8510));
  EXPECT_EQ(CurrentId(), 45);
}

TEST_F(LongContents, ScrollsByWheel) {
  ShowContentsAt(0);
  shell_.GetDevice().Wheel({120, 150}, -1, false);
  EXPECT_EQ(Tree().scrollY, 54);
  EXPECT_EQ(Selected(), 0);
}

TEST_F(HelpContentsTest, ClosingAHeadingLeavesNoGapBelow) {
  std::vector<BuiltEntry> entries = {Heading(0, u"H")};
  std::vector<int> ids;
  for (int id = 0; id < 60; ++id) {
    entries.push_back(PageAt(1, id));
    ids.push_back(id);
  }
  Save(entries, Pages(ids));
  ShowContentsAt(59);
  EXPECT_GT(Tree().scrollY, 500);
  Key(VK_LEFT);
  Key(VK_LEFT);
  EXPECT_EQ(VisibleRows(), (Rows{0}));
  EXPECT_EQ(Tree().scrollY, 0);
}

TEST_F(HelpContentsTest, ClosingAHeadingLeavesNoGapAtTheRight) {
  Save({Heading(0, u"H"), Heading(30, u"Deep"), PageAt(31, 1)}, Pages({1}));
  ShowContentsAt(1);
  EXPECT_GT(Tree().contentWidth, 500);
  Tree().ScrollBy(200, 0);
  ASSERT_EQ(Tree().scrollX, 200);
  Key(VK_LEFT);
  Key(VK_LEFT);
  Key(VK_LEFT);
  Key(VK_LEFT);
  EXPECT_EQ(VisibleRows(), (Rows{0}));
  EXPECT_EQ(Tree().scrollX, 0);
}

TEST_F(HelpContentsTest, StandsADamagedTree) {
  DatWriter file;
  file.Raw("\xDE\xEB\xFF").Byte(0).Short(4);
  file.Bool(false).Short(-7).Counted(u"\u0001").Bool(true).Short(32767).Short(1);
  file.Bool(false).Short(3).Counted(Text(2000, u'W')).Bool(true).Short(-1).Short(2);
  file.Short(1).Short(1).Long(0).Counted(u"One");
  file.Save(Path());
  Show(1);
  Dismiss();
  EXPECT_TRUE(Press(8922));
  EXPECT_EQ(Selected(), 1);
  for (const int key : {VK_RIGHT, VK_RIGHT, VK_RIGHT, VK_LEFT, VK_UP, VK_HOME, VK_RETURN, VK_END}) Key(key);
  EXPECT_GE(Selected(), 0);
  EXPECT_EQ(FrontTool(), "helpCont");
}

}  // namespace
}  // namespace orvane::testing
