// A font family: one face in twelve variants, made and measured once, so that a layout never measures to get
// a line height.
#pragma once

#include <array>

#include "base/styled_text.h"
#include "platform/device.h"

namespace orvane {

struct FontVariant {
  int points = 0;
  int weight = 400;  // 400 normal, 700 bold
  bool italic = false;
  bool underlined = false;  // the same for all variants of a family
  Text face;
  const Font* font = nullptr;
  int lineHeight = 0;      // logical pixels
  int baselineOffset = 0;  // shifted variants: see FontFamily
};

// The line box of a family is lineHeight = H + spacing1 + spacing2 high, H being the normal variant's height.
// Normal text's top stands spacing1 below the top of the box, lowered text stands at the bottom of the box,
// raised text at the top. The offset of a lowered variant is how far its top is below the normal one's,
// H − its height + spacing2; that of a raised one how far its bottom is above the bottom of the box,
// H − its height + spacing1 + spacing2.
struct FontFamily {
  std::array<FontVariant, 12> variants;
  int lineHeight = 0;
  int spacing1 = 0;
  int spacing2 = 0;
  WindowHandle owner = kNoWindow;

  const FontVariant& Variant(const TextStyle& style) const;
  bool Created() const { return variants[0].font != nullptr; }
  // How far below the top of the line box the top of text in this style stands.
  int TopInLine(const TextStyle& style) const;
};

// (bold × 2 + italic) × 3 + position.
constexpr std::size_t VariantIndex(const TextStyle& style) {
  return ((style.bold ? 2u : 0u) + (style.italic ? 1u : 0u)) * 3u + static_cast<std::size_t>(style.position);
}

// Sizes in points: of the normal, the lowered and the raised variants. Every variant is made in both weights,
// upright and italic, whatever `bold` says; `underline` underlines the whole family.
void CreateFontFamily(Device& device, WindowHandle owner, FontFamily& family, TextView face, int size0,
                      int size1, int size2, int spacing1, int spacing2, bool bold, bool underline);
// The short form: three equal sizes, no spacing.
void CreateFontFamily(Device& device, WindowHandle owner, FontFamily& family, TextView face, int size,
                      bool bold, bool underline);
// Back to a family that measures every text as width 0.
void DestroyFontFamily(FontFamily& family);

}  // namespace orvane
