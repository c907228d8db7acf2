// orvane-content: builds the data files of the programs from their readable sources.
//
//   orvane-content elements OUT SOURCES.md TABLE...    tables in the order of their categories
//
// Exit status: 0 when the file was written, 1 when a source is wrong (each problem on a line of standard
// error; nothing is written), 2 for wrong usage.
#include <iostream>

#include "content/elements_source.h"
#include "data/file_replace.h"

namespace {

using orvane::ProblemText;
using orvane::Table;
using orvane::TableProblem;

constexpr std::size_t kMostProblemsShown = 100;
constexpr std::size_t kLargestSource = 64 * 1024 * 1024;

void ShowProblems(const std::vector<TableProblem>& problems) {
  for (std::size_t i = 0; i < problems.size() && i < kMostProblemsShown; ++i) {
    std::cerr << ProblemText(problems[i]) << '\n';
  }
  if (problems.size() > kMostProblemsShown) {
    std::cerr << "... and " << problems.size() - kMostProblemsShown << " more\n";
  }
}

int CompileElements(const std::string& outPath, const std::string& sourcesPath,
                    const std::vector<std::string>& tablePaths) {
  std::vector<TableProblem> problems;
  const auto read = [&problems](const std::string& path) {
    orvane::FileContent file = orvane::ReadWholeFile(path, kLargestSource);
    if (file.state != orvane::FileState::kRead) problems.push_back({path, 0, 0, "cannot be read"});
    return std::move(file.bytes);
  };
  const std::string sources = read(sourcesPath);
  std::vector<Table> tables;
  for (const std::string& path : tablePaths) tables.push_back(orvane::ReadTable(path, read(path)));
  if (problems.empty()) {
    const orvane::ElementsSource elements =
        orvane::ReadElements(tables, orvane::ReadSourceKeys(sources), problems);
    if (problems.empty() && orvane::ReplaceFile(outPath, orvane::EncodeElements(elements))) return 0;
    if (problems.empty()) problems.push_back({outPath, 0, 0, "cannot be written"});
  }
  ShowProblems(problems);
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> words(argv + 1, argv + argc);
  if (words.size() < 4 || words[0] != "elements") {
    std::cerr << "usage: orvane-content elements OUT SOURCES.md TABLE...\n";
    return 2;
  }
  return CompileElements(words[1], words[2], {words.begin() + 3, words.end()});
}
