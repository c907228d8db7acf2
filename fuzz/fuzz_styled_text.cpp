#include <cstdint>

#include "fuzz/styled_text_entry.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  orvane::fuzz::CheckStyledText({reinterpret_cast<const char*>(data), size});
  return 0;
}
