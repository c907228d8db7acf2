#include "tests/content/element_facts.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <set>
#include <sstream>

#include "content/table.h"
#include "tests/data/temp_folder.h"

namespace orvane::testing {

namespace {

constexpr const char* kFolder = ORVANE_SOURCE_DIR "/content/facts/elements";
constexpr const char* kNone = "-";

std::vector<std::string> Split(const std::string& text, const std::string& separator) {
  std::vector<std::string> parts;
  std::size_t begin = 0;
  for (;;) {
    const std::size_t end = text.find(separator, begin);
    parts.push_back(text.substr(begin, end == std::string::npos ? end : end - begin));
    if (end == std::string::npos) return parts;
    begin = end + separator.size();
  }
}

// False when a pair has no key or no figure.
bool ReadFigures(const std::string& cell, std::vector<Figure>& figures) {
  if (cell == kNone) return true;
  for (const std::string& pair : Split(cell, " | ")) {
    const std::size_t equals = pair.find('=');
    if (equals == 0 || equals == std::string::npos || equals + 1 == pair.size()) return false;
    figures.push_back({pair.substr(0, equals), pair.substr(equals + 1)});
  }
  return true;
}

int SmallNumber(const std::string& text) {
  if (text.empty() || text.size() > 4 || text.find_first_not_of("0123456789") != std::string::npos) return -1;
  return std::stoi(text);
}

std::set<std::string> Parts(const std::string& text) {
  std::set<std::string> parts;
  for (const std::string& piece : Split(text, "; also ")) {
    for (const std::string& part : Split(piece, ", ")) parts.insert(part);
  }
  return parts;
}

// Half a unit of the last digit that counts.
double HalfUnit(const std::string& value) {
  const std::size_t point = value.find('.');
  if (point != std::string::npos) return 0.5 * std::pow(10.0, -static_cast<double>(value.size() - point - 1));
  return value.size() >= 3 && value.back() == '0' ? 5.0 : 0.5;
}

}  // namespace

std::vector<FactLine> ReadFacts(const std::string& file, const std::string& content,
                                std::vector<std::string>& problems) {
  enum Column { kId, kElement, kAccepted, kSetAside, kReason, kColumns };
  const std::vector<std::string> header = {"id", "element", "accepted", "set aside", "reason"};
  std::vector<FactLine> lines;
  const Table table = ReadTable(file, content);
  for (const TableRow& row : table.rows) {
    FactLine line;
    line.place = file + ":" + std::to_string(row.line);
    if (&row == table.rows.data()) {
      if (row.cells != header) problems.push_back(line.place + ": not the header of a table of facts");
      continue;
    }
    if (row.cells.size() != kColumns) {
      problems.push_back(line.place + ": " + std::to_string(row.cells.size()) + " cells");
      continue;
    }
    line.id = SmallNumber(row.cells[kId]);
    line.element = SmallNumber(row.cells[kElement]);
    line.reason = row.cells[kReason] == kNone ? "" : row.cells[kReason];
    if (line.id < 0 || line.element < 1 || line.element > 112 ||
        !ReadFigures(row.cells[kAccepted], line.accepted) ||
        !ReadFigures(row.cells[kSetAside], line.setAside)) {
      problems.push_back(line.place + ": a malformed number or figure");
      continue;
    }
    lines.push_back(std::move(line));
  }
  return lines;
}

std::vector<FactLine> ReadAllFacts(std::vector<std::string>& problems) {
  std::vector<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::directory_iterator(kFolder)) {
    if (entry.path().extension() == ".tsv") paths.push_back(entry.path());
  }
  std::sort(paths.begin(), paths.end());
  std::vector<FactLine> all;
  for (const auto& path : paths) {
    for (FactLine& line : ReadFacts(path.filename().string(), ReadBytes(path.string()), problems)) {
      all.push_back(std::move(line));
    }
  }
  return all;
}

std::string PlainText(TextView text) {
  Text plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == 1) {
      ++i;  // the code's flags
    } else {
      plain += text[i];
    }
  }
  return ToUtf8(plain);
}

double NumberOf(const std::string& text) {
  std::istringstream in(!text.empty() && text.front() == '[' ? text.substr(1) : text);
  in.imbue(std::locale::classic());
  double value = -1;
  in >> value;
  return value;
}

std::string CheckNumber(const std::string& value, const std::vector<Figure>& accepted) {
  if (accepted.empty()) return "no accepted figure";
  double low = NumberOf(accepted.front().text);
  double high = low;
  for (const Figure& figure : accepted) {
    low = std::min(low, NumberOf(figure.text));
    high = std::max(high, NumberOf(figure.text));
  }
  // The last part allows for numbers such as 0.15 that binary digits only approach.
  const double slack = HalfUnit(value) * (1 + 1e-9) + 1e-12 * high;
  const double number = NumberOf(value);
  if (number >= low - slack && number <= high + slack) return {};
  std::ostringstream message;
  message.imbue(std::locale::classic());
  message << value << " is not between " << low << " and " << high;
  return message.str();
}

std::string CheckText(const std::string& value, const std::vector<Figure>& accepted) {
  std::set<std::string> known;
  for (const Figure& figure : accepted) known.merge(Parts(figure.text));
  for (const std::string& part : Parts(value)) {
    if (known.count(part) == 0) return "\"" + part + "\" is in no accepted text";
  }
  return {};
}

}  // namespace orvane::testing
