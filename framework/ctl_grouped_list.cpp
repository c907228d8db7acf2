// Layout, hit testing and input of the grouped list; its painting is in ctl_grouped_list_paint.cpp.
#include "framework/ctl_grouped_list.h"

#include <algorithm>
#include <cstdlib>

#include "base/text_field.h"

namespace orvane {

namespace {

// Room to scroll beyond the content, so that the last row and the last column's edge can be got at.
constexpr int kExtraWidth = 40;
constexpr int kExtraHeight = 20;
constexpr Colour kListBackground = Rgb(232, 232, 232);

// Widths come from settings, counts from files: these bounds keep every sum an int.
constexpr int kWidestColumn = 100'000;
constexpr long long kFarthest = 1'000'000'000;

int Bounded(long long position) { return static_cast<int>(std::min(position, kFarthest)); }

int WidthOf(const ListColumn& column) {
  return column.visible ? std::clamp(column.width, 0, kWidestColumn) : 0;
}

int CountOf(const std::vector<std::vector<Text>>& rows) {
  return static_cast<int>(std::min<std::size_t>(rows.size(), static_cast<std::size_t>(kFarthest)));
}

void Cut(Text& text) { text.resize(CutToField(text).size()); }

}  // namespace

ctlGroupedList::ctlGroupedList(Shell& shell, WindowHandle parent) : ZelPanel(shell, parent, false) {
  marginX = kExtraWidth;
  marginY = kExtraHeight;
  background = kListBackground;
  privateBuffer = true;
}

void ctlGroupedList::UseFonts(const FontFamily& titles, const FontFamily& rows) {
  titleFont_ = &titles;
  rowFont_ = &rows;
  // A title has a line above and two pixels of lines below its text.
  titleHeight = titles.lineHeight + 3;
  rowHeight = rows.lineHeight;
}

ctlGroupedList::Place ctlGroupedList::PlaceAfter(int top, const ListGroup& group) const {
  Place place;
  place.top = top;
  place.rowsTop = Bounded(static_cast<long long>(top) + (group.hasTitle ? titleHeight : 0));
  const long long rows = group.ShowsRows() ? CountOf(group.rows) : 0;
  place.bottom = Bounded(place.rowsTop + rows * rowHeight);
  return place;
}

void ctlGroupedList::Relayout() {
  CutTexts();
  DropStaleMarks();
  SizeColumns();
  MeasureContent();
  ResetBuffer();
  Redraw();
}

void ctlGroupedList::CutTexts() {
  for (ListGroup& group : groups) {
    Cut(group.title);
    for (std::vector<Text>& row : group.rows) {
      for (Text& text : row) Cut(text);
    }
  }
}

// The owner may have taken groups away. A cursor in a group that was folded moves to its title.
void ctlGroupedList::DropStaleMarks() {
  if (!HasRow(selectedGroup, selectedRow)) ClearSelection();
  if (cursor_.group < 0) return;
  if (cursor_.group >= static_cast<int>(groups.size())) {
    cursor_ = {};
    return;
  }
  const ListGroup& group = groups[static_cast<std::size_t>(cursor_.group)];
  if (!group.ShowsRows()) cursor_.row = -1;
  const bool exists = cursor_.row < 0 ? group.hasTitle : HasRow(cursor_.group, cursor_.row);
  if (!exists) cursor_ = {};
}

void ctlGroupedList::SizeColumns() {
  TextEngine& engine = GetShell().Engine();
  engine.SelectFontFamily(rowFont_);
  for (std::size_t c = 0; c < columns.size(); ++c) {
    ListColumn& column = columns[c];
    if (!column.visible || !column.autoSize) continue;
    column.width = 0;
    for (const ListGroup& group : groups) {
      for (const std::vector<Text>& row : group.rows) {
        const int text = c < row.size() ? engine.MeasureText(row[c]).width : 0;
        column.width = std::max(column.width, text + 2 * margin);
      }
    }
  }
}

void ctlGroupedList::MeasureContent() {
  int bottom = 0;
  for (const ListGroup& group : groups) bottom = PlaceAfter(bottom, group).bottom;
  // The line below the last row stands beneath it; a folded title has its own inside.
  const bool lineBelow = !groups.empty() && groups.back().ShowsRows();
  contentHeight = bottom + (lineBelow ? 1 : 0);
  contentWidth = WidthBefore(static_cast<int>(columns.size()));
  bufferWidth = contentWidth;
  bufferHeight = contentHeight;
}

int ctlGroupedList::WidthBefore(int column) const {
  long long width = 0;
  for (int c = 0; c < column; ++c) width += WidthOf(columns[static_cast<std::size_t>(c)]);
  return Bounded(width);
}

void ctlGroupedList::ToggleAll() {
  const auto open = [](const ListGroup& group) { return group.hasTitle && group.expanded; };
  const bool expand = std::none_of(groups.begin(), groups.end(), open);
  for (ListGroup& group : groups) {
    if (group.hasTitle) group.expanded = expand;
  }
  scrollX = scrollY = 0;
  Relayout();
}

void ctlGroupedList::ClearGroups() {
  groups.clear();
  ClearSelection();
  cursor_ = {};
}

void ctlGroupedList::ClearColumns() { columns.clear(); }

void ctlGroupedList::ClearSelection() { selectedGroup = selectedRow = -1; }

bool ctlGroupedList::HasRow(int group, int row) const {
  return group >= 0 && group < static_cast<int>(groups.size()) && row >= 0 &&
         row < CountOf(groups[static_cast<std::size_t>(group)].rows);
}

Rect ctlGroupedList::RectOf(int group, int row) const {
  if (group < 0 || group >= static_cast<int>(groups.size())) return {};
  Place place;
  for (int g = 0; g <= group; ++g) place = PlaceAfter(place.bottom, groups[static_cast<std::size_t>(g)]);
  if (row < 0) return {0, place.top, contentWidth, place.rowsTop};
  const ListGroup& of = groups[static_cast<std::size_t>(group)];
  if (!of.ShowsRows() || row >= CountOf(of.rows)) return {};
  return Rect::At(0, Bounded(place.rowsTop + static_cast<long long>(row) * rowHeight), contentWidth,
                  rowHeight);
}

void ctlGroupedList::RedrawRow(int group, int row) {
  if (!HasRow(group, row)) return;
  const Rect rect = RectOf(group, row);
  if (!rect.Empty()) RedrawRect(rect.left, rect.top, rect.right, rect.bottom);
}

void ctlGroupedList::BringIntoView(int group, int row) {
  const Rect rect = RectOf(group, row);
  const Rect visible = VisibleContent();
  if (rect.top < visible.top) {
    ScrollBy(0, rect.top - visible.top);
  } else if (rect.bottom > visible.bottom) {
    ScrollBy(0, rect.bottom - visible.bottom);
  }
}

ctlGroupedList::Hit ctlGroupedList::HitTest(Point content) const {
  Place place;
  for (std::size_t g = 0; g < groups.size(); ++g) {
    place = PlaceAfter(place.bottom, groups[g]);
    // Both of a title's outermost lines are no part of it.
    const bool inside = place.top < content.y && content.y < place.rowsTop;
    if (groups[g].hasTitle && inside) return {Part::kTitle, static_cast<int>(g), -1, -1};
  }
  int edge = 0;
  for (std::size_t c = 0; c < columns.size(); ++c) {
    if (!columns[c].visible) continue;
    edge = WidthBefore(static_cast<int>(c) + 1);
    if (std::abs(content.x - edge) <= margin) return {Part::kColumnEdge, -1, -1, static_cast<int>(c)};
  }
  place = {};
  for (std::size_t g = 0; g < groups.size(); ++g) {
    place = PlaceAfter(place.bottom, groups[g]);
    if (place.rowsTop <= content.y && content.y < place.bottom) {
      return {Part::kRow, static_cast<int>(g), (content.y - place.rowsTop) / rowHeight, -1};
    }
  }
  return {};
}

Result ctlGroupedList::WndProc(WindowHandle window, std::uint32_t message, WParam w, LParam l) {
  if (message == WM_KEYDOWN && OnCursorKey(static_cast<int>(w))) return 0;
  return ZelPanel::WndProc(window, message, w, l);
}

Result ctlGroupedList::OnMessage(std::uint32_t message, WParam w, LParam l) {
  switch (message) {
    case PN_PENDOWN:
      GetDevice().SetFocus(Handle());
      SetCursor({});
      return 0;
    case PN_TAP:
      OnTap();
      return 0;
    case PN_DRAGQUERY:
      return BeginResizing() ? 1 : 0;
    case PN_DRAG:
      if (resizingColumn_ >= 0) DragColumn();
      return 0;
    case PN_DRAGEND:
      if (resizingColumn_ >= 0) EndResizing();
      return 0;
    case WM_KILLFOCUS:
      // The list may be hidden under the pen, which it then does not see lifted.
      if (resizingColumn_ >= 0) EndResizing();
      return ZelPanel::OnMessage(message, w, l);
    default:
      return ZelPanel::OnMessage(message, w, l);
  }
}

void ctlGroupedList::OnTap() { TapOn(HitTest(ContentPoint(penDown))); }

void ctlGroupedList::TapOn(const Hit& hit) {
  switch (hit.part) {
    case Part::kTitle: {
      ListGroup& group = groups[static_cast<std::size_t>(hit.group)];
      group.expanded = !group.expanded;
      return Relayout();
    }
    case Part::kColumnEdge:
      columns[static_cast<std::size_t>(hit.column)].autoSize = true;
      return Relayout();
    case Part::kRow:
      return SelectTapped(hit.group, hit.row);
    case Part::kNothing:
      return;
  }
}

// The owner hears of it before the row is marked, and may have filled the list anew by then.
void ctlGroupedList::SelectTapped(int group, int row) {
  GetDevice().Send(GetDevice().Parent(Handle()), kListRowTapped, static_cast<WParam>(group),
                   static_cast<LParam>(row));
  if (!HasRow(group, row)) return;
  const ListRow before{selectedGroup, selectedRow};
  selectedGroup = group;
  selectedRow = row;
  RedrawRow(before.group, before.row);
  RedrawRow(group, row);
}

bool ctlGroupedList::BeginResizing() {
  if (!GetDevice().IsKeyDown(VK_ACTION)) return false;
  const Hit hit = HitTest(ContentPoint(penDown));
  if (hit.part != Part::kColumnEdge) return false;
  resizingColumn_ = hit.column;
  privateBuffer = false;
  ResetBuffer();
  GetDevice().SetCapture(Handle());
  return true;
}

void ctlGroupedList::DragColumn() {
  if (resizingColumn_ >= static_cast<int>(columns.size())) return;
  ListColumn& column = columns[static_cast<std::size_t>(resizingColumn_)];
  column.autoSize = false;
  const int width = ContentPoint(penCurrent).x - WidthBefore(resizingColumn_);
  column.width = std::clamp(width, minimumColumnWidth, kWidestColumn);
  contentWidth = WidthBefore(static_cast<int>(columns.size()));
  Redraw();
}

void ctlGroupedList::EndResizing() {
  GetDevice().ReleaseCapture();
  resizingColumn_ = -1;
  privateBuffer = true;
  Relayout();
}

WindowReport ctlGroupedList::Describe() const {
  WindowReport report = ZelPanel::Describe();
  report.selected = {selectedGroup, selectedRow};
  return report;
}

}  // namespace orvane
