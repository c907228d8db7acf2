// Tables of cases in text files that a chemist can read and add to: one case a line, columns apart by blanks.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "base/text.h"
#include "chemistry/element_table.h"

namespace orvane::testing {

// \uXXXX stands for that character, lone surrogates and zero too.
inline Text Unescaped(const std::string& utf8) {
  const Text text = FromUtf8(utf8);
  Text out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text.compare(i, 2, u"\\u") != 0 || i + 6 > text.size()) {
      out += text[i];
      continue;
    }
    int value = 0;
    for (std::size_t k = i + 2; k < i + 6; ++k) value = value * 16 + HexDigitValue(text[k]);
    out += static_cast<Char>(value);
    i += 5;
  }
  return out;
}

struct TableLine {
  std::string file;
  int number = 0;
  std::string text;
};

// The lines of tests/chemistry/NAME but empty ones and comments.
inline std::vector<TableLine> ReadTable(const std::string& name) {
  std::ifstream file(std::string(ORVANE_SOURCE_DIR "/tests/chemistry/") + name);
  EXPECT_TRUE(file) << name;
  std::vector<TableLine> lines;
  std::string text;
  for (int number = 1; std::getline(file, text); ++number) {
    if (!text.empty() && text.front() != '#') lines.push_back({name, number, text});
  }
  EXPECT_FALSE(lines.empty()) << name;
  return lines;
}

inline std::string Where(const TableLine& line) {
  return line.file + ":" + std::to_string(line.number) + ": " + line.text;
}

// The columns of a line: words, or quoted texts, or what stands between tabs or two blanks at least.
inline std::vector<std::string> Columns(const std::string& line) {
  std::vector<std::string> columns;
  std::size_t at = 0;
  while ((at = line.find_first_not_of(" \t", at)) != std::string::npos) {
    if (line[at] == '"') {
      const std::size_t end = line.find('"', at + 1);
      columns.push_back(line.substr(at + 1, end - at - 1));
      at = end == std::string::npos ? line.size() : end + 1;
      continue;
    }
    const std::size_t end = std::min({line.find("  ", at), line.find('\t', at), line.size()});
    columns.push_back(line.substr(at, end - at));
    at = end;
  }
  return columns;
}

// The elements as tests/chemistry/elements.txt has them.
inline const ElementTable& TestElements() {
  static const ElementTable table = [] {
    ElementTable elements;
    for (const TableLine& line : ReadTable("elements.txt")) {
      const std::size_t tab = line.text.find('\t');
      elements.Add(FromUtf8(line.text.substr(0, tab)), FromUtf8(line.text.substr(tab + 1)));
    }
    return elements;
  }();
  return table;
}

}  // namespace orvane::testing
