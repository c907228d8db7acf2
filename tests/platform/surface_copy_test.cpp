#include <gtest/gtest.h>

#include <vector>

#include "platform/canvas.h"
#include "tests/platform/pixel_picture.h"

namespace orvane {
namespace {

// Columns r, g, b, w, r, … in the upper half, shifted by one in the lower.
void DrawColumns(Canvas& c) {
  const Colour colours[] = {kRed, kGreen, kBlue, kWhite};
  for (int x = 0; x < c.GetSize().width; ++x) {
    c.FillRect({x, 0, x + 1, 1}, colours[x % 4]);
    c.FillRect({x, 1, x + 1, 2}, colours[(x + 1) % 4]);
  }
}

class SurfaceCopy : public testing::Test {
 protected:
  // Draws the columns on a source of 6 × 2, copies, and expects the picture on a black 6 × 4 surface.
  template <typename Copy>
  void Expect(const Rows& rows, const Copy& copy) {
    for (const int scale : {1, 2, 3}) {
      SCOPED_TRACE(scale);
      const auto source = graphics_->CreateSurface({6, 2}, scale, false);
      DrawColumns(source->GetCanvas());
      const auto target = graphics_->CreateSurface({6, 4}, scale, false);
      copy(target->GetCanvas(), *source);
      EXPECT_EQ(Picture(*target), Enlarged(rows, scale));
    }
  }
  template <typename Move>
  void ExpectMoved(const Rows& rows, const Move& move) {
    for (const int scale : {1, 2, 3}) {
      SCOPED_TRACE(scale);
      const auto surface = graphics_->CreateSurface({6, 4}, scale, false);
      DrawColumns(surface->GetCanvas());
      move(surface->GetCanvas(), *surface);
      EXPECT_EQ(Picture(*surface), Enlarged(rows, scale));
    }
  }

  std::unique_ptr<Graphics> graphics_ = MakeGraphics("");
};

TEST_F(SurfaceCopy, CopiesAPart) {
  Expect({"......", ".gb...", ".bw...", "......"}, [](Canvas& c, const Surface& s) {
    c.CopySurface(s, {1, 0, 3, 2}, {1, 1});
  });
}

TEST_F(SurfaceCopy, IsCutBySourceTargetAndClip) {
  Expect({"......", ".....r", ".....g", "......"}, [](Canvas& c, const Surface& s) {
    c.CopySurface(s, {-3, -1, 9, 9}, {2, 0});
  });
  Expect({"bwrg..", "wrgb..", "......", "......"}, [](Canvas& c, const Surface& s) {
    c.CopySurface(s, {0, 0, 6, 2}, {-2, 0});
  });
  Expect({"......", "..rg..", "......", "......"}, [](Canvas& c, const Surface& s) {
    c.SetOrigin({2, 1});
    c.PushClip({0, 0, 2, 1});
    c.CopySurface(s, {0, 0, 6, 2}, {0, 0});
  });
  Expect(Rows(4, "......"), [](Canvas& c, const Surface& s) {
    c.CopySurface(s, {6, 0, 9, 2}, {0, 0});
    c.CopySurface(s, {3, 1, 1, 0}, {0, 0});
  });
}

TEST_F(SurfaceCopy, OverlappingMovesAreSafe) {
  ExpectMoved({"rrgbwr", "ggbwrg", "......", "......"}, [](Canvas& c, const Surface& s) {
    c.CopySurface(s, {0, 0, 5, 2}, {1, 0});
  });
  ExpectMoved({"gbwrgg", "bwrgbb", "......", "......"}, [](Canvas& c, const Surface& s) {
    c.CopySurface(s, {1, 0, 6, 2}, {0, 0});
  });
  ExpectMoved({"rgbwrg", "rgbwrg", "gbwrgb", "......"}, [](Canvas& c, const Surface& s) {
    c.CopySurface(s, {0, 0, 6, 2}, {0, 1});
  });
  ExpectMoved({"gbwrgb", "......", "......", "......"}, [](Canvas& c, const Surface& s) {
    c.CopySurface(s, {0, 1, 6, 4}, {0, 0});
  });
  ExpectMoved({"rgbwrg", "grgbwr", ".gbwrg", "......"}, [](Canvas& c, const Surface& s) {
    c.CopySurface(s, {0, 0, 5, 2}, {1, 1});
  });
}

TEST_F(SurfaceCopy, AnotherScaleDrawsNothing) {
  const auto source = graphics_->CreateSurface({2, 2}, 2, false);
  source->GetCanvas().FillRect({0, 0, 2, 2}, kRed);
  const auto target = graphics_->CreateSurface({2, 2}, 1, true);
  target->GetCanvas().CopySurface(*source, {0, 0, 2, 2}, {0, 0});
  EXPECT_EQ(Picture(*target), Rows(2, ".."));
}

// Whatever the scale and the place, a copied frame keeps all its four sides, and fills exactly the device
// pixels of its logical ones.
TEST_F(SurfaceCopy, OutlinesSurviveAtFractionalScales) {
  for (const double scale : {1.1, 1.25, 1.5, 1.75, 2.6}) {
    const auto source = graphics_->CreateSurface({7, 5}, scale, false);
    source->GetCanvas().Rectangle({1, 1, 6, 4}, kRed, kBlue);
    for (int x = 0; x < 8; ++x) {
      SCOPED_TRACE(testing::Message() << scale << " at " << x);
      const auto target = graphics_->CreateSurface({16, 8}, scale, false);
      target->GetCanvas().CopySurface(*source, {1, 1, 6, 4}, {x, 2});
      const auto shape = graphics_->CreateSurface({16, 8}, scale, false);
      shape->GetCanvas().FillRect({x, 2, x + 5, 5}, kGreen);
      const auto edge = [&](int dx, int dy) { return shape->DevicePixel(dx, dy) == 0; };
      for (int dy = 0; dy < target->DeviceHeight(); ++dy) {
        for (int dx = 0; dx < target->DeviceWidth(); ++dx) {
          const char letter = Letter(target->DevicePixel(dx, dy));
          if (edge(dx, dy)) {
            ASSERT_EQ(letter, '.') << dx << ", " << dy;
          } else if (edge(dx - 1, dy) || edge(dx + 1, dy) || edge(dx, dy - 1) || edge(dx, dy + 1)) {
            ASSERT_EQ(letter, 'r') << dx << ", " << dy;
          } else {
            ASSERT_TRUE(letter == 'r' || letter == 'b') << dx << ", " << dy;
          }
        }
      }
    }
  }
}

TEST_F(SurfaceCopy, MovesAtFractionalScalesStayWithinTheTarget) {
  for (const double scale : {1.1, 1.25, 1.5, 2.6}) {
    for (int by = -3; by <= 3; ++by) {
      const auto surface = graphics_->CreateSurface({12, 12}, scale, false);
      Canvas& c = surface->GetCanvas();
      c.FillRect({0, 0, 12, 12}, kGreen);
      c.Rectangle({4, 4, 8, 8}, kRed, kRed);
      c.CopySurface(*surface, {4, 4, 8, 8}, {4 + by, 4 + by});
      const auto expected = graphics_->CreateSurface({12, 12}, scale, false);
      Canvas& e = expected->GetCanvas();
      e.FillRect({0, 0, 12, 12}, kGreen);
      e.FillRect({4, 4, 8, 8}, kRed);
      e.FillRect(Rect{4, 4, 8, 8}.Offset(by, by), kRed);
      EXPECT_EQ(Picture(*surface), Picture(*expected)) << scale << " by " << by;
    }
  }
}

TEST_F(SurfaceCopy, FramesReceiveDevicePixels) {
  const auto surface = graphics_->CreateSurface({2, 1}, 2, false);
  surface->GetCanvas().FillRect({0, 0, 1, 1}, kRed);
  surface->GetCanvas().FillRect({1, 0, 2, 1}, kBlue);
  constexpr std::uint32_t kOld = 0x123456;
  std::vector<std::uint32_t> frame(6 * 4, kOld);
  graphics_->CopyToFrame(*surface, {1, 0, 4, 2}, frame.data(), 6, {2, 1});
  std::vector<std::uint32_t> expected(6 * 4, kOld);
  for (const std::size_t y : {1u, 2u}) {
    expected[y * 6 + 2] = 0xFF0000;
    expected[y * 6 + 3] = 0x0000FF;
    expected[y * 6 + 4] = 0x0000FF;
  }
  EXPECT_EQ(frame, expected);
}

TEST_F(SurfaceCopy, FramesReceiveNoMoreThanTheSurfaceHas) {
  const auto surface = graphics_->CreateSurface({2, 2}, 1, false);
  surface->GetCanvas().FillRect({0, 0, 2, 2}, kRed);
  std::vector<std::uint32_t> frame(16, 7);
  graphics_->CopyToFrame(*surface, {-1, -1, 9, 9}, frame.data(), 4, {0, 0});
  const std::vector<std::uint32_t> expected{7, 7,        7,        7, 7, 0xFF0000, 0xFF0000, 7,
                                            7, 0xFF0000, 0xFF0000, 7, 7, 7,        7,        7};
  EXPECT_EQ(frame, expected);
  graphics_->CopyToFrame(*surface, {5, 5, 9, 9}, frame.data(), 4, {0, 0});
  EXPECT_EQ(frame, expected);
  graphics_->CopyToFrame(*surface, {0, 0, 2, 2}, nullptr, 0, {0, 0});
}

}  // namespace
}  // namespace orvane
