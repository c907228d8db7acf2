// Makes the drawing objects of a device; today's are built on Cairo and FreeType.
#pragma once

#include <memory>
#include <string>

#include "platform/canvas.h"
#include "platform/font.h"

namespace orvane {

class Graphics {
 public:
  virtual ~Graphics() = default;
  virtual FontLibrary& Fonts() = 0;
  // A surface filled with black; `recordRuns` as in DeviceOptions. Sizes below one pixel become one.
  virtual std::unique_ptr<Surface> CreateSurface(Size size, double scale, bool recordRuns) = 0;
  virtual std::shared_ptr<const Image> LoadImage(const EncodedImage& image) = 0;
  // Copies device pixels of a surface into a frame: no conversion, no blending.
  virtual void CopyToFrame(const Surface& source, const Rect& sourceDevicePixels, std::uint32_t* frame,
                           int frameStride, Point at) = 0;
};

// `fontFolder` is searched after the system's folders.
std::unique_ptr<Graphics> MakeGraphics(const std::string& fontFolder);

}  // namespace orvane
