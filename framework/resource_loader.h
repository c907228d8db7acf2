// Turns entries of the resource tables into the hand-held's objects.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/device.h"

namespace orvane {

// Null when no image has this number.
std::shared_ptr<const Image> LoadResourceImage(Device& device, int imageId);
// The cells of a strip in order; empty when no strip has this number.
std::vector<std::shared_ptr<const Image>> LoadResourceStrip(Device& device, int stripId);

// The menu behind a menu number; empty when there is none.
Menu LoadResourceMenu(int menuId);
// The buttons of a menu bar, its menus filled in; empty when there is none.
std::vector<BarButton> LoadResourceBar(int barId);

// A dialog's template under the name that reports use; nullopt when no dialog has this number.
std::optional<DialogTemplate> LoadResourceDialog(Device& device, int dialogId, std::string name);

}  // namespace orvane
