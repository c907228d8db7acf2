#include <cstdint>

#include "fuzz/play_entry.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  orvane::fuzz::CheckPlayScript({reinterpret_cast<const char*>(data), size});
  return 0;
}
