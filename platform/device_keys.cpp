// Where keys go: to the layers, then to accelerators, then to the window with the focus.
#include <utility>

#include "platform/device_parts.h"

namespace orvane {

bool Device::Parts::ChangeScaleByKey(int key, Modifiers modifiers) {
  if (!modifiers.control || modifiers.alt) return false;
  switch (key) {
    case VK_ADD:
      host.ChangeScale(+1);
      return true;
    case VK_SUBTRACT:
      host.ChangeScale(-1);
      return true;
    case '0':
      host.ChangeScale(0);
      return true;
    default:
      return false;
  }
}

bool Device::Parts::FireAccelerator(int key, Modifiers modifiers) {
  for (const Accelerator& accelerator : accelerators) {
    if (accelerator.key != key || accelerator.modifiers != modifiers) continue;
    if (windows.Find(accelerator.window) == nullptr) continue;
    device.Post(accelerator.window, WM_COMMAND, PackCommand(accelerator.command, 0));
    return true;
  }
  return false;
}

void Device::Parts::OpenFirstMenu() {
  MenuBars& bars = layers.Bar();
  const int count = bars.Count(bars.Shown());
  for (int position = 0; position < count; ++position) {
    if (!bars.OpenMenu(position)) continue;
    layers.Popup().SelectFirst();
    return;
  }
}

// Alt and a digit press a button of the bar, counted from the left, its menus and separators left out: what
// the pen reaches, the keyboard does too. A button that is disabled keeps its number.
bool Device::Parts::PressButtonByKey(int key, Modifiers modifiers) {
  if (modifiers != Modifiers{.alt = true} || key < '1' || key > '9') return false;
  int number = '0';
  for (const BarButtonPlace& place : layers.Bar().Places()) {
    const ButtonStyle style = place.button.style;
    if (style == ButtonStyle::kSeparator || style == ButtonStyle::kMenu || ++number != key) continue;
    if (layers.Bar().Press(place.button.id)) layers.Popup().SelectFirst();
    return true;
  }
  return false;
}

void Device::Parts::HandleKeyDown(int key, Modifiers modifiers, bool byPen) {
  keys.Down(key, modifiers);
  if (!byPen) lastPressWasTouch = false;
  layerTookKey = false;
  altAlone = key == VK_MENU;
  if (ChangeScaleByKey(key, modifiers)) return;
  for (auto slot = layers.Slots().rbegin(); slot != layers.Slots().rend(); ++slot) {
    if (!slot->layer->Visible()) continue;
    const bool modal = slot->layer->Modal();
    if (!slot->layer->KeyDown(key, modifiers) && !modal) continue;
    altAlone = false;
    layerTookKey = true;
    return;
  }
  if (quitCode || FireAccelerator(key, modifiers)) return;
  if (key == VK_F10 && modifiers == Modifiers{}) {
    OpenFirstMenu();
    return;
  }
  if (PressButtonByKey(key, modifiers)) return;
  keys.RememberWindowSaw(key);
  Send(focus, WM_KEYDOWN, static_cast<WParam>(static_cast<std::uint32_t>(key)), 0);
}

void Device::Parts::HandleKeyUp(int key, Modifiers modifiers) {
  keys.Up(key, modifiers);
  layerTookKey = false;
  const bool seen = keys.ForgetWindowSaw(key);
  if (quitCode || layers.Modal() != nullptr) return;
  if (seen) Send(focus, WM_KEYUP, static_cast<WParam>(static_cast<std::uint32_t>(key)), 0);
  if (key == VK_MENU && std::exchange(altAlone, false)) OpenFirstMenu();
}

// The space that dismisses a message box must not be typed into the text box that appears below it.
void Device::Parts::HandleCharacter(Char character) {
  if (layerTookKey) return;
  for (auto slot = layers.Slots().rbegin(); slot != layers.Slots().rend(); ++slot) {
    if (!slot->layer->Visible()) continue;
    const bool modal = slot->layer->Modal();
    if (slot->layer->Character(character) || modal) return;
  }
  if (!quitCode) Send(focus, WM_CHAR, character, 0);
}

// While start-up has got no further than its messages there is no main window to close: closing answers them.
void Device::Parts::HandleClose() {
  if (windows.Find(mainWindow) == nullptr) {
    layers.Message().DismissAll();
  } else if (!quitCode) {
    Send(mainWindow, WM_CLOSE, 0, 0);
  }
}

void Device::KeyDown(int key, Modifiers modifiers) {
  // The key may have to queue, and is handled when the pen has long been lifted.
  const bool byPen = parts_->layerHasPen > 0;
  parts_->Input(
      [parts = parts_.get(), key, modifiers, byPen] { parts->HandleKeyDown(key, modifiers, byPen); });
}

void Device::KeyUp(int key, Modifiers modifiers) {
  parts_->Input([parts = parts_.get(), key, modifiers] { parts->HandleKeyUp(key, modifiers); });
}

void Device::Character(Char character) {
  parts_->Input([parts = parts_.get(), character] { parts->HandleCharacter(character); });
}

void Device::HoldActionKey(bool held) {
  parts_->Input([parts = parts_.get(), held] { parts->keys.SetAction(held); });
}

void Device::CloseFromOutside() {
  parts_->Input([parts = parts_.get()] { parts->HandleClose(); });
}

bool Device::IsKeyDown(int key) const { return parts_->keys.IsDown(key); }

Modifiers Device::CurrentModifiers() const { return parts_->keys.Current(); }

bool Device::LastPressWasTouch() const { return parts_->lastPressWasTouch; }

void Device::SetAccelerators(std::vector<Accelerator> accelerators) {
  parts_->accelerators = std::move(accelerators);
}

}  // namespace orvane
