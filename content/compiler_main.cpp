// orvane-content: builds the data files of the programs from their readable sources.
//
//   orvane-content elements OUT SOURCES.md TABLE...    tables in the order of their categories
//   orvane-content constants OUT SOURCES.md TABLE...   the same, with tables of facts among them
//   orvane-content help OUT PAGE...                    the manual's pages and its contents.md
//   orvane-content manual FOLDER PAGE...               the same as plain Markdown, a file for each page
//
// Exit status: 0 when the file was written, 1 when a source is wrong (each problem on a line of standard
// error; nothing is written), 2 for wrong usage.
#include <filesystem>
#include <iostream>

#include "content/constants_source.h"
#include "content/elements_source.h"
#include "content/help_source.h"
#include "content/table_reader.h"
#include "data/file_replace.h"

namespace {

using orvane::HelpSource;
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

std::string Read(const std::string& path, std::vector<TableProblem>& problems) {
  orvane::FileContent file = orvane::ReadWholeFile(path, kLargestSource);
  if (file.state != orvane::FileState::kRead) problems.push_back({path, 0, 0, "cannot be read"});
  return std::move(file.bytes);
}

void Write(const std::string& path, const std::string& bytes, std::vector<TableProblem>& problems) {
  if (!orvane::ReplaceFile(path, bytes)) problems.push_back({path, 0, 0, "cannot be written"});
}

int Finish(const std::vector<TableProblem>& problems) {
  ShowProblems(problems);
  return problems.empty() ? 0 : 1;
}

int CompileElements(const std::string& outPath, const std::string& sourcesPath,
                    const std::vector<std::string>& tablePaths) {
  std::vector<TableProblem> problems;
  const std::set<std::string> keys =
      orvane::ReadSourceKeys(sourcesPath, Read(sourcesPath, problems), problems);
  std::vector<Table> tables;
  for (const std::string& path : tablePaths) tables.push_back(orvane::ReadTable(path, Read(path, problems)));
  if (problems.empty()) {
    const orvane::ElementsSource elements = orvane::ReadElements(tables, keys, problems);
    if (problems.empty()) Write(outPath, orvane::EncodeElements(elements), problems);
  }
  return Finish(problems);
}

// Tables of facts say so in their first line; all others are categories.
int CompileConstants(const std::string& outPath, const std::string& sourcesPath,
                     const std::vector<std::string>& tablePaths) {
  std::vector<TableProblem> problems;
  const std::set<std::string> keys =
      orvane::ReadSourceKeys(sourcesPath, Read(sourcesPath, problems), problems);
  orvane::Facts facts;
  std::vector<Table> tables;
  for (const std::string& path : tablePaths) {
    Table table = orvane::ReadTable(path, Read(path, problems));
    if (IsFactTable(table)) {
      facts.Read(table, keys, problems);
    } else {
      tables.push_back(std::move(table));
    }
  }
  if (problems.empty()) {
    const orvane::ConstantsSource constants = orvane::ReadConstants(tables, keys, problems);
    if (problems.empty()) CheckFigures(constants, facts, problems);
    if (problems.empty()) Write(outPath, orvane::EncodeConstants(constants), problems);
  }
  return Finish(problems);
}

HelpSource ReadPages(const std::vector<std::string>& paths, std::vector<TableProblem>& problems) {
  std::map<std::string, std::string> files;
  for (const std::string& path : paths) {
    files[std::filesystem::path(path).filename().string()] = Read(path, problems);
  }
  return problems.empty() ? orvane::ReadHelp(files, problems) : HelpSource();
}

int CompileHelp(const std::string& outPath, const std::vector<std::string>& pagePaths) {
  std::vector<TableProblem> problems;
  const HelpSource help = ReadPages(pagePaths, problems);
  if (problems.empty()) Write(outPath, orvane::EncodeHelp(help), problems);
  return Finish(problems);
}

int WriteManual(const std::string& folder, const std::vector<std::string>& pagePaths) {
  std::vector<TableProblem> problems;
  const HelpSource help = ReadPages(pagePaths, problems);
  if (problems.empty()) {
    for (const auto& [name, text] : orvane::WriteManual(help)) Write(folder + "/" + name, text, problems);
  }
  return Finish(problems);
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> words(argv + 1, argv + argc);
  if (words.size() >= 4 && words[0] == "elements") {
    return CompileElements(words[1], words[2], {words.begin() + 3, words.end()});
  }
  if (words.size() >= 4 && words[0] == "constants") {
    return CompileConstants(words[1], words[2], {words.begin() + 3, words.end()});
  }
  if (words.size() >= 3 && words[0] == "help") return CompileHelp(words[1], {words.begin() + 2, words.end()});
  if (words.size() >= 3 && words[0] == "manual")
    return WriteManual(words[1], {words.begin() + 2, words.end()});
  std::cerr << "usage: orvane-content elements OUT SOURCES.md TABLE...\n"
               "       orvane-content constants OUT SOURCES.md TABLE...\n"
               "       orvane-content help OUT PAGE...\n"
               "       orvane-content manual FOLDER PAGE...\n";
  return 2;
}
