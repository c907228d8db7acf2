#include "framework/font_family.h"

#include <gtest/gtest.h>

#include <set>

#include "framework/text_engine.h"
#include "tests/framework/test_shell.h"

namespace orvane {
namespace {

using testing::TestShell;

class FontFamilyTest : public ::testing::Test {
 protected:
  FontFamily Make(int size) {
    FontFamily family;
    CreateFontFamily(shell_.GetDevice(), shell_.MainWindow(), family, u"Tahoma", size, false, false);
    return family;
  }
  // Normal text of 11 points, shifted text of 7, 2 above and 1 below.
  FontFamily MakeFull(bool bold = false, bool underline = false) {
    FontFamily family;
    CreateFontFamily(shell_.GetDevice(), shell_.MainWindow(), family, u"Tahoma", 11, 7, 8, 2, 1, bold,
                     underline);
    return family;
  }

  TestShell shell_;
};

TEST(VariantIndexTest, IsBoldTimesTwoPlusItalicTimesThreePlusPosition) {
  using enum TextPosition;
  EXPECT_EQ(VariantIndex({false, false, kNormal}), 0u);
  EXPECT_EQ(VariantIndex({false, false, kLowered}), 1u);
  EXPECT_EQ(VariantIndex({false, false, kRaised}), 2u);
  EXPECT_EQ(VariantIndex({false, true, kNormal}), 3u);
  EXPECT_EQ(VariantIndex({false, true, kRaised}), 5u);
  EXPECT_EQ(VariantIndex({true, false, kNormal}), 6u);
  EXPECT_EQ(VariantIndex({true, false, kLowered}), 7u);
  EXPECT_EQ(VariantIndex({true, true, kNormal}), 9u);
  EXPECT_EQ(VariantIndex({true, true, kRaised}), 11u);
}

TEST_F(FontFamilyTest, AFamilyThatHasNotBeenMadeIsEmpty) {
  const FontFamily family;
  EXPECT_FALSE(family.Created());
  EXPECT_EQ(family.lineHeight, 0);
}

// A point is 96/72 of a pixel, cut to a whole number; a line is the pixels and 0.207 of them, rounded, high.
TEST_F(FontFamilyTest, PointsBecomePixelsAndPixelsLines) {
  struct Sizes {
    int points, pixels, height;
  };
  for (const auto& [points, pixels, height] :
       {Sizes{7, 9, 11}, Sizes{8, 10, 12}, Sizes{9, 12, 14}, Sizes{10, 13, 16}, Sizes{11, 14, 17},
        Sizes{12, 16, 19}, Sizes{21, 28, 34}}) {
    const FontFamily family = Make(points);
    EXPECT_EQ(family.lineHeight, height) << points;
    for (const FontVariant& variant : family.variants) {
      EXPECT_EQ(variant.points, points);
      EXPECT_EQ(variant.font->Spec().pixels, pixels) << points;
      EXPECT_EQ(variant.lineHeight, height) << points;
      EXPECT_EQ(variant.baselineOffset, 0) << points;
    }
  }
}

TEST_F(FontFamilyTest, HasEachWeightSlantAndPosition) {
  const FontFamily family = MakeFull();
  EXPECT_TRUE(family.Created());
  EXPECT_EQ(family.owner, shell_.MainWindow());
  for (std::size_t i = 0; i < 12; ++i) {
    const FontVariant& variant = family.variants[i];
    const bool bold = i >= 6;
    const bool italic = i % 6 >= 3;
    EXPECT_EQ(variant.weight, bold ? 700 : 400) << i;
    EXPECT_EQ(variant.italic, italic) << i;
    EXPECT_EQ(variant.points, i % 3 == 0 ? 11 : i % 3 == 1 ? 7 : 8) << i;
    EXPECT_EQ(variant.face, u"Tahoma") << i;
    EXPECT_FALSE(variant.underlined) << i;
    EXPECT_EQ(variant.font->Spec(), (FontSpec{u"Tahoma",
                                              i % 3 == 0   ? 14
                                              : i % 3 == 1 ? 9
                                                           : 10,
                                              bold, italic, false}))
        << i;
    EXPECT_EQ(&family.Variant({bold, italic, static_cast<TextPosition>(i % 3)}), &variant);
  }
}

TEST_F(FontFamilyTest, TheLineHasRoomForBothSpacings) {
  const FontFamily family = MakeFull();
  EXPECT_EQ(family.lineHeight, 17 + 2 + 1);
  EXPECT_EQ(family.spacing1, 2);
  EXPECT_EQ(family.spacing2, 1);
  for (const std::size_t normal : {0u, 3u, 6u, 9u}) {
    EXPECT_EQ(family.variants[normal].baselineOffset, 0);
    EXPECT_EQ(family.variants[normal + 1].baselineOffset, 17 - 11 + 1);      // lowered, 9 pixels
    EXPECT_EQ(family.variants[normal + 2].baselineOffset, 17 - 12 + 2 + 1);  // raised, 10 pixels
  }
}

TEST_F(FontFamilyTest, LoweredTextEndsWithTheLineAndRaisedTextBeginsWithIt) {
  const FontFamily family = MakeFull();
  EXPECT_EQ(family.TopInLine({false, false, TextPosition::kNormal}), 2);
  EXPECT_EQ(family.TopInLine({false, false, TextPosition::kLowered}), 20 - 11);
  EXPECT_EQ(family.TopInLine({true, true, TextPosition::kLowered}), 20 - 11);
  EXPECT_EQ(family.TopInLine({false, true, TextPosition::kRaised}), 0);
}

TEST_F(FontFamilyTest, TheFlagsDoNotChangeTheVariantsButTheUnderline) {
  const FontFamily plain = MakeFull(false, false);
  const FontFamily bold = MakeFull(true, false);
  const FontFamily underlined = MakeFull(false, true);
  for (std::size_t i = 0; i < 12; ++i) {
    EXPECT_EQ(bold.variants[i].font, plain.variants[i].font) << i;
    EXPECT_TRUE(underlined.variants[i].underlined) << i;
    EXPECT_TRUE(underlined.variants[i].font->Spec().underline) << i;
    EXPECT_EQ(underlined.variants[i].lineHeight, plain.variants[i].lineHeight) << i;
  }
}

TEST_F(FontFamilyTest, ADestroyedFamilyMeasuresNothing) {
  FontFamily family = MakeFull();
  TextEngine engine;
  engine.SelectFontFamily(&family);
  EXPECT_GT(engine.MeasureText(u"abc").width, 0);
  DestroyFontFamily(family);
  EXPECT_FALSE(family.Created());
  EXPECT_EQ(engine.MeasureText(u"abc").width, 0);
  EXPECT_EQ(family.owner, kNoWindow);
}

// The same layout at every scale: only the drawing gets finer.
TEST_F(FontFamilyTest, WidthsDoNotDependOnTheScale) {
  TestShell large({.scale = 2.5});
  FontFamily other;
  CreateFontFamily(large.GetDevice(), large.MainWindow(), other, u"Tahoma", 9, false, false);
  const FontFamily family = Make(9);
  TextEngine engine;
  engine.SelectFontFamily(&family);
  const std::vector<int> widths = engine.GetCharWidths(u"Tungsten\x0001! W\x0001`2");
  engine.SelectFontFamily(&other);
  EXPECT_EQ(engine.GetCharWidths(u"Tungsten\x0001! W\x0001`2"), widths);
}

// What the engine draws into a window is listed as it was drawn.
TEST_F(FontFamilyTest, ADrawnTextLeavesItsRuns) {
  TestShell shell({.recordRuns = true});
  const FontFamily family = MakeFull();
  const auto surface = shell.GetDevice().CreateSurface({200, 100});
  shell.Engine().SelectFontFamily(&family);
  const Rect clip{10, 20, 190, 100};
  shell.Engine().DrawText(surface->GetCanvas(), u"H\x0001`2\x0001 O\nice", 10, 20, &clip);
  std::vector<Text> texts;
  std::set<std::uint32_t> lines;
  for (const TextRun& run : surface->Runs()) {
    texts.push_back(run.text);
    lines.insert(run.line);
  }
  EXPECT_EQ(texts, (std::vector<Text>{u"H", u"2", u"O", u"ice"}));
  EXPECT_EQ(lines.size(), 2u);
  const int h = family.variants[0].font->TextWidth(u"H");
  EXPECT_EQ(surface->Runs()[0].rect, Rect::At(10, 22, h, 17));
  EXPECT_EQ(surface->Runs()[1].rect, Rect::At(10 + h, 29, family.variants[1].font->TextWidth(u"2"), 11));
  EXPECT_EQ(surface->Runs()[3].rect.TopLeft(), (Point{10, 42}));
}

}  // namespace
}  // namespace orvane
