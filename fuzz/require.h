// What must hold for every input of a fuzz target.
#pragma once

#include <cstdlib>

namespace orvane::fuzz {

// Ends the program when it does not hold, which the fuzzer and the tests notice alike.
inline void Require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace orvane::fuzz
