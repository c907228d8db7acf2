// The elements database as its authors write it: one table per category, one row per element, one column per
// property. content/README.md describes the tables, docs/formats/periodic.md the compiled form.
#pragma once

#include <array>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "base/text.h"
#include "content/table.h"
#include "data/elements_database.h"

namespace orvane {

inline constexpr int kSourceElements = ElementsDatabase::kElementCount;

struct PropertySource {
  int id = 0;
  Text name;
  bool plottable = false;
  Text units;          // shown directly behind a value, so with its own leading blank
  std::string source;  // the column's key in SOURCES.md, empty when it has none
  std::array<std::optional<Text>, kSourceElements> values;
  std::array<std::string, kSourceElements> valueSources;  // a cell's own key, empty when it is the column's
};

struct CategorySource {
  Text name;
  std::vector<PropertySource> properties;
};

struct ElementsSource {
  std::vector<CategorySource> categories;
};

// Reads the tables in the order of their categories. `sourceKeys` are the keys that a table may name. Every
// malformed cell is added to `problems`; the result is complete only when none was.
ElementsSource ReadElements(const std::vector<Table>& tables, const std::set<std::string>& sourceKeys,
                            std::vector<TableProblem>& problems);

// True for a bare decimal: digits without a leading zero, and perhaps a point with digits behind it. The
// plot's reader takes any digit of a value for a part of the number, so nothing else may stand there.
bool IsBareDecimal(TextView text);

// True for a mass number in square brackets, the mass of an element without a standard atomic weight.
bool IsBracketedMassNumber(TextView text);

// The bytes of periodic.dat.
std::string EncodeElements(const ElementsSource& source);

}  // namespace orvane
