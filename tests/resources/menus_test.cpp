#include "resources/menus.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace orvane {
namespace {

// One line for each entry, "label id", "-" for a separator, and "label:" for a sub-menu, whose
// entries follow with two more spaces.
void Describe(std::span<const MenuEntry> entries, const std::string& indent, std::string& out) {
  for (const MenuEntry& entry : entries) {
    out += indent;
    switch (entry.kind) {
      case MenuEntryKind::kCommand:
        out += ToUtf8(entry.label) + " " + std::to_string(entry.command) + "\n";
        break;
      case MenuEntryKind::kSeparator:
        out += "-\n";
        break;
      case MenuEntryKind::kSubMenu:
        out += ToUtf8(entry.label) + ":\n";
        Describe(entry.Entries(), indent + "  ", out);
        break;
    }
  }
}

std::string DescribeMenu(int id) {
  const MenuResource* menu = FindMenu(id);
  if (!menu) return "no menu";
  std::string out = "\n";
  Describe(menu->entries, "", out);
  return out;
}

TEST(Menus, MainMenuHoldsTheProgramsCommandsAndTheTools) {
  EXPECT_EQ(DescribeMenu(1092), R"(
App:
  About 40017
  Help 40064
  Exit 40016
Tools:
  Periodic table 40008
  Find element 40009
  Show element info 40010
  Show help 40167
  Electrochemical series 40011
  Constants database 40146
  Molecular mass 40007
  Equation balancer 40013
  Quick plot 40065
)");
}

TEST(Menus, PopupMenuHoldsTheSevenMenusOfTheTools) {
  EXPECT_EQ(DescribeMenu(106), R"(
PTE size:
  Narrow mode 40049
  Wide mode 40050
  -
  Color by block 40016
  Color by family 40018
Show what:
  Show number 40054
  Show name 40052
  Show mass 40053
Plot settings:
  X axis... 40206
  Y axis... 40207
  -
  Show lines 40203
  Show points 40204
  Label axes 40208
  Toggle labels 40205
ConstCateg:
  Show symbol 40153
  Show value 40154
  Show units 40155
  -
  Copy to clipboard 40166
  -
ElSetupSum:
  Remove from summary 40177
  Move selected up 40178
  Move selected down 40179
  Copy to clipboard 40186
  -
  Show basic properties 40180
  Show family and block 40181
  -
  Start with summary 40190
  Start with full info 40191
  Remember last used 40192
ElSetupFull:
  Add selected to summary 40176
  Copy to clipboard 40175
  -
  Start with summary 40190
  Start with full info 40191
  Remember last used 40192
Presets:
  Preset 1 40199
  Preset 2 40200
  Preset 3 40201
  -
  Save as Preset 1 40196
  Save as Preset 2 40197
  Save as Preset 3 40198
)");
}

TEST(Menus, NamedPositionsOfThePopupMenus) {
  const std::span<const MenuEntry> menus = FindMenu(kPopupMenu)->entries;
  ASSERT_EQ(menus.size(), 7u);
  EXPECT_EQ(menus[kPteSizeMenu].label, u"PTE size");
  EXPECT_EQ(menus[kShowWhatMenu].label, u"Show what");
  EXPECT_EQ(menus[kPlotSettingsMenu].label, u"Plot settings");
  EXPECT_EQ(menus[kConstCategMenu].label, u"ConstCateg");
  EXPECT_EQ(menus[kElSetupSumMenu].label, u"ElSetupSum");
  EXPECT_EQ(menus[kElSetupFullMenu].label, u"ElSetupFull");
  EXPECT_EQ(menus[kPresetsMenu].label, u"Presets");
}

void CountCommands(std::span<const MenuEntry> entries, std::map<int, int>& uses) {
  for (const MenuEntry& entry : entries) {
    if (entry.kind == MenuEntryKind::kCommand) ++uses[entry.command];
    CountCommands(entry.Entries(), uses);
  }
}

TEST(Menus, EachCommandIsItsOwnButForTheSharedOnes) {
  std::map<int, int> uses;
  CountCommands(FindMenu(kMainMenu)->entries, uses);
  CountCommands(FindMenu(kPopupMenu)->entries, uses);
  // Exit and "Color by block" carry one number; both set-up menus of the element view offer the
  // same three ways to start.
  std::map<int, int> shared;
  for (const auto& [command, count] : uses) {
    if (count > 1) shared[command] = count;
  }
  EXPECT_EQ(shared, (std::map<int, int>{{40016, 2}, {40190, 2}, {40191, 2}, {40192, 2}}));
}

void ExpectWellFormed(std::span<const MenuEntry> entries) {
  for (const MenuEntry& entry : entries) {
    EXPECT_EQ(entry.label.empty(), entry.kind == MenuEntryKind::kSeparator);
    EXPECT_EQ(entry.command != 0, entry.kind == MenuEntryKind::kCommand);
    EXPECT_EQ(!entry.Entries().empty(), entry.kind == MenuEntryKind::kSubMenu);
    ExpectWellFormed(entry.Entries());
  }
}

TEST(Menus, EntriesCarryOnlyWhatTheirKindHas) {
  ExpectWellFormed(FindMenu(kMainMenu)->entries);
  ExpectWellFormed(FindMenu(kPopupMenu)->entries);
}

// One line for each entry: "menu LABEL POSITION", "-", or "button LABEL COMMAND".
std::string DescribeBar(int id) {
  const MenuBarResource* bar = FindMenuBar(id);
  if (!bar) return "no bar";
  std::string out = "menu " + std::to_string(bar->menuId) + "\n";
  for (const MenuBarEntry& entry : bar->entries) {
    switch (entry.kind) {
      case MenuBarEntryKind::kMenu:
        out += ToUtf8(entry.label) + " opens " + std::to_string(entry.subMenu) + "\n";
        break;
      case MenuBarEntryKind::kSeparator:
        out += "-\n";
        break;
      case MenuBarEntryKind::kButton:
        out += "button '" + ToUtf8(entry.label) + "' " + std::to_string(entry.command) + "\n";
        break;
    }
  }
  return out;
}

TEST(MenuBars, MainBarHasTwoMenusAndASeparatorAtPositionTwo) {
  EXPECT_EQ(DescribeBar(1092), "menu 1092\nApp opens 0\nTools opens 1\n-\n");
}

TEST(MenuBars, PopupBarHoldsTheSevenMenus) {
  EXPECT_EQ(DescribeBar(106),
            "menu 106\nPTE size opens 0\nShow what opens 1\nPlot settings opens 2\nConstCateg opens 3\n"
            "ElSetupSum opens 4\nElSetupFull opens 5\nPresets opens 6\n");
}

TEST(MenuBars, ToolBarHasOnePlaceholderButton) { EXPECT_EQ(DescribeBar(124), "menu 0\nbutton '' 0\n"); }

TEST(MenuBars, EachMenuOfABarIsTheSubMenuOfTheSameLabel) {
  for (int id : {kMainMenu, kPopupMenu}) {
    const MenuBarResource* bar = FindMenuBar(id);
    ASSERT_NE(bar, nullptr);
    const MenuResource* menu = FindMenu(bar->menuId);
    ASSERT_NE(menu, nullptr);
    for (const MenuBarEntry& entry : bar->entries) {
      if (entry.kind != MenuBarEntryKind::kMenu) continue;
      ASSERT_LT(static_cast<std::size_t>(entry.subMenu), menu->entries.size());
      EXPECT_EQ(entry.label, menu->entries[static_cast<std::size_t>(entry.subMenu)].label);
    }
  }
}

TEST(Menus, UnknownNumbersNameNothing) {
  for (int id : {-1, 0, 1, 105, 107, 1091, 1093, 65535}) {
    EXPECT_EQ(FindMenu(id), nullptr) << id;
    EXPECT_EQ(FindMenuBar(id), nullptr) << id;
  }
  EXPECT_EQ(FindMenu(kToolBar), nullptr);
}

}  // namespace
}  // namespace orvane
