// Antialiased shapes in device pixels, drawn by Cairo. Everything is cut to the clip, which lies within the
// target; coordinates beyond a few million pixels are moved nearer, since Cairo counts in 24.8 fixed point.
#pragma once

#include <span>

#include "base/colour.h"
#include "base/geometry.h"
#include "base/segment.h"
#include "platform/pixel_ops.h"

namespace orvane {

using DevicePoint = RealPoint;

// Corners are quarters of an ellipse with these radii, at most half the sides.
void FillRoundBox(PixelBuffer& target, const Rect& clip, const Rect& box, double radiusX, double radiusY,
                  Colour fill);

// Joined by round corners, with flat ends.
void StrokePath(PixelBuffer& target, const Rect& clip, std::span<const DevicePoint> points, double width,
                Colour colour);

// Inside is where a ray outward crosses the outline an odd number of times.
void FillPolygon(PixelBuffer& target, const Rect& clip, std::span<const DevicePoint> points, Colour fill);

}  // namespace orvane
