// The summary: header, family line, rows, and the keyboard in it.
#include "tests/tools/wnd_element_fixture.h"

namespace orvane {
namespace {

using testing::LoadElementViewData;
using testing::WndElementTest;
using Strings = std::vector<std::string>;

constexpr std::uint32_t kWhitePixel = 0xFFFFFF;
constexpr std::uint32_t kRule = 0xD8D8D8;
constexpr std::uint32_t kSelected = 0xC1C1FF;

TEST_F(WndElementTest, TheHeaderStandsInItsPlaces) {
  MakeAndShow(0);
  // The client area begins at 26, the summary 23 below; Tahoma 21 is 34 high, Tahoma 9 is 14 high.
  const int top = 26 + 23;
  const auto runs = GetDevice().VisibleRuns();
  struct Expected {
    TextView text;
    int left;
    int right;
    int top;
    int pixels;
  };
  const Expected expected[] = {{u"H", 4, -1, top, 28},
                               {u"1", -1, 236, top, 28},
                               {u"Hydrogen", 4, -1, top + 34, 12},
                               {u"1.008", -1, 236, top + 34, 12},
                               {u"Alkali ", 4, -1, top + 50, 12},
                               {u"s-block", -1, 236, top + 50, 12}};
  for (const Expected& one : expected) {
    const auto found = std::find_if(runs.begin(), runs.end(), [&](const ScreenRun& run) {
      return run.handle == Summary().Handle() && run.run.text.substr(0, 6) == Text(one.text).substr(0, 6);
    });
    ASSERT_NE(found, runs.end()) << ToUtf8(one.text);
    if (one.left >= 0) {
      EXPECT_EQ(found->run.rect.left, one.left) << ToUtf8(one.text);
    }
    if (one.right >= 0) {
      EXPECT_EQ(found->run.rect.right, one.right) << ToUtf8(one.text);
    }
    EXPECT_EQ(found->run.rect.top, one.top) << ToUtf8(one.text);
    EXPECT_EQ(found->run.font.pixels, one.pixels) << ToUtf8(one.text);
    EXPECT_FALSE(found->run.font.bold);
  }
  for (const int x : {0, 120, 239}) {
    EXPECT_EQ(shell_.Pixel({x, top + 49}), kRule);
    EXPECT_EQ(shell_.Pixel({x, top + 65}), kRule);
    EXPECT_EQ(shell_.Pixel({x, top + 50}), kWhitePixel);
  }
}

TEST_F(WndElementTest, HeaderAndFamilyLineCanBeOff) {
  struct Case {
    bool main;
    bool family;
    int rowsTop;
    std::size_t lines;
  };
  for (const Case& c :
       {Case{true, true, 66, 13}, {true, false, 50, 11}, {false, true, 16, 9}, {false, false, 0, 7}}) {
    tool_.reset();
    StoreLong("ShowMainProperties", c.main);
    StoreLong("ShowFamilyAndBlock", c.family);
    MakeAndShow(0);
    EXPECT_EQ(Summary().Rows()[0].top, c.rowsTop);
    EXPECT_EQ(Lines(Summary().Handle()).size(), c.lines);
  }
}

TEST_F(WndElementTest, TheRowsFollowOneAnother) {
  MakeAndShow(0);
  EXPECT_EQ(Rows(), testing::kBuiltInRows);
  int top = 66;
  for (const ElementSummaryPanel::Row& row : Summary().Rows()) {
    EXPECT_EQ(row.top, top);
    EXPECT_EQ(row.bottom, top + 14);
    top += 15;  // a pixel lies between
  }
  EXPECT_EQ(Summary().contentHeight, top);
  EXPECT_EQ(Summary().contentWidth, 240);
  const Strings lines = Lines(Summary().Handle());
  ASSERT_EQ(lines.size(), 13u);
  EXPECT_EQ(lines[6], "4,115 P35:  3.5 U35");
  EXPECT_EQ(lines[7], "4,130 P31:  3.1 U31");
  EXPECT_EQ(lines[12], "4,205 P16:  105 m3");
}

TEST_F(WndElementTest, NamesAreBoldAndValuesPlain) {
  MakeAndShow(0);
  int names = 0;
  int values = 0;
  for (const ScreenRun& run : GetDevice().VisibleRuns()) {
    if (run.handle != Summary().Handle() || run.run.rect.top != 115) continue;
    const bool name = run.run.text.find(u"P35") != Text::npos;
    const bool value = run.run.text.find(u"3.5") != Text::npos;
    if (name) {
      EXPECT_TRUE(run.run.font.bold);
    }
    if (value) {
      EXPECT_FALSE(run.run.font.bold);
    }
    names += name;
    values += value;
  }
  EXPECT_EQ(names, 1);
  EXPECT_EQ(values, 1);
}

TEST_F(WndElementTest, ExponentsAreSmallerAndRaised) {
  MakeAndShow(0);
  const auto runs = GetDevice().VisibleRuns();
  const auto exponent = std::find_if(runs.begin(), runs.end(), [&](const ScreenRun& run) {
    return run.handle == Summary().Handle() && run.run.text == u"5" && run.run.rect.top == 205;
  });
  ASSERT_NE(exponent, runs.end());
  EXPECT_EQ(exponent->run.font.pixels, 9);
  EXPECT_EQ(exponent->run.rect.bottom, 205 + 11);
}

TEST_F(WndElementTest, RowsWithoutAValueAreOmitted) {
  MakeAndShow(1);
  EXPECT_EQ(Rows(), (Strings{"3.5", "3.1", "3.2", "4.0", "1.4", "1.6"}));
}

TEST_F(WndElementTest, LongRowsWrapInsideTheColumn) {
  Text value;
  for (int i = 0; i < 30; ++i) value += u"word ";
  LoadElementViewData(elements_, {.longValue = value});
  StoreLong("Last.Count", 2);
  StoreLong("Last.Cat[0]", 3);
  StoreLong("Last.Val[0]", 0);
  StoreLong("Last.Cat[1]", 1);
  StoreLong("Last.Val[1]", 0);
  MakeAndShow(0);
  ASSERT_EQ(Summary().Rows().size(), 2u);
  const ElementSummaryPanel::Row& row = Summary().Rows()[0];
  const int lines = (row.bottom - row.top) / 14;
  EXPECT_GE(lines, 3);
  EXPECT_EQ((row.bottom - row.top) % 14, 0);
  EXPECT_EQ(Summary().Rows()[1].top, row.bottom + 1);
  for (const ScreenRun& run : GetDevice().VisibleRuns()) {
    if (run.handle != Summary().Handle() || run.run.text != u"word ") continue;
    EXPECT_GE(run.run.rect.left, 4);
    EXPECT_LE(run.run.rect.right, 236 + 4);  // but for the blank at the end
    for (const Rect& shown : run.run.shown) EXPECT_LE(shown.right, 236);
  }
}

TEST_F(WndElementTest, ATapSelectsARowAndMarksItsBand) {
  MakeAndShow(0);
  TapRow(1);
  EXPECT_EQ(Summary().SelectedRow(), 1);
  // 49 + 81 is the row's top.
  for (const int x : {0, 239}) {
    EXPECT_EQ(shell_.Pixel({x, 129}), kWhitePixel);
    EXPECT_EQ(shell_.Pixel({x, 130}), kSelected);
    EXPECT_EQ(shell_.Pixel({x, 144}), kSelected);
    EXPECT_EQ(shell_.Pixel({x, 145}), kWhitePixel);
  }
  TapRow(3);
  EXPECT_EQ(Summary().SelectedRow(), 3);
  EXPECT_EQ(shell_.Pixel({0, 135}), kWhitePixel);
  EXPECT_EQ(shell_.Pixel({0, 165}), kSelected);
}

TEST_F(WndElementTest, ATapBesideTheRowsChangesNothing) {
  MakeAndShow(0);
  TapRow(1);
  for (const Point point : {Point{100, 20}, {100, 60}, {100, 80}, {100, 200}}) {
    shell_.Tap(Summary().Handle(), point);
    EXPECT_EQ(Summary().SelectedRow(), 1) << point.y;
  }
  // The row below reaches from 96 to 110.
  shell_.Tap(Summary().Handle(), {100, 95});
  EXPECT_EQ(Summary().SelectedRow(), 1);
  shell_.Tap(Summary().Handle(), {100, 96});
  EXPECT_EQ(Summary().SelectedRow(), 2);
  TapRow(1);
  shell_.Tap(Summary().Handle(), {100, 109});
  EXPECT_EQ(Summary().SelectedRow(), 2);
}

TEST_F(WndElementTest, TheKeyboardWalksTheSummary) {
  MakeAndShow(0);
  constexpr Modifiers kControl{.shift = false, .control = true, .alt = false};
  const auto press = [&](int key, Modifiers held) {
    GetDevice().KeyDown(key, held);
    GetDevice().KeyUp(key, held);
    shell_.Settle();
  };
  press(VK_RETURN, {});
  EXPECT_EQ(Summary().SelectedRow(), -1);
  press(VK_DOWN, kControl);
  press(VK_DOWN, kControl);
  EXPECT_EQ(Summary().CursorRow(), 1);
  EXPECT_EQ(Summary().SelectedRow(), -1);
  EXPECT_EQ(shell_.Pixel({0, 135}), 0x03429Cu);
  press(VK_RETURN, {});
  EXPECT_EQ(Summary().SelectedRow(), 1);
  press(VK_UP, kControl);
  press(VK_UP, kControl);
  EXPECT_EQ(Summary().CursorRow(), 0);
  TapRow(4);
  EXPECT_EQ(Summary().CursorRow(), -1);
  press(VK_DOWN, kControl);
  EXPECT_EQ(Summary().CursorRow(), 5);
  for (int i = 0; i < 5; ++i) press(VK_DOWN, kControl);
  EXPECT_EQ(Summary().CursorRow(), 6);
  // With its row the cursor goes.
  press(VK_RETURN, {});
  Command(40177);
  EXPECT_EQ(Summary().CursorRow(), -1);
  press(VK_RETURN, {});
  EXPECT_EQ(Summary().SelectedRow(), 5);
  press(VK_UP, kControl);
  EXPECT_EQ(Summary().CursorRow(), 4);
}

TEST_F(WndElementTest, ALongSummaryScrolls) {
  LoadElementViewData(elements_, {.extraProperties = 40});
  StoreExtraProperties(40);
  MakeAndShow(0);
  EXPECT_EQ(Summary().contentHeight, 66 + 40 * 15);
  Summary().ScrollBy(0, 10'000);
  shell_.Settle();
  EXPECT_EQ(Summary().scrollY, 66 + 40 * 15 - 245);
  TapRow(39);
  EXPECT_EQ(Summary().SelectedRow(), 39);
  const auto seen = shell_.GetHost().Pixels();
  GetDevice().RepaintEverything();
  Summary().Redraw();
  shell_.Settle();
  EXPECT_EQ(seen, shell_.GetHost().Pixels());
  tool_->ShowElement(0);
  EXPECT_EQ(Summary().scrollY, 66 + 40 * 15 - 245);
  tool_->ShowElement(1);
  EXPECT_EQ(Summary().scrollY, 0);
}

TEST_F(WndElementTest, PageKeysScrollALongSummary) {
  LoadElementViewData(elements_, {.extraProperties = 40});
  StoreExtraProperties(40);
  MakeAndShow(0);
  const auto press = [this](int key) {
    GetDevice().KeyDown(key, {});
    GetDevice().KeyUp(key, {});
    return Summary().scrollY;
  };
  EXPECT_EQ(press(VK_NEXT), 245 - 14);
  EXPECT_EQ(press(VK_END), 66 + 40 * 15 - 245);
  EXPECT_EQ(press(VK_PRIOR), 66 + 40 * 15 - 245 - (245 - 14));
  EXPECT_EQ(press(VK_HOME), 0);
}

// 40 rows of 15 below a header of 66; 245 of it show.
TEST_F(WndElementTest, ALongSummaryFollowsTheRowThatIsMoved) {
  LoadElementViewData(elements_, {.extraProperties = 40});
  StoreExtraProperties(40);
  MakeAndShow(0);
  TapRow(10);
  Command(40179);
  EXPECT_EQ(Summary().scrollY, 66 + 12 * 15 - 245);
  Command(40178);
  EXPECT_EQ(Summary().scrollY, 66 + 12 * 15 - 245);  // row 10 shows
  Summary().ScrollBy(0, 10'000);
  Command(40178);
  EXPECT_EQ(Summary().SelectedRow(), 9);
  EXPECT_EQ(Summary().scrollY, 66 + 9 * 15);
}

TEST_F(WndElementTest, ALongSummaryKeepsItsEndInViewWhenRowsAreRemoved) {
  LoadElementViewData(elements_, {.extraProperties = 40});
  StoreExtraProperties(40);
  MakeAndShow(0);
  Summary().ScrollBy(0, 10'000);
  TapRow(39);
  for (int rows = 39; rows > 20; --rows) {
    Command(40177);
    EXPECT_EQ(Summary().SelectedRow(), rows - 1);
    EXPECT_EQ(Summary().scrollY, 66 + rows * 15 - 245);
  }
  for (int rows = 21; rows > 0; --rows) Command(40177);
  EXPECT_EQ(Summary().SelectedRow(), -1);
  EXPECT_EQ(Summary().scrollY, 0);
}

TEST_F(WndElementTest, VeryLongSummariesSaySoAtEachDoubling) {
  LoadElementViewData(elements_, {.extraProperties = 130});
  // How many messages a new summary of so many rows gives.
  const auto messages = [&](int count) {
    tool_.reset();
    StoreExtraProperties(count);
    MakeAndShow(0);
    const MessageBoxes& boxes = GetDevice().Boxes();
    const long long shown = boxes.Open() ? 1 + boxes.Waiting() : 0;
    EXPECT_EQ(Message(), shown > 0 ? "Need to get more mem" : "");
    return shown;
  };
  EXPECT_EQ(messages(64), 0);
  EXPECT_EQ(messages(65), 1);
  EXPECT_EQ(messages(128), 1);
  EXPECT_EQ(messages(129), 2);
  // The room stays.
  tool_->ShowElement(1);
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(Summary().Rows().size(), 129u);
}

}  // namespace
}  // namespace orvane
