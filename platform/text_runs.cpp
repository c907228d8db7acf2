#include "platform/text_runs.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <utility>

#include "platform/device_pixels.h"
#include "platform/region.h"

namespace orvane {
namespace {

bool SameDrawing(const TextRun& a, const TextRun& b) {
  return a.rect == b.rect && a.colour == b.colour && a.font == b.font && a.text == b.text;
}

// The runs of the part of `source` that is copied, in the coordinates of the target.
std::vector<TextRun> Moved(const std::vector<TextRun>& source, const Rect& sourceRect, Point to,
                           const Rect& clip) {
  const Point by{to.x - sourceRect.left, to.y - sourceRect.top};
  std::vector<TextRun> moved;
  for (const TextRun& run : source) {
    std::vector<Rect> shown;
    for (const Rect& part : run.shown) {
      const Rect seen = Intersect(MovedSafely(Intersect(part, sourceRect), by), clip);
      if (!seen.Empty()) shown.push_back(seen);
    }
    if (shown.empty()) continue;
    moved.push_back(run);
    moved.back().rect = MovedSafely(run.rect, by);
    moved.back().shown = std::move(shown);
  }
  return moved;
}

}  // namespace

void TextRuns::Add(TextRun run, const Rect& clip) {
  if (run.shown.empty()) {
    const Rect seen = Intersect(run.rect, clip);
    if (seen.Empty()) return;
    run.shown.push_back(seen);
  }
  const auto old =
      std::find_if(runs_.begin(), runs_.end(), [&run](const TextRun& r) { return SameDrawing(r, run); });
  if (old != runs_.end()) {
    for (const Rect& part : run.shown) SubtractRect(old->shown, part);
    run.shown.insert(run.shown.end(), old->shown.begin(), old->shown.end());
    JoinRects(run.shown);
    // The rest of the old visual line stays one line with the part that was drawn again.
    const std::uint32_t oldLine = old->line;
    runs_.erase(old);
    for (TextRun& r : runs_) {
      if (r.line == oldLine) r.line = run.line;
    }
  }
  runs_.push_back(std::move(run));
}

void TextRuns::Cover(const Rect& rect) {
  if (rect.Empty()) return;
  for (TextRun& run : runs_) {
    const bool touched = std::any_of(run.shown.begin(), run.shown.end(),
                                     [&rect](const Rect& part) { return !Intersect(part, rect).Empty(); });
    if (touched) SubtractRect(run.shown, rect);
  }
  runs_.erase(
      std::remove_if(runs_.begin(), runs_.end(), [](const TextRun& run) { return run.shown.empty(); }),
      runs_.end());
}

void TextRuns::Copy(const std::vector<TextRun>& source, const Rect& sourceRect, Point to, const Rect& clip) {
  const Rect target = Intersect(Rect::At(to, sourceRect.GetSize()), clip);
  std::vector<TextRun> moved = Moved(source, sourceRect, to, target);
  Cover(target);
  for (TextRun& run : moved) Add(std::move(run), target);
}

std::vector<Rect> CoveredByRoundRect(const Rect& rect, Size cornerEllipse) {
  const auto radius = [](int corner, int side) { return std::clamp((corner + 1) / 2, 0, (side + 1) / 2); };
  const int rx = radius(cornerEllipse.width, rect.Width());
  const int ry = radius(cornerEllipse.height, rect.Height());
  // An ellipse passes its corner's diagonal at 1 − 1/√2 of each radius from the edges.
  const auto inset = [](int r) { return static_cast<int>(std::ceil(r * (1.0 - std::sqrt(0.5)))); };
  const Rect candidates[] = {
      {rect.left, rect.top + ry, rect.right, rect.bottom - ry},
      {rect.left + rx, rect.top, rect.right - rx, rect.bottom},
      {rect.left + inset(rx), rect.top + inset(ry), rect.right - inset(rx), rect.bottom - inset(ry)}};
  std::vector<Rect> covered;
  std::copy_if(std::begin(candidates), std::end(candidates), std::back_inserter(covered),
               [](const Rect& r) { return !r.Empty(); });
  return covered;
}

}  // namespace orvane
