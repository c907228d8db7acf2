#include "resources/menus.h"

#include <array>
#include <cstddef>

#include "resources/commands.h"

namespace orvane {
namespace {

constexpr MenuEntry Command(TextView label, int command) {
  return {MenuEntryKind::kCommand, label, command, nullptr, 0};
}

constexpr MenuEntry kSeparator{};

template <std::size_t N>
constexpr MenuEntry SubMenu(TextView label, const std::array<MenuEntry, N>& entries) {
  return {MenuEntryKind::kSubMenu, label, 0, entries.data(), static_cast<int>(N)};
}

constexpr std::array kAppMenu{
    Command(u"About", kCommandAbout),
    Command(u"Help", kCommandHelp),
    Command(u"Exit", kCommandExit),
};

constexpr std::array kToolsMenu{
    Command(u"Periodic table", kCommandPeriodic),
    Command(u"Find element", kCommandFind),
    Command(u"Show element info", kCommandElementInfo),
    Command(u"Show help", kCommandShowHelp),
    Command(u"Electrochemical series", kCommandSeries),
    Command(u"Constants database", kCommandConstants),
    Command(u"Molecular mass", kCommandMass),
    Command(u"Equation balancer", kCommandBalancer),
    Command(u"Quick plot", kCommandPlot),
};

constexpr std::array kMainEntries{
    SubMenu(u"App", kAppMenu),
    SubMenu(u"Tools", kToolsMenu),
};

constexpr std::array kPteSize{
    Command(u"Narrow mode", kCommandNarrowMode),
    Command(u"Wide mode", kCommandWideMode),
    kSeparator,
    Command(u"Color by block", kCommandColourByBlock),
    Command(u"Color by family", kCommandColourByFamily),
};

// The periodic table sets the marks of these three by position.
constexpr std::array kShowWhat{
    Command(u"Show number", kCommandShowNumber),
    Command(u"Show name", kCommandShowName),
    Command(u"Show mass", kCommandShowMass),
};

constexpr std::array kPlotSettings{
    Command(u"X axis...", kCommandXAxis),
    Command(u"Y axis...", kCommandYAxis),
    kSeparator,
    Command(u"Show lines", kCommandShowLines),
    Command(u"Show points", kCommandShowPoints),
    Command(u"Label axes", kCommandLabelAxes),
    Command(u"Toggle labels", kCommandToggleLabels),
};

// Ends with a separator: the constants database appends its categories below it.
constexpr std::array kConstCateg{
    Command(u"Show symbol", kCommandShowSymbol),         Command(u"Show value", kCommandShowValue),
    Command(u"Show units", kCommandShowUnits),           kSeparator,
    Command(u"Copy to clipboard", kCommandCopyConstant), kSeparator,
};

// How the element view starts is chosen alike in its summary and in its full list.
constexpr MenuEntry kStartWithSummary = Command(u"Start with summary", kCommandFirstInitialView);
constexpr MenuEntry kStartWithFullInfo = Command(u"Start with full info", kCommandFirstInitialView + 1);
constexpr MenuEntry kRememberLastUsed = Command(u"Remember last used", kCommandFirstInitialView + 2);

constexpr std::array kElSetupSum{
    Command(u"Remove from summary", kCommandRemoveFromSummary),
    Command(u"Move selected up", kCommandMoveUp),
    Command(u"Move selected down", kCommandMoveDown),
    Command(u"Copy to clipboard", kCommandCopyFromSummary),
    kSeparator,
    Command(u"Show basic properties", kCommandShowMain),
    Command(u"Show family and block", kCommandShowFamily),
    kSeparator,
    kStartWithSummary,
    kStartWithFullInfo,
    kRememberLastUsed,
};

constexpr std::array kElSetupFull{
    Command(u"Add selected to summary", kCommandAddToSummary),
    Command(u"Copy to clipboard", kCommandCopyFromList),
    kSeparator,
    kStartWithSummary,
    kStartWithFullInfo,
    kRememberLastUsed,
};

constexpr std::array kPresets{
    Command(u"Preset 1", kCommandFirstLoad),
    Command(u"Preset 2", kCommandFirstLoad + 1),
    Command(u"Preset 3", kCommandFirstLoad + 2),
    kSeparator,
    Command(u"Save as Preset 1", kCommandFirstSave),
    Command(u"Save as Preset 2", kCommandFirstSave + 1),
    Command(u"Save as Preset 3", kCommandFirstSave + 2),
};

constexpr std::array kPopupEntries{
    SubMenu(u"PTE size", kPteSize),
    SubMenu(u"Show what", kShowWhat),
    SubMenu(u"Plot settings", kPlotSettings),
    SubMenu(u"ConstCateg", kConstCateg),
    SubMenu(u"ElSetupSum", kElSetupSum),
    SubMenu(u"ElSetupFull", kElSetupFull),
    SubMenu(u"Presets", kPresets),
};

constexpr std::array kMenus{
    MenuResource{kMainMenu, kMainEntries},
    MenuResource{kPopupMenu, kPopupEntries},
};

constexpr MenuBarEntry BarMenu(TextView label, int subMenu) {
  return {MenuBarEntryKind::kMenu, label, 0, subMenu};
}

// Buttons that a tool adds follow the separator, from position 3 on.
constexpr std::array kMainBarEntries{
    BarMenu(u"App", 0),
    BarMenu(u"Tools", 1),
    MenuBarEntry{},
};

// Never visible: this bar only holds the menus.
constexpr std::array kPopupBarEntries{
    BarMenu(u"PTE size", kPteSizeMenu),
    BarMenu(u"Show what", kShowWhatMenu),
    BarMenu(u"Plot settings", kPlotSettingsMenu),
    BarMenu(u"ConstCateg", kConstCategMenu),
    BarMenu(u"ElSetupSum", kElSetupSumMenu),
    BarMenu(u"ElSetupFull", kElSetupFullMenu),
    BarMenu(u"Presets", kPresetsMenu),
};

// A bar cannot be made without a button, so a tool's bar comes with one, which its owner removes.
constexpr std::array kToolBarEntries{
    MenuBarEntry{MenuBarEntryKind::kButton, u"", 0, -1},
};

constexpr std::array kMenuBars{
    MenuBarResource{kMainMenu, kMainMenu, kMainBarEntries},
    MenuBarResource{kPopupMenu, kPopupMenu, kPopupBarEntries},
    MenuBarResource{kToolBar, 0, kToolBarEntries},
};

}  // namespace

const MenuResource* FindMenu(int id) {
  for (const MenuResource& menu : kMenus) {
    if (menu.id == id) return &menu;
  }
  return nullptr;
}

const MenuBarResource* FindMenuBar(int id) {
  for (const MenuBarResource& bar : kMenuBars) {
    if (bar.id == id) return &bar;
  }
  return nullptr;
}

}  // namespace orvane
