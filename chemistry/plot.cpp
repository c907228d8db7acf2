#include "chemistry/plot.h"

#include <cmath>
#include <cstdlib>

#include "base/segment.h"
#include "chemistry/plot_value.h"

namespace orvane {

namespace {

constexpr double kZoomStep = 0.1;
// Lines are cut this far out, where the rounding of an end to a whole place turns them by nothing that shows.
constexpr RealBox kLineReach{-1e7, -1e7, 1e7, 1e7};
constexpr double kHitPartX = 60;
constexpr double kHitPartY = 67;

bool HasPlace(double value) { return std::fabs(value) <= kLargestPlotValue; }

}  // namespace

void Plot::Build(std::span<const PlotTexts, kPlotElements> elements, const ValueFilter& xFilter,
                 const ValueFilter& yFilter) {
  x_.ClearData();
  y_.ClearData();
  for (std::size_t i = 0; i < elements.size(); ++i) {
    PlotPoint& point = points_[i];
    point.valid = false;
    if (!elements[i].hasValues) continue;
    const double x = ReadPlotValue(elements[i].x);
    const double y = ReadPlotValue(elements[i].y);
    point.x = x;
    point.y = -y;
    if (!PassesFilter(xFilter, x) || !PassesFilter(yFilter, y) || !HasPlace(x) || !HasPlace(y)) continue;
    point.valid = true;
    x_.Widen(point.x);
    y_.Widen(point.y);
  }
  Fit();
}

bool Plot::IsJoined(int element) const {
  return element + 1 < kPlotElements && At(element).valid && At(element + 1).valid;
}

std::optional<PlotLine> Plot::LineFrom(int element) const {
  if (!IsJoined(element)) return std::nullopt;
  const auto end = [this](const PlotPoint& point) {
    return RealPoint{static_cast<double>(x_.Offset(point.x)), static_cast<double>(y_.Offset(point.y))};
  };
  const auto line = CutSegment({end(At(element)), end(At(element + 1))}, kLineReach);
  if (!line) return std::nullopt;
  const auto place = [](const RealPoint& p) {
    return Point{static_cast<int>(std::lround(p.x)), static_cast<int>(std::lround(p.y))};
  };
  return PlotLine{place(line->from), place(line->to)};
}

void Plot::SetView(const PlotView& view) {
  x_.SetView(view.x);
  y_.SetView(view.y);
}

bool Plot::Pan(int dx, int dy) {
  if (IsEmpty() || (dx == 0 && dy == 0)) return false;
  if (!std::isfinite(x_.Panned(dx).Span()) || !std::isfinite(y_.Panned(dy).Span())) return false;
  x_.Pan(dx);
  y_.Pan(dy);
  return true;
}

bool Plot::ZoomTo(Point corner, Point otherCorner) {
  if (corner.x == otherCorner.x || corner.y == otherCorner.y) return false;
  return Show({x_.Between(corner.x, otherCorner.x), y_.Between(corner.y, otherCorner.y)});
}

bool Plot::ZoomOutInto(Point corner, Point otherCorner) {
  const int width = std::abs(corner.x - otherCorner.x);
  const int height = std::abs(corner.y - otherCorner.y);
  if (width == 0 || height == 0) return false;
  return Show({x_.FittedInto(std::min(corner.x, otherCorner.x), width),
               y_.FittedInto(std::min(corner.y, otherCorner.y), height)});
}

bool Plot::ZoomIn() { return Show({x_.MovedIn(kZoomStep, kZoomStep), y_.MovedIn(kZoomStep, kZoomStep)}); }

bool Plot::ZoomOut() {
  return Show({x_.MovedIn(-kZoomStep, -kZoomStep), y_.MovedIn(-kZoomStep, -kZoomStep)});
}

bool Plot::ZoomAround(Point place, bool in) {
  const double step = in ? 2 * kZoomStep : -2 * kZoomStep;
  const double partX = static_cast<double>(place.x) / kPlotWidth;
  const double partY = static_cast<double>(place.y) / kPlotHeight;
  return Show({x_.MovedIn(step * partX, step * (1 - partX)), y_.MovedIn(step * partY, step * (1 - partY))});
}

bool Plot::Show(const PlotView& view) {
  if (IsEmpty() || !x_.CanShow(view.x) || !y_.CanShow(view.y)) return false;
  SetView(view);
  return true;
}

int Plot::ElementAt(Point place) const {
  const double x = x_.ValueAt(place.x);
  const double y = y_.ValueAt(place.y);
  for (int element = 0; element < kPlotElements; ++element) {
    const PlotPoint& point = At(element);
    if (std::fabs(point.x - x) <= x_.Span() / kHitPartX && std::fabs(point.y - y) <= y_.Span() / kHitPartY) {
      return element;
    }
  }
  return -1;
}

void ToggleLabels(const Plot& plot, PlotLabels& labels) {
  bool anyShown = false;
  for (int i = 0; i < kPlotElements; ++i) {
    anyShown = anyShown || (plot.At(i).valid && labels[static_cast<std::size_t>(i)]);
  }
  for (int i = 0; i < kPlotElements; ++i) {
    if (plot.At(i).valid) labels[static_cast<std::size_t>(i)] = !anyShown;
  }
}

}  // namespace orvane
