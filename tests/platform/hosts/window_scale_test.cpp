#include "platform/window_scale.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvane {
namespace {

TEST(WindowScale, ComfortableLeavesATwelfthOfTheDesktop) {
  EXPECT_EQ(ComfortableScale({1920, 1080}), 3);  // 990 of 1080: 960 fit
  EXPECT_EQ(ComfortableScale({1920, 1040}), 2);  // 953
  EXPECT_EQ(ComfortableScale({1366, 768}), 2);
  EXPECT_EQ(ComfortableScale({3840, 2160}), 6);
  EXPECT_EQ(ComfortableScale({800, 4000}), 3);  // 733 of 800 across: 720 fit
  EXPECT_EQ(ComfortableScale({320, 240}), 1);
  EXPECT_EQ(ComfortableScale({0, 0}), 1);
  EXPECT_EQ(ComfortableScale({100000, 100000}), 16);
}

TEST(WindowScale, RememberedIsKeptWhereItFits) {
  EXPECT_EQ(RememberedScale(2.5, {1920, 1080}), 2.5);
  EXPECT_EQ(RememberedScale(3.3, {1920, 1080}), 3.3);
  EXPECT_EQ(RememberedScale(8, {1920, 1080}), 1080 / 320.0);
  EXPECT_EQ(RememberedScale(0, {1920, 1080}), 3);
  EXPECT_EQ(RememberedScale(0.5, {1920, 1080}), 3);
  EXPECT_EQ(RememberedScale(-2, {1920, 1080}), 3);
  EXPECT_EQ(RememberedScale(std::numeric_limits<double>::quiet_NaN(), {1920, 1080}), 3);
  EXPECT_EQ(RememberedScale(std::numeric_limits<double>::infinity(), {100000, 100000}), 16);
}

TEST(WindowScale, FitsTheWholeScreenIntoEveryWindow) {
  EXPECT_EQ(ScaleForWindow({480, 640}), 2);
  EXPECT_EQ(ScaleForWindow({480, 700}), 2);
  EXPECT_EQ(ScaleForWindow({600, 640}), 2);
  EXPECT_EQ(ScaleForWindow({100, 100}), 1);
  EXPECT_EQ(ScaleForWindow({24000, 32000}), 16);
  for (int width = 240; width < 1500; ++width) {
    const Size frame = FrameSize(ScaleForWindow({width, width * 2}));
    ASSERT_LE(frame.width, width);
    ASSERT_GE(frame.width, width - 1);
  }
}

TEST(WindowScale, StepsToWholeScales) {
  EXPECT_EQ(SteppedScale(2, 1, 3), 3);
  EXPECT_EQ(SteppedScale(2.5, 1, 3), 3);
  EXPECT_EQ(SteppedScale(2.5, -1, 3), 2);
  EXPECT_EQ(SteppedScale(2, -1, 3), 1);
  EXPECT_EQ(SteppedScale(1, -1, 3), 1);
  EXPECT_EQ(SteppedScale(16, 1, 3), 16);
  EXPECT_EQ(SteppedScale(7, 0, 3), 3);
}

}  // namespace
}  // namespace orvane
