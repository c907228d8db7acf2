#include "app/tool_set.h"

#include "tools/wnd_periodic.h"

namespace orvane {

namespace {

MadeTool MakePeriodic(const ToolContext& context) {
  MadeTool tool;
  tool.window = MakeWindow<wnd_periodic>(context.shell, context.elements, context.navigator);
  return tool;
}

}  // namespace

ToolMakers StandardTools() {
  ToolMakers makers;
  makers[static_cast<std::size_t>(ToolSlot::kPeriodic)] = MakePeriodic;
  return makers;
}

}  // namespace orvane
