#include <cstdint>

#include "fuzz/formula_entry.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  orvane::fuzz::CheckFormulaText({reinterpret_cast<const char*>(data), size});
  return 0;
}
