// The tree of the contents, without a screen.
#include "help/contents_tree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orvane {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Rows = std::vector<int>;

ContentsEntry Head(int level) {
  ContentsEntry entry;
  entry.level = level;
  return entry;
}
ContentsEntry Leaf(int level) {
  ContentsEntry entry = Head(level);
  entry.isPage = true;
  return entry;
}

//  0 A
//  1   page
//  2   B
//  3     page
//  4     page
//  5   page
//  6 C
//  7   page
//  8 page
std::vector<ContentsEntry> Sample() {
  return {Head(0), Leaf(1), Head(1), Leaf(2), Leaf(2), Leaf(1), Head(0), Leaf(1), Leaf(0)};
}

TEST(ContentsTree, ShowsClosedHeadingsAtFirst) {
  const ContentsTree tree(Sample());
  EXPECT_EQ(tree.Rows(), (Rows{0, 6, 8}));
  EXPECT_EQ(tree.Selected(), 0);
}

TEST(ContentsTree, OpensAndClosesLevelByLevel) {
  ContentsTree tree(Sample());
  tree.Toggle(0);
  EXPECT_EQ(tree.Rows(), (Rows{0, 1, 2, 5, 6, 8}));
  tree.Toggle(2);
  EXPECT_EQ(tree.Rows(), (Rows{0, 1, 2, 3, 4, 5, 6, 8}));
  tree.Toggle(0);
  EXPECT_EQ(tree.Rows(), (Rows{0, 6, 8}));
  tree.Toggle(0);  // what was open below still is
  EXPECT_EQ(tree.Rows(), (Rows{0, 1, 2, 3, 4, 5, 6, 8}));
  tree.CloseAll();
  EXPECT_EQ(tree.Rows(), (Rows{0, 6, 8}));
  tree.Toggle(0);
  EXPECT_EQ(tree.Rows(), (Rows{0, 1, 2, 5, 6, 8}));
}

TEST(ContentsTree, OpensNoPages) {
  ContentsTree tree(Sample());
  tree.Toggle(8);
  tree.Toggle(-1);
  tree.Toggle(9);
  EXPECT_EQ(tree.Rows(), (Rows{0, 6, 8}));
}

TEST(ContentsTree, AHeadingWithoutChildrenChangesNothing) {
  ContentsTree tree({Head(0), Head(0), Leaf(0)});
  tree.Toggle(0);
  EXPECT_EQ(tree.Rows(), (Rows{0, 1, 2}));
  EXPECT_TRUE(tree.IsOpen(0));
  tree.Toggle(1);
  EXPECT_EQ(tree.Rows(), (Rows{0, 1, 2}));
}

TEST(ContentsTree, KnowsParents) {
  const ContentsTree tree(Sample());
  const int parents[] = {-1, 0, 0, 2, 2, 0, -1, 6, -1};
  for (int entry = 0; entry < tree.Count(); ++entry) EXPECT_EQ(tree.Parent(entry), parents[entry]) << entry;
}

TEST(ContentsTree, OpensWhatIsAboveTheSelected) {
  ContentsTree tree(Sample());
  tree.Select(4);
  EXPECT_EQ(tree.Selected(), 4);
  EXPECT_EQ(tree.Rows(), (Rows{0, 1, 2, 3, 4, 5, 6, 8}));
  tree.Select(-1);
  tree.Select(9);
  EXPECT_EQ(tree.Selected(), 4);
}

TEST(ContentsTree, ClosingAboveTheSelectedSelectsTheHeading) {
  ContentsTree tree(Sample());
  tree.Select(4);
  tree.Toggle(6);
  EXPECT_EQ(tree.Selected(), 4);  // beside it, not above
  tree.Toggle(0);
  EXPECT_EQ(tree.Selected(), 0);
}

TEST(ContentsTree, UpAndDownSkipWhatIsHidden) {
  ContentsTree tree(Sample());
  EXPECT_FALSE(tree.Up());
  EXPECT_TRUE(tree.Down());
  EXPECT_EQ(tree.Selected(), 6);
  EXPECT_TRUE(tree.Down());
  EXPECT_EQ(tree.Selected(), 8);
  EXPECT_FALSE(tree.Down());
  EXPECT_EQ(tree.Selected(), 8);
  tree.Toggle(6);
  EXPECT_TRUE(tree.Up());
  EXPECT_EQ(tree.Selected(), 7);
}

TEST(ContentsTree, LeftClosesThenClimbs) {
  ContentsTree tree(Sample());
  tree.Select(3);
  EXPECT_TRUE(tree.Left());
  EXPECT_EQ(tree.Selected(), 2);
  EXPECT_TRUE(tree.IsOpen(2));
  EXPECT_TRUE(tree.Left());
  EXPECT_EQ(tree.Selected(), 2);
  EXPECT_FALSE(tree.IsOpen(2));
  EXPECT_TRUE(tree.Left());
  EXPECT_EQ(tree.Selected(), 0);
  EXPECT_TRUE(tree.Left());
  EXPECT_FALSE(tree.IsOpen(0));
  EXPECT_FALSE(tree.Left());
}

TEST(ContentsTree, RightWalksThroughTheFile) {
  ContentsTree tree(Sample());
  for (int entry = 1; entry < tree.Count(); ++entry) {
    EXPECT_TRUE(tree.Right());
    EXPECT_EQ(tree.Selected(), entry);
    EXPECT_GE(tree.RowOf(entry), 0);
  }
  EXPECT_FALSE(tree.Right());
  EXPECT_EQ(tree.Selected(), 8);
}

TEST(ContentsTree, MayBeEmpty) {
  ContentsTree tree({});
  EXPECT_EQ(tree.Selected(), -1);
  EXPECT_THAT(tree.Rows(), IsEmpty());
  EXPECT_FALSE(tree.Up() || tree.Down() || tree.Left() || tree.Right() || tree.MoveBy(5));
  tree.Select(0);
  tree.Toggle(0);
  tree.CloseAll();
  EXPECT_EQ(tree.Selected(), -1);
}

TEST(ContentsTree, NegativeLevelsCountAsNone) {
  ContentsTree tree({Head(-5), Leaf(-1), Head(-32768), Leaf(1)});
  EXPECT_EQ(tree.Rows(), (Rows{0, 1, 2}));
  EXPECT_EQ(tree.Level(0), 0);
  EXPECT_EQ(tree.Level(2), 0);
  EXPECT_EQ(tree.Parent(1), -1);
  tree.Select(3);
  EXPECT_EQ(tree.Rows(), (Rows{0, 1, 2, 3}));
}

TEST(ContentsTree, LevelsMaySkip) {
  // The heading hides everything deeper, however much deeper it is; a page may stand above headings.
  ContentsTree tree({Head(1), Leaf(7), Leaf(3), Leaf(1), Leaf(0), Head(2), Leaf(3)});
  EXPECT_EQ(tree.Rows(), (Rows{0, 3, 4, 5}));
  tree.Select(6);
  EXPECT_EQ(tree.Rows(), (Rows{0, 3, 4, 5, 6}));
  EXPECT_EQ(tree.Parent(5), 4);
  EXPECT_EQ(tree.Parent(2), 0);
}

TEST(ContentsTree, StandsAsManyEntriesAsAFileCanAnnounce) {
  std::vector<ContentsEntry> entries;
  for (int i = 0; i < 32767; ++i) entries.push_back(Head(i));
  ContentsTree tree(entries);
  EXPECT_THAT(tree.Rows(), ElementsAre(0));
  tree.Select(32766);
  EXPECT_EQ(tree.Rows().size(), 32767u);
  tree.Toggle(0);
  EXPECT_EQ(tree.Selected(), 0);
}

}  // namespace
}  // namespace orvane
