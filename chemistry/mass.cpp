#include "chemistry/mass.h"

#include <algorithm>

#include "base/styled_text.h"

namespace orvane {

namespace {

constexpr Char kBoldFlags = u'!';

template <class Number>
const Number& MassOf(const AtomicMass& mass);
template <>
const ShortDecimal& MassOf(const AtomicMass& mass) {
  return mass.shortValue;
}
template <>
const LongDecimal& MassOf(const AtomicMass& mass) {
  return mass.value;
}

// A number and how many of its eight decimals are significant.
template <class Number>
struct Measured {
  Number value;
  int decimalPlaces = kMassDecimals;

  // Absolute precision: a sum is no more exact than its least exact term.
  void Add(const Measured& term) {
    value.Add(term.value);
    decimalPlaces = std::min(decimalPlaces, term.decimalPlaces);
  }

  // Relative precision: the figures that are gained in front are taken off the back. An index of 0 can make
  // the product shorter, which gains nothing.
  void MultiplyBy(int index) {
    const int before = value.IntegerDigits();
    value.MultiplyBy(index);
    decimalPlaces = std::max(decimalPlaces - std::max(value.IntegerDigits() - before, 0), 0);
  }
};

// One level of brackets: the sum so far, and the last symbol or group, which an index may still multiply.
template <class Number>
struct Level {
  Measured<Number> sum;
  Measured<Number> pending;

  Measured<Number> Total() const {
    Measured<Number> total = sum;
    total.Add(pending);
    return total;
  }
};

int IndexValue(const FormulaToken& token) {
  int value = 0;
  for (const Char c : token.View()) value = value * 10 + (c - u'0');
  return value;
}

// The mass of tokens without a fault.
template <class Number>
Measured<Number> Sum(const FormulaTokens& tokens, const ElementTable& elements) {
  std::vector<Level<Number>> outer;
  Level<Number> level;
  for (const FormulaToken& token : tokens) {
    switch (token.kind) {
      case TokenElement: {
        const AtomicMass& mass = elements.Mass(token.element);
        level.sum.Add(level.pending);
        level.pending = {MassOf<Number>(mass), mass.decimalPlaces};
        break;
      }
      case TokenNumber:
        level.pending.MultiplyBy(IndexValue(token));
        break;
      case TokenOpen:
        level.sum.Add(level.pending);
        outer.push_back(level);
        level = {};
        break;
      case TokenClose: {
        const Measured<Number> group = level.Total();
        level = outer.back();
        outer.pop_back();
        level.pending = group;
        break;
      }
      default:
        break;  // a formula without faults has no other
    }
  }
  return level.Total();
}

// Rounds half up by the first digit that is dropped, which alone decides, and cuts. Of eight decimals none is
// dropped.
template <class Number>
void Round(Measured<Number> sum, Text& mass) {
  const int kept = sum.decimalPlaces;
  if (kept < kMassDecimals && sum.value.DecimalDigit(kept + 1) >= 5) sum.value.AddOneAt(kept);
  sum.value.AppendTo(mass, kept);
}

FormulaFault CheckNumbers(const FormulaTokens& tokens) {
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    if (tokens[i].kind != TokenNumber) continue;
    if (i == 0) return FormulaFault::kLeadingNumber;
    if (tokens[i - 1].kind == TokenOpen) return FormulaFault::kNumberAfterOpening;
    if (tokens[i - 1].kind == TokenNumber) return FormulaFault::kLongNumber;
  }
  return FormulaFault::kNone;
}

FormulaFault CheckBrackets(const FormulaTokens& tokens) {
  std::size_t depth = 0;
  for (const FormulaToken& token : tokens) {
    if (token.kind == TokenOpen) ++depth;
    if (token.kind != TokenClose) continue;
    if (depth == 0) return FormulaFault::kUnmatchedClosing;
    --depth;
  }
  return depth == 0 ? FormulaFault::kNone : FormulaFault::kUnmatchedOpening;
}

Text Bold(TextView text) {
  return Text{kStyleMark, kBoldFlags}.append(text).append({kStyleMark, kPlainFlags});
}

}  // namespace

FormulaFault CheckFormula(const FormulaTokens& tokens) {
  if (tokens.empty()) return FormulaFault::kEmpty;
  // The boxes' other variants may hand over kinds that a formula does not have; they mean as little here.
  const bool allKnown = std::all_of(tokens.begin(), tokens.end(), [](const FormulaToken& token) {
    return token.kind >= TokenElement && token.kind <= TokenClose;
  });
  if (!allKnown) return FormulaFault::kUnknownSymbol;
  const FormulaFault fault = CheckNumbers(tokens);
  return fault == FormulaFault::kNone ? CheckBrackets(tokens) : fault;
}

TextView FaultHeadline(FormulaFault fault) {
  switch (fault) {
    case FormulaFault::kNone:
      return {};
    case FormulaFault::kEmpty:
      return u"Please enter a formula.";
    default:
      return u"Calculation failed due to errors in formula.";
  }
}

TextView FaultExplanation(FormulaFault fault) {
  switch (fault) {
    case FormulaFault::kNone:
      return {};
    case FormulaFault::kEmpty:
      return u"\n\nBe sure to read help about molecular mass calculator - there is a lot of useful "
             u"information there.";
    case FormulaFault::kUnknownSymbol:
      return u"\n\nThe elements highlighted with red cannot be recognized. Check spelling and capitalization "
             u"(see help for more info on automatic capitalization).";
    case FormulaFault::kLeadingNumber:
      return u"\n\nThe formula cannot begin with a number. Start the formula with a symbol or a bracket.";
    case FormulaFault::kNumberAfterOpening:
      return u"\n\nA number cannot follow an opening bracket. Please correct this before the mass can be "
             u"calculated.";
    case FormulaFault::kLongNumber:
      return u"\n\nIndex numbers must not exceed a maximum length of three digits.";
    case FormulaFault::kUnmatchedClosing:
    case FormulaFault::kUnmatchedOpening:
      return u"\n\nBrackets in your formula are not correct. Every opening bracket should have a matching "
             u"closing bracket after it.";
  }
  return {};
}

FormulaFault CalculateMass(const FormulaTokens& tokens, const ElementTable& elements, Text& mass, int& dp) {
  mass.clear();
  dp = 0;
  const FormulaFault fault = CheckFormula(tokens);
  if (fault != FormulaFault::kNone) return fault;
  const Measured<ShortDecimal> sum = Sum<ShortDecimal>(tokens, elements);
  if (sum.value.IsExact()) {
    dp = sum.decimalPlaces;
    Round(sum, mass);
  } else {
    const Measured<LongDecimal> longSum = Sum<LongDecimal>(tokens, elements);
    dp = longSum.decimalPlaces;
    Round(longSum, mass);
  }
  return fault;
}

MassResult CalculateMass(const FormulaTokens& tokens, const ElementTable& elements) {
  MassResult result;
  const FormulaFault fault = CalculateMass(tokens, elements, result.mass, result.dp);
  result.ok = fault == FormulaFault::kNone;
  if (result.ok) {
    result.message = u"Calculation was successful.";
    result.line = MassLine(result.mass, result.dp);
  } else {
    result.headline = FaultHeadline(fault);
    result.explanation = FaultExplanation(fault);
    result.message = Bold(result.headline).append(result.explanation);
  }
  return result;
}

Text MassLine(TextView mass, int dp) {
  return Text(u"Mass: ").append(Bold(mass)).append(u", ").append(DecimalText(dp)).append(u" d.p.");
}

}  // namespace orvane
