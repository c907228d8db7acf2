// A plot of one property of the elements against another: which elements have a point, where the points
// stand, what is in view, and what the pen hits. Y values are kept negated throughout, so that larger ones
// stand higher where positions count downwards; whoever shows or tests a Y value turns its sign.
#pragma once

#include <array>
#include <optional>
#include <span>

#include "base/geometry.h"
#include "base/text.h"
#include "chemistry/plot_axis.h"
#include "chemistry/value_filter.h"

namespace orvane {

inline constexpr int kPlotElements = 112;
// The steps of a view along each axis.
inline constexpr int kPlotWidth = 240;
inline constexpr int kPlotHeight = 268;

// What one element has for the two properties. Without both values it has no point.
struct PlotTexts {
  bool hasValues = false;
  TextView x;
  TextView y;
};

struct PlotPoint {
  double x = 0;
  double y = 0;  // negated
  // Whether it is drawn. One that is not keeps the values of an earlier build, or those that a filter
  // refused.
  bool valid = false;
};

struct PlotLine {
  Point from;
  Point to;
  friend bool operator==(const PlotLine&, const PlotLine&) = default;
};

struct PlotView {
  PlotRange x;
  PlotRange y;
  friend bool operator==(const PlotView&, const PlotView&) = default;
};

// Whether each element's name stands beside its point.
using PlotLabels = std::array<bool, kPlotElements>;

class Plot {
 public:
  // Makes all points anew; the view becomes the automatic one.
  void Build(std::span<const PlotTexts, kPlotElements> elements, const ValueFilter& xFilter,
             const ValueFilter& yFilter);

  const PlotPoint& At(int element) const { return points_[static_cast<std::size_t>(element)]; }
  // Whether this element and the next are joined: both have a point. False for the last one.
  bool IsJoined(int element) const;
  Point PlaceOf(int element) const { return {x_.Place(At(element).x), y_.Place(At(element).y)}; }
  // The line from this element's point to the next one's; nothing when they are not joined. Deep in a zoom
  // its ends may lie farther out than places reach: it is cut there, along its way, and is nothing when it
  // stays out there.
  std::optional<PlotLine> LineFrom(int element) const;
  const PlotAxis& X() const { return x_; }
  const PlotAxis& Y() const { return y_; }
  bool IsEmpty() const { return !x_.HasData(); }

  PlotView View() const { return {x_.View(), y_.View()}; }
  PlotView Automatic() const { return {x_.Automatic(), y_.Automatic()}; }
  PlotView Drawn() const { return {x_.Drawn(), y_.Drawn()}; }
  void SetView(const PlotView& view);

  // Changes of the view. They start from what is drawn, and return false when they change nothing: on an
  // empty plot, for a rectangle without width or height, where the view would leave the range of numbers.
  void Fit() { SetView(Automatic()); }
  bool Pan(int dx, int dy);  // moves the origin, so that the points go the other way
  bool ZoomTo(Point corner, Point otherCorner);
  bool ZoomOutInto(Point corner, Point otherCorner);  // what is drawn now then fits the rectangle
  bool ZoomIn();                                      // each bound moves by a tenth of its axis's span
  bool ZoomOut();
  bool ZoomAround(Point place,
                  bool in);  // as far as ZoomIn and ZoomOut; what stands at the place stays there

  // The first element, drawn or not, within a sixtieth of the x span and a sixty-seventh of the y span (four
  // steps) of the place; −1 when there is none.
  int ElementAt(Point place) const;

 private:
  bool Show(const PlotView& view);

  std::array<PlotPoint, kPlotElements> points_;
  PlotAxis x_{kPlotWidth, 0.05};
  PlotAxis y_{kPlotHeight, 0.08};
};

// If any element with a point has its label, all those labels go; otherwise all of them come. Elements
// without a point keep theirs.
void ToggleLabels(const Plot& plot, PlotLabels& labels);

}  // namespace orvane
