#include "chemistry/element_table.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr std::size_t kDecimals = kMassDecimals;

// One cell for each way to write up to three letters, 0 for an absent one.
constexpr std::size_t kLetters = 27;
constexpr std::size_t kCells = kLetters * kLetters * kLetters;
constexpr std::size_t kNoCell = kCells;

// 1 for A and a up to 26 for Z and z; 0 for everything else.
std::size_t LetterCode(Char c) {
  const Char lower = AsciiLower(c);
  return IsAsciiLower(lower) ? static_cast<std::size_t>(lower - u'a') + 1 : 0;
}

std::size_t CellOf(TextView symbol) {
  if (symbol.empty() || symbol.size() > ElementTable::kLongestSymbol) return kNoCell;
  std::size_t cell = 0;
  for (std::size_t i = 0; i < ElementTable::kLongestSymbol; ++i) {
    const std::size_t code = i < symbol.size() ? LetterCode(symbol[i]) : 0;
    if (i < symbol.size() && code == 0) return kNoCell;
    cell = cell * kLetters + code;
  }
  return cell;
}

}  // namespace

AtomicMass AtomicMass::Read(TextView text) {
  if (!text.empty() && text.front() == u'[') {
    text.remove_prefix(1);
    if (!text.empty()) text.remove_suffix(1);
  }
  if (text.empty()) text = u"0";
  const std::size_t point = std::min(text.find(u'.'), text.size());
  const TextView decimals = text.substr(std::min(point + 1, text.size()));
  AtomicMass mass;
  mass.decimalPlaces = static_cast<int>(decimals.size());
  std::string digits;
  const auto append = [&digits](TextView part) {
    for (const Char c : part) digits += IsAsciiDigit(c) ? static_cast<char>(c) : '0';
  };
  append(text.substr(0, point));
  append(decimals.substr(0, kDecimals));
  digits.append(kDecimals - std::min(decimals.size(), kDecimals), '0');
  mass.value = LongDecimal(std::move(digits));
  mass.shortValue = ShortDecimal(mass.value);
  return mass;
}

ElementTable::ElementTable() : elementOf_(kCells, std::int8_t{-1}) { masses_.reserve(kElementCount); }

void ElementTable::Add(TextView symbol, TextView mass) {
  if (masses_.size() == kElementCount) return;
  const std::size_t cell = CellOf(symbol);
  if (cell != kNoCell && elementOf_[cell] < 0) elementOf_[cell] = static_cast<std::int8_t>(masses_.size());
  masses_.push_back(AtomicMass::Read(mass));
}

int ElementTable::Find(TextView symbol) const {
  const std::size_t cell = CellOf(symbol);
  return cell == kNoCell ? -1 : elementOf_[cell];
}

}  // namespace orvane
