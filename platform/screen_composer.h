// Puts surfaces together into the host's frame: only the damaged part, each pixel once, from the top down.
#pragma once

#include <vector>

#include "platform/area.h"
#include "platform/graphics.h"
#include "platform/host.h"

namespace orvane {

// Something opaque on the screen.
struct ScreenItem {
  Point origin;                      // where the surface's (0, 0) stands, logical
  Rect clip;                         // what of it can be seen, logical
  const Surface* surface = nullptr;  // null: a plain area of `fill`
  Colour fill;
};

// The device pixel at which a logical coordinate lies: rounded half up, so that neighbours share their edge.
int DevicePixelEdge(int logical, double scale);
Rect DevicePixelRect(const Rect& logical, double scale);

class ScreenComposer {
 public:
  void Damage(const Rect& screen);
  void DamageAll();
  bool Pending() const { return !damage_.Empty(); }

  // Composes the damage from the items (bottom first) over a dark grey desk, tells the host, forgets the
  // damage.
  void Compose(const std::vector<ScreenItem>& items, double scale, Graphics& graphics, Host& host);

 private:
  Area damage_;  // logical screen coordinates
};

}  // namespace orvane
