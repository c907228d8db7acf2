#include "framework/tool_stack.h"

#include <algorithm>

namespace orvane {

void ToolStack::Push(ZelWindow* tool) {
  Remove(tool);
  tools_.push_back(tool);
}

void ToolStack::Remove(ZelWindow* tool) { std::erase(tools_, tool); }

void ToolStack::MoveToTop(ZelWindow* tool) {
  const auto at = std::find(tools_.begin(), tools_.end(), tool);
  if (at != tools_.end()) std::rotate(at, at + 1, tools_.end());
}

}  // namespace orvane
