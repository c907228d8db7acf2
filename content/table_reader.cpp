#include "content/table_reader.h"

#include <algorithm>

#include "content/cell_text.h"

namespace orvane {

std::string Quoted(std::string_view text) { return "\"" + std::string(text) + "\""; }

std::set<std::string> ReadSourceKeys(const std::string& file, std::string_view markdown,
                                     std::vector<TableProblem>& problems) {
  constexpr std::string_view kHeading = "## ";
  std::set<std::string> keys;
  for (int number = 1; !markdown.empty(); ++number) {
    const std::size_t end = std::min(markdown.find('\n'), markdown.size());
    const std::string_view line = markdown.substr(0, end);
    if (line.substr(0, kHeading.size()) == kHeading) {
      const std::string_view key = line.substr(kHeading.size());
      if (!keys.emplace(key).second) {
        problems.push_back({file, number, 0, Quoted(key) + " has a heading already"});
      }
    }
    markdown.remove_prefix(std::min(end + 1, markdown.size()));
  }
  return keys;
}

void TableReader::Add(const TableRow& row, std::size_t column, std::string message) {
  problems_.push_back({table_.file, row.line, static_cast<int>(column) + 1, std::move(message)});
}

void TableReader::Add(std::string message) { problems_.push_back({table_.file, 0, 0, std::move(message)}); }

bool TableReader::HasWidth(const TableRow& row, std::size_t width) {
  if (row.cells.size() == width) return true;
  Add(row, std::min(row.cells.size(), width),
      std::to_string(row.cells.size()) + " columns where " + std::to_string(width) + " are due");
  return false;
}

bool TableReader::NotBlankEdged(const TableRow& row, std::size_t column) {
  const std::string& cell = row.cells[column];
  if (cell.empty()) {
    Add(row, column, "an empty cell (write - for no value)");
    return false;
  }
  if (cell.front() == ' ' || cell.back() == ' ') {
    Add(row, column, "a blank at the edge of a cell");
    return false;
  }
  return true;
}

void TableReader::CheckSourceKey(const TableRow& row, std::size_t column, const std::string& key) {
  if (sourceKeys_.count(key) == 0) Add(row, column, "no source " + Quoted(key) + " is described");
}

Text TableReader::FieldText(const TableRow& row, std::size_t column, std::string_view cell,
                            std::size_t limit) {
  CellText parsed = ParseCellText(cell);
  if (!parsed.problem.empty()) {
    Add(row, column, parsed.problem);
    return {};
  }
  if (parsed.text.empty()) Add(row, column, "an empty text");
  if (parsed.text.size() > limit) {
    Add(row, column,
        std::to_string(parsed.text.size()) + " characters where at most " + std::to_string(limit) + " fit");
  }
  return parsed.text;
}

}  // namespace orvane
