#include "platform/cairo_shapes.h"

#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <utility>

namespace orvane {
namespace {

constexpr double kFarthestPixel = 4e6;

struct Closer {
  void operator()(cairo_t* cairo) const { cairo_destroy(cairo); }
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};

// A Cairo context on the pixels of a buffer, for one shape.
class ShapePainter {
 public:
  ShapePainter(PixelBuffer& target, const Rect& clip, Colour colour)
      : target_(target),
        clip_(clip),
        surface_(cairo_image_surface_create_for_data(reinterpret_cast<unsigned char*>(target.pixels.data()),
                                                     CAIRO_FORMAT_RGB24, target.width, target.height,
                                                     target.width * static_cast<int>(sizeof(std::uint32_t)))),
        cairo_(cairo_create(surface_.get())) {
    cairo_rectangle(Get(), clip.left, clip.top, clip.Width(), clip.Height());
    cairo_clip(Get());
    cairo_set_source_rgb(Get(), colour.red / 255.0, colour.green / 255.0, colour.blue / 255.0);
  }

  cairo_t* Get() const { return cairo_.get(); }

  // Cairo may write anything into the unused byte of a pixel; here it is always 0, so that pixels compare.
  void ClearUnusedBytes() {
    cairo_surface_flush(surface_.get());
    for (int y = clip_.top; y < clip_.bottom; ++y) {
      std::uint32_t* row = target_.Row(y);
      for (int x = clip_.left; x < clip_.right; ++x) row[x] &= 0x00FFFFFFu;
    }
  }

 private:
  PixelBuffer& target_;
  Rect clip_;
  std::unique_ptr<cairo_surface_t, Closer> surface_;
  std::unique_ptr<cairo_t, Closer> cairo_;
};

double Near(double v) { return std::clamp(v, -kFarthestPixel, kFarthestPixel); }

// The pixels within `margin` of the points, as far as they lie in the clip.
Rect Touched(std::span<const DevicePoint> points, double margin, const Rect& clip) {
  if (points.empty()) return {};
  DevicePoint low = points.front();
  DevicePoint high = low;
  for (const DevicePoint& p : points) {
    low = {std::min(low.x, p.x), std::min(low.y, p.y)};
    high = {std::max(high.x, p.x), std::max(high.y, p.y)};
  }
  const auto pixel = [](double v) { return static_cast<int>(std::floor(Near(v))); };
  return Intersect(
      {pixel(low.x - margin), pixel(low.y - margin), pixel(high.x + margin) + 1, pixel(high.y + margin) + 1},
      clip);
}

// The path of a box whose corners are elliptic, each quarter one Bézier curve.
void AddRoundBox(cairo_t* cairo, double left, double top, double right, double bottom, double rx, double ry) {
  const double k = 4.0 / 3.0 * (std::sqrt(2.0) - 1.0);  // the usual control distance of a quarter circle
  const double kx = rx * (1 - k);
  const double ky = ry * (1 - k);
  cairo_move_to(cairo, left + rx, top);
  cairo_line_to(cairo, right - rx, top);
  cairo_curve_to(cairo, right - kx, top, right, top + ky, right, top + ry);
  cairo_line_to(cairo, right, bottom - ry);
  cairo_curve_to(cairo, right, bottom - ky, right - kx, bottom, right - rx, bottom);
  cairo_line_to(cairo, left + rx, bottom);
  cairo_curve_to(cairo, left + kx, bottom, left, bottom - ky, left, bottom - ry);
  cairo_line_to(cairo, left, top + ry);
  cairo_curve_to(cairo, left, top + ky, left + kx, top, left + rx, top);
  cairo_close_path(cairo);
}

// Cuts one side of a segment: what stays has position + t × direction >= bound for all t of [t0, t1].
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

// The part of a segment within `margin` of the clip (Liang and Barsky's method), so that a segment that
// reaches far out keeps its slope.
std::optional<std::pair<DevicePoint, DevicePoint>> NearPart(DevicePoint a, DevicePoint b, const Rect& clip,
                                                            double margin) {
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  double t0 = 0;
  double t1 = 1;
  if (!CutSide(a.x, dx, clip.left - margin, t0, t1) || !CutSide(-a.x, -dx, -(clip.right + margin), t0, t1) ||
      !CutSide(a.y, dy, clip.top - margin, t0, t1) || !CutSide(-a.y, -dy, -(clip.bottom + margin), t0, t1)) {
    return std::nullopt;
  }
  const DevicePoint from = t0 > 0 ? DevicePoint{a.x + dx * t0, a.y + dy * t0} : a;
  const DevicePoint to = t1 < 1 ? DevicePoint{a.x + dx * t1, a.y + dy * t1} : b;
  return std::pair{from, to};
}

}  // namespace

void FillRoundBox(PixelBuffer& target, const Rect& clip, const Rect& box, double radiusX, double radiusY,
                  Colour fill) {
  const Rect area = Intersect(box, clip);
  if (area.Empty()) return;
  const double left = Near(box.left);
  const double top = Near(box.top);
  const double right = Near(box.right);
  const double bottom = Near(box.bottom);
  const double rx = std::clamp(radiusX, 0.0, (right - left) / 2);
  const double ry = std::clamp(radiusY, 0.0, (bottom - top) / 2);
  if (rx <= 0 || ry <= 0) {
    FillPixels(target, area, fill);
    return;
  }
  ShapePainter painter(target, area, fill);
  AddRoundBox(painter.Get(), left, top, right, bottom, rx, ry);
  cairo_fill(painter.Get());
  painter.ClearUnusedBytes();
}

void StrokePath(PixelBuffer& target, const Rect& clip, std::span<const DevicePoint> points, double width,
                Colour colour) {
  const Rect area = Touched(points, width, clip);
  if (area.Empty() || points.size() < 2) return;
  ShapePainter painter(target, area, colour);
  cairo_set_line_width(painter.Get(), width);
  cairo_set_line_join(painter.Get(), CAIRO_LINE_JOIN_ROUND);
  bool joined = false;
  for (std::size_t i = 1; i < points.size(); ++i) {
    const auto part = NearPart(points[i - 1], points[i], area, 2 * width + 2);
    if (!part) {
      joined = false;
      continue;
    }
    if (!joined) cairo_move_to(painter.Get(), part->first.x, part->first.y);
    cairo_line_to(painter.Get(), part->second.x, part->second.y);
    // A segment whose end was cut off does not meet the next one inside the clip.
    joined = part->second.x == points[i].x && part->second.y == points[i].y;
  }
  cairo_stroke(painter.Get());
  painter.ClearUnusedBytes();
}

void FillPolygon(PixelBuffer& target, const Rect& clip, std::span<const DevicePoint> points, Colour fill) {
  const Rect area = Touched(points, 0, clip);
  if (area.Empty() || points.size() < 3) return;
  ShapePainter painter(target, area, fill);
  cairo_set_fill_rule(painter.Get(), CAIRO_FILL_RULE_EVEN_ODD);
  for (const DevicePoint& p : points) cairo_line_to(painter.Get(), Near(p.x), Near(p.y));
  cairo_close_path(painter.Get());
  cairo_fill(painter.Get());
  painter.ClearUnusedBytes();
}

}  // namespace orvane
