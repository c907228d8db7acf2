// Making, showing, moving, stacking and destroying windows.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/platform/device_test_bed.h"

namespace orvane::device_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Rect kMainRect = Rect::At(0, 26, 240, 268);

TEST(DeviceWindows, CreatingSendsWmCreateOnceBeforeItReturns) {
  TestBed bed;
  const WindowHandle window = bed.Make("main", kMainRect, kNoWindow, 0);
  ASSERT_NE(window, kNoWindow);
  ASSERT_EQ(bed.Messages(window).size(), 1u);
  EXPECT_EQ(bed.Messages(window)[0].message, WM_CREATE);
}

TEST(DeviceWindows, WmCreateCarriesTheCreateParams) {
  TestBed bed;
  Text seen;
  bed.SetHandler("main", [&](WindowHandle, std::uint32_t message, WParam, LParam l) -> std::optional<Result> {
    if (message == WM_CREATE) seen = reinterpret_cast<const CreateParams*>(l)->title;
    return std::nullopt;
  });
  bed.Make("main", kMainRect);
  EXPECT_EQ(seen, u"main title");
}

TEST(DeviceWindows, MinusOneFromWmCreateDestroysTheWindow) {
  TestBed bed;
  bed.SetHandler("main", [](WindowHandle, std::uint32_t message, WParam, LParam) -> std::optional<Result> {
    if (message == WM_CREATE) return -1;
    return std::nullopt;
  });
  EXPECT_EQ(bed.Make("main", kMainRect), kNoWindow);
  EXPECT_EQ(bed.MessagesOf(WM_DESTROY).size(), 1u);
  EXPECT_THAT(bed.device->VisibleWindows(), IsEmpty());
}

TEST(DeviceWindows, CreatingFailsWithoutClassParentOrPlace) {
  TestBed bed;
  const WindowHandle main = bed.Make("main", kMainRect);
  EXPECT_EQ(bed.device->CreateWindow({u"unknown", u"", 0, kMainRect, kNoWindow}), kNoWindow);
  EXPECT_EQ(bed.device->CreateWindow({u"main", u"", 0, kMainRect, main + 100}), kNoWindow);
  EXPECT_EQ(bed.device->CreateWindow({u"main", u"", WS_CHILD, kMainRect, kNoWindow}), kNoWindow);
}

TEST(DeviceWindows, AClassNameIsTakenOnce) {
  TestBed bed;
  EXPECT_TRUE(bed.device->RegisterWindowClass({u"one", nullptr, std::nullopt}));
  EXPECT_FALSE(bed.device->RegisterWindowClass({u"one", nullptr, std::nullopt}));
}

TEST(DeviceWindows, OperationsOnAMissingWindowDoNothing) {
  TestBed bed;
  Device& device = *bed.device;
  for (const WindowHandle missing : {kNoWindow, WindowHandle{77}}) {
    device.DestroyWindow(missing);
    device.SetUserData(missing, nullptr);
    device.SetStyle(missing, 0);
    device.SetTitle(missing, u"x");
    device.ShowWindow(missing, true);
    device.MoveWindow(missing, kMainRect);
    device.BringToTop(missing);
    device.SetFocus(missing);
    device.ActivateWindow(missing);
    device.SetCapture(missing);
    device.Post(missing, WM_COMMAND);
    device.SetTimer(missing, 1, 10);
    device.KillTimer(missing, 1);
    device.Invalidate(missing);
    device.Invalidate(missing, kMainRect);
    device.Validate(missing);
    device.Update(missing);
    device.ScrollWindowRect(missing, kMainRect, 1, 1);
    device.WindowCanvas(missing).FillRect(kMainRect, kBlack);
    device.SetMainWindow(missing);
    EXPECT_EQ(device.Send(missing, WM_CLOSE), 0);
    EXPECT_EQ(device.DefaultProcedure(missing, WM_PAINT, 0, 0), 0);
    EXPECT_EQ(device.UserData(missing), nullptr);
    EXPECT_EQ(device.Style(missing), 0u);
    EXPECT_EQ(device.Title(missing), u"");
    EXPECT_EQ(device.ClassName(missing), u"");
    EXPECT_EQ(device.Parent(missing), kNoWindow);
    EXPECT_FALSE(device.IsVisible(missing));
    EXPECT_FALSE(device.IsWindow(missing));
    EXPECT_EQ(device.WindowRect(missing), Rect{});
    EXPECT_EQ(device.ClientSize(missing), Size{});
    EXPECT_EQ(device.ScreenRect(missing), Rect{});
    EXPECT_EQ(device.InvalidRect(missing), Rect{});
    EXPECT_EQ(device.MainWindow(), kNoWindow);
    EXPECT_EQ(device.Focus(), kNoWindow);
    EXPECT_EQ(device.Capture(), kNoWindow);
  }
  EXPECT_THAT(bed.trace.messages, IsEmpty());
}

TEST(DeviceWindows, ChildrenAndOwnedWindowsStandInTheParentsClientArea) {
  TestBed bed;
  const WindowHandle main = bed.Make("main", kMainRect);
  const WindowHandle tool = bed.Make("tool", Rect::At(0, 0, 240, 268), main);
  const WindowHandle panel = bed.MakeChild("panel", Rect::At(8, 72, 100, 30), tool);
  EXPECT_EQ(bed.device->ScreenRect(tool), Rect::At(0, 26, 240, 268));
  EXPECT_EQ(bed.device->ScreenRect(panel), Rect::At(8, 98, 100, 30));
  EXPECT_EQ(bed.device->WindowRect(panel), Rect::At(8, 72, 100, 30));
  EXPECT_EQ(bed.device->ClientSize(panel), (Size{100, 30}));
  EXPECT_EQ(bed.device->Parent(panel), tool);
}

TEST(DeviceWindows, OwnedWindowsStackAboveTheOwnersChildren) {
  TestBed bed;
  const WindowHandle main = bed.Make("main", kMainRect);
  const WindowHandle first = bed.Make("first", Rect::At(0, 0, 50, 50), main);
  const WindowHandle child = bed.MakeChild("child", Rect::At(0, 0, 50, 50), main);
  const WindowHandle second = bed.Make("second", Rect::At(0, 0, 50, 50), main);
  EXPECT_THAT(bed.device->VisibleWindows(), ElementsAre(main, child, first, second));
  bed.device->BringToTop(first);
  EXPECT_THAT(bed.device->VisibleWindows(), ElementsAre(main, child, second, first));
  bed.device->BringToTop(child);  // alone of its kind
  EXPECT_THAT(bed.device->VisibleWindows(), ElementsAre(main, child, second, first));
}

TEST(DeviceWindows, VisibilityIsInherited) {
  TestBed bed;
  const WindowHandle main = bed.Make("main", kMainRect, kNoWindow, 0);
  const WindowHandle tool = bed.Make("tool", Rect::At(0, 0, 240, 268), main);
  const WindowHandle panel = bed.MakeChild("panel", Rect::At(8, 72, 100, 30), tool);
  EXPECT_FALSE(bed.device->IsVisible(panel));
  bed.device->ShowWindow(main, true);
  EXPECT_TRUE(bed.device->IsVisible(panel));
  bed.device->ShowWindow(tool, false);
  EXPECT_FALSE(bed.device->IsVisible(panel));
  EXPECT_EQ(bed.device->Style(panel) & WS_VISIBLE, WS_VISIBLE);
}

TEST(DeviceWindows, ShowingTellsTheWindowOnlyWhenItChanges) {
  TestBed bed;
  const WindowHandle main = bed.Make("main", kMainRect, kNoWindow, 0);
  bed.ForgetMessages();
  bed.device->ShowWindow(main, true);
  bed.device->ShowWindow(main, true);
  bed.device->ShowWindow(main, false);
  EXPECT_THAT(bed.trace.messages,
              ElementsAre(NotedMessage{main, WM_SHOWWINDOW, 1, 0}, NotedMessage{main, WM_SHOWWINDOW, 0, 0}));
}

TEST(DeviceWindows, MovingSendsMoveAndSizeAndInvalidatesAll) {
  TestBed bed;
  const WindowHandle main = bed.Make("main", kMainRect);
  bed.Settle();
  bed.ForgetMessages();
  bed.device->MoveWindow(main, Rect::At(-3, 5, 7, 9));
  EXPECT_THAT(bed.trace.messages, ElementsAre(NotedMessage{main, WM_MOVE, 0, PackPoint({-3, 5})},
                                              NotedMessage{main, WM_SIZE, 0, PackPoint({7, 9})}));
  EXPECT_EQ(bed.device->InvalidRect(main), Rect::At(0, 0, 7, 9));
  EXPECT_EQ(bed.device->WindowRect(main), Rect::At(-3, 5, 7, 9));
}

TEST(DeviceWindows, AbsurdRectanglesAreBounded) {
  TestBed bed;
  const WindowHandle main = bed.Make("main", {INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX});
  EXPECT_EQ(bed.device->WindowRect(main), Rect::At(-32767, -32767, 32767, 32767));
  bed.device->MoveWindow(main, {10, 10, 5, 5});  // inside out: empty
  EXPECT_EQ(bed.device->ClientSize(main), (Size{0, 0}));
  EXPECT_EQ(bed.Settle(), 1);
}

TEST(DeviceWindows, DestroyingTakesChildrenFirst) {
  TestBed bed;
  const WindowHandle main = bed.Make("main", kMainRect);
  const WindowHandle child = bed.MakeChild("child", Rect::At(0, 0, 50, 50), main);
  const WindowHandle inner = bed.MakeChild("inner", Rect::At(0, 0, 20, 20), child);
  const WindowHandle owned = bed.Make("owned", Rect::At(0, 0, 50, 50), main);
  bed.device->DestroyWindow(main);
  std::vector<WindowHandle> order;
  for (const NotedMessage& noted : bed.MessagesOf(WM_DESTROY)) order.push_back(noted.window);
  EXPECT_THAT(order, ElementsAre(owned, inner, child, main));
  for (const WindowHandle gone : order) EXPECT_FALSE(bed.device->IsWindow(gone));
}

TEST(DeviceWindows, ADestroyedWindowsHandleIsNotUsedAgain) {
  TestBed bed;
  const WindowHandle first = bed.Make("main", kMainRect);
  bed.device->DestroyWindow(first);
  EXPECT_NE(bed.Make("main", kMainRect), first);
}

TEST(DeviceWindows, FindWindowLooksForClassAndTitleFromTheTop) {
  TestBed bed;
  const WindowHandle main = bed.Make("main", kMainRect);
  const WindowHandle tool = bed.Make("tool", Rect::At(0, 0, 9, 9), main);
  const WindowHandle other = bed.Make("tool", Rect::At(0, 0, 9, 9), main);
  EXPECT_EQ(bed.device->FindWindow(u"main", u"main title"), main);
  EXPECT_EQ(bed.device->FindWindow(u"main", u"other"), kNoWindow);
  EXPECT_EQ(bed.device->FindWindow(u"tool", u""), other);
  bed.device->SetTitle(other, u"renamed");
  EXPECT_EQ(bed.device->FindWindow(u"tool", u"tool title"), tool);
  EXPECT_EQ(bed.device->FindWindow(u"nothing", u""), kNoWindow);
}

TEST(DeviceWindows, SetStyleKeepsVisibilityAndMovesBetweenTheKinds) {
  TestBed bed;
  const WindowHandle main = bed.Make("main", kMainRect);
  const WindowHandle owned = bed.Make("owned", Rect::At(0, 0, 9, 9), main);
  const WindowHandle other = bed.Make("other", Rect::At(0, 0, 9, 9), main);
  bed.device->SetStyle(other, WS_CHILD);
  EXPECT_EQ(bed.device->Style(other), WS_CHILD | WS_VISIBLE);
  EXPECT_THAT(bed.device->VisibleWindows(), ElementsAre(main, other, owned));
  bed.device->SetStyle(other, 0);
  EXPECT_EQ(bed.device->Style(other), WS_VISIBLE);
  EXPECT_THAT(bed.device->VisibleWindows(), ElementsAre(main, owned, other));
}

TEST(DeviceWindows, TheHostCarriesTheMainWindowsTitle) {
  TestBed bed;
  const WindowHandle main = bed.Make("main", kMainRect);
  bed.device->SetMainWindow(main);
  bed.device->SetTitle(main, u"Orvane");
  bed.device->SetTitle(main, u"Orvane");
  EXPECT_THAT(bed.host.titles, ElementsAre(u"main title", u"Orvane"));
  EXPECT_EQ(bed.device->MainWindow(), main);
  bed.device->DestroyWindow(main);
  EXPECT_EQ(bed.device->MainWindow(), kNoWindow);
}

TEST(DeviceWindows, UserDataIsKeptForTheWindow) {
  struct Object : WindowObject {
    WindowReport Describe() const override { return {}; }
    std::string UnitName() const override { return {}; }
  } object;
  TestBed bed;
  const WindowHandle main = bed.Make("main", kMainRect);
  EXPECT_EQ(bed.device->UserData(main), nullptr);
  bed.device->SetUserData(main, &object);
  EXPECT_EQ(bed.device->UserData(main), &object);
  EXPECT_EQ(bed.device->ClassName(main), u"main");
}

}  // namespace
}  // namespace orvane::device_test
