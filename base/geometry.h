// Geometry in logical pixels. Rectangles are half-open: the right and bottom edges are excluded.
#pragma once

#include <algorithm>

namespace orvane {

struct Point {
  int x = 0;
  int y = 0;
  friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
  int width = 0;
  int height = 0;
  friend bool operator==(const Size&, const Size&) = default;
};

struct Rect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  static constexpr Rect At(int x, int y, int width, int height) { return {x, y, x + width, y + height}; }
  static constexpr Rect At(Point p, Size s) { return At(p.x, p.y, s.width, s.height); }

  constexpr int Width() const { return right - left; }
  constexpr int Height() const { return bottom - top; }
  constexpr Point TopLeft() const { return {left, top}; }
  constexpr Size GetSize() const { return {Width(), Height()}; }
  constexpr bool Empty() const { return right <= left || bottom <= top; }
  constexpr bool Contains(Point p) const { return p.x >= left && p.x < right && p.y >= top && p.y < bottom; }
  constexpr bool Contains(const Rect& r) const {
    return r.left >= left && r.right <= right && r.top >= top && r.bottom <= bottom;
  }
  constexpr Rect Offset(int dx, int dy) const { return {left + dx, top + dy, right + dx, bottom + dy}; }
  constexpr Rect Inset(int d) const { return {left + d, top + d, right - d, bottom - d}; }

  friend bool operator==(const Rect&, const Rect&) = default;
};

// The common part; an empty rectangle (0, 0, 0, 0) when there is none.
constexpr Rect Intersect(const Rect& a, const Rect& b) {
  const Rect r{std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
               std::min(a.bottom, b.bottom)};
  return r.Empty() ? Rect{} : r;
}

// The smallest rectangle that holds both; an empty operand does not count.
constexpr Rect Unite(const Rect& a, const Rect& b) {
  if (a.Empty()) return b;
  if (b.Empty()) return a;
  return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
          std::max(a.bottom, b.bottom)};
}

}  // namespace orvane
