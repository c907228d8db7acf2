#include "platform/area.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

long long Pixels(const Area& area) {
  long long pixels = 0;
  for (const Rect& rect : area.Rects()) pixels += static_cast<long long>(rect.Width()) * rect.Height();
  return pixels;
}

TEST(Area, CountsEveryPixelOnceHoweverRectanglesOverlap) {
  Area area(Rect::At(0, 0, 10, 10));
  area.Add(Rect::At(5, 5, 10, 10));
  area.Add(Rect::At(2, 2, 3, 3));
  EXPECT_EQ(Pixels(area), 100 + 100 - 25);
  EXPECT_EQ(area.Bounds(), Rect::At(0, 0, 15, 15));
}

TEST(Area, EmptyRectanglesDoNotCount) {
  Area area(Rect{5, 5, 5, 9});
  EXPECT_TRUE(area.Empty());
  EXPECT_EQ(area.Bounds(), Rect{});
  area.Add(Rect::At(0, 0, 4, 4));
  area.Subtract(Rect{3, 3, 3, 3});
  EXPECT_EQ(Pixels(area), 16);
}

TEST(Area, SubtractingLeavesWhatLiesOutside) {
  Area area(Rect::At(0, 0, 10, 10));
  area.Subtract(Rect::At(3, 3, 4, 4));
  EXPECT_EQ(Pixels(area), 84);
  EXPECT_TRUE(area.CommonWith(Rect::At(3, 3, 4, 4)).Empty());
  EXPECT_EQ(Pixels(area.CommonWith(Rect::At(0, 0, 4, 4))), 15);
  area.Subtract(Rect::At(-5, -5, 50, 50));
  EXPECT_TRUE(area.Empty());
}

}  // namespace
}  // namespace orvane
