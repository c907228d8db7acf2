// Figures as they are written, digit by digit, and the arithmetic that checks them. Nothing here follows the
// locale, and no figure passes through a binary number where its digits matter.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/text.h"

namespace orvane {

// ± digits × 10^exponent, the digits a whole number with every zero that was written.
struct Decimal {
  bool negative = false;
  std::string digits;
  int exponent = 0;   // of the last digit
  bool open = false;  // more digits follow
  friend bool operator==(const Decimal&, const Decimal&) = default;
};

// A figure of a table of facts: "1.38e-23", "8.314...", "-4.66...e-4". Nothing when it is none.
std::optional<Decimal> ParseDecimal(std::string_view text);

// A figure as the screens show it: an en dash for a minus, digits in groups of three from the point on either
// side that has more than four (a last single digit stays with the group before it), and perhaps
// U+00D7, 10 and a raised exponent. Nothing when it is written otherwise.
std::optional<Decimal> ParseShownFigure(TextView text);

// The figure as the screens show it; the exponent of the decimal's own writing is kept apart: `shift` is the
// power of ten that is written out, 0 for none.
Text ShowFigure(const Decimal& figure, int shift);

long double ValueOf(const Decimal& figure);

// One in the last digit's place.
long double LastPlace(const Decimal& figure);

class Facts;

struct Evaluation {
  long double value = 0;
  std::string problem;  // empty when all went well
};

// A formula: decimals, pi, the value of a fact in braces, + - * /, ^ with a whole exponent, brackets,
// sqrt(...), exp10(...). A fact whose digits go on is refused.
Evaluation Evaluate(std::string_view formula, const Facts& facts);

}  // namespace orvane
