// Making a device, and its services that have no rules of their own.
#include "platform/device.h"

#include "platform/device_parts.h"
#include "platform/device_pixels.h"

namespace orvane {

Device::Parts::Parts(Device& itself, Host& theHost, const DeviceOptions& options,
                     const DeviceFactories& factories)
    : device(itself),
      host(theHost),
      trace(options.trace),
      recordRuns(options.recordRuns),
      scale(BoundedScale(options.scale)),
      graphics(factories.graphics(options.fontFolder)) {
  composer.DamageAll();
}

Device::Device(Host& host, const DeviceOptions& options, const DeviceFactories& factories)
    : parts_(std::make_unique<Parts>(*this, host, options, factories)) {
  parts_->layers.Make(*this, factories, options.panelMode);
}

// The procedures of windows that are left are not called: what they would speak to may be gone already.
Device::~Device() = default;

std::unique_ptr<Surface> Device::CreateSurface(Size size) {
  return parts_->graphics->CreateSurface(size, parts_->scale, parts_->recordRuns);
}

std::shared_ptr<const Image> Device::LoadImage(const EncodedImage& image) {
  return parts_->graphics->LoadImage(image);
}

FontLibrary& Device::Fonts() { return parts_->graphics->Fonts(); }

void Device::SetScale(double scale) {
  const double bounded = BoundedScale(scale);
  if (bounded == parts_->scale) return;
  parts_->scale = bounded;
  parts_->BlankEverything();
  for (const WindowHandle window : parts_->windows.All()) Send(window, WM_DISPLAYCHANGE);
}

double Device::Scale() const { return parts_->scale; }

void Device::SetWaitCursor(bool wait) {
  if (wait == parts_->waitCursor) return;
  parts_->waitCursor = wait;
  if (parts_->trace != nullptr) parts_->trace->CursorChanged(wait);
  parts_->host.ShowWaitCursor(wait);
}

bool Device::WaitCursor() const { return parts_->waitCursor; }

bool Device::SetClipboardText(TextView text) { return parts_->host.SetClipboard(text); }

std::optional<Text> Device::ClipboardText() { return parts_->host.GetClipboard(); }

void Device::SetMainWindow(WindowHandle window) {
  const Window* const record = parts_->windows.Find(window);
  parts_->mainWindow = record == nullptr ? kNoWindow : window;
  if (record != nullptr) parts_->host.SetTitle(Title(window));
}

WindowHandle Device::MainWindow() const { return parts_->mainWindow; }

MenuBars& Device::Bars() { return parts_->layers.Bar(); }
PopupMenus& Device::Popups() { return parts_->layers.Popup(); }
MessageBoxes& Device::Boxes() { return parts_->layers.Message(); }
Dialogs& Device::DialogBoxes() { return parts_->layers.Dialog(); }
InputPanel& Device::Panel() { return parts_->layers.Panel(); }

void Device::LayerChanged(const Layer& layer) { parts_->layers.Changed(layer); }

TraceSink* Device::Trace() const { return parts_->trace; }

}  // namespace orvane
