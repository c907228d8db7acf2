#include "platform/window_scale.h"

#include <algorithm>
#include <cmath>

#include "platform/device.h"
#include "platform/device_pixels.h"
#include "platform/screen_composer.h"

namespace orvane {
namespace {

constexpr double kComfort = 11.0 / 12.0;

double LargestWithin(double width, double height) {
  return BoundedScale(std::min(width / kScreenSize.width, height / kScreenSize.height));
}

}  // namespace

double ComfortableScale(Size desktop) {
  return std::floor(LargestWithin(desktop.width * kComfort, desktop.height * kComfort));
}

double RememberedScale(double remembered, Size desktop) {
  if (!(remembered >= kLeastScale)) return ComfortableScale(desktop);
  return std::min(remembered, LargestWithin(desktop.width, desktop.height));
}

double ScaleForWindow(Size window) { return LargestWithin(window.width, window.height); }

Size FrameSize(double scale) { return DevicePixelRect(kScreenArea, scale).GetSize(); }

double SteppedScale(double scale, int step, double standard) {
  if (step == 0) return BoundedScale(standard);
  return BoundedScale(step > 0 ? std::floor(scale) + 1 : std::ceil(scale) - 1);
}

}  // namespace orvane
