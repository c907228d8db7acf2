// Where the pen and the wheel go: to a layer, else to a window.
#include <algorithm>
#include <cstdint>
#include <utility>

#include "platform/device_parts.h"

namespace orvane {

namespace {

int Within16Bits(int value) { return std::clamp<int>(value, INT16_MIN, INT16_MAX); }

LParam PackClientPoint(Point screen, const Rect& window) {
  // The subtraction is done wide: a host's points may lie anywhere.
  const auto axis = [](int point, int origin) {
    const std::int64_t offset = static_cast<std::int64_t>(point) - origin;
    return static_cast<int>(std::clamp<std::int64_t>(offset, INT16_MIN, INT16_MAX));
  };
  return PackPoint({axis(screen.x, window.left), axis(screen.y, window.top)});
}

}  // namespace

void Device::Parts::Input(QueuedAction action) {
  if (!queue.Empty()) {
    queue.Add(std::move(action));
    return;
  }
  ++busy;
  action();
  --busy;
}

WindowHandle Device::Parts::WindowAt(Point point) const {
  const std::vector<PlacedWindow> placed = windows.Placed();
  for (auto window = placed.rbegin(); window != placed.rend(); ++window) {
    if (window->clip.Contains(point)) return window->handle;
  }
  return kNoWindow;
}

void Device::Parts::HandlePenDown(Point point, PointerKind kind, bool withActionKey) {
  if (keys.PenIsDown()) return;  // a second finger or button is not a second pen
  keys.SetPen(true);
  keys.SetPenAction(withActionKey);
  altAlone = false;
  lastPressWasTouch = kind == PointerKind::kTouch;
  penWindow = kNoWindow;
  penLayer = layers.At(point);
  if (penLayer != nullptr) {
    PenToLayer(*penLayer, &Layer::PenDown, point);
    return;
  }
  if (quitCode) return;
  penWindow = capture != kNoWindow ? capture : WindowAt(point);
  PenToWindow(WM_LBUTTONDOWN, point);
}

void Device::Parts::PenToLayer(Layer& layer, void (Layer::*operation)(Point), Point point) {
  ++layerHasPen;
  (layer.*operation)(point);
  --layerHasPen;
}

// A stroke belongs to the window that saw its beginning. When that window goes away under the pen and nobody
// has captured it, the rest of the stroke is nobody's: what appears beneath must not see half a tap.
void Device::Parts::PenToWindow(std::uint32_t message, Point point) {
  if (quitCode) return;
  WindowHandle target = capture;
  if (target == kNoWindow && windows.IsVisible(penWindow)) target = WindowAt(point);
  const Window* const window = windows.Find(target);
  if (window != nullptr) Send(target, message, 0, PackClientPoint(point, windows.ScreenRect(*window)));
}

void Device::Parts::HandlePenMove(Point point) {
  if (!keys.PenIsDown()) return;
  if (penLayer != nullptr) {
    PenToLayer(*penLayer, &Layer::PenMove, point);
  } else {
    PenToWindow(WM_MOUSEMOVE, point);
  }
}

void Device::Parts::HandlePenUp(Point point) {
  if (!keys.PenIsDown()) return;
  keys.SetPen(false);
  if (Layer* const layer = std::exchange(penLayer, nullptr)) {
    PenToLayer(*layer, &Layer::PenUp, point);
  } else {
    PenToWindow(WM_LBUTTONUP, point);
  }
  // Whoever handles the pen's lifting may still ask whether the action key went with this stroke.
  keys.SetPenAction(false);
}

void Device::Parts::HandleWheel(Point point, int notches, bool sideways) {
  if (Layer* const layer = layers.At(point)) {
    if (!sideways) layer->Wheel(point, notches);  // no layer has anything to show beyond its sides
    return;
  }
  if (quitCode) return;
  const WindowHandle target = WindowAt(point);
  const Window* const window = windows.Find(target);
  if (window == nullptr) return;
  Send(target, WM_MOUSEWHEEL, PackWheel(Within16Bits(notches), sideways),
       PackClientPoint(point, windows.ScreenRect(*window)));
}

void Device::PenDown(Point point, PointerKind kind, bool withActionKey) {
  parts_->Input([parts = parts_.get(), point, kind, withActionKey] {
    parts->HandlePenDown(point, kind, withActionKey);
  });
}

void Device::PenMove(Point point) {
  parts_->Input([parts = parts_.get(), point] { parts->HandlePenMove(point); });
}

void Device::PenUp(Point point) {
  parts_->Input([parts = parts_.get(), point] { parts->HandlePenUp(point); });
}

void Device::Wheel(Point point, int notches, bool sideways) {
  parts_->Input(
      [parts = parts_.get(), point, notches, sideways] { parts->HandleWheel(point, notches, sideways); });
}

}  // namespace orvane
