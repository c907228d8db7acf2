// Reads periodic_columns.txt: the columns of both forms, written out element by element.
#pragma once

#include <array>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "tools/periodic_layout.h"

namespace orvane::testing {

struct ColumnsTable {
  // Elements by column, [false] of the short form, [true] of the long form.
  std::map<int, std::vector<int>> columns[2];

  // −1 for an element that stands nowhere or twice.
  int ColumnOf(int element, bool wide) const {
    int found = -1;
    for (const auto& [column, elements] : columns[wide ? 1 : 0]) {
      for (const int listed : elements) {
        if (listed != element) continue;
        if (found >= 0) return -1;
        found = column;
      }
    }
    return found;
  }
};

inline ColumnsTable ReadColumnsTable() {
  ColumnsTable table;
  std::ifstream file(ORVANE_SOURCE_DIR "/tests/tools/periodic_columns.txt");
  std::string line;
  while (std::getline(file, line)) {
    if (line.empty() || line.front() == '#') continue;
    std::istringstream words(line);
    std::string form;
    int column = -1;
    char colon = 0;
    words >> form >> column >> colon;
    std::vector<int>& elements = table.columns[form == "long" ? 1 : 0][column];
    for (int element = 0; words >> element;) elements.push_back(element);
  }
  return table;
}

}  // namespace orvane::testing
