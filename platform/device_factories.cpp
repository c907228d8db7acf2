#include "platform/device_factories.h"

#include "platform/device.h"

namespace orvane {

DeviceFactories StandardFactories() {
  return {MakeGraphics,    MakeTitleLayer, MakeBarLayer,    MakePanelLayer,
          MakeDialogLayer, MakePopupLayer, MakeMessageLayer};
}

// Stands here and not with the other constructor, so that a program that brings all its own parts links
// without the standard ones.
Device::Device(Host& host, const DeviceOptions& options) : Device(host, options, StandardFactories()) {}

}  // namespace orvane
