// Makes the standard layers above the windows. A device calls each once, in this order (LayerStack::Make).
#pragma once

#include <memory>

#include "platform/dialogs.h"
#include "platform/input_panel.h"
#include "platform/layer.h"
#include "platform/menu_bar.h"
#include "platform/message_boxes.h"
#include "platform/popup_menu.h"

namespace orvane {

class Device;

class TitleLayer : public Layer {};  // title of the topmost visible top-level window, and a close box
class BarLayer : public Layer, public MenuBars {};
class PanelLayer : public Layer, public InputPanel {};
class DialogLayer : public Layer, public Dialogs {};
class PopupLayer : public Layer, public PopupMenus {};
class MessageLayer : public Layer, public MessageBoxes {};

std::unique_ptr<TitleLayer> MakeTitleLayer(Device& device);
std::unique_ptr<BarLayer> MakeBarLayer(Device& device);
std::unique_ptr<PanelLayer> MakePanelLayer(Device& device, PanelMode mode);
std::unique_ptr<DialogLayer> MakeDialogLayer(Device& device);
std::unique_ptr<PopupLayer> MakePopupLayer(Device& device);
std::unique_ptr<MessageLayer> MakeMessageLayer(Device& device);

}  // namespace orvane
