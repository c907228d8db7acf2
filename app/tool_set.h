// The screens of the program by their slots, and how each is made. A slot without a maker is a screen that
// this program does not have: its menu entries are disabled.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>

#include "chemistry/element_table.h"
#include "data/elements_database.h"
#include "framework/zel_window.h"
#include "tools/navigator.h"

namespace orvane {

// In the order in which the tools are made. The contents of the help belong to the viewer, which makes them
// when they are first asked for.
enum class ToolSlot {
  kHelpViewer,
  kElement,
  kPeriodic,
  kFind,
  kMass,
  kSeries,
  kBalancer,
  kPlot,
  kPlotSettings,
  kConstants,
};
inline constexpr std::size_t kToolSlots = 10;

// What a tool is handed when it is made.
struct ToolContext {
  Shell& shell;
  ElementsDatabase& elements;        // the element view marks its summary there; nobody else changes it
  const ElementTable& elementTable;  // of those elements, for reading formulas
  Navigator& navigator;
  const std::string& dataFolder;  // of the data files, with a slash at its end
};

// A tool with the operations by which the application reaches it beyond showing and hiding. Each is empty
// for a tool that has no such operation.
struct MadeTool {
  std::unique_ptr<ZelWindow> window;
  std::function<void(int element)> showElement;  // of the element view
  std::function<void(int page)> openPage;        // of the help viewer
  std::function<bool()> hasPage;                 // of the help viewer: it has shown a page before
  std::function<void(const AxisRequest& request)> setUpAxis;  // of the plot settings
  std::function<void()> load;  // of the constants: reads their file, on the first call only
};

using ToolMaker = std::function<MadeTool(const ToolContext&)>;
using ToolMakers = std::array<ToolMaker, kToolSlots>;

// The makers of this program's screens.
ToolMakers StandardTools();

}  // namespace orvane
