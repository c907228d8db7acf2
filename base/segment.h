// Straight lines between points that need not be whole.
#pragma once

#include <optional>

namespace orvane {

struct RealPoint {
  double x = 0;
  double y = 0;
  friend bool operator==(const RealPoint&, const RealPoint&) = default;
};

struct Segment {
  RealPoint from;
  RealPoint to;
  friend bool operator==(const Segment&, const Segment&) = default;
};

// All four edges belong to it.
struct RealBox {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
};

// The part of a segment within the box, so that what reaches far out keeps its slope; nothing when it misses
// the box. An end that is inside stays to the bit. All coordinates are finite.
std::optional<Segment> CutSegment(const Segment& segment, const RealBox& box);

}  // namespace orvane
