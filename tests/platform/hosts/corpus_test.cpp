// Every play script kept for the fuzz target, through the same checks.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "fuzz/play_entry.h"

namespace orvane {
namespace {

TEST(PlayCorpus, IsReadSoundly) {
  const std::filesystem::path folder =
      std::filesystem::path(ORVANE_SOURCE_DIR) / "fuzz" / "corpus" / "fuzz_play";
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    SCOPED_TRACE(entry.path().string());
    std::ifstream file(entry.path(), std::ios::binary);
    fuzz::CheckPlayScript(std::string(std::istreambuf_iterator<char>(file), {}));
    ++count;
  }
  EXPECT_GT(count, 0);
}

}  // namespace
}  // namespace orvane
