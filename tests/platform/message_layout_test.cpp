#include "platform/message_layout.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

constexpr Size kScreen{240, 320};

TEST(MessageLayout, StandsInTheMiddleOfTheScreen) {
  const MessageLayout at = LayOutMessage(kScreen, 48, true, false);
  EXPECT_EQ(at.bounds.left, 240 - at.bounds.right);
  EXPECT_LE(std::abs(at.bounds.top - (320 - at.bounds.bottom)), 1);
  EXPECT_EQ(at.bounds.Height(), 22 + 10 + 48 + 10 + 26 + 10);
  EXPECT_EQ(at.scrollLimit, 0);
}

TEST(MessageLayout, GrowsWithTheTextAndScrollsWhatIsBeyondTheScreen) {
  int before = 0;
  for (const int height : {24, 100, 230}) {
    const MessageLayout at = LayOutMessage(kScreen, height, true, false);
    EXPECT_GT(at.bounds.Height(), before);
    EXPECT_EQ(at.text.Height(), height);
    before = at.bounds.Height();
  }
  const MessageLayout tall = LayOutMessage(kScreen, 1000, true, false);
  EXPECT_EQ(tall.bounds.Height(), kBoxTallest);
  EXPECT_EQ(tall.scrollLimit, 1000 - tall.text.Height());
  EXPECT_GT(tall.bounds.top, 0);
  EXPECT_LT(tall.bounds.bottom, 320);
}

TEST(MessageLayout, ALowTextStandsBesideTheMiddleOfItsSign) {
  const MessageLayout at = LayOutMessage(kScreen, 16, true, false);
  EXPECT_EQ(at.sign.top + 12, at.text.top + 8);
  EXPECT_EQ(at.sign.GetSize(), (Size{24, 24}));
}

TEST(MessageLayout, WithoutASignTheTextHasItsColumnToo) {
  const MessageLayout at = LayOutMessage(kScreen, 16, false, false);
  EXPECT_TRUE(at.sign.Empty());
  EXPECT_EQ(at.text.left, kBoxPadding);
  EXPECT_EQ(MessageTextWidth(false), MessageTextWidth(true) + kBoxSignColumn);
}

TEST(MessageLayout, ButtonsStandSideBySideInTheMiddle) {
  const MessageLayout one = LayOutMessage(kScreen, 16, true, false);
  EXPECT_EQ(one.ok.left, kBoxWidth - one.ok.right);
  EXPECT_TRUE(one.dismissAll.Empty());
  const MessageLayout two = LayOutMessage(kScreen, 16, true, true);
  EXPECT_EQ(two.ok.left, kBoxWidth - two.dismissAll.right);
  EXPECT_LT(two.ok.right, two.dismissAll.left);
  EXPECT_EQ(two.ok.top, two.dismissAll.top);
  EXPECT_LE(two.ok.bottom, two.bounds.Height() - kBoxPadding);
}

}  // namespace
}  // namespace orvane
