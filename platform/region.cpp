#include "platform/region.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace orvane {
namespace {

bool ShareEdge(const Rect& a, const Rect& b) {
  const bool sideBySide = a.top == b.top && a.bottom == b.bottom && (a.right == b.left || b.right == a.left);
  const bool stacked = a.left == b.left && a.right == b.right && (a.bottom == b.top || b.bottom == a.top);
  return sideBySide || stacked;
}

// Joins rects[i] with one that shares an edge with it; false when there is none.
bool JoinOne(std::vector<Rect>& rects, std::size_t i) {
  for (std::size_t j = 0; j < rects.size(); ++j) {
    if (j == i || !ShareEdge(rects[i], rects[j])) continue;
    rects[std::min(i, j)] = Unite(rects[i], rects[j]);
    rects.erase(rects.begin() + static_cast<std::ptrdiff_t>(std::max(i, j)));
    return true;
  }
  return false;
}

}  // namespace

void SubtractRect(std::vector<Rect>& rects, const Rect& hole) {
  std::vector<Rect> left;
  left.reserve(rects.size());
  const auto keep = [&left](const Rect& r) {
    if (!r.Empty()) left.push_back(r);
  };
  for (const Rect& r : rects) {
    const Rect cut = Intersect(r, hole);
    if (cut.Empty()) {
      keep(r);
      continue;
    }
    keep({r.left, r.top, r.right, cut.top});
    keep({r.left, cut.top, cut.left, cut.bottom});
    keep({cut.right, cut.top, r.right, cut.bottom});
    keep({r.left, cut.bottom, r.right, r.bottom});
  }
  rects = std::move(left);
}

void JoinRects(std::vector<Rect>& rects) {
  for (std::size_t i = 0; i < rects.size();) {
    i = JoinOne(rects, i) ? 0 : i + 1;
  }
}

}  // namespace orvane
