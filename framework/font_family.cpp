#include "framework/font_family.h"

namespace orvane {

namespace {

constexpr int kNormalWeight = 400;
constexpr int kBoldWeight = 700;

FontVariant MakeVariant(FontLibrary& fonts, TextView face, int points, const TextStyle& style,
                        bool underline) {
  FontVariant variant;
  variant.points = points;
  variant.weight = style.bold ? kBoldWeight : kNormalWeight;
  variant.italic = style.italic;
  variant.underlined = underline;
  variant.face = Text(face);
  variant.font = &fonts.GetFont({Text(face), PixelsFromPoints(points), style.bold, style.italic, underline});
  // A font gives every text the same height, so no sample is measured: that would open all four face files.
  variant.lineHeight = variant.font->Height();
  return variant;
}

}  // namespace

const FontVariant& FontFamily::Variant(const TextStyle& style) const { return variants[VariantIndex(style)]; }

int FontFamily::TopInLine(const TextStyle& style) const {
  const FontVariant& variant = Variant(style);
  switch (style.position) {
    case TextPosition::kNormal:
      return spacing1;
    case TextPosition::kLowered:
      return spacing1 + variant.baselineOffset;
    case TextPosition::kRaised:
      return lineHeight - variant.lineHeight - variant.baselineOffset;
  }
  return spacing1;
}

void CreateFontFamily(Device& device, WindowHandle owner, FontFamily& family, TextView face, int size0,
                      int size1, int size2, int spacing1, int spacing2, [[maybe_unused]] bool bold,
                      bool underline) {
  const std::array<int, 3> sizes{size0, size1, size2};
  for (const bool heavy : {false, true}) {
    for (const bool italic : {false, true}) {
      for (int position = 0; position < 3; ++position) {
        const TextStyle style{heavy, italic, static_cast<TextPosition>(position)};
        family.variants[VariantIndex(style)] =
            MakeVariant(device.Fonts(), face, sizes[static_cast<std::size_t>(position)], style, underline);
      }
      const TextStyle normal{heavy, italic, TextPosition::kNormal};
      const int height = family.variants[VariantIndex(normal)].lineHeight;
      FontVariant& lowered = family.variants[VariantIndex(normal) + 1];
      FontVariant& raised = family.variants[VariantIndex(normal) + 2];
      lowered.baselineOffset = height - lowered.lineHeight + spacing2;
      raised.baselineOffset = height - raised.lineHeight + spacing1 + spacing2;
    }
  }
  family.spacing1 = spacing1;
  family.spacing2 = spacing2;
  family.lineHeight = family.variants[0].lineHeight + spacing1 + spacing2;
  family.owner = owner;
}

void CreateFontFamily(Device& device, WindowHandle owner, FontFamily& family, TextView face, int size,
                      bool bold, bool underline) {
  CreateFontFamily(device, owner, family, face, size, size, size, 0, 0, bold, underline);
}

void DestroyFontFamily(FontFamily& family) { family = FontFamily(); }

}  // namespace orvane
