// Every input kept for the fuzz targets of formulas and equations, through the same checks.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "fuzz/equation_entry.h"
#include "fuzz/formula_entry.h"
#include "tests/data/temp_folder.h"

namespace orvane::testing {
namespace {

template <class Check>
void CheckCorpus(const std::string& target, Check check) {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(ORVANE_SOURCE_DIR "/fuzz/corpus/" + target)) {
    files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  EXPECT_FALSE(files.empty());
  for (const std::filesystem::path& path : files) {
    SCOPED_TRACE(path.string());
    check(ReadBytes(path.string()));
  }
}

TEST(CorpusTest, Formulas) {
  CheckCorpus("fuzz_formula", [](const std::string& bytes) { fuzz::CheckFormulaText(bytes); });
}

TEST(CorpusTest, Equations) {
  CheckCorpus("fuzz_equation", [](const std::string& bytes) { fuzz::CheckEquationText(bytes); });
}

}  // namespace
}  // namespace orvane::testing
