// Fonts of fixed widths and a canvas that writes down what is drawn, so that every place of a layout can be
// worked out by hand.
#pragma once

#include <deque>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

#include "framework/font_family.h"
#include "platform/canvas.h"

namespace orvane::testing {

// Every character is half the em size wide, in bold one pixel more; control characters and the second half of
// a surrogate pair are 0 wide, a lone surrogate is 3. Ascent is the em size, descent a quarter of it.
class FakeFont : public Font {
 public:
  explicit FakeFont(FontSpec spec) : spec_(std::move(spec)) {}

  const FontSpec& Spec() const override { return spec_; }
  int Ascent() const override { return spec_.pixels; }
  int Descent() const override { return spec_.pixels / 4; }
  void AppendWidths(TextView text, std::vector<int>& widths) const override {
    for (std::size_t i = 0; i < text.size(); ++i) {
      const int width = spec_.pixels / 2 + (spec_.bold ? 1 : 0);
      if (IsSurrogatePairAt(text, i)) {
        widths.insert(widths.end(), {width, 0});
        ++i;
      } else if (IsSurrogate(text[i])) {
        widths.push_back(3);
      } else {
        widths.push_back(text[i] < 0x20 ? 0 : width);
      }
    }
  }
  int TextWidth(TextView text) const override {
    std::vector<int> widths;
    AppendWidths(text, widths);
    return std::accumulate(widths.begin(), widths.end(), 0);
  }

 private:
  FontSpec spec_;
};

class FakeFonts : public FontLibrary {
 public:
  const Font& GetFont(const FontSpec& spec) override {
    for (const FakeFont& font : fonts_)
      if (font.Spec() == spec) return font;
    return fonts_.emplace_back(spec);
  }
  Text MissingFaces() const override { return {}; }

 private:
  std::deque<FakeFont> fonts_;  // its elements stay where they are
};

// A family of fake fonts with its figures worked out by hand. The normal variants are 12 pixels: characters 6
// wide (bold 7), 15 high. The shifted ones are 8 pixels: characters 4 wide (bold 5), 10 high. The spacings
// are 2 above and 3 below, so that a line is 20 high; normal text stands 2 below its top, lowered text 10
// below it, at the bottom, and raised text at the top.
inline FontFamily MakeFakeFamily(FakeFonts& fonts) {
  FontFamily family;
  for (std::size_t i = 0; i < family.variants.size(); ++i) {
    const bool bold = i >= 6;
    const bool italic = i % 6 >= 3;
    const std::size_t position = i % 3;
    FontVariant& variant = family.variants[i];
    variant.points = position == 0 ? 9 : 6;
    variant.weight = bold ? 700 : 400;
    variant.italic = italic;
    variant.face = u"Fake";
    variant.font = &fonts.GetFont({u"Fake", position == 0 ? 12 : 8, bold, italic, false});
    variant.lineHeight = position == 0 ? 15 : 10;
    variant.baselineOffset = position == 0 ? 0 : position == 1 ? 8 : 10;
  }
  family.lineHeight = 20;
  family.spacing1 = 2;
  family.spacing2 = 3;
  return family;
}

// One call of DrawRun.
struct DrawnRun {
  Text text;
  Point at;
  FontSpec font;
  Colour colour;
  std::uint32_t line = 0;
  Rect clip;  // in force when it was drawn
};

class RecordingCanvas : public Canvas {
 public:
  Size GetSize() const override { return {1000, 1000}; }
  double Scale() const override { return 1.0; }
  void SetOrigin(Point origin) override { origin_ = origin; }
  Point Origin() const override { return origin_; }
  void PushClip(const Rect& clip) override { clips_.push_back(Intersect(clips_.back(), clip)); }
  void PopClip() override { clips_.pop_back(); }
  Rect ClipBounds() const override { return clips_.back(); }

  void FillRect(const Rect&, Colour) override {}
  void Rectangle(const Rect&, Colour, Colour) override {}
  void FrameRect(const Rect&, Colour) override {}
  void RoundRect(const Rect&, Size, Colour, Colour) override {}
  void Ellipse(const Rect&, Colour, Colour) override {}
  void Line(Point, Point, Colour, int) override {}
  void Polyline(std::span<const Point>, Colour, int) override {}
  void Polygon(std::span<const Point>, Colour) override {}
  void DrawImage(const Image&, Point, const Rect&) override {}
  void DrawMasked(const Image&, const Image&, Point) override {}
  void CopySurface(const Surface&, const Rect&, Point) override {}

  int DrawRun(TextView text, Point topLeft, const Font& font, Colour colour, std::uint32_t line) override {
    runs.push_back({Text(text), topLeft, font.Spec(), colour, line, ClipBounds()});
    return font.TextWidth(text);
  }
  std::uint32_t NextTextLine() override { return ++lines_; }

  std::size_t OpenClips() const { return clips_.size() - 1; }

  std::vector<DrawnRun> runs;

 private:
  Point origin_;
  std::vector<Rect> clips_{Rect{0, 0, 1000, 1000}};
  std::uint32_t lines_ = 0;
};

}  // namespace orvane::testing
