// The tree of the help contents, without its drawing: which entries show, which one is selected, and how the
// keys move between them. An entry is known by its index in the file.
#pragma once

#include <vector>

#include "data/help_file.h"

namespace orvane {

class ContentsTree {
 public:
  // Of each entry whether it is a heading, and its level; a negative level counts as 0.
  explicit ContentsTree(const std::vector<ContentsEntry>& entries);

  int Count() const { return static_cast<int>(nodes_.size()); }
  bool IsHeading(int entry) const { return Node(entry).heading; }
  bool IsOpen(int entry) const { return Node(entry).open; }
  int Level(int entry) const { return Node(entry).level; }

  // The entries that show, top to bottom. Behind a heading that is not open every entry of a greater level is
  // hidden, up to the first one of no greater level.
  const std::vector<int>& Rows() const { return rows_; }
  // The row of an entry, −1 while it is hidden.
  int RowOf(int entry) const;
  // The nearest earlier entry with a smaller level, −1 when there is none.
  int Parent(int entry) const;

  // −1 only while there are no entries.
  int Selected() const { return selected_; }
  // Selects an entry and opens every heading above it; nothing for an entry that does not exist.
  void Select(int entry);
  void CloseAll();
  // Opens or closes a heading. When that hides the selected entry the heading is selected.
  void Toggle(int heading);

  // The keys. Each says whether anything changed.
  bool Up() { return MoveBy(-1); }
  bool Down() { return MoveBy(1); }
  bool Left();   // closes an open heading, else goes to the parent
  bool Right();  // the next entry of the file
  // Moves over that many of the rows that show, as far as there are any.
  bool MoveBy(int rows);

 private:
  struct NodeState {
    int level = 0;
    bool heading = false;
    bool open = false;
  };

  const NodeState& Node(int entry) const { return nodes_[static_cast<std::size_t>(entry)]; }
  NodeState& Node(int entry) { return nodes_[static_cast<std::size_t>(entry)]; }
  void FindRows();

  std::vector<NodeState> nodes_;
  std::vector<int> rows_;
  int selected_ = -1;
};

}  // namespace orvane
