#include "content/table.h"

namespace orvane {

namespace {

std::vector<std::string> Cells(std::string_view line) {
  std::vector<std::string> cells;
  for (;;) {
    const std::size_t tab = line.find('\t');
    cells.emplace_back(line.substr(0, tab));
    if (tab == std::string_view::npos) return cells;
    line.remove_prefix(tab + 1);
  }
}

bool IsNote(std::string_view line) { return line.empty() || line == "#" || line.substr(0, 2) == "# "; }

}  // namespace

std::string ProblemText(const TableProblem& problem) {
  std::string out = problem.file;
  if (problem.line > 0) out += ":" + std::to_string(problem.line);
  if (problem.line > 0 && problem.column > 0) out += ":" + std::to_string(problem.column);
  return out + ": " + problem.message;
}

Table ReadTable(std::string_view file, std::string_view content) {
  Table table{std::string(file), {}};
  for (int line = 1; !content.empty(); ++line) {
    const std::size_t end = content.find('\n');
    const std::string_view text = content.substr(0, end);
    if (!IsNote(text)) table.rows.push_back({line, Cells(text)});
    if (end == std::string_view::npos) break;
    content.remove_prefix(end + 1);
  }
  return table;
}

int SmallNumber(std::string_view text) {
  if (text.empty() || text.size() > 5) return -1;
  int value = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') return -1;
    value = value * 10 + (c - '0');
  }
  return value;
}

}  // namespace orvane
