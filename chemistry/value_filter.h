// Value filters: a short text such as "3-48" or "1-2;5-7.5" that lists closed ranges. An element stays in a
// plot when its value lies in one of them. Ranges are joined by ";"; a range is a number, "-" and a number; a
// number is an optional leading "-", digits and at most one "."; spaces do not count anywhere.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/text.h"

namespace orvane {

// In characters; a setting of this kind is kept in 255 with its terminating zero.
inline constexpr std::size_t kLongestFilter = 254;

// One end of a range. It is real when its text held a point, otherwise a whole number that wraps at 32 bits.
struct FilterBound {
  bool isReal = false;
  std::int32_t integer = 0;  // meaningful when isReal is false
  double real = 0;           // meaningful when isReal is true

  double Value() const { return isReal ? real : static_cast<double>(integer); }
  friend bool operator==(const FilterBound&, const FilterBound&) = default;
};

// Both ends belong to the range. Ends are kept in the order of the text: "48-3" holds no value at all.
struct FilterRange {
  FilterBound low;
  FilterBound high;
  friend bool operator==(const FilterRange&, const FilterRange&) = default;
};

// A text and what it means; without ranges everything passes.
struct ValueFilter {
  Text text;  // as typed, spaces and all
  std::vector<FilterRange> ranges;
};

enum class FilterError {
  kNone,
  kBeginning,    // the first character is neither a digit nor "-"
  kTwoPoints,    // a number with a second "."
  kInLow,        // a character that cannot stand in a low bound; ";" is one
  kInHigh,       // a character that cannot stand in a high bound
  kSecondMinus,  // "-" inside a high bound
  kNoHigh,       // ";" where the high bound should begin
  kEnding,       // the text ends before a range is complete
  kTooLong,      // more than kLongestFilter characters
};

// What the user is told; empty for kNone.
TextView FilterMessage(FilterError error);

// Reads a filter's text. On success `ranges` holds what it lists; on failure `ranges` keeps what it held.
FilterError ParseFilter(TextView text, std::vector<FilterRange>& ranges);

// Gives the filter a new text. A text with an error leaves both its text and its ranges in force.
FilterError SetFilter(ValueFilter& filter, TextView text);

// Whether the value lies in one of the ranges, whose bounds belong to them. No ranges let everything pass.
bool PassesFilter(const std::vector<FilterRange>& ranges, double value);
inline bool PassesFilter(const ValueFilter& filter, double value) {
  return PassesFilter(filter.ranges, value);
}

}  // namespace orvane
