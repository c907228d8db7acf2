#include "chemistry/value_filter.h"

#include <algorithm>
#include <optional>

#include "chemistry/wrapped_integer.h"

namespace orvane {

namespace {

constexpr Char kSpace = u' ';

// The number that is being read. A whole one wraps at 32 bits, as in a reader with 32-bit registers.
class BoundReader {
 public:
  bool AtStart() const { return atStart_; }

  void Digit(Char c) {
    const std::int32_t digit = c - u'0';
    if (real_) {
      number_ += digit * place_;
      place_ *= 0.1;
    } else {
      number_ = number_ * 10 + digit;
      integer_ = integer_ * 10 + digit;
    }
    atStart_ = false;
  }

  // False when there was a point before.
  bool Point() {
    if (real_) return false;
    real_ = true;
    place_ = 0.1;
    atStart_ = false;
    return true;
  }

  void Minus() {
    negative_ = true;
    atStart_ = false;
  }

  // What has been read; the next number begins.
  FilterBound Take() {
    FilterBound bound;
    bound.isReal = real_;
    if (real_) {
      bound.real = negative_ ? -number_ : number_;
    } else {
      bound.integer = (negative_ ? -integer_ : integer_).Value();
    }
    *this = BoundReader();
    return bound;
  }

 private:
  Wrapped32 integer_;
  double number_ = 0;
  double place_ = 0;
  bool real_ = false;
  bool negative_ = false;
  bool atStart_ = true;
};

// Two states: a low bound is read until the "-" behind it, then a high bound until ";".
class FilterParser {
 public:
  FilterError Read(Char c) { return inHigh_ ? ReadInHigh(c) : ReadInLow(c); }

  FilterError Finish() {
    if (!inHigh_ || bound_.AtStart()) return FilterError::kEnding;
    ranges_.back().high = bound_.Take();
    return FilterError::kNone;
  }

  std::vector<FilterRange>& Ranges() { return ranges_; }

 private:
  FilterError ReadInLow(Char c) {
    if (const auto error = ReadNumber(c)) return *error;
    if (c != u'-') return FilterError::kInLow;
    if (bound_.AtStart()) {
      bound_.Minus();
    } else {
      // A sign alone is a bound of 0: in "--3" the second "-" is the separator.
      ranges_.push_back({bound_.Take(), {}});
      inHigh_ = true;
    }
    return FilterError::kNone;
  }

  FilterError ReadInHigh(Char c) {
    if (const auto error = ReadNumber(c)) return *error;
    if (c == u'-') {
      if (!bound_.AtStart()) return FilterError::kSecondMinus;
      bound_.Minus();
      return FilterError::kNone;
    }
    if (c != u';') return FilterError::kInHigh;
    if (bound_.AtStart()) return FilterError::kNoHigh;
    ranges_.back().high = bound_.Take();
    inHigh_ = false;
    return FilterError::kNone;
  }

  // Digits and points read alike in both states; nothing for any other character.
  std::optional<FilterError> ReadNumber(Char c) {
    if (IsAsciiDigit(c)) {
      bound_.Digit(c);
      return FilterError::kNone;
    }
    if (c == u'.') return bound_.Point() ? FilterError::kNone : FilterError::kTwoPoints;
    return std::nullopt;
  }

  std::vector<FilterRange> ranges_;
  BoundReader bound_;
  bool inHigh_ = false;
};

}  // namespace

TextView FilterMessage(FilterError error) {
  switch (error) {
    case FilterError::kNone:
      return {};
    case FilterError::kBeginning:
      return u"Filter expression must begin with a digit or be empty. See help for more info.";
    case FilterError::kTwoPoints:
      return u"One of the numbers in the filter string has two decimal points in it.";
    case FilterError::kInLow:
      return u"Unexpected character in filter string (1). See help for more info.";
    case FilterError::kInHigh:
      return u"Unexpected character in filter string (2). See help for more info.";
    case FilterError::kSecondMinus:
      return u"Unexpected character in filter string (3). See help for more info.";
    case FilterError::kNoHigh:
      return u"Unexpected character in filter string (4). See help for more info.";
    case FilterError::kEnding:
      return u"The filter string ended unexpectedly. See help for more info.";
    case FilterError::kTooLong:
      return u"The filter string is longer than 254 characters.";
  }
  return {};
}

FilterError ParseFilter(TextView text, std::vector<FilterRange>& ranges) {
  if (text.size() > kLongestFilter) return FilterError::kTooLong;
  const std::size_t first = text.find_first_not_of(kSpace);
  if (first == TextView::npos) {
    ranges.clear();
    return FilterError::kNone;
  }
  if (!IsAsciiDigit(text[first]) && text[first] != u'-') return FilterError::kBeginning;
  FilterParser parser;
  for (const Char c : text.substr(first)) {
    if (c == kSpace) continue;
    if (const FilterError error = parser.Read(c); error != FilterError::kNone) return error;
  }
  if (const FilterError error = parser.Finish(); error != FilterError::kNone) return error;
  ranges = std::move(parser.Ranges());
  return FilterError::kNone;
}

FilterError SetFilter(ValueFilter& filter, TextView text) {
  const FilterError error = ParseFilter(text, filter.ranges);
  if (error == FilterError::kNone) filter.text = text;
  return error;
}

bool PassesFilter(const std::vector<FilterRange>& ranges, double value) {
  if (ranges.empty()) return true;
  return std::any_of(ranges.begin(), ranges.end(), [value](const FilterRange& range) {
    return value >= range.low.Value() && value <= range.high.Value();
  });
}

}  // namespace orvane
