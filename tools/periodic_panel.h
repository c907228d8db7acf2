// The periodic table's panel: lays the table out, draws it, and opens the element that is tapped.
#pragma once

#include "data/elements_database.h"
#include "framework/zel_panel.h"
#include "tools/navigator.h"
#include "tools/periodic_settings.h"

namespace orvane {

class PeriodicPanel : public ZelPanel {
 public:
  // `settings` are the tool's: they are read at each layout and painting.
  PeriodicPanel(Shell& shell, WindowHandle parent, const ElementsDatabase& elements, Navigator& navigator,
                const PeriodicSettings& settings);

  // Measures every text, places every cell, paints the table anew and takes the focus.
  void LayOut();

  const PeriodicLayout& Layout() const { return layout_; }

  // ZelWindow
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override;

 protected:
  // ZelPanel
  void Paint(Canvas& canvas, int left, int top, int right, int bottom) override;

 private:
  // The texts of one element as the view shows them.
  struct ElementText {
    TextView symbol;
    Text number;
    TextView name;
    TextView mass;
  };

  ElementText TextOf(int element) const;
  const FontFamily& SymbolFont() const;
  const FontFamily& NumberFont() const;
  Size Measure(const FontFamily& family, TextView text) const;
  void DrawLabelBands(Canvas& canvas) const;
  void DrawBand(Canvas& canvas, const Rect& band, TextView label) const;
  void DrawCells(Canvas& canvas, const Rect& part) const;
  void DrawCellTexts(Canvas& canvas, int element) const;
  void DrawSeriesLabels(Canvas& canvas) const;
  void DrawSeriesLabel(Canvas& canvas, TextView label, int firstCell, int lastCell) const;
  Colour FillOf(int element, Colour previous) const;
  const PeriodicCell& Cell(int element) const { return layout_.cells[static_cast<std::size_t>(element)]; }

  const ElementsDatabase& elements_;
  Navigator& navigator_;
  const PeriodicSettings& settings_;
  PeriodicLayout layout_;

  // "Tahoma" by role and size in points.
  FontFamily symbolWithTexts_;  // 11
  FontFamily symbolAlone_;      // 9; also all labels
  FontFamily numberWithTexts_;  // 11
  FontFamily small_;            // 7: name, mass, a number alone
};

}  // namespace orvane
