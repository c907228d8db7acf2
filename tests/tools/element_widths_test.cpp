// The texts of the elements that the program ships with fit the screen that shows them.
#include <gtest/gtest.h>

#include "data/element_codes.h"
#include "tests/framework/test_shell.h"
#include "tests/tools/element_files.h"

namespace orvane {
namespace {

// The element screen: its text stands between these edges, below a strip of 23 pixels.
constexpr int kLeft = 4;
constexpr int kRight = 236;
constexpr int kRoom = kRight - kLeft;
constexpr int kViewHeight = 268 - 23;
// Between a text on the left and one on the right of a line.
constexpr int kApart = 8;

class ElementWidths : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(testing::LoadShipped(elements_));
    CreateFontFamily(shell_.GetDevice(), shell_.MainWindow(), heading_, u"Tahoma", 21, false, false);
    CreateFontFamily(shell_.GetDevice(), shell_.MainWindow(), row_, u"Tahoma", 9, false, false);
  }

  int Width(const FontFamily& family, TextView text) {
    shell_.Engine().SelectFontFamily(&family);
    return shell_.Engine().MeasureText(text).width;
  }

  testing::TestShell shell_;
  ElementsDatabase elements_;
  FontFamily heading_;
  FontFamily row_;
};

// Symbol and number in one line, name and mass in the next, family and block in the third.
TEST_F(ElementWidths, HeaderLinesHoldBothTheirTexts) {
  for (int e = 0; e < ElementsDatabase::kElementCount; ++e) {
    SCOPED_TRACE(ToUtf8(elements_.Name()->Value(e)));
    const Text number = FromUtf8(std::to_string(e + 1));
    EXPECT_LE(Width(heading_, elements_.Symbol()->Value(e)) + kApart + Width(heading_, number), kRoom);
    const Text mass = Text(elements_.AtomicMass()->Value(e)) + Text(elements_.AtomicMass()->Units());
    EXPECT_LE(Width(row_, elements_.Name()->Value(e)) + kApart + Width(row_, mass), kRoom);
    EXPECT_LE(Width(row_, FamilyText(elements_.Family()->Value(e))) + kApart +
                  Width(row_, BlockText(elements_.Block()->Value(e))),
              kRoom);
  }
}

// A property's name leaves room for its value beside it in the list, and never wraps in the summary.
TEST_F(ElementWidths, NamesOfPropertiesLeaveRoomForTheirValues) {
  for (const ElementCategory& category : elements_.Categories()) {
    EXPECT_LE(Width(row_, category.Name()), kRoom - 21) << ToUtf8(category.Name());
    for (const ElementProperty& property : category.Properties()) {
      EXPECT_LE(Width(row_, property.Name()), 160) << ToUtf8(property.Name());
      EXPECT_LE(Width(row_, property.Units()), 70) << ToUtf8(property.Name());
    }
  }
}

// A number and its name take two lines at most, and no text is taller than the view.
TEST_F(ElementWidths, SummaryRowsFitTheView) {
  const Rect column{kLeft, 0, kRight, 0};
  for (const ElementCategory& category : elements_.Categories()) {
    for (const ElementProperty& property : category.Properties()) {
      for (int e = 0; e < ElementsDatabase::kElementCount; ++e) {
        if (!property.HasValue(e)) continue;
        const Text text = Text(u"\u0001!") + Text(property.Name()) + u": \u0001  " + Text(property.Value(e)) +
                          Text(property.Units());
        shell_.Engine().SelectFontFamily(&row_);
        const int limit = property.IsPlottable() ? 2 * row_.lineHeight : kViewHeight;
        EXPECT_LE(shell_.Engine().MeasureText(text, &column).height, limit)
            << ToUtf8(property.Name()) << " of element " << e + 1;
      }
    }
  }
}

}  // namespace
}  // namespace orvane
