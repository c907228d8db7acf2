// The words and lines in which a balanced equation is shown.
#pragma once

#include <vector>

#include "base/text.h"
#include "chemistry/balance.h"
#include "chemistry/formula_tokens.h"

namespace orvane {

// "No solutions exist", with its text; the sides stay as they are.
BalanceResult NoSolution();

// "Equation balanced": the coefficients of the left terms, then those of the right ones, on the screen and in
// the sides.
BalanceResult Balanced(const FormulaTokens& left, const FormulaTokens& right, std::size_t leftTerms,
                       std::vector<Text> coefficients, const BalanceLimits& limits);

// "Equation balanced (non-regular)": the general solution's lines. The sides lose what coefficients they had.
BalanceResult GeneralSolution(const FormulaTokens& left, const FormulaTokens& right, std::size_t leftTerms,
                              std::vector<Text> lines, const BalanceLimits& limits);

// A line of the general solution: what the term `term` is, as a sum of multiples of the parameters. The
// amount of a term is a capital letter, a parameter a small one; beyond the 26th follow the characters that
// follow.
class SolutionLine {
 public:
  explicit SolutionLine(std::size_t term);

  // Adds or subtracts a multiple of a parameter; `size` is the multiple's size in digits and left out when it
  // is "1".
  void AddTerm(bool negative, TextView size, std::size_t parameter);

  Text Take(const BalanceLimits& limits) const { return text_.substr(0, limits.line); }

 private:
  Text text_;
  bool hasTerms_ = false;
};

}  // namespace orvane
