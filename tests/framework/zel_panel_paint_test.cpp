// What a panel shows: through the shared buffer, and through one of its own.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/framework/painted_panel.h"

namespace orvane {
namespace {

using testing::Hand;
using testing::Pixels;
using testing::ProbePanel;
using testing::Rects;

// --- The shared buffer.

TEST(SharedBufferPanelTest, PaintsWhatShowsInContentCoordinates) {
  Hand hand;
  hand.panel->contentWidth = 1000;
  hand.panel->contentHeight = 1000;
  hand.shell.Settle();
  hand.panel->ScrollBy(300, 400);
  hand.Forget();
  hand.shell.Settle();
  EXPECT_EQ(hand.panel->painted, (Rects{{300, 400, 500, 550}}));
  EXPECT_EQ(hand.panel->clips, (Rects{{300, 400, 500, 550}}));
  EXPECT_EQ(hand.At(1, 1), Pixels(hand.panel->TileColour(30, 40)));
  EXPECT_EQ(hand.At(0, 0), 0x000000u);
  EXPECT_EQ(hand.At(199, 149), Pixels(hand.panel->TileColour(49, 54)));
  EXPECT_EQ(hand.At(200, 149), 0xFFFFFFu);  // the tool beside it
  EXPECT_EQ(hand.At(199, 150), 0xFFFFFFu);
}

TEST(SharedBufferPanelTest, FillsWhatTheContentDoesNotCover) {
  Hand hand;
  hand.panel->contentWidth = 120;
  hand.panel->contentHeight = 80;
  hand.panel->Redraw();
  hand.shell.Settle();
  EXPECT_EQ(hand.At(118, 78), Pixels(hand.panel->TileColour(11, 7)));
  EXPECT_EQ(hand.At(120, 78), 0x404040u);
  EXPECT_EQ(hand.At(118, 80), 0x404040u);
  EXPECT_EQ(hand.At(199, 149), 0x404040u);
  hand.panel->background = Rgb(232, 232, 232);
  hand.panel->Redraw();
  hand.shell.Settle();
  EXPECT_EQ(hand.At(120, 78), 0xE8E8E8u);
}

TEST(SharedBufferPanelTest, PaintsAtEveryRedraw) {
  Hand hand;
  hand.shell.Settle();
  hand.Forget();
  hand.panel->Redraw();
  EXPECT_EQ(hand.panel->painted.size(), 1u);  // at once
  hand.panel->Redraw();
  EXPECT_EQ(hand.panel->painted.size(), 2u);
}

TEST(SharedBufferPanelTest, RedrawRectOnlyInvalidates) {
  Hand hand;
  hand.shell.Settle();
  hand.Forget();
  hand.panel->RedrawRect(10, 10, 20, 20);
  EXPECT_TRUE(hand.panel->painted.empty());
  EXPECT_FALSE(hand.shell.GetDevice().InvalidRect(hand.panel->Handle()).Empty());
  hand.shell.Settle();
  EXPECT_EQ(hand.panel->painted.size(), 1u);
}

TEST(SharedBufferPanelTest, ResetBufferTakesTheClientSize) {
  Hand hand;
  hand.panel->bufferWidth = 7;
  hand.panel->bufferHeight = 7;
  hand.panel->ResetBuffer();
  EXPECT_EQ(hand.panel->bufferWidth, 200);
  EXPECT_EQ(hand.panel->bufferHeight, 150);
  hand.panel->bordered = true;
  hand.panel->ResetBuffer();
  EXPECT_EQ(hand.panel->bufferWidth, 198);
  EXPECT_EQ(hand.panel->bufferHeight, 148);
}

TEST(SharedBufferPanelTest, TheToolsPaintingDoesNotShowThrough) {
  // Two panels paint through the same buffer.
  Hand hand;
  const auto other = MakeWindow<ProbePanel>(hand.shell, hand.tool->Handle(), false);
  other->Move(0, 150, 200, 100);
  other->shade = 90;
  other->Show();
  hand.shell.Settle();
  hand.panel->Redraw();
  other->Redraw();
  hand.shell.Settle();
  EXPECT_EQ(hand.At(1, 1), Pixels(hand.panel->TileColour(0, 0)));
  EXPECT_EQ(hand.At(1, 151), Pixels(other->TileColour(0, 0)));
}

// --- The border.

TEST(BorderedPanelTest, AFrameOfOnePixelStandsAroundTheContent) {
  for (const bool privately : {false, true}) {
    SCOPED_TRACE(privately);
    Hand hand;
    hand.panel->bordered = true;
    hand.panel->contentWidth = hand.panel->bufferWidth = 500;
    hand.panel->contentHeight = hand.panel->bufferHeight = 500;
    hand.panel->privateBuffer = privately;
    hand.panel->ResetBuffer();
    hand.panel->ScrollBy(1, 2);
    hand.panel->Redraw();
    hand.shell.Settle();
    for (int x = 0; x < 200; ++x) {
      EXPECT_EQ(hand.At(x, 0), 0u) << x;
      EXPECT_EQ(hand.At(x, 149), 0u) << x;
    }
    for (int y = 0; y < 150; ++y) {
      EXPECT_EQ(hand.At(0, y), 0u) << y;
      EXPECT_EQ(hand.At(199, y), 0u) << y;
    }
    // Content (1, 2) shows at (1, 1), the last one at (198, 148) is (198, 149).
    EXPECT_EQ(hand.At(1, 1), Pixels(hand.panel->TileColour(0, 0)));
    EXPECT_EQ(hand.At(10, 9), 0u);  // the corner of tile (1, 1)
    EXPECT_EQ(hand.At(198, 148), Pixels(hand.panel->TileColour(19, 14)));
  }
}

TEST(BorderedPanelTest, WhatTheContentDoesNotCoverLiesInsideTheFrame) {
  Hand hand;
  hand.panel->bordered = true;
  hand.KeepPrivately(100, 50);
  hand.shell.Settle();
  EXPECT_EQ(hand.At(100, 50), Pixels(hand.panel->TileColour(9, 4)));
  EXPECT_EQ(hand.At(101, 50), 0x404040u);
  EXPECT_EQ(hand.At(100, 51), 0x404040u);
  EXPECT_EQ(hand.At(198, 148), 0x404040u);
  EXPECT_EQ(hand.At(199, 148), 0u);
}

// --- A buffer of the panel's own.

TEST(PrivateBufferPanelTest, RedrawPaintsTheSmallerOfBufferAndContent) {
  Hand hand;
  hand.shell.Settle();
  hand.Forget();
  hand.KeepPrivately(300, 200);
  EXPECT_EQ(hand.panel->painted, (Rects{{0, 0, 300, 200}}));
  EXPECT_EQ(hand.panel->clips, (Rects{{0, 0, 300, 200}}));
  hand.panel->contentWidth = 250;  // the content has shrunk, the buffer stays
  hand.Forget();
  hand.panel->Redraw();
  EXPECT_EQ(hand.panel->painted, (Rects{{0, 0, 250, 200}}));
  hand.panel->contentWidth = 400;
  hand.panel->bufferHeight = 120;
  hand.Forget();
  hand.panel->Redraw();
  EXPECT_EQ(hand.panel->painted, (Rects{{0, 0, 300, 120}}));
}

TEST(PrivateBufferPanelTest, ScrollingDoesNotPaint) {
  Hand hand;
  hand.KeepPrivately(300, 250);
  hand.shell.Settle();
  hand.Forget();
  hand.panel->ScrollBy(30, 40);
  hand.shell.Settle();
  EXPECT_TRUE(hand.panel->painted.empty());
  EXPECT_EQ(hand.At(1, 1), Pixels(hand.panel->TileColour(3, 4)));
  EXPECT_EQ(hand.At(0, 0), 0u);
  hand.panel->ScrollBy(1000, 1000);
  hand.shell.Settle();
  EXPECT_TRUE(hand.panel->painted.empty());
  EXPECT_EQ(hand.panel->Scroll(), (Point{100, 100}));
  EXPECT_EQ(hand.At(199, 149), Pixels(hand.panel->TileColour(29, 24)));
}

TEST(PrivateBufferPanelTest, InvalidatingDoesNotPaintTheContentAnew) {
  Hand hand;
  hand.KeepPrivately(300, 250);
  hand.shell.Settle();
  hand.Forget();
  hand.panel->shade = 50;
  hand.panel->Invalidate();
  hand.shell.GetDevice().RepaintEverything();
  EXPECT_TRUE(hand.panel->painted.empty());
  EXPECT_EQ(hand.At(1, 1), Pixels(Rgb(0, 0, 0)));  // the picture of shade 0
  hand.panel->Redraw();
  hand.shell.Settle();
  EXPECT_EQ(hand.At(1, 1), Pixels(Rgb(50, 0, 0)));
}

TEST(PrivateBufferPanelTest, FillsWhatTheContentDoesNotCover) {
  Hand hand;
  hand.panel->background = Rgb(232, 232, 232);
  hand.panel->marginX = 40;
  hand.panel->marginY = 20;
  hand.KeepPrivately(300, 250);
  hand.panel->ScrollBy(1000, 1000);
  hand.shell.Settle();
  EXPECT_EQ(hand.panel->Scroll(), (Point{140, 120}));
  EXPECT_EQ(hand.At(159, 129), Pixels(hand.panel->TileColour(29, 24)));
  EXPECT_EQ(hand.At(160, 129), 0xE8E8E8u);
  EXPECT_EQ(hand.At(159, 130), 0xE8E8E8u);
  EXPECT_EQ(hand.At(199, 149), 0xE8E8E8u);
  EXPECT_EQ(hand.At(0, 149), 0xE8E8E8u);
  EXPECT_EQ(hand.At(199, 0), 0xE8E8E8u);
}

TEST(PrivateBufferPanelTest, ABufferSmallerThanTheContentShowsNoMoreThanItHas) {
  Hand hand;
  hand.panel->contentWidth = 300;
  hand.panel->contentHeight = 300;
  hand.panel->bufferWidth = 100;
  hand.panel->bufferHeight = 60;
  hand.panel->privateBuffer = true;
  hand.panel->ResetBuffer();
  hand.panel->Redraw();
  hand.shell.Settle();
  EXPECT_EQ(hand.At(99, 59), Pixels(hand.panel->TileColour(9, 5)));
  EXPECT_EQ(hand.At(100, 59), 0x404040u);
  EXPECT_EQ(hand.At(99, 60), 0x404040u);
}

TEST(PrivateBufferPanelTest, RedrawRectPaintsTheRectangleAlone) {
  Hand hand;
  hand.KeepPrivately(300, 250);
  hand.shell.Settle();
  hand.Forget();
  hand.panel->shade = 50;
  hand.panel->RedrawRect(12, 21, 34, 35);
  EXPECT_EQ(hand.panel->painted, (Rects{{12, 21, 34, 35}}));
  EXPECT_EQ(hand.panel->clips, (Rects{{12, 21, 34, 35}}));
  hand.shell.Settle();
  // Column 1 was Rgb(37, ...), and is 50 more inside the rectangle.
  EXPECT_EQ(hand.At(12, 21) >> 16, 87u);
  EXPECT_EQ(hand.At(11, 21) >> 16, 37u);
  EXPECT_EQ(hand.At(12, 20) >> 16, 37u);
  EXPECT_EQ(hand.At(33, 31) >> 16, 161u);
  EXPECT_EQ(hand.At(34, 31) >> 16, 111u);
}

TEST(PrivateBufferPanelTest, RedrawRectOutsideTheContentPaintsNothing) {
  Hand hand;
  hand.KeepPrivately(300, 250);
  hand.shell.Settle();
  hand.Forget();
  hand.panel->RedrawRect(300, 0, 400, 100);
  hand.panel->RedrawRect(50, 50, 50, 80);
  hand.panel->RedrawRect(80, 50, 50, 80);
  EXPECT_TRUE(hand.panel->painted.empty());
  hand.panel->RedrawRect(-10, 240, 10, 400);
  EXPECT_EQ(hand.panel->painted, (Rects{{0, 240, 10, 250}}));
}

TEST(PrivateBufferPanelTest, WithoutABufferOfItsOwnItGoesBackToTheSharedOne) {
  Hand hand;
  hand.KeepPrivately(300, 250);
  hand.shell.Settle();
  hand.panel->privateBuffer = false;
  hand.panel->ResetBuffer();
  EXPECT_EQ(hand.panel->bufferWidth, 200);
  EXPECT_EQ(hand.panel->bufferHeight, 150);
  hand.panel->Redraw();
  hand.shell.Settle();
  hand.Forget();
  hand.panel->ScrollBy(20, 0);
  hand.shell.Settle();
  EXPECT_EQ(hand.panel->painted, (Rects{{20, 0, 220, 150}}));
}

TEST(PrivateBufferPanelTest, AContentWithoutAreaIsAllBackground) {
  for (const Size size : {Size{0, 100}, Size{100, 0}, Size{0, 0}, Size{-50, -50}}) {
    Hand hand;
    hand.shell.Settle();
    hand.Forget();
    hand.KeepPrivately(size.width, size.height);
    hand.shell.Settle();
    EXPECT_TRUE(hand.panel->painted.empty());
    EXPECT_EQ(hand.At(0, 0), 0x404040u);
    EXPECT_EQ(hand.At(199, 149), 0x404040u);
  }
}

TEST(PrivateBufferPanelTest, APanelThatGetsItsSizeLaterPaintsThen) {
  Hand hand;
  hand.panel->Move(0, 0, 0, 0);
  hand.KeepPrivately(300, 250);
  hand.shell.Settle();
  hand.panel->Move(0, 0, 200, 150);
  hand.shell.Settle();
  EXPECT_EQ(hand.At(11, 1), Pixels(hand.panel->TileColour(1, 0)));
  EXPECT_EQ(hand.At(199, 149), Pixels(hand.panel->TileColour(19, 14)));
}

TEST(PrivateBufferPanelTest, AHiddenPanelPaintsWhenItShows) {
  Hand hand;
  hand.shell.Settle();
  hand.tool->Hide();
  hand.Forget();
  hand.KeepPrivately(300, 250);
  EXPECT_TRUE(hand.panel->painted.empty());
  hand.tool->Show();
  hand.shell.Settle();
  EXPECT_EQ(hand.panel->painted, (Rects{{0, 0, 300, 250}}));
  hand.tool->Hide();
  hand.Forget();
  hand.tool->Show();
  hand.shell.Settle();
  EXPECT_TRUE(hand.panel->painted.empty());  // the buffer has it still
  EXPECT_EQ(hand.At(11, 1), Pixels(hand.panel->TileColour(1, 0)));
}

}  // namespace
}  // namespace orvane
