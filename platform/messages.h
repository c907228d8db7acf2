// Window messages: their numbers, their two parameters, and the key codes. The numbers are the usual ones
// of the hand-held's window manager, so that a trace reads like one made there.
#pragma once

#include <cstdint>

#include "base/geometry.h"

namespace orvane {

// Names a window of one device; 0 is no window. Handles are never used twice in a device's life.
using WindowHandle = std::uint32_t;
inline constexpr WindowHandle kNoWindow = 0;

using WParam = std::uintptr_t;
using LParam = std::intptr_t;
using Result = std::intptr_t;

inline constexpr std::uint32_t WM_CREATE = 0x0001;
inline constexpr std::uint32_t WM_DESTROY = 0x0002;
inline constexpr std::uint32_t WM_MOVE = 0x0003;
inline constexpr std::uint32_t WM_SIZE = 0x0005;
inline constexpr std::uint32_t WM_ACTIVATE = 0x0006;
inline constexpr std::uint32_t WM_SETFOCUS = 0x0007;   // wParam: the window that loses the focus
inline constexpr std::uint32_t WM_KILLFOCUS = 0x0008;  // wParam: the window that gets the focus
inline constexpr std::uint32_t WM_PAINT = 0x000F;
inline constexpr std::uint32_t WM_CLOSE = 0x0010;
inline constexpr std::uint32_t WM_QUIT = 0x0012;
inline constexpr std::uint32_t WM_SHOWWINDOW = 0x0018;
inline constexpr std::uint32_t WM_SETTINGCHANGE = 0x001A;  // the input panel was raised or lowered
inline constexpr std::uint32_t WM_NOTIFY = 0x004E;         // lParam: const BarNotification*
inline constexpr std::uint32_t WM_DISPLAYCHANGE = 0x007E;  // the scale changed; every surface is blank
inline constexpr std::uint32_t WM_KEYDOWN = 0x0100;        // wParam: key code
inline constexpr std::uint32_t WM_KEYUP = 0x0101;
inline constexpr std::uint32_t WM_CHAR = 0x0102;     // wParam: one 16-bit character
inline constexpr std::uint32_t WM_COMMAND = 0x0111;  // wParam: id | notification code << 16
inline constexpr std::uint32_t WM_TIMER = 0x0113;    // wParam: timer id
inline constexpr std::uint32_t WM_MOUSEMOVE = 0x0200;
inline constexpr std::uint32_t WM_LBUTTONDOWN = 0x0201;
inline constexpr std::uint32_t WM_LBUTTONUP = 0x0202;
inline constexpr std::uint32_t WM_MOUSEWHEEL = 0x020A;  // wParam: WheelParam, lParam: client point

// The menu bar's notification that a drop-down button was pressed.
inline constexpr int TBN_DROPDOWN = -710;

// Key codes of WM_KEYDOWN, WM_KEYUP and Device::IsKeyDown. Letters and digits are their ASCII capitals.
inline constexpr int VK_BACK = 0x08;
inline constexpr int VK_TAB = 0x09;
inline constexpr int VK_RETURN = 0x0D;
inline constexpr int VK_SHIFT = 0x10;
inline constexpr int VK_CONTROL = 0x11;
inline constexpr int VK_MENU = 0x12;
inline constexpr int VK_ESCAPE = 0x1B;
inline constexpr int VK_SPACE = 0x20;
inline constexpr int VK_PRIOR = 0x21;  // page up
inline constexpr int VK_NEXT = 0x22;   // page down
inline constexpr int VK_END = 0x23;
inline constexpr int VK_HOME = 0x24;
inline constexpr int VK_LEFT = 0x25;
inline constexpr int VK_UP = 0x26;
inline constexpr int VK_RIGHT = 0x27;
inline constexpr int VK_DOWN = 0x28;
inline constexpr int VK_DELETE = 0x2E;
inline constexpr int VK_ADD = 0x6B;
inline constexpr int VK_SUBTRACT = 0x6D;
inline constexpr int VK_F1 = 0x70;       // F1 to F12 follow one another
inline constexpr int VK_F10 = 0x79;      // opens the menu of the bar, as Alt alone does
inline constexpr int VK_ACTION = 0x86;   // the hand-held's action key: Ctrl, or the right mouse button
inline constexpr int VK_LBUTTON = 0x01;  // pen down

// A client point packed into lParam: x in the low, y in the high 16 bits, both signed.
constexpr LParam PackPoint(Point p) {
  const auto low = static_cast<std::uint16_t>(p.x);
  const auto high = static_cast<std::uint32_t>(static_cast<std::uint16_t>(p.y));
  return static_cast<LParam>((high << 16) | low);
}
constexpr Point UnpackPoint(LParam packed) {
  const auto bits = static_cast<std::uint32_t>(packed);
  return {static_cast<std::int16_t>(bits & 0xFFFFu), static_cast<std::int16_t>(bits >> 16)};
}

// WM_COMMAND's parameter: the command id and the notification code (0 from a menu or a push button).
constexpr WParam PackCommand(int id, int code) {
  return static_cast<WParam>((static_cast<std::uint32_t>(code) << 16) |
                             (static_cast<std::uint32_t>(id) & 0xFFFFu));
}
constexpr int CommandId(WParam packed) { return static_cast<int>(packed & 0xFFFFu); }
constexpr int CommandCode(WParam packed) { return static_cast<int>((packed >> 16) & 0xFFFFu); }

// WM_MOUSEWHEEL's parameter: notches (positive = away from the user) and whether they scroll sideways.
constexpr WParam PackWheel(int notches, bool sideways) {
  return static_cast<WParam>((static_cast<std::uint32_t>(static_cast<std::uint16_t>(notches)) << 1) |
                             (sideways ? 1u : 0u));
}
constexpr int WheelNotches(WParam packed) {
  return static_cast<std::int16_t>(static_cast<std::uint16_t>((packed >> 1) & 0xFFFFu));
}
constexpr bool WheelSideways(WParam packed) { return (packed & 1u) != 0; }

}  // namespace orvane
