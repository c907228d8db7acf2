// The key codes of the desktop's keyboard as the hand-held's.
#pragma once

#include <cstdint>

namespace orvane {

// The hand-held's code for a key code of the window library; 0 for a key that it does not know. With
// `numLock` the keypad's digits are digits, without it they are the arrows and their neighbours. With
// `control` the key of the equals sign counts as plus, which many keyboards have on its shifted side.
int KeyOfDesktop(std::int32_t keycode, bool numLock, bool control);

}  // namespace orvane
