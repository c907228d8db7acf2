// Every line, colour and coordinate of the grouped list's painting.
#include "tests/framework/list_test_bed.h"

namespace orvane {
namespace {

using testing::GroupedListTest;

constexpr std::uint32_t kBlackPixel = 0x000000;
constexpr std::uint32_t kWhitePixel = 0xFFFFFF;
constexpr std::uint32_t kTitleFill = 0xE6F2FF;
constexpr std::uint32_t kOdd = 0xCCFFDE;
constexpr std::uint32_t kLine = 0xD8D8D8;
constexpr std::uint32_t kGrey = 0x808080;
constexpr std::uint32_t kSelected = 0xC1C1FF;
constexpr std::uint32_t kBeyond = 0xE8E8E8;

TEST_F(GroupedListTest, ATitleIsABandBetweenBlackLines) {
  FillTwoGroups();
  for (const int x : {0, 5, 100, 198}) {
    EXPECT_EQ(At(x, 0), kBlackPixel) << x;
    EXPECT_EQ(At(x, 1), kTitleFill) << x;
    EXPECT_EQ(At(x, 17), kTitleFill) << x;
    EXPECT_EQ(At(x, 18), kBlackPixel) << x;
  }
  for (int y = 0; y < 19; ++y) EXPECT_EQ(At(199, y), kBlackPixel) << y;
  EXPECT_EQ(At(200, 5), kBeyond);
  EXPECT_EQ(At(100, 55), kBlackPixel);
  EXPECT_EQ(At(100, 73), kBlackPixel);
}

TEST_F(GroupedListTest, TheTitleIsBoldAtItsPlace) {
  FillTwoGroups();
  const auto runs = GetDevice().VisibleRuns();
  const auto title =
      std::find_if(runs.begin(), runs.end(), [](const ScreenRun& run) { return run.run.text == u"A"; });
  ASSERT_NE(title, runs.end());
  EXPECT_TRUE(title->run.font.bold);
  EXPECT_EQ(title->run.rect.left, 21);
  EXPECT_EQ(title->run.rect.top, 49 + 1);
  EXPECT_EQ(title->run.font.pixels, 13);
  EXPECT_EQ(title->run.colour, kBlack);
}

TEST_F(GroupedListTest, TheFoldBoxShowsAMinusAndFoldedAPlus) {
  FillTwoGroups();
  // The middle is 9: the box reaches from 5 to 14 and from 8 to 17, its sign from 10 to 15.
  const auto box = [&] {
    for (int i = 0; i < 9; ++i) {
      EXPECT_EQ(At(8 + i, 5), kBlackPixel) << i;
      EXPECT_EQ(At(8 + i, 13), kBlackPixel) << i;
      EXPECT_EQ(At(8, 5 + i), kBlackPixel) << i;
      EXPECT_EQ(At(16, 5 + i), kBlackPixel) << i;
    }
    for (int x = 10; x < 15; ++x) EXPECT_EQ(At(x, 9), kGrey) << x;
    EXPECT_EQ(At(9, 9), kWhitePixel);
    EXPECT_EQ(At(15, 9), kWhitePixel);
    EXPECT_EQ(At(7, 9), kTitleFill);
    EXPECT_EQ(At(17, 9), kTitleFill);
    EXPECT_EQ(At(12, 4), kTitleFill);
    EXPECT_EQ(At(12, 14), kTitleFill);
  };
  box();
  EXPECT_EQ(At(12, 7), kWhitePixel);
  Tap(50, 10);
  box();
  for (int y = 7; y < 12; ++y) EXPECT_EQ(At(12, y), kGrey) << y;
  EXPECT_EQ(At(12, 6), kWhitePixel);
  EXPECT_EQ(At(12, 12), kWhitePixel);
}

TEST_F(GroupedListTest, RowsAlternateWithinTheirGroup) {
  FillTwoGroups();
  EXPECT_EQ(At(60, 25), kWhitePixel);
  EXPECT_EQ(At(60, 37), kOdd);
  EXPECT_EQ(At(60, 49), kWhitePixel);
  EXPECT_EQ(At(60, 80), kWhitePixel);  // the next group begins again
  EXPECT_EQ(At(60, 92), kOdd);
}

TEST_F(GroupedListTest, TheSelectedRowHasAColourOfItsOwn) {
  FillTwoGroups();
  Tap(50, 37);
  EXPECT_EQ(At(60, 37), kSelected);
  EXPECT_EQ(At(60, 32), kSelected);
  EXPECT_EQ(At(60, 42), kSelected);
  EXPECT_EQ(At(60, 30), kWhitePixel);
  EXPECT_EQ(At(60, 44), kWhitePixel);
  EXPECT_EQ(At(60, 92), kOdd);  // the same row of the other group
}

TEST_F(GroupedListTest, CellsStandBetweenGreyLines) {
  FillTwoGroups();
  for (const int x : {0, 100, 160, 199}) {
    EXPECT_EQ(At(x, 25), kLine) << x;
    EXPECT_EQ(At(x, 92), kLine) << x;
  }
  for (const int x : {1, 99, 101, 159, 161, 198}) EXPECT_EQ(At(x, 25), kWhitePixel) << x;
  EXPECT_EQ(At(200, 25), kBeyond);
}

TEST_F(GroupedListTest, ALineStandsAboveEveryRowButTheFirstAndBelowTheLast) {
  FillTwoGroups();
  EXPECT_EQ(At(60, 19), kWhitePixel);  // the title's own line is right above
  EXPECT_EQ(At(60, 31), kLine);
  EXPECT_EQ(At(60, 43), kLine);
  EXPECT_EQ(At(60, 55), kBlackPixel);  // the next title's line
  EXPECT_EQ(At(60, 74), kWhitePixel);
  EXPECT_EQ(At(60, 86), kLine);
  EXPECT_EQ(At(60, 98), kLine);
  EXPECT_EQ(At(60, 99), kBeyond);
  // Also where that line is all that is drawn.
  list_->RedrawRect(0, 98, 200, 99);
  shell_.Settle();
  EXPECT_EQ(At(60, 98), kLine);
}

TEST_F(GroupedListTest, ALinePartsGroupsWithoutTitles) {
  Columns({100});
  Group(u"", {u"x"});
  Group(u"", {u"y"});
  LayOut();
  EXPECT_EQ(At(60, 0), kWhitePixel);
  EXPECT_EQ(At(60, 12), kLine);
  EXPECT_EQ(At(60, 13), kWhitePixel);
  EXPECT_EQ(At(60, 24), kLine);
  list_->selectedGroup = 1;
  list_->selectedRow = 0;
  list_->RedrawRow(1, 0);
  shell_.Settle();
  EXPECT_EQ(At(60, 12), kLine);
  EXPECT_EQ(At(60, 13), kSelected);
}

TEST_F(GroupedListTest, TextsStandAtTheMargin) {
  Columns({100, 60});
  list_->groups.push_back({u"", true, false, {{u"left", u"right"}}});
  LayOut();
  const auto runs = GetDevice().VisibleRuns();
  int found = 0;
  for (const ScreenRun& run : runs) {
    if (run.run.text != u"left" && run.run.text != u"right") continue;
    ++found;
    EXPECT_EQ(run.run.rect.left, run.run.text == u"left" ? 3 : 103);
    EXPECT_EQ(run.run.rect.top, 49 - 1);  // a pixel up, so that no letter hangs into the next row
    EXPECT_EQ(run.run.font.pixels, 10);
    EXPECT_FALSE(run.run.font.bold);
  }
  EXPECT_EQ(found, 2);
}

TEST_F(GroupedListTest, PlainColumnsCutTheirTextsAndOthersEndInDots) {
  Columns({40, 40});
  list_->columns[0].plain = true;
  const Text longer = u"much too long for it";
  list_->groups.push_back({u"", true, false, {{longer, longer}}});
  LayOut();
  const auto runs = GetDevice().VisibleRuns();
  std::vector<Text> texts;
  for (const ScreenRun& run : runs) {
    if (run.handle != list_->Handle()) continue;
    texts.push_back(run.run.text);
    for (const Rect& shown : run.run.shown) {
      EXPECT_GE(shown.left, run.run.text == longer ? 3 : 43);
      EXPECT_LE(shown.right, run.run.text == longer ? 40 : 80);
    }
  }
  ASSERT_EQ(texts.size(), 3u);
  EXPECT_EQ(texts[0], longer);
  EXPECT_EQ(texts[1], longer.substr(0, texts[1].size()));
  EXPECT_LT(texts[1].size(), longer.size());
  EXPECT_EQ(texts[2], u"...");
}

TEST_F(GroupedListTest, ATextThatFitsItsCellHasNoDots) {
  Columns({WidthOf(u"fits") + 3});
  Group(u"", {u"fits"});
  LayOut();
  EXPECT_EQ(Shown(), std::vector<std::string>{"fits"});
}

TEST_F(GroupedListTest, HiddenColumnsAreNotDrawn) {
  Columns({100, 60, 40});
  list_->groups.push_back({u"", true, false, {{u"one", u"two", u"three"}}});
  list_->columns[1].visible = false;
  LayOut();
  EXPECT_EQ(Shown(), (std::vector<std::string>{"one", "three"}));
  EXPECT_EQ(At(100, 6), kLine);
  EXPECT_EQ(At(139, 6), kLine);
  EXPECT_EQ(At(140, 6), kBeyond);
}

TEST_F(GroupedListTest, ATitleLongerThanTheListIsCut) {
  Columns({60});
  Group(Text(100, u'W'), {u"x"});
  LayOut();
  for (const ScreenRun& run : GetDevice().VisibleRuns()) {
    if (run.handle != list_->Handle()) continue;
    for (const Rect& shown : run.run.shown) EXPECT_LE(shown.right, 60);
  }
  EXPECT_EQ(At(59, 9), kBlackPixel);
}

TEST_F(GroupedListTest, TitlesHonourStyleCodes) {
  Columns({200});
  Group(u"CO\x0001`2\x0001 gas", {u"x"});
  LayOut();
  EXPECT_EQ(Shown(), (std::vector<std::string>{"CO", "2", "gas", "x"}));
}

TEST_F(GroupedListTest, ScrollingShowsWhatPaintingEverythingWould) {
  Columns({150, 150});
  for (int g = 0; g < 20; ++g) {
    Group(u"Group", std::vector<Text>(10, u"some text"));
    if (g % 3 == 0) list_->groups.back().hasTitle = false;
  }
  LayOut();
  for (const int step : {7, 90, 300, 900, -411, 250, -1000, 2000}) {
    list_->ScrollBy(step / 10, step);
    shell_.Settle();
    const auto seen = shell_.GetHost().Pixels();
    GetDevice().RepaintEverything();
    list_->Redraw();
    shell_.Settle();
    EXPECT_EQ(seen, shell_.GetHost().Pixels()) << step;
  }
}

TEST_F(GroupedListTest, ARowDrawnAnewLooksLikeTheWholeListDrawnAnew) {
  FillTwoGroups();
  for (const auto& [x, y] : {std::pair{50, 25}, {50, 49}, {50, 80}, {50, 92}, {50, 37}}) {
    Tap(x, y);
    const auto seen = shell_.GetHost().Pixels();
    list_->Redraw();
    shell_.Settle();
    EXPECT_EQ(seen, shell_.GetHost().Pixels()) << y;
  }
}

}  // namespace
}  // namespace orvane
