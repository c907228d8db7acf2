// The one list control: groups of text rows in columns, each group under a title row that folds it, or under
// none. The owner fills `groups` and `columns` and calls Relayout; the list draws them, folds groups, selects
// rows, resizes columns, and tells its parent window which row was tapped.
//
// A tap on a title folds or unfolds the group. A tap within `margin` of a column's right edge makes the
// column as wide as its widest text; with the action key held, dragging there sets the width. Ctrl+Up and
// Ctrl+Down move a cursor over titles and rows, and Enter does what a tap on it would. The page keys scroll.
#pragma once

#include <vector>

#include "framework/zel_panel.h"

namespace orvane {

// "A row was tapped", to the list's parent window: wParam is the group, lParam the row. Buttons say "pen
// down" with the same number, so an owner that has both must not listen to the number alone.
inline constexpr std::uint32_t kListRowTapped = 0x8190;

struct ListGroup {
  Text title;                           // may hold style codes
  bool expanded = true;                 // counts for a group with a title
  bool hasTitle = false;                // without a title row the rows always show
  std::vector<std::vector<Text>> rows;  // one text a column; what is missing is empty

  bool ShowsRows() const { return !hasTitle || expanded; }
};

struct ListColumn {
  bool visible = true;
  bool plain = false;     // texts are cut at the cell's edge; otherwise they end in "..." there
  bool autoSize = false;  // as wide as the widest text
  int width = 0;          // logical pixels
};

// A row by its group and its place in it; −1 for none.
struct ListRow {
  int group = -1;
  int row = -1;
  friend bool operator==(const ListRow&, const ListRow&) = default;
};

// Of kListRowTapped.
constexpr ListRow TappedRow(WParam w, LParam l) { return {static_cast<int>(w), static_cast<int>(l)}; }

class ctlGroupedList : public ZelPanel {
 public:
  ctlGroupedList(Shell& shell, WindowHandle parent);

  // The owner writes these, then calls Relayout. Titles and texts are cut to fields of 255 characters there.
  std::vector<ListGroup> groups;
  std::vector<ListColumn> columns;
  int titleHeight = 0;
  int rowHeight = 0;
  int margin = 3;               // of texts, and the reach of a column's edge
  int minimumColumnWidth = 15;  // when a column is dragged
  // None until a row is tapped. After another value was written: RedrawRow for both rows, or Relayout.
  int selectedGroup = -1;
  int selectedRow = -1;

  // The families for titles and rows, which outlive the list, and the heights that go with them.
  void UseFonts(const FontFamily& titles, const FontFamily& rows);

  // Sizes the automatic columns, lays everything out and paints it. The scroll position stays.
  void Relayout();
  // Folds every group that can be folded; when all of them are folded already, unfolds them all.
  void ToggleAll();
  // The selection goes with the groups.
  void ClearGroups();
  void ClearColumns();
  void ClearSelection();
  // Paints one row anew; nothing for a row that does not exist or does not show.
  void RedrawRow(int group, int row);
  // Scrolls as little as brings the row into view.
  void BringIntoView(int group, int row);

  // What stands at a content point.
  enum class Part { kNothing, kTitle, kColumnEdge, kRow };
  struct Hit {
    Part part = Part::kNothing;
    int group = -1;   // of a title or a row
    int row = -1;     // of a row
    int column = -1;  // of a column's edge
    friend bool operator==(const Hit&, const Hit&) = default;
  };
  // Titles come first, then column edges at any height, then rows.
  Hit HitTest(Point content) const;
  // The content rectangle of a title (row −1) or of a row; empty for what does not show.
  Rect RectOf(int group, int row) const;

  bool HasRow(int group, int row) const;
  // The column whose edge is being dragged, or −1.
  int ResizingColumn() const { return resizingColumn_; }
  // The title (row −1) or row on which the keyboard's cursor stands.
  ListRow Cursor() const { return cursor_; }

  // ZelWindow
  Result WndProc(WindowHandle window, std::uint32_t message, WParam w, LParam l) override;
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override;
  std::string ClassName() const override { return "ctlGroupedList"; }
  WindowReport Describe() const override;

 protected:
  // ZelPanel
  void Paint(Canvas& canvas, int left, int top, int right, int bottom) override;

 private:
  // Where a group stands in the content: [top, rowsTop) is its title, [rowsTop, bottom) its rows.
  struct Place {
    int top = 0;
    int rowsTop = 0;
    int bottom = 0;
  };
  Place PlaceAfter(int top, const ListGroup& group) const;

  // Layout
  void CutTexts();
  void DropStaleMarks();
  void SizeColumns();
  void MeasureContent();
  int WidthBefore(int column) const;

  // Pen
  void OnTap();
  void TapOn(const Hit& hit);
  void SelectTapped(int group, int row);
  bool BeginResizing();
  void DragColumn();
  void EndResizing();

  // Keyboard
  bool OnCursorKey(int key);
  void MoveCursor(int step);
  void SetCursor(const ListRow& cursor);
  std::vector<ListRow> Stops() const;

  // Painting
  void PaintTitle(Canvas& canvas, const Rect& title, const ListGroup& group) const;
  void PaintFoldBox(Canvas& canvas, int middle, bool expanded) const;
  void PaintRows(Canvas& canvas, const Place& place, int group, const Rect& part) const;
  void PaintRow(Canvas& canvas, const Rect& area, int group, int row) const;
  void PaintCells(Canvas& canvas, const Rect& area, const std::vector<Text>& cells) const;
  void PaintResizing(Canvas& canvas, int top, int bottom) const;

  const FontFamily* titleFont_ = nullptr;
  const FontFamily* rowFont_ = nullptr;
  int resizingColumn_ = -1;
  ListRow cursor_;
};

}  // namespace orvane
