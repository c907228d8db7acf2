#include "platform/menu.h"

#include <cstddef>

namespace orvane {
namespace {

template <typename Change>
void ForEachWithId(std::vector<MenuItem>& items, int id, const Change& change) {
  for (MenuItem& item : items) {
    if (item.id == id && !item.separator && item.submenu.empty()) change(item);
    ForEachWithId(item.submenu, id, change);
  }
}

void MarkRange(std::vector<MenuItem>& items, int first, int last, int chosen) {
  for (MenuItem& item : items) {
    if (!item.separator && item.submenu.empty() && item.id >= first && item.id <= last) {
      item.checked = item.id == chosen;
      item.radio = true;
    }
    MarkRange(item.submenu, first, last, chosen);
  }
}

}  // namespace

void Menu::Check(int id, bool checked) {
  ForEachWithId(items_, id, [checked](MenuItem& item) { item.checked = checked; });
}

void Menu::CheckAt(int position, bool checked) {
  if (position < 0 || position >= Count()) return;
  items_[static_cast<std::size_t>(position)].checked = checked;
}

void Menu::Enable(int id, bool enabled) {
  ForEachWithId(items_, id, [enabled](MenuItem& item) { item.enabled = enabled; });
}

void Menu::CheckRadio(int first, int last, int chosen) { MarkRange(items_, first, last, chosen); }

}  // namespace orvane
