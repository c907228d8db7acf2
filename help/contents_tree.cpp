#include "help/contents_tree.h"

#include <algorithm>

namespace orvane {

ContentsTree::ContentsTree(const std::vector<ContentsEntry>& entries) {
  nodes_.reserve(entries.size());
  for (const ContentsEntry& entry : entries) {
    nodes_.push_back({std::max<int>(entry.level, 0), !entry.isPage, false});
  }
  selected_ = nodes_.empty() ? -1 : 0;
  FindRows();
}

void ContentsTree::FindRows() {
  rows_.clear();
  for (int entry = 0; entry < Count();) {
    rows_.push_back(entry);
    const NodeState& node = Node(entry);
    ++entry;
    if (!node.heading || node.open) continue;
    while (entry < Count() && Level(entry) > node.level) ++entry;
  }
}

int ContentsTree::RowOf(int entry) const {
  // Rows are in the order of the file.
  const auto found = std::lower_bound(rows_.begin(), rows_.end(), entry);
  return found != rows_.end() && *found == entry ? static_cast<int>(found - rows_.begin()) : -1;
}

int ContentsTree::Parent(int entry) const {
  for (int earlier = entry - 1; earlier >= 0; --earlier) {
    if (Level(earlier) < Level(entry)) return earlier;
  }
  return -1;
}

void ContentsTree::Select(int entry) {
  if (entry < 0 || entry >= Count()) return;
  selected_ = entry;
  for (int above = Parent(entry); above >= 0; above = Parent(above)) {
    if (IsHeading(above)) Node(above).open = true;
  }
  FindRows();
}

void ContentsTree::CloseAll() {
  for (NodeState& node : nodes_) node.open = false;
  FindRows();
}

void ContentsTree::Toggle(int heading) {
  if (heading < 0 || heading >= Count() || !IsHeading(heading)) return;
  Node(heading).open = !Node(heading).open;
  FindRows();
  if (RowOf(selected_) < 0) selected_ = heading;
}

bool ContentsTree::MoveBy(int rows) {
  const int row = RowOf(selected_);
  if (row < 0) return false;
  const int target = std::clamp(row + rows, 0, static_cast<int>(rows_.size()) - 1);
  if (target == row) return false;
  selected_ = rows_[static_cast<std::size_t>(target)];
  return true;
}

bool ContentsTree::Left() {
  if (selected_ < 0) return false;
  if (IsHeading(selected_) && IsOpen(selected_)) {
    Toggle(selected_);
    return true;
  }
  const int parent = Parent(selected_);
  if (parent < 0) return false;
  Select(parent);
  return true;
}

bool ContentsTree::Right() {
  if (selected_ < 0 || selected_ + 1 >= Count()) return false;
  Select(selected_ + 1);
  return true;
}

}  // namespace orvane
