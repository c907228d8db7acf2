// What is wrong with an equation before anybody tries to balance it.
#pragma once

#include <optional>

#include "base/text.h"
#include "chemistry/formula_tokens.h"

namespace orvane {

struct EquationFault {
  TextView title;  // tells the side
  TextView text;
};

// The first fault, or nothing. The checks go side by side, the left first: is it empty; is everything
// recognised; are the brackets in order; does every token fit the one before it; does it end in a
// coefficient.
//
// The first token of the right side is compared with the last one of the left, as if the sides were written
// one behind the other. So "h+" with "+h" has an empty term on the right side.
std::optional<EquationFault> CheckEquation(const FormulaTokens& left, const FormulaTokens& right);

}  // namespace orvane
