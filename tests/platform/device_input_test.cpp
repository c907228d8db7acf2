// Where pen, wheel and keys go; focus, capture and activation.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/platform/device_test_bed.h"

namespace orvane::device_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t kPosted = 0x8001;

// A main window, a tool that fills it and a panel in the tool, at screen (10, 46) to (110, 146).
struct DeviceInput : testing::Test {
  TestBed bed;
  Device& device = *bed.device;
  WindowHandle main = bed.Make("main", Rect::At(0, 26, 240, 268));
  WindowHandle tool = bed.Make("tool", Rect::At(0, 0, 240, 268), main);
  WindowHandle panel = bed.MakeChild("panel", Rect::At(10, 20, 100, 100), tool);

  void SetUp() override {
    bed.Settle();
    bed.ForgetMessages();
  }
  LayerScript& ShowLayer(LayerScript& layer, const Rect& bounds, bool modal = false) {
    layer.visible = true;
    layer.modal = modal;
    layer.bounds = bounds;
    return layer;
  }
};

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

// --- Key state.

TEST_F(DeviceInput, ThePenIsAButton) {
  EXPECT_FALSE(device.IsKeyDown(VK_LBUTTON));
  device.PenDown({15, 56});
  EXPECT_TRUE(device.IsKeyDown(VK_LBUTTON));
  device.PenUp({15, 56});
  EXPECT_FALSE(device.IsKeyDown(VK_LBUTTON));
}

TEST_F(DeviceInput, TheActionKeyIsControlTheSecondButtonOrHeld) {
  EXPECT_FALSE(device.IsKeyDown(VK_ACTION));
  device.KeyDown(VK_CONTROL, {.control = true});
  EXPECT_TRUE(device.IsKeyDown(VK_ACTION));
  device.KeyUp(VK_CONTROL, {});
  EXPECT_FALSE(device.IsKeyDown(VK_ACTION));
  device.HoldActionKey(true);
  EXPECT_TRUE(device.IsKeyDown(VK_ACTION));
  device.HoldActionKey(false);
  EXPECT_FALSE(device.IsKeyDown(VK_ACTION));
}

TEST_F(DeviceInput, TheActionKeyOfAPenIsStillHeldWhenItsLiftIsHandled) {
  bool held = false;
  bed.On("panel", WM_LBUTTONUP, [&](WindowHandle) { held = device.IsKeyDown(VK_ACTION); });
  device.PenDown({15, 56}, PointerKind::kMouse, true);
  EXPECT_TRUE(device.IsKeyDown(VK_ACTION));
  device.PenUp({15, 56});
  EXPECT_TRUE(held);
  EXPECT_FALSE(device.IsKeyDown(VK_ACTION));
}

TEST_F(DeviceInput, ModifiersAreThoseOfTheKeysHeld) {
  device.KeyDown('C', {.shift = true, .control = true});
  EXPECT_EQ(device.CurrentModifiers(), (Modifiers{.shift = true, .control = true}));
  EXPECT_TRUE(device.IsKeyDown(VK_SHIFT));
  EXPECT_TRUE(device.IsKeyDown('C'));
  device.KeyUp('C', {.shift = true, .control = true});
  EXPECT_EQ(device.CurrentModifiers(), Modifiers{});
  EXPECT_FALSE(device.IsKeyDown('C'));
  device.KeyDown(VK_MENU, {.alt = true});
  EXPECT_TRUE(device.IsKeyDown(VK_MENU));
}

TEST_F(DeviceInput, OneOfTwoControlKeysIsEnough) {
  device.KeyDown(VK_CONTROL, {.control = true});
  device.KeyUp(VK_CONTROL, {.control = true});  // the other one is still down
  EXPECT_TRUE(device.IsKeyDown(VK_CONTROL));
  device.KeyUp(VK_CONTROL, {});
  EXPECT_FALSE(device.IsKeyDown(VK_CONTROL));
}

TEST_F(DeviceInput, ThePressThatCameLastTellsTouchFromMouseAndKeys) {
  EXPECT_FALSE(device.LastPressWasTouch());
  device.PenDown({15, 56}, PointerKind::kTouch);
  EXPECT_TRUE(device.LastPressWasTouch());
  device.PenUp({15, 56});
  device.KeyDown('A', {});
  EXPECT_FALSE(device.LastPressWasTouch());
  ShowLayer(bed.layers.panel, kPanelArea).onPenDown = [this] { device.KeyDown('A', {}); };
  device.PenDown({15, 220}, PointerKind::kTouch);
  EXPECT_TRUE(device.LastPressWasTouch());  // the key was the finger's
  device.PenUp({15, 220});
  device.PenDown({15, 56}, PointerKind::kMouse);
  EXPECT_FALSE(device.LastPressWasTouch());
}

// --- Keys.

TEST_F(DeviceInput, KeysGoToTheFocus) {
  device.SetFocus(panel);
  bed.ForgetMessages();
  device.KeyDown('A', {});
  device.Character(u'a');
  device.KeyUp('A', {});
  EXPECT_THAT(bed.trace.messages,
              ElementsAre(NotedMessage{panel, WM_KEYDOWN, 'A', 0}, NotedMessage{panel, WM_CHAR, u'a', 0},
                          NotedMessage{panel, WM_KEYUP, 'A', 0}));
}

TEST_F(DeviceInput, WithoutFocusKeysAreLost) {
  device.KeyDown('A', {});
  device.Character(u'a');
  device.KeyUp('A', {});
  EXPECT_THAT(bed.trace.messages, IsEmpty());
}

TEST_F(DeviceInput, ALayerThatUsesAKeyKeepsItFromTheWindows) {
  device.SetFocus(panel);
  bed.ForgetMessages();
  LayerScript& dialog = ShowLayer(bed.layers.dialog, Rect::At(0, 0, 9, 9));
  device.KeyDown('A', {});
  device.KeyUp('A', {});
  dialog.usesKeys = true;
  device.KeyDown('B', {});
  device.Character(u'b');  // the used key's own
  device.KeyUp('B', {});
  device.Character(u'c');
  EXPECT_THAT(dialog.told, ElementsAre("key 65", "key 66", "char 99"));
  EXPECT_THAT(bed.trace.messages,
              ElementsAre(NotedMessage{panel, WM_KEYDOWN, 'A', 0}, NotedMessage{panel, WM_KEYUP, 'A', 0}));
}

TEST_F(DeviceInput, TheKeyThatAnswersAMessageBoxTypesNothingBelowIt) {
  device.SetFocus(panel);
  LayerScript& message = ShowLayer(bed.layers.message, Rect::At(0, 0, 9, 9), true);
  device.KeyDown(VK_SPACE, {});
  message.visible = false;
  bed.ForgetMessages();
  device.Character(u' ');
  device.KeyUp(VK_SPACE, {});
  EXPECT_THAT(bed.trace.messages, IsEmpty());
}

TEST_F(DeviceInput, AModalLayerGetsTheKeysAlone) {
  device.SetFocus(panel);
  device.SetAccelerators({{'Q', {.control = true}, main, 7}});
  bed.ForgetMessages();
  LayerScript& message = ShowLayer(bed.layers.message, Rect::At(0, 0, 9, 9), true);
  LayerScript& dialog = ShowLayer(bed.layers.dialog, Rect::At(0, 0, 9, 9));
  device.KeyDown('Q', {.control = true});
  device.KeyUp('Q', {.control = true});
  device.Character(u'q');
  EXPECT_THAT(message.told, ElementsAre("key 81", "char 113"));
  EXPECT_THAT(dialog.told, IsEmpty());
  bed.Settle();
  EXPECT_THAT(bed.trace.messages, IsEmpty());
}

TEST_F(DeviceInput, AKeyThatWentDownInALayerDoesNotComeUpInAWindow) {
  device.SetFocus(panel);
  LayerScript& message = ShowLayer(bed.layers.message, Rect::At(0, 0, 9, 9), true);
  device.KeyDown(VK_RETURN, {});
  message.visible = false;
  bed.ForgetMessages();
  device.KeyUp(VK_RETURN, {});
  EXPECT_THAT(bed.trace.messages, IsEmpty());
}

TEST_F(DeviceInput, AnAcceleratorPostsItsCommand) {
  device.SetFocus(panel);
  device.SetAccelerators({{VK_F1, {}, main, 40064}, {'Q', {.control = true}, main, 40016}});
  bed.ForgetMessages();
  device.KeyDown(VK_F1, {});
  device.KeyDown('Q', {.control = true});
  EXPECT_THAT(bed.trace.messages, IsEmpty());
  device.Step(0);
  EXPECT_THAT(bed.trace.messages, ElementsAre(NotedMessage{main, WM_COMMAND, PackCommand(40064, 0), 0},
                                              NotedMessage{main, WM_COMMAND, PackCommand(40016, 0), 0}));
}

TEST_F(DeviceInput, AnAcceleratorWantsItsModifiersExactly) {
  device.SetFocus(panel);
  device.SetAccelerators({{'Q', {.control = true}, main, 7}});
  bed.ForgetMessages();
  device.KeyDown('Q', {});
  device.KeyDown('Q', {.shift = true, .control = true});
  bed.Settle();
  EXPECT_EQ(bed.MessagesOf(WM_COMMAND).size(), 0u);
  EXPECT_EQ(bed.CountOf(panel, WM_KEYDOWN), 2);
}

TEST_F(DeviceInput, AnAcceleratorOfADestroyedWindowIsAnOrdinaryKey) {
  device.SetFocus(tool);
  device.SetAccelerators({{VK_F1, {}, panel, 7}});
  device.DestroyWindow(panel);
  bed.ForgetMessages();
  device.KeyDown(VK_F1, {});
  EXPECT_EQ(bed.CountOf(tool, WM_KEYDOWN), 1);
}

TEST_F(DeviceInput, ScaleKeysAskTheHostEvenUnderAModalLayer) {
  device.KeyDown(VK_ADD, {.control = true});
  device.KeyDown(VK_ADD, {.shift = true, .control = true});
  device.KeyDown(VK_SUBTRACT, {.control = true});
  ShowLayer(bed.layers.message, Rect::At(0, 0, 9, 9), true);
  device.KeyDown('0', {.control = true});
  EXPECT_THAT(bed.host.scaleSteps, ElementsAre(1, 1, -1, 0));
  device.KeyDown(VK_ADD, {});
  device.KeyDown('0', {.control = true, .alt = true});
  EXPECT_EQ(bed.host.scaleSteps.size(), 4u);
}

TEST_F(DeviceInput, F10OpensTheFirstMenuThatTheBarHas) {
  device.KeyDown(VK_F1 + 9, {});
  EXPECT_THAT(bed.layers.openedMenus, ElementsAre(1));
  device.KeyDown(VK_F1 + 9, {.shift = true});
  EXPECT_THAT(bed.layers.openedMenus, ElementsAre(1));
  bed.layers.menuAt = -1;
  device.KeyDown(VK_F1 + 9, {});
  EXPECT_THAT(bed.layers.openedMenus, ElementsAre(1));
}

TEST_F(DeviceInput, AltAloneOpensTheMenu) {
  device.KeyDown(VK_MENU, {.alt = true});
  EXPECT_THAT(bed.layers.openedMenus, IsEmpty());
  device.KeyUp(VK_MENU, {});
  EXPECT_THAT(bed.layers.openedMenus, ElementsAre(1));
}

TEST_F(DeviceInput, AltWithAKeyOrThePenOpensNothing) {
  device.KeyDown(VK_MENU, {.alt = true});
  device.KeyDown('A', {.alt = true});
  device.KeyUp('A', {.alt = true});
  device.KeyUp(VK_MENU, {});
  device.KeyDown(VK_MENU, {.alt = true});
  device.PenDown({15, 56});
  device.PenUp({15, 56});
  device.KeyUp(VK_MENU, {});
  EXPECT_THAT(bed.layers.openedMenus, IsEmpty());
}

TEST_F(DeviceInput, AltUnderAModalLayerOpensNothing) {
  ShowLayer(bed.layers.message, Rect::At(0, 0, 9, 9), true);
  device.KeyDown(VK_MENU, {.alt = true});
  bed.layers.message.visible = false;
  device.KeyUp(VK_MENU, {});
  EXPECT_THAT(bed.layers.openedMenus, IsEmpty());
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
