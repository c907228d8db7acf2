#include "platform/keyboard_layout.h"

#include <array>
#include <cstddef>

namespace orvane {
namespace {

constexpr int kNumberOfKeys = 53;

struct KeyTable {
  std::array<PanelKey, kNumberOfKeys> keys{};
  std::size_t count = 0;
  int x = 0;
  int y = 0;

  constexpr void Place(int units, PanelKey key) {
    key.rect = Rect::At(x, y, units * kKeyUnit, kKeyRowHeight);
    keys[count++] = key;
    x += units * kKeyUnit;
  }
  // A row of two-unit keys: one character of each text a key.
  constexpr void Characters(TextView plain, TextView shifted, TextView symbols) {
    for (std::size_t i = 0; i < plain.size(); ++i) {
      Place(2, {{}, KeyAction::kCharacter, plain[i], shifted[i], symbols[i], 0});
    }
  }
  constexpr void Special(int units, KeyAction action) { Place(units, {{}, action, 0, 0, 0, 0}); }
  constexpr void Press(int units, int virtualKey, Char character = 0) {
    Place(units, {{}, KeyAction::kPress, character, character, character, virtualKey});
  }
  constexpr void NextRow() {
    x = 0;
    y += kKeyRowHeight;
  }
};

constexpr KeyTable MakeKeys() {
  KeyTable table;
  table.Characters(u"1234567890()", u"!\"#$%&'*/?[]", u"1234567890{}");
  table.NextRow();
  table.Characters(u"qwertyuiop+", u"QWERTYUIOP=", u"°±²³·×÷→⇌∆≠");
  table.Press(2, VK_BACK, 8);
  table.NextRow();
  table.Special(3, KeyAction::kCaps);
  table.Characters(u"asdfghjkl", u"ASDFGHJKL", u"αβγδλμνπσ");
  table.Press(3, VK_RETURN, 13);
  table.NextRow();
  table.Special(4, KeyAction::kShift);
  table.Characters(u"zxcvbnm", u"ZXCVBNM", u"@<>|~^\\");
  table.Characters(u".", u":", u"…");
  table.Press(2, VK_UP);
  table.Characters(u"-", u"_", u"–");
  table.NextRow();
  table.Special(4, KeyAction::kSymbols);
  table.Characters(u",", u";", u"`");
  table.Press(10, VK_SPACE, u' ');
  table.Characters(u";", u":", u"€");
  table.Press(2, VK_LEFT);
  table.Press(2, VK_DOWN);
  table.Press(2, VK_RIGHT);
  return table;
}

constexpr KeyTable kTable = MakeKeys();
static_assert(kTable.count == kNumberOfKeys);

}  // namespace

std::span<const PanelKey> PanelKeys() { return kTable.keys; }

int PanelKeyAt(Point point) {
  const std::span<const PanelKey> keys = PanelKeys();
  for (std::size_t i = 0; i < keys.size(); ++i) {
    if (keys[i].rect.Contains(point)) return static_cast<int>(i);
  }
  return -1;
}

Char KeyCharacter(const PanelKey& key, KeySet set, bool caps) {
  if (set == KeySet::kSymbols) return key.symbol;
  const bool letter = IsAsciiLetter(key.plain);
  const bool shifted = (set == KeySet::kShifted) != (caps && letter);
  return shifted ? key.shifted : key.plain;
}

int VirtualKeyOf(Char character) {
  if (IsAsciiDigit(character) || IsAsciiUpper(character)) return character;
  if (IsAsciiLower(character)) return AsciiUpper(character);
  switch (character) {
    case u' ':
      return VK_SPACE;
    case u'+':
      return VK_ADD;
    case u'-':
      return VK_SUBTRACT;
    default:
      return kKeylessCharacter;
  }
}

}  // namespace orvane
