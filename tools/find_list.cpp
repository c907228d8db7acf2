#include "tools/find_list.h"

#include <algorithm>
#include <utility>

#include "framework/page_keys.h"

namespace orvane {

namespace {

constexpr int kContentWidth = 224;
constexpr int kColumnRoom = 6;  // a column is this much wider than its widest text
constexpr int kTextLeft = 3;
constexpr int kFontSize = 10;
constexpr Colour kOddRow = Rgb(204, 255, 222);
constexpr Colour kCursorRow = Rgb(193, 193, 255);
constexpr Colour kColumnLine = Rgb(160, 160, 160);

// Rounded down also for a pen that has slid off the upper edge.
int RowAt(int contentY) { return contentY < 0 ? FindList::kNoRow : contentY / FindList::kRowHeight; }

}  // namespace

FindList::FindList(Shell& shell, WindowHandle parent, const NamesOfElements& names, Navigator& navigator)
    : ZelPanel(shell, parent, false), names_(names), navigator_(navigator) {
  CreateFontFamily(GetDevice(), Handle(), font_, u"Tahoma", kFontSize, false, false);
  MeasureColumns();
  contentWidth = kContentWidth;
  contentHeight = 0;
  background = kWhite;
}

void FindList::MeasureColumns() {
  TextEngine& engine = GetShell().Engine();
  engine.SelectFontFamily(&font_);
  const auto widen = [&engine](int& width, TextView text) {
    width = std::max(width, engine.MeasureText(text).width + kColumnRoom);
  };
  for (int element = 0; element < kSearchedElements; ++element) {
    const ElementNames& names = names_[static_cast<std::size_t>(element)];
    widen(numberWidth_, DecimalText(element + 1));
    widen(symbolWidth_, names.symbol);
    widen(nameWidth_, names.name);
  }
}

void FindList::SetMatches(std::vector<int> elements) {
  matches_ = std::move(elements);
  cursor_ = kNoRow;
  scrollX = 0;
  scrollY = 0;
  contentHeight = kRowHeight * RowCount();
  background = FillOf(RowCount());  // below the last row the stripes would go on with this
  Redraw();
}

Result FindList::WndProc(WindowHandle window, std::uint32_t message, WParam w, LParam l) {
  if (message == WM_KEYDOWN && OnListKey(static_cast<int>(w))) return 0;
  return ZelPanel::WndProc(window, message, w, l);
}

Result FindList::OnMessage(std::uint32_t message, WParam w, LParam l) {
  switch (message) {
    case WM_SETFOCUS:
      if (focused) focused();
      return 0;
    case PN_PENDOWN:
      OnListPenDown();
      return 0;
    case PN_TAP:
      Open(RowAt(ContentPoint(penCurrent).y));
      return 0;
    default:
      return ZelPanel::OnMessage(message, w, l);
  }
}

// The list may have the focus already while the bar's button has raised the input panel again.
void FindList::OnListPenDown() {
  if (focused) focused();
  if (cursor_ == kNoRow) return;
  cursor_ = kNoRow;
  Redraw();
}

// Keys beyond those of every panel; Tab is for the screen that the list lies in.
bool FindList::OnListKey(int key) {
  switch (key) {
    case VK_UP:
    case VK_DOWN:
      if (!GetDevice().CurrentModifiers().control) return false;
      MoveCursor(key == VK_UP ? -1 : 1);
      return true;
    case VK_RETURN:
      Open(cursor_);
      return true;
    case VK_TAB:
      GetDevice().Send(GetDevice().Parent(Handle()), WM_KEYDOWN, VK_TAB, 0);
      return true;
    default:
      return ScrollByPageKey(*this, GetDevice(), key, kRowHeight);
  }
}

void FindList::MoveCursor(int rows) {
  if (matches_.empty()) return;
  const int last = RowCount() - 1;
  const int from = cursor_ != kNoRow ? cursor_ : rows > 0 ? -1 : RowCount();
  cursor_ = std::clamp(from + rows, 0, last);
  BringCursorIntoView();
  Redraw();
}

void FindList::BringCursorIntoView() {
  if (cursor_ == kNoRow) return;
  const int top = cursor_ * kRowHeight;
  scrollY = std::clamp(scrollY, std::max(0, top + kRowHeight - UsableSize().height), top);
}

void FindList::Open(int row) {
  if (row >= 0 && row < RowCount()) navigator_.ShowElement(matches_[static_cast<std::size_t>(row)]);
}

Colour FindList::FillOf(int row) const { return row % 2 == 0 ? kWhite : kOddRow; }

void FindList::Paint(Canvas& canvas, int left, int top, int right, int bottom) {
  const int last = std::min(RowCount(), (bottom + kRowHeight - 1) / kRowHeight);
  for (int row = std::max(0, top / kRowHeight); row < last; ++row) DrawRow(canvas, row, left, right);
  for (const int x : {numberWidth_, numberWidth_ + symbolWidth_}) {
    canvas.Line({x, top}, {x, bottom}, kColumnLine);
  }
}

void FindList::DrawRow(Canvas& canvas, int row, int left, int right) {
  const int element = matches_[static_cast<std::size_t>(row)];
  const ElementNames& names = names_[static_cast<std::size_t>(element)];
  const int top = row * kRowHeight;
  canvas.FillRect({left, top, right, top + kRowHeight}, row == cursor_ ? kCursorRow : FillOf(row));
  TextEngine& engine = GetShell().Engine();
  engine.SelectFontFamily(&font_);
  engine.SetTextColour(kBlack);
  const int textTop = top + (kRowHeight - font_.lineHeight) / 2;
  engine.DrawText(canvas, DecimalText(element + 1), kTextLeft, textTop);
  engine.DrawText(canvas, names.symbol, numberWidth_ + kTextLeft, textTop);
  engine.DrawText(canvas, names.name, numberWidth_ + symbolWidth_ + kTextLeft, textTop);
}

WindowReport FindList::Describe() const {
  WindowReport report = ZelPanel::Describe();
  report.selected = {0, cursor_};
  return report;
}

}  // namespace orvane
