// What the quick plot remembers: its current setup and three presets, each a whole setup.
#pragma once

#include <array>

#include "chemistry/plot.h"
#include "data/property_address.h"

namespace orvane {

class ZelRegistry;

// What a plot shows and how.
struct PlotLook {
  PropertyAddress x;
  PropertyAddress y;
  bool showLines = true;
  bool showPoints = true;
  bool showAxes = true;  // the names of the two properties
  PlotLabels labels{};
};

struct PlotSetup : PlotLook {
  Text xFilter;
  Text yFilter;
  PlotView view;  // all 0 stands for the automatic range

  const PlotLook& Look() const { return *this; }
};

inline constexpr int kPlotPresets = 3;
using PlotPresets = std::array<PlotSetup, kPlotPresets>;

struct PlotSettings {
  PlotSetup current;
  bool hasCurrent = false;  // whether the current setup was stored, with its view
  PlotPresets presets;
};

// What is missing in the store takes its default. Addresses that name no property of the database take the
// default property; filters are cut to the longest that can be; missing bytes of labels are 0.
PlotSettings ReadPlotSettings(ZelRegistry& registry, const ElementsDatabase& elements);
void WritePlotSettings(ZelRegistry& registry, const PlotSetup& current, const PlotPresets& presets);

}  // namespace orvane
