#include "resources/menus.h"

#include <array>
#include <cstddef>

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
    Command(u"About", 40017),
    Command(u"Help", 40064),
    Command(u"Exit", 40016),
};

constexpr std::array kToolsMenu{
    Command(u"Periodic table", 40008),
    Command(u"Find element", 40009),
    Command(u"Show element info", 40010),
    Command(u"Show help", 40167),
    Command(u"Electrochemical series", 40011),
    Command(u"Constants database", 40146),
    Command(u"Molecular mass", 40007),
    Command(u"Equation balancer", 40013),
    Command(u"Quick plot", 40065),
};

constexpr std::array kMainEntries{
    SubMenu(u"App", kAppMenu),
    SubMenu(u"Tools", kToolsMenu),
};

// 40016 is also the command of App > Exit. The two never meet: a tool tracks its own pop-up menus
// and gets their commands itself.
constexpr std::array kPteSize{
    Command(u"Narrow mode", 40049),    Command(u"Wide mode", 40050),       kSeparator,
    Command(u"Color by block", 40016), Command(u"Color by family", 40018),
};

// The periodic table sets the marks of these three by position.
constexpr std::array kShowWhat{
    Command(u"Show number", 40054),
    Command(u"Show name", 40052),
    Command(u"Show mass", 40053),
};

constexpr std::array kPlotSettings{
    Command(u"X axis...", 40206),     Command(u"Y axis...", 40207),   kSeparator,
    Command(u"Show lines", 40203),    Command(u"Show points", 40204), Command(u"Label axes", 40208),
    Command(u"Toggle labels", 40205),
};

// Ends with a separator: the constants database appends its categories below it.
constexpr std::array kConstCateg{
    Command(u"Show symbol", 40153),       Command(u"Show value", 40154),
    Command(u"Show units", 40155),        kSeparator,
    Command(u"Copy to clipboard", 40166), kSeparator,
};

// How the element view starts is chosen alike in its summary and in its full list.
constexpr MenuEntry kStartWithSummary = Command(u"Start with summary", 40190);
constexpr MenuEntry kStartWithFullInfo = Command(u"Start with full info", 40191);
constexpr MenuEntry kRememberLastUsed = Command(u"Remember last used", 40192);

constexpr std::array kElSetupSum{
    Command(u"Remove from summary", 40177),
    Command(u"Move selected up", 40178),
    Command(u"Move selected down", 40179),
    Command(u"Copy to clipboard", 40186),
    kSeparator,
    Command(u"Show basic properties", 40180),
    Command(u"Show family and block", 40181),
    kSeparator,
    kStartWithSummary,
    kStartWithFullInfo,
    kRememberLastUsed,
};

constexpr std::array kElSetupFull{
    Command(u"Add selected to summary", 40176),
    Command(u"Copy to clipboard", 40175),
    kSeparator,
    kStartWithSummary,
    kStartWithFullInfo,
    kRememberLastUsed,
};

constexpr std::array kPresets{
    Command(u"Preset 1", 40199),         Command(u"Preset 2", 40200),
    Command(u"Preset 3", 40201),         kSeparator,
    Command(u"Save as Preset 1", 40196), Command(u"Save as Preset 2", 40197),
    Command(u"Save as Preset 3", 40198),
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
