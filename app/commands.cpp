#include "app/commands.h"

namespace orvane {

std::optional<ToolSlot> SwitchTarget(int command) {
  switch (command) {
    case 40008:
      return ToolSlot::kPeriodic;
    case 40009:
      return ToolSlot::kFind;
    case 40011:
      return ToolSlot::kSeries;
    case kCommandConstants:
      return ToolSlot::kConstants;
    case 40007:
      return ToolSlot::kMass;
    case 40013:
      return ToolSlot::kBalancer;
    case 40065:
      return ToolSlot::kPlot;
    default:
      return std::nullopt;
  }
}

std::optional<ToolSlot> NeededTool(int command) {
  switch (command) {
    case kCommandHelp:
    case kCommandShowHelp:
      return ToolSlot::kHelpViewer;
    case kCommandElementInfo:
      return ToolSlot::kElement;
    default:
      return SwitchTarget(command);
  }
}

}  // namespace orvane
