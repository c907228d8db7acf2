// The electrochemical series: its cells, what they open, and how they look.
#include "tools/wnd_series.h"

#include <gtest/gtest.h>

#include "tests/framework/test_shell.h"
#include "tests/tools/recording_navigator.h"

namespace orvane {
namespace {

using testing::DrawnTitle;
using Calls = std::vector<std::string>;

struct Expected {
  TextView label;
  int number = 0;
  Rect rect;
  int centre = 0;
  int top = 0;
};

// The picture, cell by cell.
const Expected kExpected[] = {
    {u"Li", 3, {12, 40, 36, 60}, 24, 42},          {u"Rb", 37, {36, 40, 60, 60}, 48, 42},
    {u"K", 19, {60, 40, 84, 60}, 72, 42},          {u"Ba", 56, {84, 40, 108, 60}, 96, 42},
    {u"Sr", 38, {108, 40, 132, 60}, 120, 42},      {u"Ca", 20, {132, 40, 156, 60}, 144, 42},
    {u"Na", 11, {156, 40, 180, 60}, 168, 42},      {u"Mg", 12, {180, 40, 204, 60}, 192, 42},
    {u"Al", 13, {204, 40, 228, 60}, 216, 42},      {u"Mn", 25, {12, 60, 36, 80}, 24, 62},
    {u"Zn", 30, {36, 60, 60, 80}, 48, 62},         {u"Cr", 24, {60, 60, 84, 80}, 72, 62},
    {u"Fe", 26, {84, 60, 108, 80}, 96, 62},        {u"Cd", 48, {108, 60, 132, 80}, 120, 62},
    {u"Co", 27, {132, 60, 156, 80}, 144, 62},      {u"Ni", 28, {156, 60, 180, 80}, 168, 62},
    {u"Sn", 50, {180, 60, 204, 80}, 192, 62},      {u"Pb", 82, {204, 60, 228, 80}, 216, 62},
    {u"Hydrogen", 1, {12, 88, 228, 108}, 120, 90}, {u"Sb", 51, {12, 116, 39, 136}, 26, 118},
    {u"Bi", 83, {39, 116, 66, 136}, 53, 118},      {u"Cu", 29, {66, 116, 93, 136}, 80, 118},
    {u"Hg", 80, {93, 116, 120, 136}, 107, 118},    {u"Ag", 47, {120, 116, 147, 136}, 134, 118},
    {u"Pd", 46, {147, 116, 174, 136}, 161, 118},   {u"Pt", 78, {174, 116, 201, 136}, 188, 118},
    {u"Au", 79, {201, 116, 228, 136}, 215, 118},
};

class WndSeriesTest : public ::testing::Test {
 protected:
  WndSeriesTest()
      : shell_({.recordRuns = true, .panelMode = PanelMode::kAlways}),
        tool_(MakeWindow<wnd_series>(shell_, navigator_)) {}
  void Show() {
    tool_->Show();
    shell_.Settle();
  }
  Device& GetDevice() { return shell_.GetDevice(); }
  Calls Tap(Point client) {
    navigator_.calls.clear();
    shell_.Tap(tool_->Handle(), client);
    shell_.Settle();
    return navigator_.calls;
  }
  std::uint32_t Pixel(int x, int y) { return shell_.Pixel(shell_.OnScreen(tool_->Handle(), {x, y})); }

  testing::TestShell shell_;
  testing::RecordingNavigator navigator_;
  std::unique_ptr<wnd_series> tool_;
};

TEST_F(WndSeriesTest, IsMadeHidden) {
  EXPECT_FALSE(tool_->IsVisible());
  EXPECT_TRUE(tool_->IsTopLevel());
  EXPECT_EQ(GetDevice().Title(tool_->Handle()), u"Electrochemical series");
  EXPECT_EQ(GetDevice().WindowRect(tool_->Handle()), (Rect{0, 0, 240, 268}));
  EXPECT_EQ(tool_->ClassName(), "wnd_series");
}

TEST_F(WndSeriesTest, ShowingLowersThePanelAndSetsTopicAndTool) {
  GetDevice().Panel().Request(true);
  Show();
  EXPECT_FALSE(GetDevice().Panel().Visible());
  EXPECT_EQ(shell_.helpTopic, 1200);
  EXPECT_EQ(shell_.currentTool, tool_->Handle());
  EXPECT_TRUE(shell_.buttons.empty());
}

TEST_F(WndSeriesTest, TheFocusMakesItCurrent) {
  Show();
  GetDevice().SetFocus(shell_.MainWindow());
  shell_.currentTool = kNoWindow;
  GetDevice().SetFocus(tool_->Handle());
  EXPECT_EQ(shell_.currentTool, tool_->Handle());
}

TEST_F(WndSeriesTest, ThePenTakesTheFocus) {
  Show();
  GetDevice().SetFocus(shell_.MainWindow());
  GetDevice().PenDown(shell_.OnScreen(tool_->Handle(), {5, 200}));
  EXPECT_EQ(GetDevice().Focus(), tool_->Handle());
}

TEST_F(WndSeriesTest, ThePenBringsItForward) {
  Show();
  auto over = MakeWindow<ZelWindow>(shell_, shell_.MainWindow(), true);
  over->Show();
  ASSERT_EQ(GetDevice().VisibleWindows().back(), over->Handle());
  GetDevice().Send(tool_->Handle(), WM_LBUTTONDOWN, 0, PackPoint({5, 200}));
  EXPECT_EQ(GetDevice().VisibleWindows().back(), tool_->Handle());
}

// --- Cells

TEST_F(WndSeriesTest, HasTheTableOfCells) {
  ASSERT_EQ(SeriesCells().size(), std::size(kExpected));
  for (std::size_t i = 0; i < std::size(kExpected); ++i) {
    EXPECT_EQ(SeriesCells()[i].label, kExpected[i].label);
    EXPECT_EQ(SeriesCells()[i].number, kExpected[i].number);
    EXPECT_EQ(SeriesCells()[i].rect, kExpected[i].rect);
  }
}

TEST_F(WndSeriesTest, EveryCellOpensItsElementUpToItsCorners) {
  Show();
  for (const Expected& cell : kExpected) {
    const Calls opens{"show " + std::to_string(cell.number - 1)};
    const Rect& r = cell.rect;
    for (const Point inside :
         {Point{r.left, r.top}, {r.right - 1, r.top}, {r.left, r.bottom - 1}, {r.right - 1, r.bottom - 1}}) {
      EXPECT_EQ(Tap(inside), opens) << ToUtf8(cell.label);
    }
    for (const Point outside :
         {Point{r.left - 1, r.top}, {r.right, r.top}, {r.left, r.top - 1}, {r.left, r.bottom}}) {
      EXPECT_NE(Tap(outside), opens) << ToUtf8(cell.label);
    }
  }
}

TEST_F(WndSeriesTest, AnEdgeBelongsToTheCellThatItBegins) {
  Show();
  EXPECT_EQ(Tap({36, 50}), Calls{"show 36"});
  EXPECT_EQ(Tap({12, 60}), Calls{"show 24"});
}

TEST_F(WndSeriesTest, BetweenAndOutsideTheCellsThereIsNothing) {
  Show();
  for (const Point point : {Point{100, 84},
                            {100, 112},
                            {100, 80},
                            {100, 87},
                            {100, 108},
                            {100, 115},
                            {100, 136},
                            {11, 50},
                            {228, 50},
                            {11, 98},
                            {228, 98},
                            {228, 120},
                            {100, 39},
                            {100, 10},
                            {0, 267}}) {
    EXPECT_EQ(Tap(point), Calls{}) << point.x << "," << point.y;
  }
}

TEST_F(WndSeriesTest, HydrogensBandIsOneCell) {
  Show();
  for (int x = 12; x < 228; x += 9) EXPECT_EQ(Tap({x, 98}), Calls{"show 0"});
}

TEST_F(WndSeriesTest, WhereThePenIsLiftedDecides) {
  Show();
  shell_.Stroke(tool_->Handle(), {{20, 50}, {100, 98}});
  EXPECT_EQ(navigator_.calls, Calls{"show 0"});
  navigator_.calls.clear();
  shell_.Stroke(tool_->Handle(), {{20, 50}, {100, 200}});
  EXPECT_EQ(navigator_.calls, Calls{});
  GetDevice().PenDown(shell_.OnScreen(tool_->Handle(), {20, 50}));
  EXPECT_EQ(navigator_.calls, Calls{});
}

// --- Looks

TEST_F(WndSeriesTest, DrawsItsTitle) {
  Show();
  EXPECT_EQ(shell_.titles.back(), (DrawnTitle{u"Electrochemical series", true, true}));
}

TEST_F(WndSeriesTest, LabelsStandCentredInTheirCells) {
  Show();
  std::vector<TextRun> runs;
  const Rect place = GetDevice().ScreenRect(tool_->Handle());
  for (ScreenRun& one : GetDevice().VisibleRuns()) {
    if (one.handle != tool_->Handle()) continue;
    one.run.rect = one.run.rect.Offset(-place.left, -place.top);
    if (one.run.rect.top > 23) runs.push_back(one.run);
  }
  ASSERT_EQ(runs.size(), std::size(kExpected));
  const Font& font = GetDevice().Fonts().GetFont({.face = u"Tahoma", .pixels = 13});
  for (std::size_t i = 0; i < runs.size(); ++i) {
    EXPECT_EQ(runs[i].text, kExpected[i].label);
    EXPECT_EQ(runs[i].rect.left, kExpected[i].centre - font.TextWidth(kExpected[i].label) / 2);
    EXPECT_EQ(runs[i].rect.top, kExpected[i].top);
    EXPECT_EQ(runs[i].font, font.Spec());
    EXPECT_EQ(runs[i].colour, kBlack);
  }
}

TEST_F(WndSeriesTest, ItsBandsAreRoundedAndFilled) {
  Show();
  const struct {
    Rect rect;
    std::uint32_t fill = 0;
  } bands[] = {
      {{12, 40, 228, 80}, 0xFFFFFF}, {{12, 88, 228, 108}, 0xCCFFDE}, {{12, 116, 228, 136}, 0xFFFFFF}};
  for (const auto& [r, fill] : bands) {
    const int y = r.top + 5;
    EXPECT_EQ(Pixel(r.left, r.top), 0xE6F2FFu);  // round
    EXPECT_EQ(Pixel(r.right - 1, r.bottom - 1), 0xE6F2FFu);
    EXPECT_EQ(Pixel(r.left, y), 0x000000u);
    EXPECT_EQ(Pixel(r.right - 1, y), 0x000000u);
    EXPECT_EQ(Pixel(r.left + 6, r.top), 0x000000u);
    EXPECT_EQ(Pixel(r.left + 6, r.bottom - 1), 0x000000u);
    EXPECT_EQ(Pixel(r.left + 1, y), fill);
    EXPECT_EQ(Pixel(r.left - 1, y), 0xE6F2FFu);
    EXPECT_EQ(Pixel(r.right, y), 0xE6F2FFu);
  }
}

TEST_F(WndSeriesTest, LinesSeparateTheCells) {
  Show();
  for (int x = 13; x < 227; ++x) EXPECT_EQ(Pixel(x, 60), 0x000000u) << x;
  for (int x = 36; x < 228; x += 24) {
    for (const int y : {41, 59, 61, 79}) EXPECT_EQ(Pixel(x, y), 0x000000u) << x << "," << y;
    EXPECT_EQ(Pixel(x + 1, 41), 0xFFFFFFu);
  }
  for (int x = 39; x < 228; x += 27) {
    for (const int y : {117, 135}) EXPECT_EQ(Pixel(x, y), 0x000000u) << x << "," << y;
    EXPECT_EQ(Pixel(x + 1, 117), 0xFFFFFFu);
  }
  EXPECT_EQ(Pixel(39, 90), 0xCCFFDEu);  // none through hydrogen
}

}  // namespace
}  // namespace orvane
