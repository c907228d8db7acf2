// The arithmetic of masses as a person does it on paper, written down digit by digit: numbers are strings
// with a point and eight decimals. Slow and plain, to hold the program's own arithmetic against.
#pragma once

#include <algorithm>
#include <string>

#include "chemistry/element_table.h"
#include "chemistry/formula_tokens.h"

namespace orvane::testing {

inline std::string PaperSum(std::string a, std::string b) {
  const std::size_t length = std::max(a.size(), b.size());
  a.insert(0, length - a.size(), '0');
  b.insert(0, length - b.size(), '0');
  std::string sum;
  int carry = 0;
  for (std::size_t i = length; i-- > 0;) {
    if (a[i] == '.') {
      sum.insert(0, 1, '.');
      continue;
    }
    const int digit = (a[i] - '0') + (b[i] - '0') + carry;
    sum.insert(0, 1, static_cast<char>('0' + digit % 10));
    carry = digit / 10;
  }
  return carry == 0 ? sum : "1" + sum;
}

// Adds the number as often as each digit of the index says, moving its point behind every digit.
inline std::string PaperProduct(std::string number, TextView index) {
  std::string product = "0.00000000";
  for (std::size_t i = index.size(); i-- > 0;) {
    for (int times = index[i] - u'0'; times > 0; --times) product = PaperSum(product, number);
    number += '0';
    const std::size_t point = number.find('.');
    std::swap(number[point], number[point + 1]);
  }
  return product;
}

struct PaperNumber {
  std::string digits = "0.00000000";
  int decimalPlaces = 8;
};

inline PaperNumber PaperSum(const PaperNumber& a, const PaperNumber& b) {
  return {PaperSum(a.digits, b.digits), std::min(a.decimalPlaces, b.decimalPlaces)};
}

inline PaperNumber PaperMass(const AtomicMass& mass) {
  std::string digits = mass.value.Digits();
  digits.insert(digits.size() - 8, ".");
  return {digits, mass.decimalPlaces};
}

// The sum of a level of brackets from a position on, which then stands behind its closing bracket.
inline PaperNumber PaperLevel(const FormulaTokens& tokens, std::size_t& at, const ElementTable& elements) {
  PaperNumber sum;
  PaperNumber pending;
  while (at < tokens.size()) {
    const FormulaToken& token = tokens[at++];
    if (token.kind == TokenClose) break;
    if (token.kind == TokenElement) {
      sum = PaperSum(sum, pending);
      pending = PaperMass(elements.Mass(token.element));
    } else if (token.kind == TokenOpen) {
      sum = PaperSum(sum, pending);
      pending = PaperLevel(tokens, at, elements);
    } else {
      const std::string product = PaperProduct(pending.digits, token.View());
      const int grown = static_cast<int>(product.size()) - static_cast<int>(pending.digits.size());
      pending = {product, std::max(pending.decimalPlaces - std::max(grown, 0), 0)};
    }
  }
  return PaperSum(sum, pending);
}

// The rounded mass of a formula without faults.
inline PaperNumber PaperMass(const FormulaTokens& tokens, const ElementTable& elements) {
  std::size_t at = 0;
  PaperNumber value = PaperLevel(tokens, at, elements);
  const std::size_t point = value.digits.find('.');
  const auto kept = static_cast<std::size_t>(value.decimalPlaces);
  if (kept < 8 && value.digits[point + kept + 1] >= '5') {
    std::string one = value.digits;
    for (char& c : one) c = c == '.' ? '.' : '0';
    one[kept == 0 ? point - 1 : point + kept] = '1';
    value.digits = PaperSum(value.digits, one);
  }
  value.digits.resize(value.digits.find('.') + (kept == 0 ? 0 : kept + 1));
  return value;
}

}  // namespace orvane::testing
