#include "chemistry/value_filter.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <string>

namespace orvane {
namespace {

using Ranges = std::vector<FilterRange>;
constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();

FilterBound Whole(std::int32_t value) { return {false, value, 0}; }
FilterBound Real(double value) { return {true, 0, value}; }

struct Accepted {
  TextView text;
  Ranges ranges;
};

void ExpectAccepted(const std::vector<Accepted>& cases) {
  for (const Accepted& c : cases) {
    SCOPED_TRACE(ToUtf8(c.text));
    Ranges ranges{{Whole(9), Whole(9)}};
    EXPECT_EQ(ParseFilter(c.text, ranges), FilterError::kNone);
    EXPECT_EQ(ranges, c.ranges);
  }
}

TEST(ParseFilterTest, NothingIsNoFilter) { ExpectAccepted({{u"", {}}, {u"   ", {}}}); }

TEST(ParseFilterTest, WholeAndRealBounds) {
  ExpectAccepted({
      {u"3-48", {{Whole(3), Whole(48)}}},
      {u"3 - 48", {{Whole(3), Whole(48)}}},
      {u"  1 2 - 4 8 ", {{Whole(12), Whole(48)}}},
      {u"1-2;5-7.5", {{Whole(1), Whole(2)}, {Whole(5), Real(7.5)}}},
      {u"1.5-2", {{Real(1.5), Whole(2)}}},
      // Decimals add up one by one, as those of the elements' values do.
      {u"0.25-0.75", {{Real(2 * 0.1 + 5 * (0.1 * 0.1)), Real(7 * 0.1 + 5 * (0.1 * 0.1))}}},
      {u"007-08", {{Whole(7), Whole(8)}}},
      {u"1-2;3-4;5-6", {{Whole(1), Whole(2)}, {Whole(3), Whole(4)}, {Whole(5), Whole(6)}}},
  });
}

TEST(ParseFilterTest, MinusIsASignAtTheStartOfABoundOnly) {
  ExpectAccepted({
      {u"-5--3", {{Whole(-5), Whole(-3)}}},
      {u"-5.5--3.25", {{Real(-5.5), Real(-3.25)}}},
      {u"--3", {{Whole(0), Whole(3)}}},
      {u"1--", {{Whole(1), Whole(0)}}},
      {u"---", {{Whole(0), Whole(0)}}},
      {u"-1-2;-3-4", {{Whole(-1), Whole(2)}, {Whole(-3), Whole(4)}}},
  });
}

TEST(ParseFilterTest, APointWithoutDigitsIsARealZero) {
  ExpectAccepted({
      {u"1-.", {{Whole(1), Real(0)}}},
      {u"1-.5", {{Whole(1), Real(0.5)}}},
      {u"1-5.", {{Whole(1), Real(5)}}},
      {u"1.-5", {{Real(1), Whole(5)}}},
      {u"-.5-1", {{Real(-0.5), Whole(1)}}},
      {u"1-2;.-.", {{Whole(1), Whole(2)}, {Real(0), Real(0)}}},
  });
}

TEST(ParseFilterTest, BoundsAreNeitherOrderedNorMerged) {
  ExpectAccepted({{u"48-3", {{Whole(48), Whole(3)}}},
                  {u"1-5;2-3;1-5", {{Whole(1), Whole(5)}, {Whole(2), Whole(3)}, {Whole(1), Whole(5)}}}});
}

TEST(ParseFilterTest, WholeNumbersWrapAt32BitsAndRealOnesDoNot) {
  ExpectAccepted({
      {u"2147483647-2147483648", {{Whole(2147483647), Whole(kLowest)}}},
      {u"0-4294967301", {{Whole(0), Whole(5)}}},
      {u"-2147483648-0", {{Whole(kLowest), Whole(0)}}},
      {u"-2147483649-0", {{Whole(2147483647), Whole(0)}}},
      {u"0-4294967301.", {{Whole(0), Real(4294967301.0)}}},
  });
}

struct Refused {
  TextView text;
  FilterError error;
};

TEST(ParseFilterTest, SaysWhatIsWrongAndKeepsTheRanges) {
  const Refused cases[] = {
      {u"5", FilterError::kEnding},
      {u"5;", FilterError::kInLow},
      {u"1-2;", FilterError::kEnding},
      {u"1-;", FilterError::kNoHigh},
      {u"1-2-3", FilterError::kSecondMinus},
      {u"1-2x", FilterError::kInHigh},
      {u"1x-2", FilterError::kInLow},
      {u"x", FilterError::kBeginning},
      {u".5-1", FilterError::kBeginning},
      {u"1..2-3", FilterError::kTwoPoints},
      {u"1-2.3.4", FilterError::kTwoPoints},
      // The same for what lies between.
      {u"-", FilterError::kEnding},
      {u"--", FilterError::kEnding},
      {u"1-", FilterError::kEnding},
      {u"1-2;3", FilterError::kEnding},
      {u"-;", FilterError::kInLow},
      {u"1-2;;3-4", FilterError::kInLow},
      {u"1-2;x", FilterError::kInLow},
      {u"1,5-2", FilterError::kInLow},
      {u"1e3-2", FilterError::kInLow},
      {u"----", FilterError::kSecondMinus},
      {u"1---2", FilterError::kSecondMinus},
      {u"1.2.3", FilterError::kTwoPoints},
      {u";1-2", FilterError::kBeginning},
      {u"+1-2", FilterError::kBeginning},
      {u"   x", FilterError::kBeginning},
      {u"\uFF11-2", FilterError::kBeginning},  // a digit, but not an ASCII one
  };
  for (const Refused& c : cases) {
    SCOPED_TRACE(ToUtf8(c.text));
    Ranges ranges{{Whole(9), Real(9)}};
    EXPECT_EQ(ParseFilter(c.text, ranges), c.error);
    EXPECT_EQ(ranges, (Ranges{{Whole(9), Real(9)}}));
  }
}

TEST(ParseFilterTest, OnlyTheSpaceIsDropped) {
  Ranges ranges;
  EXPECT_EQ(ParseFilter(u"1-2\t", ranges), FilterError::kInHigh);
  EXPECT_EQ(ParseFilter(u"1\t-2", ranges), FilterError::kInLow);
  EXPECT_EQ(ParseFilter(u"\t", ranges), FilterError::kBeginning);
  EXPECT_EQ(ParseFilter(u"1-2\n", ranges), FilterError::kInHigh);
  EXPECT_EQ(ParseFilter(u"1-\u00A02", ranges), FilterError::kInHigh);
}

TEST(ParseFilterTest, TakesTheLongestTextAndRefusesALongerOne) {
  Text text = u"1-2";
  for (int i = 1; i < 63; ++i) text += u";1-2";
  text += u"  ";
  ASSERT_EQ(text.size(), 253u);
  Ranges ranges;
  EXPECT_EQ(ParseFilter(text + u"7", ranges), FilterError::kNone);
  ASSERT_EQ(ranges.size(), 63u);
  EXPECT_EQ(ranges.back(), (FilterRange{Whole(1), Whole(27)}));
  EXPECT_EQ(ParseFilter(text + u"78", ranges), FilterError::kTooLong);
  EXPECT_EQ(ranges.size(), 63u);
}

TEST(FilterMessageTest, TellsEachErrorInItsWords) {
  const std::map<FilterError, TextView> messages = {
      {FilterError::kNone, u""},
      {FilterError::kBeginning,
       u"Filter expression must begin with a digit or be empty. See help for more info."},
      {FilterError::kTwoPoints, u"One of the numbers in the filter string has two decimal points in it."},
      {FilterError::kInLow, u"Unexpected character in filter string (1). See help for more info."},
      {FilterError::kInHigh, u"Unexpected character in filter string (2). See help for more info."},
      {FilterError::kSecondMinus, u"Unexpected character in filter string (3). See help for more info."},
      {FilterError::kNoHigh, u"Unexpected character in filter string (4). See help for more info."},
      {FilterError::kEnding, u"The filter string ended unexpectedly. See help for more info."},
      {FilterError::kTooLong, u"The filter string is longer than 254 characters."},
  };
  for (const auto& [error, text] : messages) EXPECT_EQ(FilterMessage(error), text);
}

TEST(SetFilterTest, KeepsTheTextAsTyped) {
  ValueFilter filter;
  EXPECT_EQ(SetFilter(filter, u" 3 - 48 "), FilterError::kNone);
  EXPECT_EQ(filter.text, u" 3 - 48 ");
  EXPECT_EQ(filter.ranges, (Ranges{{Whole(3), Whole(48)}}));
  EXPECT_EQ(SetFilter(filter, u"   "), FilterError::kNone);
  EXPECT_EQ(filter.text, u"   ");
  EXPECT_TRUE(filter.ranges.empty());
}

TEST(SetFilterTest, ATextWithAnErrorChangesNothing) {
  ValueFilter filter;
  SetFilter(filter, u"3-48");
  EXPECT_EQ(SetFilter(filter, u"1-2;3x"), FilterError::kInLow);
  EXPECT_EQ(filter.text, u"3-48");
  EXPECT_EQ(filter.ranges, (Ranges{{Whole(3), Whole(48)}}));
}

bool Passes(TextView text, double value) {
  ValueFilter filter;
  EXPECT_EQ(SetFilter(filter, text), FilterError::kNone);
  return PassesFilter(filter, value);
}

TEST(PassesFilterTest, BothEndsBelongToARange) {
  EXPECT_TRUE(Passes(u"3-48", 3));
  EXPECT_TRUE(Passes(u"3-48", 48));
  EXPECT_TRUE(Passes(u"3-48", 3.5));
  EXPECT_FALSE(Passes(u"3-48", 2.999));
  EXPECT_FALSE(Passes(u"3-48", 48.001));
  EXPECT_TRUE(Passes(u"5-7.5", 7.5));
  EXPECT_FALSE(Passes(u"5-7.5", 7.51));
}

TEST(PassesFilterTest, WithoutRangesEverythingPasses) {
  EXPECT_TRUE(Passes(u"", -1e9));
  EXPECT_TRUE(Passes(u"  ", 1e9));
}

TEST(PassesFilterTest, OneRangeIsEnough) {
  EXPECT_TRUE(Passes(u"1-2;5-7.5", 1));
  EXPECT_TRUE(Passes(u"1-2;5-7.5", 6));
  EXPECT_FALSE(Passes(u"1-2;5-7.5", 3));
  EXPECT_TRUE(Passes(u"48-3;7-7", 7));
}

TEST(PassesFilterTest, RangesThatHoldNothing) {
  for (const double value : {2.0, 3.0, 20.0, 48.0, 50.0}) EXPECT_FALSE(Passes(u"48-3", value));
  EXPECT_FALSE(Passes(u"1--", 0.5));
}

TEST(PassesFilterTest, SignsCount) {
  EXPECT_TRUE(Passes(u"-5--3", -4));
  EXPECT_FALSE(Passes(u"-5--3", 4));
  EXPECT_TRUE(Passes(u"--3", 0));
  EXPECT_FALSE(Passes(u"--3", -1));
}

}  // namespace
}  // namespace orvane
