#include <unistd.h>

#include <cstdint>
#include <filesystem>

#include "fuzz/help_entry.h"

namespace {

// One file for the whole run, gone at its end.
class ScratchFile {
 public:
  ScratchFile()
      : path_(
            (std::filesystem::temp_directory_path() / ("fuzz-help-" + std::to_string(::getpid()))).string()) {
  }
  ~ScratchFile() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
  }
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;
  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const ScratchFile file;
  orvane::fuzz::CheckHelp({reinterpret_cast<const char*>(data), size}, file.Path());
  return 0;
}
