#include <gtest/gtest.h>

#include <cstdint>
#include <memory>

#include "platform/graphics.h"
#include "tests/platform/pixel_picture.h"

namespace orvane {
namespace {

constexpr int kFar = 1000000;

class CanvasText : public testing::Test {
 protected:
  const Font& Get(int pixels, bool bold = false, bool italic = false, bool underline = false) {
    return graphics_->Fonts().GetFont({u"Tahoma", pixels, bold, italic, underline});
  }
  // A white surface of 40 × 20 at this scale.
  std::unique_ptr<Surface> Paper(double scale) {
    auto surface = graphics_->CreateSurface({40, 20}, scale, false);
    surface->GetCanvas().FillRect({0, 0, 40, 20}, kWhite);
    return surface;
  }
  std::unique_ptr<Surface> Drawn(TextView text, const Font& font, double scale = 1) {
    auto surface = Paper(scale);
    surface->GetCanvas().DrawRun(text, {4, 2}, font, kBlack, 1);
    return surface;
  }
  // The smallest logical rectangle, rounded outward, that holds all that is not white.
  static Rect Ink(const Surface& surface) {
    Rect ink;
    for (int y = 0; y < surface.DeviceHeight(); ++y) {
      for (int x = 0; x < surface.DeviceWidth(); ++x) {
        if (surface.DevicePixel(x, y) != 0xFFFFFF) ink = Unite(ink, Rect::At(x, y, 1, 1));
      }
    }
    const auto s = static_cast<int>(surface.Scale());
    return {ink.left / s, ink.top / s, (ink.right + s - 1) / s, (ink.bottom + s - 1) / s};
  }
  static double Darkness(const Surface& surface) {
    double sum = 0;
    for (int y = 0; y < surface.DeviceHeight(); ++y) {
      for (int x = 0; x < surface.DeviceWidth(); ++x) sum += 1 - (surface.DevicePixel(x, y) & 0xFFu) / 255.0;
    }
    return sum / surface.Scale() / surface.Scale();
  }

  std::unique_ptr<Graphics> graphics_ = MakeGraphics("");
};

// An H of DejaVu is 1493 of 2048 units high: 9.5 pixels at 13. It stands on the baseline, 2 + 13.
TEST_F(CanvasText, CapitalsStandOnTheBaseline) {
  for (const int s : {1, 2, 3}) {
    SCOPED_TRACE(s);
    const auto surface = Drawn(u"H", Get(13), s);
    const Rect ink = Ink(*surface);
    EXPECT_EQ(ink.bottom, 15);
    EXPECT_GE(ink.top, 5);
    EXPECT_LE(ink.top, 6);
    EXPECT_GE(ink.left, 4);
    EXPECT_LE(ink.right, 4 + 9);  // its advance is 1386 units: 8.8 pixels
  }
}

TEST_F(CanvasText, DescendersStayInTheCell) {
  for (const int s : {1, 2, 3}) {
    const Rect ink = Ink(*Drawn(u"gjpqy", Get(13), s));
    EXPECT_EQ(ink.bottom, 18) << s;  // 2 + 13 + 3
  }
}

// An I is one stem, 201 units wide, so that its darkness hardly depends on the scale or the rounding.
TEST_F(CanvasText, GlyphsGrowWithTheScale) {
  const double expected = 1493.0 * 201 / 2048 / 2048 * 13 * 13 * 0.9;  // condensed: nine tenths of the width
  for (const double s : {1.0, 1.25, 1.5, 2.0, 3.0}) {
    EXPECT_NEAR(Darkness(*Drawn(u"I", Get(13), s)) / expected, 1.0, 0.1) << s;
  }
}

TEST_F(CanvasText, DrawRunReturnsTheAdvance) {
  const auto surface = Paper(2);
  Canvas& c = surface->GetCanvas();
  EXPECT_EQ(c.DrawRun(u"AWim1", {0, 0}, Get(13), kBlack, 1), 8 + 12 + 3 + 11 + 7);
  EXPECT_EQ(c.DrawRun(u"AWim1", {kFar, -kFar}, Get(13), kBlack, 1), 41);
  EXPECT_EQ(c.DrawRun(u"", {0, 0}, Get(13), kBlack, 1), 0);
}

// Letters lie at whole logical pixels: two runs side by side are the same as one.
TEST_F(CanvasText, RunsJoinWithoutASeam) {
  for (const double s : {1.0, 1.25, 2.0, 3.0}) {
    const auto whole = Drawn(u"Helium", Get(13), s);
    const auto parts = Paper(s);
    Canvas& c = parts->GetCanvas();
    const int advance = c.DrawRun(u"Hel", {4, 2}, Get(13), kBlack, 1);
    c.DrawRun(u"ium", {4 + advance, 2}, Get(13), kBlack, 1);
    EXPECT_EQ(Picture(*whole), Picture(*parts)) << s;
  }
}

TEST_F(CanvasText, TheOriginMovesText) {
  const auto moved = Paper(2);
  Canvas& c = moved->GetCanvas();
  c.SetOrigin({-6, 1});
  c.DrawRun(u"Ag", {10, 1}, Get(13), kBlack, 1);
  EXPECT_EQ(Picture(*moved), Picture(*Drawn(u"Ag", Get(13), 2)));
}

TEST_F(CanvasText, ClipsCutGlyphsToThePixel) {
  const auto whole = Drawn(u"WWWW", Get(13), 2);
  const auto clipped = Paper(2);
  Canvas& c = clipped->GetCanvas();
  c.PushClip({9, 6, 20, 12});
  c.DrawRun(u"WWWW", {4, 2}, Get(13), kBlack, 1);
  for (int y = 0; y < 40; ++y) {
    for (int x = 0; x < 80; ++x) {
      const bool inside = x >= 18 && x < 40 && y >= 12 && y < 24;
      ASSERT_EQ(clipped->DevicePixel(x, y), inside ? whole->DevicePixel(x, y) : 0xFFFFFFu) << x << ", " << y;
    }
  }
}

TEST_F(CanvasText, TextTakesItsColour) {
  const auto surface = graphics_->CreateSurface({40, 20}, 2, false);
  Canvas& c = surface->GetCanvas();
  c.FillRect({0, 0, 40, 20}, kWhite);
  c.DrawRun(u"██", {4, 2}, Get(13), kRed, 1);  // full blocks
  EXPECT_EQ(Letter(surface->DevicePixel(22, 20)), 'r');
  for (int y = 0; y < 40; ++y) {
    for (int x = 0; x < 80; ++x) ASSERT_EQ(surface->DevicePixel(x, y) >> 16, 0xFFu);
  }
}

TEST_F(CanvasText, StylesDiffer) {
  const auto plain = Picture(*Drawn(u"Ra", Get(13), 2));
  EXPECT_NE(plain, Picture(*Drawn(u"Ra", Get(13, false, true), 2)));
  EXPECT_GT(Darkness(*Drawn(u"Ra", Get(13, true), 2)), 1.3 * Darkness(*Drawn(u"Ra", Get(13), 2)));
}

TEST_F(CanvasText, UnderlinesRunAlongTheWholeAdvance) {
  for (const int s : {1, 2, 3}) {
    const auto plain = Drawn(u" i ", Get(13), s);
    const auto lined = Drawn(u" i ", Get(13, false, false, true), s);
    const int advance = 4 + 3 + 4;
    for (int y = 0; y < lined->DeviceHeight(); ++y) {
      for (int x = 0; x < lined->DeviceWidth(); ++x) {
        const bool line = y / s == 2 + 13 + 1 && x / s >= 4 && x / s < 4 + advance;
        ASSERT_EQ(lined->DevicePixel(x, y), line ? 0u : plain->DevicePixel(x, y)) << x << ", " << y;
      }
    }
  }
}

TEST_F(CanvasText, ControlCharactersDrawNothing) {
  const auto surface = Drawn(u"\u0001\n\t\u001f", Get(13));
  EXPECT_TRUE(Ink(*surface).Empty());
  EXPECT_EQ(Picture(*Drawn(u"A\nB", Get(13))), Picture(*Drawn(u"AB", Get(13))));
}

TEST_F(CanvasText, UnknownCharactersAndLoneSurrogatesShowTheReplacement) {
  const auto replacement = Picture(*Drawn(u"\uFFFD", Get(13), 2));
  EXPECT_FALSE(Ink(*Drawn(u"\uFFFD", Get(13), 2)).Empty());
  EXPECT_EQ(Picture(*Drawn(u"\u4E2D", Get(13), 2)), replacement);
  EXPECT_EQ(Picture(*Drawn(u"\U0001D400", Get(13), 2)), replacement);
  EXPECT_EQ(Picture(*Drawn(Text(1, char16_t{0xD83D}), Get(13), 2)), replacement);
  EXPECT_EQ(Picture(*Drawn(Text(1, char16_t{0xDE00}), Get(13), 2)), replacement);
  EXPECT_NE(Picture(*Drawn(u"\U0001F600", Get(13), 2)), replacement);  // a pair that the face has
}

TEST_F(CanvasText, LongTextsAreDrawnWhereTheyCanBeSeen) {
  const Text text(100000, u'H');
  const int width = Get(13).TextWidth(u"H");
  const auto start = Paper(2);
  EXPECT_EQ(start->GetCanvas().DrawRun(text, {4, 2}, Get(13), kBlack, 1), 100000 * width);
  EXPECT_EQ(Picture(*start), Picture(*Drawn(u"HHHHHHH", Get(13), 2)));
  const auto middle = Paper(2);
  middle->GetCanvas().DrawRun(text, {4 - 50000 * width, 2}, Get(13), kBlack, 1);
  const auto expected = Paper(2);
  expected->GetCanvas().DrawRun(u"HHHHHHHHH", {4 - width, 2}, Get(13), kBlack, 1);
  EXPECT_EQ(Picture(*middle), Picture(*expected));
}

// So many large glyphs that the kept ones were forgotten and drawn anew.
TEST_F(CanvasText, ManyLargeGlyphsLookTheSameAfterwards) {
  const auto before = Picture(*Drawn(u"Hg", Get(13), 2));
  const auto surface = graphics_->CreateSurface({60, 60}, 16, false);
  for (int pixels = 20; pixels < 40; ++pixels) {
    for (Char c = u'A'; c <= u'Z'; ++c) {
      surface->GetCanvas().DrawRun(Text(1, c), {4, 4}, Get(pixels), kWhite, 1);
    }
  }
  EXPECT_EQ(Picture(*Drawn(u"Hg", Get(13), 2)), before);
}

TEST_F(CanvasText, LineNumbersAreUniqueOverAllSurfaces) {
  const auto a = graphics_->CreateSurface({1, 1}, 1, true);
  const auto b = graphics_->CreateSurface({1, 1}, 1, false);
  const std::uint32_t first = a->GetCanvas().NextTextLine();
  const std::uint32_t second = b->GetCanvas().NextTextLine();
  const std::uint32_t third = a->GetCanvas().NextTextLine();
  EXPECT_LT(first, second);
  EXPECT_LT(second, third);
}

}  // namespace
}  // namespace orvane
