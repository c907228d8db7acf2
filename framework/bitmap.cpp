#include "framework/bitmap.h"

#include "framework/resource_loader.h"

namespace orvane {

Bitmap::Bitmap(Device& device) : device_(&device) {}

void Bitmap::Load(int imageId, int maskId) {
  if (imageId == kNoImage) return;
  Destroy();
  image_ = LoadResourceImage(*device_, imageId);
  if (image_) size_ = image_->GetSize();
  if (maskId != kNoImage) mask_ = LoadResourceImage(*device_, maskId);
}

void Bitmap::CreateBlank(int width, int height) {
  Destroy();
  size_ = {width, height};
  blank_ = true;
}

void Bitmap::Destroy() {
  image_.reset();
  mask_.reset();
  surface_.reset();
  size_ = {};
  blank_ = false;
}

void Bitmap::Draw(Canvas& canvas, int x, int y) const {
  DrawPart(canvas, x, y, 0, 0, size_.width, size_.height);
}

void Bitmap::DrawPart(Canvas& canvas, int x, int y, int sourceX, int sourceY, int width, int height) const {
  const Rect part = Rect::At(sourceX, sourceY, width, height);
  if (surface_) {
    canvas.CopySurface(*surface_, part, {x, y});
  } else if (image_) {
    canvas.DrawImage(*image_, {x, y}, part);
  }
}

void Bitmap::DrawMasked(Canvas& canvas, int x, int y) const {
  if (image_ && mask_) {
    canvas.DrawMasked(*image_, *mask_, {x, y});
  } else {
    Draw(canvas, x, y);
  }
}

Canvas& Bitmap::GetCanvas() {
  if (!surface_ || surface_->Scale() != device_->Scale()) surface_ = device_->CreateSurface(size_);
  return surface_->GetCanvas();
}

}  // namespace orvane
