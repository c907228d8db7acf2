// Any bytes as a value filter, and as the text of a value.
#pragma once

#include <cmath>
#include <string_view>
#include <vector>

#include "chemistry/plot_value.h"
#include "chemistry/value_filter.h"
#include "fuzz/require.h"

namespace orvane::fuzz {

inline Text WithoutSpaces(TextView text) {
  Text out;
  for (const Char c : text) {
    if (c != u' ') out += c;
  }
  return out;
}

inline void CheckFilter(std::string_view bytes) {
  const Text text = FromUtf8(bytes);
  const std::vector<FilterRange> before{{{false, 1, 0}, {true, 0, 2.5}}};
  std::vector<FilterRange> ranges = before;
  const FilterError error = ParseFilter(text, ranges);
  Require(FilterMessage(error).empty() == (error == FilterError::kNone));
  if (error != FilterError::kNone) {
    Require(ranges == before);
  } else {
    std::vector<FilterRange> again = before;
    Require(ParseFilter(WithoutSpaces(text), again) == FilterError::kNone && again == ranges);
    for (const FilterRange& range : ranges) {
      const double low = range.low.Value();
      const double high = range.high.Value();
      Require(std::isfinite(low) && std::isfinite(high));
      // A range that is not the wrong way round holds its own ends.
      Require(low > high || (PassesFilter(ranges, low) && PassesFilter(ranges, high)));
    }
  }
  const double value = ReadPlotValue(text);
  Require(!std::isnan(value));
  Require(std::isinf(value) || PassesFilter(std::vector<FilterRange>(), value));
}

}  // namespace orvane::fuzz
