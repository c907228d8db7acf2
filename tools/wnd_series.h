// The electrochemical series: a fixed picture whose cells open their elements. It keeps nothing and has no
// settings.
#pragma once

#include "framework/font_family.h"
#include "framework/zel_tool_window.h"
#include "tools/navigator.h"
#include "tools/series_cells.h"

namespace orvane {

class wnd_series : public ZelToolWindow {
 public:
  // The navigator outlives it.
  wnd_series(Shell& shell, Navigator& navigator);

  // ZelWindow
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override;
  std::string ClassName() const override { return "wnd_series"; }

 protected:
  // ZelToolWindow
  void Paint(Canvas& canvas, int width, int height) override;

 private:
  void OnBeforeShow();
  void OnPenUp(Point point);
  void DrawUpperBand(Canvas& canvas) const;
  void DrawLowerBand(Canvas& canvas) const;
  void DrawLabel(Canvas& canvas, const SeriesCell& cell) const;

  Navigator& navigator_;
  FontFamily title_;
  FontFamily labels_;
};

}  // namespace orvane
