#include "base/styled_text.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

// Texts that hold a zero character need their length said.
Text Whole(const Char* characters, std::size_t length) { return Text(characters, length); }

TEST(StyleFromFlagsTest, EachFlagsCharacterHasItsStyle) {
  const TextStyle plain;
  EXPECT_EQ(StyleFromFlags(u' '), plain);
  EXPECT_EQ(StyleFromFlags(u'!'), (TextStyle{true, false, TextPosition::kNormal}));
  EXPECT_EQ(StyleFromFlags(u'"'), (TextStyle{false, true, TextPosition::kNormal}));
  EXPECT_EQ(StyleFromFlags(u'#'), (TextStyle{true, true, TextPosition::kNormal}));
  EXPECT_EQ(StyleFromFlags(u'`'), (TextStyle{false, false, TextPosition::kLowered}));
  EXPECT_EQ(StyleFromFlags(0x00A0), (TextStyle{false, false, TextPosition::kRaised}));
}

TEST(StyleFromFlagsTest, OnlyFourBitsCount) {
  EXPECT_EQ(StyleFromFlags(1), (TextStyle{true, false, TextPosition::kNormal}));
  EXPECT_EQ(StyleFromFlags(2), (TextStyle{false, true, TextPosition::kNormal}));
  EXPECT_EQ(StyleFromFlags(64), (TextStyle{false, false, TextPosition::kLowered}));
  EXPECT_EQ(StyleFromFlags(128), (TextStyle{false, false, TextPosition::kRaised}));
  EXPECT_EQ(StyleFromFlags(4 | 8 | 16 | 32), TextStyle{});
  EXPECT_EQ(StyleFromFlags(0xFF00), TextStyle{});
}

TEST(StyleFromFlagsTest, RaisedWinsOverLowered) {
  EXPECT_EQ(StyleFromFlags(64 | 128).position, TextPosition::kRaised);
  EXPECT_EQ(StyleFromFlags(64 | 128 | 3), (TextStyle{true, true, TextPosition::kRaised}));
}

TEST(FirstStepTest, TellsCodesFromCharacters) {
  const StyledStep code = FirstStep(u"\x0001!a");
  EXPECT_EQ(code.kind, StyledStep::Kind::kCode);
  EXPECT_EQ(code.value, u'!');
  EXPECT_EQ(code.length, 2u);
  const StyledStep character = FirstStep(u"a\x0001!");
  EXPECT_EQ(character.kind, StyledStep::Kind::kCharacter);
  EXPECT_EQ(character.value, u'a');
  EXPECT_EQ(character.length, 1u);
}

TEST(FirstStepTest, ZeroAndAnUnfinishedCodeEndTheText) {
  EXPECT_EQ(FirstStep(u"").kind, StyledStep::Kind::kEnd);
  EXPECT_EQ(FirstStep(Whole(u"\0abc", 4)).kind, StyledStep::Kind::kEnd);
  EXPECT_EQ(FirstStep(u"\x0001").kind, StyledStep::Kind::kEnd);
  EXPECT_EQ(FirstStep(Whole(u"\x0001\0abc", 5)).kind, StyledStep::Kind::kEnd);
}

// The flags character is never looked at as a character: a mark may be its own flags.
TEST(FirstStepTest, AMarkAfterAMarkIsItsFlags) {
  const StyledStep code = FirstStep(u"\x0001\x0001!");
  EXPECT_EQ(code.kind, StyledStep::Kind::kCode);
  EXPECT_EQ(code.value, 1);
  EXPECT_EQ(VisibleLength(u"\x0001\x0001!"), 1);
}

TEST(VisibleLengthTest, LeavesOutBothCharactersOfACode) {
  EXPECT_EQ(VisibleLength(u""), 0);
  EXPECT_EQ(VisibleLength(u"abc"), 3);
  EXPECT_EQ(VisibleLength(u"H\x0001`2\x0001 O"), 3);
  EXPECT_EQ(VisibleLength(u"two words\nand a line"), 20);
}

TEST(VisibleLengthTest, CodesAloneHaveNone) {
  EXPECT_EQ(VisibleLength(u"\x0001!\x0001 \x0001`\x0001\u00A0"), 0);
}

TEST(VisibleLengthTest, EndsAtAZeroAndAtAnUnfinishedCode) {
  EXPECT_EQ(VisibleLength(Whole(u"ab\0cd", 5)), 2);
  EXPECT_EQ(VisibleLength(u"ab\x0001"), 2);
  EXPECT_EQ(VisibleLength(Whole(u"ab\x0001\0cd", 6)), 2);
}

TEST(CopyVisibleTest, CountsVisibleCharactersOnly) {
  EXPECT_EQ(CopyVisible(u"abcdef", 1, 3), u"bcd");
  EXPECT_EQ(CopyVisible(u"abcdef", 0, 6), u"abcdef");
}

TEST(CopyVisibleTest, WritesTheCodeInForceInFront) {
  EXPECT_EQ(CopyVisible(u"\x0001!abc", 1, 1), u"\x0001!b");
  // Only the last of the codes before the range is in force.
  EXPECT_EQ(CopyVisible(u"\x0001!a\x0001\"bcd", 2, 2), u"\x0001\"cd");
  EXPECT_EQ(CopyVisible(u"\x0001!\x0001\"abc", 0, 1), u"\x0001\"a");
}

TEST(CopyVisibleTest, WritesNoCodeWhenNoneCameBefore) {
  EXPECT_EQ(CopyVisible(u"ab\x0001!cd", 0, 2), u"ab");
  EXPECT_EQ(CopyVisible(u"ab\x0001!cd", 1, 1), u"b");
}

TEST(CopyVisibleTest, KeepsEveryCodeInsideTheRange) {
  EXPECT_EQ(CopyVisible(u"ab\x0001!cd\x0001 ef", 1, 4), u"b\x0001!cd\x0001 e");
  EXPECT_EQ(CopyVisible(u"a\x0001!\x0001\"b", 0, 2), u"a\x0001!\x0001\"b");
}

TEST(CopyVisibleTest, CutsTheRangeToTheText) {
  EXPECT_EQ(CopyVisible(u"abc", 1, 100), u"bc");
  EXPECT_EQ(CopyVisible(u"abc", 3, 1), u"");
  EXPECT_EQ(CopyVisible(u"abc", 2, 0), u"");
  EXPECT_EQ(CopyVisible(u"abc", 1, -1), u"");
  EXPECT_EQ(CopyVisible(u"abc", -2, 4), u"ab");
  EXPECT_EQ(CopyVisible(u"abc", -2, 2), u"");
  EXPECT_EQ(CopyVisible(u"abc", 2147483647, 2147483647), u"");
  EXPECT_EQ(CopyVisible(u"abc", 0, 2147483647), u"abc");
  EXPECT_EQ(CopyVisible(u"abc", -2147483647 - 1, -2147483647 - 1), u"");
}

TEST(CopyVisibleTest, EndsAtAZeroAndAtAnUnfinishedCode) {
  EXPECT_EQ(CopyVisible(Whole(u"ab\0cd", 5), 0, 5), u"ab");
  EXPECT_EQ(CopyVisible(u"ab\x0001", 0, 5), u"ab");
  EXPECT_EQ(CopyVisible(u"\x0001!", 0, 5), u"");
}

TEST(WithoutCodesTest, KeepsTheVisibleCharacters) {
  EXPECT_EQ(WithoutCodes(u"H\x0001`2\x0001 O\n"), u"H2O\n");
  EXPECT_EQ(WithoutCodes(u"\x0001!\x0001 "), u"");
  EXPECT_EQ(WithoutCodes(Whole(u"a\0b", 3)), u"a");
  EXPECT_EQ(WithoutCodes(u"a\x0001"), u"a");
}

}  // namespace
}  // namespace orvane
