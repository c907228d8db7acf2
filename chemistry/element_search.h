// Finds elements by what somebody has typed of them: the beginning of their number, symbol or name.
#pragma once

#include <array>
#include <vector>

#include "base/text.h"

namespace orvane {

inline constexpr int kSearchedElements = 112;

// What an element may be called besides its atomic number. Empty where the data has nothing.
struct ElementNames {
  TextView symbol;
  TextView name;
};
using NamesOfElements = std::array<ElementNames, kSearchedElements>;  // by index: atomic number less one

// Whether the text begins with the prefix; ASCII letters count in either case.
bool BeginsWith(TextView text, TextView prefix);

// The indices of the elements whose number, symbol or name begins with the text, rising; all of them for an
// empty text.
std::vector<int> FindElements(TextView text, const NamesOfElements& names);

}  // namespace orvane
