// The keyboard's cursor in the grouped list. It stands apart from the selection, which only a tap or Enter
// changes, and goes away when the pen comes down.
#include <algorithm>

#include "framework/ctl_grouped_list.h"
#include "framework/page_keys.h"

namespace orvane {

bool ctlGroupedList::OnCursorKey(int key) {
  const Modifiers held = GetDevice().CurrentModifiers();
  if ((key == VK_UP || key == VK_DOWN) && held.control) {
    MoveCursor(key == VK_UP ? -1 : +1);
    return true;
  }
  if (ScrollByPageKey(*this, GetDevice(), key, rowHeight)) return true;
  if (key != VK_RETURN || cursor_.group < 0) return false;
  const bool title = cursor_.row < 0;
  TapOn({title ? Part::kTitle : Part::kRow, cursor_.group, cursor_.row, -1});
  return true;
}

// Every title and row that shows, from top to bottom.
std::vector<ListRow> ctlGroupedList::Stops() const {
  std::vector<ListRow> stops;
  for (int g = 0; g < static_cast<int>(groups.size()); ++g) {
    const ListGroup& group = groups[static_cast<std::size_t>(g)];
    if (group.hasTitle) stops.push_back({g, -1});
    const int rows = group.ShowsRows() ? static_cast<int>(group.rows.size()) : 0;
    for (int r = 0; r < rows; ++r) stops.push_back({g, r});
  }
  return stops;
}

// The first step goes beside the selected row; without one, to the first stop that shows whole, or upwards to
// the last one.
void ctlGroupedList::MoveCursor(int step) {
  const std::vector<ListRow> stops = Stops();
  if (stops.empty()) return;
  const ListRow from = cursor_.group >= 0 ? cursor_ : ListRow{selectedGroup, selectedRow};
  const auto at = std::find(stops.begin(), stops.end(), from);
  if (at != stops.end()) {
    const auto moved = (at - stops.begin()) + step;
    SetCursor(stops[static_cast<std::size_t>(
        std::clamp<std::ptrdiff_t>(moved, 0, static_cast<std::ptrdiff_t>(stops.size()) - 1))]);
  } else {
    const Rect visible = VisibleContent();
    const auto shows = [&](const ListRow& stop) {
      const Rect rect = RectOf(stop.group, stop.row);
      return rect.top >= visible.top && rect.bottom <= visible.bottom;
    };
    const auto first = std::find_if(stops.begin(), stops.end(), shows);
    const auto last = std::find_if(stops.rbegin(), stops.rend(), shows);
    if (first == stops.end()) {
      SetCursor(step > 0 ? stops.front() : stops.back());
    } else {
      SetCursor(step > 0 ? *first : *last);
    }
  }
  BringIntoView(cursor_.group, cursor_.row);
}

void ctlGroupedList::SetCursor(const ListRow& cursor) {
  const auto redraw = [this](const ListRow& stop) {
    const Rect rect = RectOf(stop.group, stop.row);
    if (!rect.Empty()) RedrawRect(rect.left, rect.top, rect.right, rect.bottom);
  };
  const ListRow before = cursor_;
  if (before == cursor) return;
  cursor_ = cursor;
  redraw(before);
  redraw(cursor_);
}

}  // namespace orvane
