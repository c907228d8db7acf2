// Reads one table of the content: UTF-8 lines of cells separated by tabulators. Empty lines and lines that
// begin with "# " (or are a lone "#") are notes for the reader of the file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// Something wrong in a table. Lines and columns count from 1; a column is a cell, as a spreadsheet counts it.
// A problem of the whole file has line 0, one of a whole line column 0.
struct TableProblem {
  std::string file;
  int line = 0;
  int column = 0;
  std::string message;
};

// "file:line:column: message", without the parts that are 0.
std::string ProblemText(const TableProblem& problem);

struct TableRow {
  int line = 0;
  std::vector<std::string> cells;
};

struct Table {
  std::string file;
  std::vector<TableRow> rows;
};

// Cuts the text of a file into rows. Nothing is checked here: a byte that no cell may hold is found when the
// cell is read.
Table ReadTable(std::string_view file, std::string_view content);

// A number as the sources write their ids and atomic numbers, in one to five decimal digits; −1 for any other
// text.
int SmallNumber(std::string_view text);

}  // namespace orvane
