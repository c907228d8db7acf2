// What mouse, fingers and keyboard of the desktop mean to the hand-held.
#pragma once

#include <cstdint>
#include <optional>

#include "base/geometry.h"
#include "platform/layer.h"

union SDL_Event;

namespace orvane {

class Device;

// Where the hand-held's screen stands in the window.
struct Placement {
  Size window;               // in the units of pointer positions
  double pixelsPerUnit = 1;  // device pixels for one of them
  Point frame;               // top left device pixel of the screen
  double scale = 1;          // device pixels a logical pixel

  // The logical screen point under a pointer position; it may lie beyond the screen.
  Point ToLogical(double x, double y) const;
};

// One pointer at a time is the pen: the left mouse button, the right one (the pen with the action key held)
// or the first finger. Until it is lifted the others do nothing.
class DesktopInput {
 public:
  explicit DesktopInput(Device& device) : device_(device) {}

  void SetPlacement(const Placement& placement) { placement_ = placement; }
  // Hands an event to the device; false when it is none of pointer, key or text.
  bool Handle(const SDL_Event& event);

 private:
  void MouseDown(int button, Point at);
  void MouseUp(int button, Point at);
  void FingerDown(std::int64_t finger, Point at);
  void FingerUp(std::int64_t finger, Point at);
  void Wheel(const SDL_Event& event);
  void Key(const SDL_Event& event);
  void TypeText(const char* utf8);

  Device& device_;
  Placement placement_;
  int penButton_ = 0;                   // the mouse button that is the pen, 0 for none
  std::optional<std::int64_t> finger_;  // the finger that is the pen
};

}  // namespace orvane
