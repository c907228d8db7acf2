// Any bytes as an equation: the sides stand apart by the first equals sign.
#pragma once

#include <gmpxx.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "chemistry/balance.h"
#include "chemistry/equation_solver.h"
#include "cli/big_integer.h"
#include "cli/message_collector.h"
#include "cli/notation.h"
#include "fuzz/formula_entry.h"

namespace orvane::fuzz {

// A balanced equation's coefficients, as they stand in its sides, leave nothing of any element.
inline void CheckBalance(const BalanceResult& result, const FormulaTokens& left, const FormulaTokens& right) {
  MessageCollector unused;
  for (int element = 0; element < ElementTable::kElementCount; ++element) {
    mpz_class difference = 0;
    std::size_t term = 0;
    for (const FormulaTokens* side : {&left, &right}) {
      for (std::size_t position = 0; position <= side->size(); ++position) {
        const mpz_class atoms = CountElements<mpz_class>(*side, position, element, unused);
        const mpz_class amount(ToUtf8(result.coefficients[term++]));
        difference += (side == &left ? 1 : -1) * amount * atoms;
      }
    }
    Require(difference == 0);
  }
  mpz_class divisor = 0;
  for (const Text& coefficient : result.coefficients) {
    const mpz_class amount(ToUtf8(coefficient));
    Require(amount >= 1);
    divisor = gcd(divisor, amount);
  }
  Require(divisor == 1);
}

inline void CheckSides(TextView lhs, TextView rhs, const ElementTable& elements) {
  const FormulaTokens left = TokeniseEquationSide(lhs, elements);
  const FormulaTokens right = TokeniseEquationSide(rhs, elements);
  CheckTokens(lhs, left);
  CheckTokens(rhs, right);
  MessageCollector boxes;
  const BalanceResult result = BalanceEquation(left, right, boxes);
  Require(result.state != BalanceState::kPrompt && !result.title.empty());
  Require(result.newLhs.size() <= 511 && result.newRhs.size() <= 511);
  for (const Text& line : result.lines) Require(line.size() <= 255);
  Require(result.rewritten == (!result.coefficients.empty() || !result.lines.empty()));
  // Exact numbers are slow where they are long, so the longest sides go without.
  if (lhs.size() + rhs.size() > 200) return;
  MessageCollector none;
  const BalanceResult exact = BalanceEquationWith<mpz_class>(left, right, {Text::npos, Text::npos}, none);
  Require(none.Runs().empty());
  if (!exact.coefficients.empty()) CheckBalance(exact, left, right);
}

inline void CheckEquationText(std::string_view bytes) {
  const ElementTable elements = FuzzElements();
  const Text text = FromUtf8(bytes).substr(0, 1023);
  const std::size_t sign = std::min(text.find(u'='), text.size());
  const TextView rest = TextView(text).substr(std::min(sign + 1, text.size()));
  CheckSides(TextView(text).substr(0, std::min<std::size_t>(sign, 511)), rest.substr(0, 511), elements);
  const EquationReading reading = ReadEquation(text);
  if (reading.error.empty()) CheckSides(reading.left.substr(0, 511), reading.right.substr(0, 511), elements);
}

}  // namespace orvane::fuzz
