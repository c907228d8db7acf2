// What the tests of balanced equations have in common.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "chemistry/balance.h"
#include "tests/chemistry/case_table.h"
#include "tests/data/collecting_reporter.h"

namespace orvane::testing {

inline FormulaTokens Side(TextView text) { return TokeniseEquationSide(text, TestElements()); }

inline BalanceResult Balance(TextView left, TextView right, CollectingReporter& reporter) {
  return BalanceEquation(Side(left), Side(right), reporter);
}

// For equations that report nothing.
inline BalanceResult Balance(TextView left, TextView right) {
  CollectingReporter reporter;
  BalanceResult result = Balance(left, right, reporter);
  EXPECT_TRUE(reporter.texts.empty());
  return result;
}

// "2 1 = 2"; the title when there are no coefficients.
inline std::string Coefficients(const BalanceResult& result, std::size_t leftTerms) {
  if (result.coefficients.empty()) return ToUtf8(result.title);
  std::string out;
  for (std::size_t i = 0; i < result.coefficients.size(); ++i) {
    if (i > 0) out += i == leftTerms ? " = " : " ";
    out += ToUtf8(result.coefficients[i]);
  }
  return out;
}

inline std::size_t TermCount(TextView side) {
  return 1 + static_cast<std::size_t>(std::count(side.begin(), side.end(), u'+'));
}

struct Equation {
  Text left;
  Text right;
};

inline Equation SplitEquation(const std::string& column) {
  const std::size_t sign = column.find(" = ");
  return {FromUtf8(column.substr(0, sign)), FromUtf8(column.substr(sign + 3))};
}

}  // namespace orvane::testing
