#include "platform/region.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

TEST(SubtractRect, LeavesFourPartsAroundAHoleInside) {
  std::vector<Rect> rects{{0, 0, 10, 10}};
  SubtractRect(rects, {3, 4, 6, 8});
  EXPECT_THAT(rects, UnorderedElementsAre(Rect{0, 0, 10, 4}, Rect{0, 4, 3, 8}, Rect{6, 4, 10, 8},
                                          Rect{0, 8, 10, 10}));
}

TEST(SubtractRect, CutsEachSide) {
  const Rect whole{0, 0, 10, 10};
  const auto cut = [&whole](const Rect& hole) {
    std::vector<Rect> rects{whole};
    SubtractRect(rects, hole);
    return rects;
  };
  EXPECT_THAT(cut({-5, -5, 3, 20}), ElementsAre(Rect{3, 0, 10, 10}));
  EXPECT_THAT(cut({7, 0, 10, 10}), ElementsAre(Rect{0, 0, 7, 10}));
  EXPECT_THAT(cut({0, -1, 10, 4}), ElementsAre(Rect{0, 4, 10, 10}));
  EXPECT_THAT(cut({-1, 9, 11, 10}), ElementsAre(Rect{0, 0, 10, 9}));
}

TEST(SubtractRect, CoverLeavesNothing) {
  std::vector<Rect> rects{{0, 0, 10, 10}, {10, 0, 20, 10}};
  SubtractRect(rects, {0, 0, 20, 10});
  EXPECT_THAT(rects, IsEmpty());
}

TEST(SubtractRect, TouchingAndEmptyHolesChangeNothing) {
  std::vector<Rect> rects{{0, 0, 10, 10}};
  SubtractRect(rects, {10, 0, 20, 10});
  SubtractRect(rects, {0, 10, 10, 12});
  SubtractRect(rects, {5, 5, 5, 8});
  SubtractRect(rects, {8, 8, 2, 2});
  EXPECT_THAT(rects, ElementsAre(Rect{0, 0, 10, 10}));
}

TEST(SubtractRect, DropsEmptyRectanglesOfTheList) {
  std::vector<Rect> rects{{4, 4, 4, 9}, {0, 0, 1, 1}};
  SubtractRect(rects, {50, 50, 60, 60});
  EXPECT_THAT(rects, ElementsAre(Rect{0, 0, 1, 1}));
}

TEST(SubtractRect, TakesTheLargestCoordinates) {
  constexpr int kLow = std::numeric_limits<int>::min();
  constexpr int kHigh = std::numeric_limits<int>::max();
  std::vector<Rect> rects{{kLow, kLow, kHigh, kHigh}};
  SubtractRect(rects, {0, kLow, kHigh, kHigh});
  EXPECT_THAT(rects, ElementsAre(Rect{kLow, kLow, 0, kHigh}));
}

// Each point belongs to what is left exactly when it was in the list and not in a hole, and to one rectangle.
TEST(SubtractRect, LeavesEachPointOnce) {
  std::vector<Rect> rects{{0, 0, 12, 12}};
  const std::vector<Rect> holes{{2, 2, 5, 5}, {4, 1, 7, 9}, {0, 8, 3, 11}, {6, 6, 14, 7}, {11, 11, 12, 12}};
  for (const Rect& hole : holes) SubtractRect(rects, hole);
  for (int y = 0; y < 12; ++y) {
    for (int x = 0; x < 12; ++x) {
      int inHoles = 0;
      int inRects = 0;
      for (const Rect& hole : holes) inHoles += hole.Contains(Point{x, y}) ? 1 : 0;
      for (const Rect& rect : rects) inRects += rect.Contains(Point{x, y}) ? 1 : 0;
      EXPECT_EQ(inRects, inHoles > 0 ? 0 : 1) << x << ", " << y;
    }
  }
}

TEST(JoinRects, JoinsWhatTilesARectangle) {
  std::vector<Rect> rects{{0, 0, 10, 10}};
  SubtractRect(rects, {3, 4, 6, 8});
  rects.push_back({3, 4, 6, 8});
  JoinRects(rects);
  EXPECT_THAT(rects, ElementsAre(Rect{0, 0, 10, 10}));
}

TEST(JoinRects, LeavesOthersApart) {
  std::vector<Rect> rects{{0, 0, 4, 4}, {4, 1, 8, 5}, {0, 6, 4, 8}, {9, 9, 10, 10}};
  const std::vector<Rect> before = rects;
  JoinRects(rects);
  EXPECT_EQ(rects, before);
}

}  // namespace
}  // namespace orvane
