// The layers above the windows, bottom to top, with the surface that each was painted into last.
#pragma once

#include <array>
#include <memory>

#include "platform/device_factories.h"
#include "platform/screen_composer.h"

namespace orvane {

class LayerStack {
 public:
  struct Slot {
    Layer* layer = nullptr;            // never null once Make has returned
    std::unique_ptr<Surface> surface;  // only while the layer is visible
    bool changed = true;
    Rect shown;  // where the screen has it; empty while it has not
  };
  static constexpr std::size_t kCount = 6;

  // Layers that are made later may use those made before.
  void Make(Device& device, const DeviceFactories& factories, PanelMode panelMode);

  TitleLayer& Title() { return *title_; }
  BarLayer& Bar() { return *bar_; }
  PanelLayer& Panel() { return *panel_; }
  DialogLayer& Dialog() { return *dialog_; }
  PopupLayer& Popup() { return *popup_; }
  MessageLayer& Message() { return *message_; }

  const std::array<Slot, kCount>& Slots() const { return slots_; }  // bottom first
  // The layer that takes a pen or wheel at the point: the topmost modal one, or a visible one there that no
  // modal layer stands above. Null when the windows get it.
  Layer* At(Point point) const;
  Layer* Modal() const;  // the topmost, or null

  void Changed(const Layer& layer);
  void DropSurfaces();
  void CatchUp();  // tells every layer, bottom first
  bool Behind() const;
  // True when a layer looks or stands otherwise than the screen has it.
  bool Pending() const;
  // Paints what has changed and adds to the damage of the screen where the screen differs now.
  void Refresh(Graphics& graphics, double scale, bool recordRuns, ScreenComposer& screen);

 private:
  std::unique_ptr<TitleLayer> title_;
  std::unique_ptr<BarLayer> bar_;
  std::unique_ptr<PanelLayer> panel_;
  std::unique_ptr<DialogLayer> dialog_;
  std::unique_ptr<PopupLayer> popup_;
  std::unique_ptr<MessageLayer> message_;
  std::array<Slot, kCount> slots_;
};

}  // namespace orvane
