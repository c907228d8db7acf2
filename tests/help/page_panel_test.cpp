// Where the texts and links of a page stand, and what the pen and the keys do there.
#include <map>

#include "tests/help/help_bed.h"

namespace orvane::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int kLine = 16;  // "Tahoma" 10: 13 pixels above the baseline and 3 below
constexpr int kTop = 23;   // the panel begins below the title strip
constexpr int kClient = 245;

class HelpPageTest : public HelpTest {
 protected:
  void ShowPage(const std::vector<Text>& paragraphs, const std::vector<int>& links) {
    Save({}, {{1, u"One", paragraphs, links, 10000, 10000},
              {2, u"Two", {u"Second."}, {1}, 10000, 10000},
              {3, u"Three \u0001!bold", {u"Third."}, {}, 10000, 10000}});
    Show(1);
  }
  // A page of many screens.
  void ShowLongPage() { ShowPage(std::vector<Text>(60, u"Line"), {2}); }
  const HelpLayout& Layout() { return Page().Layout(); }
  TextRun RunOf(TextView text) {
    for (const TextRun& run : Runs(Page().Handle())) {
      if (run.text == text) return run;
    }
    ADD_FAILURE() << "no run " << ToUtf8(text);
    return {};
  }
  // The height of the whole content, the strip's included.
  int ContentHeight() { return Page().contentHeight + kTop; }
};

TEST_F(HelpPageTest, IsAsHighAsItsParagraphs) {
  ShowPage({u"One line"}, {});
  EXPECT_EQ(ContentHeight(), 23 + 5 + (kLine + 10) - 5);
  EXPECT_EQ(Page().contentWidth, 240);
}

TEST_F(HelpPageTest, AddsUpSeveralParagraphs) {
  ShowPage({u"One line", u"Two\nlines", u""}, {});
  EXPECT_EQ(ContentHeight(), 23 + 5 + (kLine + 10) + (2 * kLine + 10) + (kLine + 10) - 5);
}

TEST_F(HelpPageTest, AddsItsLinksAndAMargin) {
  ShowPage({u"One line"}, {2, 3});
  EXPECT_EQ(ContentHeight(), 23 + 5 + (kLine + 10) + 2 * kLine + 10);
}

TEST_F(HelpPageTest, MayHoldLinksAlone) {
  ShowPage({}, {2});
  EXPECT_EQ(ContentHeight(), 23 + 5 + kLine + 10);
  EXPECT_EQ(Layout().links[0].rect.top, 5);
}

TEST_F(HelpPageTest, MayBeEmpty) {
  ShowPage({}, {});
  EXPECT_EQ(ContentHeight(), 23 + 5 - 5);
  EXPECT_THAT(Runs(Page().Handle()), IsEmpty());
  EXPECT_EQ(shell_.Pixel({100, 200}), 0xE6F2FFu);  // the page's colour all the way down
  TapPanel(Page(), {10, 10});
  Key(VK_END);
  EXPECT_EQ(Page().scrollY, 0);
}

TEST_F(HelpPageTest, StandsBelowTheStripTenPixelsApart) {
  ShowPage({u"First", u"Two\nlines", u"Third"}, {});
  EXPECT_THAT(Layout().paragraphTops,
              ElementsAre(28 - kTop, 28 + kLine + 10 - kTop, 28 + 3 * kLine + 20 - kTop));
  const std::vector<TextRun> runs = Runs(Page().Handle());
  ASSERT_EQ(runs.size(), 4u);
  const int tops[] = {28, 28 + 26, 28 + 26 + kLine, 28 + 26 + 42};
  for (std::size_t i = 0; i < runs.size(); ++i) {
    EXPECT_EQ(runs[i].rect.TopLeft(), (Point{8, 26 + tops[i]})) << i;
    EXPECT_EQ(runs[i].font.pixels, 13);
    EXPECT_EQ(runs[i].colour, kBlack);
  }
}

TEST_F(HelpPageTest, WrapsAtItsMargins) {
  ShowPage({Text(20, u'W') + u" " + Text(5, u'W') + u" a few more words that need another line of the page"},
           {});
  std::map<int, int> lefts;  // of each line, by its top
  for (const TextRun& run : Runs(Page().Handle())) {
    lefts.try_emplace(run.rect.top, run.rect.left);
    // A blank may hang over the margin; a word may not.
    const int hanging = run.text.back() == u' ' ? 4 : 0;
    EXPECT_LE(run.rect.right, 232 + hanging) << ToUtf8(run.text);
  }
  EXPECT_EQ(lefts.size(), 3u);
  for (const auto& [top, left] : lefts) EXPECT_EQ(left, 8) << top;
  EXPECT_EQ(ContentHeight(), 23 + static_cast<int>(lefts.size()) * kLine + 10);
}

TEST_F(HelpPageTest, RaisesAndLowersInsideItsLines) {
  ShowPage({u"H\u0001`2\u0001 O and 10\u0001\u00A023"}, {});
  EXPECT_EQ(ContentHeight(), 23 + kLine + 10);
  const TextRun normal = RunOf(u"H");
  const TextRun lowered = RunOf(u"2");
  const TextRun raised = RunOf(u"23");
  EXPECT_EQ(normal.font.pixels, 13);
  EXPECT_EQ(lowered.font.pixels, 9);
  EXPECT_GT(lowered.rect.top, normal.rect.top);
  EXPECT_EQ(lowered.rect.bottom, normal.rect.bottom);
  EXPECT_EQ(raised.font.pixels, 9);
  EXPECT_EQ(raised.rect.top, normal.rect.top);
  EXPECT_LT(raised.rect.bottom, normal.rect.bottom);
}

TEST_F(HelpPageTest, ShowsItsLinksInBlueOneBelowTheOther) {
  ShowPage({u"Text"}, {2, 3});
  const std::vector<TextRun> runs = Runs(Page().Handle());
  ASSERT_EQ(runs.size(), 4u);
  EXPECT_EQ(runs[1].text, u"Two");
  EXPECT_EQ(runs[1].rect.TopLeft(), (Point{8, 26 + 28 + kLine + 10}));
  EXPECT_EQ(runs[1].colour, Rgb(0, 0, 255));
  EXPECT_TRUE(runs[1].font.underline);
  EXPECT_EQ(runs[2].text, u"Three ");
  EXPECT_EQ(runs[3].text, u"bold");  // a title's own style
  EXPECT_TRUE(runs[3].font.bold);
  EXPECT_EQ(runs[3].rect.top, runs[1].rect.top + kLine);
  // And the next text is black again.
  EXPECT_EQ(shell_.Engine().TextColour(), kBlack);
}

TEST_F(HelpPageTest, KeepsTheLineOfALinkThatLeadsNowhere) {
  ShowPage({u"Text"}, {77, 2});
  EXPECT_EQ(ContentHeight(), 23 + 5 + (kLine + 10) + 2 * kLine + 10);
  EXPECT_EQ(Runs(Page().Handle()).size(), 2u);
  EXPECT_EQ(Layout().links[1].rect.top, 5 + kLine + 10 + kLine);
  TapPanel(Page(), {8, 5 + kLine + 10 + 3});
  EXPECT_EQ(CurrentId(), 1);
  EXPECT_EQ(Box(), "");
}

TEST_F(HelpPageTest, OpensALinkThatIsTappedInsideItsText) {
  ShowPage({u"Text"}, {2, 3});
  const Rect link = Layout().links[0].rect;
  EXPECT_EQ(link.left, 8);
  EXPECT_EQ(link.Height(), kLine);
  const std::pair<Point, int> taps[] = {
      {{8, link.top}, 2},
      {{7, link.top}, 1},
      {{link.right - 1, link.bottom - 1}, 2},
      {{link.right, link.top}, 1},
      {{8, link.top - 1}, 1},
      {{8, link.bottom}, 3},  // the next link begins there
      {{100, 8}, 1},
  };
  for (const auto& [point, id] : taps) {
    viewer_->ShowPage(1, false);
    shell_.Settle();
    TapPanel(Page(), point);
    EXPECT_EQ(CurrentId(), id) << point.x << ", " << point.y;
  }
}

TEST_F(HelpPageTest, RecordsWhatALinkLeaves) {
  ShowPage({u"Text"}, {2});
  TapPanel(Page(), Layout().links[0].rect.TopLeft());
  ASSERT_EQ(CurrentId(), 2);
  EXPECT_TRUE(Press(8921));
  EXPECT_EQ(CurrentId(), 1);
}

TEST_F(HelpPageTest, FollowsALinkThatIsScrolledIn) {
  ShowLongPage();
  Key(VK_END);
  EXPECT_EQ(Page().scrollY, Page().contentHeight - kClient);
  TapPanel(Page(), Layout().links[0].rect.TopLeft());
  EXPECT_EQ(CurrentId(), 2);
}

TEST_F(HelpPageTest, BeginsEachPageAtItsTop) {
  ShowLongPage();
  Key(VK_NEXT);
  ASSERT_GT(Page().scrollY, 0);
  Show(1);
  EXPECT_EQ(Page().scrollY, 0);
  Key(VK_END);
  Show(2);
  EXPECT_EQ(Page().scrollY, 0);
  EXPECT_EQ(JoinedText(Page().Handle()), "Second.One");
}

TEST_F(HelpPageTest, ScrollsByKeys) {
  ShowLongPage();
  const int end = Page().contentHeight - kClient;
  const auto press = [this](int key) {
    Key(key);
    return Page().scrollY;
  };
  EXPECT_EQ(press(VK_DOWN), 10);
  EXPECT_EQ(press(VK_DOWN), 20);
  EXPECT_EQ(press(VK_UP), 10);
  EXPECT_EQ(press(VK_NEXT), 10 + kClient - kLine);
  EXPECT_EQ(press(VK_PRIOR), 10);
  EXPECT_EQ(press(VK_PRIOR), 0);
  EXPECT_EQ(press(VK_END), end);
  EXPECT_EQ(press(VK_NEXT), end);
  EXPECT_EQ(press(VK_HOME), 0);
  EXPECT_EQ(press(VK_RIGHT), 0);
  EXPECT_EQ(Page().scrollX, 0);
}

TEST_F(HelpPageTest, GoesBackByBackspace) {
  ShowPage({u"Text"}, {2});
  Key(VK_BACK);
  EXPECT_EQ(CurrentId(), 1);
  Show(2);
  Key(VK_BACK);
  EXPECT_EQ(CurrentId(), 1);
  Key(VK_BACK);
  EXPECT_EQ(CurrentId(), 1);
}

TEST_F(HelpPageTest, ScrollsByPenAndOpensNothing) {
  ShowLongPage();
  shell_.Stroke(Page().Handle(), {{100, 100}, {100, 90}});
  EXPECT_EQ(Page().scrollY, static_cast<int>(10.0 * Page().contentHeight * 1.8 / kClient));
  EXPECT_EQ(CurrentId(), 1);
}

TEST_F(HelpPageTest, KeepsTheStripInItsPlace) {
  ShowLongPage();
  const std::size_t titles = shell_.titles.size();
  Key(VK_END);
  EXPECT_EQ(shell_.titles.size(), titles);  // it is not even painted
  EXPECT_EQ(shell_.GetDevice().WindowRect(Page().Handle()).top, kTop);
}

TEST_F(HelpPageTest, KeepsItsPlaceWhenTheScaleChanges) {
  ShowLongPage();
  Key(VK_NEXT);
  const int at = Page().scrollY;
  shell_.GetDevice().SetScale(2.0);
  shell_.Settle();
  EXPECT_EQ(Page().scrollY, at);
}

TEST_F(HelpPageTest, StandsTextsOfEveryKind) {
  // A code without its flags ends a text; characters 0 and lone surrogates may come from a damaged file.
  ShowPage({u"\u0001", Text(1, u'\0'), Text(1, 0xD800), Text(3000, u'\n'), Text(9000, u'x')}, {1, 1, 1});
  EXPECT_GT(Page().contentHeight, 3000 * kLine);
  Key(VK_END);
  EXPECT_EQ(Page().scrollY, Page().contentHeight - kClient);
}

}  // namespace
}  // namespace orvane::testing
