#include "chemistry/balance_text.h"

#include "base/styled_text.h"

namespace orvane {

namespace {

constexpr Char kBoldFlags = u'!';
constexpr Char kEnDash = 0x2013;
constexpr TextView kOne = u"1";

Text Bold(TextView text) {
  return Text{kStyleMark, kBoldFlags}.append(text).append({kStyleMark, kPlainFlags});
}

// One side with the coefficients from `coefficient` on in front of its terms, and none of those it had.
// Without any (null) the terms stand alone.
Text RewrittenSide(const FormulaTokens& tokens, const Text* coefficient, const BalanceLimits& limits) {
  Text side;
  const auto append = [&](TextView piece) {
    if (side.size() + piece.size() > limits.side) return false;
    side += piece;
    return true;
  };
  bool beginsTerm = true;
  for (const FormulaToken& token : tokens) {
    if (beginsTerm && coefficient != nullptr && *coefficient != kOne && !append(*coefficient)) return side;
    beginsTerm = token.kind == TokenPlus;
    if (beginsTerm && coefficient != nullptr) ++coefficient;
    if (token.kind != TokenCoefficient && !append(token.View())) return side;
  }
  // Behind a plus sign at the very end there is one more term.
  if (beginsTerm && coefficient != nullptr && *coefficient != kOne) append(*coefficient);
  return side;
}

void AppendList(Text& text, TextView label, const std::vector<Text>& numbers, std::size_t first,
                std::size_t end) {
  text.append(Bold(label)).append(u" ");
  for (std::size_t i = first; i < end; ++i) {
    if (i > first) text += u", ";
    text += numbers[i];
  }
}

}  // namespace

BalanceResult NoSolution() {
  BalanceResult result;
  result.state = BalanceState::kMessage;
  result.title = u"No solutions exist";
  result.text =
      u"There are no solutions to this equation.\n\nA possible cause for this is incorrect capitalization "
      u"resulting in a wrong equation.";
  return result;
}

BalanceResult Balanced(const FormulaTokens& left, const FormulaTokens& right, std::size_t leftTerms,
                       std::vector<Text> coefficients, const BalanceLimits& limits) {
  BalanceResult result;
  result.state = BalanceState::kMessage;
  result.title = u"Equation balanced";
  result.text = u"The coefficients are:\n";
  AppendList(result.text, u"LHS:", coefficients, 0, leftTerms);
  result.text += u"\n";
  AppendList(result.text, u"RHS:", coefficients, leftTerms, coefficients.size());
  result.text += u"\n\nThese coefficients have been inserted into the equation above.";
  result.rewritten = true;
  result.newLhs = RewrittenSide(left, coefficients.data(), limits);
  result.newRhs = RewrittenSide(right, coefficients.data() + leftTerms, limits);
  result.coefficients = std::move(coefficients);
  return result;
}

BalanceResult GeneralSolution(const FormulaTokens& left, const FormulaTokens& right, std::size_t leftTerms,
                              std::vector<Text> lines, const BalanceLimits& limits) {
  BalanceResult result;
  result.state = BalanceState::kLines;
  // Bold goes on to the end.
  result.title = Text(u"Equation balanced ").append({kStyleMark, kBoldFlags}).append(u"(non-regular)");
  result.lines = std::move(lines);
  result.leftLineCount = leftTerms;
  result.rewritten = true;
  result.newLhs = RewrittenSide(left, nullptr, limits);
  result.newRhs = RewrittenSide(right, nullptr, limits);
  return result;
}

SolutionLine::SolutionLine(std::size_t term)
    : text_(Bold(Text{static_cast<Char>(u'A' + term)}).append(u" = ")) {}

void SolutionLine::AddTerm(bool negative, TextView size, std::size_t parameter) {
  if (hasTerms_) {
    text_ += u' ';
    text_ += negative ? kEnDash : u'+';
    text_ += u' ';
  } else if (negative) {
    text_ += kEnDash;
  }
  hasTerms_ = true;
  if (size != kOne) text_ += size;
  text_ += static_cast<Char>(u'a' + parameter);
}

}  // namespace orvane
