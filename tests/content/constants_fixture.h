// The tables of the constants and of their facts, read as the build reads them.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "base/styled_text.h"
#include "content/constants_source.h"
#include "content/figures.h"
#include "content/table_reader.h"
#include "tests/data/temp_folder.h"

namespace orvane::testing {

inline const std::filesystem::path kContent = ORVANE_SOURCE_DIR "/content";

inline std::vector<std::string> TablesOf(const char* folder) {
  std::vector<std::string> paths;
  for (const auto& entry : std::filesystem::directory_iterator(kContent / folder)) {
    if (entry.path().extension() == ".tsv") paths.push_back(entry.path().string());
  }
  std::sort(paths.begin(), paths.end());
  return paths;
}

class ConstantsContent : public ::testing::Test {
 protected:
  void SetUp() override {
    const std::string sources = (kContent / "SOURCES.md").string();
    const std::set<std::string> keys = ReadSourceKeys(sources, ReadBytes(sources), problems_);
    for (const std::string& path : TablesOf("facts")) {
      facts_.Read(ReadTable(path, ReadBytes(path)), keys, problems_);
    }
    std::vector<Table> tables;
    for (const std::string& path : TablesOf("constants")) tables.push_back(ReadTable(path, ReadBytes(path)));
    source_ = ReadConstants(tables, keys, problems_);
    ASSERT_THAT(Problems(), ::testing::IsEmpty());
  }

  std::vector<std::string> Problems() const {
    std::vector<std::string> texts;
    for (const TableProblem& problem : problems_) texts.push_back(ProblemText(problem));
    return texts;
  }
  void ForEach(const std::function<void(const ConstCategorySource&, const ConstantSource&)>& visit) const {
    for (const ConstCategorySource& category : source_) {
      for (const ConstGroupSource& group : category.groups) {
        for (const ConstantSource& constant : group.constants) {
          SCOPED_TRACE(ToUtf8(category.name) + ": " + ToUtf8(WithoutCodes(constant.entry.name)));
          visit(category, constant);
        }
      }
    }
  }
  const ConstEntry& Named(TextView name) const {
    static const ConstEntry kNothing;
    const ConstEntry* found = &kNothing;
    ForEach([&](const ConstCategorySource&, const ConstantSource& constant) {
      if (constant.entry.name == name) found = &constant.entry;
    });
    return *found;
  }

  Facts facts_;
  ConstantsSource source_;
  std::vector<TableProblem> problems_;
};

}  // namespace orvane::testing
