// Loops over device pixels: fills, copies and blends. Colours are 0x00RRGGBB, pictures have premultiplied
// alpha (0xAARRGGBB). Every rectangle handed in must lie within the buffer it is of.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/colour.h"
#include "base/geometry.h"

namespace orvane {

struct PixelBuffer {
  PixelBuffer() = default;
  PixelBuffer(int w, int h)
      : width(w), height(h), pixels(static_cast<std::size_t>(w) * static_cast<std::size_t>(h)) {}

  std::uint32_t* Row(int y) { return pixels.data() + Start(y); }
  const std::uint32_t* Row(int y) const { return pixels.data() + Start(y); }
  Rect Bounds() const { return {0, 0, width, height}; }

  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;

 private:
  std::size_t Start(int y) const { return static_cast<std::size_t>(y) * static_cast<std::size_t>(width); }
};

constexpr std::uint32_t PixelOf(Colour c) {
  return (std::uint32_t{c.red} << 16) | (std::uint32_t{c.green} << 8) | c.blue;
}

// The plain colours of a premultiplied pixel, its alpha kept.
std::uint32_t Unpremultiplied(std::uint32_t pixel);

// How much of a pixel something covers, 0 to 255, row by row without padding.
struct Coverage {
  const std::uint8_t* bytes = nullptr;
  int width = 0;
  int height = 0;
};

// Which part of a picture or a surface goes where. At a fractional scale the two may differ by one pixel in
// width or height; then the last column (row) of the one is shown in the last of the other, so that an
// outline never loses its far side, and the column before it is dropped or that one doubled.
struct Transfer {
  Rect to;    // where the whole part lies, clipped or not
  Rect from;  // within the source; not empty
  Rect clip;  // the part of `to` that is drawn

  int FromX(int x) const { return From(x, to.left, to.right, from.left, from.right); }
  int FromY(int y) const { return From(y, to.top, to.bottom, from.top, from.bottom); }

 private:
  static int From(int v, int toBegin, int toEnd, int fromBegin, int fromEnd) {
    const int straight = fromBegin + (v - toBegin);
    return v == toEnd - 1 || straight >= fromEnd ? fromEnd - 1 : straight;
  }
};

void FillPixels(PixelBuffer& target, const Rect& rect, Colour colour);

// `source` may be the target itself: overlapping moves are safe.
void CopyPixels(PixelBuffer& target, const PixelBuffer& source, const Transfer& transfer);

// Paints the colour through the coverage, whose top left corner lies at `at`.
void BlendCoverage(PixelBuffer& target, const Coverage& coverage, Point at, const Rect& clip, Colour colour);

// `strength` weakens the picture: 0 leaves the target as it is, kFullStrength blends by the picture's alpha
// alone.
inline constexpr int kFullStrength = 255;
void BlendPicture(PixelBuffer& target, const PixelBuffer& picture, const Transfer& transfer, int strength);

// Per channel: the picture where the mask is white, the bitwise AND of picture and target where it is black,
// in proportion between the two. Where the picture is transparent the target shows through.
void BlendMasked(PixelBuffer& target, const PixelBuffer& picture, const PixelBuffer& mask,
                 const Transfer& transfer);

}  // namespace orvane
