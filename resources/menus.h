// The menus and menu bars as tables. They are constant: a caller that appends entries, or marks
// them, works on a menu of its own that it fills from here.
#pragma once

#include <span>

#include "base/text.h"

namespace orvane {

// The program's own menu with its bar, and the menus that the tools open over their buttons.
inline constexpr int kMainMenu = 1092;
inline constexpr int kPopupMenu = 106;
// The bar of one tool, before the tool has added its buttons.
inline constexpr int kToolBar = 124;

enum class MenuEntryKind { kCommand, kSeparator, kSubMenu };

struct MenuEntry {
  MenuEntryKind kind = MenuEntryKind::kSeparator;
  TextView label;                    // empty for a separator
  int command = 0;                   // 0 for a separator and for a sub-menu
  const MenuEntry* first = nullptr;  // a sub-menu's own entries
  int count = 0;

  constexpr std::span<const MenuEntry> Entries() const {
    return {first, static_cast<std::span<const MenuEntry>::size_type>(count)};
  }
};

struct MenuResource {
  int id = 0;
  std::span<const MenuEntry> entries;
};

// The sub-menus of menu 106, by their position.
inline constexpr int kPteSizeMenu = 0;
inline constexpr int kShowWhatMenu = 1;
inline constexpr int kPlotSettingsMenu = 2;
inline constexpr int kConstCategMenu = 3;
inline constexpr int kElSetupSumMenu = 4;
inline constexpr int kElSetupFullMenu = 5;
inline constexpr int kPresetsMenu = 6;

// A menu opens sub-menu `subMenu` of the bar's menu.
enum class MenuBarEntryKind { kMenu, kSeparator, kButton };

struct MenuBarEntry {
  MenuBarEntryKind kind = MenuBarEntryKind::kSeparator;
  TextView label;
  int command = 0;   // of a button
  int subMenu = -1;  // position in the bar's menu; -1 for what is no menu
};

struct MenuBarResource {
  int id = 0;
  int menuId = 0;  // the menu behind the bar; 0 when it has none
  std::span<const MenuBarEntry> entries;
};

// Null for a number that names no menu, or no menu bar.
const MenuResource* FindMenu(int id);
const MenuBarResource* FindMenuBar(int id);

}  // namespace orvane
