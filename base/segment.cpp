#include "base/segment.h"

#include <algorithm>

namespace orvane {

namespace {

// Cuts one side: what stays has position + t × direction >= bound for all t of [t0, t1].
bool CutSide(double position, double direction, double bound, double& t0, double& t1) {
  if (direction == 0) return position >= bound;
  const double t = (bound - position) / direction;
  if (direction > 0) {
    t0 = std::max(t0, t);
  } else {
    t1 = std::min(t1, t);
  }
  return t0 <= t1;
}

}  // namespace

// Liang and Barsky's method.
std::optional<Segment> CutSegment(const Segment& segment, const RealBox& box) {
  const auto& [a, b] = segment;
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  double t0 = 0;
  double t1 = 1;
  if (!CutSide(a.x, dx, box.left, t0, t1) || !CutSide(-a.x, -dx, -box.right, t0, t1) ||
      !CutSide(a.y, dy, box.top, t0, t1) || !CutSide(-a.y, -dy, -box.bottom, t0, t1)) {
    return std::nullopt;
  }
  return Segment{t0 > 0 ? RealPoint{a.x + dx * t0, a.y + dy * t0} : a,
                 t1 < 1 ? RealPoint{a.x + dx * t1, a.y + dy * t1} : b};
}

}  // namespace orvane
