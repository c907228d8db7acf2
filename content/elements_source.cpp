#include "content/elements_source.h"

#include <algorithm>

#include "content/cell_text.h"
#include "content/dat_writer.h"
#include "content/table_reader.h"

namespace orvane {

namespace {

constexpr std::size_t kMaxCategoryName = ElementsDatabase::kLongestCategoryName;
constexpr std::size_t kMaxPropertyName = ElementsDatabase::kLongestPropertyName;
constexpr std::size_t kMaxUnits = ElementsDatabase::kLongestUnits;
constexpr int kMaxId = 32767;

constexpr int kSymbolId = 0;
constexpr int kMassId = 2;
constexpr int kSpecialIds = 5;  // symbol, name, atomic mass, family, block: ids 0 to 4

constexpr std::size_t kFirstProperty = 2;  // behind the element's number and symbol

const char* const kHeaderKeys[] = {"category", "id", "name", "units", "plot", "source"};
enum HeaderRow { kCategoryRow, kIdRow, kNameRow, kUnitsRow, kPlotRow, kSourceRow, kHeaderRows };

// Reads one table into a category, reporting as it goes.
class CategoryReader : private TableReader {
 public:
  using TableReader::TableReader;

  CategorySource Run() {
    if (!HeaderStands()) return {};
    ReadCategoryName();
    width_ = table_.rows[kIdRow].cells.size();
    if (width_ <= kFirstProperty) {
      Add(table_.rows[kIdRow], 0, "a table needs at least one property");
      return {};
    }
    category_.properties.resize(width_ - kFirstProperty);
    for (std::size_t row = kIdRow; row < kHeaderRows; ++row) ReadHeaderRow(static_cast<HeaderRow>(row));
    for (std::size_t row = kHeaderRows; row < table_.rows.size(); ++row) ReadElementRow(table_.rows[row]);
    ReportMissingElements();
    return category_;
  }

 private:
  bool HeaderStands() {
    for (std::size_t row = 0; row < kHeaderRows; ++row) {
      const std::string wanted = "expected the header line " + Quoted(kHeaderKeys[row]);
      if (row >= table_.rows.size()) {
        Add("the file ends too early: " + wanted);
        return false;
      }
      if (table_.rows[row].cells[0] != kHeaderKeys[row]) {
        Add(table_.rows[row], 0, wanted);
        return false;
      }
    }
    return true;
  }

  void ReadCategoryName() {
    const TableRow& row = table_.rows[kCategoryRow];
    if (HasWidth(row, 2)) category_.name = FieldText(row, 1, row.cells[1], kMaxCategoryName);
  }

  void ReadHeaderRow(HeaderRow which) {
    const TableRow& row = table_.rows[which];
    if (!HasWidth(row, width_)) return;
    if (row.cells[1] != kNoValue) Add(row, 1, "expected - above the symbols");
    for (std::size_t column = kFirstProperty; column < width_; ++column) {
      PropertySource& property = category_.properties[column - kFirstProperty];
      if (which == kIdRow) ReadId(row, column, property);
      if (which == kNameRow) ReadName(row, column, property);
      if (which == kUnitsRow) ReadUnits(row, column, property);
      if (which == kPlotRow) ReadPlot(row, column, property);
      if (which == kSourceRow) ReadSource(row, column, property);
    }
  }

  void ReadId(const TableRow& row, std::size_t column, PropertySource& property) {
    property.id = SmallNumber(row.cells[column]);
    if (property.id < 0 || property.id > kMaxId)
      Add(row, column, "a property id is a number from 0 to 32767");
  }

  void ReadName(const TableRow& row, std::size_t column, PropertySource& property) {
    property.name =
        NotBlankEdged(row, column) ? FieldText(row, column, row.cells[column], kMaxPropertyName) : Text();
    for (std::size_t i = 0; i < column - kFirstProperty; ++i) {
      if (category_.properties[i].name == property.name && !property.name.empty()) {
        Add(row, column, "the category already has a property " + Quoted(row.cells[column]));
      }
    }
  }

  void ReadUnits(const TableRow& row, std::size_t column, PropertySource& property) {
    const std::string_view cell = row.cells[column];
    if (cell == kNoValue) return;
    if (cell.size() < 2 || cell.front() != '"' || cell.back() != '"') {
      return Add(row, column, "units stand in double quotes, \" pm\", or are -");
    }
    property.units = FieldText(row, column, cell.substr(1, cell.size() - 2), kMaxUnits);
  }

  void ReadPlot(const TableRow& row, std::size_t column, PropertySource& property) {
    const std::string& cell = row.cells[column];
    if (cell != "yes" && cell != "no") return Add(row, column, "expected yes or no");
    property.plottable = cell == "yes";
    // The plot reads a number with its units behind it, digit by digit.
    const bool hasDigit = std::any_of(property.units.begin(), property.units.end(), IsAsciiDigit);
    if (property.plottable && hasDigit)
      Add(row, column, "the units of a plottable property cannot hold digits");
  }

  void ReadSource(const TableRow& row, std::size_t column, PropertySource& property) {
    const std::string& cell = row.cells[column];
    if (cell == kNoValue) return;
    property.source = cell;
    CheckSourceKey(row, column, cell);
  }

  void ReadElementRow(const TableRow& row) {
    const int number = SmallNumber(row.cells[0]);
    if (number < 1 || number > kSourceElements) {
      return Add(row, 0, "no element " + Quoted(row.cells[0]) + ": atomic numbers run from 1 to 112");
    }
    const std::size_t slot = static_cast<std::size_t>(number - 1);
    if (seen_[slot]) return Add(row, 0, "element " + row.cells[0] + " a second time");
    seen_[slot] = true;
    if (number <= lastNumber_) Add(row, 0, "elements stand in the order of their atomic numbers");
    lastNumber_ = number;
    if (!HasWidth(row, width_)) return;
    for (std::size_t column = kFirstProperty; column < width_; ++column) {
      ReadValue(row, column, slot, category_.properties[column - kFirstProperty]);
    }
  }

  void ReadValue(const TableRow& row, std::size_t column, std::size_t slot, PropertySource& property) {
    if (!NotBlankEdged(row, column)) return;
    std::string_view cell = row.cells[column];
    if (cell == kNoValue) return;
    const std::size_t mark = cell.rfind(" @");
    if (mark != std::string_view::npos) {
      property.valueSources[slot] = std::string(cell.substr(mark + 2));
      CheckSourceKey(row, column, property.valueSources[slot]);
      cell = cell.substr(0, mark);
    } else if (property.source.empty()) {
      Add(row, column, "a value without a source: neither its column nor the cell names one");
    }
    CellText parsed = ParseCellText(cell);
    if (!parsed.problem.empty()) return Add(row, column, parsed.problem);
    CheckValue(row, column, property, parsed.text);
    property.values[slot] = std::move(parsed.text);
  }

  void CheckValue(const TableRow& row, std::size_t column, const PropertySource& property, const Text& text) {
    if (text.empty()) return Add(row, column, "an empty value (write - for no value)");
    const bool massNumber = property.id == kMassId && IsBracketedMassNumber(text);
    if (property.plottable && !IsBareDecimal(text) && !massNumber) {
      Add(row, column, Quoted(ToUtf8(text)) + " is not a bare decimal, as a plottable value must be");
    }
    if (DatWriter::EscapedSize(text) > kMaxCountedBytes) {
      Add(row, column,
          "a value of " + std::to_string(DatWriter::EscapedSize(text)) + " bytes; at most 65535 fit");
    }
  }

  void ReportMissingElements() {
    for (std::size_t slot = 0; slot < seen_.size(); ++slot) {
      if (seen_[slot]) continue;
      Add("no row for element " + std::to_string(slot + 1));
    }
  }

  CategorySource category_;
  std::size_t width_ = 0;
  std::array<bool, kSourceElements> seen_{};
  int lastNumber_ = 0;
};

const PropertySource* FindProperty(const ElementsSource& source, int id) {
  for (const CategorySource& category : source.categories) {
    for (const PropertySource& property : category.properties) {
      if (property.id == id) return &property;
    }
  }
  return nullptr;
}

void CheckIds(const std::vector<Table>& tables, const ElementsSource& source,
              std::vector<TableProblem>& problems) {
  std::set<int> seen;
  for (std::size_t c = 0; c < source.categories.size(); ++c) {
    const std::vector<PropertySource>& properties = source.categories[c].properties;
    for (std::size_t v = 0; v < properties.size(); ++v) {
      if (properties[v].id < 0 || seen.insert(properties[v].id).second) continue;
      problems.push_back({tables[c].file, tables[c].rows[kIdRow].line,
                          static_cast<int>(v + kFirstProperty) + 1,
                          "property id " + std::to_string(properties[v].id) + " a second time"});
    }
  }
  // While anything else is wrong, an id may be missing because it was misread.
  for (int id = 0; problems.empty() && id < kSpecialIds; ++id) {
    if (seen.count(id) == 0) {
      problems.push_back(
          {tables.empty() ? "tables" : tables[0].file, 0, 0,
           "no column has id " + std::to_string(id) + ", which the program cannot do without"});
    }
  }
}

// The second column of every table repeats the symbol for orientation; it must be the one of the symbol
// property.
void CheckSymbols(const std::vector<Table>& tables, const ElementsSource& source,
                  std::vector<TableProblem>& problems) {
  const PropertySource* symbols = FindProperty(source, kSymbolId);
  if (symbols == nullptr) return;
  for (const Table& table : tables) {
    for (std::size_t row = kHeaderRows; row < table.rows.size(); ++row) {
      const std::vector<std::string>& cells = table.rows[row].cells;
      const int number = SmallNumber(cells[0]);
      if (number < 1 || number > kSourceElements || cells.size() < kFirstProperty) continue;
      const std::optional<Text>& symbol = symbols->values[static_cast<std::size_t>(number - 1)];
      if (!symbol || cells[1] == ToUtf8(*symbol)) continue;
      problems.push_back({table.file, table.rows[row].line, 2,
                          "element " + cells[0] + " has the symbol " + Quoted(ToUtf8(*symbol)) + ", not " +
                              Quoted(cells[1])});
    }
  }
}

}  // namespace

ElementsSource ReadElements(const std::vector<Table>& tables, const std::set<std::string>& sourceKeys,
                            std::vector<TableProblem>& problems) {
  ElementsSource source;
  for (const Table& table : tables) {
    source.categories.push_back(CategoryReader(table, sourceKeys, problems).Run());
  }
  CheckIds(tables, source, problems);
  CheckSymbols(tables, source, problems);
  return source;
}

bool IsBareDecimal(TextView text) {
  const std::size_t point = text.find(u'.');
  const TextView whole = text.substr(0, point);
  const auto digitsOnly = [](TextView part) {
    return !part.empty() && std::all_of(part.begin(), part.end(), IsAsciiDigit);
  };
  if (!digitsOnly(whole) || (whole.size() > 1 && whole[0] == u'0')) return false;
  return point == TextView::npos || digitsOnly(text.substr(point + 1));
}

bool IsBracketedMassNumber(TextView text) {
  if (text.size() < 3 || text.front() != u'[' || text.back() != u']') return false;
  const TextView number = text.substr(1, text.size() - 2);
  return IsBareDecimal(number) && number.find(u'.') == TextView::npos;
}

}  // namespace orvane
