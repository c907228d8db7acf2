// orvane-calc plot: the points of the quick plot, for other plotting programs.
#pragma once

#include <string>

#include "cli/session.h"

namespace orvane {

// Properties are given by their name, in any case, or as CATEGORY:INDEX, where the category is its index or
// its name, and indices are counted from 0; the first property with a name is taken. Filters are texts as in
// the plot's axis setup.
struct PlotQuestion {
  std::string x;
  std::string y;
  std::string xFilter;
  std::string yFilter;
};

// For people a line for each point: number, symbol, x, y, separated by tabs.
void ShowPlot(Session& session, const PlotQuestion& question, bool asJson);

}  // namespace orvane
