#include "framework/ctl_sep.h"

#include "tests/framework/controls_fixture.h"

namespace orvane {
namespace {

class SeparatorTest : public testing::ControlsTest {};

TEST_F(SeparatorTest, IsAVisibleChildThatItsOwnerPlaces) {
  const auto separator = MakeWindow<ctlSep>(shell_, parent_->Handle());
  EXPECT_EQ(separator->ClassName(), "ctlSep");
  EXPECT_EQ(GetDevice().Parent(separator->Handle()), parent_->Handle());
  EXPECT_TRUE(separator->IsVisible());
  separator->Move(0, 100, 240, 2);
  EXPECT_EQ(GetDevice().WindowRect(separator->Handle()), Rect::At(0, 100, 240, 2));
}

TEST_F(SeparatorTest, ShowsThePictureFromItsTopLeft) {
  Bitmap picture(GetDevice());
  picture.CreateBlank(240, 2);
  shell_.SeparatorBitmap().Draw(picture.GetCanvas(), 0, 0);
  const auto separator = MakeWindow<ctlSep>(shell_, parent_->Handle());
  separator->Move(0, 100, 240, 2);
  for (int x = 0; x < 240; x += 13) {
    for (int y = 0; y < 2; ++y) {
      EXPECT_EQ(Pixel(*separator, {x, y}), picture.GetSurface()->DevicePixel(x, y)) << x << "," << y;
    }
  }
  EXPECT_NE(picture.GetSurface()->DevicePixel(120, 0), 0u);  // there is something to see
  EXPECT_TRUE(GetDevice().InvalidRect(separator->Handle()).Empty());
}

}  // namespace
}  // namespace orvane
