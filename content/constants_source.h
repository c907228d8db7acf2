// The constants as their authors write them: one table per category, one line per constant.
// content/README.md describes the tables, docs/formats/constants.md the compiled form.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "content/facts.h"
#include "content/table.h"
#include "data/constants_database.h"

namespace orvane {

struct ConstantSource {
  ConstEntry entry;
  std::string source;  // a key of SOURCES.md
  // What the value is checked against: a fact, a formula, both, or neither (content/README.md).
  std::string fact;
  std::string formula;
  std::string file;
  int line = 0;
};

struct ConstGroupSource {
  Text title;
  bool collapsible = true;
  std::vector<ConstantSource> constants;
};

struct ConstCategorySource {
  Text name;
  std::vector<ConstGroupSource> groups;
};

using ConstantsSource = std::vector<ConstCategorySource>;

// Reads the tables in the order of their categories. Every malformed cell is added to `problems`; the result
// is complete only when none was.
ConstantsSource ReadConstants(const std::vector<Table>& tables, const std::set<std::string>& sourceKeys,
                              std::vector<TableProblem>& problems);

// Holds every value to what its line says that it is: the digits, the uncertainty and the unit of a fact, the
// value of a formula. What disagrees is added to `problems`.
void CheckFigures(const ConstantsSource& source, const Facts& facts, std::vector<TableProblem>& problems);

// Units as a table of facts writes them: "J mol^-1 K^-1" for raised exponents and en dashes, "ohm" for the
// capital omega.
std::string PlainUnits(TextView units);

// The bytes of constants.dat.
std::string EncodeConstants(const ConstantsSource& source);

}  // namespace orvane
