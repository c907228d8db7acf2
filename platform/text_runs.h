// Keeps the text runs of a surface in step with its pixels, for a device that records.
#pragma once

#include <vector>

#include "platform/canvas.h"

namespace orvane {

class TextRuns {
 public:
  const std::vector<TextRun>& List() const { return runs_; }

  // A run was drawn and could be seen within the clip; its `shown` is worked out here. Drawn again over
  // itself, after a part of it was moved or covered, it is one run still.
  void Add(TextRun run, const Rect& clip);

  // Something opaque was drawn over the rectangle.
  void Cover(const Rect& rect);

  // The pixels of sourceRect were copied to `to`, of the same size, and could be seen within the clip.
  // `source` may be this list.
  void Copy(const std::vector<TextRun>& source, const Rect& sourceRect, Point to, const Rect& clip);

 private:
  std::vector<TextRun> runs_;  // in the order of drawing; shown is never empty
};

// The parts of an ellipse-cornered rectangle that its fill covers for certain: the widest and the tallest
// rectangle between the corners, and the largest one that reaches into them.
std::vector<Rect> CoveredByRoundRect(const Rect& rect, Size cornerEllipse);

}  // namespace orvane
