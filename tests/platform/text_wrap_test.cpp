#include "platform/text_wrap.h"

#include <gtest/gtest.h>

#include <string>

namespace orvane {
namespace {

// Every unit is one wide, but a low surrogate, which has no width of its own. Lines are joined by '|'.
std::string Wrapped(TextView text, int width) {
  std::vector<int> widths;
  for (const Char c : text) widths.push_back(IsLowSurrogate(c) ? 0 : 1);
  std::string joined;
  for (const WrappedLine& line : WrapText(text, widths, width)) {
    joined += ToUtf8(text.substr(line.first, line.last - line.first)) + '|';
  }
  joined.pop_back();
  return joined;
}

std::size_t Lines(TextView text, int width) {
  const std::vector<int> widths(text.size(), 1);
  return WrapText(text, widths, width).size();
}

TEST(TextWrap, BreaksAtBlanksAndLeavesThemOut) {
  EXPECT_EQ(Wrapped(u"one two three", 7), "one two|three");
  EXPECT_EQ(Wrapped(u"one two three", 5), "one|two|three");
  EXPECT_EQ(Wrapped(u"one two three", 6), "one|two|three");
}

TEST(TextWrap, BlanksAtTheBreakTakeNoRoom) {
  EXPECT_EQ(Wrapped(u"abc   def", 3), "abc|def");
  EXPECT_EQ(Wrapped(u"abc ", 3), "abc");
}

TEST(TextWrap, TextThatFitsExactlyStaysOnOneLine) { EXPECT_EQ(Wrapped(u"one two", 7), "one two"); }

TEST(TextWrap, LineFeedsAreHonoured) {
  EXPECT_EQ(Wrapped(u"a\nb", 9), "a|b");
  EXPECT_EQ(Wrapped(u"a\r\nb", 9), "a|b");
  EXPECT_EQ(Lines(u"a\n\nb", 9), 3u);
  EXPECT_EQ(Lines(u"\n", 9), 2u);
}

TEST(TextWrap, AnEmptyTextHasOneLine) { EXPECT_EQ(Lines(u"", 9), 1u); }

TEST(TextWrap, AWordThatNoLineHoldsIsBrokenInside) {
  EXPECT_EQ(Wrapped(u"abcdefgh", 3), "abc|def|gh");
  EXPECT_EQ(Wrapped(u"x abcdefgh", 4), "x|abcd|efgh");
}

TEST(TextWrap, APathIsBrokenAfterItsSlashes) {
  EXPECT_EQ(Wrapped(u"/usr/share/file", 11), "/usr/share/|file");
  EXPECT_EQ(Wrapped(u"C:\\data\\file", 9), "C:\\data\\|file");
  EXPECT_EQ(Wrapped(u"File: /usr/share/x", 11), "File: /usr/|share/x");
}

TEST(TextWrap, AWordWithASlashThatFitsALineIsKeptWhole) {
  EXPECT_EQ(Wrapped(u"take and/or leave", 9), "take|and/or|leave");
}

TEST(TextWrap, APairIsNeverParted) {
  const Text text{u'a', 0xD83D, 0xDE00, u'b', 0xD83D, 0xDE00};
  EXPECT_EQ(Wrapped(text, 1),
            ToUtf8(Text{u'a'}) + "|" + ToUtf8(Text{0xD83D, 0xDE00}) + "|b|" + ToUtf8(Text{0xD83D, 0xDE00}));
}

TEST(TextWrap, NoWidthStillEndsWithOneCharacterALine) {
  EXPECT_EQ(Wrapped(u"abc", 0), "a|b|c");
  EXPECT_EQ(Wrapped(u"abc", -5), "a|b|c");
}

}  // namespace
}  // namespace orvane
