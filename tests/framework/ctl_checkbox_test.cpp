#include "framework/ctl_checkbox.h"

#include "tests/framework/controls_fixture.h"

namespace orvane {
namespace {

using Values = std::vector<std::uint32_t>;

constexpr Point kInside{7, 7};
constexpr Point kOutside{7, 40};

class CheckboxTest : public testing::ControlsTest {
 protected:
  CheckboxTest() : box_(MakeWindow<ctlCheckbox>(shell_, parent_->Handle(), 10, 60, 120, 16)) {
    CreateFontFamily(GetDevice(), box_->Handle(), box_->font, u"Tahoma", 9, false, false);
    parent_->state = [this](testing::Told& told) {
      told.pressed = box_->IsPressed();
      told.checked = box_->checked;
    };
    shell_.Settle();
    shell_.Trace().messages.clear();
  }
  std::unique_ptr<ctlCheckbox> box_;
};

TEST_F(CheckboxTest, StartsUncheckedWithoutCaption) {
  EXPECT_EQ(box_->ClassName(), "ctlCheckbox");
  EXPECT_EQ(GetDevice().WindowRect(box_->Handle()), Rect::At(10, 60, 120, 16));
  EXPECT_TRUE(box_->IsVisible());
  EXPECT_EQ(box_->caption, u"");
  EXPECT_FALSE(box_->checked);
  EXPECT_FALSE(box_->IsPressed());
  EXPECT_EQ(box_->background, Rgb(230, 242, 255));
}

TEST_F(CheckboxTest, ChangesWhenThePenIsLiftedInside) {
  Down(*box_, kInside);
  EXPECT_EQ(Told(), Values{});
  EXPECT_TRUE(box_->IsPressed());
  EXPECT_FALSE(box_->checked);
  Up(*box_, kInside);
  const WindowHandle self = box_->Handle();
  EXPECT_EQ(parent_->told,
            (std::vector<testing::Told>{{0x81AE, self, 0, false, true}, {0x81AF, self, 0, false, true}}));
  EXPECT_TRUE(box_->checked);
  parent_->told.clear();
  Down(*box_, kInside);
  Up(*box_, kInside);
  EXPECT_EQ(parent_->told,
            (std::vector<testing::Told>{{0x81AE, self, 0, false, false}, {0x81B0, self, 0, false, false}}));
  EXPECT_FALSE(box_->checked);
}

TEST_F(CheckboxTest, SlidingOffAndLiftingChangesNothing) {
  Down(*box_, kInside);
  MoveTo(*box_, kOutside);
  Up(*box_, kOutside);
  EXPECT_FALSE(box_->checked);
  EXPECT_EQ(Told(), Values{});
}

TEST_F(CheckboxTest, SlidingOffAndBackRedrawsTwiceAndChanges) {
  Down(*box_, kInside);
  shell_.Settle();
  shell_.Trace().messages.clear();
  MoveTo(*box_, kOutside);
  MoveTo(*box_, kInside);
  EXPECT_EQ(Paints(*box_), 2);
  Up(*box_, kInside);
  EXPECT_TRUE(box_->checked);
}

TEST_F(CheckboxTest, AStrokeThatBeganElsewhereIsNotItsOwn) {
  GetDevice().Send(box_->Handle(), WM_MOUSEMOVE, 0, PackPoint(kInside));
  GetDevice().Send(box_->Handle(), WM_LBUTTONUP, 0, PackPoint(kInside));
  EXPECT_FALSE(box_->checked);
  EXPECT_FALSE(box_->IsPressed());
}

TEST_F(CheckboxTest, SpaceChangesIt) {
  GetDevice().SetFocus(box_->Handle());
  GetDevice().KeyDown(VK_SPACE, {});
  EXPECT_TRUE(box_->checked);
  EXPECT_EQ(Told(), (Values{0x81AE, 0x81AF}));
}

// --- Looks

TEST_F(CheckboxTest, ItsBoxIsRoundedAndFilled) {
  EXPECT_GT(Pixel(*box_, {0, 0}), 0xC0C0C0u);  // hardly touched: the corner is round
  EXPECT_EQ(Pixel(*box_, {7, 0}), 0x000000u);
  EXPECT_EQ(Pixel(*box_, {0, 7}), 0x000000u);
  EXPECT_EQ(Pixel(*box_, {13, 7}), 0x000000u);
  EXPECT_EQ(Pixel(*box_, {7, 13}), 0x000000u);
  EXPECT_EQ(Pixel(*box_, {14, 7}), 0xE6F2FFu);
  EXPECT_EQ(Pixel(*box_, {7, 14}), 0xE6F2FFu);
  EXPECT_EQ(Pixel(*box_, {7, 7}), 0xFFFFFFu);
  EXPECT_EQ(Pixel(*box_, {1, 3}), 0xFFFFFFu);
  Down(*box_, kInside);
  EXPECT_EQ(Pixel(*box_, {7, 7}), 0xBBDCFFu);
}

TEST_F(CheckboxTest, ItsTickIsBlueAndTwoPixelsWide) {
  box_->checked = true;
  box_->Redraw();
  EXPECT_EQ(Pixel(*box_, {7, 10}), 0x0079FFu);
  EXPECT_EQ(Pixel(*box_, {5, 9}), 0x0079FFu);
  EXPECT_EQ(Pixel(*box_, {9, 7}), 0x0079FFu);
  EXPECT_EQ(Pixel(*box_, {3, 3}), 0xFFFFFFu);
  EXPECT_EQ(Pixel(*box_, {7, 5}), 0xFFFFFFu);
  int ink = 0;
  for (int x = 1; x < 13; ++x) ink += Pixel(*box_, {x, 9}) != 0xFFFFFFu ? 1 : 0;
  EXPECT_GE(ink, 4);  // one leg goes down here and the other one up
  EXPECT_LE(ink, 8);
}

TEST_F(CheckboxTest, ItsCaptionStandsBesideTheBox) {
  box_->caption = u"Dynamic";
  box_->Redraw();
  const TextRun run = Run(*box_);
  const int height = box_->font.lineHeight;
  EXPECT_EQ(run.rect.TopLeft(), (Point{18, 7 - height / 2}));
  EXPECT_EQ(run.colour, Rgb(0, 39, 83));
  Down(*box_, kInside);
  EXPECT_EQ(Run(*box_).colour, Rgb(0, 121, 255));
}

}  // namespace
}  // namespace orvane
