// The commands of the main menu, and which screen each of them leads to.
#pragma once

#include <optional>

#include "app/tool_set.h"
#include "framework/standard_commands.h"
#include "resources/commands.h"

namespace orvane {

// Commands that stand in no menu: keys run them, and the tool in front says what they mean.
inline constexpr int kCommandCopy = 57634;
inline constexpr int kCommandPaste = 57637;
inline constexpr int kCommandClose = 57602;

// The tool that a command switches to; nothing for a command that switches to none.
std::optional<ToolSlot> SwitchTarget(int command);

// What one of the key commands asks of the tool in front; nothing for any other command.
std::optional<StandardCommand> StandardKeyCommand(int command);

// The tool without which a command of the main menu has nothing to do; nothing when it needs none.
std::optional<ToolSlot> NeededTool(int command);

}  // namespace orvane
