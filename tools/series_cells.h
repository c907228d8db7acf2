// The electrochemical series as this program presents it: the metals from the most reactive down, hydrogen
// in a band of its own between those that displace it from acids and those that do not. The picture is
// fixed, and so is its order within the rows; it does not come from the database of the elements.
#pragma once

#include <array>

#include "base/geometry.h"
#include "base/text.h"

namespace orvane {

struct SeriesCell {
  TextView label;
  int number = 0;  // atomic number
  Rect rect;       // in the tool's client area
};

inline constexpr int kSeriesCells = 27;

// Row by row, from left to right.
const std::array<SeriesCell, kSeriesCells>& SeriesCells();

// The cell that holds the point; null between and outside the cells.
const SeriesCell* SeriesCellAt(Point point);

// The three bands that the cells lie in.
inline constexpr int kSeriesLeft = 12;
inline constexpr int kSeriesRight = 228;
inline constexpr Rect kUpperBand{kSeriesLeft, 40, kSeriesRight, 80};
inline constexpr int kUpperRowBoundary = 60;
inline constexpr Rect kHydrogenBand{kSeriesLeft, 88, kSeriesRight, 108};
inline constexpr Rect kLowerBand{kSeriesLeft, 116, kSeriesRight, 136};
inline constexpr int kUpperCellWidth = 24;
inline constexpr int kLowerCellWidth = 27;

}  // namespace orvane
