// What a scrolling panel keeps of its content, painted once and then only copied. A small content is kept
// whole; of a large one the part that shows and a margin around it, so that memory stays bounded and most
// scrolling needs no painting.
#pragma once

#include <functional>
#include <memory>

#include "platform/device.h"

namespace orvane {

class PanelBuffer {
 public:
  // Paints the content rectangle; the canvas is in content coordinates and clipped to it.
  using Painter = std::function<void(Canvas& canvas, const Rect& content)>;

  explicit PanelBuffer(Device& device) : device_(&device) {}

  // Forgets everything that was painted.
  void Reset();
  // Paints anew what is kept of a content of this size; `visible` is the content rectangle that shows now.
  void Render(Size content, const Rect& visible, const Painter& paint);
  // Paints anew the part of the rectangle that is kept.
  void RenderRect(const Rect& rect, const Painter& paint);
  // Makes sure that `visible` is kept, painting what is missing.
  void Hold(const Rect& visible, const Painter& paint);
  // Copies what is kept of a content rectangle to the point of another canvas.
  void Copy(Canvas& to, const Rect& content, Point at) const;

  // The part of the content that is kept.
  Rect Held() const { return Intersect(held_, Whole()); }

 private:
  Rect Whole() const { return Rect::At({0, 0}, content_); }
  Rect RectToHold(const Rect& visible) const;
  void PaintPart(const Rect& wanted, const Painter& paint);
  bool Allocate(const Rect& held);

  Device* device_;
  Size content_;
  Rect held_;  // the content rectangle that the surface shows; may reach a little beyond the content
  std::unique_ptr<Surface> surface_;
};

}  // namespace orvane
