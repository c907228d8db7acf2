// Style codes inside texts. The character U+0001 begins a code and the next character holds its flags; the
// code applies until the next one, takes two characters and has no width. Further: character 10 ends a line,
// a space is where a line may be broken, character 0 ends the text.
#pragma once

#include <cstddef>

#include "base/text.h"

namespace orvane {

inline constexpr Char kStyleMark = 0x0001;
inline constexpr Char kNewLine = 0x000A;

// The flags that texts are written with: of every meaning the printable character that has it.
inline constexpr Char kPlainFlags = u' ';
inline constexpr Char kLoweredFlags = u'`';
inline constexpr Char kRaisedFlags = 0x00A0;

// Where text stands against the line: subscripts are lowered, superscripts raised.
enum class TextPosition { kNormal = 0, kLowered = 1, kRaised = 2 };

struct TextStyle {
  bool bold = false;
  bool italic = false;
  TextPosition position = TextPosition::kNormal;
  friend bool operator==(const TextStyle&, const TextStyle&) = default;
};

// The style of a flags character: bit 0 bold, bit 1 italic, bit 6 lowered, bit 7 raised, which wins over
// bit 6. So "!" is bold, a space plain, "\"" italic, "#" both, "`" lowered and U+00A0 raised.
TextStyle StyleFromFlags(Char flags);

// One step of a walk through a text: a style code, a character, or the end.
struct StyledStep {
  enum class Kind { kEnd, kCode, kCharacter } kind = Kind::kEnd;
  Char value = 0;          // the code's flags, or the character
  std::size_t length = 0;  // how many characters of the text it takes
};
// The step at the front of the rest of a text. A code whose flags are missing or are character 0 ends the
// text.
StyledStep FirstStep(TextView rest);

// The number of characters without style codes, up to the end of the text.
int VisibleLength(TextView text);

// The visible characters first .. first + count − 1 with the codes between them; in front stands the code in
// force at the first of them, when there is one. A range outside the text is cut to it.
Text CopyVisible(TextView text, int first, int count);

// The text without its codes.
Text WithoutCodes(TextView text);

}  // namespace orvane
