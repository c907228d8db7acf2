// Short tables of constants and facts, for tests that spoil them.
#pragma once

#include <string>
#include <vector>

#include "content/constants_source.h"
#include "content/table_reader.h"

namespace orvane::testing {

inline const std::string kConstantsHead =
    "category\tUniversal\nname\tsymbol\tvalue\tunits\tremark\tsource\tfigure\n";
inline const std::string kFactsHead = "facts\tbook\nname\tvalue\tuncertainty\tunit\n";

// What the compiler says of one table of constants and one of facts, after their two header lines.
inline std::vector<std::string> ConstantProblems(const std::string& lines,
                                                 const std::string& factLines = "") {
  std::vector<TableProblem> problems;
  const std::set<std::string> keys = {"book"};
  Facts facts;
  facts.Read(ReadTable("f.tsv", kFactsHead + factLines), keys, problems);
  const ConstantsSource source = ReadConstants({ReadTable("c.tsv", kConstantsHead + lines)}, keys, problems);
  if (problems.empty()) CheckFigures(source, facts, problems);
  std::vector<std::string> texts;
  for (const TableProblem& problem : problems) texts.push_back(ProblemText(problem));
  return texts;
}

}  // namespace orvane::testing
