#include "cli/real_text.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvane {
namespace {

TEST(RealTextTest, IsAsShortAsItCanBe) {
  EXPECT_EQ(RealText(0), "0");
  EXPECT_EQ(RealText(-0.0), "0");
  EXPECT_EQ(RealText(3), "3");
  EXPECT_EQ(RealText(-7.5), "-7.5");
  EXPECT_EQ(RealText(0.1), "0.1");
  EXPECT_EQ(RealText(0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(RealText(1e300), "1e+300");
}

TEST(RealTextTest, ReadsBackAsTheSameNumber) {
  for (const double value : {1.0 / 3, -2214.916, std::numeric_limits<double>::max(),
                             std::numeric_limits<double>::min(), 123456789012345678.0}) {
    EXPECT_EQ(ParseReal(RealText(value)), value);
  }
}

TEST(ParseRealTest, ReadsOrdinaryDecimalNumbers) {
  EXPECT_EQ(ParseReal("-4"), -4);
  EXPECT_EQ(ParseReal("+4"), 4);
  EXPECT_EQ(ParseReal("7.5"), 7.5);
  EXPECT_EQ(ParseReal(".5"), 0.5);
  EXPECT_EQ(ParseReal("5."), 5);
  EXPECT_EQ(ParseReal("-1.5e3"), -1500);
  EXPECT_EQ(ParseReal("1E-2"), 0.01);
  EXPECT_EQ(ParseReal("0007"), 7);
}

TEST(ParseRealTest, RefusesEverythingElse) {
  for (const char* text : {"", "-", ".", "-.", "1.2.3", "1e", "1e+", "e5", "1 ", " 1", "1,5", "0x10", "inf",
                           "nan", "--1", "1-2", "1e999", "\xC2\xBD"}) {
    EXPECT_EQ(ParseReal(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace orvane
