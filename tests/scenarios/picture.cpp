#include "tests/scenarios/picture.h"

#include <png.h>

#include <algorithm>
#include <cstdlib>

namespace orvane {

namespace {

constexpr int kTrace = 8;  // of 255, a channel: rounding in another version of a drawing library

bool Differ(std::uint32_t a, std::uint32_t b) {
  for (int shift = 0; shift < 24; shift += 8) {
    const int first = static_cast<int>((a >> shift) & 0xFFu);
    const int second = static_cast<int>((b >> shift) & 0xFFu);
    if (std::abs(first - second) > kTrace) return true;
  }
  return false;
}

}  // namespace

Picture ReadPicture(const std::string& path) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  if (!png_image_begin_read_from_file(&image, path.c_str())) return {};
  image.format = PNG_FORMAT_RGB;
  std::vector<png_byte> bytes(PNG_IMAGE_SIZE(image));
  if (!png_image_finish_read(&image, nullptr, bytes.data(), 0, nullptr)) return {};
  Picture picture{static_cast<int>(image.width), static_cast<int>(image.height), {}};
  for (std::size_t i = 0; i + 2 < bytes.size(); i += 3) {
    picture.pixels.push_back((std::uint32_t{bytes[i]} << 16) | (std::uint32_t{bytes[i + 1]} << 8) |
                             bytes[i + 2]);
  }
  return picture;
}

bool WritePicture(const std::string& path, const Picture& picture) {
  std::vector<png_byte> bytes;
  bytes.reserve(picture.pixels.size() * 3);
  for (const std::uint32_t pixel : picture.pixels) {
    bytes.push_back(static_cast<png_byte>(pixel >> 16));
    bytes.push_back(static_cast<png_byte>(pixel >> 8));
    bytes.push_back(static_cast<png_byte>(pixel));
  }
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = static_cast<png_uint_32>(picture.width);
  image.height = static_cast<png_uint_32>(picture.height);
  image.format = PNG_FORMAT_RGB;
  return png_image_write_to_file(&image, path.c_str(), 0, bytes.data(), 0, nullptr) != 0;
}

double DifferingShare(const Picture& a, const Picture& b) {
  if (a.width != b.width || a.height != b.height || a.pixels.empty()) return 1;
  std::size_t differing = 0;
  for (std::size_t i = 0; i < a.pixels.size(); ++i) differing += Differ(a.pixels[i], b.pixels[i]) ? 1 : 0;
  return static_cast<double>(differing) / static_cast<double>(a.pixels.size());
}

Picture DifferencePicture(const Picture& a, const Picture& b) {
  Picture difference = a;
  for (std::size_t i = 0; i < a.pixels.size(); ++i) {
    const bool same = a.width == b.width && i < b.pixels.size() && !Differ(a.pixels[i], b.pixels[i]);
    difference.pixels[i] = same ? 0 : 0xFFFFFF;
  }
  return difference;
}

}  // namespace orvane
