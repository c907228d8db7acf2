// A menu: a list of entries with their marks. A value; the pop-up shows a copy of it.
#pragma once

#include <vector>

#include "base/text.h"

namespace orvane {

struct MenuItem {
  int id = 0;
  Text label;
  bool separator = false;
  bool enabled = true;
  bool checked = false;
  bool radio = false;  // one of a group: a dot marks it, not a tick, when it is checked
  std::vector<MenuItem> submenu;
};

class Menu {
 public:
  Menu() = default;
  explicit Menu(std::vector<MenuItem> items) : items_(std::move(items)) {}

  const std::vector<MenuItem>& Items() const { return items_; }
  std::vector<MenuItem>& Items() { return items_; }
  int Count() const { return static_cast<int>(items_.size()); }

  void Append(MenuItem item) { items_.push_back(std::move(item)); }

  // Marks of every entry with this id (or of the entry at this position); an absent one is ignored.
  void Check(int id, bool checked);
  void CheckAt(int position, bool checked);
  void Enable(int id, bool enabled);
  // Makes the entries first..last (ids) a radio group, clears their marks and marks `chosen`; a `chosen`
  // outside the range marks nothing.
  void CheckRadio(int first, int last, int chosen);

 private:
  std::vector<MenuItem> items_;
};

}  // namespace orvane
