#include "resources/images.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tests/resources/png_picture.h"

namespace orvane {
namespace {

void ExpectAllScales(const ImageResource& image, Size size, const std::string& what) {
  EXPECT_EQ(image.size, size) << what;
  for (int scale = 1; scale <= kImageScales; ++scale) {
    const PngBytes png = image.png[static_cast<std::size_t>(scale - 1)];
    const Size pixels{size.width * scale, size.height * scale};
    EXPECT_EQ(HeaderSize(png), pixels) << what << " at " << scale;
    EXPECT_EQ(Decode(png).size, pixels) << what << " at " << scale;
  }
}

TEST(Images, EachHasItsSizeAtEveryScale) {
  const std::map<int, Size> expected{
      {102, {32, 32}}, {107, {21, 21}}, {108, {21, 21}}, {109, {21, 21}},  {110, {21, 21}},
      {111, {21, 21}}, {112, {21, 21}}, {119, {25, 15}}, {120, {25, 15}},  {126, {21, 21}},
      {127, {21, 21}}, {128, {21, 21}}, {129, {21, 21}}, {133, {240, 23}}, {134, {240, 2}},
  };
  for (const auto& [id, size] : expected) {
    const ImageResource* image = FindImage(id);
    ASSERT_NE(image, nullptr) << id;
    EXPECT_EQ(image->id, id);
    ExpectAllScales(*image, size, std::to_string(id));
  }
}

// The bytes of the file that the build made of a drawing.
std::vector<unsigned char> DrawnFile(const std::string& drawing, int scale) {
  const std::string path = std::string(ORVANE_ART_DIR) + "/" + drawing + "-" + std::to_string(scale) + ".png";
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

void ExpectDrawing(const ImageResource& image, const std::string& drawing) {
  for (int scale = 1; scale <= kImageScales; ++scale) {
    const PngBytes png = image.png[static_cast<std::size_t>(scale - 1)];
    EXPECT_TRUE(std::vector<unsigned char>(png.begin(), png.end()) == DrawnFile(drawing, scale))
        << "is not " << drawing << " at " << scale;
  }
}

TEST(Images, EachIsTheDrawingOfItsName) {
  const std::map<int, std::string> expected{
      {102, "application"},       {107, "mark-move"},          {108, "mark-move-mask"},
      {109, "mark-enlarge"},      {110, "mark-enlarge-mask"},  {111, "mark-reduce"},
      {112, "mark-reduce-mask"},  {119, "mark-resize-column"}, {120, "mark-resize-column-mask"},
      {126, "mark-refused"},      {127, "mark-accepted"},      {128, "mark-accepted-mask"},
      {129, "mark-refused-mask"}, {133, "title-strip"},        {134, "separator-line"},
  };
  for (const auto& [id, drawing] : expected) ExpectDrawing(*FindImage(id), drawing);
}

TEST(Strips, CellsStandInTheirOrder) {
  const std::map<int, std::vector<std::string>> expected{
      {125, {"tick",      "cross",       "question",  "copy",     "paste",         "table-size",
             "show",      "hand",        "magnifier", "fit",      "plot-setup",    "plot-presets",
             "title-bar", "value-strip", "fold",      "question", "page-previous", "page-next",
             "back",      "contents",    "setup",     "presets",  "summary"}},
      {141, {"book-closed", "book-open", "page", "box-minus", "box-plus"}},
  };
  for (const auto& [id, drawings] : expected) {
    const auto cells = FindStrip(id)->cells;
    ASSERT_EQ(cells.size(), drawings.size());
    for (std::size_t i = 0; i < cells.size(); ++i) ExpectDrawing(cells[i], drawings[i]);
  }
}

TEST(Images, UnknownNumbersNameNothing) {
  for (int id : {-1, 0, 1, 101, 103, 113, 118, 121, 124, 130, 132, 135, 140, 142, 1092}) {
    EXPECT_EQ(FindImage(id), nullptr) << id;
    EXPECT_EQ(FindStrip(id), nullptr) << id;
    EXPECT_EQ(FindIcon(id), nullptr) << id;
  }
}

TEST(Images, AStripIsNoImageAndAnImageIsNoStrip) {
  for (int id : {125, 141}) {
    EXPECT_EQ(FindImage(id), nullptr) << id;
    EXPECT_NE(FindStrip(id), nullptr) << id;
  }
  for (int id : {102, 107, 133, 134}) EXPECT_EQ(FindStrip(id), nullptr) << id;
  EXPECT_EQ(FindIcon(107), nullptr);
}

TEST(Strips, HaveTheirCellsAtEveryScale) {
  const std::map<int, std::size_t> expected{{125, 23}, {141, 5}};
  for (const auto& [id, count] : expected) {
    const ImageStrip* strip = FindStrip(id);
    ASSERT_NE(strip, nullptr) << id;
    EXPECT_EQ(strip->id, id);
    EXPECT_EQ(strip->cell, (Size{16, 16}));
    ASSERT_EQ(strip->cells.size(), count) << id;
    for (std::size_t i = 0; i < count; ++i) {
      EXPECT_EQ(strip->cells[i].id, id);
      ExpectAllScales(strip->cells[i], {16, 16}, std::to_string(id) + " cell " + std::to_string(i));
    }
  }
}

// Help is offered by two positions with one meaning; no other two cells look alike.
TEST(Strips, CellsDifferFromEachOther) {
  const auto cells = FindStrip(kBarImages)->cells;
  for (std::size_t a = 0; a < cells.size(); ++a) {
    for (std::size_t b = a + 1; b < cells.size(); ++b) {
      const bool alike = Decode(cells[a].png[0]).pixels == Decode(cells[b].png[0]).pixels;
      EXPECT_EQ(alike, a == 2 && b == 15) << a << " and " << b;
    }
  }
}

TEST(Strips, CellsAreTransparentAroundAMotifThatIsThereAtOneToOne) {
  for (int id : {kBarImages, kContentsImages}) {
    for (const ImageResource& cell : FindStrip(id)->cells) {
      const Picture picture = Decode(cell.png[0]);
      EXPECT_EQ(picture.At(15, 0).alpha, 0);
      EXPECT_EQ(picture.At(0, 0).alpha, 0);
      // Opaque pixels carry the motif: a drawing off the pixel grid would have few of them.
      const auto solid = std::count_if(picture.pixels.begin(), picture.pixels.end(),
                                       [](const Pixel& pixel) { return pixel.alpha > 240; });
      EXPECT_GE(solid, 20) << id << " cell " << (&cell - FindStrip(id)->cells.data());
    }
  }
}

bool IsFolded(const Picture& picture) { return picture.At(7, 5) != picture.At(6, 5); }

// The upright stroke makes the marker of a folded heading a plus.
TEST(Strips, ContentsMarkersAreAMinusAndAPlus) {
  const auto cells = FindStrip(kContentsImages)->cells;
  EXPECT_FALSE(IsFolded(Decode(cells[3].png[0])));
  EXPECT_TRUE(IsFolded(Decode(cells[4].png[0])));
}

TEST(SharedIcons, AreTheSixPairs) {
  const std::vector<std::pair<int, int>> expected{{107, 108}, {119, 120}, {109, 110},
                                                  {111, 112}, {127, 128}, {126, 129}};
  ASSERT_EQ(kSharedIcons.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(kSharedIcons[i].image, expected[i].first);
    EXPECT_EQ(kSharedIcons[i].mask, expected[i].second);
  }
}

TEST(SharedIcons, ImageAndMaskHaveOneOddSizeSoThatTheyCentreOnAPixel) {
  for (const SharedIcon& icon : kSharedIcons) {
    const Size size = FindImage(icon.image)->size;
    EXPECT_EQ(size, FindImage(icon.mask)->size) << icon.image;
    EXPECT_EQ(size.width % 2, 1) << icon.image;
    EXPECT_EQ(size.height % 2, 1) << icon.image;
  }
}

TEST(SharedIcons, MasksAreBlackAndWhiteAndImagesOpaque) {
  for (const SharedIcon& icon : kSharedIcons) {
    for (std::size_t scale = 0; scale < kImageScales; ++scale) {
      std::set<int> seen;
      for (const Pixel& pixel : Decode(FindImage(icon.mask)->png[scale]).pixels) {
        EXPECT_TRUE(pixel == kBlackPixel || pixel == kWhitePixel) << icon.mask;
        seen.insert(pixel.red);
      }
      EXPECT_EQ(seen, (std::set<int>{0, 255})) << icon.mask;
      for (const Pixel& pixel : Decode(FindImage(icon.image)->png[scale]).pixels) {
        EXPECT_EQ(pixel.alpha, 255) << icon.image;
      }
    }
  }
}

// Where the mask is black, what is on the screen is combined with the image, bit by bit: only white
// leaves it as it was.
TEST(SharedIcons, ImagesAreWhiteWhereTheirMaskIsBlack) {
  for (const SharedIcon& icon : kSharedIcons) {
    for (std::size_t scale = 0; scale < kImageScales; ++scale) {
      const Picture image = Decode(FindImage(icon.image)->png[scale]);
      const Picture mask = Decode(FindImage(icon.mask)->png[scale]);
      ASSERT_EQ(image.size, mask.size);
      int inked = 0;
      for (std::size_t i = 0; i < mask.pixels.size(); ++i) {
        if (mask.pixels[i] == kBlackPixel) {
          EXPECT_EQ(image.pixels[i], kWhitePixel) << icon.image;
        }
        if (image.pixels[i] != kWhitePixel) ++inked;
      }
      EXPECT_GT(inked, 40) << icon.image;
    }
  }
}

// Relative luminance by WCAG 2, from 0 for black to 1 for white.
double Luminance(const Pixel& pixel) {
  const auto linear = [](std::uint8_t value) {
    const double c = value / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(pixel.red) + 0.7152 * linear(pixel.green) + 0.0722 * linear(pixel.blue);
}

TEST(TitleStrip, BlackTextReadsWellOnIt) {
  for (const PngBytes& png : FindImage(kTitleStrip)->png) {
    const Picture picture = Decode(png);
    const int scale = picture.size.height / 23;
    for (int y = 0; y < 21 * scale; ++y) {
      for (int x = 0; x < picture.size.width; ++x) {
        const Pixel pixel = picture.At(x, y);
        ASSERT_EQ(pixel.alpha, 255);
        ASSERT_GE((Luminance(pixel) + 0.05) / 0.05, 12.0) << x << ", " << y;
      }
    }
  }
}

TEST(SeparatorLine, StandsOutFromThePanelItCrosses) {
  const Pixel panel{230, 242, 255, 255};
  for (const PngBytes& png : FindImage(kSeparatorLine)->png) {
    const Picture picture = Decode(png);
    EXPECT_LT(Luminance(picture.At(0, 0)), Luminance(panel) * 0.6);
    for (int x = 1; x < picture.size.width; ++x) ASSERT_EQ(picture.At(x, 0), picture.At(0, 0));
  }
}

TEST(ApplicationIcon, HasTheSizesOfAWindowsIcon) {
  const IconResource* icon = FindIcon(102);
  ASSERT_NE(icon, nullptr);
  std::vector<int> sides;
  for (const IconBitmap& bitmap : icon->bitmaps) {
    sides.push_back(bitmap.side);
    EXPECT_EQ(HeaderSize(bitmap.png), (Size{bitmap.side, bitmap.side}));
    const Picture picture = Decode(bitmap.png);
    ASSERT_EQ(picture.size, (Size{bitmap.side, bitmap.side}));
    EXPECT_LT(picture.At(0, 0).alpha, 16);  // the corners are round
    EXPECT_EQ(picture.At(bitmap.side / 2, bitmap.side / 2).alpha, 255);
  }
  EXPECT_EQ(sides, (std::vector<int>{16, 32, 64, 96, 128}));
}

// The artwork is part of every process's memory.
TEST(Images, TogetherTheyStaySmall) {
  std::map<const unsigned char*, std::size_t> files;
  const auto add = [&](const ImageResource& image) {
    for (const PngBytes& png : image.png) files[png.data()] = png.size();
  };
  for (int id = 100; id < 150; ++id) {
    if (const ImageResource* image = FindImage(id)) add(*image);
    if (const ImageStrip* strip = FindStrip(id)) std::for_each(strip->cells.begin(), strip->cells.end(), add);
  }
  std::size_t bytes = 0;
  for (const auto& [data, size] : files) bytes += size;
  EXPECT_EQ(files.size(), 42u * 4);
  EXPECT_LT(bytes, 128u * 1024);
}

}  // namespace
}  // namespace orvane
