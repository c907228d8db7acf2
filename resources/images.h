// The artwork, embedded as PNG files at one to four device pixels for a logical pixel. At a scale in
// between, the nearest larger file is drawn smaller; above 4 the largest is drawn larger.
//
// Each file is drawn as SVG in resources/art and turned into pixels when the program is built.
#pragma once

#include <array>
#include <span>

#include "base/geometry.h"

namespace orvane {

inline constexpr int kImageScales = 4;

using PngBytes = std::span<const unsigned char>;

// A picture is laid out in logical pixels: png[k] holds (k + 1) * size.width by
// (k + 1) * size.height device pixels. The bytes live as long as the program.
struct ImageResource {
  int id = 0;
  Size size;
  std::array<PngBytes, kImageScales> png;
};

// Pictures of one size in a row, known by their position. Their own ids are all the strip's.
struct ImageStrip {
  int id = 0;
  Size cell;
  std::span<const ImageResource> cells;
};

// Square pictures of one motif, each drawn for its size, smallest first.
struct IconBitmap {
  int side = 0;
  PngBytes png;
};

struct IconResource {
  int id = 0;
  std::span<const IconBitmap> bitmaps;
};

// The application's icon: FindIcon offers it at 16 to 128 pixels for the host's window, FindImage at
// 32 x 32 logical pixels.
inline constexpr int kApplicationIcon = 102;

// Marks that are drawn over a tool's content, each an image and its mask. Where the mask is white
// the image is copied; where it is black the image is white, so that combining it with what is
// there leaves that as it is.
struct SharedIcon {
  int image = 0;
  int mask = 0;
};
inline constexpr std::array<SharedIcon, 6> kSharedIcons{{
    {107, 108},  // 1: move, an arrow to each side
    {119, 120},  // 2: resize a column
    {109, 110},  // 3: enlarge
    {111, 112},  // 4: reduce
    {127, 128},  // 5: accepted
    {126, 129},  // 6: refused
}};

inline constexpr int kTitleStrip = 133;      // 240 x 23, behind a tool's title
inline constexpr int kSeparatorLine = 134;   // 240 x 2, across a panel
inline constexpr int kBarImages = 125;       // the buttons of all bars
inline constexpr int kContentsImages = 141;  // the tree of the help contents

// Null for a number that names no image, no strip, or no icon. A strip is no image.
const ImageResource* FindImage(int id);
const ImageStrip* FindStrip(int id);
const IconResource* FindIcon(int id);

}  // namespace orvane
