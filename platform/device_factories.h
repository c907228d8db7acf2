// What a device is put together from. The standard set is the one every program uses; a test replaces what
// it wants to watch.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/chrome.h"
#include "platform/graphics.h"

namespace orvane {

struct DeviceFactories {
  std::function<std::unique_ptr<Graphics>(const std::string& fontFolder)> graphics;
  std::function<std::unique_ptr<TitleLayer>(Device&)> title;
  std::function<std::unique_ptr<BarLayer>(Device&)> bar;
  std::function<std::unique_ptr<PanelLayer>(Device&, PanelMode)> panel;
  std::function<std::unique_ptr<DialogLayer>(Device&)> dialog;
  std::function<std::unique_ptr<PopupLayer>(Device&)> popup;
  std::function<std::unique_ptr<MessageLayer>(Device&)> message;
};

DeviceFactories StandardFactories();

}  // namespace orvane
