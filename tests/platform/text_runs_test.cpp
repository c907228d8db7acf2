#include "platform/text_runs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "platform/graphics.h"
#include "tests/platform/pixel_picture.h"
#include "tests/platform/png_builder.h"

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

// "iiii" at 13 pixels is 12 wide and 16 high.
constexpr TextView kText = u"iiii";
constexpr Rect kCell{10, 10, 22, 26};

class SurfaceRuns : public testing::Test {
 protected:
  SurfaceRuns() : surface_(graphics_->CreateSurface({60, 60}, 1.5, true)) {}

  Canvas& Draw() { return surface_->GetCanvas(); }
  void DrawText(TextView text = kText, Point at = kCell.TopLeft(), Colour colour = kRed) {
    Draw().DrawRun(text, at, Tahoma(), colour, Draw().NextTextLine());
  }
  const Font& Tahoma() { return graphics_->Fonts().GetFont({u"Tahoma", 13}); }
  const std::vector<TextRun>& Runs() const { return surface_->Runs(); }
  std::vector<Rect> Shown() const { return Runs().empty() ? std::vector<Rect>{} : Runs().front().shown; }

  std::unique_ptr<Graphics> graphics_ = MakeGraphics("");
  std::unique_ptr<Surface> surface_;
};

TEST_F(SurfaceRuns, ARunIsKeptAsItWasDrawn) {
  Canvas& c = Draw();
  c.SetOrigin({4, 5});
  c.DrawRun(kText, {6, 5}, graphics_->Fonts().GetFont({u"Tahoma", 13, false, true, true}), kBlue, 77);
  ASSERT_THAT(Runs(), SizeIs(1));
  EXPECT_EQ(Runs()[0].rect, kCell);
  EXPECT_EQ(Runs()[0].text, kText);
  EXPECT_EQ(Runs()[0].font, (FontSpec{u"Tahoma", 13, false, true, true}));
  EXPECT_EQ(Runs()[0].colour, kBlue);
  EXPECT_EQ(Runs()[0].line, 77u);
  EXPECT_THAT(Runs()[0].shown, ElementsAre(kCell));
}

TEST_F(SurfaceRuns, NothingIsKeptWithoutRecording) {
  const auto silent = graphics_->CreateSurface({60, 60}, 1, false);
  silent->GetCanvas().DrawRun(kText, {0, 0}, Tahoma(), kRed, 1);
  DrawText();
  silent->GetCanvas().CopySurface(*silent, {0, 0, 60, 60}, {1, 1});
  EXPECT_THAT(silent->Runs(), IsEmpty());
}

TEST_F(SurfaceRuns, ClipsCutWhatIsShownButNotTheText) {
  Canvas& c = Draw();
  c.PushClip({0, 0, 15, 20});
  c.DrawRun(kText, kCell.TopLeft(), Tahoma(), kRed, 1);
  ASSERT_THAT(Runs(), SizeIs(1));
  EXPECT_EQ(Runs()[0].rect, kCell);
  EXPECT_EQ(Runs()[0].text, kText);
  EXPECT_THAT(Shown(), ElementsAre(Rect{10, 10, 15, 20}));
}

TEST_F(SurfaceRuns, WhatCannotBeSeenIsNotKept) {
  DrawText(kText, {60, 0});
  DrawText(kText, {0, -16});
  DrawText(u"\n\u0001", {5, 5});
  DrawText(u"", {5, 5});
  Canvas& c = Draw();
  c.PushClip({0, 0, 10, 60});
  c.DrawRun(kText, kCell.TopLeft(), Tahoma(), kRed, 1);
  EXPECT_THAT(Runs(), IsEmpty());
}

TEST_F(SurfaceRuns, TheSurfaceCutsRunsToo) {
  DrawText(kText, {54, 50});
  EXPECT_EQ(Runs().at(0).rect, (Rect{54, 50, 66, 66}));
  EXPECT_THAT(Shown(), ElementsAre(Rect{54, 50, 60, 60}));
}

TEST_F(SurfaceRuns, FillsCover) {
  DrawText();
  Draw().FillRect({0, 0, 60, 14}, kWhite);
  EXPECT_THAT(Shown(), ElementsAre(Rect{10, 14, 22, 26}));
  Draw().FillRect({12, 20, 14, 22}, kWhite);
  EXPECT_THAT(Shown(), UnorderedElementsAre(Rect{10, 14, 22, 20}, Rect{10, 20, 12, 22}, Rect{14, 20, 22, 22},
                                            Rect{10, 22, 22, 26}));
  Draw().FillRect({0, 0, 60, 60}, kWhite);
  EXPECT_THAT(Runs(), IsEmpty());
}

TEST_F(SurfaceRuns, AFillCoversOnlyWithinItsClip) {
  DrawText();
  Canvas& c = Draw();
  c.SetOrigin({10, 10});
  c.PushClip({0, 0, 4, 50});
  c.FillRect({-100, -100, 100, 100}, kWhite);
  EXPECT_THAT(Shown(), ElementsAre(Rect{14, 10, 22, 26}));
}

TEST_F(SurfaceRuns, RectanglesCover) {
  DrawText();
  Draw().Rectangle({0, 0, 16, 60}, kRed, kWhite);
  EXPECT_THAT(Shown(), ElementsAre(Rect{16, 10, 22, 26}));
}

TEST_F(SurfaceRuns, FramesLinesAndPolygonsDoNotCover) {
  DrawText();
  Draw().FrameRect({5, 5, 30, 18}, kRed);
  Draw().Line({0, 15}, {50, 15}, kRed);
  Draw().Line({0, 15}, {50, 25}, kRed, 9);
  EXPECT_THAT(Shown(), ElementsAre(kCell));
}

// Round corners of 8 × 8: the radius 4 leaves a cross, and ceil(4 · (1 − 1/√2)) = 2 on the diagonal.
TEST_F(SurfaceRuns, RoundRectsCoverButForTheirCorners) {
  EXPECT_THAT(CoveredByRoundRect({0, 0, 30, 20}, {8, 8}),
              ElementsAre(Rect{0, 4, 30, 16}, Rect{4, 0, 26, 20}, Rect{2, 2, 28, 18}));
  DrawText();
  Draw().RoundRect({6, 6, 26, 30}, {8, 8}, kRed, kWhite);
  EXPECT_THAT(Runs(), IsEmpty());
  DrawText();
  Draw().RoundRect(kCell, {8, 8}, kRed, kWhite);  // the corners of the cell stay
  ASSERT_THAT(Runs(), SizeIs(1));
  for (const Rect& part : Shown()) {
    EXPECT_TRUE(part.Width() <= 4 && part.Height() <= 4) << part.left << ", " << part.top;
  }
}

TEST_F(SurfaceRuns, EllipsesCoverTheirInnerRectangle) {
  // Radii 10 and 5: ceil(2.93) = 3 and ceil(1.46) = 2.
  EXPECT_THAT(CoveredByRoundRect({0, 0, 20, 10}, {20, 10}), ElementsAre(Rect{3, 2, 17, 8}));
  DrawText();
  Draw().Ellipse({-40, -40, 100, 100}, kRed, kWhite);
  EXPECT_THAT(Runs(), IsEmpty());
}

TEST_F(SurfaceRuns, OpaquePicturesCoverAndOthersDoNot) {
  const std::vector<std::uint32_t> opaque(16, 0xFF00FF00);
  std::vector<std::uint32_t> clear = opaque;
  clear[5] = 0xFE00FF00;
  const TestPicture opaquePicture({4, 4}, opaque, false);
  const TestPicture opaqueAlpha({4, 4}, opaque, true);
  const TestPicture clearPicture({4, 4}, clear);
  const auto image = [&](const TestPicture& p) { return graphics_->LoadImage(p.Encoded()); };
  DrawText();
  Draw().DrawImage(*image(clearPicture), {10, 10}, {0, 0, 4, 4});
  Draw().DrawMasked(*image(opaquePicture), *image(opaquePicture), {10, 10});
  EXPECT_THAT(Shown(), ElementsAre(kCell));
  Draw().DrawImage(*image(opaquePicture), {10, 10}, {0, 0, 4, 3});
  EXPECT_THAT(Shown(), ElementsAre(Rect{14, 10, 22, 13}, Rect{10, 13, 22, 26}));
  Draw().DrawImage(*image(opaqueAlpha), {18, 10}, {0, 0, 4, 3});
  EXPECT_THAT(Shown(), ElementsAre(Rect{14, 10, 18, 13}, Rect{10, 13, 22, 26}));
}

TEST_F(SurfaceRuns, CopiesCarryRunsAndCoverOthers) {
  const auto target = graphics_->CreateSurface({60, 60}, 1.5, true);
  target->GetCanvas().DrawRun(u"AA", {0, 30}, Tahoma(), kBlue, 500);  // covered in part: 16 wide
  target->GetCanvas().DrawRun(u"B", {30, 30}, Tahoma(), kBlue, 501);  // covered wholly
  DrawText();
  const std::uint32_t line = Runs()[0].line;
  target->GetCanvas().CopySurface(*surface_, {8, 12, 60, 60}, {8, 30});
  const auto& runs = target->Runs();
  ASSERT_THAT(runs, SizeIs(2));
  EXPECT_EQ(runs[0].text, u"AA");
  EXPECT_THAT(runs[0].shown, ElementsAre(Rect{0, 30, 8, 46}));
  EXPECT_EQ(runs[1].text, kText);
  EXPECT_EQ(runs[1].line, line);
  EXPECT_EQ(runs[1].rect, (Rect{10, 28, 22, 44}));
  EXPECT_THAT(runs[1].shown, ElementsAre(Rect{10, 30, 22, 44}));
  EXPECT_THAT(Shown(), ElementsAre(kCell));  // the source is as it was
}

TEST_F(SurfaceRuns, CopiesAreCutByTheTargetsClip) {
  DrawText();
  const auto target = graphics_->CreateSurface({60, 60}, 1.5, true);
  Canvas& c = target->GetCanvas();
  c.PushClip({0, 0, 60, 5});
  c.CopySurface(*surface_, {0, 0, 60, 60}, {-10, -10});
  ASSERT_THAT(target->Runs(), SizeIs(1));
  EXPECT_EQ(target->Runs()[0].rect, (Rect{0, 0, 12, 16}));
  EXPECT_THAT(target->Runs()[0].shown, ElementsAre(Rect{0, 0, 12, 5}));
}

TEST_F(SurfaceRuns, OnlyWhatWasShownIsCopied) {
  DrawText();
  Draw().FillRect({0, 0, 60, 18}, kWhite);
  const auto target = graphics_->CreateSurface({60, 60}, 1.5, true);
  target->GetCanvas().CopySurface(*surface_, {0, 0, 60, 18}, {0, 0});
  EXPECT_THAT(target->Runs(), IsEmpty());
  target->GetCanvas().CopySurface(*surface_, {0, 0, 60, 60}, {0, 0});
  ASSERT_THAT(target->Runs(), SizeIs(1));
  EXPECT_THAT(target->Runs()[0].shown, ElementsAre(Rect{10, 18, 22, 26}));
}

TEST_F(SurfaceRuns, ASilentSourceCoversWithoutRuns) {
  const auto silent = graphics_->CreateSurface({5, 60}, 1.5, false);
  silent->GetCanvas().DrawRun(kText, {0, 0}, Tahoma(), kRed, 1);
  DrawText();
  Draw().CopySurface(*silent, {0, 0, 5, 60}, {10, 0});
  ASSERT_THAT(Runs(), SizeIs(1));
  EXPECT_THAT(Shown(), ElementsAre(Rect{15, 10, 22, 26}));
}

// Scrolling: the run moves, and the strip that came into view is drawn again; it is one whole run then.
TEST_F(SurfaceRuns, ScrolledAndRedrawnTextIsOneRun) {
  DrawText(kText, {10, 50});  // its lower 6 rows are below the edge
  EXPECT_THAT(Shown(), ElementsAre(Rect{10, 50, 22, 60}));
  Draw().CopySurface(*surface_, {0, 10, 60, 60}, {0, 0});
  // The pixels below the part that moved are as before: rows 50 to 60 show the old place still.
  ASSERT_THAT(Runs(), SizeIs(2));
  EXPECT_EQ(Runs()[1].rect, (Rect{10, 40, 22, 56}));
  EXPECT_THAT(Runs()[1].shown, ElementsAre(Rect{10, 40, 22, 50}));
  Canvas& c = Draw();
  c.PushClip({0, 50, 60, 60});
  c.FillRect({0, 50, 60, 60}, kWhite);
  c.DrawRun(kText, {10, 40}, Tahoma(), kRed, 900);
  ASSERT_THAT(Runs(), SizeIs(1));
  EXPECT_EQ(Runs()[0].line, 900u);
  EXPECT_THAT(Shown(), ElementsAre(Rect{10, 40, 22, 56}));
}

// Two runs of one line, of which only one is drawn again, stay one line.
TEST_F(SurfaceRuns, APartlyRedrawnLineStaysOneLine) {
  Canvas& c = Draw();
  c.DrawRun(u"ii", {10, 10}, Tahoma(), kRed, 5);
  c.DrawRun(u"WW", {16, 10}, Tahoma(), kRed, 5);
  c.FillRect({30, 0, 60, 60}, kWhite);
  c.PushClip({30, 0, 60, 60});
  c.DrawRun(u"ii", {10, 10}, Tahoma(), kRed, 6);
  c.DrawRun(u"WW", {16, 10}, Tahoma(), kRed, 6);
  ASSERT_THAT(Runs(), SizeIs(2));
  EXPECT_EQ(Runs()[0].text, u"ii");
  EXPECT_EQ(Runs()[0].line, 6u);
  EXPECT_EQ(Runs()[1].line, 6u);
  EXPECT_THAT(Runs()[1].shown, ElementsAre(Rect{16, 10, 40, 26}));
}

TEST_F(SurfaceRuns, TextDrawnAgainAndAgainIsKeptOnce) {
  for (int i = 0; i < 50; ++i) DrawText();
  EXPECT_THAT(Runs(), SizeIs(1));
  EXPECT_THAT(Shown(), ElementsAre(kCell));
  DrawText(kText, kCell.TopLeft(), kBlue);  // another colour is another run
  EXPECT_THAT(Runs(), SizeIs(2));
}

TEST_F(SurfaceRuns, RunsKeepTheirOrder) {
  DrawText(u"one", {0, 0});
  DrawText(u"two", {0, 20});
  DrawText(u"three", {0, 40});
  Draw().FillRect({0, 20, 60, 40}, kWhite);
  ASSERT_THAT(Runs(), SizeIs(2));
  EXPECT_EQ(Runs()[0].text, u"one");
  EXPECT_EQ(Runs()[1].text, u"three");
}

}  // namespace
}  // namespace orvane
