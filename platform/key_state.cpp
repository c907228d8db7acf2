#include "platform/key_state.h"

namespace orvane {

namespace {

bool IsModifierKey(int key) { return key == VK_SHIFT || key == VK_CONTROL || key == VK_MENU; }

// Whether the modifiers say that this modifier key is held.
bool Says(Modifiers modifiers, int key) {
  return key == VK_SHIFT ? modifiers.shift : key == VK_CONTROL ? modifiers.control : modifiers.alt;
}

}  // namespace

void KeyState::Down(int key, Modifiers modifiers) {
  held_.insert(key);
  if (IsModifierKey(key)) return;
  withKey_ = modifiers;
  keyWithModifiers_ = key;
}

void KeyState::Up(int key, Modifiers modifiers) {
  // There are two of each modifier key: while the other one is held, the modifier is.
  if (IsModifierKey(key) && Says(modifiers, key)) return;
  held_.erase(key);
  if (key == VK_SHIFT) withKey_.shift = false;
  if (key == VK_CONTROL) withKey_.control = false;
  if (key == VK_MENU) withKey_.alt = false;
  if (key == keyWithModifiers_) {
    withKey_ = {};
    keyWithModifiers_ = 0;
  }
}

Modifiers KeyState::Current() const {
  return {withKey_.shift || held_.count(VK_SHIFT) != 0, withKey_.control || held_.count(VK_CONTROL) != 0,
          withKey_.alt || held_.count(VK_MENU) != 0};
}

bool KeyState::IsDown(int key) const {
  switch (key) {
    case VK_LBUTTON:
      return pen_;
    case VK_ACTION:
      return penAction_ || action_ || Current().control || held_.count(VK_ACTION) != 0;
    case VK_SHIFT:
      return Current().shift;
    case VK_CONTROL:
      return Current().control;
    case VK_MENU:
      return Current().alt;
    default:
      return held_.count(key) != 0;
  }
}

}  // namespace orvane
