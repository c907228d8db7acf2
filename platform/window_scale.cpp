#include "platform/window_scale.h"

#include <algorithm>
#include <cmath>

#include "platform/device.h"

namespace orvane {
namespace {

constexpr double kComfort = 11.0 / 12.0;

double Clamped(double scale) { return std::clamp(scale, kLeastScale, kGreatestScale); }

double LargestWithin(double width, double height) {
  return Clamped(std::min(width / kScreenSize.width, height / kScreenSize.height));
}

}  // namespace

double ComfortableScale(Size desktop) {
  return std::floor(LargestWithin(desktop.width * kComfort, desktop.height * kComfort));
}

double RememberedScale(double remembered, Size desktop) {
  if (!(remembered >= kLeastScale)) return ComfortableScale(desktop);
  return std::min(remembered, LargestWithin(desktop.width, desktop.height));
}

double ScaleForWindow(Size window) {
  double scale = LargestWithin(window.width, window.height);
  // The quotient may be rounded up by a last bit, and the frame by a whole pixel with it.
  while (scale > kLeastScale && (FrameSize(scale).width > std::max(window.width, kScreenSize.width) ||
                                 FrameSize(scale).height > std::max(window.height, kScreenSize.height))) {
    scale = std::nextafter(scale, 0.0);
  }
  return scale;
}

Size FrameSize(double scale) {
  return {static_cast<int>(std::ceil(kScreenSize.width * scale)),
          static_cast<int>(std::ceil(kScreenSize.height * scale))};
}

double SteppedScale(double scale, int step, double standard) {
  if (step == 0) return Clamped(standard);
  return Clamped(step > 0 ? std::floor(scale) + 1 : std::ceil(scale) - 1);
}

}  // namespace orvane
