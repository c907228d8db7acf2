// Where the cells of the periodic table stand, and where the texts stand in them. Pure arithmetic on measured
// text sizes; all numbers are logical pixels of the table's content.
#pragma once

#include <array>
#include <vector>

#include "base/geometry.h"

namespace orvane {

inline constexpr int kPeriodicCells = 112;

// The table's left and top edge, where the label bands end; also the margin at its right and bottom.
inline constexpr int kTableEdge = 15;
// How far the rows of lanthanides and actinides are indented.
inline constexpr int kSeriesIndent = 69;

// What the table shows: the symbol always, the others on request.
struct PeriodicView {
  bool wide = false;  // long form (18 groups) instead of the short form (8 groups)
  bool number = false;
  bool name = false;
  bool mass = false;
  bool SymbolOnly() const { return !number && !name && !mass; }
};

// Measured sizes of one element's texts in the fonts that the view calls for.
struct CellTexts {
  Size symbol;
  Size number;
  Size name;
  Size mass;
};

struct PeriodicCell {
  Rect rect;
  // Top left corners, relative to the cell's; those of texts that are not shown stay (0, 0).
  Point symbol;
  Point number;
  Point name;
  Point mass;
};

struct PeriodicLayout {
  std::array<PeriodicCell, kPeriodicCells> cells;
  Size content;
};

// The column of an element by its index (atomic number − 1): 0..16 in the short form, 0..31 in the long form.
// −1 for an index outside 0..111.
int PeriodicColumn(int element, bool wide);

// The size that an element's texts ask for. Some texts do not count, as the tabled rules have it: a number
// alone is as wide as the symbol, a name alone or a mass alone hides the symbol's width.
Size CellSize(const CellTexts& texts, const PeriodicView& view);

// Columns are as wide as their widest cell; every row is as high as hydrogen's cell, at least 1.
PeriodicLayout LayOutPeriodicTable(const std::array<CellTexts, kPeriodicCells>& texts,
                                   const PeriodicView& view);

// The first cell in element order that holds the point, or −1. A border shared by two cells belongs to the
// one whose left or top edge it is.
int CellAt(const PeriodicLayout& layout, Point point);

}  // namespace orvane
