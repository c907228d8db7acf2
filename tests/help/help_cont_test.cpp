// The contents as a screen: where its rows stand, what taps and keys do, and how it opens pages.
#include "framework/standard_commands.h"
#include "tests/help/help_contents_bed.h"

namespace orvane::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Rows = std::vector<int>;

constexpr std::uint32_t kHighlight = 0x00428A;

TEST_F(HelpContentsTest, IsMadeWhenTheFileHasBeenOpened) {
  SaveSample();
  EXPECT_EQ(contents_, nullptr);
  Show(1);
  ASSERT_NE(contents_, nullptr);
  EXPECT_FALSE(contents_->IsVisible());
}

TEST_F(HelpContentsTest, IsAToolWithABarOfItsOwn) {
  SaveSample();
  ShowContentsAt(1);
  EXPECT_EQ(shell_.GetDevice().Title(contents_->Handle()), u"Contents window");
  EXPECT_EQ(shell_.GetDevice().WindowRect(contents_->Handle()), Rect::At(0, 0, 240, 268));
  EXPECT_EQ(shell_.GetDevice().WindowRect(Tree().Handle()), Rect::At(0, 23, 240, 245));
  EXPECT_EQ(shell_.titles.back(), (DrawnTitle{u"Help contents", false, true}));
  EXPECT_THAT(Bar(), ElementsAre("8510 0", "8511 1"));
  EXPECT_EQ(shell_.GetDevice().Focus(), Tree().Handle());
  EXPECT_EQ(shell_.Pixel({200, 250}), 0xFFFFFFu);
}

TEST_F(HelpContentsTest, OpensDownToThePageThatShows) {
  SaveSample();
  ShowContentsAt(2);
  EXPECT_EQ(Selected(), 3);
  EXPECT_EQ(VisibleRows(), (Rows{0, 1, 2, 3, 4, 6}));
  EXPECT_TRUE(CanOpen());
  EXPECT_TRUE(Press(8511));
  // All headings are closed again for another page.
  ShowContentsAt(3);
  EXPECT_EQ(Selected(), 5);
  EXPECT_EQ(VisibleRows(), (Rows{0, 4, 5, 6}));
}

TEST_F(HelpContentsTest, SelectsTheFirstEntryForAPageThatItDoesNotName) {
  SaveSample();
  ShowContentsAt(9);
  EXPECT_EQ(Selected(), 0);
  EXPECT_EQ(VisibleRows(), (Rows{0, 4, 6}));
  EXPECT_FALSE(CanOpen());
}

TEST_F(HelpContentsTest, SelectsTheFirstOfSeveralEntriesOfAPage) {
  Save({PageAt(0, 1), Heading(0, u"H"), PageAt(1, 2), PageAt(0, 2)}, Pages({1, 2}));
  ShowContentsAt(2);
  EXPECT_EQ(Selected(), 2);
}

TEST_F(HelpContentsTest, TakesNoHeadingForAPage) {
  // A heading has no page id, whatever is searched for.
  DatWriter file = BuildHelp({Heading(0, u"H"), PageAt(0, 1)}, Pages({1}));
  file.Save(Path());
  ShowContentsAt(1);
  EXPECT_EQ(Selected(), 1);
}

TEST_F(HelpContentsTest, PlacesItsRows) {
  SaveSample();
  ShowContentsAt(2);
  EXPECT_EQ(Tree().contentHeight, 2 + 18 * 6);
  int row = 0;
  const std::pair<TextView, int> rows[] = {{u"First", 0},  {u"Page 1", 1}, {u"Inner", 1},
                                           {u"Page 2", 2}, {u"Second", 0}, {u"Page 4", 0}};
  int width = 0;
  for (const auto& [text, level] : rows) {
    const TextRun run = RunOf(text);
    EXPECT_EQ(run.rect.TopLeft(), (Point{17 * level + 44, 26 + 23 + 2 + 18 * row})) << ToUtf8(text);
    EXPECT_EQ(run.colour, row == 3 ? kWhite : kBlack);
    ++row;
  }
  TextEngine& engine = shell_.Engine();
  FontFamily font;
  CreateFontFamily(shell_.GetDevice(), kNoWindow, font, u"Tahoma", 10, false, false);
  engine.SelectFontFamily(&font);
  for (const auto& [text, level] : rows) {
    width = std::max(width, 17 * level + engine.MeasureText(text).width + 50);
  }
  engine.SelectFontFamily(nullptr);
  EXPECT_EQ(Tree().contentWidth, width);
}

TEST_F(HelpContentsTest, HighlightsTheSelectedRow) {
  SaveSample();
  ShowContentsAt(2);
  TextEngine& engine = shell_.Engine();
  FontFamily font;
  CreateFontFamily(shell_.GetDevice(), kNoWindow, font, u"Tahoma", 10, false, false);
  engine.SelectFontFamily(&font);
  const int right = 2 * 17 + 48 + engine.MeasureText(u"Page 2").width;
  engine.SelectFontFamily(nullptr);
  const int top = 26 + 23 + 2 + 18 * 3;
  const int left = 2 * 17 + 40;
  EXPECT_EQ(shell_.Pixel({left, top}), kHighlight);
  EXPECT_EQ(shell_.Pixel({left - 1, top}), 0xFFFFFFu);
  EXPECT_EQ(shell_.Pixel({left, top - 1}), 0xFFFFFFu);
  EXPECT_EQ(shell_.Pixel({right - 1, top + 16}), kHighlight);
  EXPECT_EQ(shell_.Pixel({right, top + 16}), 0xFFFFFFu);
  EXPECT_EQ(shell_.Pixel({right - 1, top + 17}), 0xFFFFFFu);
}

TEST_F(HelpContentsTest, DrawsMarkersAndImages) {
  SaveSample();
  ShowContentsAt(9);
  const auto ink = [this](int x, int row) {  // something is drawn in the cell of 16 there
    int pixels = 0;
    for (int dy = 0; dy < 16; ++dy) {
      for (int dx = 0; dx < 16; ++dx) {
        pixels += shell_.Pixel({x + dx, 26 + 23 + 2 + 18 * row + 1 + dy}) == 0xFFFFFFu ? 0 : 1;
      }
    }
    return pixels;
  };
  EXPECT_GT(ink(2, 0), 0);
  EXPECT_GT(ink(20, 0), 0);
  EXPECT_EQ(ink(2, 2), 0);  // a page has no marker
  EXPECT_GT(ink(20, 2), 0);
  const int closedBook = ink(20, 1);
  const int closedMarker = ink(2, 1);
  Tap(In(4, 5));
  EXPECT_NE(ink(2, 1), closedMarker);  // a plus has become a minus
  EXPECT_NE(ink(20, 1), closedBook);
}

// --- Taps.

TEST_F(HelpContentsTest, OpensAndClosesAHeadingByItsMarkerAndBook) {
  SaveSample();
  for (const int x : {0, 2, 33}) {
    ShowContentsAt(9);
    Tap(In(4, x));
    EXPECT_EQ(VisibleRows(), (Rows{0, 4, 5, 6})) << x;
    EXPECT_EQ(Selected(), 0) << x;
    EXPECT_EQ(Tree().contentHeight, 2 + 18 * 4);
    Tap(In(4, x));
    EXPECT_EQ(VisibleRows(), (Rows{0, 4, 6})) << x;
    EXPECT_TRUE(Press(8511));
  }
}

// The heading takes the selection over, and has no page to open.
TEST_F(HelpContentsTest, ClosingTheHeadingAboveTheSelectedPageLeavesNothingToOpen) {
  SaveSample();
  ShowContentsAt(3);
  EXPECT_TRUE(CanOpen());
  Tap(In(4, 2));
  EXPECT_EQ(Selected(), 4);
  EXPECT_FALSE(CanOpen());
}

TEST_F(HelpContentsTest, GivesWayToAPageThatIsAskedForElsewhere) {
  SaveSample();
  ShowContentsAt(1);
  Show(3);
  EXPECT_EQ(FrontTool(), "helpView");
  EXPECT_EQ(CurrentId(), 3);
  EXPECT_TRUE(Press(8921));
  EXPECT_EQ(CurrentId(), 1);
}

TEST_F(HelpContentsTest, SelectsAHeadingByItsText) {
  SaveSample();
  for (const int x : {34, 44, 200}) {
    ShowContentsAt(9);
    Tap(In(4, x));
    EXPECT_EQ(Selected(), 4) << x;
    EXPECT_EQ(VisibleRows(), (Rows{0, 4, 6})) << x;
    EXPECT_FALSE(CanOpen());
    EXPECT_TRUE(Press(8511));
  }
}

TEST_F(HelpContentsTest, SelectsAPageFromItsImageOn) {
  SaveSample();
  const std::pair<int, bool> taps[] = {{0, false}, {18, false}, {19, true}, {44, true}, {200, true}};
  for (const auto& [x, selects] : taps) {
    ShowContentsAt(9);
    Tap(In(6, x));
    EXPECT_EQ(Selected(), selects ? 6 : 0) << x;
    EXPECT_EQ(CanOpen(), selects) << x;
    EXPECT_TRUE(contents_->IsVisible());  // a tap alone opens nothing
    EXPECT_TRUE(Press(8511));
  }
}

TEST_F(HelpContentsTest, CountsTapsFromTheIndent) {
  SaveSample();
  ShowContentsAt(2);
  Tap({16, In(2, 0).y});  // left of a heading of level 1
  EXPECT_EQ(VisibleRows().size(), 6u);
  Tap({17 + 33, In(2, 0).y});
  EXPECT_EQ(VisibleRows().size(), 5u);
  EXPECT_EQ(Selected(), 2);  // the selected page went into its heading
  Tap({17 + 18, In(1, 0).y});
  EXPECT_EQ(Selected(), 2);
  Tap({17 + 19, In(1, 0).y});
  EXPECT_EQ(Selected(), 1);
}

TEST_F(HelpContentsTest, ARowIsEighteenHigh) {
  SaveSample();
  ShowContentsAt(9);
  const std::pair<int, int> taps[] = {{2 + 36, 6}, {2 + 35, 4}, {2 + 18, 4}, {2 + 17, 0}, {2 + 53, 6}};
  for (const auto& [y, entry] : taps) {
    Tap({100, y});
    EXPECT_EQ(Selected(), entry) << y;
  }
  Tap({100, 2 + 54});  // below the last row
  EXPECT_EQ(Selected(), 6);
  Tap({100, 1});  // above the first
  EXPECT_EQ(Selected(), 6);
}

// --- Keys.

TEST_F(HelpContentsTest, MovesByKeys) {
  SaveSample();
  ShowContentsAt(9);
  const auto press = [this](int key) {
    Key(key);
    return Selected();
  };
  EXPECT_EQ(press(VK_UP), 0);
  EXPECT_EQ(press(VK_DOWN), 4);
  EXPECT_EQ(press(VK_DOWN), 6);
  EXPECT_TRUE(CanOpen());
  EXPECT_EQ(press(VK_DOWN), 6);
  EXPECT_EQ(press(VK_RIGHT), 6);
  EXPECT_EQ(press(VK_HOME), 0);
  EXPECT_FALSE(CanOpen());
  EXPECT_EQ(press(VK_RIGHT), 1);
  EXPECT_EQ(press(VK_RIGHT), 2);
  EXPECT_EQ(press(VK_RIGHT), 3);
  EXPECT_EQ(VisibleRows(), (Rows{0, 1, 2, 3, 4, 6}));
  EXPECT_EQ(press(VK_LEFT), 2);
  EXPECT_EQ(press(VK_LEFT), 2);
  EXPECT_EQ(VisibleRows(), (Rows{0, 1, 2, 4, 6}));
  EXPECT_EQ(press(VK_LEFT), 0);
  EXPECT_EQ(press(VK_END), 6);
}

TEST_F(HelpContentsTest, EnterOpensHeadingsAndPages) {
  SaveSample();
  ShowContentsAt(9);
  Key(VK_RETURN);
  EXPECT_EQ(VisibleRows(), (Rows{0, 1, 2, 4, 6}));
  Key(VK_RETURN);
  EXPECT_EQ(VisibleRows(), (Rows{0, 4, 6}));
  Key(VK_RIGHT);
  Key(VK_RETURN);
  EXPECT_EQ(FrontTool(), "helpView");
  EXPECT_EQ(CurrentId(), 1);
}

TEST_F(HelpContentsTest, EscapeAsksForItsCloseButton) {
  SaveSample();
  ShowContentsAt(9);
  const auto ask = [this](StandardCommand command) {
    return shell_.GetDevice().Send(contents_->Handle(), kAskStandardCommand, PackStandardCommand(command));
  };
  EXPECT_EQ(ask(StandardCommand::kClose), 8511);
  EXPECT_EQ(ask(StandardCommand::kCopy), 0);
  shell_.GetDevice().Send(contents_->Handle(), kToolCommand, 8511, kFromMenu);
  EXPECT_EQ(FrontTool(), "helpView");
}

// --- Opening pages.

TEST_F(HelpContentsTest, OpensTheSelectedPageAndGoes) {
  SaveSample();
  ShowContentsAt(9);
  EXPECT_FALSE(Press(8510));  // a heading
  Key(VK_END);
  EXPECT_TRUE(Press(8510));
  EXPECT_FALSE(contents_->IsVisible());
  EXPECT_EQ(FrontTool(), "helpView");
  EXPECT_EQ(CurrentId(), 4);
  EXPECT_TRUE(Press(8921));  // recorded
  EXPECT_EQ(CurrentId(), 9);
}

TEST_F(HelpContentsTest, ClosesWithoutOpening) {
  SaveSample();
  ShowContentsAt(1);
  EXPECT_TRUE(Press(8511));
  EXPECT_FALSE(contents_->IsVisible());
  EXPECT_EQ(CurrentId(), 1);
  EXPECT_FALSE(Press(8921));
}

TEST_F(HelpContentsTest, ReportsAnEntryThatNamesNoPage) {
  Save({PageAt(0, 5), PageAt(0, 1)}, Pages({1}));
  ShowContentsAt(1);
  Key(VK_UP);
  EXPECT_EQ(Selected(), 0);
  EXPECT_TRUE(Press(8510));
  EXPECT_EQ(
      Box(),
      "Orvane|error|Help page with ID 5 cannot be found. This is an internal error. Please report it to "
      "orvane@example.org.");
  EXPECT_FALSE(contents_->IsVisible());
  EXPECT_EQ(CurrentId(), 1);
}

TEST_F(HelpContentsTest, MayBeEmpty) {
  Save({}, Pages({1}));
  ShowContentsAt(1);
  EXPECT_EQ(Selected(), -1);
  EXPECT_FALSE(CanOpen());
  EXPECT_EQ(Tree().contentHeight, 2);
  for (const int key : {VK_UP, VK_DOWN, VK_LEFT, VK_RIGHT, VK_RETURN, VK_HOME, VK_END, VK_PRIOR, VK_NEXT})
    Key(key);
  Tap({30, 10});
  shell_.GetDevice().Send(contents_->Handle(), WM_COMMAND, PackCommand(8510, 0));
  EXPECT_EQ(FrontTool(), "helpCont");
  EXPECT_THAT(Runs(Tree().Handle()), IsEmpty());
}

TEST_F(HelpContentsTest, LowersTheInputPanel) {
  SaveSample();
  Show(1);
  shell_.GetDevice().Panel().Toggle();
  EXPECT_TRUE(Press(8922));
  EXPECT_FALSE(shell_.GetDevice().Panel().Visible());
}

}  // namespace
}  // namespace orvane::testing
