// docs/data/contested-values.md says what the tables and the facts say.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include "tests/content/elements_report.h"
#include "tests/data/temp_folder.h"

namespace orvane::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST(ElementsReport, IsThePageInTheDocuments) {
  std::vector<std::string> problems;
  const std::vector<FactLine> facts = ReadAllFacts(problems);
  ASSERT_THAT(problems, IsEmpty());
  const ContentTables tables = LoadContentTables();
  ASSERT_THAT(tables.problems, IsEmpty());
  const std::string report = ElementsReport(tables, facts);
  const std::string path = ORVANE_SOURCE_DIR "/docs/data/contested-values.md";
  if (std::getenv("ORVANE_ACCEPT") != nullptr) {
    std::ofstream(path, std::ios::binary) << report;
    return;
  }
  EXPECT_TRUE(ReadBytes(path) == report)
      << path << " is out of date: ORVANE_ACCEPT=1 build/bin/test-content writes it anew";
}

TEST(ElementsReport, ListsCoverageAndWhatWasSetAside) {
  ContentTables tables;
  PropertySource symbol{0, u"Symbol", false, u"", "book", {}, {}};
  symbol.values[1] = u"He";
  PropertySource point{34, u"Melting point", true, u" K", "book", {}, {}};
  point.values[0] = u"14.0";
  point.values[1] = u"0.95";
  point.valueSources[1] = "web";
  tables.source.categories.push_back({u"Test", {symbol, point}});
  const std::vector<FactLine> facts = {{"t:2", 34, 1, {{"book", "14"}}, {}, ""},
                                       {"t:3", 34, 2, {{"web", "0.95"}}, {{"book", "1.2|3"}}, "newer"},
                                       {"t:4", 34, 3, {}, {{"book", "5"}}, "estimate"}};
  const std::string report = ElementsReport(tables, facts);
  EXPECT_THAT(report, HasSubstr("| 34 | 0, 1 | Melting point | K | yes | 2 | `book`, 1 from `web` |\n"));
  EXPECT_THAT(report,
              HasSubstr("### Melting point\n\n| element | value | set aside | why |\n|---|---|---|---|\n"
                        "| He | 0.95 | 1.2\\|3 (book) | newer |\n|  | – | 5 (book) | estimate |\n"));
}

}  // namespace
}  // namespace orvane::testing
