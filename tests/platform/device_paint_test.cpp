// Invalidation, WM_PAINT, window canvases and scrolling.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/platform/device_test_bed.h"

namespace orvane::device_test {
namespace {

using testing::ElementsAre;

constexpr Colour kMainColour = Rgb(10, 20, 30);
constexpr Colour kRed = Rgb(200, 0, 0);
constexpr Colour kBlue = Rgb(0, 0, 200);

struct DevicePaint : testing::Test {
  TestBed bed;
  Device& device = *bed.device;
  WindowHandle main = bed.Make("main", Rect::At(0, 26, 240, 268));
  void SetUp() override {
    bed.Settle();
    bed.ForgetMessages();
  }
  // From here on the window paints all of itself in this colour.
  void PaintAll(const std::string& name, Colour colour) {
    bed.On(name, WM_PAINT, [this, colour](WindowHandle window) {
      device.WindowCanvas(window).FillRect(Rect::At({0, 0}, device.ClientSize(window)), colour);
      device.Validate(window);
    });
  }
};

TEST_F(DevicePaint, AShownWindowPaintsOnce) {
  const WindowHandle tool = bed.Make("tool", Rect::At(0, 0, 50, 50), main);
  EXPECT_EQ(device.InvalidRect(tool), Rect::At(0, 0, 50, 50));
  EXPECT_EQ(bed.Settle(), 1);
  EXPECT_EQ(bed.CountOf(tool, WM_PAINT), 1);
  EXPECT_EQ(device.InvalidRect(tool), Rect{});
  EXPECT_EQ(bed.Settle(), 1);
  EXPECT_EQ(bed.CountOf(tool, WM_PAINT), 1);
}

TEST_F(DevicePaint, InvalidPartsUnite) {
  device.Invalidate(main, Rect::At(10, 10, 5, 5));
  device.Invalidate(main, Rect::At(20, 30, 5, 5));
  EXPECT_EQ(device.InvalidRect(main), Rect::At(10, 10, 15, 25));
  device.Invalidate(main, {-100, -100, 1000, 11});
  EXPECT_EQ(device.InvalidRect(main), Rect::At(0, 0, 240, 35));
  device.Validate(main);
  EXPECT_EQ(device.InvalidRect(main), Rect{});
  bed.Settle();
  EXPECT_EQ(bed.CountOf(main, WM_PAINT), 0);
}

TEST_F(DevicePaint, PaintingReachesOnlyWhatIsInvalid) {
  PaintAll("main", kRed);
  device.Invalidate(main, Rect::At(10, 10, 5, 5));
  bed.Settle();
  EXPECT_EQ(bed.host.Pixel(10, 36), PixelOf(kRed));
  EXPECT_EQ(bed.host.Pixel(14, 40), PixelOf(kRed));
  EXPECT_EQ(bed.host.Pixel(9, 36), PixelOf(kMainColour));
  EXPECT_EQ(bed.host.Pixel(15, 40), PixelOf(kMainColour));
}

TEST_F(DevicePaint, TheInvalidPartIsKnownWhilePainting) {
  Rect seen;
  bed.On("main", WM_PAINT, [&](WindowHandle window) { seen = device.InvalidRect(window); });
  device.Invalidate(main, Rect::At(10, 10, 5, 5));
  bed.Settle();
  EXPECT_EQ(seen, Rect::At(10, 10, 5, 5));
}

TEST_F(DevicePaint, AWindowThatDoesNotValidateIsNotAskedAgain) {
  bed.On("main", WM_PAINT, [](WindowHandle) {});
  device.Invalidate(main);
  EXPECT_EQ(bed.Settle(), 1);
  EXPECT_EQ(bed.CountOf(main, WM_PAINT), 1);
}

TEST_F(DevicePaint, WhatPaintingInvalidatesIsPaintedAtTheNextStep) {
  bool again = true;
  bed.On("main", WM_PAINT, [&](WindowHandle window) {
    device.Validate(window);
    if (std::exchange(again, false)) device.Invalidate(window, Rect::At(1, 2, 3, 4));
  });
  device.Invalidate(main);
  device.Step(0);
  EXPECT_EQ(device.InvalidRect(main), Rect::At(1, 2, 3, 4));
  EXPECT_FALSE(device.Quiescent());
  EXPECT_EQ(bed.Settle(), 1);
  EXPECT_EQ(bed.CountOf(main, WM_PAINT), 2);
}

TEST_F(DevicePaint, UpdatePaintsAtOnceWhatIsInvalid) {
  device.Update(main);
  EXPECT_EQ(bed.CountOf(main, WM_PAINT), 0);
  device.Invalidate(main, Rect::At(0, 0, 1, 1));
  device.Update(main);
  EXPECT_EQ(bed.CountOf(main, WM_PAINT), 1);
  bed.Settle();
  EXPECT_EQ(bed.CountOf(main, WM_PAINT), 1);
}

TEST_F(DevicePaint, UpdateWithinThePaintDoesNotNest) {
  bed.On("main", WM_PAINT, [this](WindowHandle window) {
    device.Invalidate(window);
    device.Update(window);
    device.Validate(window);
  });
  device.Invalidate(main);
  EXPECT_EQ(bed.Settle(), 1);
  EXPECT_EQ(bed.CountOf(main, WM_PAINT), 1);
}

TEST_F(DevicePaint, AHiddenWindowDoesNotPaint) {
  device.ShowWindow(main, false);
  device.Invalidate(main);
  device.Update(main);
  bed.Settle();
  EXPECT_EQ(bed.CountOf(main, WM_PAINT), 0);
}

TEST_F(DevicePaint, AHiddenWindowGivesItsPixelsUpAndPaintsAgainWhenShown) {
  const WindowHandle child = bed.MakeChild("child", Rect::At(0, 0, 50, 50), main);
  bed.Settle();
  EXPECT_EQ(bed.counts.surfaces, 2);
  device.ShowWindow(main, false);
  EXPECT_EQ(bed.counts.surfaces, 0);
  bed.ForgetMessages();
  device.ShowWindow(main, true);
  bed.Settle();
  EXPECT_EQ(bed.CountOf(main, WM_PAINT), 1);
  EXPECT_EQ(bed.CountOf(child, WM_PAINT), 1);
}

TEST_F(DevicePaint, ACoveredWindowIsNotAskedUntilItShows) {
  const WindowHandle below = bed.Make("below", Rect::At(0, 0, 100, 100), main);
  const WindowHandle left = bed.Make("left", Rect::At(0, 0, 60, 100), main);
  const WindowHandle right = bed.Make("right", Rect::At(60, 0, 60, 120), main);
  bed.Settle();
  EXPECT_EQ(bed.CountOf(below, WM_PAINT), 0);
  EXPECT_EQ(bed.counts.surfaces, 3);  // main, left, right
  device.Invalidate(below);
  device.Update(below);
  EXPECT_EQ(bed.CountOf(below, WM_PAINT), 0);
  EXPECT_TRUE(device.Quiescent());
  device.MoveWindow(right, Rect::At(61, 0, 60, 120));
  bed.Settle();
  EXPECT_EQ(bed.CountOf(below, WM_PAINT), 1);
  device.DestroyWindow(left);
  bed.Settle();
  EXPECT_EQ(bed.CountOf(below, WM_PAINT), 1);  // it kept its pixels
}

TEST_F(DevicePaint, AWindowThatGetsCoveredGivesItsPixelsUp) {
  const WindowHandle first = bed.Make("first", Rect::At(0, 0, 240, 268), main);
  bed.Settle();
  const WindowHandle second = bed.Make("second", Rect::At(0, 0, 240, 268), main);
  bed.Settle();
  EXPECT_EQ(bed.counts.surfaces, 1);
  bed.ForgetMessages();
  device.BringToTop(first);
  bed.Settle();
  EXPECT_EQ(bed.counts.surfaces, 1);
  EXPECT_EQ(bed.CountOf(first, WM_PAINT), 1);
  EXPECT_EQ(bed.CountOf(second, WM_PAINT), 0);
  EXPECT_THAT(device.VisibleWindows(), ElementsAre(main, second, first));
}

TEST_F(DevicePaint, AParentCoveredByItsChildrenDoesNotPaint) {
  const WindowHandle tool = bed.Make("tool", Rect::At(0, 0, 240, 268), main);
  bed.MakeChild("child", Rect::At(0, 0, 240, 268), tool);
  bed.Settle();
  EXPECT_EQ(bed.CountOf(tool, WM_PAINT), 0);
}

TEST_F(DevicePaint, OutsideItsParentAWindowDoesNotPaint) {
  const WindowHandle child = bed.MakeChild("child", Rect::At(240, 0, 50, 50), main);
  bed.Settle();
  EXPECT_EQ(bed.CountOf(child, WM_PAINT), 0);
  device.MoveWindow(child, Rect::At(239, 0, 50, 50));
  bed.Settle();
  EXPECT_EQ(bed.CountOf(child, WM_PAINT), 1);
}

TEST_F(DevicePaint, UncoveringNeedsNoPainting) {
  const WindowHandle small = bed.Make("small", Rect::At(10, 10, 20, 20), main);
  bed.Settle();
  EXPECT_EQ(bed.host.Pixel(15, 41), PixelOf(kMainColour));  // the default colour of both
  PaintAll("small", kRed);
  device.Invalidate(small);
  bed.Settle();
  EXPECT_EQ(bed.host.Pixel(15, 41), PixelOf(kRed));
  bed.ForgetMessages();
  device.ShowWindow(small, false);
  bed.Settle();
  EXPECT_EQ(bed.host.Pixel(15, 41), PixelOf(kMainColour));
  EXPECT_EQ(bed.MessagesOf(WM_PAINT).size(), 0u);
}

TEST_F(DevicePaint, DrawingOutsideWmPaintShowsAtTheNextStep) {
  device.WindowCanvas(main).FillRect(Rect::At(0, 0, 2, 2), kBlue);
  EXPECT_FALSE(device.Quiescent());
  bed.Settle();
  EXPECT_EQ(bed.host.Pixel(1, 27), PixelOf(kBlue));
  EXPECT_EQ(bed.CountOf(main, WM_PAINT), 0);
}

TEST_F(DevicePaint, DrawingIntoAWindowThatHasNoPixelsIsHarmless) {
  const WindowHandle hidden = bed.Make("hidden", Rect::At(0, 0, 9, 9), main, 0);
  const WindowHandle empty = bed.Make("empty", Rect::At(0, 0, 0, 9), main);
  device.WindowCanvas(hidden).FillRect(Rect::At(0, 0, 9, 9), kBlue);
  device.WindowCanvas(empty).FillRect(Rect::At(0, 0, 9, 9), kBlue);
  bed.Settle();
  EXPECT_EQ(bed.host.Pixel(3, 29), PixelOf(kMainColour));
}

TEST_F(DevicePaint, ANewSurfaceHasTheBackgroundOfItsClass) {
  const WindowHandle tool = bed.Make("tool", Rect::At(0, 0, 50, 50), main, WS_VISIBLE, kBlue);
  bed.On("tool", WM_PAINT, [](WindowHandle) {});
  ASSERT_NE(tool, kNoWindow);
  bed.Settle();
  EXPECT_EQ(bed.host.Pixel(10, 30), PixelOf(kBlue));
}

// --- Scrolling.

struct DeviceScroll : DevicePaint {
  // A row of one-pixel stripes, each of its own colour, in row 0 to 9 of the main window.
  void PaintStripes() {
    bed.On("main", WM_PAINT, [](WindowHandle) {});
    Canvas& canvas = device.WindowCanvas(main);
    for (int x = 0; x < 240; ++x) canvas.FillRect(Rect::At(x, 0, 1, 10), Stripe(x));
    bed.Settle();
    bed.ForgetMessages();
  }
  static Colour Stripe(int x) { return Rgb(x, 100, 200); }
  std::uint32_t At(int x, int y = 5) { return bed.host.Pixel(x, 26 + y); }
};

TEST_F(DeviceScroll, MovesTheContentAndInvalidatesTheStripUncovered) {
  PaintStripes();
  device.ScrollWindowRect(main, Rect::At(20, 0, 100, 10), 7, 0);
  EXPECT_EQ(device.InvalidRect(main), Rect::At(20, 0, 7, 10));
  bed.Settle();
  EXPECT_EQ(At(27), PixelOf(Stripe(20)));
  EXPECT_EQ(At(119), PixelOf(Stripe(112)));
  EXPECT_EQ(At(120), PixelOf(Stripe(120)));  // outside the part nothing moves
  EXPECT_EQ(At(19), PixelOf(Stripe(19)));
  EXPECT_EQ(At(20), PixelOf(Stripe(20)));  // uncovered, not erased
}

TEST_F(DeviceScroll, EverySideUncoversItsOwnStrip) {
  const Rect area = Rect::At(20, 10, 100, 50);
  const std::pair<Point, Rect> cases[] = {{{-7, 0}, Rect::At(113, 10, 7, 50)},
                                          {{0, 5}, Rect::At(20, 10, 100, 5)},
                                          {{0, -5}, Rect::At(20, 55, 100, 5)},
                                          {{3, 4}, area},  // the corner's strips span it all
                                          {{100, 0}, area},
                                          {{0, -50}, area},
                                          {{INT32_MAX, INT32_MIN}, area},
                                          {{INT32_MIN, 0}, area},
                                          {{0, INT32_MIN}, area}};
  for (const auto& [move, uncovered] : cases) {
    bed.Settle();
    device.ScrollWindowRect(main, area, move.x, move.y);
    EXPECT_EQ(device.InvalidRect(main), uncovered) << move.x << "," << move.y;
  }
  bed.Settle();
  device.ScrollWindowRect(main, area, 0, 0);
  EXPECT_EQ(device.InvalidRect(main), Rect{});
}

TEST_F(DeviceScroll, WhatWasInvalidMovesAlong) {
  device.Invalidate(main, Rect::At(50, 20, 5, 5));
  device.ScrollWindowRect(main, Rect::At(20, 10, 100, 50), 0, 10);
  EXPECT_EQ(device.InvalidRect(main), Rect::At(20, 10, 100, 25));
}

TEST_F(DeviceScroll, WithoutPixelsAllOfThePartIsInvalid) {
  const WindowHandle hidden = bed.Make("hidden", Rect::At(0, 0, 50, 50), main, 0);
  device.ShowWindow(hidden, true);
  device.Validate(hidden);  // there is nothing to be valid yet
  device.ScrollWindowRect(hidden, Rect::At(0, 0, 50, 50), 0, 10);
  EXPECT_EQ(device.InvalidRect(hidden), Rect::At(0, 0, 50, 50));
}

TEST(DeviceScrollScaled, AMoveByBrokenDevicePixelsRepaintsInstead) {
  TestBed bed(1.5);
  const WindowHandle main = bed.Make("main", Rect::At(0, 26, 240, 268));
  bed.Settle();
  bed.device->ScrollWindowRect(main, Rect::At(0, 0, 100, 100), 0, 2);
  EXPECT_EQ(bed.device->InvalidRect(main), Rect::At(0, 0, 100, 2));
  bed.Settle();
  bed.device->ScrollWindowRect(main, Rect::At(0, 0, 100, 100), 0, 1);
  EXPECT_EQ(bed.device->InvalidRect(main), Rect::At(0, 0, 100, 100));
}

}  // namespace
}  // namespace orvane::device_test
