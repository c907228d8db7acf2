#include <cstdint>

#include "fuzz/equation_entry.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  orvane::fuzz::CheckEquationText({reinterpret_cast<const char*>(data), size});
  return 0;
}
