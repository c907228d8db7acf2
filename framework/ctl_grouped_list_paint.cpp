// How the grouped list looks. Painting only reads; the canvas is in content coordinates.
#include <algorithm>

#include "framework/ctl_grouped_list.h"

namespace orvane {

namespace {

constexpr Colour kTitleFill = Rgb(230, 242, 255);
constexpr Colour kSelectedFill = Rgb(193, 193, 255);
constexpr Colour kOddFill = Rgb(204, 255, 222);
constexpr Colour kCellLine = Rgb(216, 216, 216);
constexpr Colour kFoldSign = Rgb(128, 128, 128);
constexpr Colour kGuide = Rgb(3, 66, 156);  // the line under a dragged column edge, and the cursor's frame

// The title's text, and the fold box before it.
constexpr int kTitleTextX = 21;
constexpr int kTitleTextY = 1;
constexpr int kFoldBoxLeft = 8;
constexpr int kFoldBoxRight = 17;
constexpr int kFoldBoxAbove = 4;
constexpr int kFoldBoxBelow = 5;
constexpr int kFoldSignInset = 2;

// Letters that hang below the line would end in the next row, while nothing reaches up to the top of a line.
constexpr int kRowTextY = -1;

constexpr int kResizeIcon = 2;
// The last of four columns ends where the content does: the guide stands on its last pixel.
constexpr int kLastOfFour = 3;

void HorizontalLine(Canvas& canvas, int left, int right, int y, Colour colour) {
  canvas.FillRect({left, y, right, y + 1}, colour);
}

void VerticalLine(Canvas& canvas, int x, int top, int bottom, Colour colour) {
  canvas.FillRect({x, top, x + 1, bottom}, colour);
}

Colour RowFill(bool selected, int row) {
  if (selected) return kSelectedFill;
  return row % 2 == 0 ? kWhite : kOddFill;
}

}  // namespace

void ctlGroupedList::Paint(Canvas& canvas, int left, int top, int right, int bottom) {
  const Rect part{left, top, right, bottom};
  canvas.FillRect(part, background);
  Place place;
  bool below = false;  // the group before ends with a row
  for (std::size_t g = 0; g < groups.size(); ++g) {
    const ListGroup& group = groups[g];
    const bool rowAbove = below;
    place = PlaceAfter(place.bottom, group);
    below = place.bottom > place.rowsTop;
    if (place.top >= bottom) break;
    // The line below the last row stands on the pixel after it.
    if (place.bottom < top) continue;
    if (group.hasTitle) PaintTitle(canvas, {0, place.top, contentWidth, place.rowsTop}, group);
    if (below) PaintRows(canvas, place, static_cast<int>(g), part);
    // The line below the last row stands where a group without a title has painted its first one.
    if (rowAbove && !group.hasTitle) HorizontalLine(canvas, 0, contentWidth, place.top, kCellLine);
  }
  const Rect cursor = RectOf(cursor_.group, cursor_.row);
  if (cursor_.group >= 0 && !cursor.Empty()) canvas.FrameRect(cursor, kGuide);
  if (resizingColumn_ >= 0) PaintResizing(canvas, top, std::min(bottom, contentHeight));
}

void ctlGroupedList::PaintTitle(Canvas& canvas, const Rect& title, const ListGroup& group) const {
  canvas.FillRect(title, kTitleFill);
  HorizontalLine(canvas, title.left, title.right, title.top, kBlack);
  HorizontalLine(canvas, title.left, title.right, title.bottom - 1, kBlack);
  VerticalLine(canvas, title.right - 1, title.top, title.bottom, kBlack);
  canvas.PushClip({title.left, title.top + 1, title.right - 1, title.bottom - 1});
  PaintFoldBox(canvas, title.top + title.Height() / 2, group.expanded);
  TextEngine& engine = GetShell().Engine();
  engine.SelectFontFamily(titleFont_);
  engine.SetTextColour(kBlack);
  engine.SetTextStyle(true, false);
  engine.DrawText(canvas, group.title, kTitleTextX, title.top + kTitleTextY);
  engine.SetTextStyle(false, false);
  canvas.PopClip();
}

void ctlGroupedList::PaintFoldBox(Canvas& canvas, int middle, bool expanded) const {
  const Rect box{kFoldBoxLeft, middle - kFoldBoxAbove, kFoldBoxRight, middle + kFoldBoxBelow};
  canvas.Rectangle(box, kBlack, kWhite);
  const Rect sign = box.Inset(kFoldSignInset);
  HorizontalLine(canvas, sign.left, sign.right, middle, kFoldSign);
  if (!expanded) VerticalLine(canvas, sign.left + sign.Width() / 2, sign.top, sign.bottom, kFoldSign);
}

void ctlGroupedList::PaintRows(Canvas& canvas, const Place& place, int group, const Rect& part) const {
  const int rows = (place.bottom - place.rowsTop) / rowHeight;
  const int first = std::clamp((part.top - place.rowsTop) / rowHeight, 0, rows);
  const int end = std::clamp((part.bottom - place.rowsTop + rowHeight - 1) / rowHeight, 0, rows);
  for (int row = first; row < end; ++row) {
    PaintRow(canvas, Rect::At(0, place.rowsTop + row * rowHeight, contentWidth, rowHeight), group, row);
  }
  HorizontalLine(canvas, 0, contentWidth, place.bottom, kCellLine);
}

void ctlGroupedList::PaintRow(Canvas& canvas, const Rect& area, int group, int row) const {
  const bool selected = group == selectedGroup && row == selectedRow;
  canvas.FillRect(area, RowFill(selected, row));
  PaintCells(canvas, area, groups[static_cast<std::size_t>(group)].rows[static_cast<std::size_t>(row)]);
  VerticalLine(canvas, area.right - 1, area.top, area.bottom, kCellLine);
  if (row > 0) HorizontalLine(canvas, area.left, area.right, area.top, kCellLine);
}

void ctlGroupedList::PaintCells(Canvas& canvas, const Rect& area, const std::vector<Text>& cells) const {
  TextEngine& engine = GetShell().Engine();
  engine.SelectFontFamily(rowFont_);
  engine.SetTextColour(kBlack);
  for (std::size_t c = 0; c < columns.size(); ++c) {
    if (!columns[c].visible) continue;
    const int left = WidthBefore(static_cast<int>(c));
    const Rect cell{left, area.top, WidthBefore(static_cast<int>(c) + 1), area.bottom};
    VerticalLine(canvas, cell.left, cell.top, cell.bottom, kCellLine);
    if (c >= cells.size() || cells[c].empty()) continue;
    canvas.PushClip(cell);
    if (columns[c].plain) {
      engine.DrawText(canvas, cells[c], left + margin, cell.top + kRowTextY);
    } else {
      engine.DrawTextEllipsis(canvas, cells[c], left + margin, cell.top + kRowTextY,
                              {left + margin, cell.top, cell.right, cell.bottom});
    }
    canvas.PopClip();
  }
}

void ctlGroupedList::PaintResizing(Canvas& canvas, int top, int bottom) const {
  const Point pen = ContentPoint(penCurrent);
  VerticalLine(canvas, pen.x - (resizingColumn_ == kLastOfFour ? 1 : 0), top, bottom, kGuide);
  GetShell().DrawSharedIcon(canvas, pen.x, pen.y, kResizeIcon);
}

}  // namespace orvane
