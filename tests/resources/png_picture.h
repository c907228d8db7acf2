// A PNG file decoded, for the tests of the artwork.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "resources/images.h"

namespace orvane {

struct Pixel {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  std::uint8_t alpha = 0;
  friend bool operator==(const Pixel&, const Pixel&) = default;
};

inline constexpr Pixel kBlackPixel{0, 0, 0, 255};
inline constexpr Pixel kWhitePixel{255, 255, 255, 255};

// The pixels row by row, colours not multiplied by alpha; 0 x 0 when the bytes are no PNG file.
struct Picture {
  Size size;
  std::vector<Pixel> pixels;
  Pixel At(int x, int y) const {
    return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width) +
                  static_cast<std::size_t>(x)];
  }
};

Picture Decode(PngBytes png);

// The size that the file's header states, read by its byte positions; 0 x 0 without the signature.
Size HeaderSize(PngBytes png);

}  // namespace orvane
