// Window procedures and layers that destroy, hide, show and send in the middle of everything. What counts is
// that the device neither breaks nor loops; these run under the sanitizers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/platform/device_test_bed.h"

namespace orvane::device_test {
namespace {

using testing::IsEmpty;

constexpr std::uint32_t kMessage = 0x8001;

// How often a deed that brings about its own moment again is done: a program that never stops is its own
// fault.
constexpr int kTimes = 5;

struct DeviceReentrancy : testing::Test {
  TestBed bed;
  Device& device = *bed.device;
  WindowHandle main = bed.Make("main", Rect::At(0, 26, 240, 268));
  WindowHandle tool = bed.Make("tool", Rect::At(0, 0, 240, 268), main);
  WindowHandle panel = bed.MakeChild("panel", Rect::At(10, 20, 100, 100), tool);

  // Sends everything that can reach the three windows.
  void Exercise() {
    device.SetFocus(panel);
    device.ActivateWindow(panel);
    device.SetTimer(panel, 1, 1);
    device.SetTimer(tool, 1, 1);
    for (const WindowHandle window : {panel, tool, main}) {
      device.Post(window, kMessage);
      device.Invalidate(window);
    }
    device.PenDown({15, 56});
    device.PenMove({16, 57});
    device.PenUp({16, 57});
    device.Wheel({15, 56}, 1, false);
    device.KeyDown('A', {});
    device.Character(u'a');
    device.KeyUp('A', {});
    device.Step(1);
    device.Step(10);
    device.MoveWindow(panel, Rect::At(0, 0, 50, 50));
    device.ShowWindow(panel, false);
    device.ShowWindow(panel, true);
    device.Update(panel);
    device.SetScale(device.Scale() + 1);
    device.RepaintEverything();
    EXPECT_NE(bed.Settle(), -1);
    device.CloseFromOutside();
    device.DestroyWindow(panel);
  }
};

// Every message that a window can get, each as the moment at which a procedure does its worst.
const std::uint32_t kMoments[] = {
    WM_MOVE,        WM_SIZE,       WM_ACTIVATE,   WM_SETFOCUS,      WM_KILLFOCUS, WM_PAINT, WM_CLOSE,
    WM_DESTROY,     WM_SHOWWINDOW, WM_KEYDOWN,    WM_KEYUP,         WM_CHAR,      WM_TIMER, WM_MOUSEMOVE,
    WM_LBUTTONDOWN, WM_LBUTTONUP,  WM_MOUSEWHEEL, WM_DISPLAYCHANGE, kMessage};

struct AtEveryMoment : DeviceReentrancy, testing::WithParamInterface<std::uint32_t> {
  void Do(const std::string& who, const std::function<void(WindowHandle)>& deed) {
    bed.On(who, GetParam(), deed);
    bed.Settle();
    Exercise();
    device.DestroyWindow(main);
    EXPECT_NE(bed.Settle(), -1);
    EXPECT_THAT(device.VisibleWindows(), IsEmpty());
    EXPECT_EQ(device.Focus(), kNoWindow);
    EXPECT_EQ(device.Capture(), kNoWindow);
  }
};

TEST_P(AtEveryMoment, DestroysItself) {
  Do("panel", [this](WindowHandle window) { device.DestroyWindow(window); });
}

TEST_P(AtEveryMoment, DestroysItsParent) {
  Do("panel", [this](WindowHandle) { device.DestroyWindow(tool); });
}

TEST_P(AtEveryMoment, DestroysTheRoot) {
  Do("panel", [this](WindowHandle) { device.DestroyWindow(main); });
}

TEST_P(AtEveryMoment, ParentDestroysItsChild) {
  Do("tool", [this](WindowHandle) { device.DestroyWindow(panel); });
}

TEST_P(AtEveryMoment, HidesAndShowsEverything) {
  Do("panel", [this, left = std::make_shared<int>(kTimes)](WindowHandle window) {
    if (--*left < 0) return;
    device.ShowWindow(tool, false);
    device.ShowWindow(main, false);
    device.ShowWindow(main, true);
    device.ShowWindow(tool, true);
    device.SetFocus(window);
    device.SetCapture(window);
    device.BringToTop(window);
    device.ReleaseCapture();
  });
}

TEST_P(AtEveryMoment, ResizesAndPaintsItself) {
  Do("panel", [this, left = std::make_shared<int>(kTimes)](WindowHandle window) {
    if (--*left < 0) return;
    device.MoveWindow(window, Rect::At(1, 1, 30 + *left, 30));
    device.WindowCanvas(window).FillRect(Rect::At(0, 0, 9, 9), kWhite);
    device.ScrollWindowRect(window, Rect::At(0, 0, 30, 30), 1, 2);
    device.Update(window);
    device.Validate(window);
    device.MoveWindow(window, Rect::At(1, 1, 30, 30));
    device.Validate(window);
  });
}

TEST_P(AtEveryMoment, MakesANewChildAndDestroysIt) {
  Do("panel", [this](WindowHandle window) {
    const WindowHandle child = bed.MakeChild("new child", Rect::At(0, 0, 5, 5), window);
    device.Update(child);
    device.DestroyWindow(child);
  });
}

TEST_P(AtEveryMoment, StepsPresentsAndRepaints) {
  Do("panel", [this, left = std::make_shared<int>(kTimes)](WindowHandle) {
    if (--*left < 0) return;
    device.Step(1000);
    device.PresentNow();
    device.RepaintEverything();
    device.InvalidateScreen();
    device.Quiescent();
    device.VisibleRuns();
  });
}

TEST_P(AtEveryMoment, ChangesTheScale) {
  Do("panel", [this, left = std::make_shared<int>(kTimes)](WindowHandle) {
    if (--*left >= 0) device.SetScale(device.Scale() == 2.0 ? 3.0 : 2.0);
  });
}

TEST_P(AtEveryMoment, ReplacesItsOwnTimersAndAccelerators) {
  Do("panel", [this](WindowHandle window) {
    device.KillTimer(window, 1);
    device.SetTimer(window, 2, 1);
    device.KillTimer(window, 2);
    device.SetAccelerators({{'A', {}, window, 1}});
    device.SetAccelerators({});
  });
}

TEST_P(AtEveryMoment, Quits) {
  Do("panel", [this](WindowHandle) { device.PostQuit(3); });
}

TEST_P(AtEveryMoment, FeedsInput) {
  Do("panel", [this, left = std::make_shared<int>(kTimes)](WindowHandle) {
    if (--*left < 0) return;
    device.KeyDown('B', {});
    device.Character(u'b');
    device.KeyUp('B', {});
    device.PenDown({15, 56});
    device.PenMove({15, 58});
    device.PenUp({15, 58});
  });
}

INSTANTIATE_TEST_SUITE_P(Moments, AtEveryMoment, testing::ValuesIn(kMoments));

TEST_F(DeviceReentrancy, NothingIsMadeInAWindowThatIsBeingDestroyed) {
  WindowHandle made = 1;
  bed.On("tool", WM_DESTROY, [&](WindowHandle window) {
    made = bed.MakeChild("late", Rect::At(0, 0, 9, 9), window);
    device.ShowWindow(window, true);
    device.SetFocus(window);
  });
  device.DestroyWindow(tool);
  EXPECT_EQ(made, kNoWindow);
  EXPECT_EQ(device.Focus(), kNoWindow);
}

TEST_F(DeviceReentrancy, AWindowDestroyedInItsOwnCreationIsNotReturned) {
  bed.On("brief", WM_CREATE, [this](WindowHandle window) { device.DestroyWindow(window); });
  EXPECT_EQ(bed.Make("brief", Rect::At(0, 0, 9, 9), main), kNoWindow);
  bed.On("fatal", WM_CREATE, [this](WindowHandle) { device.DestroyWindow(main); });
  EXPECT_EQ(bed.Make("fatal", Rect::At(0, 0, 9, 9), main), kNoWindow);
  EXPECT_FALSE(device.IsWindow(tool));
}

TEST_F(DeviceReentrancy, AStepWithinAStepDoesNothing) {
  bed.On("tool", kMessage, [this](WindowHandle window) {
    device.Post(window, kMessage + 1);
    EXPECT_EQ(device.Step(50), 50);
    EXPECT_EQ(bed.CountOf(window, kMessage + 1), 0);
  });
  device.Post(tool, kMessage);
  device.Step(0);
  EXPECT_EQ(bed.CountOf(tool, kMessage + 1), 1);
}

TEST_F(DeviceReentrancy, ALayerMayDestroyTheWindowsUnderIt) {
  bed.layers.bar.visible = true;
  bed.layers.bar.bounds = kBarArea;
  bed.layers.bar.onPenDown = [this] { device.DestroyWindow(main); };
  device.PenDown({5, 300});
  device.PenUp({15, 56});
  EXPECT_THAT(device.VisibleWindows(), IsEmpty());
  EXPECT_NE(bed.Settle(), -1);
}

TEST_F(DeviceReentrancy, AnActionMayQueueAnother) {
  int runs = 0;
  std::function<void()> action = [&] {
    if (++runs < 5) device.AtNextStep(action);
  };
  device.AtNextStep(action);
  bed.Settle();
  EXPECT_EQ(runs, 5);
}

}  // namespace
}  // namespace orvane::device_test
