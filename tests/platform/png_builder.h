// Makes PNG files from pixel values, so that a test holds its pictures as numbers.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "platform/canvas.h"

namespace orvane {

using Bytes = std::vector<unsigned char>;

inline void AppendBigEndian(Bytes& to, std::uint32_t v) {
  for (int shift = 24; shift >= 0; shift -= 8) to.push_back(static_cast<unsigned char>(v >> shift));
}

inline std::uint32_t Crc32(std::span<const unsigned char> bytes) {
  std::uint32_t crc = 0xFFFFFFFFu;
  for (const unsigned char byte : bytes) {
    crc ^= byte;
    for (int bit = 0; bit < 8; ++bit) crc = (crc >> 1) ^ ((crc & 1u) != 0 ? 0xEDB88320u : 0u);
  }
  return ~crc;
}

inline void AppendChunk(Bytes& png, std::string_view name, const Bytes& content) {
  AppendBigEndian(png, static_cast<std::uint32_t>(content.size()));
  const std::size_t begin = png.size();
  png.insert(png.end(), name.begin(), name.end());
  png.insert(png.end(), content.begin(), content.end());
  AppendBigEndian(png, Crc32(std::span(png).subspan(begin)));
}

// One stored block of the zlib format; the raw bytes must be fewer than 65536.
inline Bytes Stored(const Bytes& raw) {
  Bytes z{0x78, 0x01, 0x01};
  const auto length = static_cast<std::uint32_t>(raw.size());
  for (const std::uint32_t v : {length, ~length}) {
    z.push_back(static_cast<unsigned char>(v & 0xFFu));
    z.push_back(static_cast<unsigned char>((v >> 8) & 0xFFu));
  }
  z.insert(z.end(), raw.begin(), raw.end());
  std::uint32_t a = 1;
  std::uint32_t b = 0;
  for (const unsigned char byte : raw) {
    a = (a + byte) % 65521;
    b = (b + a) % 65521;
  }
  AppendBigEndian(z, (b << 16) | a);
  return z;
}

// Pixels 0xAARRGGBB, not premultiplied, row by row; `alpha` false leaves the alpha channel out of the file.
inline Bytes MakePng(int width, const std::vector<std::uint32_t>& pixels, bool alpha = true) {
  Bytes raw;
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    if (i % static_cast<std::size_t>(width) == 0) raw.push_back(0);  // no filter
    for (const int shift : {16, 8, 0}) raw.push_back(static_cast<unsigned char>(pixels[i] >> shift));
    if (alpha) raw.push_back(static_cast<unsigned char>(pixels[i] >> 24));
  }
  Bytes header;
  AppendBigEndian(header, static_cast<std::uint32_t>(width));
  AppendBigEndian(header, static_cast<std::uint32_t>(pixels.size()) / static_cast<std::uint32_t>(width));
  const unsigned char colourType = alpha ? 6 : 2;
  header.insert(header.end(), {8, colourType, 0, 0, 0});
  Bytes png{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
  AppendChunk(png, "IHDR", header);
  AppendChunk(png, "IDAT", Stored(raw));
  AppendChunk(png, "IEND", {});
  return png;
}

// A picture of given logical pixels, at one to four device pixels each.
class TestPicture {
 public:
  TestPicture(Size size, const std::vector<std::uint32_t>& pixels, bool alpha = true) {
    encoded_.size = size;
    for (std::size_t k = 1; k <= files_.size(); ++k) {
      std::vector<std::uint32_t> large;
      const auto width = static_cast<std::size_t>(size.width) * k;
      for (std::size_t i = 0; i < pixels.size() * k * k; ++i) {
        large.push_back(pixels[i / width / k * static_cast<std::size_t>(size.width) + i % width / k]);
      }
      files_[k - 1] = MakePng(static_cast<int>(width), large, alpha);
      encoded_.png[k - 1] = files_[k - 1];
    }
  }
  const EncodedImage& Encoded() const { return encoded_; }

 private:
  std::array<Bytes, 4> files_;
  EncodedImage encoded_;  // its spans point into files_, which keep their places when this object is moved
};

}  // namespace orvane
