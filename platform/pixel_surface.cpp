#include "platform/pixel_surface.h"

#include <algorithm>
#include <utility>

namespace orvane {
namespace {

constexpr int kLargestSide = 1 << 15;  // logical pixels

Size SafeSize(Size size) {
  return {std::clamp(size.width, 1, kLargestSide), std::clamp(size.height, 1, kLargestSide)};
}

}  // namespace

PixelSurface::PixelSurface(Size size, double scale, bool recordRuns,
                           std::shared_ptr<std::uint32_t> lineNumbers)
    : grid_(SafeSize(size), BoundedScale(scale)),
      pixels_(grid_.DeviceWidth(), grid_.DeviceHeight()),
      runs_(recordRuns ? std::make_optional<TextRuns>() : std::nullopt),
      canvas_(grid_, pixels_, runs_ ? &*runs_ : nullptr, std::move(lineNumbers)) {}

Canvas& PixelSurface::GetCanvas() {
  canvas_.Reset();
  return canvas_;
}

const std::vector<TextRun>& PixelSurface::Runs() const {
  static const std::vector<TextRun> kNone;
  return runs_ ? runs_->List() : kNone;
}

std::uint32_t PixelSurface::DevicePixel(int x, int y) const {
  return pixels_.Bounds().Contains(Point{x, y}) ? pixels_.Row(y)[x] : 0;
}

}  // namespace orvane
