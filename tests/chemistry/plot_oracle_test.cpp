// The arithmetic of plots against figures that were worked out apart from it.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>
#include <string>

#include "tests/chemistry/plot_elements.h"

namespace orvane::testing {
namespace {

struct OracleCase {
  PlotView view;
  std::int64_t originX = 0;
  std::int64_t originY = 0;
  std::map<int, Point> places;
};

struct Oracle {
  PlotView data;
  std::map<std::string, OracleCase> cases;
};

Oracle ReadOracle() {
  Oracle oracle;
  OracleCase* current = nullptr;
  std::ifstream file(ORVANE_SOURCE_DIR "/tests/chemistry/plot_oracle.txt");
  std::string line;
  while (std::getline(file, line)) {
    std::istringstream words(line);
    std::string word;
    words >> word;
    if (word == "data") {
      PlotView& d = oracle.data;
      words >> d.x.low >> d.x.high >> d.y.low >> d.y.high;
    } else if (word == "case") {
      words >> word;
      current = &oracle.cases[word];
    } else if (word == "view") {
      PlotView& v = current->view;
      words >> v.x.low >> v.x.high >> v.y.low >> v.y.high;
    } else if (word == "origin") {
      words >> current->originX >> current->originY;
    } else if (word == "at") {
      int element = 0;
      words >> element;
      Point& place = current->places[element];
      words >> place.x >> place.y;
    }
  }
  EXPECT_EQ(oracle.cases.size(), 9u);
  return oracle;
}

void ExpectCase(const Plot& plot, const OracleCase& expected) {
  ExpectRange(plot.View().x, expected.view.x);
  ExpectRange(plot.View().y, expected.view.y);
  EXPECT_EQ(plot.Drawn(), plot.View());
  EXPECT_EQ(plot.X().Origin(), expected.originX);
  EXPECT_EQ(plot.Y().Origin(), expected.originY);
  ASSERT_EQ(expected.places.size(), 100u);
  for (const auto& [element, place] : expected.places) {
    EXPECT_EQ(plot.PlaceOf(element), place) << "element " << element;
  }
}

class PlotOracleTest : public ::testing::Test {
 protected:
  PlotOracleTest() { OracleElements().Build(plot_); }

  Oracle oracle_ = ReadOracle();
  Plot plot_;
};

TEST_F(PlotOracleTest, BuildsInTheAutomaticRange) {
  ExpectRange(plot_.X().Data(), oracle_.data.x);
  ExpectRange(plot_.Y().Data(), oracle_.data.y);
  ExpectCase(plot_, oracle_.cases["automatic"]);
}

TEST_F(PlotOracleTest, ZoomsByTenthsOfTheSpan) {
  EXPECT_TRUE(plot_.ZoomIn());
  ExpectCase(plot_, oracle_.cases["in"]);
  plot_.Fit();
  EXPECT_TRUE(plot_.ZoomOut());
  ExpectCase(plot_, oracle_.cases["out"]);
  plot_.Fit();
  ExpectCase(plot_, oracle_.cases["automatic"]);
}

TEST_F(PlotOracleTest, ARectangleBecomesTheViewFromAnyCorner) {
  EXPECT_TRUE(plot_.ZoomTo({150, 40}, {60, 200}));
  ExpectCase(plot_, oracle_.cases["rectangle"]);
  plot_.Fit();
  EXPECT_TRUE(plot_.ZoomTo({60, 40}, {150, 200}));
  ExpectCase(plot_, oracle_.cases["rectangle"]);
}

TEST_F(PlotOracleTest, TheViewFitsARectangleFromAnyCorner) {
  EXPECT_TRUE(plot_.ZoomOutInto({150, 40}, {60, 200}));
  ExpectCase(plot_, oracle_.cases["into"]);
  plot_.Fit();
  EXPECT_TRUE(plot_.ZoomOutInto({150, 200}, {60, 40}));
  ExpectCase(plot_, oracle_.cases["into"]);
}

TEST_F(PlotOracleTest, PansByTheOrigin) {
  EXPECT_TRUE(plot_.Pan(-30, 0));
  ExpectCase(plot_, oracle_.cases["left"]);
  plot_.Fit();
  EXPECT_TRUE(plot_.Pan(30, 0));
  ExpectCase(plot_, oracle_.cases["right"]);
  plot_.Fit();
  EXPECT_TRUE(plot_.Pan(0, -30));
  ExpectCase(plot_, oracle_.cases["up"]);
  plot_.Fit();
  EXPECT_TRUE(plot_.Pan(0, 30));
  ExpectCase(plot_, oracle_.cases["down"]);
}

TEST_F(PlotOracleTest, PanningThereAndBackKeepsEveryPlace) {
  const Point before = plot_.PlaceOf(50);
  EXPECT_TRUE(plot_.Pan(17, -23));
  EXPECT_EQ(plot_.PlaceOf(50), (Point{before.x - 17, before.y + 23}));
  EXPECT_TRUE(plot_.Pan(-17, 23));
  EXPECT_EQ(plot_.PlaceOf(50), before);
}

// Two steps of a tenth from both sides together, and the value at the place stays there.
TEST_F(PlotOracleTest, ZoomsAroundAPlace) {
  const PlotView before = plot_.View();
  const double x = plot_.X().ValueAt(60);
  const double y = plot_.Y().ValueAt(201);
  EXPECT_TRUE(plot_.ZoomAround({60, 201}, true));
  EXPECT_NEAR(plot_.View().x.Span(), before.x.Span() * 0.8, 1e-9);
  EXPECT_NEAR(plot_.View().y.Span(), before.y.Span() * 0.8, 1e-9);
  // Places are whole steps from a whole origin, before and after.
  const double stepX = before.x.Span() / 240;
  const double stepY = before.y.Span() / 268;
  EXPECT_NEAR(plot_.X().ValueAt(60), x, 2 * stepX);
  EXPECT_NEAR(plot_.Y().ValueAt(201), y, 2 * stepY);
  plot_.SetView(before);
  EXPECT_TRUE(plot_.ZoomAround({0, 0}, false));
  ExpectRange(plot_.View().x, {before.x.low, before.x.high + 0.2 * before.x.Span()});
  ExpectRange(plot_.View().y, {before.y.low, before.y.high + 0.2 * before.y.Span()});
}

TEST_F(PlotOracleTest, ARectangleWithoutAnAreaIsIgnored) {
  const PlotView before = plot_.View();
  EXPECT_FALSE(plot_.ZoomTo({10, 10}, {10, 90}));
  EXPECT_FALSE(plot_.ZoomTo({10, 10}, {90, 10}));
  EXPECT_FALSE(plot_.ZoomOutInto({10, 10}, {10, 90}));
  EXPECT_FALSE(plot_.ZoomOutInto({10, 10}, {90, 10}));
  EXPECT_FALSE(plot_.Pan(0, 0));
  EXPECT_EQ(plot_.View(), before);
}

}  // namespace
}  // namespace orvane::testing
