#include "content/facts.h"

#include "content/figures.h"
#include "content/table_reader.h"

namespace orvane {

namespace {

constexpr std::string_view kFactTable = "facts";
const std::vector<std::string> kColumns = {"name", "value", "uncertainty", "unit"};
enum Column { kName, kValue, kUncertainty, kUnit, kColumnCount };

class FactReader : private TableReader {
 public:
  using TableReader::TableReader;

  void Run(std::map<std::string, Fact>& facts) {
    if (table_.rows.size() < 2) return Add("the file ends too early: a table of facts has two header lines");
    const TableRow& title = table_.rows[0];
    if (!HasWidth(title, 2)) return;
    source_ = title.cells[1];
    CheckSourceKey(title, 1, source_);
    if (table_.rows[1].cells != kColumns)
      return Add(table_.rows[1], 0, "expected the columns name, value, uncertainty, unit");
    for (std::size_t row = 2; row < table_.rows.size(); ++row) ReadFact(table_.rows[row], facts);
  }

 private:
  void ReadFact(const TableRow& row, std::map<std::string, Fact>& facts) {
    if (!HasWidth(row, kColumnCount)) return;
    for (std::size_t column = 0; column < kColumnCount; ++column) {
      if (!NotBlankEdged(row, column)) return;
    }
    const Fact fact{row.cells[kValue], row.cells[kUncertainty], row.cells[kUnit], source_};
    if (!ParseDecimal(fact.value)) Add(row, kValue, Quoted(fact.value) + " is not a decimal number");
    const bool hasNumber = fact.uncertainty != "exact" && fact.uncertainty != kNoValue;
    if (hasNumber && !ParseDecimal(fact.uncertainty))
      Add(row, kUncertainty, "expected exact, - or a decimal number");
    if (!facts.emplace(row.cells[kName], fact).second)
      Add(row, kName, "a second fact " + Quoted(row.cells[kName]));
  }

  std::string source_;
};

}  // namespace

void Facts::Read(const Table& table, const std::set<std::string>& sourceKeys,
                 std::vector<TableProblem>& problems) {
  FactReader(table, sourceKeys, problems).Run(facts_);
}

const Fact* Facts::Find(const std::string& name) const {
  const auto found = facts_.find(name);
  return found == facts_.end() ? nullptr : &found->second;
}

bool IsFactTable(const Table& table) { return !table.rows.empty() && table.rows[0].cells[0] == kFactTable; }

}  // namespace orvane
