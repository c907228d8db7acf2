#include "platform/host_headless.h"

#include <cairo.h>

#include <cmath>
#include <utility>

#include "platform/device.h"
#include "platform/window_scale.h"

namespace orvane {

FrameBuffer HeadlessHost::Frame(int width, int height) {
  if (width != width_ || height != height_) {
    width_ = width;
    height_ = height;
    pixels_.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0);
  }
  return {pixels_.data(), width_, height_, width_};
}

void HeadlessHost::ChangeScale(int step) { scaleSteps_.push_back(step); }

bool HeadlessHost::ApplyScale(Device& device) {
  const std::vector<int> steps = std::exchange(scaleSteps_, {});
  for (const int step : steps) device.SetScale(SteppedScale(device.Scale(), step, standardScale_));
  return !steps.empty();
}

Colour HeadlessHost::PixelAt(Point logical, double scale) const {
  const double x = std::floor((logical.x + 0.5) * scale);
  const double y = std::floor((logical.y + 0.5) * scale);
  if (!(x >= 0 && y >= 0 && x < width_ && y < height_)) return kBlack;
  const auto column = static_cast<std::size_t>(x);
  const auto row = static_cast<std::size_t>(y);
  const std::uint32_t pixel = pixels_[row * static_cast<std::size_t>(width_) + column];
  return Rgb(static_cast<int>((pixel >> 16) & 0xFFu), static_cast<int>((pixel >> 8) & 0xFFu),
             static_cast<int>(pixel & 0xFFu));
}

bool HeadlessHost::WritePng(const std::string& path) const {
  if (pixels_.empty()) return false;
  // Cairo wants rows of writable bytes; RGB24 in memory is the frame's own layout.
  std::vector<std::uint32_t> copy = pixels_;
  cairo_surface_t* surface =
      cairo_image_surface_create_for_data(reinterpret_cast<unsigned char*>(copy.data()), CAIRO_FORMAT_RGB24,
                                          width_, height_, width_ * static_cast<int>(sizeof(std::uint32_t)));
  const bool written = cairo_surface_write_to_png(surface, path.c_str()) == CAIRO_STATUS_SUCCESS;
  cairo_surface_destroy(surface);
  return written;
}

}  // namespace orvane
