#include "framework/bitmap.h"

#include <gtest/gtest.h>

#include "tests/framework/test_shell.h"

namespace orvane {
namespace {

using testing::TestShell;

constexpr Size kArea{40, 40};

class BitmapTest : public ::testing::Test {
 protected:
  // What the drawing makes of an area of one colour.
  template <typename Draw>
  std::unique_ptr<Surface> Drawn(Colour background, const Draw& draw) {
    auto surface = shell_.GetDevice().CreateSurface(kArea);
    surface->GetCanvas().FillRect(Rect::At({0, 0}, kArea), background);
    draw(surface->GetCanvas());
    return surface;
  }

  TestShell shell_;
  Bitmap bitmap_{shell_.GetDevice()};
};

std::uint32_t Outside(Colour colour) {
  return (static_cast<std::uint32_t>(colour.red) << 16) | (static_cast<std::uint32_t>(colour.green) << 8) |
         colour.blue;
}

TEST_F(BitmapTest, ANewOneIsEmpty) {
  EXPECT_FALSE(bitmap_.HasImage());
  EXPECT_FALSE(bitmap_.HasMask());
  EXPECT_EQ(bitmap_.Width(), 0);
  EXPECT_EQ(bitmap_.Height(), 0);
  EXPECT_EQ(kNoImage, -1);
  const auto surface = Drawn(kWhite, [&](Canvas& canvas) {
    bitmap_.Draw(canvas, 0, 0);
    bitmap_.DrawMasked(canvas, 0, 0);
    bitmap_.DrawPart(canvas, 0, 0, 0, 0, 10, 10);
  });
  EXPECT_EQ(surface->DevicePixel(0, 0), 0xFFFFFFu);
}

TEST_F(BitmapTest, LoadsImageMaskAndSize) {
  for (const SharedIcon& icon : kSharedIcons) {
    bitmap_.Load(icon.image, icon.mask);
    EXPECT_TRUE(bitmap_.HasImage());
    EXPECT_TRUE(bitmap_.HasMask());
    EXPECT_EQ((Size{bitmap_.Width(), bitmap_.Height()}), FindImage(icon.image)->size);
  }
  bitmap_.Load(kTitleStrip, kNoImage);
  EXPECT_EQ((Size{bitmap_.Width(), bitmap_.Height()}), (Size{240, 23}));
  EXPECT_FALSE(bitmap_.HasMask());
}

TEST_F(BitmapTest, LoadingNoImageChangesNothing) {
  bitmap_.Load(107, 108);
  const int width = bitmap_.Width();
  bitmap_.Load(-1, 120);
  bitmap_.Load(-1, -1);
  EXPECT_TRUE(bitmap_.HasImage());
  EXPECT_TRUE(bitmap_.HasMask());
  EXPECT_EQ(bitmap_.Width(), width);
  bitmap_.CreateBlank(12, 34);
  bitmap_.Load(-1, 108);
  EXPECT_EQ(bitmap_.Width(), 12);
  EXPECT_FALSE(bitmap_.HasMask());
}

TEST_F(BitmapTest, AnUnknownImageLeavesItEmpty) {
  bitmap_.Load(107, 108);
  bitmap_.Load(9999, kNoImage);
  EXPECT_FALSE(bitmap_.HasImage());
  EXPECT_FALSE(bitmap_.HasMask());
  EXPECT_EQ(bitmap_.Width(), 0);
  bitmap_.Load(107, 9999);
  EXPECT_TRUE(bitmap_.HasImage());
  EXPECT_FALSE(bitmap_.HasMask());
}

TEST_F(BitmapTest, ABlankOneRecordsItsSizeAndHasNoMask) {
  bitmap_.Load(107, 108);
  bitmap_.CreateBlank(30, 20);
  EXPECT_TRUE(bitmap_.HasImage());
  EXPECT_FALSE(bitmap_.HasMask());
  EXPECT_EQ(bitmap_.Width(), 30);
  EXPECT_EQ(bitmap_.Height(), 20);
  EXPECT_EQ(bitmap_.GetSurface(), nullptr);  // memory comes with the first drawing
  bitmap_.GetCanvas().FillRect({0, 0, 30, 20}, Rgb(1, 2, 3));
  ASSERT_NE(bitmap_.GetSurface(), nullptr);
  EXPECT_EQ(bitmap_.GetSurface()->GetSize(), (Size{30, 20}));
}

TEST_F(BitmapTest, DestroyingMakesItEmptyAgain) {
  bitmap_.CreateBlank(30, 20);
  bitmap_.GetCanvas();
  bitmap_.Destroy();
  EXPECT_FALSE(bitmap_.HasImage());
  EXPECT_EQ(bitmap_.Width(), 0);
  EXPECT_EQ(bitmap_.GetSurface(), nullptr);
  bitmap_.Load(107, 108);
  bitmap_.Destroy();
  EXPECT_FALSE(bitmap_.HasImage());
  EXPECT_FALSE(bitmap_.HasMask());
  EXPECT_EQ(bitmap_.Height(), 0);
}

TEST_F(BitmapTest, DrawCopiesTheWholeAndDrawPartAPart) {
  bitmap_.CreateBlank(10, 8);
  bitmap_.GetCanvas().FillRect({0, 0, 10, 8}, Rgb(255, 0, 0));
  bitmap_.GetCanvas().FillRect({4, 3, 6, 5}, Rgb(0, 255, 0));
  const auto whole = Drawn(kWhite, [&](Canvas& canvas) { bitmap_.Draw(canvas, 20, 10); });
  EXPECT_EQ(whole->DevicePixel(20, 10), 0xFF0000u);
  EXPECT_EQ(whole->DevicePixel(29, 17), 0xFF0000u);
  EXPECT_EQ(whole->DevicePixel(24, 13), 0x00FF00u);
  EXPECT_EQ(whole->DevicePixel(19, 10), 0xFFFFFFu);
  EXPECT_EQ(whole->DevicePixel(30, 17), 0xFFFFFFu);
  EXPECT_EQ(whole->DevicePixel(29, 18), 0xFFFFFFu);
  const auto part = Drawn(kWhite, [&](Canvas& canvas) { bitmap_.DrawPart(canvas, 20, 10, 4, 3, 3, 2); });
  EXPECT_EQ(part->DevicePixel(20, 10), 0x00FF00u);
  EXPECT_EQ(part->DevicePixel(21, 11), 0x00FF00u);
  EXPECT_EQ(part->DevicePixel(22, 11), 0xFF0000u);
  EXPECT_EQ(part->DevicePixel(23, 11), 0xFFFFFFu);
  EXPECT_EQ(part->DevicePixel(20, 12), 0xFFFFFFu);
}

TEST_F(BitmapTest, AMaskedImageIsCopiedWhereTheMaskIsWhiteAndAndedWhereItIsBlack) {
  const Colour background = Rgb(0x5A, 0xC3, 0x3C);
  Bitmap mask(shell_.GetDevice());
  for (const SharedIcon& icon : kSharedIcons) {
    SCOPED_TRACE(icon.image);
    bitmap_.Load(icon.image, icon.mask);
    mask.Load(icon.mask, kNoImage);
    const auto image = Drawn(kBlack, [&](Canvas& canvas) { bitmap_.Draw(canvas, 0, 0); });
    const auto amount = Drawn(kBlack, [&](Canvas& canvas) { mask.Draw(canvas, 0, 0); });
    const auto masked = Drawn(background, [&](Canvas& canvas) { bitmap_.DrawMasked(canvas, 0, 0); });
    int copied = 0;
    int anded = 0;
    for (int y = 0; y < bitmap_.Height(); ++y) {
      for (int x = 0; x < bitmap_.Width(); ++x) {
        if (amount->DevicePixel(x, y) == 0xFFFFFF) {
          ++copied;
          EXPECT_EQ(masked->DevicePixel(x, y), image->DevicePixel(x, y)) << x << "," << y;
        } else if (amount->DevicePixel(x, y) == 0) {
          ++anded;
          EXPECT_EQ(masked->DevicePixel(x, y), image->DevicePixel(x, y) & Outside(background))
              << x << "," << y;
        }
      }
    }
    EXPECT_GT(copied, 0);
    EXPECT_GT(anded, 0);
    EXPECT_EQ(masked->DevicePixel(bitmap_.Width(), 0), Outside(background));
  }
}

TEST_F(BitmapTest, WithoutAMaskTheWholeImageIsCopied) {
  bitmap_.Load(kSeparatorLine, kNoImage);
  const auto masked = Drawn(Rgb(9, 9, 9), [&](Canvas& canvas) { bitmap_.DrawMasked(canvas, 0, 5); });
  const auto plain = Drawn(Rgb(9, 9, 9), [&](Canvas& canvas) { bitmap_.Draw(canvas, 0, 5); });
  for (int y = 0; y < kArea.height; ++y) {
    for (int x = 0; x < kArea.width; ++x) ASSERT_EQ(masked->DevicePixel(x, y), plain->DevicePixel(x, y));
  }
  EXPECT_NE(plain->DevicePixel(20, 5), 0x090909u);
}

TEST_F(BitmapTest, ABlankOneFollowsTheScale) {
  bitmap_.CreateBlank(10, 10);
  bitmap_.GetCanvas().FillRect({0, 0, 10, 10}, kWhite);
  shell_.GetDevice().SetScale(2.0);
  EXPECT_EQ(bitmap_.GetCanvas().Scale(), 2.0);
  EXPECT_EQ(bitmap_.GetSurface()->DeviceWidth(), 20);
  EXPECT_EQ(bitmap_.GetSurface()->DevicePixel(5, 5), 0u);  // new and black
  EXPECT_EQ(bitmap_.Width(), 10);
}

}  // namespace
}  // namespace orvane
