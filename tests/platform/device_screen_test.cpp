// From surfaces to the host's frame: stacking, damage, scales, layers; and the text that can be seen.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/platform/device_test_bed.h"

namespace orvane::device_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Rect kMainRect = Rect::At(0, 26, 240, 268);
constexpr Colour kMainColour = Rgb(10, 20, 30);
constexpr Colour kChildColour = Rgb(40, 50, 60);
constexpr std::uint32_t kDesk = 0x404040;

TEST(DeviceScreen, TheFirstStepComposesTheWholeScreen) {
  TestBed bed;
  bed.Make("main", kMainRect);
  EXPECT_FALSE(bed.device->Quiescent());
  bed.Settle();
  EXPECT_THAT(bed.host.changes, ElementsAre(Rect::At(0, 0, 240, 320)));
  EXPECT_EQ(bed.host.Pixel(0, 25), kDesk);
  EXPECT_EQ(bed.host.Pixel(0, 26), PixelOf(kMainColour));
  EXPECT_EQ(bed.host.Pixel(239, 293), PixelOf(kMainColour));
  EXPECT_EQ(bed.host.Pixel(239, 294), kDesk);
}

TEST(DeviceScreen, AStepWithoutChangesTouchesNothing) {
  TestBed bed;
  bed.Make("main", kMainRect);
  bed.Settle();
  bed.host.changes.clear();
  bed.counts.copiedPixels = 0;
  EXPECT_EQ(bed.device->Step(1000), std::nullopt);
  EXPECT_THAT(bed.host.changes, IsEmpty());
  EXPECT_EQ(bed.counts.copiedPixels, 0);
}

TEST(DeviceScreen, OnlyTheDamageIsComposed) {
  TestBed bed;
  const WindowHandle main = bed.Make("main", kMainRect);
  bed.Settle();
  bed.host.changes.clear();
  bed.counts.copiedPixels = 0;
  bed.device->Invalidate(main, Rect::At(10, 20, 30, 40));
  bed.Settle();
  EXPECT_THAT(bed.host.changes, ElementsAre(Rect::At(10, 46, 30, 40)));
  EXPECT_EQ(bed.counts.copiedPixels, 30 * 40);
}

TEST(DeviceScreen, DamageAtSeveralPlacesIsToldOnce) {
  TestBed bed(2.0);
  const WindowHandle main = bed.Make("main", kMainRect);
  const WindowHandle child = bed.MakeChild("child", Rect::At(100, 100, 10, 10), main);
  bed.Settle();
  bed.host.changes.clear();
  bed.counts.copiedPixels = 0;
  bed.device->Invalidate(main, Rect::At(0, 0, 1, 1));
  bed.device->Invalidate(child, Rect::At(9, 9, 1, 1));
  bed.Settle();
  EXPECT_THAT(bed.host.changes, ElementsAre(Rect{0, 52, 220, 272}));
  EXPECT_EQ(bed.counts.copiedPixels, 8);
}

TEST(DeviceScreen, EachPixelIsComposedOnceThoughWindowsOverlap) {
  TestBed bed;
  const WindowHandle main = bed.Make("main", Rect::At(0, 0, 240, 320));
  bed.MakeChild("child", Rect::At(50, 50, 100, 100), main);
  bed.Make("tool", Rect::At(0, 0, 100, 100), main);
  bed.Settle();
  bed.counts.copiedPixels = 0;
  bed.device->InvalidateScreen();
  bed.Settle();
  EXPECT_EQ(bed.counts.copiedPixels, 240 * 320);
}

TEST(DeviceScreen, ChildrenAreClippedToTheirParents) {
  TestBed bed;
  const WindowHandle main = bed.Make("main", Rect::At(20, 40, 100, 100));
  const WindowHandle child = bed.MakeChild("child", Rect::At(-10, 90, 50, 50), main);
  bed.MakeChild("inner", Rect::At(0, 0, 50, 50), child, Rgb(1, 1, 1));
  bed.Settle();
  EXPECT_EQ(bed.host.Pixel(19, 135), kDesk);
  EXPECT_EQ(bed.host.Pixel(20, 135), PixelOf(Rgb(1, 1, 1)));
  EXPECT_EQ(bed.host.Pixel(59, 139), PixelOf(Rgb(1, 1, 1)));
  EXPECT_EQ(bed.host.Pixel(60, 139), PixelOf(kMainColour));
  EXPECT_EQ(bed.host.Pixel(20, 140), kDesk);
}

TEST(DeviceScreen, MovingUncoversAndCovers) {
  TestBed bed;
  const WindowHandle main = bed.Make("main", kMainRect);
  const WindowHandle child = bed.MakeChild("child", Rect::At(0, 0, 10, 10), main);
  bed.Settle();
  bed.device->MoveWindow(child, Rect::At(100, 0, 10, 10));
  bed.Settle();
  EXPECT_EQ(bed.host.Pixel(5, 31), PixelOf(kMainColour));
  EXPECT_EQ(bed.host.Pixel(105, 31), PixelOf(kChildColour));
}

TEST(DeviceScreen, StackingChangesShow) {
  TestBed bed;
  const WindowHandle main = bed.Make("main", kMainRect);
  const WindowHandle one = bed.MakeChild("one", Rect::At(0, 0, 20, 20), main, Rgb(1, 0, 0));
  bed.MakeChild("two", Rect::At(10, 10, 20, 20), main, Rgb(2, 0, 0));
  bed.Settle();
  EXPECT_EQ(bed.host.Pixel(15, 41), PixelOf(Rgb(2, 0, 0)));
  bed.ForgetMessages();
  bed.device->BringToTop(one);
  bed.Settle();
  EXPECT_EQ(bed.host.Pixel(15, 41), PixelOf(Rgb(1, 0, 0)));
  EXPECT_THAT(bed.MessagesOf(WM_PAINT), IsEmpty());
}

// At every scale each device pixel belongs to the logical pixel it is rounded to, without gaps or overlap
// between neighbours, and a full repaint changes nothing.
TEST(DeviceScreen, NoScaleLeavesGaps) {
  for (const double scale : {1.0, 1.1, 1.25, 1.5, 1.75, 2.0, 2.37, 3.0, 16.0}) {
    TestBed bed(scale);
    const WindowHandle main = bed.Make("main", kMainRect);
    bed.MakeChild("left", Rect::At(3, 5, 7, 9), main, Rgb(1, 0, 0));
    bed.MakeChild("right", Rect::At(10, 5, 11, 9), main, Rgb(2, 0, 0));
    bed.Settle();
    const auto edge = [scale](int logical) { return static_cast<int>(std::floor(logical * scale + 0.5)); };
    ASSERT_EQ(bed.host.width, edge(240)) << scale;
    ASSERT_EQ(bed.host.height, edge(320)) << scale;
    EXPECT_EQ(std::count(bed.host.pixels.begin(), bed.host.pixels.end(), 0xABCDEFu), 0) << scale;
    const int y = edge(26 + 5 + 4);
    for (int x = edge(0); x < edge(30); ++x) {
      const std::uint32_t expected = x < edge(3)    ? PixelOf(kMainColour)
                                     : x < edge(10) ? PixelOf(Rgb(1, 0, 0))
                                     : x < edge(21) ? PixelOf(Rgb(2, 0, 0))
                                                    : PixelOf(kMainColour);
      EXPECT_EQ(bed.host.Pixel(x, y), expected) << scale << " at " << x;
    }
    const std::vector<std::uint32_t> before = bed.host.pixels;
    bed.device->RepaintEverything();
    EXPECT_EQ(bed.host.pixels, before) << scale;
  }
}

// Repainting a part and repainting everything give the same picture, wherever the part lies.
TEST(DeviceScreen, PartialRepaintsEqualFullOnesAtBrokenScales) {
  for (const double scale : {1.25, 1.5, 1.9}) {
    TestBed bed(scale);
    const WindowHandle main = bed.Make("main", kMainRect);
    const WindowHandle child = bed.MakeChild("child", Rect::At(7, 11, 60, 60), main);
    Colour colour = Rgb(9, 9, 9);
    bed.On("child", WM_PAINT, [&](WindowHandle window) {
      bed.device->WindowCanvas(window).FillRect(bed.device->InvalidRect(window), colour);
    });
    bed.Settle();
    for (int i = 0; i < 20; ++i) {
      colour = Rgb(100 + i, 0, 0);
      bed.device->Invalidate(child, Rect::At(i, 2 * i, 3, 5));
      bed.Settle();
      const std::vector<std::uint32_t> partial = bed.host.pixels;
      bed.device->InvalidateScreen();
      bed.Settle();
      ASSERT_EQ(bed.host.pixels, partial) << scale << " " << i;
    }
  }
}

TEST(DeviceScreen, AHostThatShowsNothingIsNotWaitedFor) {
  TestBed bed;
  bed.host.shows = false;
  bed.Make("main", kMainRect);
  EXPECT_EQ(bed.Settle(), 1);
  EXPECT_THAT(bed.host.changes, IsEmpty());
  bed.host.shows = true;
  bed.device->InvalidateScreen();
  bed.Settle();
  EXPECT_EQ(bed.host.Pixel(0, 26), PixelOf(kMainColour));
}

TEST(DeviceScreen, PresentNowPaintsAndComposesWithoutHandlingMessages) {
  TestBed bed;
  const WindowHandle main = bed.Make("main", kMainRect);
  bed.device->Post(main, 0x8001);
  bed.device->PresentNow();
  EXPECT_EQ(bed.host.Pixel(0, 26), PixelOf(kMainColour));
  EXPECT_EQ(bed.CountOf(main, 0x8001), 0);
}

TEST(DeviceScreen, RepaintEverythingAsksEveryWindowAndLayerThatShows) {
  TestBed bed;
  const WindowHandle main = bed.Make("main", kMainRect);
  const WindowHandle child = bed.MakeChild("child", Rect::At(0, 0, 10, 10), main);
  bed.layers.title.visible = true;
  bed.layers.title.bounds = kTitleArea;
  bed.Settle();
  bed.ForgetMessages();
  bed.device->RepaintEverything();
  EXPECT_EQ(bed.CountOf(main, WM_PAINT), 1);
  EXPECT_EQ(bed.CountOf(child, WM_PAINT), 1);
  EXPECT_EQ(bed.layers.title.paints, 2);
  EXPECT_TRUE(bed.device->Quiescent());
}

// --- Scale.

TEST(DeviceScreen, AnotherScaleTellsEveryWindowAndRepaints) {
  TestBed bed;
  const WindowHandle main = bed.Make("main", kMainRect);
  const WindowHandle hidden = bed.Make("hidden", Rect::At(0, 0, 9, 9), main, 0);
  bed.Settle();
  bed.ForgetMessages();
  bed.device->SetScale(2.0);
  EXPECT_EQ(bed.device->Scale(), 2.0);
  EXPECT_EQ(bed.CountOf(main, WM_DISPLAYCHANGE), 1);
  EXPECT_EQ(bed.CountOf(hidden, WM_DISPLAYCHANGE), 1);
  bed.Settle();
  EXPECT_EQ(bed.CountOf(main, WM_PAINT), 1);
  EXPECT_EQ(bed.host.width, 480);
  EXPECT_EQ(bed.host.Pixel(479, 587), PixelOf(kMainColour));
  bed.ForgetMessages();
  bed.device->SetScale(2.0);
  EXPECT_THAT(bed.trace.messages, IsEmpty());
}

TEST(DeviceScreen, ScalesAreBounded) {
  TestBed bed(0.1);
  EXPECT_EQ(bed.device->Scale(), 1.0);
  bed.device->SetScale(1000);
  EXPECT_EQ(bed.device->Scale(), 16.0);
  bed.device->SetScale(-3);
  EXPECT_EQ(bed.device->Scale(), 1.0);
  bed.device->SetScale(std::nan(""));
  EXPECT_EQ(bed.device->Scale(), 1.0);
}

TEST(DeviceScreen, SurfacesHaveTheDevicesScale) {
  TestBed bed(2.0);
  EXPECT_EQ(bed.device->CreateSurface({10, 20})->DeviceHeight(), 40);
}

// --- Layers.

TEST(DeviceScreen, LayersStandAboveTheWindowsInTheirOrder) {
  TestBed bed;
  bed.Make("main", kMainRect);
  int shade = 0;
  for (LayerScript* layer : {&bed.layers.title, &bed.layers.bar, &bed.layers.panel, &bed.layers.dialog,
                             &bed.layers.menu, &bed.layers.message}) {
    layer->visible = true;
    layer->bounds = Rect::At(10 * shade, 100, 100 - 10 * shade, 10);  // each shows its first ten columns less
    layer->colour = Rgb(++shade, 0, 0);
  }
  bed.Settle();
  for (int x = 0; x < 60; x += 10) {
    EXPECT_EQ(bed.host.Pixel(x, 105), PixelOf(Rgb(x / 10 + 1, 0, 0)));
  }
  EXPECT_EQ(bed.host.Pixel(99, 105), PixelOf(Rgb(6, 0, 0)));
  EXPECT_EQ(bed.host.Pixel(100, 105), PixelOf(kMainColour));
}

TEST(DeviceScreen, ALayerIsPaintedWhenItChanges) {
  TestBed bed;
  LayerScript& menu = bed.layers.menu;
  menu.visible = true;
  menu.bounds = Rect::At(10, 10, 20, 20);
  bed.Settle();
  EXPECT_EQ(menu.paints, 1);
  bed.device->InvalidateScreen();
  bed.Settle();
  EXPECT_EQ(menu.paints, 1);
  menu.bounds = Rect::At(50, 10, 20, 20);  // noticed without being told
  EXPECT_FALSE(bed.device->Quiescent());
  bed.Settle();
  EXPECT_EQ(bed.host.Pixel(15, 15), kDesk);
  EXPECT_EQ(bed.host.Pixel(55, 15), PixelOf(menu.colour));
  menu.visible = false;
  bed.Settle();
  EXPECT_EQ(bed.host.Pixel(55, 15), kDesk);
  EXPECT_EQ(bed.counts.surfaces, 0);
  EXPECT_TRUE(bed.device->Quiescent());
}

TEST(DeviceScreen, LayersCatchUpInEveryStepAfterMessagesAndBeforePainting) {
  TestBed bed;
  const WindowHandle main = bed.Make("main", kMainRect);
  bed.Settle();
  bed.ForgetMessages();
  std::vector<std::size_t> seen;
  bed.layers.bar.onCatchUp = [&] {
    seen.push_back(bed.trace.messages.size());
    bed.device->Invalidate(main);
    bed.layers.bar.behind = false;
  };
  bed.device->Post(main, 0x8001);
  bed.layers.bar.behind = true;
  EXPECT_FALSE(bed.device->Quiescent());
  bed.device->Step(0);
  EXPECT_THAT(seen, ElementsAre(1u));
  EXPECT_EQ(bed.CountOf(main, WM_PAINT), 1);
  EXPECT_TRUE(bed.device->Quiescent());
}

// --- Text that can be seen.

struct NamedObject : WindowObject {
  explicit NamedObject(std::string unit) : unit_(std::move(unit)) {}
  WindowReport Describe() const override { return {}; }
  std::string UnitName() const override { return unit_; }
  std::string unit_;
};

struct DeviceRuns : testing::Test {
  TestBed bed{1.0, true};
  Device& device = *bed.device;
  WindowHandle main = bed.Make("main", kMainRect);
  void Writes(const std::string& name, std::vector<std::pair<Text, Point>> texts) {
    bed.On(name, WM_PAINT, [this, texts = std::move(texts)](WindowHandle window) {
      Canvas& canvas = device.WindowCanvas(window);
      for (const auto& [text, at] : texts) {
        canvas.DrawRun(text, at, device.Fonts().GetFont({}), kBlack, canvas.NextTextLine());
      }
    });
  }
};

TEST_F(DeviceRuns, AreListedInScreenCoordinatesBottomFirstWithTheirUnits) {
  NamedObject toolObject("wnd_mass");
  NamedObject labelObject("");
  const WindowHandle tool = bed.Make("tool", Rect::At(0, 0, 200, 200), main);
  const WindowHandle label = bed.MakeChild("label", Rect::At(10, 20, 100, 12), tool);
  const WindowHandle bare = bed.MakeChild("bare", Rect::At(10, 40, 100, 12), tool);
  device.SetUserData(tool, &toolObject);
  device.SetUserData(label, &labelObject);
  Writes("tool", {{u"Type", {1, 2}}});
  Writes("label", {{u"ab", {0, 0}}});
  Writes("bare", {{u"c", {0, 0}}});
  bed.layers.title.visible = true;
  bed.layers.title.bounds = kTitleArea;
  bed.layers.title.text = u"Mass";
  bed.Settle();
  const std::vector<ScreenRun> runs = device.VisibleRuns();
  ASSERT_EQ(runs.size(), 4u);
  EXPECT_EQ(runs[0].run.text, u"Type");
  EXPECT_EQ(runs[0].run.rect, Rect::At(1, 28, 24, 12));
  EXPECT_THAT(runs[0].run.shown, ElementsAre(Rect::At(1, 28, 24, 12)));
  EXPECT_EQ(runs[0].window, "wnd_mass");
  EXPECT_EQ(runs[0].handle, tool);
  EXPECT_EQ(runs[1].run.rect, Rect::At(10, 46, 12, 12));
  EXPECT_EQ(runs[1].window, "wnd_mass");  // of the window it lies in
  EXPECT_EQ(runs[1].handle, label);
  EXPECT_EQ(runs[2].window, "bare");
  EXPECT_EQ(runs[2].handle, bare);
  EXPECT_EQ(runs[3].window, "title");
  EXPECT_EQ(runs[3].handle, kNoWindow);
}

TEST_F(DeviceRuns, WhatIsCoveredIsLeftOut) {
  Writes("main", {{u"hidden", {10, 10}}, {u"partly", {10, 30}}, {u"free", {10, 50}}});
  bed.MakeChild("cover", Rect::At(10, 10, 36, 12), main);
  bed.layers.dialog.visible = true;
  bed.layers.dialog.bounds = Rect::At(0, 50, 22, 12);  // over main's rows 24 to 36
  bed.Settle();
  const std::vector<ScreenRun> runs = device.VisibleRuns();
  ASSERT_EQ(runs.size(), 2u);
  EXPECT_EQ(runs[0].run.text, u"partly");
  EXPECT_EQ(runs[0].run.rect, Rect::At(10, 56, 36, 12));
  Rect shown;
  for (const Rect& part : runs[0].run.shown) {
    shown = Unite(shown, part);
    EXPECT_FALSE(Rect::At(0, 50, 22, 12).Contains(part.TopLeft()));
  }
  EXPECT_EQ(shown, Rect::At(10, 56, 36, 12));  // an L: beside and below the dialog
  EXPECT_EQ(runs[1].run.text, u"free");
}

TEST_F(DeviceRuns, LinesOfDifferentWindowsHaveDifferentNumbers) {
  bed.MakeChild("one", Rect::At(0, 0, 50, 12), main);
  bed.MakeChild("two", Rect::At(0, 20, 50, 12), main);
  Writes("one", {{u"a", {0, 0}}, {u"b", {20, 0}}});
  Writes("two", {{u"c", {0, 0}}});
  bed.Settle();
  const std::vector<ScreenRun> runs = device.VisibleRuns();
  ASSERT_EQ(runs.size(), 3u);
  EXPECT_EQ(runs[0].run.line, 1u);
  EXPECT_EQ(runs[1].run.line, 2u);
  EXPECT_EQ(runs[2].run.line, 3u);
}

TEST_F(DeviceRuns, ALinePaintedInTwoPiecesIsOne) {
  Writes("main", {{u"water", {10, 10}}});
  bed.Settle();
  device.Invalidate(main, Rect::At(10, 10, 12, 12));
  bed.Settle();
  const std::vector<ScreenRun> runs = device.VisibleRuns();
  ASSERT_EQ(runs.size(), 1u);
  EXPECT_EQ(runs[0].run.text, u"water");
}

TEST_F(DeviceRuns, HiddenWindowsHaveNone) {
  Writes("main", {{u"water", {10, 10}}});
  bed.Settle();
  device.ShowWindow(main, false);
  EXPECT_THAT(device.VisibleRuns(), IsEmpty());
}

TEST(DeviceRunsOff, NothingIsListedUnlessRecording) {
  TestBed bed;
  bed.Make("main", kMainRect);
  bed.On("main", WM_PAINT, [&](WindowHandle window) {
    bed.device->WindowCanvas(window).DrawRun(u"a", {0, 0}, bed.device->Fonts().GetFont({}), kBlack, 1);
  });
  bed.Settle();
  EXPECT_THAT(bed.device->VisibleRuns(), IsEmpty());
}

}  // namespace
}  // namespace orvane::device_test
