// What the application draws for its tools: the title strip and the shared icons.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "resources/images.h"
#include "tests/app/app_bed.h"

namespace orvane::app_test {
namespace {

constexpr Size kPaper{240, 320};
constexpr Colour kPaperColour = Rgb(255, 0, 255);

Colour At(const Surface& surface, int x, int y) {
  const std::uint32_t pixel = surface.DevicePixel(x, y);
  return Rgb(static_cast<int>((pixel >> 16) & 0xFFu), static_cast<int>((pixel >> 8) & 0xFFu),
             static_cast<int>(pixel & 0xFFu));
}

class Drawing : public ::testing::Test {
 protected:
  void SetUp() override {
    bed_.Start();
    CreateFontFamily(bed_.TheDevice(), bed_.App().MainWindow(), family_, u"Tahoma", 9, false, false);
  }

  std::unique_ptr<Surface> Paper() {
    auto paper = bed_.TheDevice().CreateSurface(kPaper);
    paper->GetCanvas().FillRect(Rect::At({0, 0}, kPaper), kPaperColour);
    return paper;
  }

  void Strip(Surface& paper, TextView title, bool clearBelow = false, bool bold = false) {
    bed_.App().DrawTitleStrip(paper.GetCanvas(), family_, title, clearBelow, bold);
  }

  int Width(TextView text, bool bold) const {
    return family_.Variant({bold, false, TextPosition::kNormal}).font->TextWidth(text);
  }

  Bed bed_;
  FontFamily family_;
};

TEST_F(Drawing, TheStripIsItsPictureAtTheTopLeft) {
  const auto paper = Paper();
  Strip(*paper, u"");
  const auto expected = Paper();
  Bitmap picture(bed_.TheDevice());
  picture.Load(kTitleStrip, kNoImage);
  picture.Draw(expected->GetCanvas(), 0, 0);
  for (int y = 0; y < kPaper.height; ++y) {
    for (int x = 0; x < kPaper.width; ++x) {
      ASSERT_EQ(At(*paper, x, y), At(*expected, x, y)) << x << ", " << y;
    }
  }
  EXPECT_NE(At(*paper, 0, 0), kPaperColour);
  EXPECT_NE(At(*paper, 239, 22), kPaperColour);
  EXPECT_EQ(At(*paper, 0, 23), kPaperColour);
}

TEST_F(Drawing, TheTitleStandsInTheMiddleRoundedToTheLeft) {
  int odd = 0;
  int even = 0;
  for (const TextView title :
       {TextView(u"i"), TextView(u"Mass"), TextView(u"Molecular mass"), TextView(u"Equation balancer"),
        TextView(u"Constants"), TextView(u"X"), TextView(u"Quick plot"), TextView(u"ii")}) {
    for (const bool bold : {false, true}) {
      const auto paper = Paper();
      Strip(*paper, title, false, bold);
      ASSERT_EQ(paper->Runs().size(), 1u);
      const TextRun& run = paper->Runs()[0];
      const int width = Width(title, bold);
      EXPECT_EQ(run.rect.Width(), width);
      EXPECT_EQ(run.rect.left, (240 - width) / 2) << ToUtf8(title);
      EXPECT_EQ(run.rect.top, 2);
      EXPECT_EQ(run.text, title);
      ++(width % 2 == 0 ? even : odd);
    }
  }
  EXPECT_GT(odd, 0);
  EXPECT_GT(even, 0);
}

TEST_F(Drawing, ATitleWiderThanTheStripHangsOverBothEnds) {
  const Text title(60, u'W');
  const auto paper = Paper();
  Strip(*paper, title);
  ASSERT_EQ(paper->Runs().size(), 1u);
  EXPECT_EQ(paper->Runs()[0].rect.left, (240 - Width(title, false)) / 2);
  EXPECT_LT(paper->Runs()[0].rect.left, 0);
}

TEST_F(Drawing, TheTitleIsBlackWhateverColourWasSet) {
  bed_.App().Engine().SetTextColour(Rgb(255, 0, 0));
  const auto paper = Paper();
  Strip(*paper, u"Mass");
  EXPECT_EQ(paper->Runs().at(0).colour, kBlack);
}

TEST_F(Drawing, TheTitleIsBoldWhenAskedAndOnlyThat) {
  const auto plain = Paper();
  Strip(*plain, u"Mass", false, false);
  EXPECT_FALSE(plain->Runs().at(0).font.bold);
  const auto bold = Paper();
  Strip(*bold, u"Mass", false, true);
  EXPECT_TRUE(bold->Runs().at(0).font.bold);
  EXPECT_GT(bold->Runs()[0].rect.Width(), plain->Runs()[0].rect.Width());
  bed_.App().Engine().DrawText(bold->GetCanvas(), u"after", 0, 50);
  ASSERT_EQ(bold->Runs().size(), 2u);
  EXPECT_FALSE(bold->Runs()[1].font.bold);
}

TEST_F(Drawing, ATitlesStyleCodesAreHonoured) {
  const auto paper = Paper();
  Strip(*paper, u"H\u0001\u00402");  // a lowered two
  ASSERT_EQ(paper->Runs().size(), 2u);
  EXPECT_EQ(paper->Runs()[1].text, u"2");
}

TEST_F(Drawing, TheAreaBelowIsClearedOnlyWhenAsked) {
  const auto kept = Paper();
  Strip(*kept, u"Mass", false);
  EXPECT_EQ(At(*kept, 0, 23), kPaperColour);
  EXPECT_EQ(At(*kept, 239, 267), kPaperColour);

  const auto cleared = Paper();
  Strip(*cleared, u"Mass", true);
  for (int y = 23; y < kPaper.height; ++y) {
    for (int x = 0; x < kPaper.width; ++x) {
      ASSERT_EQ(At(*cleared, x, y), y < 268 ? Rgb(230, 242, 255) : kPaperColour) << x << ", " << y;
    }
  }
  for (int x = 0; x < kPaper.width; ++x) EXPECT_EQ(At(*cleared, x, 22), At(*kept, x, 22));
}

TEST_F(Drawing, SharedIconsAreCentredOnThePoint) {
  constexpr SharedIcon kIcons[] = {{107, 108}, {119, 120}, {109, 110}, {111, 112}, {127, 128}, {126, 129}};
  for (int icon = 1; icon <= 6; ++icon) {
    const SharedIcon& ids = kIcons[icon - 1];
    Bitmap picture(bed_.TheDevice());
    picture.Load(ids.image, ids.mask);
    ASSERT_TRUE(picture.HasImage());
    ASSERT_TRUE(picture.HasMask());
    const auto expected = Paper();
    picture.DrawMasked(expected->GetCanvas(), 101 - picture.Width() / 2, 67 - picture.Height() / 2);
    const auto paper = Paper();
    bed_.App().DrawSharedIcon(paper->GetCanvas(), 101, 67, icon);
    bool drawn = false;
    for (int y = 0; y < kPaper.height; ++y) {
      for (int x = 0; x < kPaper.width; ++x) {
        ASSERT_EQ(At(*paper, x, y), At(*expected, x, y)) << "icon " << icon << " at " << x << ", " << y;
        drawn = drawn || At(*paper, x, y) != kPaperColour;
      }
    }
    EXPECT_TRUE(drawn) << icon;
  }
}

TEST_F(Drawing, OtherIconNumbersDrawNothing) {
  const auto paper = Paper();
  for (const int icon : {-1, 0, 7, 8, 1000, -2147483647}) {
    bed_.App().DrawSharedIcon(paper->GetCanvas(), 100, 100, icon);
  }
  for (int y = 0; y < kPaper.height; ++y) {
    for (int x = 0; x < kPaper.width; ++x) ASSERT_EQ(At(*paper, x, y), kPaperColour);
  }
}

}  // namespace
}  // namespace orvane::app_test
