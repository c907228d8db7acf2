// One axis of a plot: the range of the data, the range in view, and where a value stands along the axis.
// Positions are whole steps from the origin of values, `length` steps to a view; what is drawn stands at its
// position less the origin's.
#pragma once

#include <cstdint>

namespace orvane {

struct PlotRange {
  double low = 0;
  double high = 0;

  double Span() const { return high - low; }
  friend bool operator==(const PlotRange&, const PlotRange&) = default;
};

// Values beyond this have no place on a plot: the sum of two of them could leave the range of a double.
inline constexpr double kLargestPlotValue = 1e300;

class PlotAxis {
 public:
  // The automatic range is wider than the data's by `margin` of its extent on either side.
  PlotAxis(int length, double margin) : length_(length), margin_(margin) { Rescale(); }

  void ClearData();
  void Widen(double value);
  bool HasData() const { return dataLow_ <= dataHigh_; }
  PlotRange Data() const { return {dataLow_, dataHigh_}; }
  // Both ends are 0 without data.
  PlotRange Automatic() const;

  // The range that is remembered. One whose span is 0 or not finite stands for the automatic range.
  const PlotRange& View() const { return view_; }
  void SetView(const PlotRange& view);
  // The range that is drawn, of a span that is finite and not 0: the view, or in its place the automatic
  // range, or where that has no span either (all values are equal) one of span 1 around the value.
  const PlotRange& Drawn() const { return drawn_; }
  double Span() const { return span_; }
  std::int64_t Origin() const { return origin_; }

  // Truncated toward zero, in steps from the value 0.
  std::int64_t Position(double value) const;
  // Position less the origin, which is where it is drawn.
  std::int64_t Offset(double value) const { return Position(value) - origin_; }
  // The same as a place; beyond a hundred million it is held there.
  int Place(double value) const;
  double ValueAt(int place) const;

  // Moves the origin; the view follows from it, and its span does not change.
  void Pan(int steps);
  // The view that Pan gives; at the end of the range of numbers its span is not finite.
  PlotRange Panned(int steps) const;

  // Views that differ from what is drawn; none of these changes the axis.
  PlotRange Between(int place, int otherPlace) const;
  PlotRange MovedIn(double fractionLow, double fractionHigh) const;  // of the span; negative is outward
  PlotRange FittedInto(int place, int extent) const;  // so that what is drawn now fits these steps

  // Whether the view can be drawn without loss: its span is finite, and either wider than what is drawn or
  // large enough beside its bounds that neighbouring steps keep values of their own.
  bool CanShow(const PlotRange& view) const;

 private:
  void Rescale();
  std::int64_t OriginAfter(int steps) const;

  int length_;
  double margin_;
  double dataLow_ = kLargestPlotValue;
  double dataHigh_ = -kLargestPlotValue;
  PlotRange view_;
  PlotRange drawn_;
  double span_ = 1;
  std::int64_t origin_ = 0;
};

}  // namespace orvane
