#include "chemistry/plot_value.h"

#include <gtest/gtest.h>

#include <cmath>

namespace orvane {
namespace {

TEST(ReadPlotValueTest, ReadsTextsAsPeopleWriteThem) {
  EXPECT_DOUBLE_EQ(ReadPlotValue(u""), 0);
  EXPECT_DOUBLE_EQ(ReadPlotValue(u"1312.0"), 1312);
  EXPECT_DOUBLE_EQ(ReadPlotValue(u"0.00008988"), 0.00008988);
  EXPECT_DOUBLE_EQ(ReadPlotValue(u"[98]"), 98);
  EXPECT_DOUBLE_EQ(ReadPlotValue(u"299 792 458"), 299792458);
  EXPECT_DOUBLE_EQ(ReadPlotValue(u"~1.5 (est.)"), 1.5);
  EXPECT_DOUBLE_EQ(ReadPlotValue(u"none"), 0);
}

TEST(ReadPlotValueTest, AMinusNegatesWhatWasReadBeforeIt) {
  EXPECT_DOUBLE_EQ(ReadPlotValue(u"-2.5"), 2.5);
  EXPECT_DOUBLE_EQ(ReadPlotValue(u"2-5"), -15);
  EXPECT_DOUBLE_EQ(ReadPlotValue(u"2.5-"), -2.5);
  EXPECT_DOUBLE_EQ(ReadPlotValue(u"2--"), 2);
  EXPECT_DOUBLE_EQ(ReadPlotValue(u"2-.5"), -1.5);
  EXPECT_DOUBLE_EQ(ReadPlotValue(u"-"), 0);
  EXPECT_DOUBLE_EQ(ReadPlotValue(u"\u22122.5"), 2.5);  // the true minus sign is a character like others
}

TEST(ReadPlotValueTest, AFurtherPointBeginsTheDecimalsAnew) {
  EXPECT_DOUBLE_EQ(ReadPlotValue(u"1.2.3"), 1.5);
  EXPECT_DOUBLE_EQ(ReadPlotValue(u"1..5"), 1.5);
  EXPECT_DOUBLE_EQ(ReadPlotValue(u"1.25.5"), 1.75);
  EXPECT_DOUBLE_EQ(ReadPlotValue(u".5"), 0.5);
  EXPECT_DOUBLE_EQ(ReadPlotValue(u"5."), 5);
}

TEST(ReadPlotValueTest, EndlessTextsStayNumbers) {
  EXPECT_TRUE(std::isinf(ReadPlotValue(Text(400, u'9'))));
  EXPECT_DOUBLE_EQ(ReadPlotValue(u"1." + Text(400, u'0') + u"9"), 1);
  EXPECT_NEAR(ReadPlotValue(u"0." + Text(400, u'9')), 1, 1e-12);
}

}  // namespace
}  // namespace orvane
