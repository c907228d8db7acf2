// The queue, timers, quitting, and what the default procedure does.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/platform/device_test_bed.h"

namespace orvane::device_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Rect kMainRect = Rect::At(0, 26, 240, 268);
constexpr std::uint32_t kFirst = 0x8001;
constexpr std::uint32_t kSecond = 0x8002;

struct DeviceMessages : testing::Test {
  TestBed bed;
  Device& device = *bed.device;
  WindowHandle main = bed.Make("main", kMainRect);
  void SetUp() override {
    bed.Settle();
    bed.ForgetMessages();
  }
};

TEST_F(DeviceMessages, SendReturnsTheProceduresResultAtOnce) {
  bed.SetHandler("main", [](WindowHandle, std::uint32_t, WParam w, LParam l) -> std::optional<Result> {
    return static_cast<Result>(w) + l;
  });
  EXPECT_EQ(device.Send(main, kFirst, 40, 2), 42);
  EXPECT_THAT(bed.trace.messages, ElementsAre(NotedMessage{main, kFirst, 40, 2}));
}

TEST_F(DeviceMessages, PostedMessagesArriveInOrderAtTheNextStep) {
  device.Post(main, kFirst, 1, -2);
  device.Post(main, kSecond);
  EXPECT_THAT(bed.trace.messages, IsEmpty());
  EXPECT_FALSE(device.Quiescent());
  device.Step(0);
  EXPECT_THAT(bed.trace.messages,
              ElementsAre(NotedMessage{main, kFirst, 1, -2}, NotedMessage{main, kSecond, 0, 0}));
  EXPECT_TRUE(device.Quiescent());
}

TEST_F(DeviceMessages, PaintingComesAfterAllThatIsQueued) {
  device.Invalidate(main);
  device.Post(main, kFirst);
  device.Step(0);
  ASSERT_EQ(bed.trace.messages.size(), 2u);
  EXPECT_EQ(bed.trace.messages[0].message, kFirst);
  EXPECT_EQ(bed.trace.messages[1].message, WM_PAINT);
}

TEST_F(DeviceMessages, AMessageThatPostsItselfForeverDoesNotHoldTheStep) {
  bed.On("main", kFirst, [this](WindowHandle window) { device.Post(window, kFirst); });
  device.Post(main, kFirst);
  EXPECT_EQ(device.Step(7), 7);  // wants another step at once
  EXPECT_FALSE(device.Quiescent());
  EXPECT_GT(bed.CountOf(main, kFirst), 1);
}

TEST_F(DeviceMessages, PostingWithoutEndKeepsMemoryBounded) {
  bed.On("main", kFirst, [this](WindowHandle window) {
    for (int i = 0; i < 100; ++i) device.Post(window, kFirst);
  });
  device.Post(main, kFirst);
  for (int i = 0; i < 5; ++i) device.Step(0);
  bed.SetHandler("main", nullptr);
  bed.On("main", kSecond, [](WindowHandle) {});
  bed.ForgetMessages();
  EXPECT_NE(bed.Settle(), -1);
  EXPECT_LE(bed.CountOf(main, kFirst), 10000);
}

TEST_F(DeviceMessages, MessagesOfADestroyedWindowAreForgotten) {
  device.Post(main, kFirst);
  device.SetTimer(main, 1, 10);
  device.DestroyWindow(main);
  bed.ForgetMessages();
  EXPECT_EQ(device.Step(0), std::nullopt);
  device.Step(100);
  EXPECT_THAT(bed.trace.messages, IsEmpty());
}

TEST_F(DeviceMessages, AnActionRunsAtTheNextStepInItsTurn) {
  std::vector<int> order;
  bed.On("main", kFirst, [&](WindowHandle) { order.push_back(1); });
  device.Post(main, kFirst);
  device.AtNextStep([&] { order.push_back(2); });
  device.AtNextStep(nullptr);
  EXPECT_FALSE(device.Quiescent());
  device.Step(0);
  EXPECT_THAT(order, ElementsAre(1, 2));
}

// --- Timers.

TEST_F(DeviceMessages, ATimerFiresEveryPeriodCountedFromTheStepAfterItWasSet) {
  device.SetTimer(main, 3, 500);
  EXPECT_EQ(device.Step(10000), 10500);
  EXPECT_EQ(device.Step(10499), 10500);
  EXPECT_EQ(bed.CountOf(main, WM_TIMER), 0);
  EXPECT_EQ(device.Step(10500), 11000);
  EXPECT_THAT(bed.trace.messages, ElementsAre(NotedMessage{main, WM_TIMER, 3, 0}));
  device.Step(11000);
  EXPECT_EQ(bed.CountOf(main, WM_TIMER), 2);
}

TEST_F(DeviceMessages, ATimerWakesNobodyInBetween) {
  device.SetTimer(main, 3, 500);
  device.Step(0);
  EXPECT_TRUE(device.Quiescent());
  EXPECT_EQ(device.Step(1), 500);
}

TEST_F(DeviceMessages, ALateTimerFiresOnce) {
  device.SetTimer(main, 3, 500);
  device.Step(0);
  EXPECT_EQ(device.Step(5250), 5750);
  EXPECT_EQ(bed.CountOf(main, WM_TIMER), 1);
}

TEST_F(DeviceMessages, ASlightlyLateTimerKeepsItsBeat) {
  device.SetTimer(main, 3, 500);
  device.Step(0);
  EXPECT_EQ(device.Step(520), 1000);
}

TEST_F(DeviceMessages, SettingATimerAgainRestartsIt) {
  device.SetTimer(main, 3, 500);
  device.Step(0);
  device.SetTimer(main, 3, 200);
  EXPECT_EQ(device.Step(400), 600);
  EXPECT_EQ(bed.CountOf(main, WM_TIMER), 0);
}

TEST_F(DeviceMessages, AKilledTimerIsSilent) {
  device.SetTimer(main, 3, 500);
  device.SetTimer(main, 4, 500);
  device.Step(0);
  device.KillTimer(main, 3);
  device.Step(500);
  EXPECT_THAT(bed.trace.messages, ElementsAre(NotedMessage{main, WM_TIMER, 4, 0}));
}

TEST_F(DeviceMessages, ATimerKilledByAnotherThatIsDueDoesNotFire) {
  device.SetTimer(main, 3, 500);
  device.SetTimer(main, 4, 500);
  device.Step(0);
  bed.On("main", WM_TIMER, [this](WindowHandle window) { device.KillTimer(window, 4); });
  device.Step(500);
  EXPECT_EQ(bed.CountOf(main, WM_TIMER), 1);
}

TEST_F(DeviceMessages, ATimerOfNoTimeDoesNotHoldTheStep) {
  bed.On("main", WM_TIMER, [this](WindowHandle window) { device.SetTimer(window, 1, 0); });
  device.SetTimer(main, 1, -5);
  EXPECT_EQ(device.Step(0), 1);
  EXPECT_EQ(device.Step(1), 2);
  EXPECT_EQ(bed.CountOf(main, WM_TIMER), 1);
}

// --- Quitting.

TEST_F(DeviceMessages, TheQuitCodeIsSetWhenTheQueueReachesIt) {
  device.Post(main, kFirst);
  device.PostQuit(2);
  device.Post(main, kSecond);
  EXPECT_EQ(device.QuitCode(), std::nullopt);
  device.Step(0);
  EXPECT_EQ(device.QuitCode(), 2);
  EXPECT_EQ(bed.CountOf(main, kFirst), 1);
  EXPECT_EQ(bed.CountOf(main, kSecond), 0);
}

TEST_F(DeviceMessages, AfterQuittingWindowsHearNothingMore) {
  device.SetFocus(main);
  device.SetTimer(main, 1, 10);
  device.Step(0);
  device.PostQuit(0);
  device.Step(0);
  bed.ForgetMessages();
  device.Post(main, kFirst);
  device.SetTimer(main, 2, 10);
  device.Invalidate(main);
  device.PostQuit(5);
  device.PenDown({5, 100});
  device.PenMove({6, 100});
  device.PenUp({6, 100});
  device.Wheel({5, 100}, 1, false);
  device.KeyDown('A', {});
  device.KeyUp('A', {});
  device.Character(u'a');
  EXPECT_EQ(device.Step(1000), std::nullopt);
  EXPECT_THAT(bed.trace.messages, IsEmpty());
  EXPECT_TRUE(device.Quiescent());
  EXPECT_EQ(device.QuitCode(), 0);
}

TEST_F(DeviceMessages, AfterQuittingAModalLayerStillLives) {
  device.PostQuit(1);
  device.Step(0);
  bed.layers.message.visible = true;
  bed.layers.message.modal = true;
  bed.layers.message.bounds = Rect::At(20, 100, 200, 80);
  EXPECT_FALSE(device.Quiescent());
  device.Step(0);
  EXPECT_EQ(bed.host.Pixel(30, 110), PixelOf(bed.layers.message.colour));
  device.PenDown({30, 110});
  device.KeyDown(VK_RETURN, {});
  EXPECT_THAT(bed.layers.message.told, ElementsAre("down 30,110", "key 13"));
}

// --- The default procedure.

TEST_F(DeviceMessages, ByDefaultClosingDestroys) {
  device.Send(main, WM_CLOSE);
  EXPECT_FALSE(device.IsWindow(main));
}

TEST_F(DeviceMessages, ByDefaultPaintingFillsTheBackgroundAndValidates) {
  EXPECT_EQ(bed.host.Pixel(100, 100), PixelOf(Rgb(10, 20, 30)));
  EXPECT_EQ(device.InvalidRect(main), Rect{});
}

TEST_F(DeviceMessages, ByDefaultTheWheelGoesToTheParentInItsCoordinates) {
  const WindowHandle child = bed.MakeChild("child", Rect::At(10, 20, 100, 100), main);
  const WindowHandle inner = bed.MakeChild("inner", Rect::At(5, 5, 50, 50), child);
  bed.ForgetMessages();
  device.Wheel({20, 60}, -3, true);
  EXPECT_THAT(bed.trace.messages,
              ElementsAre(NotedMessage{inner, WM_MOUSEWHEEL, PackWheel(-3, true), PackPoint({5, 9})},
                          NotedMessage{child, WM_MOUSEWHEEL, PackWheel(-3, true), PackPoint({10, 14})},
                          NotedMessage{main, WM_MOUSEWHEEL, PackWheel(-3, true), PackPoint({20, 34})}));
}

TEST_F(DeviceMessages, AHandledWheelStaysWithItsWindow) {
  const WindowHandle child = bed.MakeChild("child", Rect::At(10, 20, 100, 100), main);
  bed.On("child", WM_MOUSEWHEEL, [](WindowHandle) {});
  bed.ForgetMessages();
  device.Wheel({20, 60}, 1, false);
  EXPECT_EQ(bed.CountOf(child, WM_MOUSEWHEEL), 1);
  EXPECT_EQ(bed.CountOf(main, WM_MOUSEWHEEL), 0);
}

TEST_F(DeviceMessages, TheWheelDoesNotPassFromAToolToItsOwner) {
  const WindowHandle tool = bed.Make("tool", Rect::At(0, 0, 240, 268), main);
  bed.ForgetMessages();
  device.Wheel({20, 60}, 1, false);
  EXPECT_EQ(bed.CountOf(tool, WM_MOUSEWHEEL), 1);
  EXPECT_EQ(bed.CountOf(main, WM_MOUSEWHEEL), 0);
}

TEST_F(DeviceMessages, AClassWithoutAProcedureHasTheDefaultOne) {
  device.RegisterWindowClass({u"plain", nullptr, std::nullopt});
  const WindowHandle plain = device.CreateWindow({u"plain", u"", WS_VISIBLE, Rect::At(0, 0, 9, 9), main});
  EXPECT_NE(plain, kNoWindow);
  EXPECT_NE(bed.Settle(), -1);
  device.Send(plain, WM_CLOSE);
  EXPECT_FALSE(device.IsWindow(plain));
}

// --- Closing from outside.

TEST_F(DeviceMessages, ClosingFromOutsideAsksTheMainWindow) {
  device.SetMainWindow(main);
  bed.On("main", WM_CLOSE, [](WindowHandle) {});
  device.CloseFromOutside();
  EXPECT_EQ(bed.CountOf(main, WM_CLOSE), 1);
  EXPECT_EQ(bed.layers.dismissals, 0);
}

TEST_F(DeviceMessages, WithoutAMainWindowClosingAnswersTheMessages) {
  device.CloseFromOutside();
  EXPECT_EQ(bed.layers.dismissals, 1);
}

// --- Services.

TEST_F(DeviceMessages, TheWaitCursorIsToldWhenItChanges) {
  device.SetWaitCursor(false);
  device.SetWaitCursor(true);
  device.SetWaitCursor(true);
  EXPECT_TRUE(device.WaitCursor());
  device.SetWaitCursor(false);
  EXPECT_THAT(bed.host.waits, ElementsAre(true, false));
  EXPECT_THAT(bed.trace.cursors, ElementsAre(true, false));
}

TEST_F(DeviceMessages, TheClipboardIsTheHosts) {
  EXPECT_EQ(device.ClipboardText(), std::nullopt);
  EXPECT_TRUE(device.SetClipboardText(u"h2o"));
  EXPECT_EQ(device.ClipboardText(), u"h2o");
  bed.host.clipboardOpens = false;
  EXPECT_FALSE(device.SetClipboardText(u"no"));
  EXPECT_EQ(device.ClipboardText(), u"h2o");
}

}  // namespace
}  // namespace orvane::device_test
