// What the readers of all tables share: problems with their place, and the checks of a single cell.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "content/table.h"

namespace orvane {

// A cell without a value.
inline constexpr std::string_view kNoValue = "-";

// The text in double quotes, for a message.
std::string Quoted(std::string_view text);

// The keys of SOURCES.md: the words of its second-level headings. A key with two headings is a problem: what
// a value rests on would be said in two places, perhaps in two ways. `file` is its name in the message.
std::set<std::string> ReadSourceKeys(const std::string& file, std::string_view markdown,
                                     std::vector<TableProblem>& problems);

class TableReader {
 public:
  // All of them outlive the reader.
  TableReader(const Table& table, const std::set<std::string>& sourceKeys,
              std::vector<TableProblem>& problems)
      : table_(table), sourceKeys_(sourceKeys), problems_(problems) {}

 protected:
  // `column` counts from 0, as the cells do. The last form names the whole file.
  void Add(const TableRow& row, std::size_t column, std::string message);
  void Add(std::string message);

  // Each of these says what is wrong, if anything is.
  bool HasWidth(const TableRow& row, std::size_t width);
  bool NotBlankEdged(const TableRow& row, std::size_t column);
  void CheckSourceKey(const TableRow& row, std::size_t column, const std::string& key);
  // The text of a cell, within the field that the program keeps it in: neither empty nor longer than `limit`
  // characters.
  Text FieldText(const TableRow& row, std::size_t column, std::string_view cell, std::size_t limit);

  const Table& table_;

 private:
  const std::set<std::string>& sourceKeys_;
  std::vector<TableProblem>& problems_;
};

}  // namespace orvane
