// The periodic table with the elements that the program ships with and its real fonts, in every view.
#include <gtest/gtest.h>

#include <string>

#include "tests/framework/test_shell.h"
#include "tests/tools/element_files.h"
#include "tests/tools/recording_navigator.h"
#include "tools/periodic_panel.h"

namespace orvane {
namespace {

class ShippedTableTest : public ::testing::Test {
 protected:
  // Runs a check for both forms and all choices of texts.
  void ForEachView(const std::function<void(const PeriodicLayout&)>& check) {
    ASSERT_TRUE(testing::LoadShipped(elements_));
    const auto panel =
        MakeWindow<PeriodicPanel>(shell_, shell_.MainWindow(), elements_, navigator_, settings_);
    for (int bits = 0; bits < 16; ++bits) {
      settings_ = {(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, (bits & 8) != 0, false};
      SCOPED_TRACE("view " + std::to_string(bits));
      panel->LayOut();
      check(panel->Layout());
    }
  }

  testing::TestShell shell_;
  ElementsDatabase elements_;
  testing::RecordingNavigator navigator_;
  PeriodicSettings settings_;
};

TEST_F(ShippedTableTest, NoTwoCellsOverlapAndAllAreInsideTheContent) {
  ForEachView([](const PeriodicLayout& layout) {
    const Rect content = Rect::At({0, 0}, layout.content);
    for (std::size_t i = 0; i < layout.cells.size(); ++i) {
      const Rect& cell = layout.cells[i].rect;
      EXPECT_FALSE(cell.Empty()) << i;
      // The outline lies one pixel beyond the cell.
      EXPECT_TRUE(content.Contains(Rect{cell.left, cell.top, cell.right + 1, cell.bottom + 1})) << i;
      EXPECT_GE(cell.left, 15) << i;
      EXPECT_GE(cell.top, 15) << i;
      for (std::size_t k = 0; k < i; ++k) {
        EXPECT_TRUE(Intersect(cell, layout.cells[k].rect).Empty()) << i << " and " << k;
      }
    }
  });
}

TEST_F(ShippedTableTest, EveryCellCanBeTapped) {
  ForEachView([](const PeriodicLayout& layout) {
    for (std::size_t i = 0; i < layout.cells.size(); ++i) {
      const Rect& cell = layout.cells[i].rect;
      EXPECT_EQ(CellAt(layout, {(cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2}),
                static_cast<int>(i));
    }
  });
}

// The table of symbols is what most people look at most of the time: no scrolling sideways.
TEST_F(ShippedTableTest, TheShortFormWithNothingButSymbolsFitsTheScreen) {
  ASSERT_TRUE(testing::LoadShipped(elements_));
  const auto panel = MakeWindow<PeriodicPanel>(shell_, shell_.MainWindow(), elements_, navigator_, settings_);
  panel->LayOut();
  EXPECT_LE(panel->Layout().content.width, 240);
  EXPECT_LE(panel->Layout().content.height, 268);
}

}  // namespace
}  // namespace orvane
