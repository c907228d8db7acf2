// Caret positions of tokens, with a font whose every width is known.
#include "tools/input_layout.h"

#include <gtest/gtest.h>

#include "framework/text_engine.h"
#include "tests/framework/test_shell.h"

namespace orvane {
namespace {

class InputLayoutTest : public ::testing::Test {
 protected:
  InputLayoutTest() {
    CreateFontFamily(shell_.GetDevice(), shell_.MainWindow(), font_, u"Courier New", 12, 9, 9, 2, 2, false,
                     false);
    shell_.Engine().SelectFontFamily(&font_);
    wide_ = font_.Variant({}).font->TextWidth(u"x");
    small_ = font_.Variant({false, false, TextPosition::kLowered}).font->TextWidth(u"x");
  }
  InputLayout Lay(const std::vector<InputToken>& tokens, int length) {
    return InputLayout(shell_.Engine(), tokens, length, [](int kind) {
      KindLook look;
      if (kind == 1) look.prefix = u"\u0001`", look.suffix = u"\u0001 ";
      if (kind == 2) look.prefix = u"<<", look.suffix = u">";
      return look;
    });
  }
  std::vector<int> Positions(const InputLayout& layout, int length) {
    std::vector<int> positions;
    for (int i = 0; i <= length; ++i) positions.push_back(layout.CaretX(i));
    return positions;
  }

  testing::TestShell shell_;
  FontFamily font_;
  int wide_ = 0;   // every character of this face has the same width
  int small_ = 0;  // of a lowered one
};

using Xs = std::vector<int>;

TEST_F(InputLayoutTest, NothingHasOnePosition) {
  const InputLayout layout = Lay({}, 0);
  EXPECT_EQ(layout.CaretX(0), 0);
  EXPECT_EQ(layout.CaretX(7), 0);
  EXPECT_EQ(layout.Width(), 0);
  EXPECT_EQ(layout.IndexAt(-5), 0);
  EXPECT_EQ(layout.IndexAt(500), 0);
  EXPECT_TRUE(layout.Pieces().empty());
  EXPECT_EQ(InputLayout().IndexAt(3), 0);
}

TEST_F(InputLayoutTest, StyleCodesChangeWidthsAndHaveNone) {
  const InputLayout layout = Lay({{u"ab", 0}, {u"12", 1}, {u"c", 0}}, 5);
  EXPECT_EQ(Positions(layout, 5),
            (Xs{0, wide_, 2 * wide_, 2 * wide_ + small_, 2 * wide_ + 2 * small_, 3 * wide_ + 2 * small_}));
  EXPECT_EQ(layout.Width(), 3 * wide_ + 2 * small_);
}

// The caret before a token stands before its prefix; inside and behind it the prefix counts.
TEST_F(InputLayoutTest, PrefixAndSuffixWidenTheirToken) {
  const InputLayout layout = Lay({{u"a", 0}, {u"xyz", 2}, {u"b", 0}}, 5);
  EXPECT_EQ(Positions(layout, 5), (Xs{0, wide_, 4 * wide_, 5 * wide_, 7 * wide_, 8 * wide_}));
  ASSERT_EQ(layout.Pieces().size(), 3u);
  EXPECT_EQ(layout.Pieces()[1].drawn, u"<<xyz>");
  EXPECT_EQ(layout.Pieces()[1].x, wide_);
  EXPECT_EQ(layout.Pieces()[1].width, 6 * wide_);
}

TEST_F(InputLayoutTest, MidpointsDecideTheNearestPosition) {
  const InputLayout layout = Lay({{u"abc", 0}}, 3);
  for (int x = -3; x < 4 * wide_; ++x) {
    const int nearest = x < 0 ? 0 : std::min(3, (2 * x + wide_) / (2 * wide_));
    EXPECT_EQ(layout.IndexAt(x), nearest) << x;
  }
}

// Tokens that an owner's tokeniser leaves short, or makes too long, harm nobody.
TEST_F(InputLayoutTest, PositionsFollowTheTextAlsoWhenTheTokensDoNot) {
  EXPECT_EQ(Positions(Lay({{u"ab", 0}}, 4), 4), (Xs{0, wide_, 2 * wide_, 2 * wide_, 2 * wide_}));
  EXPECT_EQ(Positions(Lay({{u"abcd", 0}}, 2), 4), (Xs{0, wide_, 2 * wide_, 2 * wide_, 2 * wide_}));
  EXPECT_EQ(Positions(Lay({{u"", 0}, {u"", 2}, {u"a", 0}}, 1), 1), (Xs{0, 4 * wide_}));
}

TEST_F(InputLayoutTest, ControlCharactersTakeRoom) {
  const InputLayout layout = Lay({{u"\u0001", 0}, {u"\n", 0}, {u"\u0085", 0}}, 3);
  const int placeholder = font_.Variant({}).font->TextWidth(u"\uFFFD");
  ASSERT_GT(placeholder, 0);
  EXPECT_EQ(Positions(layout, 3), (Xs{0, placeholder, 2 * placeholder, 3 * placeholder}));
}

// They come along when text is copied from elsewhere; unseen they would spoil a formula for no visible
// reason.
TEST_F(InputLayoutTest, FormatCharactersTakeRoom) {
  const int placeholder = font_.Variant({}).font->TextWidth(u"\uFFFD");
  for (const Char c : TextView(u"\u034F\u061C\u200B\u200F\u2028\u202E\u2060\u206F\uFEFF\uFFF9\uFFFB")) {
    const InputLayout layout = Lay({{Text(1, c), 0}, {u"a", 0}}, 2);
    EXPECT_EQ(layout.Pieces()[0].drawn, u"\uFFFD") << std::hex << static_cast<unsigned>(c);
    EXPECT_EQ(Positions(layout, 2), (Xs{0, placeholder, placeholder + wide_}));
  }
  for (const Char c : TextView(u"\u0301\u200A\u2010\u2027\u202F\u205F\uFFFC")) {
    EXPECT_EQ(Lay({{Text(1, c), 0}}, 1).Pieces()[0].drawn, Text(1, c));
  }
}

TEST_F(InputLayoutTest, HalvesOfAPairAreDrawnTogether) {
  const InputLayout layout = Lay({{Text(1, 0xD83E), 0}, {Text(1, 0xDDEA), 0}, {u"a", 0}}, 3);
  ASSERT_EQ(layout.Pieces().size(), 2u);
  EXPECT_EQ(layout.Pieces()[0].drawn, u"\U0001F9EA");
  const int width = font_.Variant({}).font->TextWidth(u"\U0001F9EA");
  EXPECT_EQ(Positions(layout, 3), (Xs{0, width, width, width + wide_}));
}

}  // namespace
}  // namespace orvane
