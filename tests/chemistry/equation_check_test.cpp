#include "chemistry/equation_check.h"

#include <gtest/gtest.h>

#include <map>

#include "tests/chemistry/case_table.h"

namespace orvane::testing {
namespace {

// What is said of a fault, where the side does not matter.
const std::map<std::string, Text>& Texts() {
  static const std::map<std::string, Text> texts{
      {"unknown",
       u"Elements highlighted with red could not be recognized. Please check spelling and/or capitalization. "
       u"See "
       u"help for more information."},
      {"plus-in",
       u"One of the '+' signs in your equation is inside the brackets. Check if all brackets are correctly "
       u"matched."},
      {"no-opening", u"There is a closing bracket in your equation which has no matching opening bracket."},
      {"no-closing", u"There is an opening bracket in your equation which has no matching closing bracket."},
      {"only-coeff",
       u"One of the terms in your equation contains nothing but a coefficient. Please correct this and try "
       u"again."},
      {"no-term", u"One of the terms in your equation is empty. Check and remove any double '+' signs."},
      {"long-index", u"Maximum length of an index is 3 digits. Please correct this and try again."},
      {"long-coeff",
       u"Maximum length of a coefficient is 3 digits. Please check that there is no subscript number "
       u"following a "
       u"coefficient."},
      {"index-open",
       u"An index in your equation follows a bracket. Index numbers are only allowed after element symbols."},
      {"no-group",
       u"There is an opening bracket followed by a closing bracket in your equation. Please remove that "
       u"before "
       u"proceeding."},
  };
  return texts;
}

Text ExpectedText(const std::string& side, const std::string& id) {
  const Text hand = FromUtf8(side) + u"-hand side";
  if (id == "empty") return u"The " + hand + u" of your equation is empty. Please enter your equation.";
  if (id == "ends-coeff") {
    return u"The " + hand +
           u" ends with a coefficient, which is invalid. Please correct this before proceeding.";
  }
  const auto found = Texts().find(id);
  return found == Texts().end() ? Text() : found->second;
}

TEST(EquationCheck, FindsTheFaultsOfTheTable) {
  for (const TableLine& line : ReadTable("equation_faults.txt")) {
    const std::vector<std::string> columns = Columns(line.text);
    ASSERT_EQ(columns.size(), 4u) << Where(line);
    const std::optional<EquationFault> fault =
        CheckEquation(TokeniseEquationSide(Unescaped(columns[0]), TestElements()),
                      TokeniseEquationSide(Unescaped(columns[1]), TestElements()));
    ASSERT_EQ(fault.has_value(), columns[3] != "fine") << Where(line);
    if (!fault) continue;
    const Text expected = ExpectedText(columns[2], columns[3]);
    ASSERT_FALSE(expected.empty()) << Where(line);
    EXPECT_EQ(ToUtf8(fault->text), ToUtf8(expected)) << Where(line);
    EXPECT_EQ(ToUtf8(fault->title), "Errors in input - " + columns[2] + "-hand side") << Where(line);
  }
}

}  // namespace
}  // namespace orvane::testing
