// A surface in main memory, one 32-bit number 0x00RRGGBB a device pixel.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "platform/canvas.h"
#include "platform/device_pixels.h"
#include "platform/pixel_canvas.h"
#include "platform/pixel_ops.h"
#include "platform/text_runs.h"

namespace orvane {

class PixelSurface final : public Surface {
 public:
  // `lineNumbers` counts the text lines of all surfaces that share it.
  PixelSurface(Size size, double scale, bool recordRuns, std::shared_ptr<std::uint32_t> lineNumbers);

  Size GetSize() const override { return grid_.Logical(); }
  double Scale() const override { return grid_.Scale(); }
  Canvas& GetCanvas() override;
  const std::vector<TextRun>& Runs() const override;
  int DeviceWidth() const override { return pixels_.width; }
  int DeviceHeight() const override { return pixels_.height; }
  std::uint32_t DevicePixel(int x, int y) const override;

  const PixelBuffer& Pixels() const { return pixels_; }

 private:
  DeviceGrid grid_;
  PixelBuffer pixels_;
  std::optional<TextRuns> runs_;
  PixelCanvas canvas_;
};

}  // namespace orvane
