// An open menu without its drawing: which entries stand where, what is selected, how far it is scrolled. A
// sub-menu takes the place of its menu, under a row that leads back. Knows label widths, not fonts.
#pragma once

#include <functional>
#include <vector>

#include "base/geometry.h"
#include "platform/menu.h"

namespace orvane {

inline constexpr int kMenuRowHeight = 22;
inline constexpr int kMenuSeparatorHeight = 7;
inline constexpr int kMenuFrame = 3;        // the outline and the room inside it, above and below the rows
inline constexpr int kMenuMarkColumn = 22;  // ticks and dots stand left of the labels
inline constexpr int kMenuRightRoom = 14;   // after the label; the arrow of a sub-menu stands there
inline constexpr int kMenuLeastWidth = 88;
inline constexpr int kMenuScrollZone = 18;  // the arrow at either end of a menu that scrolls

// A row that can be pointed at: an entry, or the way back from a sub-menu.
inline constexpr int kNoRow = -1;
inline constexpr int kBackRow = -2;

class PopupModel {
 public:
  using LabelWidth = std::function<int(TextView)>;

  PopupModel() = default;
  // Stands with its bottom left corner at `anchor`, moved onto the screen.
  PopupModel(Menu menu, Point anchor, Size screen, LabelWidth labelWidth);

  const Menu& Root() const { return root_; }
  const std::vector<MenuItem>& Items() const;  // of the level that is shown
  bool InSubmenu() const { return !path_.empty(); }
  const Text& SubmenuLabel() const;  // of the entry that the shown sub-menu belongs to; only while InSubmenu

  Rect Bounds() const { return bounds_; }  // on the screen
  Rect RowsArea() const;                   // on the screen: what the rows may cover
  Rect RowRect(int row) const;             // on the screen, not clipped to RowsArea
  int RowAt(Point screenPoint) const;      // separators and disabled entries too; kNoRow outside
  bool Scrolls() const { return RowsHeight() > RowsArea().Height(); }
  bool CanScroll(int direction) const;  // −1 up, +1 down
  void ScrollBy(int pixels);
  int ScrollZoneAt(Point screenPoint) const;  // −1 or +1 on the arrow zones, else 0

  int Selected() const { return selected_; }
  bool Selectable(int row) const;  // an enabled entry, or the way back
  void Select(int row);            // anything else selects nothing; scrolls the row into view
  void SelectNext(int step);       // −1 or +1, round the ends
  void SelectEnd(bool last);       // the first or last entry
  void SelectPage(int direction);
  bool JumpTo(Char letter);  // the next entry whose label starts with it; false when there is none

  // Opens the sub-menu of the row (true), or goes back for kBackRow (true); false when the row is a command.
  bool Enter(int row);
  bool Back();  // false at the root
  // The row of the shown level with this label that may be chosen; kNoRow when there is none.
  int FindLabel(TextView label) const;

 private:
  int RowHeight(int row) const;
  int RowsHeight() const;
  void LayOut();

  Menu root_;
  std::vector<std::size_t> path_;  // entries whose sub-menus have been opened
  Point anchor_;
  Size screen_;
  LabelWidth labelWidth_;
  Rect bounds_;
  int scroll_ = 0;
  int selected_ = kNoRow;
};

}  // namespace orvane
