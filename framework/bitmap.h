// A picture from the resources, with or without a mask, or a blank off-screen surface to draw into.
#pragma once

#include <memory>

#include "platform/device.h"

namespace orvane {

// The image or mask number that stands for none.
inline constexpr int kNoImage = -1;

class Bitmap {
 public:
  // No image, no mask, 0 × 0.
  explicit Bitmap(Device& device);

  // Takes image and mask from the resources and the size from the image. `imageId` none: nothing changes.
  // `maskId` none: there is no mask. An unknown image leaves the object empty.
  void Load(int imageId, int maskId);
  // An off-screen surface of the given logical size. It takes memory when it is first drawn into.
  void CreateBlank(int width, int height);
  // Back to empty.
  void Destroy();

  bool HasImage() const { return image_ != nullptr || blank_; }
  bool HasMask() const { return mask_ != nullptr; }
  int Width() const { return size_.width; }
  int Height() const { return size_.height; }

  // Copies the whole image, or a part of it, to (x, y). Nothing when there is no image.
  void Draw(Canvas& canvas, int x, int y) const;
  void DrawPart(Canvas& canvas, int x, int y, int sourceX, int sourceY, int width, int height) const;
  // Copies the image where the mask is white; where it is black the canvas becomes its bitwise AND with the
  // image. Without a mask the whole image is copied.
  void DrawMasked(Canvas& canvas, int x, int y) const;

  // Of a blank bitmap: its canvas. The surface follows the device's scale; after a change of scale it is
  // new and black.
  Canvas& GetCanvas();
  // Of a blank bitmap that has been drawn into; otherwise null.
  const Surface* GetSurface() const { return surface_.get(); }

 private:
  Device* device_;
  std::shared_ptr<const Image> image_;
  std::shared_ptr<const Image> mask_;
  std::unique_ptr<Surface> surface_;
  Size size_;
  bool blank_ = false;
};

}  // namespace orvane
