#include "platform/layer_stack.h"

#include <algorithm>

namespace orvane {

namespace {

Rect WantedPlace(const Layer& layer) { return layer.Visible() ? layer.Bounds() : Rect{}; }

}  // namespace

void LayerStack::Make(Device& device, const DeviceFactories& factories, PanelMode panelMode) {
  title_ = factories.title(device);
  slots_[0].layer = title_.get();
  bar_ = factories.bar(device);
  slots_[1].layer = bar_.get();
  panel_ = factories.panel(device, panelMode);
  slots_[2].layer = panel_.get();
  dialog_ = factories.dialog(device);
  slots_[3].layer = dialog_.get();
  popup_ = factories.popup(device);
  slots_[4].layer = popup_.get();
  message_ = factories.message(device);
  slots_[5].layer = message_.get();
}

Layer* LayerStack::At(Point point) const {
  for (auto slot = slots_.rbegin(); slot != slots_.rend(); ++slot) {
    Layer* const layer = slot->layer;
    if (!layer->Visible()) continue;
    if (layer->Modal() || layer->Bounds().Contains(point)) return layer;
  }
  return nullptr;
}

Layer* LayerStack::Modal() const {
  for (auto slot = slots_.rbegin(); slot != slots_.rend(); ++slot) {
    if (slot->layer->Visible() && slot->layer->Modal()) return slot->layer;
  }
  return nullptr;
}

void LayerStack::Changed(const Layer& layer) {
  for (Slot& slot : slots_) {
    if (slot.layer == &layer) slot.changed = true;
  }
}

void LayerStack::DropSurfaces() {
  for (Slot& slot : slots_) {
    slot.surface.reset();
    slot.changed = true;
  }
}

void LayerStack::CatchUp() {
  for (const Slot& slot : slots_) slot.layer->CatchUp();
}

bool LayerStack::Behind() const {
  return std::any_of(slots_.begin(), slots_.end(), [](const Slot& slot) { return slot.layer->Behind(); });
}

bool LayerStack::Pending() const {
  for (const Slot& slot : slots_) {
    const Rect wanted = WantedPlace(*slot.layer);
    if (wanted != slot.shown || (slot.changed && !wanted.Empty())) return true;
  }
  return false;
}

void LayerStack::Refresh(Graphics& graphics, double scale, bool recordRuns, ScreenComposer& screen) {
  for (Slot& slot : slots_) {
    const Rect wanted = WantedPlace(*slot.layer);
    if (wanted != slot.shown) {
      screen.Damage(slot.shown);
      slot.changed = true;
    }
    if (!slot.changed) continue;
    slot.shown = wanted;
    slot.changed = false;
    if (wanted.Empty()) {
      slot.surface.reset();
      continue;
    }
    if (slot.surface == nullptr || slot.surface->GetSize() != wanted.GetSize()) {
      slot.surface = graphics.CreateSurface(wanted.GetSize(), scale, recordRuns);
    }
    slot.layer->Paint(slot.surface->GetCanvas());
    screen.Damage(wanted);
  }
}

}  // namespace orvane
