// Every input kept for the fuzz targets of this room, through the same checks.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "fuzz/filter_entry.h"

namespace orvane {
namespace {

TEST(CorpusTest, Filters) {
  std::vector<std::filesystem::path> files;
  for (const auto& entry :
       std::filesystem::directory_iterator(ORVANE_SOURCE_DIR "/fuzz/corpus/fuzz_filter")) {
    files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  EXPECT_FALSE(files.empty());
  for (const std::filesystem::path& path : files) {
    SCOPED_TRACE(path.string());
    std::ifstream file(path, std::ios::binary);
    fuzz::CheckFilter(std::string(std::istreambuf_iterator<char>(file), {}));
  }
}

}  // namespace
}  // namespace orvane
