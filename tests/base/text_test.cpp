#include "base/text.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

namespace orvane {
namespace {

using namespace std::string_view_literals;

TEST(TextTest, WellFormedUtf8BecomesItsCharactersAndBack) {
  const struct {
    std::string_view bytes;
    Text text;
  } cases[] = {
      {""sv, u""},
      {"A\0B"sv, Text(u"A\0B", 3)},
      {"\x7F"sv, u"\u007F"},
      {"\xC2\x80"sv, u"\u0080"},
      {"\xDF\xBF"sv, u"\u07FF"},
      {"\xE0\xA0\x80"sv, u"\u0800"},
      {"\xED\x9F\xBF"sv, u"\uD7FF"},
      {"\xEE\x80\x80"sv, u"\uE000"},
      {"\xEF\xBF\xBF"sv, u"\uFFFF"},
      {"\xF0\x90\x80\x80"sv, u"\U00010000"},
      {"\xF4\x8F\xBF\xBF"sv, u"\U0010FFFF"},
      {"h\xE2\x82\x82o \xF0\x9F\x98\x80!"sv, u"h\u2082o \U0001F600!"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(::testing::PrintToString(c.bytes));
    EXPECT_TRUE(IsValidUtf8(c.bytes));
    EXPECT_EQ(FromUtf8(c.bytes), c.text);
    EXPECT_EQ(ToUtf8(c.text), c.bytes);
  }
}

TEST(TextTest, EachByteOfABrokenSequenceIsReplaced) {
  const Char x = 0xFFFD;
  const struct {
    std::string_view bytes;
    Text text;
  } cases[] = {
      {"\x80"sv, {x}},
      {"\xBF"sv, {x}},
      {"\xC3"sv, {x}},                       // cut off
      {"\xC3(", {x, u'('}},                  // not continued
      {"a\xE2\x82z"sv, {u'a', x, x, u'z'}},  // cut off after two of three
      {"\xF0\x9F\x98"sv, {x, x, x}},
      {"\xC0\x80"sv, {x, x}},  // longer than need be
      {"\xC1\xBF"sv, {x, x}},
      {"\xE0\x9F\xBF"sv, {x, x, x}},
      {"\xF0\x8F\xBF\xBF"sv, {x, x, x, x}},
      {"\xF4\x90\x80\x80"sv, {x, x, x, x}},  // beyond the last character
      {"\xF5\x80\x80\x80"sv, {x, x, x, x}},
      {"\xFE\xFF"sv, {x, x}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(::testing::PrintToString(c.bytes));
    EXPECT_FALSE(IsValidUtf8(c.bytes));
    EXPECT_EQ(FromUtf8(c.bytes), c.text);
  }
}

TEST(TextTest, LoneSurrogatesHaveAFormOfTheirOwn) {
  const struct {
    Text text;
    std::string_view bytes;
  } cases[] = {
      {{0xD800}, "\xED\xA0\x80"sv},
      {{0xDBFF, u'a'},
       "\xED\xAF\xBF"
       "a"sv},
      {{0xDC00}, "\xED\xB0\x80"sv},
      {{0xDFFF, 0xD800}, "\xED\xBF\xBF\xED\xA0\x80"sv},  // the wrong way round
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(::testing::PrintToString(c.bytes));
    EXPECT_EQ(ToUtf8(c.text), c.bytes);
    EXPECT_EQ(FromUtf8(c.bytes), c.text);
    EXPECT_FALSE(IsValidUtf8(c.bytes));
  }
}

TEST(TextTest, EveryPairOfUnitsSurvivesTheWayThroughUtf8) {
  // Around each border of the encoding, in every combination.
  const Char units[] = {0,      1,      0x7F,   0x80,   0x7FF,  0x800,  0xD7FF, 0xD800,
                        0xDBFF, 0xDC00, 0xDFFF, 0xE000, 0xFFFD, 0xFFFE, 0xFFFF};
  for (const Char a : units) {
    for (const Char b : units) {
      for (const Char c : units) {
        const Text text = {a, b, c};
        ASSERT_EQ(FromUtf8(ToUtf8(text)), text);
      }
    }
  }
}

TEST(TextTest, ClassesAndFoldingKeepToAscii) {
  for (unsigned i = 0; i <= 0xFFFF; ++i) {
    const Char c = static_cast<Char>(i);
    const bool digit = i >= 0x30 && i <= 0x39;
    const bool upper = i >= 0x41 && i <= 0x5A;
    const bool lower = i >= 0x61 && i <= 0x7A;
    ASSERT_EQ(IsAsciiDigit(c), digit) << i;
    ASSERT_EQ(IsAsciiUpper(c), upper) << i;
    ASSERT_EQ(IsAsciiLower(c), lower) << i;
    ASSERT_EQ(IsAsciiLetter(c), upper || lower) << i;
    ASSERT_EQ(AsciiLower(c), upper ? i + 32 : i) << i;
    ASSERT_EQ(AsciiUpper(c), lower ? i - 32 : i) << i;
  }
}

TEST(TextTest, SurrogatesAreToldFromOtherUnits) {
  for (int i = 0; i <= 0xFFFF; ++i) {
    const Char c = static_cast<Char>(i);
    ASSERT_EQ(IsHighSurrogate(c), i >= 0xD800 && i < 0xDC00) << i;
    ASSERT_EQ(IsLowSurrogate(c), i >= 0xDC00 && i < 0xE000) << i;
    ASSERT_EQ(IsSurrogate(c), i >= 0xD800 && i < 0xE000) << i;
  }
  const Text text = {u'a', 0xD83D, 0xDE00, 0xD83D};
  EXPECT_FALSE(IsSurrogatePairAt(text, 0));
  EXPECT_TRUE(IsSurrogatePairAt(text, 1));
  EXPECT_FALSE(IsSurrogatePairAt(text, 2));
  EXPECT_FALSE(IsSurrogatePairAt(text, 3));
  EXPECT_FALSE(IsSurrogatePairAt(text, 4));
}

TEST(TextTest, DecimalTextOfEverySize) {
  EXPECT_EQ(DecimalText(0), u"0");
  EXPECT_EQ(DecimalText(-5), u"-5");
  EXPECT_EQ(DecimalText(1234567890), u"1234567890");
  EXPECT_EQ(DecimalText(std::numeric_limits<std::int64_t>::min()), u"-9223372036854775808");
  EXPECT_EQ(DecimalText(std::numeric_limits<std::int64_t>::max()), u"9223372036854775807");
}

TEST(TextTest, TheFirstMarkOfATemplateIsReplaced) {
  EXPECT_EQ(WithNumber(u"page %d of %d", 3), u"page 3 of %d");
  EXPECT_EQ(WithNumber(WithNumber(u"Preset[%d].Val[%d]", 0), -1), u"Preset[0].Val[-1]");
  EXPECT_EQ(WithNumber(u"%d", 7), u"7");
  EXPECT_EQ(WithNumber(u"no mark, %s", 7), u"no mark, %s");
  EXPECT_EQ(WithNumber(u"", 7), u"");

  EXPECT_EQ(WithText(u"File: %s", u"a/b.dat"), u"File: a/b.dat");
  EXPECT_EQ(WithText(u"File: %s", u""), u"File: ");
  EXPECT_EQ(WithText(u"%d: %s", u"x"), u"%d: x");
  EXPECT_EQ(WithText(u"no mark", u"x"), u"no mark");
  // What is put in is not looked into.
  EXPECT_EQ(WithText(u"File: %s", u"%s%d%n"), u"File: %s%d%n");
  EXPECT_EQ(WithText(u"File: %s", Text(u"a\0b", 3)), Text(u"File: a\0b", 9));
}

TEST(IsControlTest, HoldsBothControlRanges) {
  for (const int c : {0x0000, 0x000A, 0x001F, 0x007F, 0x0080, 0x009F}) {
    EXPECT_TRUE(IsControl(static_cast<Char>(c))) << c;
  }
  for (const int c : {0x0020, 0x007E, 0x00A0, 0x2028, 0xD800}) {
    EXPECT_FALSE(IsControl(static_cast<Char>(c))) << c;
  }
}

TEST(HexDigitValueTest, KnowsBothCases) {
  EXPECT_EQ(HexDigitValue(u'0'), 0);
  EXPECT_EQ(HexDigitValue(u'9'), 9);
  EXPECT_EQ(HexDigitValue(u'a'), 10);
  EXPECT_EQ(HexDigitValue(u'F'), 15);
  for (const int c : {u'/', u':', u'@', u'G', u'`', u'g', u'\u0661'})
    EXPECT_EQ(HexDigitValue(static_cast<Char>(c)), -1) << c;
}

TEST(HexTextTest, WritesTheLowestDigits) {
  EXPECT_EQ(HexText(0xD800, 4), "d800");
  EXPECT_EQ(HexText(0x0A, 2), "0a");
  EXPECT_EQ(HexText(0x12345678, 2), "78");
  EXPECT_EQ(HexText(0xFFFFFFFF, 9), "0ffffffff");
  EXPECT_EQ(HexText(7, 0), "");
}

TEST(WithoutLoneSurrogatesTest, KeepsPairs) {
  EXPECT_EQ(WithoutLoneSurrogates(u"a\U0001F600b"), u"a\U0001F600b");
  EXPECT_EQ(WithoutLoneSurrogates(Text{0xD800, u'x', 0xDC00}), u"\uFFFDx\uFFFD");
  EXPECT_EQ(WithoutLoneSurrogates(Text{0xDC00, 0xD83D, 0xDE00, 0xD83D}), u"\uFFFD\U0001F600\uFFFD");
}

}  // namespace
}  // namespace orvane
