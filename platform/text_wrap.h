// Breaks text into lines of a width. Knows advances, not fonts.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "base/text.h"

namespace orvane {

// A line: the units first..last−1 of the text, without the line end or the blanks it was broken at.
struct WrappedLine {
  std::size_t first = 0;
  std::size_t last = 0;
  friend bool operator==(const WrappedLine&, const WrappedLine&) = default;
};

// `widths` holds the advance of each unit. A line ends at a line feed (a carriage return before it belongs to
// it); a line that is too wide is broken after its last blank; within a word that no line could hold, after
// its last slash or backslash (a file path) that fits, else before the character that no longer fits. Every
// line has at least one character, so that a width of nothing still ends. Blanks at a break take no room. At
// least one line.
std::vector<WrappedLine> WrapText(TextView text, std::span<const int> widths, int width);

}  // namespace orvane
