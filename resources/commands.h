// The commands of the menus by number, for the tables here and for whoever carries them out. A number counts
// within its menu only: the main menu's commands go to the main window, those of a pop-up menu to the tool
// that opened it. So Exit and "Color by block" share one and never meet.
#pragma once

namespace orvane {

// App.
inline constexpr int kCommandAbout = 40017;
inline constexpr int kCommandHelp = 40064;
inline constexpr int kCommandExit = 40016;

// Tools.
inline constexpr int kCommandPeriodic = 40008;
inline constexpr int kCommandFind = 40009;
inline constexpr int kCommandElementInfo = 40010;
inline constexpr int kCommandShowHelp = 40167;
inline constexpr int kCommandSeries = 40011;
inline constexpr int kCommandConstants = 40146;
inline constexpr int kCommandMass = 40007;
inline constexpr int kCommandBalancer = 40013;
inline constexpr int kCommandPlot = 40065;

// The periodic table.
inline constexpr int kCommandNarrowMode = 40049;
inline constexpr int kCommandWideMode = 40050;
inline constexpr int kCommandColourByBlock = 40016;
inline constexpr int kCommandColourByFamily = 40018;
inline constexpr int kCommandShowNumber = 40054;
inline constexpr int kCommandShowName = 40052;
inline constexpr int kCommandShowMass = 40053;

// The plot.
inline constexpr int kCommandXAxis = 40206;
inline constexpr int kCommandYAxis = 40207;
inline constexpr int kCommandShowLines = 40203;
inline constexpr int kCommandShowPoints = 40204;
inline constexpr int kCommandLabelAxes = 40208;
inline constexpr int kCommandToggleLabels = 40205;

// The constants.
inline constexpr int kCommandShowSymbol = 40153;
inline constexpr int kCommandShowValue = 40154;
inline constexpr int kCommandShowUnits = 40155;
inline constexpr int kCommandCopyConstant = 40166;

// The element view: its full list, its summary, and how it starts (three numbers, in the order of the
// entries).
inline constexpr int kCommandCopyFromList = 40175;
inline constexpr int kCommandAddToSummary = 40176;
inline constexpr int kCommandRemoveFromSummary = 40177;
inline constexpr int kCommandMoveUp = 40178;
inline constexpr int kCommandMoveDown = 40179;
inline constexpr int kCommandShowMain = 40180;
inline constexpr int kCommandShowFamily = 40181;
inline constexpr int kCommandCopyFromSummary = 40186;
inline constexpr int kCommandFirstInitialView = 40190;

// The presets of whichever tool opened the menu: three numbers each.
inline constexpr int kCommandFirstSave = 40196;
inline constexpr int kCommandFirstLoad = 40199;

}  // namespace orvane
