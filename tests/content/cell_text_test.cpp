#include "content/cell_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orvane {
namespace {

using ::testing::HasSubstr;

struct BothWays {
  const char* cell;
  Text text;
};

class CellTextBothWays : public ::testing::TestWithParam<BothWays> {};

TEST_P(CellTextBothWays, ReadsAndWritesTheSame) {
  const CellText parsed = ParseCellText(GetParam().cell);
  EXPECT_EQ(parsed.problem, "");
  EXPECT_EQ(parsed.text, GetParam().text);
  EXPECT_EQ(WriteCellText(GetParam().text), GetParam().cell);
}

INSTANTIATE_TEST_SUITE_P(
    All, CellTextBothWays,
    ::testing::Values(BothWays{"plain", u"plain"}, BothWays{"", u""},
                      BothWays{"3s^{2} 4p^{1}", u"3s\u0001\u00A02\u0001  4p\u0001\u00A01\u0001 "},
                      BothWays{"H_{2}O", u"H\u0001`2\u0001 O"},
                      // A style that is not closed by the plain one, and bold.
                      BothWays{"x\\u0001\\u00A02", u"x\u0001\u00A02"},
                      BothWays{"\\u0001\\u0021b\\u0001\\u0020", u"\u0001!b\u0001 "},
                      // Raised directly followed by lowered has no plain code between.
                      BothWays{"\\u0001\\u00A0a_{b}", u"\u0001\u00A0a\u0001`b\u0001 "},
                      // A brace inside cannot be told from the end of the run.
                      BothWays{"\\u0001\\u00A0}\\u0001\\u0020", u"\u0001\u00A0}\u0001 "},
                      BothWays{"{}", u"{}"}, BothWays{"a\\nb", u"a\nb"},
                      BothWays{"\\^ \\_ \\\\ \\@", u"^ _ \\ @"}, BothWays{"\\-", u"-"},
                      BothWays{"7440-23-5", u"7440-23-5"}, BothWays{"\\u0020x\\u0020", u" x "},
                      BothWays{"a b", u"a b"}, BothWays{"\\uD800x", Text{0xD800, u'x'}},
                      BothWays{"\\uDC00\\uD800", Text{0xDC00, 0xD800}},
                      BothWays{"–\xF0\x9F\x98\x80°", u"–\U0001F600°"}));

TEST(CellText, ReadsWhatItWouldWriteInAnotherWay) {
  EXPECT_EQ(ParseCellText("\\u0041\\u00e9").text, u"Aé");
  EXPECT_EQ(ParseCellText("a\\-b").text, u"a-b");
  EXPECT_EQ(ParseCellText("\\uD83D\\uDE00").text, u"\U0001F600");
}

TEST(CellText, SaysWhatIsWrong) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"\xFF", "not UTF-8"},
      {"\xED\xA0\x80", "not UTF-8"},
      {"a\rb", "control character U+000D (write \\n or \\u000D)"},
      {std::string("a\0b", 3), "control character U+0000"},
      {"\xC2\x85", "control character U+0085"},
      {"\x7F", "control character U+007F"},
      {"a\\", "a backslash at the end"},
      {"\\t", "an unknown escape"},
      {"\\u12", "four hexadecimal digits"},
      {"\\u12g4", "four hexadecimal digits"},
      {"x^2", "a lone ^"},
      {"x_", "a lone _"},
      {"^{a", "is not closed"},
      {"^{a_{b}}", "inside another one"},
      {"\\u0001", "without its flags character"},
      {"\\u0001\\u0000", "without its flags character"},
      {"a\\u0000b", "U+0000, which no screen shows"},
      {"\\u0002", "U+0002, which no screen shows"},
      {"\\u0009", "U+0009, which no screen shows"},
  };
  for (const auto& [cell, problem] : cases)
    EXPECT_THAT(ParseCellText(cell).problem, HasSubstr(problem)) << cell;
}

}  // namespace
}  // namespace orvane
