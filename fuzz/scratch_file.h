// The file through which a fuzz target gives its input to a reader of files.
#pragma once

#include <unistd.h>

#include <filesystem>
#include <string>

namespace orvane::fuzz {

// A path among the temporary files of this process alone. What stands there is gone at the end.
class ScratchFile {
 public:
  explicit ScratchFile(const std::string& name)
      : path_((std::filesystem::temp_directory_path() / (name + '-' + std::to_string(::getpid()))).string()) {
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

}  // namespace orvane::fuzz
