// The view of a general solution: its two columns, and how it scrolls.
#include "tools/solution_view.h"

#include "tests/tools/input_box_fixture.h"

namespace orvane {
namespace {

using testing::OwnerWindow;
using testing::TestShell;

class SolutionViewTest : public ::testing::Test {
 protected:
  SolutionViewTest()
      : shell_({.recordRuns = true}), owner_(MakeWindow<OwnerWindow>(shell_, shell_.MainWindow(), true)) {
    owner_->Move(0, 0, 240, 268);
    owner_->Show();
    view_ = MakeWindow<SolutionView>(shell_, owner_->Handle());
    view_->Move(7, 188, 226, 72);
  }
  void Show(std::vector<Text> lines, std::size_t left) {
    view_->SetLines(std::move(lines), left);
    view_->Show();
    shell_.Settle();
  }
  // As many lines on each side, "L0", "L1" … and "R0", "R1" …
  void ShowMany(int left, int right) {
    std::vector<Text> lines;
    for (int i = 0; i < left; ++i) lines.push_back(u"L" + DecimalText(i));
    for (int i = 0; i < right; ++i) lines.push_back(u"R" + DecimalText(i));
    Show(std::move(lines), static_cast<std::size_t>(left));
  }
  Device& GetDevice() { return shell_.GetDevice(); }
  const Font& Regular() {
    const FontSpec tahoma{.face = u"Tahoma", .pixels = 10};
    return GetDevice().Fonts().GetFont(tahoma);
  }
  int Line() { return Regular().Height(); }
  int WidthOf(TextView text) { return Regular().TextWidth(text); }
  Point Scroll() const { return {view_->scrollX, view_->scrollY}; }
  std::vector<TextRun> Runs() {
    shell_.Settle();
    std::vector<TextRun> runs;
    const Rect place = GetDevice().ScreenRect(view_->Handle());
    for (ScreenRun& one : GetDevice().VisibleRuns()) {
      if (one.handle != view_->Handle()) continue;
      one.run.rect = one.run.rect.Offset(-place.left, -place.top);
      runs.push_back(one.run);
    }
    return runs;
  }
  std::uint32_t Pixel(int x, int y) {
    shell_.Settle();
    return shell_.Pixel(shell_.OnScreen(view_->Handle(), {x, y}));
  }
  void Key(int key) {
    GetDevice().KeyDown(key, {});
    GetDevice().KeyUp(key, {});
  }

  TestShell shell_;
  std::unique_ptr<OwnerWindow> owner_;
  std::unique_ptr<SolutionView> view_;
};

TEST_F(SolutionViewTest, IsAHiddenChild) {
  EXPECT_FALSE(view_->IsVisible());
  EXPECT_FALSE(view_->IsTopLevel());
  EXPECT_EQ(GetDevice().Parent(view_->Handle()), owner_->Handle());
}

TEST_F(SolutionViewTest, LinesStandInTwoColumns) {
  Show({u"A = a + b", u"wide left", u"B = a", u"C = b", u"D"}, 2);
  const int right = 4 + std::max(WidthOf(u"A = a + b"), WidthOf(u"wide left")) + 25;
  const std::vector<TextRun> runs = Runs();
  ASSERT_EQ(runs.size(), 5u);
  const Point expected[] = {{4, 0}, {4, Line()}, {right, 0}, {right, Line()}, {right, 2 * Line()}};
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(runs[i].rect.TopLeft(), (Point{expected[i].x + 1, expected[i].y + 1}))
        << i;  // inside the frame
    EXPECT_EQ(runs[i].font.pixels, 10);
    EXPECT_EQ(runs[i].font.face, u"Tahoma");
    EXPECT_EQ(runs[i].colour, kBlack);
  }
}

TEST_F(SolutionViewTest, BoldLettersArePartOfALinesWidth) {
  const Text bold = u"\u0001!W\u0001 = a";
  Show({bold, u"x"}, 1);
  const Font& letters = GetDevice().Fonts().GetFont({.face = u"Tahoma", .pixels = 10, .bold = true});
  const std::vector<TextRun> runs = Runs();
  ASSERT_EQ(runs.size(), 3u);
  EXPECT_TRUE(runs[0].font.bold);
  EXPECT_FALSE(runs[1].font.bold);
  EXPECT_EQ(runs[2].rect.left, 1 + 4 + letters.TextWidth(u"W") + WidthOf(u"= a") + 25);
}

TEST_F(SolutionViewTest, TheContentIsAsWideAsBothColumnsOrTheView) {
  Show({u"A", u"B"}, 1);
  EXPECT_EQ(view_->contentWidth, 224);
  EXPECT_EQ(view_->contentHeight, Line());
  const Text wide(40, u'm');
  Show({wide, u"B"}, 1);
  EXPECT_EQ(view_->contentWidth, WidthOf(wide) + WidthOf(u"B") + 33);
  ShowMany(3, 9);
  EXPECT_EQ(view_->contentHeight, 9 * Line());
  ShowMany(9, 3);
  EXPECT_EQ(view_->contentHeight, 9 * Line());
}

TEST_F(SolutionViewTest, NoLinesAndOddCountsAreNoTrouble) {
  Show({}, 0);
  EXPECT_EQ(view_->contentHeight, 0);
  EXPECT_TRUE(Runs().empty());
  Show({u"A"}, 7);
  EXPECT_EQ(Runs().size(), 1u);
  EXPECT_EQ(Runs()[0].rect.left, 1 + 4);
}

TEST_F(SolutionViewTest, IsWhiteInABlackFrame) {
  Show({u"A = a"}, 1);
  for (const Point point : {Point{0, 0}, {225, 0}, {0, 71}, {225, 71}, {100, 0}, {0, 40}}) {
    EXPECT_EQ(Pixel(point.x, point.y), 0x000000u) << point.x << "," << point.y;
  }
  for (const Point point : {Point{1, 1}, {224, 1}, {1, 70}, {224, 70}, {120, 40}}) {
    EXPECT_EQ(Pixel(point.x, point.y), 0xFFFFFFu) << point.x << "," << point.y;
  }
}

TEST_F(SolutionViewTest, ArrowsScrollItUpToItsEnds) {
  ShowMany(20, 3);
  GetDevice().SetFocus(view_->Handle());
  Key(VK_DOWN);
  EXPECT_EQ(Scroll(), (Point{0, 10}));
  Key(VK_RIGHT);
  EXPECT_EQ(Scroll(), (Point{0, 10}));  // nothing is hidden there
  for (int i = 0; i < 50; ++i) Key(VK_DOWN);
  EXPECT_EQ(Scroll(), (Point{0, 20 * Line() - 70}));
  EXPECT_EQ(Runs().back().text, u"L19");
  Key(VK_UP);
  EXPECT_EQ(Scroll(), (Point{0, 20 * Line() - 80}));
}

TEST_F(SolutionViewTest, PageKeysScrollItByScreenfuls) {
  ShowMany(30, 3);
  GetDevice().SetFocus(view_->Handle());
  Key(VK_NEXT);
  EXPECT_EQ(Scroll(), (Point{0, 72 - Line()}));  // a line shows again
  Key(VK_PRIOR);
  EXPECT_EQ(Scroll(), (Point{0, 0}));
  Key(VK_END);
  EXPECT_EQ(Scroll(), (Point{0, 30 * Line() - 70}));
  Key(VK_HOME);
  EXPECT_EQ(Scroll(), (Point{0, 0}));
}

TEST_F(SolutionViewTest, LongLinesScrollSideways) {
  Show({Text(60, u'm'), u"B"}, 1);
  GetDevice().SetFocus(view_->Handle());
  Key(VK_RIGHT);
  EXPECT_EQ(Scroll(), (Point{10, 0}));
  for (int i = 0; i < 200; ++i) Key(VK_RIGHT);
  EXPECT_EQ(Scroll().x, view_->contentWidth - 224);
}

TEST_F(SolutionViewTest, PenAndWheelScrollIt) {
  ShowMany(30, 30);
  GetDevice().Wheel(shell_.OnScreen(view_->Handle(), {50, 30}), -1, false);
  shell_.Settle();
  EXPECT_EQ(Scroll(), (Point{0, 30}));
  GetDevice().Wheel(shell_.OnScreen(view_->Handle(), {50, 30}), 1, false);
  shell_.Settle();
  shell_.Stroke(view_->Handle(), {{50, 60}, {50, 50}, {50, 40}});
  shell_.Settle();
  EXPECT_GT(Scroll().y, 20);  // a long content moves faster than the pen
  EXPECT_EQ(GetDevice().Focus(), view_->Handle());
}

TEST_F(SolutionViewTest, NewLinesShowFromTheirBeginning) {
  ShowMany(30, 30);
  view_->ScrollBy(0, 100);
  ShowMany(30, 2);
  EXPECT_EQ(Scroll(), (Point{0, 0}));
  EXPECT_EQ(Runs().front().text, u"L0");
}

TEST_F(SolutionViewTest, TabIsItsOwners) {
  ShowMany(2, 2);
  GetDevice().SetFocus(view_->Handle());
  owner_->seen.clear();
  Key(VK_TAB);
  EXPECT_EQ(owner_->Count(WM_KEYDOWN), 1);
  EXPECT_EQ(owner_->seen.front(), (std::pair{WM_KEYDOWN, static_cast<WParam>(VK_TAB)}));
  Key(VK_DOWN);
  EXPECT_EQ(owner_->Count(WM_KEYDOWN), 1);
}

}  // namespace
}  // namespace orvane
