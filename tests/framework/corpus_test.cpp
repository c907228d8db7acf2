// Every input kept for the fuzz target of styled texts, through the same checks.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "fuzz/styled_text_entry.h"

namespace orvane {
namespace {

std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(CorpusTest, StyledTexts) {
  const std::filesystem::path folder =
      std::filesystem::path(ORVANE_SOURCE_DIR) / "fuzz" / "corpus" / "fuzz_styled_text";
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  ASSERT_FALSE(files.empty());
  for (const std::filesystem::path& file : files) {
    SCOPED_TRACE(file.filename().string());
    fuzz::CheckStyledText(BytesOf(file));
  }
}

TEST(CorpusTest, AnInputIsSixNumbersAndATextInUnits) {
  const auto input =
      fuzz::ReadStyledInput(std::string_view("\x05\x14\x1E\xFF\x02\x03"
                                             "a\0b\1c",
                                             11));
  EXPECT_EQ(input.clip, (Rect{5, 0, 25, 30}));
  EXPECT_EQ(input.x, 4);
  EXPECT_EQ(input.first, 2);
  EXPECT_EQ(input.count, 3);
  EXPECT_EQ(input.text, u"a\u0162");
}

}  // namespace
}  // namespace orvane
