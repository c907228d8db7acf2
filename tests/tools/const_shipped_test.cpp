// The constants that the program ships with, as the screen shows them: every character has a glyph, and
// nothing is wider than what shows it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "base/styled_text.h"
#include "framework/shell_reporter.h"
#include "tests/framework/test_shell.h"
#include "tests/tools/recording_navigator.h"
#include "tools/const_text.h"
#include "tools/wnd_const.h"

namespace orvane {
namespace {

constexpr int kScreenWidth = 240;
// Where a group's title begins.
constexpr int kTitleLeft = 21;

class ShippedConstants : public ::testing::Test {
 protected:
  ShippedConstants() {
    Device& device = shell_.GetDevice();
    tool_ = MakeWindow<wnd_const>(shell_, navigator_, ORVANE_BIN_DIR "/");
    tool_->Show();
    shell_.Settle();
    CreateFontFamily(device, shell_.MainWindow(), title_, u"Tahoma", 10, 7, 7, 0, 0, false, false);
    CreateFontFamily(device, shell_.MainWindow(), row_, u"Tahoma", 8, 6, 6, 0, 0, false, false);
    CreateFontFamily(device, shell_.MainWindow(), strip_, u"Courier New", 11, 8, 8, 0, 0, false, false);
  }

  int WidthOf(TextView text, const FontFamily& family, bool bold = false) {
    TextEngine& engine = shell_.Engine();
    engine.SelectFontFamily(&family);
    engine.SetTextStyle(bold, false);
    const int width = engine.MeasureText(text).width;
    engine.SetTextStyle(false, false);
    return width;
  }
  void Choose(int category) {
    shell_.GetDevice().Send(tool_->Handle(), WM_COMMAND, PackCommand(1000 + category, 0));
  }
  int Categories() { return shell_.PopupMenu(kConstCategMenu).Count() - 6; }

  testing::TestShell shell_;
  testing::RecordingNavigator navigator_;
  std::unique_ptr<wnd_const> tool_;
  FontFamily title_;
  FontFamily row_;
  FontFamily strip_;
};

// The replacement glyph is what a face draws for a character that it does not have. It has one picture, so a
// character is there when it looks different.
class Glyphs {
 public:
  Glyphs(Device& device, const FontFamily& family) : device_(device), family_(family) {
    missing_ = Picture(u"\uFFF9");
  }
  bool Has(Char c) { return c == u' ' || Picture(Text(1, c)) != missing_; }

 private:
  std::vector<std::uint32_t> Picture(const Text& text) {
    Bitmap bitmap(device_);
    bitmap.CreateBlank(30, 30);
    Canvas& canvas = bitmap.GetCanvas();
    canvas.FillRect({0, 0, 30, 30}, kWhite);
    engine_.SelectFontFamily(&family_);
    engine_.SetTextColour(kBlack);
    engine_.DrawText(canvas, text, 3, 3);
    std::vector<std::uint32_t> pixels;
    for (int i = 0; i < 30 * 30; ++i) pixels.push_back(bitmap.GetSurface()->DevicePixel(i % 30, i / 30));
    return pixels;
  }

  Device& device_;
  const FontFamily& family_;
  TextEngine engine_;
  std::vector<std::uint32_t> missing_;
};

TEST_F(ShippedConstants, AreTheNineCategoriesOfTheMenu) { EXPECT_EQ(Categories(), 9); }

TEST_F(ShippedConstants, EveryCharacterHasAGlyphInTheListAndInTheStrip) {
  std::set<Char> inList;
  std::set<Char> inStrip;
  for (int category = 0; category < Categories(); ++category) {
    Choose(category);
    for (const ListGroup& group : tool_->List().groups) {
      for (const Char c : WithoutCodes(group.title)) inList.insert(c);
      for (const std::vector<Text>& row : group.rows) {
        for (const Text& text : row) {
          for (const Char c : WithoutCodes(text)) inList.insert(c);
        }
      }
    }
  }
  ConstantsDatabase database(ORVANE_BIN_DIR "/constants.dat");
  ShellReporter reporter(shell_);
  ASSERT_TRUE(database.ReadCategories(reporter));
  for (int category = 0; category < database.CategoryCount(); ++category) {
    const auto groups = database.LoadCategory(category, reporter);
    ASSERT_TRUE(groups);
    for (const ConstGroup& group : *groups) {
      for (const ConstEntry& constant : group.constants) {
        for (const Char c : WithoutCodes(ConstantInFull(constant))) inStrip.insert(c);
      }
    }
  }
  EXPECT_EQ(inList.count(u'Ω'), 1u);
  inStrip.erase(kNewLine);
  Glyphs listGlyphs(shell_.GetDevice(), row_);
  for (const Char c : inList) EXPECT_TRUE(listGlyphs.Has(c)) << ToUtf8(Text(1, c));
  Glyphs stripGlyphs(shell_.GetDevice(), strip_);
  for (const Char c : inStrip) EXPECT_TRUE(stripGlyphs.Has(c)) << ToUtf8(Text(1, c));
  EXPECT_FALSE(stripGlyphs.Has(u'\u2609'));  // the Sun's sign, which "Courier New" lacks
}

TEST_F(ShippedConstants, NothingIsWiderThanTheScreen) {
  for (int category = 0; category < Categories(); ++category) {
    Choose(category);
    shell_.Settle();
    EXPECT_LE(WidthOf(shell_.titles.back().title, title_, true), kScreenWidth);
    const ctlGroupedList& list = tool_->List();
    const int room = std::min(list.contentWidth, kScreenWidth) - kTitleLeft;
    for (const ListGroup& group : list.groups) {
      EXPECT_LE(WidthOf(group.title, title_, true), room) << ToUtf8(group.title);
      for (const std::vector<Text>& row : group.rows) {
        for (const Text& text : row) {
          EXPECT_LE(WidthOf(text, row_) + 2 * list.margin, kScreenWidth) << ToUtf8(text);
        }
      }
    }
  }
}

// A name is cut where its column ends: what is left of it, with the symbol beside it, still tells the rows of
// a group apart.
TEST_F(ShippedConstants, CutNamesAndSymbolsTellTheRowsOfAGroupApart) {
  for (int category = 0; category < Categories(); ++category) {
    Choose(category);
    const ctlGroupedList& list = tool_->List();
    const int room = list.columns[0].width - 2 * list.margin;
    for (const ListGroup& group : list.groups) {
      std::set<Text> seen;
      for (const std::vector<Text>& row : group.rows) {
        Text name = row[0];
        while (WidthOf(name, row_) > room || (!name.empty() && name.back() == kStyleMark)) name.pop_back();
        EXPECT_TRUE(seen.insert(name + u" | " + row[1]).second)
            << ToUtf8(group.title) << ": " << ToUtf8(row[0]);
      }
    }
  }
}

// With the names at their default width the beginning of every value is in sight.
TEST_F(ShippedConstants, ValuesBeginOnTheFirstScreenOfTheList) {
  for (int category = 0; category < Categories(); ++category) {
    Choose(category);
    EXPECT_LE(tool_->List().columns[0].width + tool_->List().columns[1].width, kScreenWidth - 50) << category;
  }
}

}  // namespace
}  // namespace orvane
