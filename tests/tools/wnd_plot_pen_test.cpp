// What pen, keys and wheel do to the plot.
#include <gmock/gmock.h>

#include "tests/tools/wnd_plot_fixture.h"

namespace orvane::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(WndPlotTest, APenThatStaysWithinEightPixelsTaps) {
  MakeAndShowPlaces();
  const PlotView before = GetPlot().View();
  Stroke({{120, 60}, {128, 68}, {120, 60}});
  EXPECT_TRUE(Label(2));
  EXPECT_EQ(GetPlot().View(), before);
}

TEST_F(WndPlotTest, APenThatMovesNinePixelsDrags) {
  for (const Point end : {Point{129, 60}, Point{111, 60}, Point{120, 69}, Point{120, 51}}) {
    MakeAndShowPlaces();
    Stroke({{120, 60}, end});
    EXPECT_FALSE(Label(2));
    ExpectView(120 - end.x, 360 - end.x, -268 + 60 - end.y, 60 - end.y);
    tool_.reset();
  }
}

TEST_F(WndPlotTest, ThePlotFollowsThePen) {
  MakeAndShowPlaces();
  Press({{100, 100}, {110, 105}, {130, 120}});
  EXPECT_EQ(GetPlot().PlaceOf(0), (Point{70, 80}));
  EXPECT_NE(At(69, 79), 0xFFFFFFu);
  EXPECT_EQ(At(39, 61), 0xFFFFFFu);
  Release({131, 122});
  EXPECT_EQ(GetPlot().PlaceOf(0), (Point{71, 82}));
  ExpectView(-31, 209, -290, -22);
}

// Each move counts from the one before it, also while it might still be a tap.
TEST_F(WndPlotTest, APanBeginsWithTheMoveThatMakesItADrag) {
  MakeAndShowPlaces();
  Stroke({{100, 100}, {105, 100}, {109, 100}, {112, 100}});
  EXPECT_EQ(GetPlot().PlaceOf(0), (Point{47, 60}));
}

TEST_F(WndPlotTest, WithTheKeyARectangleBecomesTheView) {
  MakeAndShowPlaces();
  GetDevice().HoldActionKey(true);
  Press({{150, 40}, {60, 160}});
  EXPECT_EQ(tool_->RubberBand(), (Rect{60, 40, 150, 160}));
  Release({60, 160});
  GetDevice().HoldActionKey(false);
  EXPECT_EQ(tool_->RubberBand(), std::nullopt);
  ExpectView(60, 150, -228, -108);
}

TEST_F(WndPlotTest, TheKeyCountsWhenThePenGoesDown) {
  MakeAndShowPlaces();
  GetDevice().HoldActionKey(true);
  Press({{60, 40}});
  GetDevice().HoldActionKey(false);
  GetDevice().PenMove({150, 186});
  Release({150, 160});
  ExpectView(60, 150, -228, -108);
}

TEST_F(WndPlotTest, InZoomModeARectangleBecomesTheView) {
  MakeAndShowPlaces();
  Button(8121);
  Stroke({{60, 40}, {150, 160}});
  ExpectView(60, 150, -228, -108);
}

// A rectangle of 120 × 134 at (60, 67): spans double, and what stood at the view's corner stands at its
// corner.
TEST_F(WndPlotTest, InZoomModeWithTheKeyTheViewGoesIntoTheRectangle) {
  MakeAndShowPlaces();
  Button(8121);
  GetDevice().HoldActionKey(true);
  Stroke({{60, 67}, {180, 201}});
  GetDevice().HoldActionKey(false);
  ExpectView(-120, 360, -402, 134);
  EXPECT_EQ(GetPlot().PlaceOf(0), (Point{80, 97}));
}

TEST_F(WndPlotTest, ARectangleWithoutAnAreaDoesNothing) {
  MakeAndShowPlaces();
  Button(8121);
  for (const bool key : {false, true}) {
    GetDevice().HoldActionKey(key);
    Stroke({{60, 67}, {180, 67}});
    Stroke({{60, 67}, {60, 201}});
    Stroke({{60, 67}, {180, 201}, {60, 67}});
    ExpectView(0, 240, -268, 0);
  }
  GetDevice().HoldActionKey(false);
}

TEST_F(WndPlotTest, ATapInZoomModeZoomsByTenths) {
  MakeAndShowPlaces();
  Button(8121);
  Tap({10, 10});
  ExpectView(24, 216, -241.2, -26.8);
  Button(8122);
  tool_.reset();
  MakeAndShowPlaces();
  Button(8121);
  GetDevice().HoldActionKey(true);
  Tap({10, 10});
  GetDevice().HoldActionKey(false);
  ExpectView(-24, 264, -294.8, 26.8);
}

TEST_F(WndPlotTest, ATapTogglesTheLabelOfAPoint) {
  MakeAndShowPlaces();
  Tap({84, 104});
  EXPECT_TRUE(Label(1));
  Tap({76, 96});
  EXPECT_FALSE(Label(1));
  Tap({85, 100});  // five pixels beside it
  EXPECT_FALSE(Label(1));
  EXPECT_THAT(navigator_.calls, IsEmpty());
}

TEST_F(WndPlotTest, ATapOnNothingDoesNothing) {
  MakeAndShowPlaces();
  Command(40199);
  const PlotLabels before = State().Look().labels;
  Tap({20, 250});
  EXPECT_EQ(State().Look().labels, before);
  EXPECT_EQ(State().CurrentPreset(), 0);
}

TEST_F(WndPlotTest, ATapWithTheKeyShowsTheElement) {
  MakeAndShowPlaces();
  GetDevice().HoldActionKey(true);
  Tap({160, 140});
  Tap({20, 250});
  GetDevice().HoldActionKey(false);
  EXPECT_THAT(navigator_.calls, ElementsAre("show 3"));
  EXPECT_FALSE(Label(3));
}

TEST_F(WndPlotTest, ArrowsPanByThirty) {
  MakeAndShowPlaces();
  Key(VK_LEFT);
  ExpectView(-30, 210, -268, 0);
  Key(VK_RIGHT);
  Key(VK_RIGHT);
  ExpectView(30, 270, -268, 0);
  Key(VK_UP);
  ExpectView(30, 270, -298, -30);
  Key(VK_DOWN);
  Key(VK_DOWN);
  ExpectView(30, 270, -238, 30);
}

TEST_F(WndPlotTest, PlusMinusAndZeroZoom) {
  MakeAndShowPlaces();
  Type(u'+');
  ExpectView(24, 216, -241.2, -26.8);
  Type(u'=');
  ExpectView(43.2, 196.8, -219.76, -48.24);
  tool_.reset();
  MakeAndShowPlaces();
  Type(u'-');
  ExpectView(-24, 264, -294.8, 26.8);
  Type(u'0');
  ExpectView(32, 208, -214.4, -121.6);
}

TEST_F(WndPlotTest, TheWheelZoomsAroundThePointer) {
  MakeAndShowPlaces();
  const Point pointer = shell_.OnScreen(tool_->Handle(), {60, 201});
  GetDevice().Wheel(pointer, 1, false);
  shell_.Settle();
  // A quarter of the width to the left, three quarters of the height above.
  ExpectView(12, 204, -227.8, -13.4);
  tool_.reset();
  MakeAndShowPlaces();
  GetDevice().Wheel(pointer, -1, false);
  shell_.Settle();
  ExpectView(-12, 276, -308.2, 13.4);
  GetDevice().Wheel(pointer, -2, true);
  shell_.Settle();
  EXPECT_EQ(GetPlot().X().Origin(), -10 + 60);
}

TEST_F(WndPlotTest, EscapeGivesUpAStroke) {
  MakeAndShowPlaces();
  Button(8121);
  Press({{60, 40}, {150, 160}});
  EXPECT_NE(tool_->RubberBand(), std::nullopt);
  Key(VK_ESCAPE);
  EXPECT_EQ(tool_->RubberBand(), std::nullopt);
  EXPECT_EQ(GetDevice().Capture(), kNoWindow);
  Release({150, 160});
  ExpectView(0, 240, -268, 0);
}

TEST_F(WndPlotTest, AStrokeEndsWhenTheToolGoes) {
  MakeAndShowPlaces();
  Press({{100, 100}, {120, 120}});
  tool_->Hide();
  EXPECT_EQ(GetDevice().Capture(), kNoWindow);
  const PlotView before = GetPlot().View();
  GetDevice().PenMove({200, 200});
  shell_.Settle();
  EXPECT_EQ(GetPlot().View(), before);
}

// Another window has taken the pen in the meantime, which is not the tool's to give away.
TEST_F(WndPlotTest, AStrokeThatEndsLeavesTheCaptureOfOthers) {
  MakeAndShowPlaces();
  Press({{100, 100}, {120, 120}});
  GetDevice().SetCapture(shell_.MainWindow());
  tool_->Hide();
  EXPECT_EQ(GetDevice().Capture(), shell_.MainWindow());
}

TEST_F(WndPlotTest, ThePenMayLeaveThePlot) {
  MakeAndShowPlaces();
  Button(8121);
  Stroke({{100, 100}, {260, 300}});
  ExpectView(100, 260, -168, 32);
}

TEST_F(WndPlotTest, OnAnEmptyPlotNothingMoves) {
  MakeAndShow();
  Command(40206);
  navigator_.Request().accept(u"48-3", std::nullopt);
  Stroke({{100, 100}, {150, 150}});
  Type(u'+');
  Button(8121);
  Stroke({{100, 100}, {150, 150}});
  Tap({10, 10});
  Key(VK_LEFT);
  EXPECT_EQ(GetPlot().View(), PlotView());
}

}  // namespace
}  // namespace orvane::testing
