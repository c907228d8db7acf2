#include "framework/ctl_button.h"

#include "tests/framework/controls_fixture.h"

namespace orvane {
namespace {

using Values = std::vector<std::uint32_t>;
using Keys = std::vector<int>;

constexpr int kWidth = 140;
constexpr int kHeight = 20;
constexpr Point kInside{70, 10};
constexpr Point kOutside{70, 25};

class ButtonTest : public testing::ControlsTest {
 protected:
  ButtonTest() : button_(MakeWindow<ctlButton>(shell_, parent_->Handle(), 8, 135, kWidth, kHeight)) {
    CreateFontFamily(GetDevice(), button_->Handle(), button_->font, u"Tahoma", 9, false, false);
    parent_->state = [this](testing::Told& told) { told.pressed = button_->IsPressed(); };
    shell_.Settle();
    shell_.Trace().messages.clear();
  }
  std::unique_ptr<ctlButton> button_;
};

TEST_F(ButtonTest, StartsAsAVisibleChildWithoutCaption) {
  EXPECT_EQ(button_->ClassName(), "ctlButton");
  EXPECT_EQ(GetDevice().Parent(button_->Handle()), parent_->Handle());
  EXPECT_EQ(GetDevice().WindowRect(button_->Handle()), Rect::At(8, 135, kWidth, kHeight));
  EXPECT_TRUE(button_->IsVisible());
  EXPECT_FALSE(button_->IsTopLevel());
  EXPECT_EQ(button_->caption, u"");
  EXPECT_EQ(button_->background, Rgb(230, 242, 255));
  EXPECT_FALSE(button_->IsPressed());
  EXPECT_FALSE(button_->IsTracking());
}

TEST_F(ButtonTest, ATapIsPressedReleasedAndClicked) {
  Down(*button_, kInside);
  EXPECT_EQ(Told(), (Values{0x8190}));
  EXPECT_TRUE(button_->IsPressed());
  EXPECT_TRUE(button_->IsTracking());
  EXPECT_EQ(GetDevice().Capture(), button_->Handle());
  Up(*button_, kInside);
  EXPECT_EQ(Told(), (Values{0x8190, 0x8191, 0x8192}));
  EXPECT_FALSE(button_->IsPressed());
  EXPECT_FALSE(button_->IsTracking());
  EXPECT_EQ(GetDevice().Capture(), kNoWindow);
}

TEST_F(ButtonTest, TellsWhoItIsAndWhetherItIsPressed) {
  Down(*button_, kInside);
  Up(*button_, kInside);
  const WindowHandle self = button_->Handle();
  EXPECT_EQ(parent_->told, (std::vector<testing::Told>{{0x8190, self, 0, true, false},
                                                       {0x8191, self, 0, false, false},
                                                       {0x8192, self, 0, false, false}}));
}

TEST_F(ButtonTest, SlidingOffAndLiftingIsNoClick) {
  Down(*button_, kInside);
  MoveTo(*button_, kOutside);
  EXPECT_FALSE(button_->IsPressed());
  EXPECT_TRUE(button_->IsTracking());
  Up(*button_, kOutside);
  EXPECT_EQ(Told(), (Values{0x8190, 0x8191}));
}

TEST_F(ButtonTest, SlidingOffAndBackRedrawsTwiceAndClicks) {
  Down(*button_, kInside);
  shell_.Settle();
  shell_.Trace().messages.clear();
  MoveTo(*button_, {kInside.x + 1, kInside.y});  // still inside: nothing to draw
  EXPECT_EQ(Paints(*button_), 0);
  MoveTo(*button_, kOutside);
  MoveTo(*button_, {kOutside.x, kOutside.y + 1});
  EXPECT_EQ(Paints(*button_), 1);
  MoveTo(*button_, kInside);
  EXPECT_EQ(Paints(*button_), 2);
  EXPECT_TRUE(button_->IsPressed());
  Up(*button_, kInside);
  EXPECT_EQ(Told(), (Values{0x8190, 0x8191, 0x8192}));
}

TEST_F(ButtonTest, TheEdgesOfItsClientAreaDecide) {
  for (const auto& [point, inside] : {std::pair{Point{0, 0}, true},
                                      {Point{kWidth - 1, kHeight - 1}, true},
                                      {Point{kWidth, 0}, false},
                                      {Point{0, kHeight}, false},
                                      {Point{-1, 0}, false},
                                      {Point{0, -1}, false}}) {
    parent_->told.clear();
    Down(*button_, kInside);
    Up(*button_, point);
    EXPECT_EQ(Told().size(), inside ? 3u : 2u) << point.x << "," << point.y;
  }
}

TEST_F(ButtonTest, AStrokeThatBeganElsewhereIsNotItsOwn) {
  GetDevice().PenDown(shell_.OnScreen(parent_->Handle(), {20, 20}));
  MoveTo(*button_, kInside);
  Up(*button_, kInside);
  GetDevice().Send(button_->Handle(), WM_MOUSEMOVE, 0, PackPoint(kInside));
  GetDevice().Send(button_->Handle(), WM_LBUTTONUP, 0, PackPoint(kInside));
  EXPECT_EQ(Told(), Values{});
  EXPECT_FALSE(button_->IsPressed());
}

TEST_F(ButtonTest, APenThatGoesDownTakesTheFocus) {
  Down(*button_, kInside);
  EXPECT_EQ(GetDevice().Focus(), button_->Handle());
}

TEST_F(ButtonTest, SpaceAndEnterPressIt) {
  GetDevice().SetFocus(button_->Handle());
  GetDevice().KeyDown(VK_SPACE, {});
  EXPECT_EQ(Told(), (Values{0x8190, 0x8191, 0x8192}));
  GetDevice().KeyDown(VK_RETURN, {});
  EXPECT_EQ(Told(), (Values{0x8190, 0x8191, 0x8192, 0x8190, 0x8191, 0x8192}));
  GetDevice().KeyDown(VK_TAB, {});
  GetDevice().KeyDown(VK_DOWN, {});
  EXPECT_EQ(parent_->keys, (Keys{VK_TAB, VK_DOWN}));
  Down(*button_, kInside);
  parent_->told.clear();
  GetDevice().KeyDown(VK_SPACE, {});
  EXPECT_EQ(Told(), Values{});  // the pen holds it already
}

// --- Looks

TEST_F(ButtonTest, IsARoundedRectangleOnItsBackground) {
  EXPECT_EQ(Pixel(*button_, {0, 0}), 0xE6F2FFu);  // the corner is round
  EXPECT_EQ(Pixel(*button_, {kWidth - 1, kHeight - 1}), 0xE6F2FFu);
  EXPECT_EQ(Pixel(*button_, {kWidth / 2, 0}), 0x000000u);
  EXPECT_EQ(Pixel(*button_, {kWidth / 2, kHeight - 1}), 0x000000u);
  EXPECT_EQ(Pixel(*button_, {0, kHeight / 2}), 0x000000u);
  EXPECT_EQ(Pixel(*button_, {kWidth - 1, kHeight / 2}), 0x000000u);
  EXPECT_EQ(Pixel(*button_, {kWidth / 2, 1}), 0xF0FAFFu);
  Down(*button_, kInside);
  EXPECT_EQ(Pixel(*button_, {kWidth / 2, 1}), 0x00428Au);
  EXPECT_EQ(Pixel(*button_, {kWidth / 2, 0}), 0x000000u);
  EXPECT_EQ(Pixel(*button_, {0, 0}), 0xE6F2FFu);
  MoveTo(*button_, kOutside);
  EXPECT_EQ(Pixel(*button_, {kWidth / 2, 1}), 0xF0FAFFu);
  Up(*button_, kOutside);
  button_->background = Rgb(255, 0, 255);
  button_->Redraw();
  EXPECT_EQ(Pixel(*button_, {0, 0}), 0xFF00FFu);
}

TEST_F(ButtonTest, ItsCaptionStandsInTheMiddle) {
  button_->caption = u"Balance";
  button_->Redraw();
  TextRun run = Run(*button_);
  const Font& font = *button_->font.variants[0].font;
  const int width = font.TextWidth(u"Balance");
  EXPECT_EQ(run.text, u"Balance");
  EXPECT_EQ(run.rect, Rect::At((kWidth - width) / 2, (kHeight - font.Height()) / 2, width, font.Height()));
  EXPECT_EQ(run.colour, Rgb(0, 39, 83));
  EXPECT_EQ(run.font.pixels, 12);
  Down(*button_, kInside);
  EXPECT_EQ(Run(*button_).colour, Rgb(240, 250, 255));
}

}  // namespace
}  // namespace orvane
