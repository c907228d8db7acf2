#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <vector>

#include "platform/canvas.h"
#include "platform/device_pixels.h"
#include "tests/platform/pixel_picture.h"

namespace orvane {
namespace {

constexpr int kHuge = std::numeric_limits<int>::max();
constexpr int kTiny = std::numeric_limits<int>::min();

TEST(CanvasShapes, FillExcludesRightAndBottom) {
  ExpectAtEveryScale({5, 4}, {".....", ".rrr.", ".rrr.", "....."}, [](Canvas& c) {
    c.FillRect({1, 1, 4, 3}, kRed);
  });
}

TEST(CanvasShapes, FillIsCutToTheSurface) {
  ExpectAtEveryScale({3, 2}, {"rr.", "rr."}, [](Canvas& c) { c.FillRect({-9, -9, 2, 9}, kRed); });
}

TEST(CanvasShapes, EmptyAndInvertedRectanglesDrawNothing) {
  ExpectAtEveryScale({3, 2}, {"...", "..."}, [](Canvas& c) {
    for (const Rect& r : {Rect{1, 0, 1, 2}, Rect{2, 2, 0, 0}, Rect{kHuge, kHuge, kTiny, kTiny}}) {
      c.FillRect(r, kRed);
      c.Rectangle(r, kRed, kBlue);
      c.FrameRect(r, kRed);
      c.RoundRect(r, {2, 2}, kRed, kBlue);
      c.Ellipse(r, kRed, kBlue);
    }
  });
}

TEST(CanvasShapes, RectangleHasItsOutlineInside) {
  ExpectAtEveryScale({6, 5}, {"......", ".rrrr.", ".rbbr.", ".rrrr.", "......"}, [](Canvas& c) {
    c.Rectangle({1, 1, 5, 4}, kRed, kBlue);
  });
}

TEST(CanvasShapes, SmallRectanglesAreAllOutline) {
  ExpectAtEveryScale({7, 3}, {"r.rr.rr", "..rr.rr", ".....rr"}, [](Canvas& c) {
    c.Rectangle({0, 0, 1, 1}, kRed, kBlue);
    c.Rectangle({2, 0, 4, 2}, kRed, kBlue);
    c.Rectangle({5, 0, 7, 3}, kRed, kBlue);
  });
}

TEST(CanvasShapes, FrameLeavesTheInsideAlone) {
  ExpectAtEveryScale({5, 4}, {"rrrrr", "rgggr", "rgggr", "rrrrr"}, [](Canvas& c) {
    c.FillRect({0, 0, 5, 4}, kGreen);
    c.FrameRect({0, 0, 5, 4}, kRed);
  });
}

TEST(CanvasShapes, StraightLinesExcludeTheirLastPoint) {
  ExpectAtEveryScale({6, 4}, {"rrr.g.", "....g.", "....g.", "......"}, [](Canvas& c) {
    c.Line({0, 0}, {3, 0}, kRed);
    c.Line({4, 0}, {4, 3}, kGreen);
  });
}

TEST(CanvasShapes, StraightLinesBackwardsExcludeTheirLastPointToo) {
  ExpectAtEveryScale({6, 4}, {".rrr..", ".....g", ".....g", ".....g"}, [](Canvas& c) {
    c.Line({3, 0}, {0, 0}, kRed);
    c.Line({5, 3}, {5, 0}, kGreen);
  });
}

TEST(CanvasShapes, ALineOfNoLengthDrawsNothing) {
  ExpectAtEveryScale({3, 3}, {"...", "...", "..."}, [](Canvas& c) {
    c.Line({1, 1}, {1, 1}, kRed);
    c.Line({1, 1}, {1, 1}, kRed, 3);
    c.Polyline({}, kRed);
    const Point one[] = {{1, 1}};
    c.Polyline(one, kRed);
  });
}

TEST(CanvasShapes, WideLinesAreCentred) {
  ExpectAtEveryScale({4, 9}, {"....", "rrr.", "rrr.", "rrr.", "....", "ggg.", "ggg.", "....", "...."},
                     [](Canvas& c) {
                       c.Line({0, 2}, {3, 2}, kRed, 3);
                       c.Line({0, 6}, {3, 6}, kGreen, 2);
                     });
}

TEST(CanvasShapes, AWidthBelowOneIsOne) {
  ExpectAtEveryScale({3, 3}, {"...", "rr.", "..."}, [](Canvas& c) { c.Line({0, 1}, {2, 1}, kRed, -4); });
}

TEST(CanvasShapes, AStraightPolylineClosesItsLoop) {
  ExpectAtEveryScale({5, 4}, {"rrrrr", "r...r", "r...r", "rrrrr"}, [](Canvas& c) {
    const Point loop[] = {{0, 0}, {4, 0}, {4, 3}, {0, 3}, {0, 0}};
    c.Polyline(loop, kRed);
  });
}

TEST(CanvasShapes, APolygonOfARectanglesCornersIsThatRectangle) {
  ExpectAtEveryScale({5, 4}, {".....", ".bbb.", ".bbb.", "....."}, [](Canvas& c) {
    const Point corners[] = {{1, 1}, {4, 1}, {4, 3}, {1, 3}};
    c.Polygon(corners, kBlue);
  });
}

TEST(CanvasShapes, APolygonThatCrossesItselfHasAHole) {
  ExpectAtEveryScale({6, 6}, {"rrrrrr", "rrrrrr", "rr..rr", "rr..rr", "rrrrrr", "rrrrrr"}, [](Canvas& c) {
    const Point corners[] = {{0, 0}, {6, 0}, {6, 6}, {0, 6}, {0, 0}, {2, 2}, {4, 2}, {4, 4}, {2, 4}, {2, 2}};
    c.Polygon(corners, kRed);
  });
}

TEST(CanvasShapes, PolygonsOfFewerThanThreePointsDrawNothing) {
  ExpectAtEveryScale({3, 1}, {"..."}, [](Canvas& c) {
    const Point two[] = {{0, 0}, {3, 1}};
    c.Polygon(two, kRed);
    c.Polygon({}, kRed);
  });
}

TEST(CanvasShapes, ARoundRectWithoutCornersIsARectangle) {
  ExpectAtEveryScale({5, 4}, {"rrrr.", "rbbr.", "rrrr.", "....."}, [](Canvas& c) {
    c.RoundRect({0, 0, 4, 3}, {0, 8}, kRed, kBlue);
  });
}

// A pixel of the middle of each side is outline for one logical pixel, and fill behind it; the very corner
// stays what it was.
TEST(CanvasShapes, RoundRectsAndEllipsesHaveOutlinesOfOnePixelInside) {
  const auto graphics = MakeGraphics("");
  for (const int s : {1, 2, 3}) {
    for (const bool ellipse : {false, true}) {
      SCOPED_TRACE(testing::Message() << s << (ellipse ? " ellipse" : " round rectangle"));
      const auto surface = graphics->CreateSurface({30, 30}, s, false);
      Canvas& c = surface->GetCanvas();
      c.FillRect({0, 0, 30, 30}, kWhite);
      if (ellipse) {
        c.Ellipse({3, 3, 24, 24}, kRed, kBlue);
      } else {
        c.RoundRect({3, 3, 24, 24}, {8, 8}, kRed, kBlue);
      }
      // The letters of the middle row and column, from outside the left (upper) edge to outside the other.
      const int middle = 13 * s + s / 2;
      for (const bool across : {true, false}) {
        const auto pixel = [&](int at) {
          return surface->DevicePixel(across ? at : middle, across ? middle : at);
        };
        // An ellipse touches its box in a point, so that its next pixel is a mixture.
        const int bend = ellipse ? s : 0;
        EXPECT_EQ(Letter(pixel(3 * s - 1)), 'w');
        EXPECT_EQ(Letter(pixel(4 * s + bend)), 'b');
        EXPECT_EQ(Letter(pixel(23 * s - 1 - bend)), 'b');
        EXPECT_EQ(Letter(pixel(24 * s)), 'w');
        for (const int outline : {3 * s, 24 * s - 1}) {
          EXPECT_GT(pixel(outline) >> 16, 0xC0u);
          EXPECT_LT(pixel(outline) & 0xFFu, ellipse ? 0x60u : 0x01u);
        }
      }
      EXPECT_EQ(Letter(surface->DevicePixel(13 * s, 13 * s)), 'b');
      for (const int x : {3 * s, 24 * s - 1}) {
        for (const int y : {3 * s, 24 * s - 1}) {
          // At most a little of the outline reaches the corner pixel.
          EXPECT_GE(surface->DevicePixel(x, y) & 0xFFu, 0x60u) << x << ", " << y;
        }
      }
    }
  }
}

// The area of a drawn ellipse is that of the ellipse: π/4 of its box, within one part in a hundred.
TEST(CanvasShapes, AnEllipseCoversItsArea) {
  const auto graphics = MakeGraphics("");
  const auto surface = graphics->CreateSurface({50, 40}, 2, false);
  surface->GetCanvas().Ellipse({5, 5, 45, 35}, kWhite, kWhite);
  double covered = 0;
  for (int y = 0; y < 80; ++y) {
    for (int x = 0; x < 100; ++x) covered += (surface->DevicePixel(x, y) & 0xFFu) / 255.0;
  }
  EXPECT_NEAR(covered / (80 * 60), std::acos(-1.0) / 4, 0.01);
}

TEST(CanvasShapes, ADiagonalLineRunsFromItsFirstPixelUpToItsLast) {
  const auto graphics = MakeGraphics("");
  for (const int s : {1, 2, 3}) {
    SCOPED_TRACE(s);
    const auto surface = graphics->CreateSurface({10, 10}, s, false);
    surface->GetCanvas().Line({2, 2}, {7, 7}, kWhite);
    const auto grey = [&](int x, int y) {
      return surface->DevicePixel(x * s + s / 2, y * s + s / 2) & 0xFFu;
    };
    for (int i = 2; i < 7; ++i) EXPECT_GT(grey(i, i), 180u) << i;
    EXPECT_LT(grey(1, 1), 64u);
    EXPECT_LT(grey(7, 7), 64u);
    EXPECT_EQ(grey(8, 8), 0u);
    EXPECT_EQ(grey(2, 6), 0u);
  }
}

// A line through far points keeps its slope where it can be seen.
TEST(CanvasShapes, LongLinesKeepTheirSlope) {
  const auto graphics = MakeGraphics("");
  const auto surface = graphics->CreateSurface({20, 20}, 2, false);
  Canvas& c = surface->GetCanvas();
  c.Line({-1000000, -999990}, {1000000, 1000010}, kWhite);
  EXPECT_GT(surface->DevicePixel(11, 31) & 0xFFu, 180u);  // (5, 15)
  EXPECT_EQ(surface->DevicePixel(31, 11), 0u);
}

TEST(CanvasShapes, HugeCoordinatesFillWhatTheyCover) {
  for (const double scale : {1.0, 1.5, 16.0}) {
    SCOPED_TRACE(scale);
    const auto graphics = MakeGraphics("");
    const auto surface = graphics->CreateSurface({4, 4}, scale, true);
    const auto expectAll = [&](Colour colour) {
      const char letter =
          Letter((std::uint32_t{colour.red} << 16) | (std::uint32_t{colour.green} << 8) | colour.blue);
      const auto width = static_cast<std::size_t>(surface->DeviceWidth());
      EXPECT_EQ(Picture(*surface),
                Rows(static_cast<std::size_t>(surface->DeviceHeight()), std::string(width, letter)));
    };
    Canvas& c = surface->GetCanvas();
    c.FillRect({kTiny, kTiny, kHuge, kHuge}, kRed);
    expectAll(kRed);
    c.Rectangle({kTiny, kTiny, kHuge, kHuge}, kRed, kGreen);
    expectAll(kGreen);
    c.RoundRect({kTiny, kTiny, kHuge, kHuge}, {8, 8}, kRed, kBlue);
    expectAll(kBlue);
    c.Ellipse({-1000000, -1000000, 1000000, 1000000}, kRed, kWhite);
    expectAll(kWhite);
    c.FrameRect({kTiny, kTiny, kHuge, kHuge}, kRed);
    expectAll(kWhite);
    const Point far[] = {{-1000000, -1000000}, {1000000, -1000000}, {1000000, 1000000}, {-1000000, 1000000}};
    c.Polygon(far, kGreen);
    expectAll(kGreen);
    c.Line({kTiny, 1}, {kHuge, 1}, kRed, kHuge);
    expectAll(kRed);
  }
}

// Only that nothing breaks: what such calls draw lies nowhere near the surface or is not defined.
TEST(CanvasShapes, AnyCoordinatesAreSafe) {
  const auto graphics = MakeGraphics("");
  const auto surface = graphics->CreateSurface({8, 8}, 1.25, true);
  const auto other = graphics->CreateSurface({8, 8}, 1.25, true);
  const Font& font = graphics->Fonts().GetFont({u"Tahoma", 9});
  const int values[] = {kTiny, kTiny + 1, -1000000, -1, 0, 3, 1000000, kHuge - 1, kHuge};
  for (const int a : values) {
    for (const int b : values) {
      Canvas& c = surface->GetCanvas();
      c.SetOrigin({a, b});
      c.PushClip({b, a, kHuge, kHuge});
      const Rect r{a, b, b, a};
      const Rect wide{std::min(a, b), kTiny, std::max(a, b), kHuge};
      for (const Rect& rect : {r, wide}) {
        c.FillRect(rect, kRed);
        c.Rectangle(rect, kRed, kBlue);
        c.FrameRect(rect, kRed);
        c.RoundRect(rect, {a, b}, kRed, kBlue);
        c.RoundRect(rect, {kHuge, kHuge}, kRed, kBlue);
        c.Ellipse(rect, kRed, kBlue);
        c.CopySurface(*other, rect, {a, b});
        c.CopySurface(*surface, rect, {b, a});
      }
      c.Line({a, b}, {b, a}, kRed, b);
      const Point path[] = {{a, b}, {b, a}, {a, a}, {0, 5}};
      c.Polyline(path, kGreen, a);
      c.Polygon(path, kGreen);
      c.DrawRun(u"Ab", {a, b}, font, kRed, c.NextTextLine());
      c.PopClip();
      EXPECT_TRUE(c.ClipBounds().Empty() || c.ClipBounds().GetSize() == (Size{8, 8}));
    }
  }
}

// Painting a part anew must give the pixels that painting the whole gave.
TEST(CanvasShapes, TheClipDoesNotChangeThePixelsInsideIt) {
  const auto graphics = MakeGraphics("");
  const Point path[] = {{3, 2}, {17, 9}, {1, 13}, {19, 18}};
  const auto draw = [&](const Rect& clip, double scale) {
    auto surface = graphics->CreateSurface({20, 20}, scale, false);
    Canvas& c = surface->GetCanvas();
    c.PushClip(clip);
    c.Polygon(path, kBlue);
    c.Ellipse({2, 3, 18, 16}, kRed, kGreen);
    c.RoundRect({5, 6, 15, 19}, {6, 6}, kWhite, kRed);
    c.Polyline(path, kWhite, 2);
    return surface;
  };
  for (const double scale : {1.0, 1.5, 2.0}) {
    const auto whole = draw({0, 0, 20, 20}, scale);
    for (int edge = 1; edge < 20; ++edge) {
      for (const Rect& clip : {Rect{edge, 0, 20, 20}, Rect{0, edge, 20, 20}, Rect{0, 0, edge, 20},
                               Rect{0, 0, 20, edge}, Rect{edge / 2, 3, edge, 15}}) {
        const auto part = draw(clip, scale);
        int different = 0;
        for (int y = RoundHalfUp(clip.top * scale); y < RoundHalfUp(clip.bottom * scale); ++y) {
          for (int x = RoundHalfUp(clip.left * scale); x < RoundHalfUp(clip.right * scale); ++x) {
            if (part->DevicePixel(x, y) != whole->DevicePixel(x, y)) ++different;
          }
        }
        EXPECT_EQ(different, 0) << scale << ": " << clip.left << "," << clip.top << "," << clip.right << ","
                                << clip.bottom;
      }
    }
  }
}

TEST(CanvasShapes, TheUnusedByteOfAPixelStaysZero) {
  const auto graphics = MakeGraphics("");
  const auto surface = graphics->CreateSurface({20, 20}, 2, false);
  Canvas& c = surface->GetCanvas();
  c.FillRect({0, 0, 20, 20}, kWhite);
  c.RoundRect({1, 1, 19, 9}, {6, 6}, kRed, kBlue);
  c.Ellipse({1, 9, 19, 19}, kRed, kBlue);
  c.Line({0, 0}, {19, 15}, kGreen, 2);
  std::vector<std::uint32_t> frame(40 * 40);
  graphics->CopyToFrame(*surface, {0, 0, 40, 40}, frame.data(), 40, {0, 0});
  for (const std::uint32_t pixel : frame) ASSERT_EQ(pixel >> 24, 0u);
}

}  // namespace
}  // namespace orvane
