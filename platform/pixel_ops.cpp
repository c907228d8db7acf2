#include "platform/pixel_ops.h"

#include <algorithm>
#include <cstring>

namespace orvane {
namespace {

// a × b ÷ 255, rounded, for two channels at once: red and blue, or green alone.
std::uint32_t DivideBy255(std::uint32_t twoSums) {
  twoSums += 0x00800080u;
  return ((twoSums + ((twoSums >> 8) & 0x00FF00FFu)) >> 8) & 0x00FF00FFu;
}

// From `under` (amount 0) to `over` (amount 255), per channel; the high bytes give 0.
std::uint32_t Mix(std::uint32_t under, std::uint32_t over, std::uint32_t amount) {
  const std::uint32_t rest = 255 - amount;
  const std::uint32_t redBlue = (under & 0x00FF00FFu) * rest + (over & 0x00FF00FFu) * amount;
  const std::uint32_t green = ((under >> 8) & 0xFFu) * rest + ((over >> 8) & 0xFFu) * amount;
  return DivideBy255(redBlue) | (DivideBy255(green) << 8);
}

std::uint32_t BlendPremultiplied(std::uint32_t under, std::uint32_t over) {
  const std::uint32_t alpha = over >> 24;
  if (alpha == 255) return over & 0x00FFFFFFu;
  const std::uint32_t rest = 255 - alpha;
  const std::uint32_t redBlue = DivideBy255((under & 0x00FF00FFu) * rest);
  const std::uint32_t green = DivideBy255(((under >> 8) & 0xFFu) * rest);
  // Premultiplied channels never exceed alpha, so the sums stay within their bytes.
  return (redBlue | (green << 8)) + (over & 0x00FFFFFFu);
}

std::uint32_t MaskedPixel(std::uint32_t under, std::uint32_t over, std::uint32_t mask) {
  const std::uint32_t alpha = over >> 24;
  if (alpha == 0) return under;
  const std::uint32_t colour = Unpremultiplied(over) & 0x00FFFFFFu;
  const std::uint32_t common = under & colour;
  std::uint32_t result = 0;
  for (int shift = 0; shift < 24; shift += 8) {
    const std::uint32_t amount = (mask >> shift) & 0xFFu;
    result |= Mix((common >> shift) & 0xFFu, (colour >> shift) & 0xFFu, amount) << shift;
  }
  return alpha == 255 ? result : Mix(under, result, alpha);
}

void CopyRow(std::uint32_t* target, const std::uint32_t* source, const Transfer& t) {
  // Read before the row is overwritten, as the two may be one.
  const std::uint32_t last = source[t.FromX(t.clip.right - 1)];
  const int first = t.FromX(t.clip.left);
  const int straight = std::min(t.from.right - first, t.clip.Width());
  std::memmove(target + t.clip.left, source + first,
               static_cast<std::size_t>(straight) * sizeof(std::uint32_t));
  std::fill(target + t.clip.left + std::min(straight, t.clip.Width() - 1), target + t.clip.right, last);
}

}  // namespace

std::uint32_t Unpremultiplied(std::uint32_t pixel) {
  const std::uint32_t alpha = pixel >> 24;
  if (alpha == 0) return 0;
  if (alpha == 255) return pixel;
  std::uint32_t result = alpha << 24;
  for (int shift = 0; shift < 24; shift += 8) {
    const std::uint32_t channel = (pixel >> shift) & 0xFFu;
    result |= std::min((channel * 255 + alpha / 2) / alpha, 255u) << shift;
  }
  return result;
}

void FillPixels(PixelBuffer& target, const Rect& rect, Colour colour) {
  if (rect.Empty()) return;
  const std::uint32_t pixel = PixelOf(colour);
  for (int y = rect.top; y < rect.bottom; ++y) {
    std::uint32_t* row = target.Row(y);
    std::fill(row + rect.left, row + rect.right, pixel);
  }
}

void CopyPixels(PixelBuffer& target, const PixelBuffer& source, const Transfer& t) {
  if (t.clip.Empty()) return;
  // Within one buffer a move down begins at the bottom, so that no row is read after it was written.
  const bool bottomUp = &target == &source && t.to.top > t.from.top;
  for (int i = 0; i < t.clip.Height(); ++i) {
    const int y = bottomUp ? t.clip.bottom - 1 - i : t.clip.top + i;
    CopyRow(target.Row(y), source.Row(t.FromY(y)), t);
  }
}

void BlendCoverage(PixelBuffer& target, const Coverage& coverage, Point at, const Rect& clip, Colour colour) {
  const Rect area = Intersect(Rect::At(at, {coverage.width, coverage.height}), clip);
  const std::uint32_t pixel = PixelOf(colour);
  for (int y = area.top; y < area.bottom; ++y) {
    const std::uint8_t* amounts =
        coverage.bytes + static_cast<std::ptrdiff_t>(y - at.y) * coverage.width + (area.left - at.x);
    std::uint32_t* pixels = target.Row(y) + area.left;
    for (int i = 0; i < area.Width(); ++i) {
      if (amounts[i] == 255) {
        pixels[i] = pixel;
      } else if (amounts[i] != 0) {
        pixels[i] = Mix(pixels[i], pixel, amounts[i]);
      }
    }
  }
}

void BlendPicture(PixelBuffer& target, const PixelBuffer& picture, const Transfer& t, int strength) {
  for (int y = t.clip.top; y < t.clip.bottom; ++y) {
    const std::uint32_t* source = picture.Row(t.FromY(y));
    std::uint32_t* row = target.Row(y);
    for (int x = t.clip.left; x < t.clip.right; ++x) {
      const std::uint32_t blended = BlendPremultiplied(row[x], source[t.FromX(x)]);
      row[x] =
          strength == kFullStrength ? blended : Mix(row[x], blended, static_cast<std::uint32_t>(strength));
    }
  }
}

void BlendMasked(PixelBuffer& target, const PixelBuffer& picture, const PixelBuffer& mask,
                 const Transfer& t) {
  for (int y = t.clip.top; y < t.clip.bottom; ++y) {
    const std::uint32_t* source = picture.Row(t.FromY(y));
    const std::uint32_t* amount = mask.Row(t.FromY(y));
    std::uint32_t* row = target.Row(y);
    for (int x = t.clip.left; x < t.clip.right; ++x) {
      row[x] = MaskedPixel(row[x], source[t.FromX(x)], amount[t.FromX(x)]);
    }
  }
}

}  // namespace orvane
