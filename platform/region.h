// Areas as lists of rectangles that do not overlap: what is left of a window under others, or of a text run
// under what was drawn over it. Only comparisons are made, so any coordinates are safe.
#pragma once

#include <vector>

#include "base/geometry.h"

namespace orvane {

// Takes the hole out of every rectangle of the list. What is left stays free of overlap and of empty
// rectangles: above and below the hole in full width, left and right of it in the hole's height.
void SubtractRect(std::vector<Rect>& rects, const Rect& hole);

// Joins rectangles that share a whole edge until no two do. The area stays the same.
void JoinRects(std::vector<Rect>& rects);

}  // namespace orvane
