#include "chemistry/plot_axis.h"

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

// Whole numbers up to here are exact as doubles, with room for a sum.
constexpr double kFarthestPosition = 4503599627370496.0;  // 2 to the 52nd
constexpr std::int64_t kFarthestPlace = 100'000'000;
// How many spans of a view fit between 0 and its bounds at most: 240 steps a span keep within the positions.
constexpr double kMostSpans = 1e12;
// A single value stands in a range of span 1. From five millions on the range grows with the value, so that
// its position stays small.
constexpr double kSingleValueHalf = 0.5;
constexpr double kSingleValuePart = 1e-7;

bool IsUsable(const PlotRange& range) { return std::isfinite(range.Span()) && range.Span() != 0; }

PlotRange Around(double value) {
  const double half = std::max(kSingleValueHalf, std::fabs(value) * kSingleValuePart);
  return {value - half, value + half};
}

}  // namespace

void PlotAxis::ClearData() {
  dataLow_ = kLargestPlotValue;
  dataHigh_ = -kLargestPlotValue;
}

void PlotAxis::Widen(double value) {
  dataLow_ = std::min(dataLow_, value);
  dataHigh_ = std::max(dataHigh_, value);
}

PlotRange PlotAxis::Automatic() const {
  if (!HasData()) return {};
  const double margin = (dataHigh_ - dataLow_) * margin_;
  return {dataLow_ - margin, dataHigh_ + margin};
}

void PlotAxis::SetView(const PlotRange& view) {
  view_ = view;
  Rescale();
}

void PlotAxis::Rescale() {
  drawn_ = view_;
  if (!IsUsable(drawn_)) drawn_ = Automatic();
  if (!IsUsable(drawn_)) drawn_ = Around(HasData() ? dataLow_ : 0);
  span_ = drawn_.Span();
  origin_ = Position(drawn_.low);
}

std::int64_t PlotAxis::Position(double value) const {
  const double position = value / span_ * length_;
  return static_cast<std::int64_t>(std::clamp(position, -kFarthestPosition, kFarthestPosition));
}

int PlotAxis::Place(double value) const {
  return static_cast<int>(std::clamp(Offset(value), -kFarthestPlace, kFarthestPlace));
}

double PlotAxis::ValueAt(int place) const { return static_cast<double>(place + origin_) * span_ / length_; }

std::int64_t PlotAxis::OriginAfter(int steps) const {
  constexpr auto kFarthest = static_cast<std::int64_t>(kFarthestPosition);
  return std::clamp(origin_ + steps, -kFarthest, kFarthest);
}

PlotRange PlotAxis::Panned(int steps) const {
  const double low = static_cast<double>(OriginAfter(steps)) * span_ / length_;
  return {low, low + span_};
}

void PlotAxis::Pan(int steps) {
  view_ = Panned(steps);
  drawn_ = view_;
  origin_ = OriginAfter(steps);
}

PlotRange PlotAxis::Between(int place, int otherPlace) const {
  const double a = ValueAt(place);
  const double b = ValueAt(otherPlace);
  return {std::min(a, b), std::max(a, b)};
}

PlotRange PlotAxis::MovedIn(double fractionLow, double fractionHigh) const {
  return {drawn_.low + fractionLow * span_, drawn_.high - fractionHigh * span_};
}

PlotRange PlotAxis::FittedInto(int place, int extent) const {
  const double span = span_ * length_ / extent;
  const double low = drawn_.low - place * span / length_;
  return {low, low + span};
}

bool PlotAxis::CanShow(const PlotRange& view) const {
  if (!IsUsable(view)) return false;
  const double span = std::fabs(view.Span());
  if (span > std::fabs(span_)) return true;
  return std::max(std::fabs(view.low), std::fabs(view.high)) <= kMostSpans * span;
}

}  // namespace orvane
