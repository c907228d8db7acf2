// Draws the quick plot: points with their labels, lines between neighbours, the names of the two properties.
#pragma once

#include <array>

#include "framework/font_family.h"
#include "framework/shell.h"
#include "tools/plot_state.h"

namespace orvane {

class PlotPainter {
 public:
  // Both outlive the painter; `owner` owns the fonts.
  PlotPainter(Shell& shell, WindowHandle owner, const ElementsDatabase& elements);

  // The whole area of kPlotWidth × kPlotHeight, at the origin.
  void Paint(Canvas& canvas, const PlotState& state) const;

 private:
  void PaintPoint(Canvas& canvas, Point at) const;
  void PaintLabel(Canvas& canvas, int element, Point at) const;
  void PaintAxisNames(Canvas& canvas, const PlotState& state) const;

  TextEngine& engine_;
  const ElementsDatabase& elements_;
  FontFamily small_;                              // "Tahoma" 8
  std::array<Size, kPlotElements> labelSizes_{};  // measured once
};

}  // namespace orvane
