// Figures taken over from a source as they stand there: what the tables of the constants are checked against.
//
// A table of facts begins with the line "facts" and the key of its source, then the names of its four
// columns: name, value, uncertainty, unit. A value is a decimal with an exponent behind "e" where it has one;
// three points behind its digits say that more follow. The uncertainty is "exact", a decimal written like the
// value, or "-" for a figure that comes without one.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "content/table.h"

namespace orvane {

struct Fact {
  std::string value;
  std::string uncertainty;
  std::string unit;
  std::string source;
};

class Facts {
 public:
  // Adds a table's facts; what is malformed, or there already, is added to `problems`.
  void Read(const Table& table, const std::set<std::string>& sourceKeys, std::vector<TableProblem>& problems);
  // Null when there is no fact of this name.
  const Fact* Find(const std::string& name) const;
  std::size_t Count() const { return facts_.size(); }

 private:
  std::map<std::string, Fact> facts_;
};

// Whether the table is one of facts, by its first cell.
bool IsFactTable(const Table& table);

}  // namespace orvane
