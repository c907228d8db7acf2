#include "tests/resources/png_picture.h"

#include <png.h>

#include <algorithm>
#include <array>

namespace orvane {

Picture Decode(PngBytes png) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  if (!png_image_begin_read_from_memory(&image, png.data(), png.size())) return {};
  image.format = PNG_FORMAT_RGBA;
  std::vector<std::uint8_t> bytes(PNG_IMAGE_SIZE(image));
  if (!png_image_finish_read(&image, nullptr, bytes.data(), 0, nullptr)) return {};
  Picture picture{{static_cast<int>(image.width), static_cast<int>(image.height)}, {}};
  for (std::size_t i = 0; i + 3 < bytes.size(); i += 4) {
    picture.pixels.push_back({bytes[i], bytes[i + 1], bytes[i + 2], bytes[i + 3]});
  }
  return picture;
}

Size HeaderSize(PngBytes png) {
  constexpr std::array<unsigned char, 16> kStart{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n',
                                                 0,    0,   0,   13,  'I',  'H',  'D',  'R'};
  if (png.size() < 24 || !std::equal(kStart.begin(), kStart.end(), png.begin())) return {};
  const auto number = [&](std::size_t at) {
    return (png[at] << 24) | (png[at + 1] << 16) | (png[at + 2] << 8) | png[at + 3];
  };
  return {number(16), number(20)};
}

}  // namespace orvane
