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

  // Forgets everything that was painted. `content` is the whole content's size.
  void Reset(Size content);
  // Paints anew what is kept; `visible` is the content rectangle that shows now.
  void Render(const Rect& visible, const Painter& paint);
  // Paints anew the part of the rectangle that is kept.
  void RenderRect(const Rect& rect, const Painter& paint);
  // Makes sure that `visible` is kept, painting what is missing.
  void Hold(const Rect& visible, const Painter& paint);
  // Copies a kept content rectangle to the point of another canvas.
  void Copy(Canvas& to, const Rect& content, Point at) const;

  const Rect& Held() const { return held_; }

 private:
  Rect RectToHold(const Rect& visible) const;
  void PaintPart(const Rect& part, const Painter& paint);
  bool Allocate(const Rect& held);

  Device* device_;
  Size content_;
  Rect held_;  // the content rectangle that the surface shows
  std::unique_ptr<Surface> surface_;
};

}  // namespace orvane
