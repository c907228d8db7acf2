#include "chemistry/plot.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <utility>

#include "tests/chemistry/plot_elements.h"

namespace orvane::testing {
namespace {

TEST(PlotTest, WithoutBothValuesThereIsNoPointAndTheLineBreaks) {
  PlotElements elements;
  for (int i = 0; i < 7; ++i) {
    if (i != 3) elements.Set(i, DecimalText(i), u"5");
  }
  Plot plot;
  elements.Build(plot);
  EXPECT_TRUE(plot.At(2).valid);
  EXPECT_FALSE(plot.At(3).valid);
  EXPECT_TRUE(plot.IsJoined(1));
  EXPECT_FALSE(plot.IsJoined(2));
  EXPECT_FALSE(plot.IsJoined(3));
  EXPECT_TRUE(plot.IsJoined(4));
  EXPECT_FALSE(plot.IsJoined(6));
  EXPECT_FALSE(plot.IsJoined(kPlotElements - 1));
}

TEST(PlotTest, FiltersTestTheTrueSign) {
  PlotElements elements;
  elements.Set(0, u"1", u"5");
  elements.Set(1, u"2", u"5-");
  elements.Set(2, u"3-", u"7");
  Plot plot;
  elements.Build(plot, u"", u"1-9");
  EXPECT_TRUE(plot.At(0).valid);
  EXPECT_FALSE(plot.At(1).valid);
  EXPECT_TRUE(plot.At(2).valid);
  EXPECT_EQ(plot.At(0).y, -5);
  EXPECT_EQ(plot.At(1).y, 5);
  elements.Build(plot, u"-3-1", u"");
  EXPECT_TRUE(plot.At(0).valid);
  EXPECT_FALSE(plot.At(1).valid);
  EXPECT_TRUE(plot.At(2).valid);
}

TEST(PlotTest, AFilteredElementBreaksTheLineAndDoesNotWidenTheRange) {
  PlotElements elements;
  for (int i = 0; i < 60; ++i) elements.Set(i, DecimalText(i + 1), DecimalText(i * 2));
  Plot plot;
  elements.Build(plot, u"3-48", u"");
  EXPECT_EQ(plot.X().Data(), (PlotRange{3, 48}));
  EXPECT_EQ(plot.Y().Data(), (PlotRange{-94, -4}));
  EXPECT_FALSE(plot.At(1).valid);
  EXPECT_TRUE(plot.At(2).valid);
  EXPECT_TRUE(plot.At(47).valid);
  EXPECT_FALSE(plot.At(48).valid);
  EXPECT_FALSE(plot.IsJoined(1));
  EXPECT_FALSE(plot.IsJoined(47));
}

TEST(PlotTest, WithoutPointsNothingHappens) {
  Plot plot;
  for (const TextView filter : {u"", u"48-3"}) {
    PlotElements elements;
    if (!filter.empty()) elements.Set(3, u"7", u"8");
    elements.Build(plot, filter);
    EXPECT_TRUE(plot.IsEmpty());
    EXPECT_EQ(plot.View(), PlotView());
    EXPECT_FALSE(plot.Pan(5, 5));
    EXPECT_FALSE(plot.ZoomIn());
    EXPECT_FALSE(plot.ZoomOut());
    EXPECT_FALSE(plot.ZoomTo({0, 0}, {9, 9}));
    EXPECT_FALSE(plot.ZoomOutInto({0, 0}, {9, 9}));
    EXPECT_FALSE(plot.ZoomAround({0, 0}, true));
    EXPECT_EQ(plot.ElementAt({-9999, -9999}), -1);
  }
}

// The only value of an axis stands in the middle of a range of span 1, which is not remembered.
TEST(PlotTest, ASingleValueStandsInTheMiddle) {
  PlotElements elements;
  elements.Set(9, u"12", u"30");
  Plot plot;
  elements.Build(plot);
  EXPECT_EQ(plot.View().x, (PlotRange{12, 12}));
  EXPECT_EQ(plot.Drawn().x, (PlotRange{11.5, 12.5}));
  EXPECT_EQ(plot.Drawn().y, (PlotRange{-30.5, -29.5}));
  EXPECT_EQ(plot.PlaceOf(9), (Point{120, 134}));
  EXPECT_EQ(plot.ElementAt({120, 134}), 9);
  // 0.1 of span 1 on either side.
  EXPECT_TRUE(plot.ZoomIn());
  EXPECT_NEAR(plot.View().x.low, 11.6, 1e-12);
  EXPECT_NEAR(plot.View().x.high, 12.4, 1e-12);
}

TEST(PlotTest, ALargeSingleValueStandsInTheMiddleToo) {
  for (const TextView text : {u"123456789012", u"99999999999999999999999999"}) {
    PlotElements elements;
    elements.Set(0, text, u"1");
    Plot plot;
    elements.Build(plot);
    EXPECT_NEAR(plot.PlaceOf(0).x, 120, 1);
  }
}

TEST(PlotTest, OneAxisWithoutAnExtentLeavesTheOtherAsItIs) {
  PlotElements elements;
  elements.Set(0, u"5", u"0");
  elements.Set(1, u"5", u"100");
  Plot plot;
  elements.Build(plot);
  EXPECT_EQ(plot.Drawn().x, (PlotRange{4.5, 5.5}));
  ExpectRange(plot.Drawn().y, {-108, 8});
}

TEST(PlotTest, AViewWithoutASpanIsDrawnAsTheAutomaticRange) {
  const double infinite = std::numeric_limits<double>::infinity();
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double large = std::numeric_limits<double>::max();
  for (const PlotRange& stored : {PlotRange{0, 0}, PlotRange{7, 7}, PlotRange{0, infinite}, PlotRange{nan, 1},
                                  PlotRange{-infinite, infinite}, PlotRange{-large, large}}) {
    Plot plot;
    OracleElements().Build(plot);
    const PlotView automatic = plot.Automatic();
    plot.SetView({stored, stored});
    EXPECT_EQ(plot.Drawn(), automatic);
    // What is remembered stays, to the bit.
    EXPECT_EQ(std::isnan(plot.View().x.low), std::isnan(stored.low));
    EXPECT_TRUE(std::isnan(stored.low) || plot.View().x == stored);
    // The first change begins at what is drawn.
    EXPECT_TRUE(plot.Pan(0, 1));
    const double low = static_cast<double>(plot.X().Origin()) * automatic.x.Span() / 240;
    ExpectRange(plot.View().x, {low, low + automatic.x.Span()});
  }
}

TEST(PlotTest, ZoomFromAViewWithoutASpanBeginsAtTheAutomaticRange) {
  Plot plot;
  OracleElements().Build(plot);
  const PlotView automatic = plot.Automatic();
  plot.SetView({});
  EXPECT_TRUE(plot.ZoomOut());
  ExpectRange(plot.View().x,
              {automatic.x.low - 0.1 * automatic.x.Span(), automatic.x.high + 0.1 * automatic.x.Span()});
}

TEST(PlotTest, ValuesBeyondAllMeasureHaveNoPoint) {
  PlotElements elements;
  elements.Set(0, Text(400, u'9'), u"1");
  elements.Set(1, u"1", Text(400, u'9'));
  elements.Set(2, Text(302, u'9'), u"1");
  elements.Set(3, u"2", u"3");
  Plot plot;
  elements.Build(plot);
  EXPECT_FALSE(plot.At(0).valid);
  EXPECT_FALSE(plot.At(1).valid);
  EXPECT_FALSE(plot.At(2).valid);
  EXPECT_TRUE(plot.At(3).valid);
  EXPECT_EQ(plot.ElementAt({120, 134}), 3);
}

TEST(PlotTest, TheWidestValuesKeepTheirPlaces) {
  PlotElements elements;
  elements.Set(0, Text(299, u'9') + u"-", u"1");
  elements.Set(1, Text(299, u'9'), u"2");
  Plot plot;
  elements.Build(plot);
  // 5 % of the extent on either side of it: 240 × 0.05 / 1.1 and 240 × 1.05 / 1.1.
  EXPECT_NEAR(plot.PlaceOf(0).x, 10, 1);
  EXPECT_NEAR(plot.PlaceOf(1).x, 229, 1);
  for (int i = 0; i < 10000; ++i) plot.ZoomOut();
  EXPECT_TRUE(std::isfinite(plot.View().x.Span()));
}

// Where the next step would leave the range of numbers the plot stays as it is, and the way back is open.
TEST(PlotTest, PanningEndsBeforeNumbersDo) {
  for (const PlotRange& far :
       {PlotRange{-1e307, 1.2e308}, PlotRange{1.6e308, 1.7e308}, PlotRange{-1e308, 5}}) {
    Plot plot;
    OracleElements().Build(plot);
    PlotView view = plot.View();
    view.x = far;
    plot.SetView(view);
    for (const int step : {240 * 100, -240 * 100, 100000000, -100000000}) {
      plot.Pan(step, 0);
      EXPECT_TRUE(std::isfinite(plot.View().x.Span())) << step;
      EXPECT_TRUE(std::isfinite(plot.View().x.low)) << step;
    }
    plot.SetView(view);
    EXPECT_FALSE(plot.Pan(100000000, 1));
    EXPECT_EQ(plot.View(), view);
    EXPECT_TRUE(plot.ZoomIn());
  }
}

// The pen zooms for as long as neighbouring places have values of their own, and out again.
TEST(PlotTest, ZoomingEndsBeforeNumbersDo) {
  Plot plot;
  OracleElements().Build(plot);
  int steps = 0;
  while (plot.ZoomIn() && steps < 1000) ++steps;
  EXPECT_GT(steps, 60);
  EXPECT_LT(steps, 200);
  const PlotView deep = plot.View();
  EXPECT_FALSE(plot.ZoomTo({10, 10}, {11, 11}));
  EXPECT_EQ(plot.View(), deep);
  EXPECT_TRUE(plot.ZoomOut());
  EXPECT_GT(plot.X().Span(), deep.x.Span());
}

TEST(PlotTest, AViewThatRunsBackwardsIsDrawnSo) {
  PlotElements elements;
  elements.Set(0, u"0", u"0");
  elements.Set(1, u"100", u"100");
  Plot plot;
  elements.Build(plot);
  plot.SetView({{100, 0}, {0, -100}});
  EXPECT_EQ(plot.PlaceOf(0).x, 240);
  EXPECT_EQ(plot.PlaceOf(1).x, 0);
  EXPECT_EQ(plot.ElementAt({0, 0}), -1);  // no distance is within a part of a negative span
}

TEST(PlotLineTest, RunsFromPointToPoint) {
  Plot plot;
  OracleElements().Build(plot);
  EXPECT_EQ(plot.LineFrom(0), (PlotLine{plot.PlaceOf(0), plot.PlaceOf(1)}));
  EXPECT_EQ(plot.LineFrom(3), std::nullopt);  // the next element has no values
  EXPECT_EQ(plot.LineFrom(4), std::nullopt);
  EXPECT_EQ(plot.LineFrom(kPlotElements - 1), std::nullopt);
}

// A view a thousand millionth as wide as the data: the line leaves it as steeply as it does any other.
TEST(PlotLineTest, KeepsItsSlopeHoweverFarItsEndsAre) {
  PlotElements elements;
  elements.Set(0, u"100-", u"50-");
  elements.Set(1, u"0", u"0");
  elements.Set(2, u"100", u"50");
  Plot plot;
  elements.Build(plot);
  plot.SetView({{-1e-7, 1e-7}, {-1e-7, 1e-7}});
  const double slope = -50.0 * kPlotHeight / (100.0 * kPlotWidth);
  const Point middle = plot.PlaceOf(1);
  for (const int element : {0, 1}) {
    const std::optional<PlotLine> line = plot.LineFrom(element);
    ASSERT_TRUE(line.has_value());
    const auto [near, far] = element == 1 ? std::pair{line->from, line->to} : std::pair{line->to, line->from};
    EXPECT_EQ(near, middle);
    EXPECT_GT(std::abs(far.x), 1'000'000);
    EXPECT_NEAR(static_cast<double>(far.y - near.y) / (far.x - near.x), slope, 1e-6);
  }
  // Where both ends are out of reach it passes through; elsewhere it does not come near at all.
  elements.Set(1, u"100", u"50");
  elements.Build(plot);
  plot.SetView({{-1e-7, 1e-7}, {-1e-7, 1e-7}});
  const std::optional<PlotLine> through = plot.LineFrom(0);
  ASSERT_TRUE(through.has_value());
  EXPECT_NEAR(through->from.y - slope * (through->from.x - middle.x), middle.y, 1);
  EXPECT_NEAR(through->to.y - slope * (through->to.x - middle.x), middle.y, 1);
  plot.SetView({{5, 5 + 2e-7}, {0, 2e-7}});
  EXPECT_EQ(plot.LineFrom(0), std::nullopt);
}

// Four steps at the most: 1 / 60 of the x span, 1 / 67 of the y span.
TEST(PlotHitTest, ReachesFourSteps) {
  PlotElements elements;
  elements.Set(0, u"0", u"0");
  elements.Set(5, u"120", u"134-");
  Plot plot;
  elements.Build(plot);
  plot.SetView({{0, 240}, {0, 268}});
  ASSERT_EQ(plot.PlaceOf(5), (Point{120, 134}));
  for (const Point hit : {Point{120, 134}, Point{124, 134}, Point{116, 134}, Point{120, 138}, Point{120, 130},
                          Point{124, 138}, Point{116, 130}}) {
    EXPECT_EQ(plot.ElementAt(hit), 5) << hit.x << ", " << hit.y;
  }
  for (const Point missed : {Point{125, 134}, Point{115, 134}, Point{120, 139}, Point{120, 129}}) {
    EXPECT_EQ(plot.ElementAt(missed), -1) << missed.x << ", " << missed.y;
  }
}

TEST(PlotHitTest, TheFirstElementWins) {
  PlotElements elements;
  elements.Set(0, u"0", u"0");
  elements.Set(7, u"100", u"100-");
  elements.Set(8, u"102", u"100-");
  elements.Set(9, u"240", u"268-");
  Plot plot;
  elements.Build(plot);
  plot.SetView({{0, 240}, {0, 268}});
  EXPECT_EQ(plot.ElementAt({102, 100}), 7);
  EXPECT_EQ(plot.ElementAt({105, 100}), 8);
}

// Elements without a point are found too: at the values that a filter refused, at those of an earlier build,
// or at 0.
TEST(PlotHitTest, FindsWhatIsNotDrawn) {
  PlotElements elements;
  elements.Set(1, u"50", u"60-");
  elements.Set(2, u"200", u"200-");
  elements.Set(3, u"100", u"100-");
  Plot plot;
  elements.Build(plot);
  PlotElements fewer;
  fewer.Set(2, u"200", u"200-");
  fewer.Set(3, u"120", u"100-");
  fewer.Build(plot, u"150-300");
  plot.SetView({{0, 240}, {0, 268}});
  EXPECT_FALSE(plot.At(1).valid);
  EXPECT_FALSE(plot.At(3).valid);
  EXPECT_EQ(plot.ElementAt({50, 60}), 1);    // of the earlier build
  EXPECT_EQ(plot.ElementAt({120, 100}), 3);  // refused now
  EXPECT_EQ(plot.ElementAt({0, 0}), 0);      // never had a value
}

TEST(ToggleLabelsTest, AnyOnMeansAllOff) {
  PlotElements elements;
  for (int i = 0; i < 5; ++i) elements.Set(i, DecimalText(i + 1), u"1");
  Plot plot;
  elements.Build(plot, u"1-3");
  PlotLabels labels{};
  labels[4] = true;  // filtered: neither counts nor changes
  ToggleLabels(plot, labels);
  EXPECT_TRUE(labels[0] && labels[1] && labels[2]);
  EXPECT_FALSE(labels[3]);
  EXPECT_TRUE(labels[4]);
  labels[0] = false;
  ToggleLabels(plot, labels);
  EXPECT_FALSE(labels[0] || labels[1] || labels[2] || labels[3]);
  EXPECT_TRUE(labels[4]);
}

}  // namespace
}  // namespace orvane::testing
