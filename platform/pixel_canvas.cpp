#include "platform/pixel_canvas.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace orvane {
namespace {

constexpr int kWidestLine = 1 << 12;

Size Radii(const Rect& r) { return {r.Width(), r.Height()}; }

}  // namespace

PixelCanvas::PixelCanvas(const DeviceGrid& grid, PixelBuffer& pixels, TextRuns* runs,
                         std::shared_ptr<std::uint32_t> lineNumbers)
    : grid_(grid), pixels_(pixels), runs_(runs), lineNumbers_(std::move(lineNumbers)) {
  Reset();
}

void PixelCanvas::Reset() {
  origin_ = {};
  clips_.assign(1, Rect::At({}, grid_.Logical()));
}

void PixelCanvas::SetOrigin(Point origin) { origin_ = {ClampFar(origin.x), ClampFar(origin.y)}; }

void PixelCanvas::PushClip(const Rect& clip) { clips_.push_back(Intersect(Clip(), OnSurface(clip))); }

void PixelCanvas::PopClip() {
  if (clips_.size() > 1) clips_.pop_back();
}

Rect PixelCanvas::ClipBounds() const { return MovedSafely(Clip(), {-origin_.x, -origin_.y}); }

Point PixelCanvas::OnSurface(Point p) const {
  return {ClampFar(std::int64_t{p.x} + origin_.x), ClampFar(std::int64_t{p.y} + origin_.y)};
}

DevicePoint PixelCanvas::PixelCentre(Point p) const {
  return {((0.0 + grid_.X(p.x)) + grid_.X(p.x + 1)) / 2, ((0.0 + grid_.Y(p.y)) + grid_.Y(p.y + 1)) / 2};
}

void PixelCanvas::FillDevice(const Rect& rect, Colour fill) {
  FillPixels(pixels_, Intersect(grid_.Device(rect), DeviceClip()), fill);
}

void PixelCanvas::Cover(const Rect& rect) {
  if (runs_ != nullptr) runs_->Cover(Intersect(rect, Clip()));
}

void PixelCanvas::FillRect(const Rect& rect, Colour fill) {
  const Rect r = OnSurface(rect);
  FillDevice(r, fill);
  Cover(r);
}

void PixelCanvas::Rectangle(const Rect& rect, Colour outline, Colour fill) {
  const Rect r = OnSurface(rect);
  if (r.Empty()) return;
  FrameRect(rect, outline);
  const Rect inside = r.Inset(1);
  if (!inside.Empty()) FillDevice(inside, fill);
  Cover(r);
}

void PixelCanvas::FrameRect(const Rect& rect, Colour outline) {
  const Rect r = OnSurface(rect);
  if (r.Empty()) return;
  FillDevice({r.left, r.top, r.right, r.top + 1}, outline);
  FillDevice({r.left, r.bottom - 1, r.right, r.bottom}, outline);
  FillDevice({r.left, r.top, r.left + 1, r.bottom}, outline);
  FillDevice({r.right - 1, r.top, r.right, r.bottom}, outline);
}

// The outline is what the inner shape leaves of the outer one, so that it is one logical pixel wide all
// around and nothing from below shines through between the two.
void PixelCanvas::DrawRoundRect(const Rect& rect, double radiusX, double radiusY, Colour outline,
                                Colour fill) {
  const Rect outer = grid_.Device(rect);
  FillRoundBox(pixels_, DeviceClip(), outer, radiusX, radiusY, outline);
  const Rect within = rect.Inset(1);
  if (within.Empty() || fill == outline) return;
  const Rect inner = grid_.Device(within);
  FillRoundBox(pixels_, DeviceClip(), inner, radiusX - (inner.left - outer.left),
               radiusY - (inner.top - outer.top), fill);
}

void PixelCanvas::RoundRect(const Rect& rect, Size cornerEllipse, Colour outline, Colour fill) {
  if (cornerEllipse.width <= 0 || cornerEllipse.height <= 0) {
    Rectangle(rect, outline, fill);
    return;
  }
  const Rect r = OnSurface(rect);
  if (r.Empty()) return;
  const Size corner{std::min(cornerEllipse.width, r.Width()), std::min(cornerEllipse.height, r.Height())};
  DrawRoundRect(r, corner.width * Scale() / 2, corner.height * Scale() / 2, outline, fill);
  if (runs_ == nullptr) return;
  for (const Rect& covered : CoveredByRoundRect(r, corner)) Cover(covered);
}

void PixelCanvas::Ellipse(const Rect& rect, Colour outline, Colour fill) {
  const Rect r = OnSurface(rect);
  if (r.Empty()) return;
  const Rect box = grid_.Device(r);
  DrawRoundRect(r, box.Width() / 2.0, box.Height() / 2.0, outline, fill);
  if (runs_ == nullptr) return;
  for (const Rect& covered : CoveredByRoundRect(r, Radii(r))) Cover(covered);
}

void PixelCanvas::Line(Point from, Point to, Colour colour, int width) {
  const Point ends[] = {from, to};
  Polyline(ends, colour, width);
}

void PixelCanvas::Polyline(std::span<const Point> points, Colour colour, int width) {
  const int w = std::clamp(width, 1, kWidestLine);
  bool straight = true;
  for (std::size_t i = 1; i < points.size(); ++i) {
    straight = straight && (points[i].x == points[i - 1].x || points[i].y == points[i - 1].y);
  }
  if (!straight) {
    FreeLine(points, colour, w);
    return;
  }
  for (std::size_t i = 1; i < points.size(); ++i) {
    StraightLine(OnSurface(points[i - 1]), OnSurface(points[i]), colour, w);
  }
}

// Whole logical pixels. The first point is drawn, the last is not, in whichever direction the line runs. An
// even width has the pixel more on the upper or left side.
void PixelCanvas::StraightLine(Point from, Point to, Colour colour, int width) {
  const auto drawn = [](int a, int b) { return a < b ? std::pair{a, b} : std::pair{b + 1, a + 1}; };
  const int before = width / 2;
  if (from.y == to.y && from.x != to.x) {
    const auto [left, right] = drawn(from.x, to.x);
    FillDevice({left, from.y - before, right, from.y - before + width}, colour);
  } else if (from.x == to.x && from.y != to.y) {
    const auto [top, bottom] = drawn(from.y, to.y);
    FillDevice({from.x - before, top, from.x - before + width, bottom}, colour);
  }
}

// Lines at an angle run from pixel centre to pixel centre. The whole is moved back by half a pixel of its
// longer direction at both ends, so that the first pixel is drawn and the last is not.
void PixelCanvas::FreeLine(std::span<const Point> points, Colour colour, int width) {
  std::vector<DevicePoint> path;
  path.reserve(points.size());
  for (const Point& point : points) {
    const DevicePoint p = PixelCentre(OnSurface(point));
    if (path.empty() || p.x != path.back().x || p.y != path.back().y) path.push_back(p);
  }
  if (path.size() < 2) return;
  const auto moveBack = [this](DevicePoint& moved, DevicePoint from, DevicePoint to) {
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    const double step = Scale() / 2 / std::max(std::abs(dx), std::abs(dy));
    moved = {moved.x - dx * step, moved.y - dy * step};
  };
  const DevicePoint first = path.front();
  const DevicePoint beforeLast = path[path.size() - 2];
  moveBack(path.front(), first, path[1]);
  moveBack(path.back(), beforeLast, path.back());
  StrokePath(pixels_, DeviceClip(), path, width * Scale(), colour);
}

// The corners are corners of the pixel grid, so that a polygon of a rectangle's corners is that rectangle.
void PixelCanvas::Polygon(std::span<const Point> points, Colour fill) {
  std::vector<DevicePoint> corners;
  corners.reserve(points.size());
  for (const Point& point : points) {
    const Point p = OnSurface(point);
    corners.push_back({static_cast<double>(grid_.X(p.x)), static_cast<double>(grid_.Y(p.y))});
  }
  FillPolygon(pixels_, DeviceClip(), corners, fill);
}

}  // namespace orvane
