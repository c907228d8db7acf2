#include "platform/keyboard_layout.h"

#include <gtest/gtest.h>

#include "platform/device.h"

namespace orvane {
namespace {

const PanelKey* KeyOf(Char plain) {
  for (const PanelKey& key : PanelKeys()) {
    if (key.action == KeyAction::kCharacter && key.plain == plain) return &key;
  }
  return nullptr;
}

TEST(KeyboardLayout, EveryPointOfThePanelBelongsToOneKey) {
  const Size panel = kPanelArea.GetSize();
  for (int y = 0; y < panel.height; ++y) {
    for (int x = 0; x < panel.width; ++x) {
      int owners = 0;
      for (const PanelKey& key : PanelKeys()) owners += key.rect.Contains(Point{x, y}) ? 1 : 0;
      ASSERT_EQ(owners, 1) << x << ' ' << y;
    }
  }
  EXPECT_EQ(PanelKeyAt({-1, 0}), -1);
  EXPECT_EQ(PanelKeyAt({0, panel.height}), -1);
}

TEST(KeyboardLayout, KeysAreLargeEnoughForAPen) {
  for (const PanelKey& key : PanelKeys()) {
    EXPECT_GE(key.rect.Width(), 20);
    EXPECT_EQ(key.rect.Height(), 16);
  }
}

TEST(KeyboardLayout, HasLettersDigitsAndTheSignsOfFormulas) {
  for (const Char c : Text(u"abcdefghijklmnopqrstuvwxyz0123456789()+-.,;")) {
    EXPECT_NE(KeyOf(c), nullptr) << static_cast<int>(c);
  }
}

TEST(KeyboardLayout, HasTheKeysWithoutCharacters) {
  for (const int wanted : {VK_BACK, VK_RETURN, VK_SPACE, VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN}) {
    int found = 0;
    for (const PanelKey& key : PanelKeys()) found += key.virtualKey == wanted ? 1 : 0;
    EXPECT_EQ(found, 1) << wanted;
  }
}

TEST(KeyboardLayout, ShiftAndCapsGiveCapitals) {
  const PanelKey& key = *KeyOf(u'h');
  EXPECT_EQ(KeyCharacter(key, KeySet::kPlain, false), u'h');
  EXPECT_EQ(KeyCharacter(key, KeySet::kShifted, false), u'H');
  EXPECT_EQ(KeyCharacter(key, KeySet::kPlain, true), u'H');
  EXPECT_EQ(KeyCharacter(key, KeySet::kShifted, true), u'h');
}

TEST(KeyboardLayout, CapsLeavesDigitsAndSignsAlone) {
  EXPECT_EQ(KeyCharacter(*KeyOf(u'2'), KeySet::kPlain, true), u'2');
  EXPECT_EQ(KeyCharacter(*KeyOf(u'+'), KeySet::kPlain, true), u'+');
  EXPECT_EQ(KeyCharacter(*KeyOf(u'('), KeySet::kShifted, true), u'[');
}

TEST(KeyboardLayout, EveryKeyHasACharacterInEverySet) {
  for (const PanelKey& key : PanelKeys()) {
    if (key.action != KeyAction::kCharacter) continue;
    EXPECT_NE(key.plain, 0);
    EXPECT_NE(key.shifted, 0);
    EXPECT_NE(key.symbol, 0);
  }
}

TEST(KeyboardLayout, CodesAreThoseOfARealKeyboard) {
  EXPECT_EQ(VirtualKeyOf(u'h'), 'H');
  EXPECT_EQ(VirtualKeyOf(u'H'), 'H');
  EXPECT_EQ(VirtualKeyOf(u'2'), '2');
  EXPECT_EQ(VirtualKeyOf(u'+'), VK_ADD);
  EXPECT_EQ(VirtualKeyOf(u'-'), VK_SUBTRACT);
  EXPECT_EQ(VirtualKeyOf(u' '), VK_SPACE);
  EXPECT_EQ(VirtualKeyOf(u'('), kKeylessCharacter);
  EXPECT_EQ(VirtualKeyOf(u'%'), kKeylessCharacter);  // its number is that of the Left key
}

}  // namespace
}  // namespace orvane
