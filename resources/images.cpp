#include "resources/images.h"

#include <cstddef>

namespace orvane {
namespace {

// One drawing of the art folder: its size in logical pixels, and its files from 1x upwards.
template <std::size_t Count>
struct Artwork {
  Size size;
  std::array<PngBytes, Count> png;
};

namespace artwork {
#include "resources/artwork.inc"
}  // namespace artwork

constexpr ImageResource Image(int id, const Artwork<kImageScales>& art) { return {id, art.size, art.png}; }

constexpr std::array kImages{
    Image(kApplicationIcon, artwork::kApplication),
    Image(107, artwork::kMarkMove),
    Image(108, artwork::kMarkMoveMask),
    Image(119, artwork::kMarkResizeColumn),
    Image(120, artwork::kMarkResizeColumnMask),
    Image(109, artwork::kMarkEnlarge),
    Image(110, artwork::kMarkEnlargeMask),
    Image(111, artwork::kMarkReduce),
    Image(112, artwork::kMarkReduceMask),
    Image(127, artwork::kMarkAccepted),
    Image(128, artwork::kMarkAcceptedMask),
    Image(126, artwork::kMarkRefused),
    Image(129, artwork::kMarkRefusedMask),
    Image(kTitleStrip, artwork::kTitleStrip),
    Image(kSeparatorLine, artwork::kSeparatorLine),
};

// The tools name the buttons' images by their position here.
constexpr std::array kBarCells{
    Image(kBarImages, artwork::kTick),          // 0
    Image(kBarImages, artwork::kCross),         // 1
    Image(kBarImages, artwork::kQuestion),      // 2
    Image(kBarImages, artwork::kCopy),          // 3
    Image(kBarImages, artwork::kPaste),         // 4
    Image(kBarImages, artwork::kTableSize),     // 5
    Image(kBarImages, artwork::kShow),          // 6
    Image(kBarImages, artwork::kHand),          // 7
    Image(kBarImages, artwork::kMagnifier),     // 8
    Image(kBarImages, artwork::kFit),           // 9
    Image(kBarImages, artwork::kPlotSetup),     // 10
    Image(kBarImages, artwork::kPlotPresets),   // 11
    Image(kBarImages, artwork::kTitleBar),      // 12
    Image(kBarImages, artwork::kValueStrip),    // 13
    Image(kBarImages, artwork::kFold),          // 14
    Image(kBarImages, artwork::kQuestion),      // 15: help is one picture wherever it is offered
    Image(kBarImages, artwork::kPagePrevious),  // 16
    Image(kBarImages, artwork::kPageNext),      // 17
    Image(kBarImages, artwork::kBack),          // 18
    Image(kBarImages, artwork::kContents),      // 19
    Image(kBarImages, artwork::kSetup),         // 20
    Image(kBarImages, artwork::kPresets),       // 21
    Image(kBarImages, artwork::kSummary),       // 22
};

constexpr std::array kContentsCells{
    Image(kContentsImages, artwork::kBookClosed),  // 0: a closed heading
    Image(kContentsImages, artwork::kBookOpen),    // 1: an open heading
    Image(kContentsImages, artwork::kPage),        // 2: a page
    Image(kContentsImages, artwork::kBoxMinus),    // 3: marks what is unfolded
    Image(kContentsImages, artwork::kBoxPlus),     // 4: marks what is folded
};

constexpr std::array kStrips{
    ImageStrip{kBarImages, {16, 16}, kBarCells},
    ImageStrip{kContentsImages, {16, 16}, kContentsCells},
};

// At 16 pixels the full drawing would blur, so that size has a simpler one on its own grid.
constexpr std::array kApplicationBitmaps{
    IconBitmap{16, artwork::kApplicationSmall.png[0]}, IconBitmap{32, artwork::kApplication.png[0]},
    IconBitmap{64, artwork::kApplication.png[1]},      IconBitmap{96, artwork::kApplication.png[2]},
    IconBitmap{128, artwork::kApplication.png[3]},
};

constexpr std::array kIcons{
    IconResource{kApplicationIcon, kApplicationBitmaps},
};

template <typename Table>
constexpr auto Find(const Table& table, int id) -> const typename Table::value_type* {
  for (const auto& resource : table) {
    if (resource.id == id) return &resource;
  }
  return nullptr;
}

}  // namespace

const ImageResource* FindImage(int id) { return Find(kImages, id); }
const ImageStrip* FindStrip(int id) { return Find(kStrips, id); }
const IconResource* FindIcon(int id) { return Find(kIcons, id); }

}  // namespace orvane
