#include "base/segment.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

constexpr RealBox kBox{-10, -20, 10, 20};

void ExpectCut(const Segment& segment, const Segment& expected) {
  const std::optional<Segment> cut = CutSegment(segment, kBox);
  ASSERT_TRUE(cut.has_value());
  EXPECT_NEAR(cut->from.x, expected.from.x, 1e-12);
  EXPECT_NEAR(cut->from.y, expected.from.y, 1e-12);
  EXPECT_NEAR(cut->to.x, expected.to.x, 1e-12);
  EXPECT_NEAR(cut->to.y, expected.to.y, 1e-12);
}

TEST(CutSegmentTest, WhatIsInsideStays) {
  for (const Segment& segment :
       {Segment{{1, 2}, {3, -4}}, Segment{{-10, -20}, {10, 20}}, Segment{{0.1, 0.2}, {0.1, 0.2}}}) {
    EXPECT_EQ(CutSegment(segment, kBox), segment);
  }
}

TEST(CutSegmentTest, WhatReachesOutKeepsItsSlope) {
  ExpectCut({{0, 0}, {100, 50}}, {{0, 0}, {10, 5}});
  ExpectCut({{100, 50}, {0, 0}}, {{10, 5}, {0, 0}});
  ExpectCut({{0, 0}, {-1, 100}}, {{0, 0}, {-0.2, 20}});
  ExpectCut({{-100, -100}, {100, 100}}, {{-10, -10}, {10, 10}});
  ExpectCut({{5, 1e15}, {5, -1e15}}, {{5, 20}, {5, -20}});
}

TEST(CutSegmentTest, WhatMissesTheBoxIsNothing) {
  for (const Segment& segment :
       {Segment{{11, 0}, {30, 0}}, Segment{{0, -21}, {0, -90}}, Segment{{-30, 0}, {0, 60}},
        Segment{{11, -5}, {11, 5}}, Segment{{-5, 21}, {5, 21}}}) {
    EXPECT_EQ(CutSegment(segment, kBox), std::nullopt);
  }
}

}  // namespace
}  // namespace orvane
