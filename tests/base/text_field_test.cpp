#include "base/text_field.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

Text Repeated(std::size_t count) { return Text(count, u'x'); }

TEST(TextField, KeepsWhatFits) {
  EXPECT_EQ(CutToField(u""), u"");
  EXPECT_EQ(CutToField(u"Density"), u"Density");
  EXPECT_EQ(CutToField(Repeated(254)), Repeated(254));
}

TEST(TextField, CutsBehindTheLastCharacterThatFits) {
  EXPECT_EQ(CutToField(Repeated(255)), Repeated(254));
  EXPECT_EQ(CutToField(Repeated(100'000)), Repeated(254));
  EXPECT_EQ(CutToField(u"abcdef", 3), u"abc");
  EXPECT_EQ(CutToField(u"abcdef", 0), u"");
}

TEST(TextField, EndsAtAZeroCharacter) { EXPECT_EQ(CutToField(TextView(u"ab\0cd", 5)), u"ab"); }

TEST(TextField, NeverEndsInsideAStyleCode) {
  EXPECT_EQ(CutToField(u"ab\x0001!cd", 2), u"ab");
  EXPECT_EQ(CutToField(u"ab\x0001!cd", 3), u"ab");
  EXPECT_EQ(CutToField(u"ab\x0001!cd", 4), u"ab\x0001!");
  EXPECT_EQ(CutToField(Repeated(253) + u"\x0001!bold"), Repeated(253));
  EXPECT_EQ(CutToField(Repeated(252) + u"\x0001!bold"), Repeated(252) + u"\x0001!");
}

// The flags of a code may look like the beginning of another one.
TEST(TextField, TakesCodesFromTheLeft) {
  EXPECT_EQ(CutToField(u"\x0001\x0001\x0001!x", 3), u"\x0001\x0001");
  EXPECT_EQ(CutToField(u"\x0001\x0001\x0001!x", 4), u"\x0001\x0001\x0001!");
}

TEST(TextField, NeverPartsASurrogatePair) {
  EXPECT_EQ(CutToField(u"ab\xD83D\xDE00", 3), u"ab");
  EXPECT_EQ(CutToField(u"ab\xD83D\xDE00", 4), u"ab\xD83D\xDE00");
  EXPECT_EQ(CutToField(TextView(u"ab\xDE00\xD83D").substr(0), 3), u"ab\xDE00");
}

}  // namespace
}  // namespace orvane
