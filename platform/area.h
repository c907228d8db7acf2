// A set of pixels as disjoint rectangles: what of a window shows, what of the screen has to be drawn again.
#pragma once

#include <vector>

#include "base/geometry.h"

namespace orvane {

class Area {
 public:
  Area() = default;
  explicit Area(const Rect& rect) { Add(rect); }

  bool Empty() const { return rects_.empty(); }
  const std::vector<Rect>& Rects() const { return rects_; }
  Rect Bounds() const;

  void Clear() { rects_.clear(); }
  void Add(const Rect& rect);
  void Subtract(const Rect& rect);
  Area CommonWith(const Rect& rect) const;

 private:
  std::vector<Rect> rects_;  // disjoint, none of them empty
};

}  // namespace orvane
