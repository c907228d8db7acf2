// What controls tell the window they lie in. The first parameter of each is the control's own window, the
// second is 0. Some of the numbers mean something else when another kind of window sends them, so a receiver
// looks at the sender first.
#pragma once

#include "platform/messages.h"

namespace orvane {

inline constexpr std::uint32_t kButtonPressed = 0x8190;   // the pen went down on a button
inline constexpr std::uint32_t kButtonReleased = 0x8191;  // a stroke that began on it ended, in or outside
inline constexpr std::uint32_t kButtonClicked = 0x8192;   // it ended inside; sent after kButtonReleased

inline constexpr std::uint32_t kCheckboxChanged = 0x81AE;
inline constexpr std::uint32_t kCheckboxChecked = 0x81AF;    // sent after kCheckboxChanged
inline constexpr std::uint32_t kCheckboxUnchecked = 0x81B0;  // likewise

inline constexpr std::uint32_t kInputBoxFocused = 1416;
inline constexpr std::uint32_t kInputBoxBlurred = 1417;

constexpr WParam PackSender(WindowHandle control) { return control; }
constexpr WindowHandle SenderOf(WParam packed) { return static_cast<WindowHandle>(packed); }

}  // namespace orvane
