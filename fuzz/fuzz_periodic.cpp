#include <cstdint>

#include "fuzz/periodic_entry.h"
#include "fuzz/scratch_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const orvane::fuzz::ScratchFile file("fuzz-periodic");
  orvane::fuzz::CheckPeriodic({reinterpret_cast<const char*>(data), size}, file.Path());
  return 0;
}
