// What the periodic table's panel draws, on a real surface at 1×.
#include <gtest/gtest.h>

#include <string>

#include "tests/framework/test_shell.h"
#include "tests/tools/element_files.h"
#include "tests/tools/recording_navigator.h"
#include "tools/periodic_panel.h"

namespace orvane {
namespace {

using testing::ElementFacts;
using testing::TestShell;

constexpr std::uint32_t kWhitePixel = 0xFFFFFF;
constexpr std::uint32_t kBandPixel = 0xC0C0C0;

// 0xRRGGBB, by the letters of blocks and families.
const std::map<Char, std::uint32_t> kBlocks = {
    {u'S', 0xFF80A6}, {u'P', 0xFFFFBB}, {u'D', 0x9BCDFF}, {u'F', 0x8AFF91}};
const std::map<Char, std::uint32_t> kFamilies = {
    {u'A', 0xFF4A4A}, {u'B', 0x00D900}, {u'C', 0xBE7DFF}, {u'D', 0xFF80A6}, {u'E', 0x9BCDFF},
    {u'F', 0x8AFF91}, {u'G', 0xD4D4D4}, {u'H', 0xF2F2F2}, {u'I', 0xFFFFBB}, {u'J', 0xA8FFEA}};

class OpenPanel : public PeriodicPanel {
 public:
  using PeriodicPanel::Paint;
  using PeriodicPanel::PeriodicPanel;
};

// Symbols, names and masses of several lengths; blocks and families in turn.
ElementFacts VariedFacts(int element) {
  const auto n = static_cast<std::size_t>(element);
  return {Text(1 + n % 3, u'W'), u"Name" + Text(n % 7, u'i'), DecimalText(element * 3) + Text(n % 4, u'5'),
          Text{static_cast<Char>(u'A' + n % 10)}, Text{u"SPDF"[n % 4]}};
}

class PeriodicPaintTest : public ::testing::Test {
 protected:
  PeriodicPaintTest() : shell_({.recordRuns = true}) { testing::LoadMadeUp(elements_, VariedFacts); }

  const Rect& CellRect(int element) const {
    return panel_->Layout().cells[static_cast<std::size_t>(element)].rect;
  }
  const PeriodicCell& Cell(int element) const {
    return panel_->Layout().cells[static_cast<std::size_t>(element)];
  }

  // Lays the table out and draws all of it.
  void Draw() {
    if (!panel_) {
      panel_ = MakeWindow<OpenPanel>(shell_, shell_.MainWindow(), elements_, navigator_, settings_);
      panel_->Move(0, 0, 240, 268);
    }
    panel_->LayOut();
    const Size size = panel_->Layout().content;
    surface_ = shell_.GetDevice().CreateSurface(size);
    panel_->Paint(surface_->GetCanvas(), 0, 0, size.width, size.height);
  }
  void Draw(const PeriodicView& view, bool byFamily) {
    settings_ = {view.wide, view.number, view.name, view.mass, byFamily};
    Draw();
  }

  std::uint32_t Pixel(int x, int y) const { return surface_->DevicePixel(x, y); }

  // The outline just inside the rectangle is black all around.
  bool IsOutlined(const Rect& rect) const {
    for (int x = rect.left; x < rect.right; ++x) {
      if (Pixel(x, rect.top) != 0 || Pixel(x, rect.bottom - 1) != 0) return false;
    }
    for (int y = rect.top; y < rect.bottom; ++y) {
      if (Pixel(rect.left, y) != 0 || Pixel(rect.right - 1, y) != 0) return false;
    }
    return true;
  }
  // No text reaches the corners of a cell or a band, so that they show the fill.
  std::uint32_t FillOf(const Rect& rect) const {
    const std::uint32_t fill = Pixel(rect.left + 1, rect.bottom - 2);
    EXPECT_EQ(Pixel(rect.right - 2, rect.bottom - 2), fill);
    return fill;
  }
  // A cell's outline lies one pixel beyond its right and bottom edges, where its neighbours begin.
  static Rect Outlined(const Rect& cell) { return {cell.left, cell.top, cell.right + 1, cell.bottom + 1}; }

  // Expects the element's fills, each from its letter's colour or, for other letters, as before.
  void ExpectFills(const std::map<Char, std::uint32_t>& colours, Text ElementFacts::*letters,
                   const testing::FactsOf& facts) {
    std::uint32_t fill = kBandPixel;
    for (int i = 0; i < kPeriodicCells; ++i) {
      const Text text = facts(i).*letters;
      const auto found = text.empty() ? colours.end() : colours.find(text.front());
      if (found != colours.end()) fill = found->second;
      EXPECT_EQ(FillOf(Outlined(CellRect(i))), fill) << "element " << i << " " << std::hex << fill;
    }
  }

  // Each part painted alone has the pixels that the whole has there.
  void ExpectPartsAsInTheWhole(const std::vector<Rect>& parts) {
    for (const Rect& part : parts) {
      const auto alone = shell_.GetDevice().CreateSurface(panel_->Layout().content);
      Canvas& canvas = alone->GetCanvas();
      canvas.PushClip(part);
      panel_->Paint(canvas, part.left, part.top, part.right, part.bottom);
      canvas.PopClip();
      for (int y = part.top; y < part.bottom; ++y) {
        for (int x = part.left; x < part.right; ++x) {
          ASSERT_EQ(alone->DevicePixel(x, y), Pixel(x, y)) << x << ", " << y;
        }
      }
    }
  }

  bool HasRun(TextView text, Point at, int pixels) const {
    for (const TextRun& run : surface_->Runs()) {
      if (run.text == text && run.rect.TopLeft() == at && run.font == FontSpec{u"Tahoma", pixels} &&
          run.colour == kBlack) {
        return true;
      }
    }
    return false;
  }

  // A band and the label in its middle; half a pixel may go either way.
  void ExpectBand(const Rect& band, TextView label) {
    SCOPED_TRACE("band " + ToUtf8(label));
    EXPECT_TRUE(IsOutlined(band));
    EXPECT_EQ(FillOf(band), kBandPixel);
    for (const TextRun& run : surface_->Runs()) {
      if (run.text != label || !band.Contains(run.rect.TopLeft())) continue;
      EXPECT_EQ(run.font, (FontSpec{u"Tahoma", 12}));
      EXPECT_EQ(run.colour, kBlack);
      EXPECT_NEAR(run.rect.left + run.rect.right, band.left + band.right, 1);
      EXPECT_NEAR(run.rect.top + run.rect.bottom, band.top + band.bottom, 1);
      return;
    }
    ADD_FAILURE() << "no label";
  }

  TestShell shell_;
  ElementsDatabase elements_;
  testing::RecordingNavigator navigator_;
  PeriodicSettings settings_;
  std::unique_ptr<OpenPanel> panel_;
  std::unique_ptr<Surface> surface_;
};

constexpr PeriodicView kViews[] = {
    {false, false, false, false}, {false, true, false, false}, {false, false, true, false},
    {false, false, false, true},  {false, true, true, false},  {false, true, false, true},
    {false, false, true, true},   {false, true, true, true},   {true, false, false, false},
    {true, true, false, false},   {true, false, true, false},  {true, false, false, true},
    {true, true, true, false},    {true, true, false, true},   {true, false, true, true},
    {true, true, true, true},
};

std::string NameOf(const PeriodicView& view) {
  return std::string(view.wide ? "long form" : "short form") + (view.number ? ", number" : "") +
         (view.name ? ", name" : "") + (view.mass ? ", mass" : "");
}

// --- Cells

TEST_F(PeriodicPaintTest, EveryCellHasTheColourOfItsBlockOrFamilyAndABlackOutline) {
  for (const PeriodicView& view : kViews) {
    SCOPED_TRACE(NameOf(view));
    Draw(view, false);
    ExpectFills(kBlocks, &ElementFacts::block, VariedFacts);
    Draw(view, true);
    ExpectFills(kFamilies, &ElementFacts::family, VariedFacts);
    for (int i = 0; i < kPeriodicCells; ++i) EXPECT_TRUE(IsOutlined(Outlined(CellRect(i)))) << i;
  }
}

TEST_F(PeriodicPaintTest, NeighboursShareOneLine) {
  Draw({}, false);
  const Rect lithium = CellRect(2);
  ASSERT_EQ(CellRect(3).left, lithium.right);
  const int y = lithium.bottom - 1;
  EXPECT_NE(Pixel(lithium.right - 1, y), 0u);
  EXPECT_EQ(Pixel(lithium.right, y), 0u);
  EXPECT_NE(Pixel(lithium.right + 1, y), 0u);
}

TEST_F(PeriodicPaintTest, AnUnknownLetterKeepsTheFillAndTheFirstOnesThatOfTheBands) {
  const auto facts = [](int element) {
    ElementFacts f = VariedFacts(element);
    const bool unknown = element < 3 || element % 5 == 0;
    if (unknown) f.block = element % 2 ? u"s" : u"";     // letters are capitals
    if (unknown) f.family = element % 2 ? u"K" : u"@A";  // K follows the last one; only the first counts
    if (!unknown) f.block += u"?";
    if (!unknown) f.family += u"Z";
    return f;
  };
  testing::LoadMadeUp(elements_, facts);
  Draw({}, false);
  EXPECT_EQ(FillOf(Outlined(CellRect(0))), kBandPixel);
  ExpectFills(kBlocks, &ElementFacts::block, facts);
  Draw({}, true);
  EXPECT_EQ(FillOf(Outlined(CellRect(2))), kBandPixel);
  ExpectFills(kFamilies, &ElementFacts::family, facts);
}

// A part that is painted alone looks as it does in the whole, also where a fill comes from a cell outside.
TEST_F(PeriodicPaintTest, APartLooksAsInTheWhole) {
  testing::LoadMadeUp(elements_, [](int element) {
    ElementFacts f = VariedFacts(element);
    if (element > 4) f.block = u"";
    return f;
  });
  Draw({.wide = false, .number = true, .name = true, .mass = true}, false);
  const Rect nickel = CellRect(27);  // only its own outline lies right of it
  ExpectPartsAsInTheWhole({{130, 100, 301, 220}, {nickel.right, 0, nickel.right + 3, 200}, {0, 0, 1, 400}});
}

// Some texts do not count for a cell's width and so reach out of it, to the right or to the left.
TEST_F(PeriodicPaintTest, ATextThatReachesOutOfItsCellIsInAPartBesideIt) {
  testing::LoadMadeUp(elements_, [](int element) {
    return testing::ElementFacts{element == 1 ? u"WWWWWWWWWW" : u"i", u"i", u"", u"A", u"S"};
  });
  Draw({.wide = true, .number = false, .name = true, .mass = false}, false);
  const Rect helium = CellRect(1);
  ExpectPartsAsInTheWhole({{helium.right + 4, 0, helium.right + 15, 60}});
  Draw({.wide = false, .number = true, .name = false, .mass = false}, false);
  const Rect copernicium = CellRect(111);
  ASSERT_LT(Cell(96).number.x, 0);
  const Rect berkelium = CellRect(96);
  ExpectPartsAsInTheWhole({{berkelium.left - 4, berkelium.top, berkelium.left, berkelium.bottom},
                           {copernicium.right + 1, 0, copernicium.right + 20, 200}});
}

// --- Texts

TEST_F(PeriodicPaintTest, TextsStandInTheirPlacesInTheFontOfTheirRole) {
  for (const PeriodicView& view : kViews) {
    SCOPED_TRACE(NameOf(view));
    Draw(view, true);
    const bool others = view.name || view.mass;
    const int symbolPixels = view.number || others ? 14 : 12;  // 11 and 9 points
    const int numberPixels = others ? 14 : 9;                  // 11 and 7 points
    for (int i = 0; i < kPeriodicCells; ++i) {
      const ElementFacts facts = VariedFacts(i);
      const PeriodicCell& cell = Cell(i);
      const auto at = [&](Point place) { return Point{cell.rect.left + place.x, cell.rect.top + place.y}; };
      EXPECT_TRUE(HasRun(facts.symbol, at(cell.symbol), symbolPixels)) << i;
      if (view.number) {
        EXPECT_TRUE(HasRun(DecimalText(i + 1), at(cell.number), numberPixels)) << i;
      }
      if (view.name) {
        EXPECT_TRUE(HasRun(facts.name, at(cell.name), 9)) << i;
      }
      if (view.mass) {
        EXPECT_TRUE(HasRun(facts.mass, at(cell.mass), 9)) << i;
      }
    }
  }
}

TEST_F(PeriodicPaintTest, NothingIsWrittenButWhatIsShown) {
  for (const PeriodicView& view : kViews) {
    SCOPED_TRACE(NameOf(view));
    Draw(view, false);
    const int texts = 1 + (view.number ? 1 : 0) + (view.name ? 1 : 0) + (view.mass ? 1 : 0);
    const int labels = 7 + (view.wide ? 18 : 8) + 2;
    EXPECT_EQ(surface_->Runs().size(), static_cast<std::size_t>(112 * texts + labels));
  }
}

// --- Labels. With nothing but symbols a row is 15 high: 12 + 2 pixels of text and 1.

TEST_F(PeriodicPaintTest, CornerAndBackground) {
  for (const bool wide : {false, true}) {
    Draw({.wide = wide}, false);
    EXPECT_TRUE(IsOutlined({0, 0, 16, 16}));
    EXPECT_EQ(FillOf({0, 0, 16, 16}), kBandPixel);
    EXPECT_EQ(Pixel(8, 8), kBandPixel);
    EXPECT_EQ(Pixel(CellRect(1).left - 3, 25), kWhitePixel);  // between hydrogen and helium
    const Size size = panel_->Layout().content;
    EXPECT_EQ(Pixel(0, size.height - 1), kWhitePixel);
    EXPECT_EQ(Pixel(size.width - 1, 20), kWhitePixel);
  }
}

TEST_F(PeriodicPaintTest, PeriodBandsOfTheShortFormCoverBothRows) {
  Draw({}, false);
  ExpectBand({0, 15, 16, 31}, u"1");
  ExpectBand({0, 30, 16, 46}, u"2");
  ExpectBand({0, 45, 16, 61}, u"3");
  ExpectBand({0, 60, 16, 91}, u"4");
  ExpectBand({0, 90, 16, 121}, u"5");
  ExpectBand({0, 120, 16, 151}, u"6");
  ExpectBand({0, 150, 16, 181}, u"7");
  EXPECT_EQ(Pixel(8, 181), kWhitePixel);
}

TEST_F(PeriodicPaintTest, PeriodBandsOfTheLongForm) {
  Draw({.wide = true}, false);
  ExpectBand({0, 15, 16, 31}, u"1");
  ExpectBand({0, 30, 16, 46}, u"2");
  ExpectBand({0, 45, 16, 61}, u"3");
  ExpectBand({0, 60, 16, 76}, u"4");
  ExpectBand({0, 75, 16, 91}, u"5");
  ExpectBand({0, 90, 16, 106}, u"6");
  ExpectBand({0, 105, 16, 121}, u"7");
  EXPECT_EQ(Pixel(8, 121), kWhitePixel);
}

TEST_F(PeriodicPaintTest, ColumnBandsOfTheShortFormNameTheMainGroups) {
  constexpr TextView kNames[] = {u"I", u"II", u"III", u"IV", u"V", u"VI", u"VII", u"VIII"};
  for (const PeriodicView& view : kViews) {
    if (view.wide) continue;
    SCOPED_TRACE(NameOf(view));
    Draw(view, false);
    for (int c = 0; c < 8; ++c) {
      ExpectBand({CellRect(18 + c).left, 0, CellRect(19 + c).left + 1, 16}, kNames[c]);
    }
    EXPECT_EQ(Pixel(CellRect(26).left + 2, 8), kWhitePixel);  // the group's other columns have no band
  }
}

TEST_F(PeriodicPaintTest, ColumnBandsOfTheLongFormNumberTheGroups) {
  for (const PeriodicView& view : kViews) {
    if (!view.wide) continue;
    SCOPED_TRACE(NameOf(view));
    Draw(view, false);
    for (int c = 0; c < 17; ++c) {
      ExpectBand({CellRect(18 + c).left, 0, CellRect(19 + c).left + 1, 16}, DecimalText(c + 1));
    }
    ExpectBand({CellRect(35).left, 0, CellRect(35).right + 1, 16}, u"18");
    EXPECT_EQ(Pixel(CellRect(35).right + 2, 8), kWhitePixel);
  }
}

// The series begin at x 84; short form y 183 and 218 with two rows each, long form y 138 and 158 with one.
TEST_F(PeriodicPaintTest, SeriesLabelsEndTenPixelsLeftOfTheirRowsInTheMiddle) {
  struct Series {
    bool wide;
    TextView label;
    int first;
    Point corner;
    int height;
  };
  constexpr Series kSeries[] = {{false, u"Lanthanides", 57, {84, 183}, 30},
                                {false, u"Actinides", 89, {84, 218}, 30},
                                {true, u"Lanthanides", 57, {84, 138}, 15},
                                {true, u"Actinides", 89, {84, 158}, 15}};
  for (const Series& series : kSeries) {
    SCOPED_TRACE(ToUtf8(series.label));
    Draw({.wide = series.wide}, false);
    ASSERT_EQ(CellRect(series.first).TopLeft(), series.corner);
    int found = 0;
    for (const TextRun& run : surface_->Runs()) {
      if (run.text != series.label) continue;
      ++found;
      EXPECT_EQ(run.rect.right, 74);
      EXPECT_NEAR(run.rect.top + run.rect.bottom, 2 * series.corner.y + series.height, 1);
      EXPECT_EQ(run.font, (FontSpec{u"Tahoma", 12}));
      EXPECT_EQ(run.colour, kBlack);
    }
    EXPECT_EQ(found, 1);
  }
}

// --- What the data may lack

TEST_F(PeriodicPaintTest, ADatabaseWithoutAnythingStillMakesATable) {
  elements_.Free();
  for (const PeriodicView& view : kViews) {
    for (const bool byFamily : {false, true}) {
      SCOPED_TRACE(NameOf(view));
      Draw(view, byFamily);
      for (int i = 0; i < kPeriodicCells; ++i) EXPECT_FALSE(CellRect(i).Empty());
      EXPECT_EQ(FillOf(Outlined(CellRect(111))), kBandPixel);
    }
  }
}

TEST_F(PeriodicPaintTest, ElementsWithoutTextsHaveEmptyCells) {
  testing::LoadMadeUp(elements_,
                      [](int element) { return element % 2 == 0 ? ElementFacts{} : VariedFacts(element); });
  Draw({.wide = true, .number = true, .name = true, .mass = true}, false);
  EXPECT_TRUE(HasRun(u"1", {CellRect(0).left + Cell(0).number.x, CellRect(0).top + Cell(0).number.y}, 14));
  // One line of 14 + 3 pixels and one of 9 + 2, and one more: the same as if the texts were there.
  EXPECT_EQ(CellRect(0).Height(), 29);
}

TEST_F(PeriodicPaintTest, TextsThatAreFarTooLongStayHarmless) {
  testing::LoadMadeUp(elements_, [](int element) {
    ElementFacts f = VariedFacts(element);
    if (element == 40) f.name = Text(60000, u'W');
    if (element == 50) f.mass = Text(30000, u'\n');
    if (element == 60) f.symbol = u"\u0001";
    return f;
  });
  settings_ = {true, true, true, true, true};
  panel_ = MakeWindow<OpenPanel>(shell_, shell_.MainWindow(), elements_, navigator_, settings_);
  panel_->Move(0, 0, 240, 268);
  panel_->LayOut();
  panel_->Show();
  shell_.Settle();
  EXPECT_GT(panel_->Layout().content.width, 60000 * 8);
  panel_->ScrollBy(1000000000, 1000000000);
  shell_.Settle();
  EXPECT_EQ(panel_->scrollX, panel_->Layout().content.width - 240);
}

// --- On the screen

TEST_F(PeriodicPaintTest, TheScreenShowsTheSamePixelsWhereverItIsScrolled) {
  Draw({.wide = true, .number = true, .name = true, .mass = true}, true);
  panel_->Show();
  for (const Point step : {Point{0, 0}, Point{333, 40}, Point{500, 0}, Point{-700, -40}, Point{4000, 4000}}) {
    panel_->ScrollBy(step.x, step.y);
    shell_.Settle();
    const Point scroll{panel_->scrollX, panel_->scrollY};
    for (int y = 0; y < 268; ++y) {
      for (int x = 0; x < 240; ++x) {
        const Point content{x + scroll.x, y + scroll.y};
        const Size size = panel_->Layout().content;
        const bool inside = content.x < size.width && content.y < size.height;
        ASSERT_EQ(shell_.Pixel({x, y + 26}), inside ? Pixel(content.x, content.y) : kWhitePixel)
            << content.x << ", " << content.y;
      }
    }
  }
}

}  // namespace
}  // namespace orvane
