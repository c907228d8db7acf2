#include "tools/periodic_panel.h"

#include <algorithm>
#include <array>

namespace orvane {

namespace {

constexpr int kArrowStep = 20;
constexpr int kBand = 16;  // thickness of the label bands
constexpr int kSeriesLabelGap = 10;
constexpr Colour kBandFill = Rgb(192, 192, 192);

constexpr std::array<int, 7> kFirstOfPeriod{0, 2, 10, 18, 36, 54, 86};
constexpr int kLastRowCell = 110;
// The column bands are measured on the cells of the fourth period.
constexpr int kFirstBandCell = 18;
constexpr int kLastBandCell = 35;
constexpr std::array<TextView, 8> kMainGroups{u"I", u"II", u"III", u"IV", u"V", u"VI", u"VII", u"VIII"};
constexpr int kGroups = 18;

struct LetterColour {
  Char letter = 0;
  Colour fill;
};

constexpr LetterColour kBlockColours[] = {
    {u'S', Rgb(255, 128, 166)},
    {u'P', Rgb(255, 255, 187)},
    {u'D', Rgb(155, 205, 255)},
    {u'F', Rgb(138, 255, 145)},
};
constexpr LetterColour kFamilyColours[] = {
    {u'A', Rgb(255, 74, 74)},    // alkali metals
    {u'B', Rgb(0, 217, 0)},      // alkaline earth metals
    {u'C', Rgb(190, 125, 255)},  // transition metals
    {u'D', Rgb(255, 128, 166)},  // metals
    {u'E', Rgb(155, 205, 255)},  // non-metals
    {u'F', Rgb(138, 255, 145)},  // noble gases
    {u'G', Rgb(212, 212, 212)},  // actinides
    {u'H', Rgb(242, 242, 242)},  // lanthanides
    {u'I', Rgb(255, 255, 187)},  // halogens
    {u'J', Rgb(168, 255, 234)},  // transactinides
};

template <std::size_t N>
Colour ColourOf(const LetterColour (&table)[N], TextView letters, Colour otherwise) {
  for (const LetterColour& entry : table) {
    if (!letters.empty() && letters.front() == entry.letter) return entry.fill;
  }
  return otherwise;
}

// One pixel larger than the cell, so that neighbours share their border lines.
constexpr Rect Outlined(const Rect& cell) { return {cell.left, cell.top, cell.right + 1, cell.bottom + 1}; }

}  // namespace

PeriodicPanel::PeriodicPanel(Shell& shell, WindowHandle parent, const ElementsDatabase& elements,
                             Navigator& navigator, const PeriodicSettings& settings)
    : ZelPanel(shell, parent, false), elements_(elements), navigator_(navigator), settings_(settings) {
  arrowStep = kArrowStep;
  background = kWhite;
  privateBuffer = true;
  Device& device = GetDevice();
  CreateFontFamily(device, Handle(), symbolWithTexts_, u"Tahoma", 11, false, false);
  CreateFontFamily(device, Handle(), symbolAlone_, u"Tahoma", 9, false, false);
  CreateFontFamily(device, Handle(), numberWithTexts_, u"Tahoma", 11, false, false);
  CreateFontFamily(device, Handle(), small_, u"Tahoma", 7, false, false);
}

const FontFamily& PeriodicPanel::SymbolFont() const {
  return settings_.View().SymbolOnly() ? symbolAlone_ : symbolWithTexts_;
}

const FontFamily& PeriodicPanel::NumberFont() const {
  return settings_.showName || settings_.showMass ? numberWithTexts_ : small_;
}

PeriodicPanel::ElementText PeriodicPanel::TextOf(int element) const {
  return {ValueOf(elements_.Symbol(), element), DecimalText(element + 1), ValueOf(elements_.Name(), element),
          ValueOf(elements_.AtomicMass(), element)};
}

Size PeriodicPanel::Measure(const FontFamily& family, TextView text) const {
  TextEngine& engine = GetShell().Engine();
  engine.SelectFontFamily(&family);
  return engine.MeasureText(text);
}

void PeriodicPanel::LayOut() {
  const PeriodicView view = settings_.View();
  std::array<CellTexts, kPeriodicCells> sizes;
  for (int i = 0; i < kPeriodicCells; ++i) {
    const ElementText text = TextOf(i);
    CellTexts& size = sizes[static_cast<std::size_t>(i)];
    size.symbol = Measure(SymbolFont(), text.symbol);
    if (view.number) size.number = Measure(NumberFont(), text.number);
    if (view.name) size.name = Measure(small_, text.name);
    if (view.mass) size.mass = Measure(small_, text.mass);
  }
  layout_ = LayOutPeriodicTable(sizes, view);
  contentWidth = bufferWidth = layout_.content.width;
  contentHeight = bufferHeight = layout_.content.height;
  ResetBuffer();
  Redraw();
  GetDevice().SetFocus(Handle());
}

Result PeriodicPanel::OnMessage(std::uint32_t message, WParam w, LParam l) {
  if (message != PN_TAP) return ZelPanel::OnMessage(message, w, l);
  const int element = CellAt(layout_, ContentPoint(penCurrent));
  if (element >= 0) {
    navigator_.SelectElement(element);
    navigator_.ShowElement(element);
  }
  return 0;
}

void PeriodicPanel::Paint(Canvas& canvas, int left, int top, int right, int bottom) {
  const Rect part{left, top, right, bottom};
  canvas.FillRect(part, kWhite);
  DrawLabelBands(canvas);
  DrawCells(canvas, part);
  DrawSeriesLabels(canvas);
}

void PeriodicPanel::DrawBand(Canvas& canvas, const Rect& band, TextView label) const {
  canvas.Rectangle(band, kBlack, kBandFill);
  TextEngine& engine = GetShell().Engine();
  const Size size = Measure(symbolAlone_, label);
  engine.SetTextColour(kBlack);
  engine.DrawText(canvas, label, band.left + (band.Width() - size.width) / 2,
                  band.top + (band.Height() - size.height) / 2);
}

void PeriodicPanel::DrawLabelBands(Canvas& canvas) const {
  canvas.Rectangle({0, 0, kBand, kBand}, kBlack, kBandFill);
  for (std::size_t k = 0; k < kFirstOfPeriod.size(); ++k) {
    const bool last = k + 1 == kFirstOfPeriod.size();
    const int top = Cell(kFirstOfPeriod[k]).rect.top;
    const int end = last ? Cell(kLastRowCell).rect.bottom : Cell(kFirstOfPeriod[k + 1]).rect.top;
    DrawBand(canvas, {0, top, kBand, end + 1}, DecimalText(static_cast<int>(k) + 1));
  }
  const int bands = settings_.modeWide ? kGroups : static_cast<int>(kMainGroups.size());
  for (int c = 0; c < bands; ++c) {
    const int left = Cell(kFirstBandCell + c).rect.left;
    const bool last = settings_.modeWide && c + 1 == kGroups;
    const int end = last ? Cell(kLastBandCell).rect.right : Cell(kFirstBandCell + c + 1).rect.left;
    const Text label =
        settings_.modeWide ? DecimalText(c + 1) : Text(kMainGroups[static_cast<std::size_t>(c)]);
    DrawBand(canvas, {left, 0, end + 1, kBand}, label);
  }
}

// A letter that is in no table leaves the fill as it was for the cell before.
Colour PeriodicPanel::FillOf(int element, Colour previous) const {
  return settings_.colorType ? ColourOf(kFamilyColours, ValueOf(elements_.Family(), element), previous)
                             : ColourOf(kBlockColours, ValueOf(elements_.Block(), element), previous);
}

void PeriodicPanel::DrawCells(Canvas& canvas, const Rect& part) const {
  Colour fill = kBandFill;
  for (int i = 0; i < kPeriodicCells; ++i) {
    fill = FillOf(i, fill);
    const Rect box = Outlined(Cell(i).rect);
    if (!Intersect(box, part).Empty()) canvas.Rectangle(box, kBlack, fill);
    // A text that does not count for the cell's width may reach into the part from outside.
    DrawCellTexts(canvas, i);
  }
}

void PeriodicPanel::DrawCellTexts(Canvas& canvas, int element) const {
  const PeriodicCell& cell = Cell(element);
  const ElementText text = TextOf(element);
  TextEngine& engine = GetShell().Engine();
  engine.SetTextColour(kBlack);
  const auto draw = [&](const FontFamily& family, TextView value, Point at) {
    engine.SelectFontFamily(&family);
    engine.DrawText(canvas, value, cell.rect.left + at.x, cell.rect.top + at.y);
  };
  draw(SymbolFont(), text.symbol, cell.symbol);
  if (settings_.showNum) draw(NumberFont(), text.number, cell.number);
  if (settings_.showName) draw(small_, text.name, cell.name);
  if (settings_.showMass) draw(small_, text.mass, cell.mass);
}

// The short form has two rows of each series, the long form one.
void PeriodicPanel::DrawSeriesLabels(Canvas& canvas) const {
  DrawSeriesLabel(canvas, u"Lanthanides", 57, 70);
  DrawSeriesLabel(canvas, u"Actinides", 89, 102);
}

void PeriodicPanel::DrawSeriesLabel(Canvas& canvas, TextView label, int firstCell, int lastCell) const {
  const Rect& first = Cell(firstCell).rect;
  const int height = Cell(lastCell).rect.bottom - first.top;
  const Size size = Measure(symbolAlone_, label);
  TextEngine& engine = GetShell().Engine();
  engine.SetTextColour(kBlack);
  engine.DrawText(canvas, label, first.left - kSeriesLabelGap - size.width,
                  first.top + (height - size.height) / 2);
}

}  // namespace orvane
