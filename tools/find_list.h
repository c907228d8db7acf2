// The elements that a search has found, a row each: number, symbol, name. A tap on a row opens its element.
// By key a cursor walks the rows and opens the one that it stands on; it goes away when the pen comes down.
#pragma once

#include <functional>
#include <vector>

#include "chemistry/element_search.h"
#include "framework/font_family.h"
#include "framework/zel_panel.h"
#include "tools/navigator.h"

namespace orvane {

class FindList : public ZelPanel {
 public:
  static constexpr int kRowHeight = 20;
  static constexpr int kNoRow = -1;

  // The texts behind `names` and the navigator outlive it.
  FindList(Shell& shell, WindowHandle parent, const NamesOfElements& names, Navigator& navigator);

  // Called when the list gets the focus, and at every touch of it.
  std::function<void()> focused;

  // Shows these elements from the first row on; no row has the cursor.
  void SetMatches(std::vector<int> elements);
  const std::vector<int>& Matches() const { return matches_; }

  // One row down or up, into view; the first step goes to the first or last row.
  void MoveCursor(int rows);
  int Cursor() const { return cursor_; }
  // Scrolls as little as brings the cursor's row into view; nothing without a cursor.
  void BringCursorIntoView();
  // Opens the element in the row; nothing for a row that does not exist.
  void Open(int row);

  int NumberWidth() const { return numberWidth_; }
  int SymbolWidth() const { return symbolWidth_; }
  int NameWidth() const { return nameWidth_; }

  // ZelWindow
  Result WndProc(WindowHandle window, std::uint32_t message, WParam w, LParam l) override;
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override;
  WindowReport Describe() const override;

 protected:
  // ZelPanel
  void Paint(Canvas& canvas, int left, int top, int right, int bottom) override;

 private:
  void MeasureColumns();
  bool OnListKey(int key);
  void OnListPenDown();
  int RowCount() const { return static_cast<int>(matches_.size()); }
  Colour FillOf(int row) const;
  void DrawRow(Canvas& canvas, int row, int left, int right);

  const NamesOfElements names_;
  Navigator& navigator_;
  std::vector<int> matches_;
  int cursor_ = kNoRow;
  FontFamily font_;
  int numberWidth_ = 0;
  int symbolWidth_ = 0;
  int nameWidth_ = 0;
};

}  // namespace orvane
