#include "platform/area.h"

#include "platform/region.h"

namespace orvane {

Rect Area::Bounds() const {
  Rect bounds;
  for (const Rect& rect : rects_) bounds = Unite(bounds, rect);
  return bounds;
}

void Area::Add(const Rect& rect) {
  if (rect.Empty()) return;
  Subtract(rect);
  rects_.push_back(rect);
}

void Area::Subtract(const Rect& rect) {
  if (rect.Empty() || rects_.empty()) return;
  SubtractRect(rects_, rect);
}

Area Area::CommonWith(const Rect& rect) const {
  Area common;
  for (const Rect& part : rects_) {
    const Rect both = Intersect(part, rect);
    if (!both.Empty()) common.rects_.push_back(both);
  }
  return common;
}

}  // namespace orvane
