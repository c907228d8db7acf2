// An opaque colour with eight bits a channel.
#pragma once

#include <cstdint>

namespace orvane {

struct Colour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  friend bool operator==(const Colour&, const Colour&) = default;
};

constexpr Colour Rgb(int red, int green, int blue) {
  return {static_cast<std::uint8_t>(red), static_cast<std::uint8_t>(green), static_cast<std::uint8_t>(blue)};
}

inline constexpr Colour kBlack = Rgb(0, 0, 0);
inline constexpr Colour kWhite = Rgb(255, 255, 255);

}  // namespace orvane
