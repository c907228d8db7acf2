// Formulas and equations as people write them, turned into what the calculators read: hydrate dots, square
// brackets and lowered digits are understood, blanks around terms do not count.
#pragma once

#include <string>

#include "base/text.h"

namespace orvane {

// A text that could be read, or the reason why it could not.
struct Reading {
  Text text;
  std::string error;
};

// A formula without blanks around it. A dot (· U+00B7, • U+2022 or *) and the number behind it, if there is
// one, mean so many of what follows, up to the next dot or the end of the brackets it stands in: "CuSO4·5H2O"
// is "CuSO4(H2O)5". A full stop is refused, since it could be a dot or a decimal point.
Reading ReadFormula(TextView typed);

// One side of an equation, read term by term; a coefficient may stand in front of each.
Reading ReadSide(TextView typed);

// The two sides of an equation, apart by =, -> or →.
struct EquationReading {
  Text left;
  Text right;
  std::string error;
};
EquationReading ReadEquation(TextView typed);

}  // namespace orvane
