#include "cli/plain_text.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

struct Case {
  TextView styled;
  const char* plain;
};

class PlainTextTest : public ::testing::TestWithParam<Case> {};

TEST_P(PlainTextTest, ReadsAsATerminalShows) { EXPECT_EQ(PlainText(GetParam().styled), GetParam().plain); }

constexpr Char kLoneSurrogate[] = {u'a', 0xD800, u'b', 0};

INSTANTIATE_TEST_SUITE_P(
    All, PlainTextTest,
    ::testing::Values(Case{u"", ""}, Case{u"plain", "plain"}, Case{u"\u0001!bold\u0001 x", "boldx"},
                      Case{u"3s\u0001\u00A02\u0001 4p", "3s²4p"}, Case{u"Fe\u0001\u00A03+\u0001 ", "Fe³⁺"},
                      Case{u"10\u0001\u00A0–23", "10⁻²³"}, Case{u"H\u0001`2\u0001 O", "H₂O"},
                      // 0xE0: both bits; raised wins.
                      Case{u"x\u0001\u00E02", "x²"},
                      // A run with one character that has no raised form.
                      Case{u"10\u0001\u00A02x\u0001 !", "10^2x!"}, Case{u"C\u0001`max\u0001 ", "C_max"},
                      Case{u"a\u0001 b\u0001", "ab"}, Case{u"\u001B[31mred\u009B\u007F\n.", "[31mred\n."},
                      // A character 0 ends the text.
                      Case{TextView(u"a\0b", 3), "a"}, Case{TextView(u"a\u0001\0b", 4), "a"},
                      Case{kLoneSurrogate,
                           "a\xEF\xBF\xBD"
                           "b"},
                      Case{u"\U0001F600", "\xF0\x9F\x98\x80"}));

}  // namespace
}  // namespace orvane
