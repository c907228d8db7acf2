// Reads a surface as rows of letters, so that a test states the picture it expects.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "platform/graphics.h"

namespace orvane {

inline constexpr Colour kRed = Rgb(255, 0, 0);
inline constexpr Colour kGreen = Rgb(0, 255, 0);
inline constexpr Colour kBlue = Rgb(0, 0, 255);

using Rows = std::vector<std::string>;

// '.' black, 'w' white, 'r', 'g', 'b' the pure colours, '?' any other.
inline char Letter(std::uint32_t pixel) {
  switch (pixel) {
    case 0x000000:
      return '.';
    case 0xFFFFFF:
      return 'w';
    case 0xFF0000:
      return 'r';
    case 0x00FF00:
      return 'g';
    case 0x0000FF:
      return 'b';
    default:
      return '?';
  }
}

inline Rows Picture(const Surface& surface) {
  Rows rows;
  for (int y = 0; y < surface.DeviceHeight(); ++y) {
    std::string row;
    for (int x = 0; x < surface.DeviceWidth(); ++x) row += Letter(surface.DevicePixel(x, y));
    rows.push_back(row);
  }
  return rows;
}

// Each pixel as a square of `factor` pixels.
inline Rows Enlarged(const Rows& rows, int factor) {
  Rows large;
  for (const std::string& row : rows) {
    std::string wide;
    for (const char c : row) wide.append(static_cast<std::size_t>(factor), c);
    for (int i = 0; i < factor; ++i) large.push_back(wide);
  }
  return large;
}

// Draws at 1×, 2× and 3× on surfaces of this size and expects the picture, each pixel enlarged.
template <typename Draw>
void ExpectAtEveryScale(Size size, const Rows& expected, const Draw& draw) {
  const auto graphics = MakeGraphics("");
  for (const int scale : {1, 2, 3}) {
    SCOPED_TRACE(scale);
    const auto surface = graphics->CreateSurface(size, scale, false);
    draw(surface->GetCanvas());
    EXPECT_EQ(Picture(*surface), Enlarged(expected, scale));
  }
}

}  // namespace orvane
