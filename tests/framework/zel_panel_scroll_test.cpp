// Scrolling by dragging and by steps, and its limits.
#include <gtest/gtest.h>

#include "tests/framework/panel_test_bed.h"

namespace orvane {
namespace {

using testing::Codes;
using testing::ZelPanelTest;

// --- Dragging.

TEST_F(ZelPanelTest, ADragMovesTheContentWithThePen) {
  MakeLarge();
  Down({120, 200});
  MoveTo({118, 150});
  EXPECT_TRUE(panel_->PanelScrolls());
  EXPECT_EQ(panel_->Scroll(), (Point{2, 50}));
  MoveTo({100, 160});
  EXPECT_EQ(panel_->Scroll(), (Point{20, 40}));
  Up({0, 0});
  EXPECT_EQ(panel_->Scroll(), (Point{20, 40}));  // lifting the pen scrolls no more
}

TEST_F(ZelPanelTest, MovesBeforeTheDragDoNotScroll) {
  MakeLarge();
  Down({120, 200});
  MoveTo({120, 196});
  EXPECT_EQ(panel_->Scroll(), (Point{0, 0}));
  MoveTo({120, 190});
  EXPECT_EQ(panel_->Scroll(), (Point{0, 6}));  // from the move before on
  Up({120, 190});
}

TEST_F(ZelPanelTest, AnAnswerOtherThanZeroKeepsTheWholeStrokeFromScrolling) {
  MakeLarge();
  panel_->dragAnswer = 1;
  Down({120, 200});
  MoveTo({120, 150});
  EXPECT_FALSE(panel_->PanelScrolls());
  panel_->dragAnswer = 0;
  MoveTo({120, 100});
  Up({120, 100});
  EXPECT_EQ(panel_->Scroll(), (Point{0, 0}));
  EXPECT_EQ(panel_->Notifications(), (Codes{PN_PENDOWN, PN_PENMOVE, PN_DRAGQUERY, PN_DRAG, PN_PENMOVE,
                                            PN_DRAG, PN_PENUP, PN_DRAGEND}));
  Down({120, 200});
  MoveTo({120, 150});
  Up({120, 150});
  EXPECT_EQ(panel_->Scroll(), (Point{0, 50}));
}

// Along one axis: raw step, content, client, and how far the panel scrolls.
struct Acceleration {
  int raw;
  int content;
  int client;
  int start;
  int end;
};

class AccelerationTest : public ZelPanelTest, public ::testing::WithParamInterface<Acceleration> {};

TEST_P(AccelerationTest, AlongX) {
  const auto& [raw, content, client, start, end] = GetParam();
  panel_->Move(0, 0, client, 268);
  panel_->contentWidth = content;
  panel_->marginX = 1000;
  panel_->scrollX = start;
  Down({100, 100});
  MoveTo({100 - raw, 100});
  EXPECT_EQ(panel_->Scroll(), (Point{end, 0}));
  Up({100, 100});
}

TEST_P(AccelerationTest, AlongY) {
  const auto& [raw, content, client, start, end] = GetParam();
  panel_->Move(0, 0, 240, client);
  panel_->contentHeight = content;
  panel_->marginY = 1000;
  panel_->scrollY = start;
  Down({100, 100});
  MoveTo({100, 100 - raw});
  EXPECT_EQ(panel_->Scroll(), (Point{0, end}));
  Up({100, 100});
}

INSTANTIATE_TEST_SUITE_P(Steps, AccelerationTest,
                         ::testing::Values(Acceleration{5, 1000, 240, 0, 37},      // 37.5
                                           Acceleration{5, 100, 240, 0, 5},        // 3.75 is less than 5
                                           Acceleration{-7, 600, 268, 500, 472},   // -28.2
                                           Acceleration{-5, 1000, 240, 500, 463},  // -37.5
                                           Acceleration{-5, 100, 240, 500, 495},   // -3.75
                                           Acceleration{8, 1000, 240, 0, 60},      // just 60
                                           Acceleration{6, 0, 240, 10, 16},        // no content: the raw step
                                           Acceleration{100, 1000, 240, 0, 750},
                                           Acceleration{10, 133, 240, 0, 10}));  // 9.975

TEST_F(ZelPanelTest, TheBorderDoesNotCountForTheAcceleration) {
  panel_->bordered = true;
  panel_->contentWidth = 1000;
  Down({100, 100});
  MoveTo({92, 100});
  EXPECT_EQ(panel_->scrollX, 60);  // 8 × 1000 × 1.8 ÷ 240; by 238 it would be 60.5
  MoveTo({87, 100});
  EXPECT_EQ(panel_->scrollX, 97);  // 37.5
  MoveTo({75, 100});
  EXPECT_EQ(panel_->scrollX, 187);  // 90; by 238 it would be 90.8
  MoveTo({55, 100});
  EXPECT_EQ(panel_->scrollX, 337);  // 150; by 238 it would be 151.3
  Up({55, 100});
}

TEST_F(ZelPanelTest, HugeContentsDoNotOverflow) {
  panel_->contentWidth = 2147483647;
  panel_->contentHeight = 2147483647;
  Down({100, 100});
  MoveTo({-100, -100});
  EXPECT_GT(panel_->scrollX, 0);
  EXPECT_GT(panel_->scrollY, 0);
  MoveTo({200, 200});
  EXPECT_GE(panel_->scrollX, 0);
  Up({0, 0});
}

TEST_F(ZelPanelTest, APanelWithoutSizeTakesItsMessages) {
  panel_->Move(0, 0, 0, 0);
  GetDevice().Send(panel_->Handle(), WM_LBUTTONDOWN, 0, PackPoint({10, 10}));
  GetDevice().Send(panel_->Handle(), WM_MOUSEMOVE, 0, PackPoint({2, 3}));
  EXPECT_EQ(panel_->Scroll(), (Point{8, 7}));
  GetDevice().Send(panel_->Handle(), WM_LBUTTONUP, 0, PackPoint({2, 3}));
  EXPECT_EQ(panel_->Notifications().back(), PN_DRAGEND);
}

// --- Scrolling.

TEST_F(ZelPanelTest, ScrollingStopsAtTheLimit) {
  panel_->contentWidth = 400;
  panel_->marginX = 40;
  panel_->scrollX = 195;
  panel_->ScrollBy(10, 0);
  EXPECT_EQ(panel_->scrollX, 200);  // 400 - 240 + 40
  panel_->ScrollBy(10, 0);
  EXPECT_EQ(panel_->scrollX, 200);
  panel_->ScrollBy(-30, 0);
  EXPECT_EQ(panel_->scrollX, 170);
}

TEST_F(ZelPanelTest, BeyondTheLimitOneCanOnlyScrollBack) {
  panel_->contentWidth = 400;
  panel_->marginX = 40;
  panel_->scrollX = 250;
  panel_->ScrollBy(5, 0);
  EXPECT_EQ(panel_->scrollX, 250);
  panel_->ScrollBy(-5, 0);
  EXPECT_EQ(panel_->scrollX, 245);
  panel_->scrollX = 250;
  panel_->ScrollBy(-60, 0);
  EXPECT_EQ(panel_->scrollX, 190);
}

TEST_F(ZelPanelTest, TheYAxisHasItsOwnSizes) {
  panel_->contentHeight = 500;
  panel_->marginY = 20;
  panel_->ScrollBy(0, 1000);
  EXPECT_EQ(panel_->Scroll(), (Point{0, 252}));  // 500 - 268 + 20
  panel_->contentHeight = 400;                   // the limit is 152 now
  panel_->ScrollBy(0, 1);
  EXPECT_EQ(panel_->scrollY, 252);
  panel_->ScrollBy(0, -1);
  EXPECT_EQ(panel_->scrollY, 251);
}

TEST_F(ZelPanelTest, AnOffsetIsNeverNegative) {
  panel_->contentWidth = 400;
  panel_->contentHeight = 400;
  panel_->ScrollBy(-10, -2147483647 - 1);
  EXPECT_EQ(panel_->Scroll(), (Point{0, 0}));
  panel_->contentWidth = 100;  // the limit is negative
  panel_->contentHeight = 100;
  panel_->ScrollBy(10, 10);
  EXPECT_EQ(panel_->Scroll(), (Point{0, 0}));
  panel_->ScrollBy(-10, -10);
  EXPECT_EQ(panel_->Scroll(), (Point{0, 0}));
  panel_->ScrollBy(2147483647, 2147483647);
  EXPECT_EQ(panel_->Scroll(), (Point{0, 0}));
}

TEST_F(ZelPanelTest, SizesAndMarginsOfAnyNumberDoNotOverflow) {
  panel_->contentWidth = 2147483647;
  panel_->marginX = 2147483647;
  panel_->contentHeight = -2147483647 - 1;
  panel_->marginY = -2147483647 - 1;
  panel_->ScrollBy(2147483647, 10);
  panel_->ScrollBy(2147483647, -10);
  EXPECT_EQ(panel_->Scroll(), (Point{2147483647, 0}));
}

TEST_F(ZelPanelTest, ABorderMakesTheUsableAreaTwoPixelsSmaller) {
  panel_->bordered = true;
  panel_->contentWidth = 400;
  panel_->contentHeight = 500;
  EXPECT_EQ(panel_->UsableSize(), (Size{238, 266}));
  panel_->ScrollBy(1000, 1000);
  EXPECT_EQ(panel_->Scroll(), (Point{162, 234}));  // 400 - 238, 500 - 266
}

TEST_F(ZelPanelTest, ScrollingInvalidates) {
  EXPECT_FALSE(Invalid());
  panel_->ScrollBy(0, 0);
  EXPECT_TRUE(Invalid());
}

TEST_F(ZelPanelTest, ContentPointsAreClientPointsScrolled) {
  MakeLarge();
  panel_->ScrollBy(100, 200);
  EXPECT_EQ(panel_->ContentPoint({3, 4}), (Point{103, 204}));
  EXPECT_EQ(panel_->VisibleContent(), (Rect{100, 200, 340, 468}));
  panel_->bordered = true;  // the content stands inside the frame
  EXPECT_EQ(panel_->ContentPoint({3, 4}), (Point{102, 203}));
  EXPECT_EQ(panel_->VisibleContent(), (Rect{100, 200, 338, 466}));
}

}  // namespace
}  // namespace orvane
