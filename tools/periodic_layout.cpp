#include "tools/periodic_layout.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr int kColumns = 32;     // of the long form; the short form has 17
constexpr int kTextPadding = 2;  // left and right of the texts
constexpr int kBothPaddings = 2 * kTextPadding;
constexpr int kBetweenTexts = 10;
constexpr int kHelium = 1;
constexpr int kHeliumShortFormWidth = 25;
constexpr int kLanthanidesGap = 3;  // the two series stand below the table with these gaps
constexpr int kActinidesGap = 8;

// A run of elements with consecutive indices in consecutive columns.
struct ColumnRun {
  int first;
  int last;
  int column;
};

constexpr ColumnRun kShortForm[] = {
    {0, 0, 0},   {1, 1, 7},   {2, 9, 0},    {10, 17, 0},   {18, 27, 0},   {28, 35, 0},
    {36, 45, 0}, {46, 53, 0}, {54, 56, 0},  {57, 63, 10},  {64, 70, 10},  {71, 77, 3},
    {78, 85, 0}, {86, 88, 0}, {89, 95, 10}, {96, 102, 10}, {103, 109, 3}, {110, 111, 0},
};
constexpr ColumnRun kLongForm[] = {
    {0, 0, 0},   {1, 1, 17},  {2, 3, 0},     {4, 9, 12},    {10, 11, 0}, {12, 17, 12},
    {18, 19, 0}, {20, 35, 2}, {36, 37, 0},   {38, 53, 2},   {54, 56, 0}, {57, 70, 18},
    {71, 85, 3}, {86, 88, 0}, {89, 102, 18}, {103, 111, 3},
};

// Where the pen goes before a cell that does not follow its neighbour: left of the table or after the first
// `columns` columns, or to the series' indent; on the row below, or `row` rows from the top plus a gap.
struct Break {
  int element;
  enum { kNewRow, kSameRow, kMain, kSeries } kind;
  int columns;
  int row;
  int gap;
};

constexpr Break kShortBreaks[] = {
    {1, Break::kSameRow, 7, 0, 0},
    {2, Break::kNewRow, 0, 0, 0},
    {10, Break::kNewRow, 0, 0, 0},
    {18, Break::kNewRow, 0, 0, 0},
    {28, Break::kNewRow, 0, 0, 0},
    {36, Break::kNewRow, 0, 0, 0},
    {46, Break::kNewRow, 0, 0, 0},
    {54, Break::kNewRow, 0, 0, 0},
    {57, Break::kSeries, 0, 11, kLanthanidesGap},
    {64, Break::kSeries, 0, 12, kLanthanidesGap},
    {71, Break::kMain, 3, 7, 0},
    {78, Break::kNewRow, 0, 0, 0},
    {86, Break::kNewRow, 0, 0, 0},
    {89, Break::kSeries, 0, 13, kActinidesGap},
    {96, Break::kSeries, 0, 14, kActinidesGap},
    {103, Break::kMain, 3, 9, 0},
    {110, Break::kNewRow, 0, 0, 0},
};
constexpr Break kLongBreaks[] = {
    {1, Break::kSameRow, 17, 0, 0},
    {2, Break::kNewRow, 0, 0, 0},
    {4, Break::kSameRow, 12, 0, 0},
    {10, Break::kNewRow, 0, 0, 0},
    {12, Break::kSameRow, 12, 0, 0},
    {18, Break::kNewRow, 0, 0, 0},
    {36, Break::kNewRow, 0, 0, 0},
    {54, Break::kNewRow, 0, 0, 0},
    {57, Break::kSeries, 0, 8, kLanthanidesGap},
    {71, Break::kMain, 3, 5, 0},
    {86, Break::kNewRow, 0, 0, 0},
    {89, Break::kSeries, 0, 9, kActinidesGap},
    {103, Break::kMain, 3, 6, 0},
};

template <std::size_t N>
int ColumnIn(const ColumnRun (&runs)[N], int element) {
  for (const ColumnRun& run : runs) {
    if (element >= run.first && element <= run.last) return run.column + element - run.first;
  }
  return -1;
}

template <std::size_t N>
const Break* FindBreak(const Break (&breaks)[N], int element) {
  const auto* at = std::find_if(breaks, breaks + N, [&](const Break& b) { return b.element == element; });
  return at == breaks + N ? nullptr : at;
}

int CellWidth(const CellTexts& t, const PeriodicView& view) {
  const int symbol = t.symbol.width;
  const int number = t.number.width;
  const int name = t.name.width;
  const int mass = t.mass.width;
  if (view.number && view.name && view.mass) {
    return std::max(symbol + mass + kBetweenTexts, name + number + kBetweenTexts);
  }
  if (view.number && view.name) return std::max(symbol + number + kBetweenTexts, name + kBothPaddings);
  if (view.number && view.mass) return std::max(symbol + number + kBetweenTexts, mass + kBothPaddings);
  if (view.name && view.mass) return std::max(symbol + mass + kBetweenTexts, name + kBothPaddings);
  if (view.name) return name + kBothPaddings;
  if (view.mass) return mass + kBothPaddings;
  return symbol + kBothPaddings;
}

int CellHeight(const CellTexts& t, const PeriodicView& view) {
  const int symbol = t.symbol.height;
  if (view.SymbolOnly()) return symbol + 1;
  if (view.number && view.name && view.mass) {
    return std::max(symbol + t.name.height, t.mass.height + t.number.height) + 1;
  }
  const int below = view.name ? t.name.height : view.mass ? t.mass.height : t.number.height;
  return symbol + 1 + below;
}

void PlaceTexts(PeriodicCell& cell, const CellTexts& t, const PeriodicView& view) {
  const int width = cell.rect.Width();
  const int below = t.symbol.height;
  const int numberLeft = width - t.number.width - kTextPadding;
  const int massLeft = width - t.mass.width - kTextPadding;
  cell.symbol = {view.SymbolOnly() ? width / 2 - t.symbol.width / 2 : kTextPadding, 0};
  if (view.name) cell.name = {kTextPadding, below};
  if (view.mass) cell.mass = view.name ? Point{massLeft, 1} : Point{kTextPadding, below};
  if (view.number) {
    const int top = view.name && view.mass ? t.mass.height + 1 : view.name || view.mass ? 0 : below;
    cell.number = {numberLeft, top};
  }
}

}  // namespace

int PeriodicColumn(int element, bool wide) {
  return wide ? ColumnIn(kLongForm, element) : ColumnIn(kShortForm, element);
}

Size CellSize(const CellTexts& texts, const PeriodicView& view) {
  return {CellWidth(texts, view), CellHeight(texts, view)};
}

PeriodicLayout LayOutPeriodicTable(const std::array<CellTexts, kPeriodicCells>& texts,
                                   const PeriodicView& view) {
  std::array<int, kColumns> widths{};
  for (int i = 0; i < kPeriodicCells; ++i) {
    int width = CellSize(texts[static_cast<std::size_t>(i)], view).width;
    if (i == kHelium && !view.wide) width = std::max(width, kHeliumShortFormWidth);
    int& column = widths[static_cast<std::size_t>(PeriodicColumn(i, view.wide))];
    column = std::max(column, width);
  }
  const int rowHeight = std::max(1, CellSize(texts[0], view).height);
  const auto leftOf = [&](int columns) {
    int x = kTableEdge;
    for (int c = 0; c < columns; ++c) x += widths[static_cast<std::size_t>(c)];
    return x;
  };

  PeriodicLayout layout;
  Point pen{kTableEdge, kTableEdge};
  Point corner;
  for (int i = 0; i < kPeriodicCells; ++i) {
    if (const Break* b = view.wide ? FindBreak(kLongBreaks, i) : FindBreak(kShortBreaks, i)) {
      pen.x = b->kind == Break::kSeries ? kTableEdge + kSeriesIndent : leftOf(b->columns);
      if (b->kind == Break::kNewRow) pen.y += rowHeight;
      if (b->kind == Break::kMain || b->kind == Break::kSeries)
        pen.y = kTableEdge + b->row * rowHeight + b->gap;
    }
    PeriodicCell& cell = layout.cells[static_cast<std::size_t>(i)];
    const int width = widths[static_cast<std::size_t>(PeriodicColumn(i, view.wide))];
    cell.rect = Rect::At(pen.x, pen.y, width, rowHeight);
    PlaceTexts(cell, texts[static_cast<std::size_t>(i)], view);
    corner = {std::max(corner.x, cell.rect.right), std::max(corner.y, cell.rect.bottom)};
    pen.x += width;
  }
  const int margin = !view.wide && view.SymbolOnly() ? 1 : kTableEdge;
  layout.content = {corner.x + margin, corner.y + margin};
  return layout;
}

int CellAt(const PeriodicLayout& layout, Point point) {
  for (int i = 0; i < kPeriodicCells; ++i) {
    if (layout.cells[static_cast<std::size_t>(i)].rect.Contains(point)) return i;
  }
  return -1;
}

}  // namespace orvane
