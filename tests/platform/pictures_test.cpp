#include <gtest/gtest.h>

#include "platform/canvas.h"
#include "platform/pixel_ops.h"
#include "platform/png_image.h"
#include "tests/platform/pixel_picture.h"
#include "tests/platform/png_builder.h"

namespace orvane {
namespace {

constexpr std::uint32_t kR = 0xFFFF0000;
constexpr std::uint32_t kG = 0xFF00FF00;
constexpr std::uint32_t kB = 0xFF0000FF;
constexpr std::uint32_t kW = 0xFFFFFFFF;
constexpr std::uint32_t kNone = 0;

class Pictures : public testing::Test {
 protected:
  // The colour of the first pixel after the picture was drawn over the background.
  std::uint32_t Blended(std::uint32_t pixel, Colour background) {
    const TestPicture picture({1, 1}, {pixel});
    const auto surface = graphics_->CreateSurface({1, 1}, 1, false);
    surface->GetCanvas().FillRect({0, 0, 1, 1}, background);
    surface->GetCanvas().DrawImage(*graphics_->LoadImage(picture.Encoded()), {0, 0}, {0, 0, 1, 1});
    return surface->DevicePixel(0, 0);
  }
  std::uint32_t Masked(std::uint32_t pixel, std::uint32_t mask, Colour background) {
    const TestPicture picture({1, 1}, {pixel});
    const TestPicture maskPicture({1, 1}, {mask});
    const auto surface = graphics_->CreateSurface({1, 1}, 1, false);
    surface->GetCanvas().FillRect({0, 0, 1, 1}, background);
    surface->GetCanvas().DrawMasked(*graphics_->LoadImage(picture.Encoded()),
                                    *graphics_->LoadImage(maskPicture.Encoded()), {0, 0});
    return surface->DevicePixel(0, 0);
  }

  std::unique_ptr<Graphics> graphics_ = MakeGraphics("");
  TestPicture picture_{{3, 2}, {kR, kG, kB, kW, kNone, kR}};
};

TEST_F(Pictures, AreDrawnAtTheirPlace) {
  const auto image = graphics_->LoadImage(picture_.Encoded());
  EXPECT_EQ(image->GetSize(), (Size{3, 2}));
  for (const int scale : {1, 2, 3, 4, 1, 7}) {
    SCOPED_TRACE(scale);
    const auto surface = graphics_->CreateSurface({5, 4}, scale, false);
    surface->GetCanvas().DrawImage(*image, {1, 1}, {0, 0, 3, 2});
    if (scale <= 4) {
      EXPECT_EQ(Picture(*surface), Enlarged({".....", ".rgb.", ".w.r.", "....."}, scale));
    } else {
      const auto middle = [&](int x, int y) {
        return Letter(surface->DevicePixel(x * scale + scale / 2, y * scale + scale / 2));
      };
      EXPECT_EQ(middle(1, 1), 'r');
      EXPECT_EQ(middle(2, 1), 'g');
      EXPECT_EQ(middle(3, 1), 'b');
      EXPECT_EQ(middle(1, 2), 'w');
      EXPECT_EQ(middle(0, 1), '.');
      EXPECT_EQ(middle(4, 2), '.');
    }
  }
}

// Two fifths of the way from the background to the picture; what is transparent stays so.
TEST_F(Pictures, FaintOnesAreWeakened) {
  const auto image = graphics_->LoadImage(picture_.Encoded());
  const auto surface = graphics_->CreateSurface({3, 2}, 1, false);
  surface->GetCanvas().FillRect({0, 0, 3, 2}, kWhite);
  surface->GetCanvas().DrawFaintImage(*image, {0, 0}, {0, 0, 3, 2});
  EXPECT_EQ(surface->DevicePixel(0, 0), 0xFF9999u);  // 255 × 3 / 5 = 153
  EXPECT_EQ(surface->DevicePixel(1, 0), 0x99FF99u);
  EXPECT_EQ(surface->DevicePixel(0, 1), 0xFFFFFFu);
  EXPECT_EQ(surface->DevicePixel(1, 1), 0xFFFFFFu);
}

TEST_F(Pictures, PartsAreCutFromTheSource) {
  const auto image = graphics_->LoadImage(picture_.Encoded());
  ExpectAtEveryScale({4, 3}, {"....", ".gb.", "..r."}, [&](Canvas& c) {
    c.DrawImage(*image, {1, 1}, {1, 0, 3, 2});
  });
  // A part that reaches out of the picture keeps its place.
  ExpectAtEveryScale({5, 3}, {".....", ".rgb.", ".w.r."}, [&](Canvas& c) {
    c.DrawImage(*image, {0, 0}, {-1, -1, 9, 9});
  });
  ExpectAtEveryScale({2, 1}, {".."}, [&](Canvas& c) {
    c.DrawImage(*image, {0, 0}, {3, 0, 5, 2});
    c.DrawImage(*image, {0, 0}, {2, 1, 1, 0});
  });
}

TEST_F(Pictures, AreClippedAndMovedWithTheOrigin) {
  const auto image = graphics_->LoadImage(picture_.Encoded());
  ExpectAtEveryScale({4, 3}, {"....", "..gb", "...."}, [&](Canvas& c) {
    c.SetOrigin({1, 1});
    c.PushClip({1, -5, 9, 1});
    c.DrawImage(*image, {0, 0}, {0, 0, 3, 2});
  });
  ExpectAtEveryScale({2, 1}, {".r"}, [&](Canvas& c) { c.DrawImage(*image, {-1, -1}, {0, 0, 3, 2}); });
}

// Half of 255 at alpha 128 is 128; rounding may differ by one on the way.
TEST_F(Pictures, BlendByTheirAlpha) {
  EXPECT_EQ(Blended(0xFF123456, kWhite), 0x123456u);
  EXPECT_EQ(Blended(0x00123456, Rgb(7, 8, 9)), 0x070809u);
  EXPECT_EQ(Blended(0x80FF0000, kBlack), 0x800000u);
  EXPECT_EQ(Blended(0x80FF0000, kWhite), 0xFF7F7Fu);
  EXPECT_EQ(Blended(0x40000000, Rgb(200, 100, 40)), 0x964B1Eu);  // × 191/255: 149.8, 74.9, 29.96
}

// Two fifths: 255 × 2/5 = 102 of the picture and 153 of what was there.
TEST_F(Pictures, FaintOnesHaveTwoFifthsOfTheirStrength) {
  const auto faint = [&](std::uint32_t pixel, Colour background) {
    const TestPicture picture({1, 1}, {pixel});
    const auto surface = graphics_->CreateSurface({1, 1}, 1, true);
    Canvas& c = surface->GetCanvas();
    c.FillRect({0, 0, 1, 1}, background);
    c.DrawRun(u"i", {0, -5}, graphics_->Fonts().GetFont({u"Tahoma", 9}), background, 1);
    c.DrawFaintImage(*graphics_->LoadImage(picture.Encoded()), {0, 0}, {0, 0, 1, 1});
    EXPECT_EQ(surface->Runs().size(), 1u);  // what is behind can be seen still
    return surface->DevicePixel(0, 0);
  };
  EXPECT_EQ(faint(kW, kBlack), 0x666666u);
  EXPECT_EQ(faint(kR, kWhite), 0xFF9999u);
  EXPECT_EQ(faint(kNone, Rgb(1, 2, 3)), 0x010203u);
}

TEST_F(Pictures, FractionalScalesUseTheNextLargerData) {
  // Only the data for 2 is blue; at 1.25 it is the nearest larger one.
  const TestPicture red({4, 4}, std::vector<std::uint32_t>(16, kR));
  const TestPicture blue({4, 4}, std::vector<std::uint32_t>(16, kB));
  EncodedImage encoded = red.Encoded();
  encoded.png[1] = blue.Encoded().png[1];
  const auto image = graphics_->LoadImage(encoded);
  const auto drawn = [&](double scale) {
    const auto surface = graphics_->CreateSurface({4, 4}, scale, false);
    surface->GetCanvas().DrawImage(*image, {0, 0}, {0, 0, 4, 4});
    return Picture(*surface);
  };
  EXPECT_EQ(drawn(1), Rows(4, "rrrr"));
  EXPECT_EQ(drawn(1.25), Rows(5, "bbbbb"));
  EXPECT_EQ(drawn(2), Rows(8, "bbbbbbbb"));
  EXPECT_EQ(drawn(2.25), Rows(9, "rrrrrrrrr"));
  EXPECT_EQ(drawn(6), Rows(24, std::string(24, 'r')));
}

TEST_F(Pictures, MissingDataIsTakenFromAnotherScale) {
  EncodedImage encoded = picture_.Encoded();
  encoded.png[0] = {};
  encoded.png[2] = {};
  encoded.png[3] = {};
  const auto image = graphics_->LoadImage(encoded);
  const TestPicture plain({2, 2}, std::vector<std::uint32_t>(4, kG));
  EncodedImage small = plain.Encoded();
  small.png[1] = small.png[2] = small.png[3] = {};
  const auto smallImage = graphics_->LoadImage(small);
  const auto surface = graphics_->CreateSurface({4, 2}, 3, false);
  surface->GetCanvas().DrawImage(*smallImage, {0, 0}, {0, 0, 2, 2});
  EXPECT_EQ(Picture(*surface), Rows(6, "gggggg......"));
  surface->GetCanvas().DrawImage(*image, {0, 0}, {0, 0, 3, 2});
  EXPECT_GT(surface->DevicePixel(1, 1) >> 16, 0xE0u);  // red but for the filter's reach
}

TEST_F(Pictures, BrokenDataDrawsNothing) {
  Bytes cut = MakePng(2, {kR, kR});
  cut.resize(cut.size() / 2);
  const Bytes noise{'n', 'o', 'n', 'e'};
  for (const Bytes& data : {cut, noise, Bytes{}}) {
    EncodedImage encoded;
    encoded.size = {2, 1};
    encoded.png.fill(data);
    const auto image = graphics_->LoadImage(encoded);
    ExpectAtEveryScale({2, 1}, {".."}, [&](Canvas& c) {
      c.DrawImage(*image, {0, 0}, {0, 0, 2, 1});
      c.DrawMasked(*image, *image, {0, 0});
    });
  }
  EncodedImage sizeless = picture_.Encoded();
  for (const Size size : {Size{0, 2}, Size{3, -2}, Size{2147483647, 2147483647}}) {
    sizeless.size = size;
    const auto image = graphics_->LoadImage(sizeless);
    ExpectAtEveryScale({2, 1}, {".."}, [&](Canvas& c) { c.DrawImage(*image, {0, 0}, {0, 0, 2, 2}); });
  }
}

TEST_F(Pictures, TheMaskChoosesBetweenCopyAndAnd) {
  EXPECT_EQ(Masked(0xFF123456, kW, kRed), 0x123456u);                  // white: the image
  EXPECT_EQ(Masked(0xFFFFFFFF, 0xFF000000, Rgb(1, 2, 3)), 0x010203u);  // black over white: as it was
  EXPECT_EQ(Masked(0xFF0FF0AA, 0xFF000000, Rgb(0x3C, 0x3C, 0xFF)), 0x0C30AAu);
}

// Between the two each channel goes from the AND (black) to the image (white) in proportion: with the AND
// 0x00 and the image 0xF0, a grey of 51 (one fifth) gives 48.
TEST_F(Pictures, AGreyMaskMixesInProportion) {
  EXPECT_EQ(Masked(0xFFF0F0F0, 0xFF333333, Rgb(0x0F, 0x0F, 0x0F)), 0x303030u);
  // Each channel follows its own: red as in the image, green as before, blue between.
  EXPECT_EQ(Masked(0xFFF0F0F0, 0xFFFF0033, Rgb(0x0F, 0x0F, 0x0F)), 0xF00030u);
}

TEST_F(Pictures, TransparentPartsOfAMaskedImageShowWhatWasThere) {
  EXPECT_EQ(Masked(0x00FFFFFF, kW, Rgb(9, 8, 7)), 0x090807u);
  EXPECT_EQ(Masked(0x33FF0000, kW, kBlack), 0x330000u);
}

TEST_F(Pictures, MasksWorkAtEveryScaleAndAreClipped) {
  const TestPicture picture({2, 2}, {kR, kW, kW, kB});
  const TestPicture mask({2, 2}, {kW, 0xFF000000, 0xFF000000, kW}, false);
  const auto image = graphics_->LoadImage(picture.Encoded());
  const auto maskImage = graphics_->LoadImage(mask.Encoded());
  ExpectAtEveryScale({4, 4}, {"gggg", "grgg", "ggbg", "gggg"}, [&](Canvas& c) {
    c.FillRect({0, 0, 4, 4}, kGreen);
    c.DrawMasked(*image, *maskImage, {1, 1});
  });
  ExpectAtEveryScale({4, 4}, {"gggg", "grgg", "gggg", "gggg"}, [&](Canvas& c) {
    c.FillRect({0, 0, 4, 4}, kGreen);
    c.PushClip({0, 0, 4, 2});
    c.DrawMasked(*image, *maskImage, {1, 1});
  });
}

TEST_F(Pictures, ASmallerMaskLimitsTheImage) {
  const TestPicture mask({1, 1}, {kW});
  const auto image = graphics_->LoadImage(picture_.Encoded());
  const auto maskImage = graphics_->LoadImage(mask.Encoded());
  ExpectAtEveryScale({4, 1}, {"r..."}, [&](Canvas& c) { c.DrawMasked(*image, *maskImage, {0, 0}); });
}

TEST(Png, DecodesToPremultipliedPixelsAndBack) {
  const std::vector<std::uint32_t> plain{0xFF204060u, 0x80FF0040u, 0x00FFFFFFu, 0x80008000u};
  const std::optional<PixelBuffer> picture = DecodePng(MakePng(2, plain));
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->width, 2);
  EXPECT_EQ(picture->height, 2);
  // 0x80 of 255 is 128 ÷ 255: FF becomes 80, 40 and 80 become 20 and 40.
  EXPECT_EQ(picture->pixels, (std::vector<std::uint32_t>{0xFF204060u, 0x80800020u, 0, 0x80004000u}));
  EXPECT_EQ(Unpremultiplied(picture->pixels[0]), 0xFF204060u);
  EXPECT_EQ(Unpremultiplied(picture->pixels[1]), 0x80FF0040u);
  EXPECT_EQ(Unpremultiplied(picture->pixels[2]), 0u);
}

TEST(Png, WithoutAlphaIsOpaque) {
  const std::optional<PixelBuffer> picture = DecodePng(MakePng(1, {0xFF010203u}, false));
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->pixels, (std::vector<std::uint32_t>{0xFF010203u}));
}

TEST(Png, DamagedDataGivesNothing) {
  Bytes png = MakePng(2, {0xFF204060u, 0xFF204060u});
  png.resize(png.size() / 2);
  EXPECT_FALSE(DecodePng(png));
  EXPECT_FALSE(DecodePng({}));
}

}  // namespace
}  // namespace orvane
