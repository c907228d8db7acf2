// Widths here were worked out from the fonts' own tables (head, hhea, hmtx, cmap; 2048 units an em), as
// floor((2 · advance · pixels + 2048) ÷ 4096). DejaVu Sans Condensed 2.37: A 1260, W 1822, i 512, m 1795,
// 1 1172, space 585, α 1215, ₂ 738, → 1544, U+FFFD 1890; bold: A 1426, W 2033, i 631, m 1920, 1 1282,
// space 641, α 1266, U+FFFD 2052; oblique as upright. Liberation Mono: 1229 throughout, hhea 1705 and −615.
#include "platform/font.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/graphics.h"

namespace orvane {
namespace {

using testing::ElementsAre;

class FontMetrics : public testing::Test {
 protected:
  const Font& Get(int pixels, bool bold = false, bool italic = false) {
    return graphics_->Fonts().GetFont({u"Tahoma", pixels, bold, italic});
  }
  static std::vector<int> Widths(const Font& font, TextView text) {
    std::vector<int> widths;
    font.AppendWidths(text, widths);
    return widths;
  }

  std::unique_ptr<Graphics> graphics_ = MakeGraphics("");
};

TEST_F(FontMetrics, PointsBecomePixelsAt96DotsPerInch) {
  EXPECT_EQ(PixelsFromPoints(7), 9);
  EXPECT_EQ(PixelsFromPoints(8), 10);
  EXPECT_EQ(PixelsFromPoints(9), 12);
  EXPECT_EQ(PixelsFromPoints(10), 13);
  EXPECT_EQ(PixelsFromPoints(11), 14);
  EXPECT_EQ(PixelsFromPoints(12), 16);
  EXPECT_EQ(PixelsFromPoints(21), 28);
}

TEST_F(FontMetrics, EveryFaceFileIsHere) { EXPECT_EQ(ToUtf8(graphics_->Fonts().MissingFaces()), ""); }

// Descents: 0.207 × 9 = 1.863, × 10 = 2.07, × 12 = 2.484, × 13 = 2.691, × 14 = 2.898, × 16 = 3.312,
// × 28 = 5.796.
TEST_F(FontMetrics, TahomaHasItsOwnHeights) {
  const std::vector<std::vector<int>> table{{9, 2}, {10, 2}, {12, 2}, {13, 3}, {14, 3}, {16, 3}, {28, 6}};
  for (const auto& row : table) {
    for (const bool bold : {false, true}) {
      const Font& font = Get(row[0], bold);
      EXPECT_EQ(font.Ascent(), row[0]);
      EXPECT_EQ(font.Descent(), row[1]) << row[0];
      EXPECT_EQ(font.Height(), row[0] + row[1]);
    }
  }
}

// Ascents: 1705 × 9 ÷ 2048 = 7.49, × 12 = 9.99, × 14 = 11.66; descents 2.70, 3.60, 4.20.
TEST_F(FontMetrics, CourierNewHasTheHeightsOfItsFile) {
  const std::vector<std::vector<int>> table{{9, 7, 3}, {12, 10, 4}, {14, 12, 4}};
  for (const auto& row : table) {
    const Font& font = graphics_->Fonts().GetFont({u"Courier New", row[0]});
    EXPECT_EQ(font.Ascent(), row[1]) << row[0];
    EXPECT_EQ(font.Descent(), row[2]) << row[0];
  }
}

TEST_F(FontMetrics, WidthsAreRoundedAdvances) {
  constexpr TextView kSample = u"AWim1 α₂→";
  EXPECT_THAT(Widths(Get(9), kSample), ElementsAre(6, 8, 2, 8, 5, 3, 5, 3, 7));
  EXPECT_THAT(Widths(Get(10), kSample), ElementsAre(6, 9, 3, 9, 6, 3, 6, 4, 8));
  EXPECT_THAT(Widths(Get(12), kSample), ElementsAre(7, 11, 3, 11, 7, 3, 7, 4, 9));
  EXPECT_THAT(Widths(Get(13), kSample), ElementsAre(8, 12, 3, 11, 7, 4, 8, 5, 10));
  EXPECT_THAT(Widths(Get(14), kSample), ElementsAre(9, 12, 4, 12, 8, 4, 8, 5, 11));
  EXPECT_THAT(Widths(Get(16), kSample), ElementsAre(10, 14, 4, 14, 9, 5, 9, 6, 12));
  EXPECT_THAT(Widths(Get(28), kSample), ElementsAre(17, 25, 7, 25, 16, 8, 17, 10, 21));
}

TEST_F(FontMetrics, BoldIsWiderAndItalicIsNot) {
  EXPECT_THAT(Widths(Get(13, true), u"AWim1 α"), ElementsAre(9, 13, 4, 12, 8, 4, 8));
  EXPECT_THAT(Widths(Get(28, true), u"AWim1 α"), ElementsAre(19, 28, 9, 26, 18, 9, 17));
  EXPECT_THAT(Widths(Get(13, false, true), u"AWim1 α"), ElementsAre(8, 12, 3, 11, 7, 4, 8));
  EXPECT_THAT(Widths(Get(13, true, true), u"AWim1 α"), ElementsAre(9, 13, 4, 12, 8, 4, 8));
}

TEST_F(FontMetrics, SampleTextsHaveTheirSums) {
  constexpr TextView kSample = u"FoNT SIze WwlLIqQ";
  EXPECT_EQ(Get(9).TextWidth(kSample), 78);
  EXPECT_EQ(Get(12).TextWidth(kSample), 104);
  EXPECT_EQ(Get(13).TextWidth(kSample), 112);
  EXPECT_EQ(Get(28).TextWidth(kSample), 241);
  EXPECT_EQ(Get(9, true).TextWidth(kSample), 90);
  EXPECT_EQ(Get(13, true).TextWidth(kSample), 126);
  EXPECT_EQ(graphics_->Fonts().GetFont({u"Courier New", 14}).TextWidth(kSample), 17 * 8);
  EXPECT_EQ(graphics_->Fonts().GetFont({u"Courier New", 13}).TextWidth(kSample), 17 * 8);
  EXPECT_EQ(graphics_->Fonts().GetFont({u"Courier New", 9, true, true}).TextWidth(kSample), 17 * 5);
}

TEST_F(FontMetrics, SurrogatesHaveTheReplacementsWidth) {
  // U+1F600 is in the face (1921 units, 12 pixels at 13); U+1D400 is not.
  EXPECT_THAT(Widths(Get(13), u"i\U0001F600i"), ElementsAre(3, 12, 0, 3));
  EXPECT_THAT(Widths(Get(13), u"i\U0001D400i"), ElementsAre(3, 12, 0, 3));
  const Text high{u'i', char16_t{0xD83D}, u'i'};
  const Text low{u'i', char16_t{0xDE00}, u'i'};
  const Text swapped{char16_t{0xDE00}, char16_t{0xD83D}};
  EXPECT_THAT(Widths(Get(13), high), ElementsAre(3, 12, 3));
  EXPECT_THAT(Widths(Get(13), low), ElementsAre(3, 12, 3));
  EXPECT_THAT(Widths(Get(13), swapped), ElementsAre(12, 12));
  EXPECT_EQ(Get(13).TextWidth(high), 18);
}

TEST_F(FontMetrics, CharactersTheFaceLacksHaveTheReplacementsWidth) {
  EXPECT_THAT(Widths(Get(9), u"\u4E2D\uFFFD"), ElementsAre(8, 8));
  EXPECT_THAT(Widths(Get(28, true), u"\u4E2D\uFFFD"), ElementsAre(28, 28));
}

TEST_F(FontMetrics, ControlCharactersHaveNoWidth) {
  Text controls;
  for (Char c = 0; c < 0x20; ++c) controls += c;
  EXPECT_EQ(Get(13).TextWidth(controls), 0);
  EXPECT_THAT(Widths(Get(13), TextView(controls)), testing::AllOf(testing::SizeIs(32), testing::Each(0)));
  EXPECT_EQ(Get(13).TextWidth(u"i\ni"), 6);
  EXPECT_EQ(Get(13).TextWidth(u" "), 4);
}

TEST_F(FontMetrics, WidthsAreAppended) {
  std::vector<int> widths{-7};
  Get(13).AppendWidths(u"A", widths);
  Get(13).AppendWidths(u"", widths);
  EXPECT_THAT(widths, ElementsAre(-7, 8));
}

TEST_F(FontMetrics, LongTextsAreMeasured) {
  const Text text(100000, u'W');
  EXPECT_EQ(Get(13).TextWidth(text), 1200000);
  EXPECT_EQ(Widths(Get(13), text).size(), 100000u);
}

TEST_F(FontMetrics, EqualSpecificationsGiveTheSameFont) {
  const Font& font = Get(13);
  for (int pixels = 1; pixels < 60; ++pixels) Get(pixels, true);
  EXPECT_EQ(&font, &Get(13));
  EXPECT_NE(&font, &Get(13, true));
  EXPECT_EQ(font.Spec(), (FontSpec{u"Tahoma", 13}));
}

TEST_F(FontMetrics, OtherFacesAreDrawnAsTahoma) {
  const Font& other = graphics_->Fonts().GetFont({u"Comic Sans MS", 13});
  EXPECT_EQ(other.TextWidth(u"AWim1 α"), Get(13).TextWidth(u"AWim1 α"));
  EXPECT_EQ(other.Height(), 16);
  EXPECT_EQ(other.Spec().face, u"Comic Sans MS");
}

TEST_F(FontMetrics, OddSizesStaySafe) {
  for (const int pixels : {-2147483647 - 1, -1, 0, 1}) {
    EXPECT_EQ(Get(pixels).Ascent(), 1) << pixels;
    EXPECT_EQ(Get(pixels).Descent(), 0);
  }
  EXPECT_EQ(Get(2147483647).Ascent(), 1000);
  EXPECT_EQ(Get(2147483647).Spec().pixels, 2147483647);
}

}  // namespace
}  // namespace orvane
