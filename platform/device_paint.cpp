// What of the windows has to be painted, and asking them to.
#include <cmath>

#include "platform/device_parts.h"

namespace orvane {

namespace {

// Content can be moved by a copy when the move is a whole number of device pixels.
bool IsWholeMove(int logical, double scale) {
  const double device = logical * scale;
  return device == std::floor(device);
}

}  // namespace

std::vector<std::pair<PlacedWindow, Area>> Device::Parts::ShownWindows() const {
  std::vector<PlacedWindow> placed = windows.Placed();
  std::vector<std::pair<PlacedWindow, Area>> shown(placed.size());
  Area free(kScreenArea);
  for (std::size_t i = placed.size(); i-- > 0;) {
    shown[i] = {placed[i], free.CommonWith(placed[i].clip)};
    free.Subtract(placed[i].clip);
  }
  return shown;
}

bool Device::Parts::EnsureSurface(Window& window) {
  if (window.surface != nullptr) return true;
  if (window.Client().Empty()) return false;
  window.surface = graphics->CreateSurface(window.rect.GetSize(), scale, recordRuns);
  if (window.surface == nullptr) return false;
  if (const std::optional<Colour> background = window.windowClass->background) {
    window.surface->GetCanvas().FillRect(window.Client(), *background);
  }
  return true;
}

void Device::Parts::Paint(WindowHandle handle) {
  Window* window = windows.Find(handle);
  if (window == nullptr || window->painting || window->invalid.Empty() || !EnsureSurface(*window)) return;
  window->painting = true;
  window->paintClip = window->invalid;
  window->invalidAgain = {};
  const Point at = windows.ScreenRect(*window).TopLeft();
  composer.Damage(Intersect(window->paintClip.Offset(at.x, at.y), windows.ClippedScreenRect(*window)));
  Send(handle, WM_PAINT, 0, 0);
  window = windows.Find(handle);
  if (window == nullptr) return;
  window->painting = false;
  // Asked once, a window has answered for all of it, whether it says so or not; what it invalidated itself
  // meanwhile, or lost by being hidden or resized, waits for the next time.
  window->invalid = window->surface == nullptr ? window->Client() : window->invalidAgain;
}

void Device::Parts::PaintInvalid() {
  for (const auto& [placed, region] : ShownWindows()) {
    if (!region.Empty() && windows.IsVisible(placed.handle)) Paint(placed.handle);
  }
}

void Device::Invalidate(WindowHandle window) {
  if (const Window* const record = parts_->windows.Find(window)) Invalidate(window, record->Client());
}

void Device::Invalidate(WindowHandle window, const Rect& clientRect) {
  Window* const record = parts_->windows.Find(window);
  if (record == nullptr) return;
  const Rect part = Intersect(clientRect, record->Client());
  record->invalid = Unite(record->invalid, part);
  if (record->painting) record->invalidAgain = Unite(record->invalidAgain, part);
}

void Device::Validate(WindowHandle window) {
  Window* const record = parts_->windows.Find(window);
  if (record == nullptr || record->surface == nullptr) return;
  record->invalid = {};
  record->invalidAgain = {};
}

void Device::Update(WindowHandle window) {
  for (const auto& [placed, region] : parts_->ShownWindows()) {
    if (placed.handle == window && !region.Empty()) parts_->Paint(window);
  }
}

Rect Device::InvalidRect(WindowHandle window) const {
  const Window* const record = parts_->windows.Find(window);
  return record == nullptr ? Rect{} : record->invalid;
}

Canvas& Device::WindowCanvas(WindowHandle window) {
  Window* const record = parts_->windows.Find(window);
  if (record == nullptr || !parts_->EnsureSurface(*record)) {
    if (parts_->scratch == nullptr) parts_->scratch = parts_->graphics->CreateSurface({1, 1}, 1.0, false);
    return parts_->scratch->GetCanvas();
  }
  Canvas& canvas = record->surface->GetCanvas();
  if (record->painting) {
    canvas.PushClip(record->paintClip);
  } else {
    parts_->Damage(*record);
  }
  return canvas;
}

void Device::ScrollWindowRect(WindowHandle window, const Rect& rect, int dx, int dy) {
  Window* const record = parts_->windows.Find(window);
  if (record == nullptr || (dx == 0 && dy == 0)) return;
  const Rect area = Intersect(rect, record->Client());
  // A move by more than the area's size leaves nothing of it; the bounds also keep the sums small.
  const bool far = dx >= area.Width() || dx <= -area.Width() || dy >= area.Height() || dy <= -area.Height();
  if (far || record->surface == nullptr || !IsWholeMove(dx, parts_->scale) ||
      !IsWholeMove(dy, parts_->scale)) {
    Invalidate(window, area);
    return;
  }
  const Rect moved = Intersect(area.Offset(dx, dy), area);
  Canvas& canvas = WindowCanvas(window);
  canvas.PushClip(area);
  canvas.CopySurface(*record->surface, moved.Offset(-dx, -dy), moved.TopLeft());
  canvas.PopClip();
  // What was invalid has moved along.
  Invalidate(window, Intersect(Intersect(record->invalid, area).Offset(dx, dy), area));
  Area uncovered(area);
  uncovered.Subtract(moved);
  Invalidate(window, uncovered.Bounds());
}

}  // namespace orvane
