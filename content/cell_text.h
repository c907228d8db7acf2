// How the text of one value stands in a table of the content, and back.
//
// A table is UTF-8. Characters that cannot be seen, or that the table's layout uses, are written:
//   ^{...}    raised text: U+0001 U+00A0 in front, U+0001 U+0020 (plain) behind
//   _{...}    lowered text: U+0001 U+0060 in front, U+0001 U+0020 behind
//   \n        line feed, the only control character besides the style codes that a text may hold
//   \uXXXX    the 16-bit unit with this hexadecimal number: any other style code, a lone surrogate, or a
//             blank at either end
//   \\ \^ \_ \@ \-   the character itself
// Both ways are exact: ParseCellText(WriteCellText(t)) == t for every text whose units are allowed.
#pragma once

#include <string>
#include <string_view>

#include "base/text.h"

namespace orvane {

struct CellText {
  Text text;
  std::string problem;  // empty when the cell is well formed, else what is wrong, as a clause in English
};

// The text of a cell (UTF-8, without its tabulators). Refused: bytes that are not UTF-8, raw control
// characters, unknown escapes, an unclosed or nested brace form, a style code whose flags are missing or
// zero, and control characters other than line feed and style code, which no screen can show.
CellText ParseCellText(std::string_view cell);

// The cell of a text. A raised or lowered run that ends in the plain style uses the brace form.
std::string WriteCellText(TextView text);

}  // namespace orvane
