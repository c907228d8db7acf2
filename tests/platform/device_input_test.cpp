// Where pen and wheel go; focus, capture and activation.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/platform/device_test_bed.h"

namespace orvane::device_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t kPosted = 0x8001;

struct DeviceInput : ThreeWindows {};

// --- Pen.

TEST_F(DeviceInput, APenStrokeGoesToTheDeepestWindowInClientCoordinates) {
  device.PenDown({15, 56});
  device.PenMove({17, 60});
  device.PenUp({18, 61});
  EXPECT_THAT(bed.trace.messages, ElementsAre(NotedMessage{panel, WM_LBUTTONDOWN, 0, PackPoint({5, 10})},
                                              NotedMessage{panel, WM_MOUSEMOVE, 0, PackPoint({7, 14})},
                                              NotedMessage{panel, WM_LBUTTONUP, 0, PackPoint({8, 15})}));
}

TEST_F(DeviceInput, EdgesBelongToTheWindowHalfOpen) {
  for (const auto& [point, window] :
       {std::pair{Point{10, 46}, panel}, std::pair{Point{109, 145}, panel}, std::pair{Point{110, 145}, tool},
        std::pair{Point{9, 46}, tool}, std::pair{Point{0, 26}, tool}, std::pair{Point{239, 293}, tool}}) {
    bed.ForgetMessages();
    device.PenDown(point);
    device.PenUp(point);
    EXPECT_EQ(bed.CountOf(window, WM_LBUTTONDOWN), 1) << point.x << "," << point.y;
  }
}

TEST_F(DeviceInput, ThePenHasNoHover) {
  device.PenMove({15, 56});
  device.PenUp({15, 56});
  EXPECT_THAT(bed.trace.messages, IsEmpty());
}

TEST_F(DeviceInput, OutsideEveryWindowNobodyHears) {
  device.PenDown({5, 5});
  device.PenUp({5, 5});
  device.PenDown({-5, 500});
  device.PenUp({-5, 500});
  EXPECT_THAT(bed.trace.messages, IsEmpty());
}

TEST_F(DeviceInput, WithoutCaptureMovesAndLiftGoToTheWindowUnderThePen) {
  device.PenDown({15, 56});
  device.PenMove({200, 200});
  device.PenUp({200, 201});
  EXPECT_THAT(bed.trace.messages, ElementsAre(NotedMessage{panel, WM_LBUTTONDOWN, 0, PackPoint({5, 10})},
                                              NotedMessage{tool, WM_MOUSEMOVE, 0, PackPoint({200, 174})},
                                              NotedMessage{tool, WM_LBUTTONUP, 0, PackPoint({200, 175})}));
}

TEST_F(DeviceInput, CaptureHoldsOutsideTheWindowAndTheScreen) {
  bed.On("panel", WM_LBUTTONDOWN, [this](WindowHandle window) { device.SetCapture(window); });
  device.PenDown({15, 56});
  EXPECT_EQ(device.Capture(), panel);
  bed.ForgetMessages();
  device.PenMove({-100, -200});
  device.PenUp({100000, -100000});
  EXPECT_THAT(bed.trace.messages,
              ElementsAre(NotedMessage{panel, WM_MOUSEMOVE, 0, PackPoint({-110, -246})},
                          NotedMessage{panel, WM_LBUTTONUP, 0, PackPoint({32767, -32768})}));
}

TEST_F(DeviceInput, ReleasedCaptureGivesThePenBack) {
  device.SetCapture(panel);
  device.ReleaseCapture();
  EXPECT_EQ(device.Capture(), kNoWindow);
  device.PenDown({200, 200});
  EXPECT_EQ(bed.CountOf(tool, WM_LBUTTONDOWN), 1);
}

TEST_F(DeviceInput, ExtremePointsAreHarmless) {
  device.SetCapture(panel);
  device.PenDown({INT32_MIN, INT32_MAX});
  EXPECT_THAT(bed.trace.messages,
              ElementsAre(NotedMessage{panel, WM_LBUTTONDOWN, 0, PackPoint({-32768, 32767})}));
}

TEST_F(DeviceInput, ASecondPenDownBeforeTheLiftIsIgnored) {
  device.PenDown({15, 56});
  device.PenDown({200, 200});
  EXPECT_EQ(bed.MessagesOf(WM_LBUTTONDOWN).size(), 1u);
}

TEST_F(DeviceInput, TheRestOfAStrokeDiesWithItsWindow) {
  for (const bool destroy : {false, true}) {
    bed.On("panel", WM_LBUTTONDOWN, [this, destroy](WindowHandle window) {
      if (destroy) {
        device.DestroyWindow(window);
      } else {
        device.ShowWindow(window, false);
      }
    });
    device.ShowWindow(panel, true);
    bed.ForgetMessages();
    device.PenDown({15, 56});
    device.PenMove({16, 56});
    device.PenUp({16, 56});
    EXPECT_EQ(bed.CountOf(tool, WM_MOUSEMOVE), 0);
    EXPECT_EQ(bed.CountOf(tool, WM_LBUTTONUP), 0);
    EXPECT_FALSE(device.IsKeyDown(VK_LBUTTON));
  }
}

TEST_F(DeviceInput, AHiddenOrDestroyedWindowLosesCapture) {
  device.SetCapture(panel);
  device.ShowWindow(tool, false);
  EXPECT_EQ(device.Capture(), kNoWindow);
  device.ShowWindow(tool, true);
  device.SetCapture(panel);
  device.DestroyWindow(panel);
  EXPECT_EQ(device.Capture(), kNoWindow);
}

TEST_F(DeviceInput, InputKeepsItsPlaceBehindPostedMessages) {
  device.Post(tool, kPosted);
  device.PenDown({15, 56});
  device.PenUp({15, 56});
  EXPECT_THAT(bed.trace.messages, IsEmpty());
  device.Step(0);
  ASSERT_EQ(bed.trace.messages.size(), 3u);
  EXPECT_EQ(bed.trace.messages[0].message, kPosted);
  EXPECT_EQ(bed.trace.messages[1].message, WM_LBUTTONDOWN);
  EXPECT_EQ(bed.trace.messages[2].message, WM_LBUTTONUP);
}

// --- Layers.

TEST_F(DeviceInput, ALayerUnderThePenKeepsTheWholeStroke) {
  LayerScript& bar = ShowLayer(bed.layers.bar, kBarArea);
  device.PenDown({10, 300});
  device.PenMove({15, 56});
  device.PenUp({16, 57});
  EXPECT_THAT(bar.told, ElementsAre("down 10,300", "move 15,56", "up 16,57"));
  EXPECT_THAT(bed.trace.messages, IsEmpty());
}

TEST_F(DeviceInput, TheUpperLayerTakesThePen) {
  LayerScript& panelLayer = ShowLayer(bed.layers.panel, kPanelArea);
  LayerScript& dialog = ShowLayer(bed.layers.dialog, Rect::At(0, 200, 240, 50));
  device.PenDown({10, 220});
  device.PenUp({10, 220});
  device.PenDown({10, 260});
  EXPECT_THAT(dialog.told, ElementsAre("down 10,220", "up 10,220"));
  EXPECT_THAT(panelLayer.told, ElementsAre("down 10,260"));
}

TEST_F(DeviceInput, AHiddenLayerTakesNothing) {
  LayerScript& menu = ShowLayer(bed.layers.menu, Rect::At(0, 0, 240, 320), true);
  menu.visible = false;
  device.PenDown({15, 56});
  device.KeyDown('A', {});
  EXPECT_THAT(menu.told, IsEmpty());
  EXPECT_EQ(bed.CountOf(panel, WM_LBUTTONDOWN), 1);
}

TEST_F(DeviceInput, AModalLayerTakesThePenWhereverItIs) {
  LayerScript& menu = ShowLayer(bed.layers.menu, Rect::At(100, 100, 20, 20), true);
  LayerScript& bar = ShowLayer(bed.layers.bar, kBarArea);
  device.PenDown({10, 300});
  device.PenUp({-10, 400});
  device.Wheel({15, 56}, 2, false);
  EXPECT_THAT(menu.told, ElementsAre("down 10,300", "up -10,400", "wheel 2 15,56"));
  EXPECT_THAT(bar.told, IsEmpty());
  EXPECT_THAT(bed.trace.messages, IsEmpty());
}

TEST_F(DeviceInput, AStrokeThatBeganInAWindowEndsThereThoughAModalLayerOpens) {
  LayerScript& message = bed.layers.message;
  bed.On("panel", WM_LBUTTONDOWN, [&](WindowHandle) { ShowLayer(message, Rect::At(0, 0, 240, 320), true); });
  device.PenDown({15, 56});
  device.PenUp({15, 56});
  EXPECT_EQ(bed.CountOf(panel, WM_LBUTTONUP), 1);
  EXPECT_THAT(message.told, IsEmpty());
}

TEST_F(DeviceInput, ALayerUnderThePointerTakesTheWheel) {
  LayerScript& dialog = ShowLayer(bed.layers.dialog, Rect::At(0, 0, 240, 100));
  device.Wheel({15, 56}, -1, false);
  EXPECT_THAT(dialog.told, ElementsAre("wheel -1 15,56"));
}

TEST_F(DeviceInput, ALayerStopsASidewaysWheelWithoutScrollingUpOrDown) {
  LayerScript& dialog = ShowLayer(bed.layers.dialog, Rect::At(0, 0, 240, 100));
  device.Wheel({15, 56}, -1, true);
  EXPECT_THAT(dialog.told, IsEmpty());
  EXPECT_THAT(bed.trace.messages, IsEmpty());
}

// --- Focus and activation.

TEST_F(DeviceInput, FocusTellsBothWindows) {
  device.SetFocus(tool);
  device.SetFocus(panel);
  device.SetFocus(panel);
  device.SetFocus(kNoWindow);
  EXPECT_THAT(
      bed.trace.messages,
      ElementsAre(NotedMessage{tool, WM_SETFOCUS, 0, 0}, NotedMessage{tool, WM_KILLFOCUS, panel, 0},
                  NotedMessage{panel, WM_SETFOCUS, tool, 0}, NotedMessage{panel, WM_KILLFOCUS, 0, 0}));
  EXPECT_EQ(device.Focus(), kNoWindow);
}

TEST_F(DeviceInput, AHiddenWindowLosesTheFocusAndCannotGetIt) {
  device.SetFocus(panel);
  bed.ForgetMessages();
  device.ShowWindow(tool, false);
  EXPECT_EQ(device.Focus(), kNoWindow);
  EXPECT_EQ(bed.CountOf(panel, WM_KILLFOCUS), 1);
  device.SetFocus(panel);
  device.SetCapture(panel);
  device.ActivateWindow(panel);
  EXPECT_EQ(device.Focus(), kNoWindow);
  EXPECT_EQ(device.Capture(), kNoWindow);
  EXPECT_EQ(bed.CountOf(tool, WM_ACTIVATE), 0);
}

TEST_F(DeviceInput, ADestroyedWindowLosesTheFocus) {
  device.SetFocus(panel);
  bed.ForgetMessages();
  device.DestroyWindow(tool);
  EXPECT_EQ(device.Focus(), kNoWindow);
  EXPECT_EQ(bed.CountOf(panel, WM_KILLFOCUS), 1);
}

TEST_F(DeviceInput, TheLosersWishForTheFocusWins) {
  device.SetFocus(panel);
  bed.On("panel", WM_KILLFOCUS, [this](WindowHandle) { device.SetFocus(main); });
  bed.ForgetMessages();
  device.SetFocus(tool);
  EXPECT_EQ(device.Focus(), main);
  EXPECT_EQ(bed.CountOf(main, WM_SETFOCUS), 1);
  // Main took it from the tool, which had been given it already.
  EXPECT_EQ(bed.CountOf(tool, WM_SETFOCUS), 0);
}

TEST_F(DeviceInput, ActivationBringsTheTopLevelWindowForward) {
  const WindowHandle other = bed.Make("other", Rect::At(0, 0, 240, 268), main);
  bed.ForgetMessages();
  device.ActivateWindow(other);
  device.ActivateWindow(panel);
  device.ActivateWindow(tool);
  EXPECT_THAT(bed.trace.messages,
              ElementsAre(NotedMessage{other, WM_ACTIVATE, 1, 0}, NotedMessage{other, WM_ACTIVATE, 0, 0},
                          NotedMessage{tool, WM_ACTIVATE, 1, 0}));
  EXPECT_THAT(device.VisibleWindows(), ElementsAre(main, other, tool, panel));
}

}  // namespace
}  // namespace orvane::device_test
