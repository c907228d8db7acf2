#include "tools/element_summary_panel.h"

#include <algorithm>

#include "framework/page_keys.h"

namespace orvane {

namespace {

constexpr int kRowPoints = 9;
constexpr int kShiftedPoints = 7;

constexpr int kWidth = 240;
constexpr int kLeft = 4;
constexpr int kRight = 236;
// The blank above each grey line and between two rows.
constexpr int kGap = 1;
constexpr int kRuleHeight = 1;
constexpr Colour kRule = Rgb(216, 216, 216);
// As the grouped list marks its selected row and its cursor.
constexpr Colour kSelectedFill = Rgb(193, 193, 255);
constexpr Colour kCursorFrame = Rgb(3, 66, 156);

}  // namespace

ElementSummaryPanel::ElementSummaryPanel(Shell& shell, WindowHandle parent, const ElementsDatabase& elements,
                                         const ElementSettings& settings)
    : ZelPanel(shell, parent, false), elements_(elements), settings_(settings) {
  background = kWhite;
  privateBuffer = true;
  Device& device = GetDevice();
  CreateFontFamily(device, Handle(), symbolFont_, u"Tahoma", 21, false, false);
  CreateFontFamily(device, Handle(), numberFont_, u"Tahoma", 21, false, false);
  // Raised and lowered text is smaller, so that 3d6 is told from 3d with an exponent in a line no higher.
  CreateFontFamily(device, Handle(), rowFont_, u"Tahoma", kRowPoints, kShiftedPoints, kShiftedPoints, 0, 0,
                   false, false);
}

void ElementSummaryPanel::LayOut(int element) {
  element_ = element;
  laidOut_ = true;
  LayOutHeader();
  LayOutRows();
  const int count = static_cast<int>(rows_.size());
  if (selected_ >= count) selected_ = -1;
  if (cursor_ >= count) cursor_ = -1;
  contentWidth = bufferWidth = kWidth;
  contentHeight = bufferHeight = rows_.empty() ? rowsTop_ : rows_.back().bottom + kGap;
  scrollY = std::clamp(scrollY, 0, std::max(contentHeight - UsableSize().height, 0));
  ResetBuffer();
  Redraw();
}

void ElementSummaryPanel::LayOutHeader() {
  int y = 0;
  nameTop_ = mainRule_ = familyTop_ = familyRule_ = -1;
  if (settings_.showMainProperties) {
    nameTop_ = symbolFont_.lineHeight;
    mainRule_ = nameTop_ + rowFont_.lineHeight + kGap;
    y = mainRule_ + kRuleHeight;
  }
  if (settings_.showFamilyAndBlock) {
    familyTop_ = y;
    familyRule_ = familyTop_ + rowFont_.lineHeight + kGap;
    y = familyRule_ + kRuleHeight;
  }
  rowsTop_ = y;
}

void ElementSummaryPanel::LayOutRows() {
  TextEngine& engine = GetShell().Engine();
  engine.SelectFontFamily(&rowFont_);
  rows_.clear();
  int top = rowsTop_;
  for (const PropertyAddress& address : SummaryOf(elements_, element_)) {
    Row row{top, top, address};
    const Rect column{kLeft, top, kRight, top};
    row.bottom = top + engine.MeasureText(RowText(row), &column).height;
    AddRow(row);
    top = row.bottom + kGap;
  }
}

// Each message is one that people with very long lists know.
void ElementSummaryPanel::AddRow(const Row& row) {
  if (rows_.size() == rowCapacity_) {
    rowCapacity_ *= 2;
    GetShell().Tell(u"Need to get more mem", MessageIcon::kInformation);
  }
  rows_.push_back(row);
}

Text ElementSummaryPanel::RowText(const Row& row) const {
  const ElementProperty* property = FindProperty(elements_, row.address);
  return property ? SummaryRowText(*property, element_) : Text();
}

void ElementSummaryPanel::Select(int row) {
  const int before = selected_;
  selected_ = row >= 0 && row < static_cast<int>(rows_.size()) ? row : -1;
  RedrawRow(before);
  RedrawRow(selected_);
}

int ElementSummaryPanel::RowAt(Point content) const {
  const auto holds = [&](const Row& row) { return row.top <= content.y && content.y < row.bottom; };
  const auto found = std::find_if(rows_.begin(), rows_.end(), holds);
  return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

Result ElementSummaryPanel::WndProc(WindowHandle window, std::uint32_t message, WParam w, LParam l) {
  if (message == WM_KEYDOWN && OnCursorKey(static_cast<int>(w))) return 0;
  return ZelPanel::WndProc(window, message, w, l);
}

Result ElementSummaryPanel::OnMessage(std::uint32_t message, WParam w, LParam l) {
  switch (message) {
    case PN_PENDOWN:
      SetCursor(-1);
      return 0;
    case PN_TAP: {
      const int row = RowAt(ContentPoint(penDown));
      if (row >= 0) Select(row);
      return 0;
    }
    default:
      return ZelPanel::OnMessage(message, w, l);
  }
}

bool ElementSummaryPanel::OnCursorKey(int key) {
  if ((key == VK_UP || key == VK_DOWN) && GetDevice().CurrentModifiers().control) {
    MoveCursor(key == VK_UP ? -1 : +1);
    return true;
  }
  if (ScrollByPageKey(*this, GetDevice(), key, rowFont_.lineHeight)) return true;
  if (key != VK_RETURN || cursor_ < 0) return false;
  Select(cursor_);
  return true;
}

// The first step goes beside the selected row; without one, to the first or upwards to the last row that
// shows.
void ElementSummaryPanel::MoveCursor(int step) {
  if (rows_.empty()) return;
  const int last = static_cast<int>(rows_.size()) - 1;
  int from = cursor_ >= 0 ? cursor_ : selected_;
  if (from < 0) {
    const Rect visible = VisibleContent();
    int row = step > 0 ? 0 : last;
    while (row > 0 && step < 0 && rows_[static_cast<std::size_t>(row)].bottom > visible.bottom) --row;
    while (row < last && step > 0 && rows_[static_cast<std::size_t>(row)].top < visible.top) ++row;
    from = row - step;
  }
  SetCursor(std::clamp(from + step, 0, last));
  BringIntoView(cursor_);
}

void ElementSummaryPanel::BringIntoView(int row) {
  if (row < 0 || row >= static_cast<int>(rows_.size())) return;
  const Row& of = rows_[static_cast<std::size_t>(row)];
  const Rect visible = VisibleContent();
  if (of.top < visible.top) {
    ScrollBy(0, of.top - visible.top);
  } else if (of.bottom + kGap > visible.bottom) {
    ScrollBy(0, of.bottom + kGap - visible.bottom);
  }
}

void ElementSummaryPanel::SetCursor(int row) {
  const int before = cursor_;
  if (before == row) return;
  cursor_ = row;
  RedrawRow(before);
  RedrawRow(row);
}

void ElementSummaryPanel::RedrawRow(int row) {
  if (row < 0 || row >= static_cast<int>(rows_.size())) return;
  const Row& of = rows_[static_cast<std::size_t>(row)];
  RedrawRect(0, of.top, kWidth, of.bottom + kGap);
}

void ElementSummaryPanel::Paint(Canvas& canvas, int left, int top, int right, int bottom) {
  canvas.FillRect({left, top, right, bottom}, kWhite);
  TextEngine& engine = GetShell().Engine();
  engine.SetTextColour(kBlack);
  if (top < rowsTop_) {
    if (nameTop_ >= 0) DrawHeader(canvas);
    if (familyTop_ >= 0) DrawFamilyLine(canvas);
  }
  engine.SelectFontFamily(&rowFont_);
  for (int row = 0; row < static_cast<int>(rows_.size()); ++row) {
    const Row& of = rows_[static_cast<std::size_t>(row)];
    if (of.top < bottom && of.bottom + kGap > top) DrawRow(canvas, row);
  }
}

void ElementSummaryPanel::DrawHeader(Canvas& canvas) const {
  TextEngine& engine = GetShell().Engine();
  engine.SelectFontFamily(&symbolFont_);
  engine.DrawText(canvas, ValueOf(elements_.Symbol(), element_), kLeft, 0);
  engine.SelectFontFamily(&numberFont_);
  DrawRight(canvas, DecimalText(element_ + 1), 0);
  engine.SelectFontFamily(&rowFont_);
  engine.DrawText(canvas, ValueOf(elements_.Name(), element_), kLeft, nameTop_);
  DrawRight(canvas, ValueOf(elements_.AtomicMass(), element_), nameTop_);
  DrawRule(canvas, mainRule_);
}

void ElementSummaryPanel::DrawFamilyLine(Canvas& canvas) const {
  TextEngine& engine = GetShell().Engine();
  engine.SelectFontFamily(&rowFont_);
  engine.DrawText(canvas, FamilyLineText(elements_, element_), kLeft, familyTop_);
  DrawRight(canvas, BlockLineText(elements_, element_), familyTop_);
  DrawRule(canvas, familyRule_);
}

void ElementSummaryPanel::DrawRow(Canvas& canvas, int row) const {
  const Row& of = rows_[static_cast<std::size_t>(row)];
  // What hangs below the line reaches into the gap, so the gap belongs to the band.
  const Rect band{0, of.top, kWidth, of.bottom + kGap};
  if (row == selected_) canvas.FillRect(band, kSelectedFill);
  canvas.PushClip(band);
  const Rect column{kLeft, of.top, kRight, band.bottom};
  GetShell().Engine().DrawText(canvas, RowText(of), kLeft, of.top, &column);
  canvas.PopClip();
  if (row == cursor_) canvas.FrameRect(band, kCursorFrame);
}

// In the family that is selected, ending where the column does.
void ElementSummaryPanel::DrawRight(Canvas& canvas, TextView text, int y) const {
  TextEngine& engine = GetShell().Engine();
  engine.DrawText(canvas, text, kRight - engine.MeasureText(text).width, y);
}

void ElementSummaryPanel::DrawRule(Canvas& canvas, int y) const {
  canvas.FillRect({0, y, kWidth, y + kRuleHeight}, kRule);
}

}  // namespace orvane
