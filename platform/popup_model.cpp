#include "platform/popup_model.h"

#include <algorithm>

namespace orvane {

PopupModel::PopupModel(Menu menu, Point anchor, Size screen, LabelWidth labelWidth)
    : root_(std::move(menu)), anchor_(anchor), screen_(screen), labelWidth_(std::move(labelWidth)) {
  LayOut();
}

const std::vector<MenuItem>& PopupModel::Items() const {
  const std::vector<MenuItem>* items = &root_.Items();
  for (const std::size_t step : path_) items = &(*items)[step].submenu;
  return *items;
}

const Text& PopupModel::SubmenuLabel() const {
  const std::vector<MenuItem>* items = &root_.Items();
  for (std::size_t i = 0; i + 1 < path_.size(); ++i) items = &(*items)[path_[i]].submenu;
  return (*items)[path_.back()].label;
}

int PopupModel::RowHeight(int row) const {
  if (row == kBackRow) return kMenuRowHeight;
  return Items()[static_cast<std::size_t>(row)].separator ? kMenuSeparatorHeight : kMenuRowHeight;
}

int PopupModel::RowsHeight() const {
  int height = InSubmenu() ? kMenuRowHeight : 0;
  for (const MenuItem& item : Items()) height += item.separator ? kMenuSeparatorHeight : kMenuRowHeight;
  return height;
}

void PopupModel::LayOut() {
  scroll_ = 0;
  selected_ = kNoRow;
  int label = InSubmenu() ? labelWidth_(SubmenuLabel()) : 0;
  for (const MenuItem& item : Items()) label = std::max(label, item.separator ? 0 : labelWidth_(item.label));
  const int width =
      std::min(std::max(kMenuMarkColumn + label + kMenuRightRoom, kMenuLeastWidth), screen_.width);
  const int height = std::min(RowsHeight() + 2 * kMenuFrame, screen_.height);
  const int left = std::clamp(anchor_.x, 0, screen_.width - width);
  const int bottom = std::clamp(anchor_.y, height, screen_.height);
  bounds_ = {left, bottom - height, left + width, bottom};
}

Rect PopupModel::RowsArea() const {
  Rect area{bounds_.left + 1, bounds_.top + kMenuFrame, bounds_.right - 1, bounds_.bottom - kMenuFrame};
  if (RowsHeight() > area.Height()) {
    area.top += kMenuScrollZone;
    area.bottom -= kMenuScrollZone;
  }
  return area;
}

Rect PopupModel::RowRect(int row) const {
  const Rect area = RowsArea();
  int top = area.top - scroll_;
  if (InSubmenu() && row != kBackRow) top += kMenuRowHeight;
  for (int i = 0; i < row; ++i) top += RowHeight(i);
  return {area.left, top, area.right, top + RowHeight(row)};
}

int PopupModel::RowAt(Point point) const {
  if (!RowsArea().Contains(point)) return kNoRow;
  if (InSubmenu() && RowRect(kBackRow).Contains(point)) return kBackRow;
  const int count = static_cast<int>(Items().size());
  int top = RowsArea().top - scroll_ + (InSubmenu() ? kMenuRowHeight : 0);
  for (int row = 0; row < count; ++row) {
    const int bottom = top + RowHeight(row);
    if (point.y >= top && point.y < bottom) return row;
    top = bottom;
  }
  return kNoRow;
}

bool PopupModel::CanScroll(int direction) const {
  return direction < 0 ? scroll_ > 0 : scroll_ < RowsHeight() - RowsArea().Height();
}

void PopupModel::ScrollBy(int pixels) {
  const int limit = std::max(0, RowsHeight() - RowsArea().Height());
  const std::int64_t wanted = std::int64_t{scroll_} + pixels;
  scroll_ = static_cast<int>(std::clamp<std::int64_t>(wanted, 0, limit));
}

int PopupModel::ScrollZoneAt(Point point) const {
  if (!Scrolls() || !bounds_.Contains(point)) return 0;
  if (point.y < RowsArea().top) return -1;
  return point.y >= RowsArea().bottom ? 1 : 0;
}

bool PopupModel::Selectable(int row) const {
  if (row == kBackRow) return InSubmenu();
  if (row < 0 || row >= static_cast<int>(Items().size())) return false;
  const MenuItem& item = Items()[static_cast<std::size_t>(row)];
  return item.enabled && !item.separator;
}

void PopupModel::Select(int row) {
  selected_ = Selectable(row) ? row : kNoRow;
  if (selected_ == kNoRow) return;
  const Rect rect = RowRect(selected_);
  const Rect area = RowsArea();
  if (rect.top < area.top) ScrollBy(rect.top - area.top);
  if (rect.bottom > area.bottom) ScrollBy(rect.bottom - area.bottom);
}

void PopupModel::SelectNext(int step) {
  // Rows in the order of the screen: the way back, where there is one, then the entries.
  const int first = InSubmenu() ? -1 : 0;
  const int count = static_cast<int>(Items().size()) - first;
  const auto rowAt = [](int place) { return place < 0 ? kBackRow : place; };
  int place = selected_ == kBackRow ? -1 : selected_;
  if (selected_ == kNoRow) place = step > 0 ? first - 1 : first + count;
  for (int tries = 0; tries < count; ++tries) {
    place += step;
    if (place < first) place = first + count - 1;
    if (place >= first + count) place = first;
    if (Selectable(rowAt(place))) return Select(rowAt(place));
  }
}

void PopupModel::SelectEnd(bool last) {
  // From the way back on, the next row is the first entry.
  selected_ = InSubmenu() && !last ? kBackRow : kNoRow;
  SelectNext(last ? -1 : 1);
}

void PopupModel::SelectPage(int direction) {
  const int rows = std::max(1, RowsArea().Height() / kMenuRowHeight - 1);
  for (int i = 0; i < rows; ++i) {
    const int before = selected_;
    SelectNext(direction);
    const bool wrapped = before != kNoRow && (direction > 0 ? selected_ < before : selected_ > before);
    if (wrapped) return Select(before);
  }
}

bool PopupModel::JumpTo(Char letter) {
  const int count = static_cast<int>(Items().size());
  const int start = selected_ < 0 ? -1 : selected_;
  for (int i = 1; i <= count; ++i) {
    const int row = (start + i) % count;
    const Text& label = Items()[static_cast<std::size_t>(row)].label;
    if (!Selectable(row) || label.empty() || AsciiLower(label[0]) != AsciiLower(letter)) continue;
    Select(row);
    return true;
  }
  return false;
}

bool PopupModel::Enter(int row) {
  if (!Selectable(row)) return false;
  if (row == kBackRow) return Back();
  const auto index = static_cast<std::size_t>(row);
  if (Items()[index].submenu.empty()) return false;
  path_.push_back(index);
  LayOut();
  return true;
}

bool PopupModel::Back() {
  if (path_.empty()) return false;
  const auto row = static_cast<int>(path_.back());
  path_.pop_back();
  LayOut();
  Select(row);
  return true;
}

int PopupModel::FindLabel(TextView label) const {
  const int count = static_cast<int>(Items().size());
  for (int row = 0; row < count; ++row) {
    if (Selectable(row) && Items()[static_cast<std::size_t>(row)].label == label) return row;
  }
  return kNoRow;
}

}  // namespace orvane
