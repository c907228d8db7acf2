// The grid of device pixels under the logical pixels of a surface or a picture.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "base/geometry.h"

namespace orvane {

// Logical coordinates are clamped to this distance, so that sums and products with a scale of up to 16 stay
// within an int. No surface is near that large.
inline constexpr int kFarthest = 1 << 26;

constexpr int ClampFar(std::int64_t v) {
  return static_cast<int>(std::clamp<std::int64_t>(v, -kFarthest, kFarthest));
}

// The same rectangle moved; one that lies too far away for ints is cut or moved to the farthest edge. An
// empty one becomes (0, 0, 0, 0).
constexpr Rect MovedSafely(const Rect& r, Point by) {
  if (r.Empty()) return {};
  return {ClampFar(std::int64_t{r.left} + by.x), ClampFar(std::int64_t{r.top} + by.y),
          ClampFar(std::int64_t{r.right} + by.x), ClampFar(std::int64_t{r.bottom} + by.y)};
}

inline int RoundHalfUp(double v) { return static_cast<int>(std::floor(v + 0.5)); }

// Device pixels a logical pixel: what a device, a surface and a host's window can have.
inline constexpr double kLeastScale = 1.0;
inline constexpr double kGreatestScale = 16.0;

// The nearest of those scales; what is no number becomes the least.
inline double BoundedScale(double scale) {
  return scale >= kLeastScale ? std::min(scale, kGreatestScale) : kLeastScale;
}

class DeviceGrid {
 public:
  DeviceGrid(Size logical, double scale) : logical_(logical), scale_(scale) {}

  Size Logical() const { return logical_; }
  double Scale() const { return scale_; }
  int DeviceWidth() const { return DeviceLength(logical_.width); }
  int DeviceHeight() const { return DeviceLength(logical_.height); }

  // The device pixel at which a logical pixel begins. The last logical pixel reaches up to the end of the
  // device pixels, so that at a fractional scale no strip is left that nothing could paint.
  int X(int x) const { return Edge(x, logical_.width); }
  int Y(int y) const { return Edge(y, logical_.height); }
  Rect Device(const Rect& r) const { return {X(r.left), Y(r.top), X(r.right), Y(r.bottom)}; }

 private:
  // The small amount keeps a product such as 240 × 1.1 = 264.00000000000006 from taking one pixel more.
  int DeviceLength(int length) const { return static_cast<int>(std::ceil(length * scale_ - 1e-6)); }
  int Edge(int v, int length) const {
    const int edge = RoundHalfUp(ClampFar(v) * scale_);
    return v >= length ? std::max(edge, DeviceLength(length)) : edge;
  }

  Size logical_;
  double scale_;
};

}  // namespace orvane
