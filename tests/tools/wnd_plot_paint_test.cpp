// What the plot looks like, pixel by pixel.
#include <gmock/gmock.h>

#include <cstdlib>

#include "tests/tools/wnd_plot_fixture.h"

namespace orvane::testing {
namespace {

using ::testing::Contains;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

// Edges are smoothed, so that a shape of few pixels has none of its pure colour.
::testing::AssertionResult IsNear(std::uint32_t pixel, std::uint32_t colour) {
  for (const int shift : {16, 8, 0}) {
    const int a = static_cast<int>((pixel >> shift) & 0xFF);
    const int b = static_cast<int>((colour >> shift) & 0xFF);
    if (std::abs(a - b) > 0x60) return ::testing::AssertionFailure() << HexText(pixel, 6);
  }
  return ::testing::AssertionSuccess();
}

constexpr std::uint32_t kWhitePixel = 0xFFFFFF;
constexpr std::uint32_t kBlackPixel = 0x000000;
constexpr std::uint32_t kRedPixel = 0xFF0000;
constexpr std::uint32_t kBluePixel = 0x0000FF;

TEST_F(WndPlotTest, APointIsARedCircleOfFourPixelsOutlinedInBlack) {
  MakeAndShowPlaces(false);
  const auto [x, y] = kPlaces[1];
  for (int dy = -1; dy <= 0; ++dy) {
    for (int dx = -1; dx <= 0; ++dx) EXPECT_TRUE(IsNear(At(x + dx, y + dy), kRedPixel)) << dx << ", " << dy;
  }
  for (const int d : {-1, 0}) {
    EXPECT_TRUE(IsNear(At(x + d, y - 2), kBlackPixel));
    EXPECT_TRUE(IsNear(At(x + d, y + 1), kBlackPixel));
    EXPECT_TRUE(IsNear(At(x - 2, y + d), kBlackPixel));
    EXPECT_TRUE(IsNear(At(x + 1, y + d), kBlackPixel));
    // Nothing reaches beyond its box.
    EXPECT_EQ(At(x + d, y - 3), kWhitePixel);
    EXPECT_EQ(At(x + d, y + 2), kWhitePixel);
    EXPECT_EQ(At(x - 3, y + d), kWhitePixel);
    EXPECT_EQ(At(x + 2, y + d), kWhitePixel);
  }
}

// Lines run through the middle of logical pixels, the middle of a circle of four is a corner between them:
// half a pixel apart at every scale alike, so that a logical pixel shows the same at each.
class WndPlotScaleTest : public WndPlotTest, public ::testing::WithParamInterface<int> {
 protected:
  WndPlotScaleTest() : WndPlotTest(GetParam()) {}
};

TEST_P(WndPlotScaleTest, PointsAndLinesKeepTheirPixelsAtEveryScale) {
  // So high a view has all five at the same height.
  StorePlaces(true, -1e9, 1e9);
  MakeAndShow();
  const int scale = GetParam();
  const auto [x, y] = GetPlot().PlaceOf(0);
  ASSERT_EQ((Point{x, y}), (Point{40, 134}));
  ASSERT_EQ(GetPlot().PlaceOf(1), (Point{80, 134}));
  const auto device = [&](int deviceX, int deviceY) { return shell_.Pixel({deviceX, deviceY + 26 * scale}); };
  // The line has its row of logical pixels, all of it and no more.
  for (int row = 0; row < scale; ++row) EXPECT_EQ(device(60 * scale, y * scale + row), kBluePixel);
  EXPECT_EQ(device(60 * scale, y * scale - 1), kWhitePixel);
  EXPECT_EQ(device(60 * scale, (y + 1) * scale), kWhitePixel);
  // The circle touches the edges of its box and does not reach beyond them.
  for (const int column : {x * scale - 1, x * scale}) {
    EXPECT_TRUE(IsNear(device(column, (y - 2) * scale), kBlackPixel));
    EXPECT_EQ(device(column, (y - 2) * scale - 1), kWhitePixel);
    EXPECT_TRUE(IsNear(device(column, (y + 2) * scale - 1), kBlackPixel));
    EXPECT_EQ(device(column, (y + 2) * scale), kWhitePixel);
  }
  EXPECT_TRUE(IsNear(device((x - 2) * scale, y * scale - 1), kBlackPixel));
  EXPECT_EQ(device((x - 2) * scale - 1, y * scale - 1), kWhitePixel);
  EXPECT_TRUE(IsNear(device((x + 2) * scale - 1, y * scale - 1), kBlackPixel));
  EXPECT_EQ(device((x + 2) * scale, y * scale - 1), kWhitePixel);
}

INSTANTIATE_TEST_SUITE_P(Scales, WndPlotScaleTest, ::testing::Values(1, 2, 3));

TEST_F(WndPlotTest, NeighboursAreJoinedInBlue) {
  MakeAndShowPlaces();
  // (40, 60) to (80, 100): the diagonal. It begins on its first point and ends under its second.
  EXPECT_TRUE(IsNear(At(60, 80), kBluePixel));
  EXPECT_TRUE(IsNear(At(40, 60), kBluePixel));
  EXPECT_TRUE(IsNear(At(79, 99), kRedPixel));
  // The last point has no neighbour.
  EXPECT_EQ(At(200 + 5, 60), kWhitePixel);
  Command(40203);
  EXPECT_EQ(At(60, 80), kWhitePixel);
  EXPECT_TRUE(IsNear(At(40, 60), kRedPixel));
}

TEST_F(WndPlotTest, WithoutPointsThereAreOnlyLines) {
  MakeAndShowPlaces();
  Tap({80, 100});
  EXPECT_THAT(Texts(), Contains(StartsWith("E2 ")));
  EXPECT_TRUE(IsNear(At(79, 101), kBlackPixel));
  Command(40204);
  EXPECT_EQ(At(79, 101), kWhitePixel);
  EXPECT_TRUE(IsNear(At(60, 80), kBluePixel));
  EXPECT_THAT(Texts(), Not(Contains(StartsWith("E2 "))));
}

// "E2" is 12 wide or so and 12 high (10 and 2): centred, with its bottom at y − 2.
TEST_F(WndPlotTest, ALabelStandsOnItsPoint) {
  MakeAndShowPlaces(false);
  Tap({80, 100});
  for (const ScreenRun& run : GetDevice().VisibleRuns()) {
    if (run.run.text != u"E2") continue;
    EXPECT_EQ(run.run.colour, Rgb(0, 128, 0));
    EXPECT_EQ(run.run.font.face, u"Tahoma");
    EXPECT_EQ(run.run.font.pixels, 10);
    EXPECT_EQ(run.run.rect.bottom - 26, 98);
    EXPECT_EQ(run.run.rect.left, 80 - run.run.rect.Width() / 2);
    return;
  }
  FAIL() << "no label";
}

TEST_F(WndPlotTest, TheAxesAreNamed) {
  MakeAndShowPlaces();
  int found = 0;
  for (const ScreenRun& run : GetDevice().VisibleRuns()) {
    const Rect rect = run.run.rect.Offset(0, -26);
    if (run.run.text == u"Across") {
      EXPECT_EQ((Point{rect.right, rect.bottom}), (Point{236, 266}));
    } else if (run.run.text == u"Down") {
      EXPECT_EQ(rect.TopLeft(), (Point{4, 1}));
    } else {
      continue;
    }
    ++found;
    EXPECT_EQ(run.run.colour, Rgb(128, 0, 0));
    EXPECT_EQ(run.run.font.pixels, 10);
  }
  EXPECT_EQ(found, 2);
  Command(40208);
  EXPECT_THAT(Texts(), IsEmpty());
}

TEST_F(WndPlotTest, TheRubberBandIsAHollowGreyRectangle) {
  MakeAndShowPlaces();
  Button(8121);
  Press({{100, 150}, {108, 158}});
  EXPECT_EQ(At(100, 150), kWhitePixel);  // it may still be a tap
  Press({{100, 150}, {150, 210}});
  EXPECT_EQ(At(100, 150), 0x909090u);
  EXPECT_EQ(At(125, 150), 0x909090u);
  EXPECT_EQ(At(100, 180), 0x909090u);
  EXPECT_EQ(At(149, 180), 0x909090u);
  EXPECT_EQ(At(125, 209), 0x909090u);
  EXPECT_EQ(At(150, 180), kWhitePixel);
  EXPECT_EQ(At(125, 180), kWhitePixel);
  Release({150, 210});
}

TEST_F(WndPlotTest, APanShowsNoRubberBand) {
  MakeAndShowPlaces();
  Press({{100, 150}, {150, 210}});
  EXPECT_EQ(tool_->RubberBand(), std::nullopt);
  EXPECT_EQ(At(100, 150), kWhitePixel);
  Release({150, 210});
}

// A point with its label is drawn while the box from 7 pixels left to 7 right, 17 above to 2 below touches.
TEST_F(WndPlotTest, PointsAtTheEdgeComeWithTheirBox) {
  MakeAndShowPlaces(false);
  Tap({40, 60});
  ASSERT_TRUE(Label(0));
  Stroke({{200, 200}, {200 - 46, 200}});  // to x −6: the box ends at 1
  EXPECT_EQ(GetPlot().PlaceOf(0).x, -6);
  EXPECT_THAT(Texts(), Contains(StartsWith("Element1 ")));
  Stroke({{200, 200}, {190, 200}, {199, 200}});  // by one more
  EXPECT_EQ(GetPlot().PlaceOf(0).x, -7);
  EXPECT_THAT(Texts(), Not(Contains(StartsWith("Element1 "))));
  // On the other side, where half of so long a label would still show.
  Stroke({{0, 200}, {253, 200}});
  EXPECT_EQ(GetPlot().PlaceOf(0).x, 246);
  EXPECT_THAT(Texts(), Contains(StartsWith("Element1 ")));
  Stroke({{200, 200}, {190, 200}, {201, 200}});
  EXPECT_EQ(GetPlot().PlaceOf(0).x, 247);
  EXPECT_THAT(Texts(), Not(Contains(StartsWith("Element1 "))));
}

// Of a point below the plot the label shows while it reaches in; of one above, the lower edge of its circle.
TEST_F(WndPlotTest, PointsAboveAndBelowComeWithWhatShowsOfThem) {
  MakeAndShowPlaces(false);
  Tap({40, 60});
  Stroke({{200, 20}, {200, 20 + 221}});
  EXPECT_EQ(GetPlot().PlaceOf(0).y, 281);
  EXPECT_THAT(Texts(), Contains(StartsWith("Element1 ")));
  Stroke({{200, 260}, {200, 0}});
  Stroke({{200, 260}, {200, 260 - 22}});
  EXPECT_EQ(GetPlot().PlaceOf(0).y, -1);
  EXPECT_TRUE(IsNear(At(39, 0), kBlackPixel));
  EXPECT_TRUE(IsNear(At(40, 0), kBlackPixel));
}

TEST_F(WndPlotTest, WithoutPointsOnlyTheNamesShow) {
  MakeAndShow();
  Command(40206);
  navigator_.Request().accept(u"48-3", std::nullopt);
  shell_.Settle();
  EXPECT_EQ(Texts().size(), 2u);
  for (int y = 20; y < 240; y += 7) {
    for (int x = 0; x < 240; x += 7) EXPECT_EQ(At(x, y), kWhitePixel);
  }
}

TEST_F(WndPlotTest, AnElementWithoutAValueBreaksTheLine) {
  MakeAndShow();
  // 9 and 11 are drawn, 10 has no energy; between them there is no line.
  const Point a = GetPlot().PlaceOf(8);
  const Point b = GetPlot().PlaceOf(10);
  EXPECT_EQ(At((a.x + b.x) / 2, (a.y + b.y) / 2), kWhitePixel);
  const Point c = GetPlot().PlaceOf(11);
  EXPECT_NE(At((b.x + c.x) / 2, (b.y + c.y) / 2), kWhitePixel);
}

}  // namespace
}  // namespace orvane::testing
