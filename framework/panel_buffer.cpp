#include "framework/panel_buffer.h"

#include <algorithm>

namespace orvane {

namespace {

// A content of up to this many times the visible area is kept whole.
constexpr long long kWholeFactor = 3;

long long Area(Size size) { return static_cast<long long>(size.width) * size.height; }

// A kept part begins at a multiple of this. At scales in quarters that is a whole number of device pixels, so
// that the pixels of the content do not depend on which part of it is kept.
constexpr int kGrid = 4;

constexpr int RoundDown(int value) { return value / kGrid * kGrid; }

// Where the kept stretch of an axis begins and ends: a little more than twice the visible length around it,
// moved as a whole to stay inside the content, so that its length does not change while scrolling.
void Stretch(int& from, int& to, int content) {
  const int visible = to - from;
  const int length = RoundDown(2 * visible + 3 * kGrid);
  if (content <= length) {
    from = 0;
    to = content;
    return;
  }
  const int wanted = std::max(from - (length - visible) / 2, 0);
  // Rounded up at the far end, so that the content's last pixels are kept.
  from = std::min(RoundDown(wanted), RoundDown(content - length + kGrid - 1));
  to = from + length;
}

}  // namespace

void PanelBuffer::Reset() {
  content_ = {};
  held_ = {};
  surface_.reset();
}

Rect PanelBuffer::RectToHold(const Rect& visible) const {
  if (visible.Empty() || Whole().Empty()) return {};
  if (Area(content_) <= kWholeFactor * Area(visible.GetSize())) return Whole();
  Rect part = visible;
  Stretch(part.left, part.right, content_.width);
  Stretch(part.top, part.bottom, content_.height);
  return part;
}

bool PanelBuffer::Allocate(const Rect& held) {
  const bool fits =
      surface_ && surface_->Scale() == device_->Scale() && surface_->GetSize() == held.GetSize();
  held_ = held;
  if (held.Empty()) {
    surface_.reset();
  } else if (!fits) {
    surface_ = device_->CreateSurface(held.GetSize());
  }
  return surface_ != nullptr;
}

void PanelBuffer::PaintPart(const Rect& wanted, const Painter& paint) {
  const Rect part = Intersect(wanted, Held());
  if (part.Empty()) return;
  Canvas& canvas = surface_->GetCanvas();
  canvas.SetOrigin({-held_.left, -held_.top});
  canvas.PushClip(part);
  paint(canvas, part);
  canvas.PopClip();
}

void PanelBuffer::Render(Size content, const Rect& visible, const Painter& paint) {
  content_ = content;
  if (Allocate(RectToHold(visible))) PaintPart(held_, paint);
}

void PanelBuffer::RenderRect(const Rect& rect, const Painter& paint) {
  if (surface_) PaintPart(rect, paint);
}

void PanelBuffer::Hold(const Rect& visible, const Painter& paint) {
  const Rect needed = Intersect(visible, Whole());
  const Rect before = surface_ && surface_->Scale() == device_->Scale() ? held_ : Rect{};
  if (!before.Empty() && before.Contains(needed)) return;
  const Rect wanted = RectToHold(visible);
  const Rect kept = Intersect(before, wanted);
  if (kept.Empty() || wanted.GetSize() != before.GetSize()) {
    Render(content_, visible, paint);
    return;
  }
  // What stays moves to its new place; the stripes beside it are painted.
  Canvas& canvas = surface_->GetCanvas();
  canvas.CopySurface(*surface_, kept.Offset(-before.left, -before.top),
                     {kept.left - wanted.left, kept.top - wanted.top});
  held_ = wanted;
  PaintPart({wanted.left, wanted.top, wanted.right, kept.top}, paint);
  PaintPart({wanted.left, kept.bottom, wanted.right, wanted.bottom}, paint);
  PaintPart({wanted.left, kept.top, kept.left, kept.bottom}, paint);
  PaintPart({kept.right, kept.top, wanted.right, kept.bottom}, paint);
}

void PanelBuffer::Copy(Canvas& to, const Rect& content, Point at) const {
  const Rect part = Intersect(content, Held());
  if (!surface_ || part.Empty()) return;
  to.CopySurface(*surface_, part.Offset(-held_.left, -held_.top),
                 {at.x + part.left - content.left, at.y + part.top - content.top});
}

}  // namespace orvane
