#include "platform/play_keys.h"

#include <array>

#include "platform/messages.h"

namespace orvane {
namespace {

struct NamedKey {
  TextView name;
  int key;
  Char character;  // 0: types nothing
};

// "Alt" alone opens the menu bar as F10 does.
constexpr std::array<NamedKey, 17> kNamedKeys = {{{u"Left", VK_LEFT, 0},
                                                  {u"Right", VK_RIGHT, 0},
                                                  {u"Up", VK_UP, 0},
                                                  {u"Down", VK_DOWN, 0},
                                                  {u"Home", VK_HOME, 0},
                                                  {u"End", VK_END, 0},
                                                  {u"PageUp", VK_PRIOR, 0},
                                                  {u"PageDown", VK_NEXT, 0},
                                                  {u"Backspace", VK_BACK, 0},
                                                  {u"Delete", VK_DELETE, 0},
                                                  {u"Enter", VK_RETURN, 0},
                                                  {u"Escape", VK_ESCAPE, 0},
                                                  {u"Tab", VK_TAB, 0},
                                                  {u"Space", VK_SPACE, u' '},
                                                  {u"Plus", VK_ADD, u'+'},
                                                  {u"Minus", VK_SUBTRACT, u'-'},
                                                  {u"Alt", VK_MENU, 0}}};

// What Shift makes of the digits 0 to 9.
constexpr TextView kShiftedDigits = u")!@#$%^&*(";

bool StripPrefix(TextView& name, TextView prefix) {
  if (name.substr(0, prefix.size()) != prefix) return false;
  name.remove_prefix(prefix.size());
  return true;
}

// F1 to F12, 0 for another name.
int FunctionKey(TextView name) {
  if (name.size() < 2 || name.size() > 3 || name[0] != u'F' || name[1] == u'0') return 0;
  int number = 0;
  for (const Char c : name.substr(1)) {
    if (!IsAsciiDigit(c)) return 0;
    number = number * 10 + (c - u'0');
  }
  return number <= 12 ? VK_F1 + number - 1 : 0;
}

std::optional<KeyStroke> PlainStroke(TextView name, bool shift) {
  if (name.size() == 1 && IsAsciiLetter(name[0])) {
    const Char capital = AsciiUpper(name[0]);
    return KeyStroke{capital, {}, shift ? capital : AsciiLower(capital)};
  }
  if (name.size() == 1 && IsAsciiDigit(name[0])) {
    const auto digit = static_cast<std::size_t>(name[0] - u'0');
    return KeyStroke{name[0], {}, shift ? kShiftedDigits[digit] : name[0]};
  }
  if (const int functionKey = FunctionKey(name); functionKey != 0) return KeyStroke{functionKey, {}, 0};
  for (const NamedKey& named : kNamedKeys) {
    if (named.name == name) return KeyStroke{named.key, {}, named.character};
  }
  return std::nullopt;
}

}  // namespace

std::optional<KeyStroke> ParseKeyStroke(TextView name) {
  Modifiers modifiers;
  for (;;) {
    if (!modifiers.shift && StripPrefix(name, u"Shift+")) {
      modifiers.shift = true;
    } else if (!modifiers.control && StripPrefix(name, u"Ctrl+")) {
      modifiers.control = true;
    } else if (!modifiers.alt && StripPrefix(name, u"Alt+")) {
      modifiers.alt = true;
    } else {
      break;
    }
  }
  std::optional<KeyStroke> stroke = PlainStroke(name, modifiers.shift);
  if (!stroke) return std::nullopt;
  stroke->modifiers = modifiers;
  if (modifiers.control || modifiers.alt) stroke->character = 0;
  return stroke;
}

std::optional<KeyStroke> KeyOfControlCharacter(Char character) {
  switch (character) {
    case u'\n':
    case u'\r':
      return KeyStroke{VK_RETURN, {}, 0};
    case u'\t':
      return KeyStroke{VK_TAB, {}, 0};
    case u'\b':
      return KeyStroke{VK_BACK, {}, 0};
    default:
      return std::nullopt;
  }
}

}  // namespace orvane
