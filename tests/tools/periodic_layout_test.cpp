#include "tools/periodic_layout.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "tests/tools/columns_table.h"

namespace orvane {
namespace {

using Sizes = std::array<CellTexts, kPeriodicCells>;
using testing::ColumnsTable;
using testing::ReadColumnsTable;

constexpr PeriodicView kAllViews[] = {
    {false, false, false, false}, {false, true, false, false}, {false, false, true, false},
    {false, false, false, true},  {false, true, true, false},  {false, true, false, true},
    {false, false, true, true},   {false, true, true, true},
};

std::string NameOf(const PeriodicView& view) {
  return std::string(view.wide ? "long form" : "short form") + (view.number ? ", number" : "") +
         (view.name ? ", name" : "") + (view.mass ? ", mass" : "");
}

PeriodicView InForm(PeriodicView view, bool wide) {
  view.wide = wide;
  return view;
}

const Rect& RectOf(const PeriodicLayout& layout, int element) {
  return layout.cells[static_cast<std::size_t>(element)].rect;
}

// --- Columns

TEST(PeriodicColumnsTest, TheTableOfColumnsIsComplete) {
  const ColumnsTable table = ReadColumnsTable();
  EXPECT_EQ(table.columns[0].size(), 17u);
  EXPECT_EQ(table.columns[1].size(), 32u);
  for (const bool wide : {false, true}) {
    std::size_t count = 0;
    for (const auto& [column, elements] : table.columns[wide]) count += elements.size();
    EXPECT_EQ(count, 112u);
    for (int i = 0; i < kPeriodicCells; ++i) EXPECT_GE(table.ColumnOf(i, wide), 0) << i;
  }
}

TEST(PeriodicColumnsTest, EveryElementStandsInItsColumn) {
  const ColumnsTable table = ReadColumnsTable();
  for (const bool wide : {false, true}) {
    for (int i = 0; i < kPeriodicCells; ++i) {
      EXPECT_EQ(PeriodicColumn(i, wide), table.ColumnOf(i, wide))
          << "element " << i << ", long form " << wide;
    }
  }
}

TEST(PeriodicColumnsTest, WhatIsNoElementHasNoColumn) {
  for (const bool wide : {false, true}) {
    for (const int i : {-1, 112, 113, 1000, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
      EXPECT_EQ(PeriodicColumn(i, wide), -1) << i;
  }
}

// --- Size of one cell

struct SizeCase {
  PeriodicView view;
  Size size;
};

void ExpectSizes(const CellTexts& texts, const std::vector<SizeCase>& cases) {
  for (const SizeCase& c : cases) {
    for (const bool wide : {false, true}) {
      EXPECT_EQ(CellSize(texts, InForm(c.view, wide)), c.size)
          << NameOf(InForm(c.view, wide)) << ": " << CellSize(texts, c.view).width << " x "
          << CellSize(texts, c.view).height;
    }
  }
}

TEST(CellSizeTest, OfALongName) {
  const CellTexts texts{{13, 17}, {21, 16}, {47, 9}, {34, 11}};
  ExpectSizes(texts,
              {
                  {{false, false, false, false}, {17, 18}},  // 13 + 4, 17 + 1
                  {{false, true, false, false}, {17, 34}},   // the number's 21 does not count
                  {{false, false, true, false}, {51, 27}},   // 47 + 4
                  {{false, false, false, true}, {38, 29}},   // 34 + 4
                  {{false, true, true, false}, {51, 27}},    // 47 + 4 > 13 + 21 + 10; name below
                  {{false, true, false, true}, {44, 29}},    // 13 + 21 + 10 > 34 + 4; mass below
                  {{false, false, true, true}, {57, 27}},    // 13 + 34 + 10 > 47 + 4; name below
                  {{false, true, true, true}, {78, 28}},     // 47 + 21 + 10 > 57; 11 + 16 + 1 > 17 + 9 + 1
              });
}

TEST(CellSizeTest, OfALongMassAndAHighNumber) {
  const CellTexts texts{{40, 10}, {8, 30}, {20, 12}, {61, 7}};
  ExpectSizes(texts, {
                         {{false, false, false, false}, {44, 11}},
                         {{false, true, false, false}, {44, 41}},
                         {{false, false, true, false}, {24, 23}},  // the symbol's 40 does not count
                         {{false, false, false, true}, {65, 18}},
                         {{false, true, true, false}, {58, 23}},   // 40 + 8 + 10 > 20 + 4
                         {{false, true, false, true}, {65, 18}},   // 61 + 4 > 40 + 8 + 10
                         {{false, false, true, true}, {111, 23}},  // 40 + 61 + 10
                         {{false, true, true, true}, {111, 38}},   // 111 > 20 + 8 + 10; 7 + 30 + 1
                     });
}

TEST(CellSizeTest, OfAHighName) {
  const CellTexts texts{{20, 25}, {5, 9}, {70, 14}, {12, 10}};
  ExpectSizes(texts, {
                         {{false, false, false, false}, {24, 26}},
                         {{false, true, false, false}, {24, 35}},
                         {{false, false, true, false}, {74, 40}},
                         {{false, false, false, true}, {16, 36}},  // the symbol's 20 does not count
                         {{false, true, true, false}, {74, 40}},
                         {{false, true, false, true}, {35, 36}},
                         {{false, false, true, true}, {74, 40}},  // 70 + 4 > 20 + 12 + 10
                         {{false, true, true, true}, {85, 40}},   // 70 + 5 + 10; 25 + 14 + 1
                     });
}

// --- The texts in their cell

struct PlaceCase {
  PeriodicView view;
  CellTexts lithium;  // makes the column 90 wide
  Point symbol;
  Point number;
  Point name;
  Point mass;
};

TEST(CellPlacesTest, AreFixedForEveryViewInAColumnWiderThanTheCellAsks) {
  const std::vector<PlaceCase> cases = {
      // 90 / 2 - 13 / 2, each cut to a whole number: 45 - 6
      {{false, false, false, false}, {{86, 0}, {}, {}, {}}, {39, 0}, {0, 0}, {0, 0}, {0, 0}},
      {{false, true, false, false}, {{86, 0}, {}, {}, {}}, {2, 0}, {67, 17}, {0, 0}, {0, 0}},
      {{false, false, true, false}, {{}, {}, {86, 0}, {}}, {2, 0}, {0, 0}, {2, 17}, {0, 0}},
      {{false, false, false, true}, {{}, {}, {}, {86, 0}}, {2, 0}, {0, 0}, {0, 0}, {2, 17}},
      {{false, true, true, false}, {{}, {}, {86, 0}, {}}, {2, 0}, {67, 0}, {2, 17}, {0, 0}},
      {{false, true, false, true}, {{}, {}, {}, {86, 0}}, {2, 0}, {67, 0}, {0, 0}, {2, 17}},
      {{false, false, true, true}, {{}, {}, {86, 0}, {}}, {2, 0}, {0, 0}, {2, 17}, {54, 1}},
      {{false, true, true, true}, {{}, {}, {80, 0}, {}}, {2, 0}, {67, 12}, {2, 17}, {54, 1}},
  };
  for (const PlaceCase& c : cases) {
    for (const bool wide : {false, true}) {
      Sizes sizes;
      sizes[0] = {{13, 17}, {21, 16}, {47, 9}, {34, 11}};
      sizes[2] = c.lithium;
      const PeriodicLayout layout = LayOutPeriodicTable(sizes, InForm(c.view, wide));
      const PeriodicCell& hydrogen = layout.cells[0];
      SCOPED_TRACE(NameOf(InForm(c.view, wide)));
      EXPECT_EQ(hydrogen.rect.Width(), 90);
      EXPECT_EQ(hydrogen.symbol, c.symbol);
      EXPECT_EQ(hydrogen.number, c.number);
      EXPECT_EQ(hydrogen.name, c.name);
      EXPECT_EQ(hydrogen.mass, c.mass);
    }
  }
}

// --- Columns and rows

// Symbols for a table of symbols alone in which column c is 40 + c wide and rows are 21 high. In each column
// one element asks for the whole width and the others for less; only hydrogen's height counts.
Sizes SizesForColumns(const ColumnsTable& table, bool wide) {
  Sizes sizes;
  for (const auto& [column, elements] : table.columns[wide ? 1 : 0]) {
    for (const int element : elements) {
      const bool widest = element == elements.back();
      sizes[static_cast<std::size_t>(element)].symbol = {column + (widest ? 36 : 20), 33};
    }
  }
  sizes[0].symbol.height = 20;
  return sizes;
}

// Elements that stand side by side, and where the first one's top left corner is.
struct RowCase {
  int first;
  int last;
  int x;
  int y;
};

// Each cell of the rows touches its neighbour, is as wide as its column and as high as a row.
void ExpectRows(const PeriodicLayout& layout, const ColumnsTable& table, bool wide,
                const std::vector<RowCase>& rows) {
  int next = 0;
  for (const RowCase& row : rows) {
    EXPECT_EQ(row.first, next);
    int x = row.x;
    for (int i = row.first; i <= row.last; ++i) {
      const int width = 40 + table.ColumnOf(i, wide);
      EXPECT_EQ(RectOf(layout, i), Rect::At(x, row.y, width, 21)) << "element " << i;
      x += width;
    }
    next = row.last + 1;
  }
  EXPECT_EQ(next, kPeriodicCells);
}

// Columns 0 to 6 take 7 × 40 + 21 = 301 pixels, 0 to 2 take 123; the table begins at (15, 15).
TEST(PeriodicLayoutTest, PlacesTheRowsOfTheShortForm) {
  const ColumnsTable table = ReadColumnsTable();
  const PeriodicLayout layout = LayOutPeriodicTable(SizesForColumns(table, false), {});
  ExpectRows(layout, table, false,
             {
                 {0, 0, 15, 15},
                 {1, 1, 316, 15},  // helium: 15 + 301
                 {2, 9, 15, 36},
                 {10, 17, 15, 57},
                 {18, 27, 15, 78},
                 {28, 35, 15, 99},
                 {36, 45, 15, 120},
                 {46, 53, 15, 141},
                 {54, 56, 15, 162},
                 {57, 63, 84, 249},   // cerium: 15 + 69, 15 + 11 × 21 + 3
                 {64, 70, 84, 270},   // 15 + 12 × 21 + 3
                 {71, 77, 138, 162},  // hafnium: 15 + 123, 15 + 7 × 21
                 {78, 85, 15, 183},
                 {86, 88, 15, 204},
                 {89, 95, 84, 296},     // thorium: 15 + 13 × 21 + 8
                 {96, 102, 84, 317},    // 15 + 14 × 21 + 8
                 {103, 109, 138, 204},  // rutherfordium: 15 + 9 × 21
                 {110, 111, 15, 225},
             });
}

// Columns 0 to 16 take 17 × 40 + 136 = 816 pixels, 0 to 11 take 546, 0 to 2 take 123.
TEST(PeriodicLayoutTest, PlacesTheRowsOfTheLongForm) {
  const ColumnsTable table = ReadColumnsTable();
  PeriodicView view;
  view.wide = true;
  const PeriodicLayout layout = LayOutPeriodicTable(SizesForColumns(table, true), view);
  ExpectRows(layout, table, true,
             {
                 {0, 0, 15, 15},
                 {1, 1, 831, 15},  // helium: 15 + 816
                 {2, 3, 15, 36},
                 {4, 9, 561, 36},  // boron: 15 + 546
                 {10, 11, 15, 57},
                 {12, 17, 561, 57},
                 {18, 35, 15, 78},
                 {36, 53, 15, 99},
                 {54, 56, 15, 120},
                 {57, 70, 84, 186},   // cerium: 15 + 8 × 21 + 3
                 {71, 85, 138, 120},  // hafnium: 15 + 5 × 21
                 {86, 88, 15, 141},
                 {89, 102, 84, 212},    // thorium: 15 + 9 × 21 + 8
                 {103, 111, 138, 141},  // rutherfordium: 15 + 6 × 21
             });
}

TEST(PeriodicLayoutTest, HeliumIsAtLeast25WideInTheShortFormWhateverIsShown) {
  Sizes sizes;
  for (CellTexts& texts : sizes) texts = {{3, 5}, {2, 5}, {4, 5}, {5, 5}};
  for (const PeriodicView& view : kAllViews) {
    SCOPED_TRACE(NameOf(view));
    const PeriodicLayout narrow = LayOutPeriodicTable(sizes, view);
    const int asked = CellSize(sizes[1], view).width;
    ASSERT_LT(asked, 25);
    EXPECT_EQ(RectOf(narrow, 1).Width(), 25);
    EXPECT_EQ(RectOf(narrow, 9).Width(), 25);  // its column with it
    EXPECT_EQ(RectOf(narrow, 0).Width(), asked);
    EXPECT_EQ(RectOf(narrow, 8).Width(), asked);
    EXPECT_EQ(RectOf(narrow, 26).Width(), asked);
    const PeriodicLayout wide = LayOutPeriodicTable(sizes, InForm(view, true));
    EXPECT_EQ(RectOf(wide, 1).Width(), asked);
  }
}

TEST(PeriodicLayoutTest, HeliumMayBeWider) {
  Sizes sizes;
  sizes[1].symbol = {60, 5};
  EXPECT_EQ(RectOf(LayOutPeriodicTable(sizes, {}), 1).Width(), 64);
  sizes[1].symbol = {22, 5};
  EXPECT_EQ(RectOf(LayOutPeriodicTable(sizes, {}), 1).Width(), 26);
  sizes[1].symbol = {20, 5};
  EXPECT_EQ(RectOf(LayOutPeriodicTable(sizes, {}), 1).Width(), 25);
}

TEST(PeriodicLayoutTest, RowsAreAtLeastOnePixelHigh) {
  Sizes sizes;
  sizes[0].symbol = {0, -7};
  const PeriodicLayout layout = LayOutPeriodicTable(sizes, {});
  EXPECT_EQ(RectOf(layout, 0).Height(), 1);
  EXPECT_EQ(RectOf(layout, 2).top, 16);
  EXPECT_EQ(RectOf(layout, 110).bottom, 26);
}

// --- The content's size

// Column 9 ends at 15 + 10 × 40 + 45 = 460, the lanthanides at 84 + 7 × 40 + 91 = 455; the last row of
// actinides ends at 338.
TEST(ContentSizeTest, OfTheShortFormWithNothingButSymbolsIsOnePixelMoreThanTheCells) {
  const ColumnsTable table = ReadColumnsTable();
  const PeriodicLayout layout = LayOutPeriodicTable(SizesForColumns(table, false), {});
  EXPECT_EQ(layout.content, (Size{461, 339}));
}

// Column 17 ends at 15 + 18 × 40 + 153 = 888, the lanthanides at 84 + 14 × 40 + 343 = 987, below them the
// actinides at 233.
TEST(ContentSizeTest, OfTheLongFormHasAMarginAlwaysAndCountsTheSeries) {
  const ColumnsTable table = ReadColumnsTable();
  const PeriodicLayout layout = LayOutPeriodicTable(SizesForColumns(table, true), InForm({}, true));
  EXPECT_EQ(layout.content, (Size{1002, 248}));
}

TEST(ContentSizeTest, HasAMarginInEveryOtherView) {
  Sizes sizes;
  for (CellTexts& texts : sizes) texts = {{16, 19}, {16, 19}, {16, 19}, {16, 19}};
  for (const bool wide : {false, true}) {
    for (const PeriodicView& view : kAllViews) {
      const PeriodicLayout layout = LayOutPeriodicTable(sizes, InForm(view, wide));
      int right = 0;
      int bottom = 0;
      for (const PeriodicCell& cell : layout.cells) {
        right = std::max(right, cell.rect.right);
        bottom = std::max(bottom, cell.rect.bottom);
      }
      const int margin = !wide && view.SymbolOnly() ? 1 : 15;
      EXPECT_EQ(layout.content, (Size{right + margin, bottom + margin})) << NameOf(InForm(view, wide));
    }
  }
}

// --- Taps

// In the short form with these sizes hydrogen is (15, 15)-(55, 36) and lithium (15, 36)-(55, 57).
TEST(CellAtTest, ABorderBelongsToTheCellThatItBegins) {
  const ColumnsTable table = ReadColumnsTable();
  const PeriodicLayout layout = LayOutPeriodicTable(SizesForColumns(table, false), {});
  EXPECT_EQ(CellAt(layout, {15, 15}), 0);
  EXPECT_EQ(CellAt(layout, {54, 35}), 0);
  EXPECT_EQ(CellAt(layout, {14, 15}), -1);
  EXPECT_EQ(CellAt(layout, {15, 14}), -1);
  EXPECT_EQ(CellAt(layout, {55, 15}), -1);  // nothing stands right of hydrogen
  EXPECT_EQ(CellAt(layout, {15, 36}), 2);   // lithium's top edge
  EXPECT_EQ(CellAt(layout, {54, 56}), 2);
  EXPECT_EQ(CellAt(layout, {55, 36}), 3);   // beryllium's left edge
  EXPECT_EQ(CellAt(layout, {55, 57}), 11);  // magnesium's corner, where four cells meet
  EXPECT_EQ(CellAt(layout, {54, 57}), 10);
  EXPECT_EQ(CellAt(layout, {316, 15}), 1);
  EXPECT_EQ(CellAt(layout, {315, 15}), -1);
}

TEST(CellAtTest, FindsEveryCellAtItsCornersAndNoneBeside) {
  const ColumnsTable table = ReadColumnsTable();
  for (const bool wide : {false, true}) {
    const PeriodicLayout layout = LayOutPeriodicTable(SizesForColumns(table, wide), InForm({}, wide));
    for (int i = 0; i < kPeriodicCells; ++i) {
      const Rect& rect = RectOf(layout, i);
      EXPECT_EQ(CellAt(layout, rect.TopLeft()), i);
      EXPECT_EQ(CellAt(layout, {rect.right - 1, rect.bottom - 1}), i);
      EXPECT_NE(CellAt(layout, {rect.right, rect.top}), i);
      EXPECT_NE(CellAt(layout, {rect.left, rect.bottom}), i);
    }
    EXPECT_EQ(CellAt(layout, {-1, -1}), -1);
    EXPECT_EQ(CellAt(layout, {layout.content.width, layout.content.height}), -1);
    EXPECT_EQ(CellAt(layout, {std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}), -1);
  }
}

// In a table of hostile texts rows may run into each other.
TEST(CellAtTest, TheFirstOfOverlappingCellsWins) {
  PeriodicLayout layout;
  layout.cells[5].rect = {10, 10, 30, 30};
  layout.cells[3].rect = {20, 20, 40, 40};
  EXPECT_EQ(CellAt(layout, {25, 25}), 3);
  EXPECT_EQ(CellAt(layout, {15, 15}), 5);
  EXPECT_EQ(CellAt(layout, {5, 5}), -1);
}

}  // namespace
}  // namespace orvane
