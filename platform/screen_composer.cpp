#include "platform/screen_composer.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "platform/device.h"
#include "platform/device_pixels.h"
#include "platform/pixel_ops.h"

namespace orvane {

namespace {

constexpr Colour kDesk = Rgb(64, 64, 64);

// Beyond this many pieces one larger rectangle is cheaper than the bookkeeping.
constexpr std::size_t kMostPieces = 24;

void FillFrame(const FrameBuffer& frame, const Rect& area, Colour colour) {
  const std::uint32_t pixel = PixelOf(colour);
  for (int y = area.top; y < area.bottom; ++y) {
    std::uint32_t* const row = frame.pixels + static_cast<std::ptrdiff_t>(y) * frame.stride;
    std::fill(row + area.left, row + area.right, pixel);
  }
}

// At a whole scale a surface's pixels lie exactly where the screen's do. At others its inner edges may be one
// device pixel off the rounding of screen coordinates, so the damage is widened by that pixel.
Area DeviceDamage(const Area& damage, double scale, const Rect& frameRect) {
  const int margin = scale == std::floor(scale) ? 0 : 1;
  Area device;
  for (const Rect& rect : damage.Rects()) {
    device.Add(Intersect(DevicePixelRect(rect, scale).Inset(-margin), frameRect));
  }
  return device;
}

void DrawItem(const ScreenItem& item, const Rect& area, double scale, Graphics& graphics,
              const FrameBuffer& frame) {
  if (item.surface == nullptr) {
    FillFrame(frame, area, item.fill);
    return;
  }
  const Point at{DevicePixelEdge(item.origin.x, scale), DevicePixelEdge(item.origin.y, scale)};
  const Rect wanted = area.Offset(-at.x, -at.y);
  const auto copy = [&](const Rect& source, Point shift) {
    const Rect pixels{0, 0, item.surface->DeviceWidth(), item.surface->DeviceHeight()};
    const Rect part = Intersect(source, pixels);
    if (part.Empty()) return;
    graphics.CopyToFrame(*item.surface, part, frame.pixels, frame.stride,
                         {part.left + at.x + shift.x, part.top + at.y + shift.y});
  };
  // Where a surface stands, its logical size may round up to one device pixel more than it does at (0, 0),
  // where it was drawn. Its last column and row are repeated there.
  const Size logical = item.surface->GetSize();
  const Rect drawn = DevicePixelRect(Rect::At({0, 0}, logical), scale);
  copy(Intersect(wanted, drawn), {0, 0});
  const bool wider = wanted.right > drawn.right;
  const bool taller = wanted.bottom > drawn.bottom;
  if (wider) copy(Intersect({drawn.right - 1, wanted.top, drawn.right, wanted.bottom}, drawn), {1, 0});
  if (taller) copy(Intersect({wanted.left, drawn.bottom - 1, wanted.right, drawn.bottom}, drawn), {0, 1});
  if (wider && taller) copy({drawn.right - 1, drawn.bottom - 1, drawn.right, drawn.bottom}, {1, 1});
}

}  // namespace

int DevicePixelEdge(int logical, double scale) { return RoundHalfUp(logical * scale); }

Rect DevicePixelRect(const Rect& logical, double scale) {
  return {DevicePixelEdge(logical.left, scale), DevicePixelEdge(logical.top, scale),
          DevicePixelEdge(logical.right, scale), DevicePixelEdge(logical.bottom, scale)};
}

void ScreenComposer::Damage(const Rect& screen) {
  damage_.Add(Intersect(screen, kScreenArea));
  if (damage_.Rects().size() > kMostPieces) damage_ = Area(damage_.Bounds());
}

void ScreenComposer::DamageAll() { damage_ = Area(kScreenArea); }

void ScreenComposer::Compose(const std::vector<ScreenItem>& items, double scale, Graphics& graphics,
                             Host& host) {
  if (damage_.Empty()) return;
  const Rect whole = DevicePixelRect(kScreenArea, scale);
  const FrameBuffer frame = host.Frame(whole.right, whole.bottom);
  const Area logicalDamage = std::exchange(damage_, Area());
  if (frame.pixels == nullptr) return;
  const Rect frameRect = Intersect(whole, {0, 0, std::min(frame.width, frame.stride), frame.height});

  Area rest = DeviceDamage(logicalDamage, scale, frameRect);
  const Rect changed = rest.Bounds();
  if (changed.Empty()) return;
  for (auto item = items.rbegin(); item != items.rend() && !rest.Empty(); ++item) {
    const Rect place = DevicePixelRect(item->clip, scale);
    const Area part = rest.CommonWith(place);
    for (const Rect& area : part.Rects()) DrawItem(*item, area, scale, graphics, frame);
    rest.Subtract(place);
  }
  for (const Rect& area : rest.Rects()) FillFrame(frame, area, kDesk);
  host.FrameChanged(changed);
}

}  // namespace orvane
