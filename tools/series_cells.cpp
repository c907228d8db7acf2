#include "tools/series_cells.h"

#include <span>

namespace orvane {

namespace {

struct Metal {
  TextView symbol;
  int number = 0;
};

constexpr std::array<Metal, 9> kFirstRow{{
    {u"Li", 3},
    {u"Rb", 37},
    {u"K", 19},
    {u"Ba", 56},
    {u"Sr", 38},
    {u"Ca", 20},
    {u"Na", 11},
    {u"Mg", 12},
    {u"Al", 13},
}};
constexpr std::array<Metal, 9> kSecondRow{{
    {u"Mn", 25},
    {u"Zn", 30},
    {u"Cr", 24},
    {u"Fe", 26},
    {u"Cd", 48},
    {u"Co", 27},
    {u"Ni", 28},
    {u"Sn", 50},
    {u"Pb", 82},
}};
constexpr std::array<Metal, 8> kThirdRow{{
    {u"Sb", 51},
    {u"Bi", 83},
    {u"Cu", 29},
    {u"Hg", 80},
    {u"Ag", 47},
    {u"Pd", 46},
    {u"Pt", 78},
    {u"Au", 79},
}};

std::array<SeriesCell, kSeriesCells> MakeCells() {
  std::array<SeriesCell, kSeriesCells> cells;
  std::size_t next = 0;
  const auto addRow = [&cells, &next](std::span<const Metal> metals, int top, int bottom, int width) {
    int left = kSeriesLeft;
    for (const Metal& metal : metals) {
      cells[next++] = {metal.symbol, metal.number, {left, top, left + width, bottom}};
      left += width;
    }
  };
  addRow(kFirstRow, kUpperBand.top, kUpperRowBoundary, kUpperCellWidth);
  addRow(kSecondRow, kUpperRowBoundary, kUpperBand.bottom, kUpperCellWidth);
  cells[next++] = {u"Hydrogen", 1, kHydrogenBand};
  addRow(kThirdRow, kLowerBand.top, kLowerBand.bottom, kLowerCellWidth);
  return cells;
}

}  // namespace

const std::array<SeriesCell, kSeriesCells>& SeriesCells() {
  static const std::array<SeriesCell, kSeriesCells> cells = MakeCells();
  return cells;
}

const SeriesCell* SeriesCellAt(Point point) {
  for (const SeriesCell& cell : SeriesCells()) {
    if (cell.rect.Contains(point)) return &cell;
  }
  return nullptr;
}

}  // namespace orvane
