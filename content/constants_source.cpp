#include "content/constants_source.h"

#include <algorithm>

#include "content/dat_writer.h"
#include "content/figures.h"
#include "content/table_reader.h"

namespace orvane {

namespace {

constexpr std::size_t kLimit = ConstantsDatabase::kLongestText;
constexpr Char kEnDash = 0x2013;

const std::vector<std::string> kColumns = {"name", "symbol", "value", "units", "remark", "source", "figure"};
enum Column { kName, kSymbol, kValue, kUnits, kRemark, kSource, kFigure, kColumnCount };

std::string Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

// One figure, or a range of two with an en dash between.
bool IsShownValue(const Text& value) {
  if (ParseShownFigure(value)) return true;
  const std::size_t dash = value.find(kEnDash, 1);
  return dash != Text::npos && ParseShownFigure(value.substr(0, dash)) &&
         ParseShownFigure(value.substr(dash + 1));
}

class ConstantsTableReader : private TableReader {
 public:
  using TableReader::TableReader;

  ConstCategorySource Run() {
    if (!HeaderStands()) return {};
    for (std::size_t row = 2; row < table_.rows.size(); ++row) ReadRow(table_.rows[row]);
    if (category_.groups.empty()) Add("a category needs at least one group");
    return category_;
  }

 private:
  bool HeaderStands() {
    if (table_.rows.size() < 2) {
      Add("the file ends too early: a table has two header lines");
      return false;
    }
    const TableRow& title = table_.rows[0];
    if (title.cells[0] != "category") {
      Add(title, 0, "expected the header line \"category\"");
      return false;
    }
    if (!HasWidth(title, 2)) return false;
    category_.name = FieldText(title, 1, title.cells[1], kLimit);
    if (table_.rows[1].cells == kColumns) return true;
    Add(table_.rows[1], 0, "expected the columns name, symbol, value, units, remark, source, figure");
    return false;
  }

  void ReadRow(const TableRow& row) {
    if (row.cells[0] == "group") return ReadGroup(row);
    if (category_.groups.empty()) return Add(row, 0, "a constant before the first group");
    if (HasWidth(row, kColumnCount)) ReadConstant(row);
  }

  void ReadGroup(const TableRow& row) {
    if (!HasWidth(row, 3)) return;
    ConstGroupSource& group = category_.groups.emplace_back();
    group.title = FieldText(row, 1, row.cells[1], kLimit);
    group.collapsible = row.cells[2] == "folds";
    if (!group.collapsible && row.cells[2] != "open") Add(row, 2, "expected folds or open");
  }

  void ReadConstant(const TableRow& row) {
    for (std::size_t column = 0; column < kColumnCount; ++column) {
      if (!NotBlankEdged(row, column)) return;
    }
    ConstantSource constant;
    constant.file = table_.file;
    constant.line = row.line;
    ConstEntry& entry = constant.entry;
    entry.name = FieldText(row, kName, row.cells[kName], kLimit);
    entry.symbol = OptionalText(row, kSymbol);
    entry.value = FieldText(row, kValue, row.cells[kValue], kLimit);
    entry.units = OptionalText(row, kUnits);
    entry.remark = OptionalText(row, kRemark);
    if (!IsShownValue(entry.value)) {
      Add(row, kValue, Quoted(row.cells[kValue]) + " is not a figure as the screens show it");
    }
    constant.source = row.cells[kSource];
    CheckSourceKey(row, kSource, constant.source);
    ReadFigure(row.cells[kFigure], constant);
    CheckName(row, entry.name);
    category_.groups.back().constants.push_back(std::move(constant));
  }

  Text OptionalText(const TableRow& row, std::size_t column) {
    return row.cells[column] == kNoValue ? Text() : FieldText(row, column, row.cells[column], kLimit);
  }

  // "fact", "= formula" or "fact = formula".
  static void ReadFigure(std::string_view cell, ConstantSource& constant) {
    if (cell == kNoValue) return;
    const std::size_t equals = cell.find('=');
    constant.fact = Trimmed(cell.substr(0, equals));
    if (equals != std::string_view::npos) constant.formula = Trimmed(cell.substr(equals + 1));
  }

  void CheckName(const TableRow& row, const Text& name) {
    const std::vector<ConstantSource>& others = category_.groups.back().constants;
    const auto same = [&name](const ConstantSource& other) { return other.entry.name == name; };
    if (std::any_of(others.begin(), others.end(), same)) {
      Add(row, kName, "the group already has a constant " + Quoted(row.cells[kName]));
    }
  }

  ConstCategorySource category_;
};

void WriteGroup(DatWriter& out, const ConstGroupSource& group) {
  out.CountedString(group.title);
  out.Bool(group.collapsible);
  out.Short(static_cast<std::uint16_t>(group.constants.size()));
  for (const ConstantSource& constant : group.constants) {
    const ConstEntry& entry = constant.entry;
    for (const Text* text : {&entry.name, &entry.symbol, &entry.value, &entry.units, &entry.remark}) {
      out.ZeroTerminatedString(*text);
    }
  }
}

std::string EncodeCategory(const ConstCategorySource& category) {
  DatWriter out;
  out.CountedString(category.name);
  out.Short(static_cast<std::uint16_t>(category.groups.size()));
  for (const ConstGroupSource& group : category.groups) WriteGroup(out, group);
  return out.Bytes();
}

}  // namespace

ConstantsSource ReadConstants(const std::vector<Table>& tables, const std::set<std::string>& sourceKeys,
                              std::vector<TableProblem>& problems) {
  ConstantsSource source;
  for (const Table& table : tables) {
    source.push_back(ConstantsTableReader(table, sourceKeys, problems).Run());
  }
  return source;
}

std::string EncodeConstants(const ConstantsSource& source) {
  std::vector<std::string> blocks;
  for (const ConstCategorySource& category : source) blocks.push_back(EncodeCategory(category));
  DatWriter header;
  header.Short(static_cast<std::uint16_t>(blocks.size()));
  std::size_t offset = 2 + 4 * blocks.size();
  for (const std::string& block : blocks) {
    header.Long(static_cast<std::uint32_t>(offset));
    offset += block.size();
  }
  std::string bytes = header.Bytes();
  for (const std::string& block : blocks) bytes += block;
  return bytes;
}

}  // namespace orvane
