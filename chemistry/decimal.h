// Decimal numbers for sums of masses: never negative, with eight decimals, and written with a certain number
// of digits before the point. That number is part of the value, because the growth of a product tells how
// many of its decimals are still justified, and because zeros in front are kept: a sum is written as long as
// the longer of its operands, a product as long as the sums by which it is made on paper.
//
// There are two of them with the same operations. ShortDecimal is a machine word, which holds what people ask
// for; it notices when it grows out of itself. LongDecimal is a row of digits and holds everything.
#pragma once

#include <cstdint>
#include <string>

#include "base/text.h"

namespace orvane {

inline constexpr int kMassDecimals = 8;

class LongDecimal {
 public:
  // 0.00000000
  LongDecimal() : digits_(1 + kMassDecimals, '0') {}
  // Digits alone, of which the last eight are decimals; eight at least.
  explicit LongDecimal(std::string digits) : digits_(std::move(digits)) {}

  void Add(const LongDecimal& other);
  // `index` is 0 to 999.
  void MultiplyBy(int index);
  // Adds one in the place of that decimal, 0 to 8; 0 is the units' place.
  void AddOneAt(int decimal);

  int IntegerDigits() const { return static_cast<int>(digits_.size()) - kMassDecimals; }
  // The digit in the place of that decimal, 1 to 8.
  int DecimalDigit(int decimal) const;
  // Appends the number, cut behind that many decimals; without any, the point is left out, too.
  void AppendTo(Text& out, int decimals) const;
  bool IsExact() const { return true; }

  const std::string& Digits() const { return digits_; }

 private:
  std::string digits_;
};

class ShortDecimal {
 public:
  ShortDecimal() = default;
  explicit ShortDecimal(const LongDecimal& number);

  void Add(const ShortDecimal& other);
  void MultiplyBy(int index);
  void AddOneAt(int decimal);

  int IntegerDigits() const { return integerDigits_; }
  int DecimalDigit(int decimal) const;
  void AppendTo(Text& out, int decimals) const;
  // False once the number, or one that went into it, had more digits than there is room for; what it then
  // holds means nothing.
  bool IsExact() const { return exact_; }

 private:
  // A product with 999 has up to three digits more, nineteen in all, and just fits the word.
  static constexpr int kMostIntegerDigits = 8;
  void CheckRoom();

  std::uint64_t units_ = 0;  // of 10^−8
  int integerDigits_ = 1;
  bool exact_ = true;
};

}  // namespace orvane
