// The element view's summary: a header with symbol, number, name and mass, a line with family and block, and
// the properties of the summary list. It draws and selects rows; what happens to them is the tool's business.
#pragma once

#include <vector>

#include "framework/zel_panel.h"
#include "tools/element_settings.h"

namespace orvane {

class ElementSummaryPanel : public ZelPanel {
 public:
  struct Row {
    int top = 0;
    int bottom = 0;
    PropertyAddress address;
  };

  // `elements` and `settings` are the tool's: they are read at each layout and painting.
  ElementSummaryPanel(Shell& shell, WindowHandle parent, const ElementsDatabase& elements,
                      const ElementSettings& settings);

  // Places header and rows for the element and paints them. A selection beyond the rows goes away,
  // and a view beyond them comes back.
  void LayOut(int element);

  const std::vector<Row>& Rows() const { return rows_; }
  // Whether rows have been placed at all.
  bool LaidOut() const { return laidOut_; }
  // The selected row, or −1.
  int SelectedRow() const { return selected_; }
  // A row that does not exist selects none.
  void Select(int row);
  // Scrolls as little as brings the row into view; nothing for a row that does not exist.
  void BringIntoView(int row);
  // The row on which the keyboard's cursor stands, or −1. Ctrl+Up and Ctrl+Down move it, Enter selects.
  int CursorRow() const { return cursor_; }

  // The families of rows and of the symbol, which the tool's list shares.
  const FontFamily& RowFont() const { return rowFont_; }

  // ZelWindow
  Result WndProc(WindowHandle window, std::uint32_t message, WParam w, LParam l) override;
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override;

 protected:
  // ZelPanel
  void Paint(Canvas& canvas, int left, int top, int right, int bottom) override;

 private:
  static constexpr std::size_t kFirstRowCapacity = 64;

  void LayOutHeader();
  void LayOutRows();
  void AddRow(const Row& row);
  int RowAt(Point content) const;
  bool OnCursorKey(int key);
  void MoveCursor(int step);
  void SetCursor(int row);
  void RedrawRow(int row);
  Text RowText(const Row& row) const;
  void DrawHeader(Canvas& canvas) const;
  void DrawFamilyLine(Canvas& canvas) const;
  void DrawRow(Canvas& canvas, int row) const;
  void DrawRight(Canvas& canvas, TextView text, int y) const;
  void DrawRule(Canvas& canvas, int y) const;

  const ElementsDatabase& elements_;
  const ElementSettings& settings_;

  int element_ = -1;
  bool laidOut_ = false;
  std::vector<Row> rows_;
  std::size_t rowCapacity_ = kFirstRowCapacity;  // doubled with a message when it is full
  int selected_ = -1;
  int cursor_ = -1;

  // Tops of what is shown, −1 for what is not.
  int nameTop_ = -1;
  int mainRule_ = -1;
  int familyTop_ = -1;
  int familyRule_ = -1;
  int rowsTop_ = 0;

  // "Tahoma" by role and size in points.
  FontFamily symbolFont_;  // 21
  FontFamily numberFont_;  // 21
  FontFamily rowFont_;     // 9; also name, mass, family and block
};

}  // namespace orvane
