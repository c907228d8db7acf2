#include "platform/host_sdl_input.h"

#include <SDL.h>

#include <algorithm>
#include <cmath>

#include "platform/device.h"
#include "platform/host_sdl_keys.h"

namespace orvane {
namespace {

// Far beyond any screen, yet safe to calculate with.
constexpr double kFarthestPixel = 10000;

int LogicalCoordinate(double pixels, int origin, double scale) {
  return static_cast<int>(std::floor(std::clamp((pixels - origin) / scale, -kFarthestPixel, kFarthestPixel)));
}

Modifiers FromDesktop(unsigned mod) {
  return {(mod & KMOD_SHIFT) != 0, (mod & KMOD_CTRL) != 0, (mod & KMOD_LALT) != 0};
}

}  // namespace

Point Placement::ToLogical(double x, double y) const {
  return {LogicalCoordinate(x * pixelsPerUnit, frame.x, scale),
          LogicalCoordinate(y * pixelsPerUnit, frame.y, scale)};
}

bool DesktopInput::Handle(const SDL_Event& event) {
  const auto fingerPoint = [&] {
    return placement_.ToLogical(static_cast<double>(event.tfinger.x) * placement_.window.width,
                                static_cast<double>(event.tfinger.y) * placement_.window.height);
  };
  switch (event.type) {
    case SDL_MOUSEBUTTONDOWN:
      MouseDown(event.button.button, placement_.ToLogical(event.button.x, event.button.y));
      return true;
    case SDL_MOUSEBUTTONUP:
      MouseUp(event.button.button, placement_.ToLogical(event.button.x, event.button.y));
      return true;
    case SDL_MOUSEMOTION:
      if (penButton_ != 0) device_.PenMove(placement_.ToLogical(event.motion.x, event.motion.y));
      return true;
    case SDL_FINGERDOWN:
      FingerDown(event.tfinger.fingerId, fingerPoint());
      return true;
    case SDL_FINGERUP:
      FingerUp(event.tfinger.fingerId, fingerPoint());
      return true;
    case SDL_FINGERMOTION:
      if (finger_ == event.tfinger.fingerId) device_.PenMove(fingerPoint());
      return true;
    case SDL_MOUSEWHEEL:
      Wheel(event);
      return true;
    case SDL_KEYDOWN:
    case SDL_KEYUP:
      Key(event);
      return true;
    case SDL_TEXTINPUT:
      TypeText(event.text.text);
      return true;
    default:
      return false;
  }
}

void DesktopInput::MouseDown(int button, Point at) {
  if (penButton_ != 0 || finger_ || !kScreenArea.Contains(at)) return;
  if (button != SDL_BUTTON_LEFT && button != SDL_BUTTON_RIGHT) return;
  penButton_ = button;
  SDL_CaptureMouse(SDL_TRUE);
  device_.PenDown(at, PointerKind::kMouse, button == SDL_BUTTON_RIGHT);
}

void DesktopInput::MouseUp(int button, Point at) {
  if (button != penButton_) return;
  penButton_ = 0;
  SDL_CaptureMouse(SDL_FALSE);
  device_.PenUp(at);
}

void DesktopInput::FingerDown(std::int64_t finger, Point at) {
  if (penButton_ != 0 || finger_ || !kScreenArea.Contains(at)) return;
  finger_ = finger;
  device_.PenDown(at, PointerKind::kTouch);
}

void DesktopInput::FingerUp(std::int64_t finger, Point at) {
  if (finger_ != finger) return;
  finger_.reset();
  device_.PenUp(at);
}

// A wheel that turns away from the user scrolls up, with Shift to the left; a wheel of its own for sideways
// counts to the right.
void DesktopInput::Wheel(const SDL_Event& event) {
  int x = 0;
  int y = 0;
  SDL_GetMouseState(&x, &y);
  const Point at = placement_.ToLogical(x, y);
  const int direction = event.wheel.direction == SDL_MOUSEWHEEL_FLIPPED ? -1 : 1;
  const bool shift = (SDL_GetModState() & KMOD_SHIFT) != 0;
  if (event.wheel.y != 0) device_.Wheel(at, direction * event.wheel.y, shift);
  if (event.wheel.x != 0) device_.Wheel(at, -direction * event.wheel.x, true);
}

void DesktopInput::Key(const SDL_Event& event) {
  const SDL_Keysym& pressed = event.key.keysym;
  const int key = KeyOfDesktop(pressed.sym, (pressed.mod & KMOD_NUM) != 0, (pressed.mod & KMOD_CTRL) != 0);
  if (key == 0) return;
  const Modifiers modifiers = FromDesktop(pressed.mod);
  if (event.type == SDL_KEYDOWN) return device_.KeyDown(key, modifiers);
  if (key == VK_MENU && SDL_GetKeyboardFocus() == nullptr) {
    // Alt began a switch to another window and is let go there: a key between the two keeps it from opening
    // the menu here.
    device_.KeyDown(VK_SHIFT, {true, false, true});
    device_.KeyUp(VK_SHIFT, {false, false, true});
  }
  device_.KeyUp(key, modifiers);
}

// Combinations with Ctrl or Alt are commands, whatever text the system makes of them.
void DesktopInput::TypeText(const char* utf8) {
  const Modifiers modifiers = FromDesktop(static_cast<unsigned>(SDL_GetModState()));
  if (modifiers.control || modifiers.alt) return;
  for (const Char c : FromUtf8(utf8)) device_.Character(c);
}

}  // namespace orvane
