// The keys that a play script can press, by the names on them.
#pragma once

#include <optional>

#include "platform/layer.h"

namespace orvane {

// One key pressed and let go. `character` is what a keyboard with the US layout types with it, 0 for a key
// that types nothing (Ctrl and Alt combinations type nothing).
struct KeyStroke {
  int key = 0;
  Modifiers modifiers;
  Char character = 0;
  friend bool operator==(const KeyStroke&, const KeyStroke&) = default;
};

// The stroke for a name such as "Left", "a", "Ctrl+Shift+End" or "F10": a letter, a digit or a key's name
// with any of Shift+, Ctrl+ and Alt+ in front, each once. Letters name the key, so "a" and "A" are the same
// key and type a small letter without Shift+. Nothing when there is no such key.
std::optional<KeyStroke> ParseKeyStroke(TextView name);

// The stroke that types a control character of a typed text: Enter for a line feed or carriage return, Tab
// and Backspace for their own. Nothing for every other character.
std::optional<KeyStroke> KeyOfControlCharacter(Char character);

}  // namespace orvane
