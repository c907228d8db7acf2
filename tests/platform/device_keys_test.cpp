// Where keys go, and which are held.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/platform/device_test_bed.h"

namespace orvane::device_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct DeviceKeys : ThreeWindows {};

// --- Key state.

TEST_F(DeviceKeys, ThePenIsAButton) {
  EXPECT_FALSE(device.IsKeyDown(VK_LBUTTON));
  device.PenDown({15, 56});
  EXPECT_TRUE(device.IsKeyDown(VK_LBUTTON));
  device.PenUp({15, 56});
  EXPECT_FALSE(device.IsKeyDown(VK_LBUTTON));
}

TEST_F(DeviceKeys, TheActionKeyIsControlTheSecondButtonOrHeld) {
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

TEST_F(DeviceKeys, TheActionKeyOfAPenIsStillHeldWhenItsLiftIsHandled) {
  bool held = false;
  bed.On("panel", WM_LBUTTONUP, [&](WindowHandle) { held = device.IsKeyDown(VK_ACTION); });
  device.PenDown({15, 56}, PointerKind::kMouse, true);
  EXPECT_TRUE(device.IsKeyDown(VK_ACTION));
  device.PenUp({15, 56});
  EXPECT_TRUE(held);
  EXPECT_FALSE(device.IsKeyDown(VK_ACTION));
}

TEST_F(DeviceKeys, ModifiersAreThoseOfTheKeysHeld) {
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

TEST_F(DeviceKeys, OneOfTwoControlKeysIsEnough) {
  device.KeyDown(VK_CONTROL, {.control = true});
  device.KeyUp(VK_CONTROL, {.control = true});  // the other one is still down
  EXPECT_TRUE(device.IsKeyDown(VK_CONTROL));
  device.KeyUp(VK_CONTROL, {});
  EXPECT_FALSE(device.IsKeyDown(VK_CONTROL));
}

TEST_F(DeviceKeys, ThePressThatCameLastTellsTouchFromMouseAndKeys) {
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

TEST_F(DeviceKeys, KeysGoToTheFocus) {
  device.SetFocus(panel);
  bed.ForgetMessages();
  device.KeyDown('A', {});
  device.Character(u'a');
  device.KeyUp('A', {});
  EXPECT_THAT(bed.trace.messages,
              ElementsAre(NotedMessage{panel, WM_KEYDOWN, 'A', 0}, NotedMessage{panel, WM_CHAR, u'a', 0},
                          NotedMessage{panel, WM_KEYUP, 'A', 0}));
}

TEST_F(DeviceKeys, WithoutFocusKeysAreLost) {
  device.KeyDown('A', {});
  device.Character(u'a');
  device.KeyUp('A', {});
  EXPECT_THAT(bed.trace.messages, IsEmpty());
}

TEST_F(DeviceKeys, ALayerThatUsesAKeyKeepsItFromTheWindows) {
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

TEST_F(DeviceKeys, TheKeyThatAnswersAMessageBoxTypesNothingBelowIt) {
  device.SetFocus(panel);
  LayerScript& message = ShowLayer(bed.layers.message, Rect::At(0, 0, 9, 9), true);
  device.KeyDown(VK_SPACE, {});
  message.visible = false;
  bed.ForgetMessages();
  device.Character(u' ');
  device.KeyUp(VK_SPACE, {});
  EXPECT_THAT(bed.trace.messages, IsEmpty());
}

TEST_F(DeviceKeys, AModalLayerGetsTheKeysAlone) {
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

TEST_F(DeviceKeys, AKeyThatWentDownInALayerDoesNotComeUpInAWindow) {
  device.SetFocus(panel);
  LayerScript& message = ShowLayer(bed.layers.message, Rect::At(0, 0, 9, 9), true);
  device.KeyDown(VK_RETURN, {});
  message.visible = false;
  bed.ForgetMessages();
  device.KeyUp(VK_RETURN, {});
  EXPECT_THAT(bed.trace.messages, IsEmpty());
}

TEST_F(DeviceKeys, AnAcceleratorPostsItsCommand) {
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

TEST_F(DeviceKeys, AnAcceleratorWantsItsModifiersExactly) {
  device.SetFocus(panel);
  device.SetAccelerators({{'Q', {.control = true}, main, 7}});
  bed.ForgetMessages();
  device.KeyDown('Q', {});
  device.KeyDown('Q', {.shift = true, .control = true});
  bed.Settle();
  EXPECT_EQ(bed.MessagesOf(WM_COMMAND).size(), 0u);
  EXPECT_EQ(bed.CountOf(panel, WM_KEYDOWN), 2);
}

TEST_F(DeviceKeys, AnAcceleratorOfADestroyedWindowIsAnOrdinaryKey) {
  device.SetFocus(tool);
  device.SetAccelerators({{VK_F1, {}, panel, 7}});
  device.DestroyWindow(panel);
  bed.ForgetMessages();
  device.KeyDown(VK_F1, {});
  EXPECT_EQ(bed.CountOf(tool, WM_KEYDOWN), 1);
}

TEST_F(DeviceKeys, ScaleKeysAskTheHostEvenUnderAModalLayer) {
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

TEST_F(DeviceKeys, F10OpensTheFirstMenuThatTheBarHas) {
  device.KeyDown(VK_F10, {});
  EXPECT_THAT(bed.layers.openedMenus, ElementsAre(1));
  device.KeyDown(VK_F10, {.shift = true});
  EXPECT_THAT(bed.layers.openedMenus, ElementsAre(1));
  bed.layers.menuAt = -1;
  device.KeyDown(VK_F10, {});
  EXPECT_THAT(bed.layers.openedMenus, ElementsAre(1));
}

TEST_F(DeviceKeys, AltAloneOpensTheMenu) {
  device.KeyDown(VK_MENU, {.alt = true});
  EXPECT_THAT(bed.layers.openedMenus, IsEmpty());
  device.KeyUp(VK_MENU, {});
  EXPECT_THAT(bed.layers.openedMenus, ElementsAre(1));
}

TEST_F(DeviceKeys, AltWithAKeyOrThePenOpensNothing) {
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

TEST_F(DeviceKeys, AltUnderAModalLayerOpensNothing) {
  ShowLayer(bed.layers.message, Rect::At(0, 0, 9, 9), true);
  device.KeyDown(VK_MENU, {.alt = true});
  bed.layers.message.visible = false;
  device.KeyUp(VK_MENU, {});
  EXPECT_THAT(bed.layers.openedMenus, IsEmpty());
}

}  // namespace
}  // namespace orvane::device_test
