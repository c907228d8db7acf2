// Balances chemical equations as the equation balancer shows it, with fractions of 32-bit integers.
#pragma once

#include <vector>

#include "base/message_reporter.h"
#include "base/text.h"
#include "chemistry/formula_tokens.h"

namespace orvane {

// What the balancer shows.
enum class BalanceState {
  kPrompt = 0,   // nothing yet
  kMessage = 1,  // title and text
  kLines = 2,    // title and lines
};

struct BalanceResult {
  BalanceState state = BalanceState::kPrompt;
  Text title;
  Text text;
  // Whole numbers in decimal digits, one a term, the left side's first; only when the equation was balanced.
  std::vector<Text> coefficients;
  // The general solution, one styled line a term: the first `leftLineCount` belong to the left side.
  std::vector<Text> lines;
  std::size_t leftLineCount = 0;
  // The sides with their new coefficients. Without `rewritten` the texts stay as they were typed, and these
  // are empty.
  bool rewritten = false;
  Text newLhs;
  Text newRhs;
};

// Limits of the balancer's text fields, in characters.
struct BalanceLimits {
  std::size_t line = 255;
  std::size_t side = 511;  // a rewritten side is cut behind the last token that fits
};

// Checks and balances an equation. The reporter gets every overflow and every internal fault, with the error
// icon; the computation goes on.
BalanceResult BalanceEquation(const FormulaTokens& left, const FormulaTokens& right,
                              MessageReporter& reporter);

}  // namespace orvane
