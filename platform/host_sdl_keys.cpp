#include "platform/host_sdl_keys.h"

#include <SDL_keycode.h>

#include <array>

#include "platform/messages.h"

namespace orvane {
namespace {

struct KeyPair {
  std::int32_t desktop;
  int key;
};

// The right Alt key is left out: on many layouts it types characters.
constexpr std::array<KeyPair, 25> kKeys = {{
    {SDLK_LEFT, VK_LEFT},      {SDLK_RIGHT, VK_RIGHT},   {SDLK_UP, VK_UP},
    {SDLK_DOWN, VK_DOWN},      {SDLK_HOME, VK_HOME},     {SDLK_END, VK_END},
    {SDLK_PAGEUP, VK_PRIOR},   {SDLK_PAGEDOWN, VK_NEXT}, {SDLK_BACKSPACE, VK_BACK},
    {SDLK_DELETE, VK_DELETE},  {SDLK_RETURN, VK_RETURN}, {SDLK_KP_ENTER, VK_RETURN},
    {SDLK_RETURN2, VK_RETURN}, {SDLK_ESCAPE, VK_ESCAPE}, {SDLK_TAB, VK_TAB},
    {SDLK_SPACE, VK_SPACE},    {SDLK_LSHIFT, VK_SHIFT},  {SDLK_RSHIFT, VK_SHIFT},
    {SDLK_LCTRL, VK_CONTROL},  {SDLK_RCTRL, VK_CONTROL}, {SDLK_LALT, VK_MENU},
    {SDLK_KP_PLUS, VK_ADD},    {SDLK_PLUS, VK_ADD},      {SDLK_KP_MINUS, VK_SUBTRACT},
    {SDLK_MINUS, VK_SUBTRACT},
}};

struct KeypadKey {
  std::int32_t desktop;
  int digit;
  int other;  // what it is without Num Lock
};

constexpr std::array<KeypadKey, 11> kKeypad = {{{SDLK_KP_0, '0', 0},
                                                {SDLK_KP_1, '1', VK_END},
                                                {SDLK_KP_2, '2', VK_DOWN},
                                                {SDLK_KP_3, '3', VK_NEXT},
                                                {SDLK_KP_4, '4', VK_LEFT},
                                                {SDLK_KP_5, '5', 0},
                                                {SDLK_KP_6, '6', VK_RIGHT},
                                                {SDLK_KP_7, '7', VK_HOME},
                                                {SDLK_KP_8, '8', VK_UP},
                                                {SDLK_KP_9, '9', VK_PRIOR},
                                                {SDLK_KP_PERIOD, 0, VK_DELETE}}};

}  // namespace

int KeyOfDesktop(std::int32_t keycode, bool numLock, bool control) {
  if (keycode >= SDLK_a && keycode <= SDLK_z) return 'A' + static_cast<int>(keycode - SDLK_a);
  if (keycode >= SDLK_0 && keycode <= SDLK_9) return static_cast<int>(keycode);
  if (keycode >= SDLK_F1 && keycode <= SDLK_F12) return VK_F1 + static_cast<int>(keycode - SDLK_F1);
  if (keycode == SDLK_EQUALS && control) return VK_ADD;
  for (const KeyPair& pair : kKeys) {
    if (pair.desktop == keycode) return pair.key;
  }
  for (const KeypadKey& pad : kKeypad) {
    if (pad.desktop == keycode) return numLock ? pad.digit : pad.other;
  }
  return 0;
}

}  // namespace orvane
