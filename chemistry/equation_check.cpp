#include "chemistry/equation_check.h"

#include <algorithm>

namespace orvane {

namespace {

// A side with the words that the messages have for it.
struct Side {
  const FormulaTokens& tokens;
  TextView title;
  TextView empty;
  TextView endsWithCoefficient;
};

std::optional<EquationFault> Fault(const Side& side, TextView text) {
  return EquationFault{side.title, text};
}

std::optional<EquationFault> CheckNotEmpty(const Side& side) {
  if (!side.tokens.empty()) return std::nullopt;
  return Fault(side, side.empty);
}

std::optional<EquationFault> CheckRecognised(const Side& side) {
  const bool unknown = std::any_of(side.tokens.begin(), side.tokens.end(),
                                   [](const FormulaToken& token) { return token.kind == TokenUnknown; });
  if (!unknown) return std::nullopt;
  return Fault(side,
               u"Elements highlighted with red could not be recognized. Please check spelling and/or "
               u"capitalization. See help for more information.");
}

std::optional<EquationFault> CheckBrackets(const Side& side) {
  std::size_t depth = 0;
  for (const FormulaToken& token : side.tokens) {
    if (token.kind == TokenOpen) ++depth;
    if (token.kind == TokenPlus && depth != 0) {
      return Fault(side,
                   u"One of the '+' signs in your equation is inside the brackets. Check if all brackets are "
                   u"correctly matched.");
    }
    if (token.kind != TokenClose) continue;
    if (depth == 0) {
      return Fault(side,
                   u"There is a closing bracket in your equation which has no matching opening bracket.");
    }
    --depth;
  }
  if (depth == 0) return std::nullopt;
  return Fault(side, u"There is an opening bracket in your equation which has no matching closing bracket.");
}

// What is wrong with a token behind another one; empty when nothing is.
TextView FaultOfPair(TokenKind previous, TokenKind kind) {
  if (previous == TokenCoefficient && kind == TokenPlus) {
    return u"One of the terms in your equation contains nothing but a coefficient. Please correct this and "
           u"try again.";
  }
  if (previous == TokenPlus && kind == TokenPlus) {
    return u"One of the terms in your equation is empty. Check and remove any double '+' signs.";
  }
  if (previous == TokenNumber && kind == TokenNumber) {
    return u"Maximum length of an index is 3 digits. Please correct this and try again.";
  }
  if (previous == TokenCoefficient && kind == TokenNumber) {
    return u"Maximum length of a coefficient is 3 digits. Please check that there is no subscript number "
           u"following a coefficient.";
  }
  if (previous == TokenOpen && kind == TokenNumber) {
    return u"An index in your equation follows a bracket. Index numbers are only allowed after element "
           u"symbols.";
  }
  if (previous == TokenOpen && kind == TokenClose) {
    return u"There is an opening bracket followed by a closing bracket in your equation. Please remove that "
           u"before proceeding.";
  }
  return {};
}

// `previous` is the kind before the first token, and then that of the last.
std::optional<EquationFault> CheckSequence(const Side& side, TokenKind& previous) {
  for (const FormulaToken& token : side.tokens) {
    const TextView text = FaultOfPair(previous, token.kind);
    if (!text.empty()) return Fault(side, text);
    previous = token.kind;
  }
  return std::nullopt;
}

std::optional<EquationFault> CheckEnd(const Side& side) {
  if (side.tokens.back().kind != TokenCoefficient) return std::nullopt;
  return Fault(side, side.endsWithCoefficient);
}

}  // namespace

std::optional<EquationFault> CheckEquation(const FormulaTokens& left, const FormulaTokens& right) {
  const Side sides[] = {
      {left, u"Errors in input - left-hand side",
       u"The left-hand side of your equation is empty. Please enter your equation.",
       u"The left-hand side ends with a coefficient, which is invalid. Please correct this before "
       u"proceeding."},
      {right, u"Errors in input - right-hand side",
       u"The right-hand side of your equation is empty. Please enter your equation.",
       u"The right-hand side ends with a coefficient, which is invalid. Please correct this before "
       u"proceeding."},
  };
  for (const auto check : {CheckNotEmpty, CheckRecognised, CheckBrackets}) {
    for (const Side& side : sides) {
      if (const std::optional<EquationFault> fault = check(side)) return fault;
    }
  }
  // In front of the left side stands what goes with everything; the right side goes on where the left ended.
  TokenKind previous = TokenUnknown;
  for (const Side& side : sides) {
    if (const std::optional<EquationFault> fault = CheckSequence(side, previous)) return fault;
  }
  for (const Side& side : sides) {
    if (const std::optional<EquationFault> fault = CheckEnd(side)) return fault;
  }
  return std::nullopt;
}

}  // namespace orvane
