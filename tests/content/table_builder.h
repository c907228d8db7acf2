// A sound table of the elements database in which a test spoils single cells.
#pragma once

#include <string>
#include <vector>

namespace orvane::testing {

class TableBuilder {
 public:
  using Row = std::vector<std::string>;

  // Six header lines and 112 elements with the five special properties, all values "X" but the symbols and
  // masses.
  static TableBuilder Identification() {
    TableBuilder table("Identification", {{"id", "-", "0", "1", "2", "3", "4"},
                                          {"name", "-", "Symbol", "Name", "Mass", "Family", "Block"},
                                          {"units", "-", "-", "-", "\" u\"", "-", "-"},
                                          {"plot", "-", "no", "no", "yes", "no", "no"},
                                          {"source", "-", "book", "book", "book", "book", "book"}});
    for (int z = 1; z <= 112; ++z) {
      const std::string symbol = "S" + std::to_string(z);
      table.rows_.push_back({std::to_string(z), symbol, symbol, "X", std::to_string(z) + ".5", "X", "X"});
    }
    return table;
  }

  // A second category with one property without values.
  static TableBuilder Extra() {
    TableBuilder table("Extra", {{"id", "-", "7"},
                                 {"name", "-", "Density"},
                                 {"units", "-", "\" g\""},
                                 {"plot", "-", "yes"},
                                 {"source", "-", "-"}});
    for (int z = 1; z <= 112; ++z) table.rows_.push_back({std::to_string(z), "S" + std::to_string(z), "-"});
    return table;
  }

  // Lines and columns count from 1, as in the messages; element z stands on line z + 6.
  Row& Line(int line) { return rows_[static_cast<std::size_t>(line - 1)]; }
  std::string& Cell(int line, int column) { return Line(line)[static_cast<std::size_t>(column - 1)]; }
  std::vector<Row>& Rows() { return rows_; }

  std::string Content() const {
    std::string out;
    for (const Row& row : rows_) {
      for (std::size_t i = 0; i < row.size(); ++i) out += (i == 0 ? "" : "\t") + row[i];
      out += '\n';
    }
    return out;
  }

 private:
  TableBuilder(const std::string& category, const std::vector<Row>& header) : rows_{{"category", category}} {
    rows_.insert(rows_.end(), header.begin(), header.end());
  }

  std::vector<Row> rows_;
};

}  // namespace orvane::testing
