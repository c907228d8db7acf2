#include <cstdint>

#include "fuzz/filter_entry.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  orvane::fuzz::CheckFilter({reinterpret_cast<const char*>(data), size});
  return 0;
}
