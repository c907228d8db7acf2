// The keys of the on-screen keyboard: five rows of 16 pixels on a grid of 10, in three sets of characters.
#pragma once

#include <span>

#include "base/geometry.h"
#include "base/text.h"
#include "platform/messages.h"

namespace orvane {

inline constexpr int kKeyRowHeight = 16;
inline constexpr int kKeyUnit = 10;  // keys are 2 or more units wide

enum class KeyAction {
  kCharacter,
  kPress,    // a key without a character, or with the same one in every set
  kShift,    // the next key only
  kCaps,     // capital letters until it is pressed again
  kSymbols,  // the third set until it is pressed again
};

enum class KeySet { kPlain, kShifted, kSymbols };

struct PanelKey {
  Rect rect;  // in the panel
  KeyAction action = KeyAction::kCharacter;
  Char plain = 0;
  Char shifted = 0;
  Char symbol = 0;
  int virtualKey = 0;  // of a kPress key
};

// All keys; together they cover the panel of 240 × 80 without gaps or overlaps.
std::span<const PanelKey> PanelKeys();

// The index of the key at a point of the panel, −1 outside.
int PanelKeyAt(Point point);

// What a key gives in a set; Caps turns the plain set of a letter into the shifted one and the reverse.
Char KeyCharacter(const PanelKey& key, KeySet set, bool caps);

// The key code that a real keyboard would give with the character. Signs without a code of their own have
// that of characters that come from no key.
inline constexpr int kKeylessCharacter = 0xE7;
int VirtualKeyOf(Char character);

}  // namespace orvane
