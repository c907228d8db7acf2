// The commands of the main menu, and which screen each of them leads to.
#pragma once

#include <optional>

#include "app/tool_set.h"
#include "framework/standard_commands.h"

namespace orvane {

inline constexpr int kCommandAbout = 40017;
inline constexpr int kCommandHelp = 40064;
inline constexpr int kCommandExit = 40016;
inline constexpr int kCommandElementInfo = 40010;
inline constexpr int kCommandShowHelp = 40167;

// These stand in no menu: keys run them, and the tool in front says what they mean.
inline constexpr int kCommandCopy = 57634;
inline constexpr int kCommandPaste = 57637;
inline constexpr int kCommandClose = 57602;

// These switch to a tool.
inline constexpr int kCommandPeriodic = 40008;
inline constexpr int kCommandFind = 40009;
inline constexpr int kCommandSeries = 40011;
inline constexpr int kCommandConstants = 40146;
inline constexpr int kCommandMass = 40007;
inline constexpr int kCommandBalancer = 40013;
inline constexpr int kCommandPlot = 40065;

// The tool that a command switches to; nothing for a command that switches to none.
std::optional<ToolSlot> SwitchTarget(int command);

// What one of the key commands asks of the tool in front; nothing for any other command.
std::optional<StandardCommand> StandardKeyCommand(int command);

// The tool without which a command of the main menu has nothing to do; nothing when it needs none.
std::optional<ToolSlot> NeededTool(int command);

}  // namespace orvane
