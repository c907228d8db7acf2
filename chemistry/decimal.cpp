#include "chemistry/decimal.h"

#include <algorithm>
#include <array>

namespace orvane {

namespace {

// By how many places the multiplicand is moved for the first digit of the index that is not zero. An index of
// 0 moves nothing and leaves a zero with a single digit in front of the point.
int PlacesMoved(int index) {
  if (index >= 100) return 2;
  return index >= 10 ? 1 : 0;
}

constexpr std::array<std::uint64_t, 20> kPowersOfTen = [] {
  std::array<std::uint64_t, 20> powers{};
  std::uint64_t power = 1;
  for (std::uint64_t& entry : powers) {
    entry = power;
    power *= 10;
  }
  return powers;
}();

std::uint64_t PowerOfTen(int exponent) { return kPowersOfTen[static_cast<std::size_t>(exponent)]; }

}  // namespace

void LongDecimal::Add(const LongDecimal& other) {
  if (digits_.size() < other.digits_.size()) {
    digits_.insert(std::size_t{0}, other.digits_.size() - digits_.size(), '0');
  }
  int carry = 0;
  std::size_t theirs = other.digits_.size();
  for (std::size_t i = digits_.size(); i-- > 0;) {
    const int sum = digits_[i] - '0' + (theirs > 0 ? other.digits_[--theirs] - '0' : 0) + carry;
    digits_[i] = static_cast<char>('0' + sum % 10);
    carry = sum / 10;
  }
  if (carry != 0) digits_.insert(digits_.begin(), '1');
}

void LongDecimal::MultiplyBy(int index) {
  if (index == 0) {
    *this = LongDecimal();
    return;
  }
  const std::size_t least =
      std::max<std::size_t>(digits_.size() + static_cast<std::size_t>(PlacesMoved(index)), 1 + kMassDecimals);
  int carry = 0;
  for (std::size_t i = digits_.size(); i-- > 0;) {
    const int product = (digits_[i] - '0') * index + carry;
    digits_[i] = static_cast<char>('0' + product % 10);
    carry = product / 10;
  }
  for (; carry != 0; carry /= 10) digits_.insert(digits_.begin(), static_cast<char>('0' + carry % 10));
  if (digits_.size() < least) digits_.insert(std::size_t{0}, least - digits_.size(), '0');
}

void LongDecimal::AddOneAt(int decimal) {
  std::string one(digits_.size(), '0');
  const std::size_t place = one.size() - 1 - static_cast<std::size_t>(kMassDecimals - decimal);
  one[place] = '1';
  Add(LongDecimal(std::move(one)));
}

int LongDecimal::DecimalDigit(int decimal) const {
  return digits_[digits_.size() - 1 - static_cast<std::size_t>(kMassDecimals - decimal)] - '0';
}

void LongDecimal::AppendTo(Text& out, int decimals) const {
  const auto point = digits_.end() - kMassDecimals;
  out.append(digits_.begin(), point);
  if (decimals == 0) return;
  out += u'.';
  out.append(point, point + decimals);
}

ShortDecimal::ShortDecimal(const LongDecimal& number) : integerDigits_(number.IntegerDigits()) {
  CheckRoom();
  if (!exact_) return;
  for (const char digit : number.Digits()) units_ = units_ * 10 + static_cast<std::uint64_t>(digit - '0');
}

void ShortDecimal::CheckRoom() {
  if (integerDigits_ <= kMostIntegerDigits) return;
  exact_ = false;
  units_ = 0;
  integerDigits_ = 1;
}

void ShortDecimal::Add(const ShortDecimal& other) {
  units_ += other.units_;
  integerDigits_ = std::max(integerDigits_, other.integerDigits_);
  if (units_ >= PowerOfTen(integerDigits_ + kMassDecimals)) ++integerDigits_;
  exact_ = exact_ && other.exact_;
  CheckRoom();
}

void ShortDecimal::MultiplyBy(int index) {
  units_ *= static_cast<std::uint64_t>(index);
  integerDigits_ = index == 0 ? 1 : std::max(integerDigits_ + PlacesMoved(index), 1);
  if (units_ >= PowerOfTen(integerDigits_ + kMassDecimals)) ++integerDigits_;
  CheckRoom();
}

void ShortDecimal::AddOneAt(int decimal) {
  units_ += PowerOfTen(kMassDecimals - decimal);
  if (units_ >= PowerOfTen(integerDigits_ + kMassDecimals)) ++integerDigits_;
}

int ShortDecimal::DecimalDigit(int decimal) const {
  return static_cast<int>(units_ / PowerOfTen(kMassDecimals - decimal) % 10);
}

void ShortDecimal::AppendTo(Text& out, int decimals) const {
  std::uint64_t rest = units_ / PowerOfTen(kMassDecimals - decimals);
  const std::size_t begin = out.size();
  const int length = integerDigits_ + decimals + (decimals > 0 ? 1 : 0);
  std::size_t place = begin + static_cast<std::size_t>(length);
  out.resize(place);
  for (int i = 0; i < decimals; ++i, rest /= 10) out[--place] = static_cast<Char>(u'0' + rest % 10);
  if (decimals > 0) out[--place] = u'.';
  for (; place > begin; rest /= 10) out[--place] = static_cast<Char>(u'0' + rest % 10);
}

}  // namespace orvane
