#include "tests/content/content_tables.h"

#include <algorithm>
#include <filesystem>

#include "content/table_reader.h"
#include "tests/data/temp_folder.h"

namespace orvane::testing {

ContentTables LoadContentTables() {
  const std::filesystem::path content = ORVANE_SOURCE_DIR "/content";
  std::vector<std::string> paths;
  for (const auto& entry : std::filesystem::directory_iterator(content / "elements")) {
    if (entry.path().extension() == ".tsv") paths.push_back(entry.path().string());
  }
  std::sort(paths.begin(), paths.end());
  std::vector<Table> tables;
  for (const std::string& path : paths) tables.push_back(ReadTable(path, ReadBytes(path)));

  ContentTables result;
  std::vector<TableProblem> problems;
  const std::string sources = (content / "SOURCES.md").string();
  result.sourceKeys = ReadSourceKeys(sources, ReadBytes(sources), problems);
  result.source = ReadElements(tables, result.sourceKeys, problems);
  for (const TableProblem& problem : problems) result.problems.push_back(ProblemText(problem));
  return result;
}

}  // namespace orvane::testing
