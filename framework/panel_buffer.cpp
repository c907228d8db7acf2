#include "framework/panel_buffer.h"

#include <algorithm>

namespace orvane {

namespace {

// A content of up to this many times the visible area is kept whole.
constexpr long long kWholeFactor = 3;

long long Area(Size size) { return static_cast<long long>(size.width) * size.height; }

// Where the kept stretch of an axis begins and ends: twice the visible length around it, moved as a whole to
// stay inside the content, so that its length does not change while scrolling.
void Stretch(int& from, int& to, int content) {
  const int length = std::min(content, 2 * (to - from));
  const int wanted = from - (length - (to - from)) / 2;
  from = std::clamp(wanted, 0, content - length);
  to = from + length;
}

}  // namespace

void PanelBuffer::Reset(Size content) {
  content_ = content;
  held_ = {};
  surface_.reset();
}

Rect PanelBuffer::RectToHold(const Rect& visible) const {
  const Rect whole = Rect::At({0, 0}, content_);
  if (Area(content_) <= kWholeFactor * Area(visible.GetSize())) return whole;
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

void PanelBuffer::PaintPart(const Rect& part, const Painter& paint) {
  if (part.Empty()) return;
  Canvas& canvas = surface_->GetCanvas();
  canvas.SetOrigin({-held_.left, -held_.top});
  canvas.PushClip(part);
  paint(canvas, part);
  canvas.PopClip();
}

void PanelBuffer::Render(const Rect& visible, const Painter& paint) {
  if (Allocate(RectToHold(visible))) PaintPart(held_, paint);
}

void PanelBuffer::RenderRect(const Rect& rect, const Painter& paint) {
  if (surface_) PaintPart(Intersect(rect, held_), paint);
}

void PanelBuffer::Hold(const Rect& visible, const Painter& paint) {
  const Rect needed = Intersect(visible, Rect::At({0, 0}, content_));
  if (surface_ && surface_->Scale() == device_->Scale() && held_.Contains(needed)) return;
  const Rect before = surface_ && surface_->Scale() == device_->Scale() ? held_ : Rect{};
  const Rect wanted = RectToHold(visible);
  const Rect kept = Intersect(before, wanted);
  if (kept.Empty() || wanted.GetSize() != before.GetSize()) {
    Render(visible, paint);
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
  const Rect part = Intersect(content, held_);
  if (!surface_ || part.Empty()) return;
  to.CopySurface(*surface_, part.Offset(-held_.left, -held_.top),
                 {at.x + part.left - content.left, at.y + part.top - content.top});
}

}  // namespace orvane
