// What a panel keeps of a large content, and that a picture does not tell how one got to it.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/framework/painted_panel.h"

namespace orvane {
namespace {

using testing::Hand;
using testing::Pixels;
using testing::Rects;

long long Area(const Rect& rect) { return static_cast<long long>(rect.Width()) * rect.Height(); }

TEST(LargeContentPanelTest, KeepsWhatShowsAndAMarginWithoutPaintingInIt) {
  Hand hand;
  hand.KeepPrivately(3000, 4000);
  hand.shell.Settle();
  hand.panel->ScrollBy(1000, 1000);
  hand.shell.Settle();
  hand.Forget();
  hand.panel->Redraw();
  ASSERT_EQ(hand.panel->painted.size(), 1u);
  const Rect kept = hand.panel->painted[0];
  EXPECT_TRUE(kept.Contains({1000, 1000, 1200, 1150}));
  EXPECT_LE(Area(kept), 5 * 200 * 150);  // far from the whole
  EXPECT_EQ(kept, hand.panel->clips[0]);
  // There is room to scroll a quarter of a page each way.
  for (const Point step : {Point{50, 37}, Point{-100, -74}, Point{100, 0}, Point{0, 74}}) {
    hand.Forget();
    hand.panel->ScrollBy(step.x, step.y);
    hand.shell.Settle();
    EXPECT_TRUE(hand.panel->painted.empty()) << step.x << "," << step.y;
  }
}

TEST(LargeContentPanelTest, PaintsOnlyWhatIsMissing) {
  Hand hand;
  hand.KeepPrivately(3000, 4000);
  hand.shell.Settle();
  hand.panel->ScrollBy(1000, 1000);
  hand.panel->Redraw();
  Rect kept = hand.panel->painted.back();
  for (const Point step : {Point{0, 120}, Point{0, -130}, Point{150, 0}, Point{-170, 0}, Point{140, 110}}) {
    hand.Forget();
    hand.panel->ScrollBy(step.x, step.y);
    hand.shell.Settle();
    ASSERT_FALSE(hand.panel->painted.empty()) << step.x << "," << step.y;
    Rect now = hand.panel->painted[0];
    for (const Rect& part : hand.panel->painted) {
      EXPECT_TRUE(Intersect(part, kept).Empty()) << "painted again";
      now = Unite(now, part);
    }
    now = {std::max(now.left, 0), now.top, now.right, now.bottom};
    // The kept part has moved as a whole: what was painted and what stays make up a rectangle of its size.
    const int dx = step.x > 0 ? now.right - kept.right : step.x < 0 ? now.left - kept.left : 0;
    const int dy = step.y > 0 ? now.bottom - kept.bottom : step.y < 0 ? now.top - kept.top : 0;
    const Rect moved = kept.Offset(dx, dy);
    long long painted = 0;
    for (const Rect& part : hand.panel->painted) painted += Area(part);
    EXPECT_EQ(painted, Area(moved) - Area(Intersect(moved, kept)));
    EXPECT_TRUE(moved.Contains(hand.panel->VisibleContent()));
    kept = moved;
  }
}

TEST(LargeContentPanelTest, AJumpPaintsThePlaceItGoesTo) {
  Hand hand;
  hand.KeepPrivately(3000, 4000);
  hand.shell.Settle();
  hand.Forget();
  hand.panel->ScrollBy(3000, 4000);
  hand.shell.Settle();
  ASSERT_EQ(hand.panel->painted.size(), 1u);
  EXPECT_TRUE(hand.panel->painted[0].Contains({2800, 3850, 3000, 4000}));
  EXPECT_EQ(hand.panel->painted[0].right, 3000);  // nothing beyond the content is asked for
  EXPECT_EQ(hand.panel->painted[0].bottom, 4000);
  EXPECT_EQ(hand.At(199, 149), Pixels(hand.panel->TileColour(299, 399)));
}

TEST(LargeContentPanelTest, RedrawRectPaintsWhatIsKeptOfIt) {
  Hand hand;
  hand.KeepPrivately(3000, 4000);
  hand.shell.Settle();
  const Rect kept = hand.panel->painted.back();
  hand.Forget();
  hand.panel->RedrawRect(2000, 2000, 2100, 2100);
  EXPECT_TRUE(hand.panel->painted.empty());
  hand.panel->RedrawRect(100, 100, 2100, 120);
  EXPECT_EQ(hand.panel->painted, (Rects{{100, 100, kept.right, 120}}));
}

// The picture must not tell how one got to a place.
class ScrolledPictureTest : public ::testing::TestWithParam<double> {};

TEST_P(ScrolledPictureTest, EqualsAFullRepaint) {
  const std::vector<Point> steps{{3, 0},    {0, 7},   {97, 101},  {1, 1},    {-2, 5},
                                 {150, 0},  {0, 111}, {-151, 33}, {13, -90}, {400, 5},
                                 {5, 400},  {333, 7}, {-90, -91}, {2000, 0}, {-7, 0},
                                 {0, 3000}, {0, -5},  {-101, -3}, {-5, 2}};
  for (const Size content : {Size{301, 251}, Size{1503, 303}, Size{803, 3001}}) {
    SCOPED_TRACE(content.width);
    Hand walked(GetParam());
    Hand jumped(GetParam());
    for (Hand* hand : {&walked, &jumped}) {
      hand->panel->bordered = content.width == 803;
      hand->panel->marginX = 40;
      hand->panel->marginY = 20;
      hand->KeepPrivately(content.width, content.height);
      hand->shell.Settle();
    }
    for (const Point step : steps) {
      walked.panel->ScrollBy(step.x, step.y);
      const auto incremental = walked.Screen();
      // Another panel that paints everything at the place.
      jumped.panel->scrollX = walked.panel->scrollX;
      jumped.panel->scrollY = walked.panel->scrollY;
      jumped.panel->ResetBuffer();
      jumped.panel->Redraw();
      EXPECT_TRUE(incremental == jumped.Screen())
          << "at " << walked.panel->scrollX << "," << walked.panel->scrollY;
      walked.shell.GetDevice().RepaintEverything();
      EXPECT_TRUE(incremental == walked.Screen())
          << "repainted at " << walked.panel->scrollX << "," << walked.panel->scrollY;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Scales, ScrolledPictureTest, ::testing::Values(1.0, 1.25, 1.5, 1.75, 2.0, 3.0));

// --- Changes of the scale.

TEST(PanelScaleTest, AChangeOfTheScalePaintsAnew) {
  for (const bool privately : {false, true}) {
    SCOPED_TRACE(privately);
    Hand hand;
    if (privately) hand.KeepPrivately(300, 250);
    hand.panel->ScrollBy(20, 30);
    hand.shell.Settle();
    hand.Forget();
    hand.panel->seen.clear();
    hand.shell.GetDevice().SetScale(2.0);
    hand.shell.Settle();
    EXPECT_FALSE(hand.panel->painted.empty());
    EXPECT_EQ(hand.panel->painted.back(), privately ? (Rect{0, 0, 300, 250}) : (Rect{0, 0, 200, 150}));
    EXPECT_TRUE(std::any_of(hand.panel->seen.begin(), hand.panel->seen.end(),
                            [](const auto& one) { return one.code == WM_DISPLAYCHANGE; }));
    Hand other(2.0);
    if (privately) other.KeepPrivately(300, 250);
    other.panel->ScrollBy(20, 30);
    EXPECT_TRUE(hand.Screen() == other.Screen());
  }
}

}  // namespace
}  // namespace orvane
