#include "app/commands.h"

namespace orvane {

std::optional<ToolSlot> SwitchTarget(int command) {
  switch (command) {
    case kCommandPeriodic:
      return ToolSlot::kPeriodic;
    case kCommandFind:
      return ToolSlot::kFind;
    case kCommandSeries:
      return ToolSlot::kSeries;
    case kCommandConstants:
      return ToolSlot::kConstants;
    case kCommandMass:
      return ToolSlot::kMass;
    case kCommandBalancer:
      return ToolSlot::kBalancer;
    case kCommandPlot:
      return ToolSlot::kPlot;
    default:
      return std::nullopt;
  }
}

std::optional<StandardCommand> StandardKeyCommand(int command) {
  switch (command) {
    case kCommandCopy:
      return StandardCommand::kCopy;
    case kCommandPaste:
      return StandardCommand::kPaste;
    case kCommandClose:
      return StandardCommand::kClose;
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
