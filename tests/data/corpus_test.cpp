// Every input kept for the fuzz targets of this room, through the same checks.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "fuzz/constants_entry.h"
#include "fuzz/help_entry.h"
#include "fuzz/periodic_entry.h"
#include "fuzz/settings_entry.h"
#include "tests/data/temp_folder.h"

namespace orvane {
namespace {

std::vector<std::string> CorpusOf(const std::string& target) {
  const std::filesystem::path folder = std::filesystem::path(ORVANE_SOURCE_DIR) / "fuzz" / "corpus" / target;
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    files.push_back(entry.path().string());
  std::sort(files.begin(), files.end());
  EXPECT_FALSE(files.empty());
  return files;
}

TEST(CorpusTest, ElementsDatabases) {
  testing::TempFolder folder;
  for (const std::string& file : CorpusOf("fuzz_periodic")) {
    SCOPED_TRACE(file);
    fuzz::CheckPeriodic(testing::ReadBytes(file), folder.File("periodic.dat"));
  }
}

TEST(CorpusTest, ConstantsFiles) {
  testing::TempFolder folder;
  for (const std::string& file : CorpusOf("fuzz_constants")) {
    SCOPED_TRACE(file);
    fuzz::CheckConstants(testing::ReadBytes(file), folder.File("constants.dat"));
  }
}

TEST(CorpusTest, HelpFiles) {
  testing::TempFolder folder;
  for (const std::string& file : CorpusOf("fuzz_help")) {
    SCOPED_TRACE(file);
    fuzz::CheckHelp(testing::ReadBytes(file), folder.File("help.dat"));
  }
}

TEST(CorpusTest, SettingsFiles) {
  for (const std::string& file : CorpusOf("fuzz_settings")) {
    SCOPED_TRACE(file);
    fuzz::CheckSettings(testing::ReadBytes(file));
  }
}

}  // namespace
}  // namespace orvane
