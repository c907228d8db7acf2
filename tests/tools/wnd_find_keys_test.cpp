// The search by keys, and how it looks.
#include "tests/tools/wnd_find_fixture.h"

namespace orvane {
namespace {

using testing::Calls;
using testing::DrawnTitle;
using testing::kControl;
using testing::kShift;
using testing::WndFindTest;

// --- Keys

TEST_F(WndFindTest, TabGoesToAndFroBetweenBoxAndList) {
  MakeAndShow();
  Key(VK_TAB);
  EXPECT_EQ(GetDevice().Focus(), List().Handle());
  EXPECT_EQ(ListHeight(), 163);  // as by the pen
  EXPECT_FALSE(GetDevice().Panel().Visible());
  Key(VK_TAB);
  EXPECT_EQ(GetDevice().Focus(), Box().Handle());
  Key(VK_TAB, kShift);
  EXPECT_EQ(GetDevice().Focus(), List().Handle());
}

TEST_F(WndFindTest, EnterInTheBoxOpensTheFirstMatch) {
  MakeAndShow();
  Search(u"gold");
  Key(VK_RETURN);
  EXPECT_EQ(navigator_.calls, Calls{"show 78"});
  Search(u"golden");
  Key(VK_RETURN);
  EXPECT_EQ(navigator_.calls, Calls{"show 78"});
  Search(u"");
  Key(VK_RETURN);
  EXPECT_EQ(navigator_.calls, (Calls{"show 78", "show 0"}));
}

TEST_F(WndFindTest, ControlAndArrowsWalkACursorThatEnterOpens) {
  MakeAndShow();
  Key(VK_TAB);
  Key(VK_RETURN);
  EXPECT_EQ(navigator_.calls, Calls{});  // there is no cursor yet
  Key(VK_DOWN, kControl);
  EXPECT_EQ(List().Cursor(), 0);
  Key(VK_DOWN, kControl);
  Key(VK_DOWN, kControl);
  EXPECT_EQ(List().Cursor(), 2);
  Key(VK_UP, kControl);
  EXPECT_EQ(List().Cursor(), 1);
  EXPECT_EQ(List().scrollY, 0);
  EXPECT_EQ(List().Describe().selected, (std::pair{0, 1}));
  Key(VK_RETURN);
  EXPECT_EQ(navigator_.calls, Calls{"show 1"});
}

TEST_F(WndFindTest, TheCursorStopsAtTheEnds) {
  MakeAndShow();
  Search(u"11");
  for (int i = 0; i < 9; ++i) Key(VK_DOWN, kControl);
  EXPECT_EQ(List().Cursor(), 3);
  for (int i = 0; i < 9; ++i) Key(VK_UP, kControl);
  EXPECT_EQ(List().Cursor(), 0);
  Search(u"1000");
  Key(VK_DOWN, kControl);
  EXPECT_EQ(List().Cursor(), FindList::kNoRow);
}

TEST_F(WndFindTest, TheFirstStepUpwardsGoesToTheLastRow) {
  MakeAndShow();
  Key(VK_UP, kControl);
  EXPECT_EQ(List().Cursor(), 111);
  EXPECT_EQ(List().scrollY, 2240 - 73);
  Key(VK_RETURN);
  EXPECT_EQ(navigator_.calls, Calls{"show 111"});
}

TEST_F(WndFindTest, TheCursorStaysInView) {
  MakeAndShow();
  Key(VK_TAB);
  for (int i = 0; i < 8; ++i) Key(VK_DOWN, kControl);
  EXPECT_EQ(List().scrollY, 0);  // eight rows fit into 163 pixels
  Key(VK_DOWN, kControl);
  EXPECT_EQ(List().scrollY, 9 * 20 - 163);
  for (int i = 0; i < 7; ++i) Key(VK_UP, kControl);
  EXPECT_EQ(List().scrollY, 17);  // the second row, 20 to 40, shows
  Key(VK_UP, kControl);
  EXPECT_EQ(List().scrollY, 0);
}

TEST_F(WndFindTest, TheCursorStaysInViewWhenThePanelComesUp) {
  MakeAndShow();
  Key(VK_TAB);
  for (int i = 0; i < 8; ++i) Key(VK_DOWN, kControl);
  ASSERT_EQ(List().scrollY, 0);
  Key(VK_TAB);
  Forward();
  ASSERT_EQ(ListHeight(), 73);
  EXPECT_EQ(List().scrollY, 8 * 20 - 73);  // the eighth row, 140 to 160, shows
}

TEST_F(WndFindTest, ThePenTakesTheCursorAway) {
  MakeAndShow();
  Search(u"c");
  Key(VK_DOWN, kControl);
  ASSERT_EQ(ListPixel(200, 10), 0xC1C1FFu);
  GetDevice().PenDown(shell_.OnScreen(List().Handle(), {60, 10}));
  EXPECT_EQ(List().Cursor(), FindList::kNoRow);
  EXPECT_EQ(ListPixel(200, 10), 0xFFFFFFu);
}

TEST_F(WndFindTest, TheCursorWorksFromTheBoxAndASearchDropsIt) {
  MakeAndShow();
  Search(u"s");
  const std::vector<int> matches = List().Matches();
  Key(VK_DOWN, kControl);
  Key(VK_DOWN, kControl);
  EXPECT_EQ(GetDevice().Focus(), Box().Handle());
  Key(VK_RETURN);
  EXPECT_EQ(navigator_.calls, Calls{"show " + std::to_string(matches[1])});
  GetDevice().Character(u'i');
  EXPECT_EQ(List().Cursor(), FindList::kNoRow);
}

TEST_F(WndFindTest, PlainArrowsScrollTheList) {
  MakeAndShow();
  Key(VK_DOWN);
  EXPECT_EQ(List().scrollY, 0);  // in the box they mean nothing
  Key(VK_TAB);
  Key(VK_DOWN);
  EXPECT_EQ(List().scrollY, 10);
  Key(VK_UP);
  EXPECT_EQ(List().scrollY, 0);
  EXPECT_EQ(List().Cursor(), FindList::kNoRow);
}

// A screenful is three rows and a bit above the panel, eight without it; one row stays in view.
TEST_F(WndFindTest, PageKeysScrollTheListFromTheBoxToo) {
  MakeAndShow();
  Key(VK_NEXT);
  EXPECT_EQ(List().scrollY, 73 - 20);
  Key(VK_PRIOR);
  EXPECT_EQ(List().scrollY, 0);
  EXPECT_EQ(GetDevice().Focus(), Box().Handle());
  Key(VK_TAB);
  Key(VK_NEXT);
  EXPECT_EQ(List().scrollY, 163 - 20);
  Key(VK_END);
  EXPECT_EQ(List().scrollY, 2240 - 163);
  Key(VK_HOME);
  EXPECT_EQ(List().scrollY, 0);
}

TEST_F(WndFindTest, ItsCopyAndPasteAreTheBoxs) {
  MakeAndShow();
  const auto ask = [this](StandardCommand command) {
    return GetDevice().Send(tool_->Handle(), kAskStandardCommand, PackStandardCommand(command));
  };
  EXPECT_EQ(ask(StandardCommand::kCopy), 8820);
  EXPECT_EQ(ask(StandardCommand::kPaste), 8821);
  EXPECT_EQ(ask(StandardCommand::kClose), 0);
  Search(u"tin");
  Key('A', kControl);
  GetDevice().Send(tool_->Handle(), kToolCommand, 8820, kFromMenu);
  EXPECT_EQ(GetDevice().ClipboardText(), u"tin");
  GetDevice().SetClipboardText(u"lead");
  GetDevice().Send(tool_->Handle(), WM_COMMAND, PackCommand(8821, 0));
  EXPECT_EQ(Box().GetText(), u"lead");
  GetDevice().Send(tool_->Handle(), WM_COMMAND, PackCommand(8821, 1));  // no menu command
  EXPECT_EQ(Box().GetText(), u"lead");
}

// --- Looks

TEST_F(WndFindTest, DrawsItsTitleAndLabels) {
  MakeAndShow();
  EXPECT_EQ(shell_.titles.back(), (DrawnTitle{u"Find element", true, true}));
  std::vector<TextRun> labels;
  for (const TextRun& run : RunsOf(tool_->Handle())) {
    if (run.rect.top > 23) labels.push_back(run);
  }
  ASSERT_EQ(labels.size(), 2u);
  EXPECT_EQ(labels[0].text, u"Enter element number, symbol or name:");
  EXPECT_EQ(labels[0].rect.TopLeft(), (Point{8, 30}));
  EXPECT_EQ(labels[1].text, u"Tap element to view info:");
  EXPECT_EQ(labels[1].rect.TopLeft(), (Point{8, 76}));
  for (const TextRun& label : labels) {
    EXPECT_EQ(label.font.pixels, 12);
    EXPECT_EQ(label.colour, kBlack);
  }
}

TEST_F(WndFindTest, RowsShowNumberSymbolAndName) {
  MakeAndShow();
  const int symbolX = List().NumberWidth() + 3;
  const int nameX = List().NumberWidth() + List().SymbolWidth() + 3;
  const std::vector<TextRun> runs = RunsOf(List().Handle());
  ASSERT_EQ(runs.size(), 12u);  // four rows begin within 73 pixels
  const TextView expected[] = {u"1", u"H", u"Hydrogen", u"2", u"He", u"Helium", u"3", u"Li", u"Lithium"};
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    EXPECT_EQ(runs[i].text, expected[i]);
    const int x = i % 3 == 0 ? 3 : i % 3 == 1 ? symbolX : nameX;
    const int row = static_cast<int>(i) / 3;
    EXPECT_EQ(runs[i].rect.left, x);
    EXPECT_EQ(runs[i].rect.top, 20 * row + 2);
    EXPECT_EQ(runs[i].font.pixels, 13);
    EXPECT_EQ(runs[i].colour, kBlack);
  }
}

TEST_F(WndFindTest, RowsAlternateAndGoOnBelowTheLast) {
  MakeAndShow();
  Key(VK_TAB);
  Search(u"11");  // four rows: white follows
  Key(VK_TAB);
  for (int row = 0; row < 4; ++row) {
    const std::uint32_t fill = row % 2 == 0 ? 0xFFFFFFu : 0xCCFFDEu;
    for (const int x : {0, 200, 224}) {
      EXPECT_EQ(ListPixel(x, 20 * row), fill) << row;
      EXPECT_EQ(ListPixel(x, 20 * row + 19), fill) << row;
    }
  }
  EXPECT_EQ(ListPixel(200, 80), 0xFFFFFFu);
  EXPECT_EQ(ListPixel(200, 162), 0xFFFFFFu);
  Search(u"na");  // one row: green follows
  Key(VK_TAB);
  EXPECT_EQ(ListPixel(200, 19), 0xFFFFFFu);
  EXPECT_EQ(ListPixel(200, 20), 0xCCFFDEu);
  EXPECT_EQ(ListPixel(224, 162), 0xCCFFDEu);
  Search(u"1000");  // none at all
  Key(VK_TAB);
  EXPECT_EQ(ListPixel(200, 0), 0xFFFFFFu);
  EXPECT_EQ(ListPixel(200, 162), 0xFFFFFFu);
}

TEST_F(WndFindTest, StripesFollowTheScroll) {
  MakeAndShow();
  Key(VK_TAB);
  List().ScrollBy(0, 30);
  EXPECT_EQ(ListPixel(200, 0), 0xCCFFDEu);
  EXPECT_EQ(ListPixel(200, 9), 0xCCFFDEu);
  EXPECT_EQ(ListPixel(200, 10), 0xFFFFFFu);
  EXPECT_EQ(ListPixel(200, 30), 0xCCFFDEu);
}

TEST_F(WndFindTest, GreyLinesSeparateTheColumnsOverTheWholeHeight) {
  MakeAndShow();
  Search(u"na");
  Key(VK_TAB);
  const int first = List().NumberWidth();
  const int second = first + List().SymbolWidth();
  for (const int x : {first, second}) {
    for (const int y : {0, 19, 20, 100, 162}) EXPECT_EQ(ListPixel(x, y), 0xA0A0A0u) << x << "," << y;
    EXPECT_NE(ListPixel(x + 1, 100), 0xA0A0A0u);
    EXPECT_NE(ListPixel(x - 1, 100), 0xA0A0A0u);
  }
}

TEST_F(WndFindTest, TheCursorIsABandOverItsRow) {
  MakeAndShow();
  Key(VK_TAB);
  Key(VK_DOWN, kControl);
  Key(VK_DOWN, kControl);
  EXPECT_EQ(ListPixel(200, 19), 0xFFFFFFu);
  EXPECT_EQ(ListPixel(200, 20), 0xC1C1FFu);
  EXPECT_EQ(ListPixel(200, 39), 0xC1C1FFu);
  EXPECT_EQ(ListPixel(200, 40), 0xFFFFFFu);
}

}  // namespace
}  // namespace orvane
