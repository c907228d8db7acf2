#include "platform/cairo_shapes.h"

#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>

namespace orvane {
namespace {

constexpr double kFarthestPixel = 4e6;

struct Closer {
  void operator()(cairo_t* cairo) const { cairo_destroy(cairo); }
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};

// How far beyond the clip a shape is still drawn. What Cairo draws near a vertical edge of its own clip
// differs in shade from what it draws without one; so it draws more than is wanted, and the picture of a
// shape does not depend on the clip.
constexpr int kReach = 1024;

// One shape, drawn as coverage and then blended into a buffer.
class ShapePainter {
 public:
  // `area`: the pixels to draw. Rows are as wide as Cairo's, a multiple of four bytes.
  explicit ShapePainter(const Rect& area)
      : area_{area.left, area.top, area.left + (area.Width() + 3) / 4 * 4, area.bottom},
        surface_(cairo_image_surface_create(CAIRO_FORMAT_A8, area_.Width(), area_.Height())),
        cairo_(cairo_create(surface_.get())) {
    cairo_translate(Get(), -area_.left, -area_.top);
  }

  cairo_t* Get() const { return cairo_.get(); }

  void Blend(PixelBuffer& target, const Rect& clip, Colour colour) {
    cairo_surface_flush(surface_.get());
    const unsigned char* bytes = cairo_image_surface_get_data(surface_.get());
    if (bytes == nullptr) return;
    BlendCoverage(target, {bytes, area_.Width(), area_.Height()}, area_.TopLeft(), clip, colour);
  }

 private:
  Rect area_;
  std::unique_ptr<cairo_surface_t, Closer> surface_;
  std::unique_ptr<cairo_t, Closer> cairo_;
};

double Near(double v) { return std::clamp(v, -kFarthestPixel, kFarthestPixel); }

// What to draw of a shape within these bounds so that it can be seen in the clip; empty when it cannot.
Rect AreaToDraw(const Rect& bounds, const Rect& clip) {
  if (Intersect(bounds, clip).Empty()) return {};
  return Intersect(bounds, {clip.left - kReach, clip.top, clip.right + kReach, clip.bottom});
}

// The pixels within `margin` of the points.
Rect Touched(std::span<const DevicePoint> points, double margin) {
  if (points.empty()) return {};
  DevicePoint low = points.front();
  DevicePoint high = low;
  for (const DevicePoint& p : points) {
    low = {std::min(low.x, p.x), std::min(low.y, p.y)};
    high = {std::max(high.x, p.x), std::max(high.y, p.y)};
  }
  const auto pixel = [](double v) { return static_cast<int>(std::floor(Near(v))); };
  return {pixel(low.x - margin), pixel(low.y - margin), pixel(high.x + margin) + 1,
          pixel(high.y + margin) + 1};
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
  ShapePainter painter(AreaToDraw(box, clip));
  AddRoundBox(painter.Get(), left, top, right, bottom, rx, ry);
  cairo_fill(painter.Get());
  painter.Blend(target, clip, fill);
}

void StrokePath(PixelBuffer& target, const Rect& clip, std::span<const DevicePoint> points, double width,
                Colour colour) {
  const Rect area = AreaToDraw(Touched(points, width), clip);
  if (area.Empty() || points.size() < 2) return;
  ShapePainter painter(area);
  cairo_set_line_width(painter.Get(), width);
  cairo_set_line_join(painter.Get(), CAIRO_LINE_JOIN_ROUND);
  const double reach = 2 * width + kReach;
  const RealBox near{area.left - reach, area.top - reach, area.right + reach, area.bottom + reach};
  bool joined = false;
  for (std::size_t i = 1; i < points.size(); ++i) {
    const std::optional<Segment> part = CutSegment({points[i - 1], points[i]}, near);
    if (!part) {
      joined = false;
      continue;
    }
    if (!joined) cairo_move_to(painter.Get(), part->from.x, part->from.y);
    cairo_line_to(painter.Get(), part->to.x, part->to.y);
    // A segment whose end was cut off does not meet the next one inside the clip.
    joined = part->to == points[i];
  }
  cairo_stroke(painter.Get());
  painter.Blend(target, clip, colour);
}

void FillPolygon(PixelBuffer& target, const Rect& clip, std::span<const DevicePoint> points, Colour fill) {
  const Rect area = AreaToDraw(Touched(points, 0), clip);
  if (area.Empty() || points.size() < 3) return;
  ShapePainter painter(area);
  cairo_set_fill_rule(painter.Get(), CAIRO_FILL_RULE_EVEN_ODD);
  for (const DevicePoint& p : points) cairo_line_to(painter.Get(), Near(p.x), Near(p.y));
  cairo_close_path(painter.Get());
  cairo_fill(painter.Get());
  painter.Blend(target, clip, fill);
}

}  // namespace orvane
