// Scales, clips and origins: where logical pixels lie, and what of them may be drawn.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "platform/canvas.h"
#include "tests/platform/pixel_picture.h"

namespace orvane {
namespace {

TEST(SurfaceGrid, DeviceSizeIsRoundedUp) {
  const auto graphics = MakeGraphics("");
  const auto surface = [&](Size size, double scale) { return graphics->CreateSurface(size, scale, false); };
  EXPECT_EQ(surface({240, 320}, 1.25)->DeviceWidth(), 300);
  EXPECT_EQ(surface({240, 320}, 1.25)->DeviceHeight(), 400);
  EXPECT_EQ(surface({3, 5}, 1.5)->DeviceWidth(), 5);
  EXPECT_EQ(surface({3, 5}, 1.5)->DeviceHeight(), 8);
  EXPECT_EQ(surface({3, 3}, 1.15)->DeviceWidth(), 4);
  EXPECT_EQ(surface({240, 1}, 1.1)->DeviceWidth(), 264);  // although 240 × 1.1 is a little more in binary
}

TEST(SurfaceGrid, OddSizesAndScalesBecomeSensible) {
  const auto graphics = MakeGraphics("");
  EXPECT_EQ(graphics->CreateSurface({0, -5}, 2, false)->GetSize(), (Size{1, 1}));
  EXPECT_EQ(graphics->CreateSurface({2, 2}, 0.1, false)->Scale(), 1.0);
  EXPECT_EQ(graphics->CreateSurface({2, 2}, 99, false)->Scale(), 16.0);
  EXPECT_EQ(graphics->CreateSurface({2, 2}, std::numeric_limits<double>::quiet_NaN(), false)->Scale(), 1.0);
}

TEST(SurfaceGrid, ASurfaceStartsBlackAndIsBlackOutside) {
  const auto graphics = MakeGraphics("");
  const auto surface = graphics->CreateSurface({2, 1}, 2, false);
  EXPECT_EQ(Picture(*surface), (Rows{"....", "...."}));
  surface->GetCanvas().FillRect({0, 0, 2, 1}, kWhite);
  EXPECT_EQ(surface->DevicePixel(3, 1), 0xFFFFFFu);
  EXPECT_EQ(surface->DevicePixel(4, 0), 0u);
  EXPECT_EQ(surface->DevicePixel(0, 2), 0u);
  EXPECT_EQ(surface->DevicePixel(-1, -1), 0u);
}

// Worked by hand: at 1.5 the logical columns begin at 0, 1.5, 3, 4.5, 6, 7.5 → 0, 2, 3, 5, 6, 8.
TEST(SurfaceGrid, LogicalPixelsBeginAtRoundedDevicePixels) {
  const auto graphics = MakeGraphics("");
  const auto surface = graphics->CreateSurface({6, 1}, 1.5, false);
  Canvas& c = surface->GetCanvas();
  const Colour colours[] = {kRed, kGreen, kBlue};
  for (int x = 0; x < 6; ++x) c.FillRect({x, 0, x + 1, 1}, colours[x % 3]);
  EXPECT_EQ(Picture(*surface), (Rows{"rrgbbrggb", "rrgbbrggb"}));
}

TEST(SurfaceGrid, NeighboursTileWithoutGapsAtAnyScale) {
  const auto graphics = MakeGraphics("");
  for (const double scale : {1.0, 1.1, 1.15, 1.25, 1.5, 1.75, 2.3, 3.0, 4.7}) {
    SCOPED_TRACE(scale);
    const auto surface = graphics->CreateSurface({31, 17}, scale, false);
    Canvas& c = surface->GetCanvas();
    for (int y = 0; y < 17; ++y) {
      for (int x = 0; x < 31; ++x) c.FillRect({x, y, x + 1, y + 1}, Rgb(1 + x, 1 + y, 7));
    }
    for (int dy = 0; dy < surface->DeviceHeight(); ++dy) {
      for (int dx = 0; dx < surface->DeviceWidth(); ++dx) {
        const std::uint32_t pixel = surface->DevicePixel(dx, dy);
        ASSERT_EQ(pixel & 0xFFu, 7u) << dx << ", " << dy;
        const int x = static_cast<int>(pixel >> 16) - 1;
        // The last column reaches to the end of the surface.
        ASSERT_GE(dx, static_cast<int>(std::floor(x * scale + 0.5)));
        const int next = static_cast<int>(std::floor((x + 1) * scale + 0.5));
        ASSERT_LT(dx, x < 30 ? next : surface->DeviceWidth());
      }
    }
  }
}

// At 1.25 an outline is one or two device pixels wide, never none.
TEST(SurfaceGrid, HairlinesStayAtFractionalScales) {
  const auto graphics = MakeGraphics("");
  const auto surface = graphics->CreateSurface({5, 4}, 1.25, false);
  surface->GetCanvas().Rectangle({1, 0, 4, 4}, kRed, kBlue);
  // Columns begin at 0, 1, 3, 4, 5; rows at 0, 1, 3, 4, 5.
  EXPECT_EQ(Picture(*surface), (Rows{".rrrr..", ".rrbr..", ".rrbr..", ".rrbr..", ".rrrr.."}));
}

TEST(CanvasClip, ClipsNarrowAndReturn) {
  ExpectAtEveryScale({5, 3}, {"rrgrr", "rggbr", "rrrrr"}, [](Canvas& c) {
    c.FillRect({0, 0, 5, 3}, kRed);
    c.PushClip({1, 0, 4, 2});
    c.PushClip({0, 1, 3, 3});
    EXPECT_EQ(c.ClipBounds(), (Rect{1, 1, 3, 2}));
    c.FillRect({-9, -9, 99, 99}, kGreen);
    c.PopClip();
    EXPECT_EQ(c.ClipBounds(), (Rect{1, 0, 4, 2}));
    c.FillRect({2, 0, 3, 1}, kGreen);
    c.FillRect({3, 1, 9, 9}, kBlue);
    c.PopClip();
    EXPECT_EQ(c.ClipBounds(), (Rect{0, 0, 5, 3}));
    c.PopClip();  // one too many changes nothing
    EXPECT_EQ(c.ClipBounds(), (Rect{0, 0, 5, 3}));
  });
}

TEST(CanvasClip, DisjointClipsLetNothingThrough) {
  ExpectAtEveryScale({4, 1}, {"...."}, [](Canvas& c) {
    c.PushClip({0, 0, 2, 1});
    c.PushClip({2, 0, 4, 1});
    EXPECT_TRUE(c.ClipBounds().Empty());
    c.FillRect({0, 0, 4, 1}, kRed);
    c.Ellipse({0, 0, 4, 1}, kRed, kRed);
    c.Line({0, 0}, {4, 1}, kRed);
  });
}

TEST(CanvasClip, TheOriginMovesDrawingAndClips) {
  ExpectAtEveryScale({5, 3}, {".....", "..rr.", "..rb."}, [](Canvas& c) {
    c.SetOrigin({2, 1});
    EXPECT_EQ(c.Origin(), (Point{2, 1}));
    EXPECT_EQ(c.ClipBounds(), (Rect{-2, -1, 3, 2}));
    c.PushClip({0, 0, 2, 2});
    c.FillRect({-5, -5, 5, 5}, kRed);
    c.SetOrigin({3, 2});  // the clip stays where it was
    EXPECT_EQ(c.ClipBounds(), (Rect{-1, -1, 1, 1}));
    c.FillRect({0, 0, 5, 5}, kBlue);
  });
}

TEST(CanvasClip, EachGetCanvasStartsAnew) {
  const auto graphics = MakeGraphics("");
  const auto surface = graphics->CreateSurface({4, 4}, 1, false);
  Canvas& first = surface->GetCanvas();
  first.SetOrigin({3, 3});
  first.PushClip({0, 0, 1, 1});
  Canvas& again = surface->GetCanvas();
  EXPECT_EQ(again.Origin(), (Point{0, 0}));
  EXPECT_EQ(again.ClipBounds(), (Rect{0, 0, 4, 4}));
}

TEST(CanvasClip, ClipsCutSmoothShapesToThePixel) {
  const auto graphics = MakeGraphics("");
  const auto surface = graphics->CreateSurface({10, 10}, 2, false);
  Canvas& c = surface->GetCanvas();
  c.PushClip({3, 3, 6, 6});
  c.Ellipse({-5, -5, 15, 15}, kRed, kRed);
  for (int y = 0; y < 20; ++y) {
    for (int x = 0; x < 20; ++x) {
      const bool inside = x >= 6 && x < 12 && y >= 6 && y < 12;
      EXPECT_EQ(Letter(surface->DevicePixel(x, y)), inside ? 'r' : '.') << x << ", " << y;
    }
  }
}

}  // namespace
}  // namespace orvane
