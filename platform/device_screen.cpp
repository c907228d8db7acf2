// From painted surfaces to the host's frame.
#include <set>

#include "platform/device_parts.h"

namespace orvane {

namespace {

constexpr Colour kUnpainted = Rgb(64, 64, 64);

}  // namespace

void Device::Parts::Compose() {
  if (presenting) return;
  presenting = true;
  layers.Refresh(*graphics, scale, recordRuns, composer);
  FreeCoveredSurfaces();
  if (composer.Pending()) {
    std::vector<ScreenItem> items;
    for (const PlacedWindow& placed : windows.Placed()) {
      const Window& window = *windows.Find(placed.handle);
      items.push_back({placed.screen.TopLeft(), placed.clip, window.surface.get(),
                       window.windowClass->background.value_or(kUnpainted)});
    }
    for (const LayerStack::Slot& slot : layers.Slots()) {
      if (slot.surface != nullptr) {
        items.push_back({slot.shown.TopLeft(), slot.shown, slot.surface.get(), kUnpainted});
      }
    }
    composer.Compose(items, scale, *graphics, host);
  }
  presenting = false;
}

// Pixels are kept only of what can be seen. A window that others have come to cover wholly gives them up and
// paints again when it is uncovered, so that any number of open windows costs no more than a screenful each
// of what shows.
void Device::Parts::FreeCoveredSurfaces() {
  std::set<WindowHandle> shown;
  for (const auto& [placed, region] : ShownWindows()) {
    if (!region.Empty()) shown.insert(placed.handle);
  }
  for (const WindowHandle handle : windows.All()) {
    Window& window = *windows.Find(handle);
    if (window.surface != nullptr && !window.painting && shown.count(handle) == 0) Blank(window);
  }
}

bool Device::Parts::ScreenPending() const {
  if (composer.Pending() || layers.Pending()) return true;
  if (quitCode) return false;
  for (const auto& [placed, region] : ShownWindows()) {
    if (!region.Empty() && !windows.Find(placed.handle)->invalid.Empty()) return true;
  }
  return false;
}

void Device::Parts::BlankEverything() {
  for (const WindowHandle handle : windows.All()) {
    Window& window = *windows.Find(handle);
    if (window.painting) {
      window.invalidAgain = window.Client();
    } else {
      Blank(window);
    }
  }
  layers.DropSurfaces();
  composer.DamageAll();
}

bool Device::Quiescent() const {
  return parts_->queue.Empty() && !parts_->layers.Behind() && !parts_->ScreenPending();
}

void Device::PresentNow() {
  parts_->PaintInvalid();
  parts_->Compose();
}

void Device::InvalidateScreen() { parts_->composer.DamageAll(); }

void Device::RepaintEverything() {
  parts_->BlankEverything();
  PresentNow();
}

}  // namespace orvane
