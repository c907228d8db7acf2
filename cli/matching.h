// How questions and problems that people type are trimmed, and compared with what the data files say.
#pragma once

#include <algorithm>

#include "base/text.h"

namespace orvane {

// What may stand around or between words without being meant; the carriage return is that of a line's end.
inline constexpr TextView kBlanks = u" \t\r\u00A0";

inline TextView Trimmed(TextView text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == TextView::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// Lower case of ASCII and Latin-1; the multiplication sign U+00D7 stands among the capitals and is none.
constexpr Char Folded(Char c) {
  const bool latinCapital = c >= 0x00C0 && c <= 0x00DE && c != 0x00D7;
  return latinCapital ? static_cast<Char>(c + 32) : AsciiLower(c);
}

inline bool SameFolded(TextView a, TextView b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](Char x, Char y) { return Folded(x) == Folded(y); });
}

inline bool ContainsFolded(TextView text, TextView part) {
  return std::search(text.begin(), text.end(), part.begin(), part.end(),
                     [](Char x, Char y) { return Folded(x) == Folded(y); }) != text.end();
}

}  // namespace orvane
