// A folder of its own for one test, gone afterwards.
#pragma once

#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace orvane::testing {

class TempFolder {
 public:
  TempFolder() {
    static std::atomic<long long> next{std::chrono::system_clock::now().time_since_epoch().count()};
    const std::filesystem::path root = std::filesystem::temp_directory_path();
    do {
      path_ = root / ("orvane-test-" + std::to_string(next++));
    } while (!std::filesystem::create_directory(path_));
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  std::string File(std::string_view name) const { return (path_ / name).string(); }
  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

inline void WriteBytes(const std::string& path, std::string_view bytes) {
  std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

inline std::string ReadBytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace orvane::testing
