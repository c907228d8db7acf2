#include "platform/bar_layout.h"

#include <gtest/gtest.h>

#include "platform/bar_set.h"

namespace orvane {
namespace {

int SixALetter(TextView label) { return static_cast<int>(label.size()) * 6; }

BarButton Button(ButtonStyle style, int id = 0, TextView label = u"") {
  BarButton button;
  button.style = style;
  button.id = id;
  button.label = label;
  return button;
}

TEST(BarLayout, ButtonsFollowEachOtherFromTheLeft) {
  const std::vector<Rect> places =
      LayOutBar({Button(ButtonStyle::kMenu, 0, u"App"), Button(ButtonStyle::kSeparator),
                 Button(ButtonStyle::kPush, 1), Button(ButtonStyle::kDropDown, 2)},
                214, SixALetter);
  ASSERT_EQ(places.size(), 4u);
  EXPECT_EQ(places[0], (Rect{0, 294, 26, 320}));  // 18 and 4 on either side
  EXPECT_EQ(places[1], (Rect{26, 294, 28, 320}));
  EXPECT_EQ(places[2], Rect::At(28, 294, 24, 26));
  EXPECT_EQ(places[3], Rect::At(52, 294, 24, 26));
}

TEST(BarLayout, WhatHasNoRoomIsCutOrLeftOut) {
  const std::vector<BarButton> many(11, Button(ButtonStyle::kPush, 1));
  const std::vector<Rect> places = LayOutBar(many, 214, SixALetter);
  EXPECT_EQ(places[8], (Rect{192, 294, 214, 320}));
  EXPECT_TRUE(places[9].Empty());
  EXPECT_TRUE(places[10].Empty());
}

TEST(BarSet, TheBarShownLastIsDrawnAndHidingItRevealsTheOneBefore) {
  BarSet bars;
  const BarHandle a = bars.Create(1, 0, {});
  const BarHandle b = bars.Create(1, 0, {});
  EXPECT_EQ(bars.Shown(), kNoBar);
  bars.Show(a, true);
  bars.Show(b, true);
  EXPECT_EQ(bars.Shown(), b);
  bars.Show(a, true);
  EXPECT_EQ(bars.Shown(), a);
  bars.Show(a, false);
  EXPECT_EQ(bars.Shown(), b);
  bars.Show(a, false);  // hidden already
  EXPECT_EQ(bars.Shown(), b);
  EXPECT_TRUE(bars.Destroy(b));
  EXPECT_EQ(bars.Shown(), kNoBar);
}

TEST(BarSet, HandlesAreNeverUsedTwice) {
  BarSet bars;
  const BarHandle first = bars.Create(1, 0, {});
  bars.Destroy(first);
  EXPECT_NE(bars.Create(1, 0, {}), first);
  EXPECT_FALSE(bars.Destroy(first));
  EXPECT_EQ(bars.Find(first), nullptr);
}

TEST(BarSet, ASeparatorIsFoundByNoId) {
  Bar bar;
  bar.buttons = {Button(ButtonStyle::kSeparator, 5), Button(ButtonStyle::kPush, 5)};
  EXPECT_EQ(bar.Find(5), &bar.buttons[1]);
  EXPECT_EQ(bar.Find(6), nullptr);
}

}  // namespace
}  // namespace orvane
