// The open full-screen tools, bottom to top; the last one is the front tool.
#pragma once

#include <vector>

namespace orvane {

class ZelWindow;

class ToolStack {
 public:
  // On top; a tool stands in the stack once.
  void Push(ZelWindow* tool);
  // Later entries move down; an absent tool changes nothing.
  void Remove(ZelWindow* tool);
  // The tool becomes the last entry; an absent tool changes nothing.
  void MoveToTop(ZelWindow* tool);

  ZelWindow* Top() const { return tools_.empty() ? nullptr : tools_.back(); }
  const std::vector<ZelWindow*>& Tools() const { return tools_; }

 private:
  std::vector<ZelWindow*> tools_;
};

}  // namespace orvane
