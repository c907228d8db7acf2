// A part of the hand-held that stands above the windows and sees the input before them: the title area, the
// menu bar, the input panel, dialogs, the open menu, message boxes. The device holds them in this order,
// bottom to top, paints each into a surface of its own and asks them for input from the top down.
#pragma once

#include <string_view>

#include "base/geometry.h"
#include "platform/canvas.h"
#include "platform/messages.h"

namespace orvane {

struct Modifiers {
  bool shift = false;
  bool control = false;
  bool alt = false;
  friend bool operator==(const Modifiers&, const Modifiers&) = default;
};

class Layer {
 public:
  virtual ~Layer() = default;

  // "title", "bar", "panel", "dialog", "menu" or "message": how reports name the layer.
  virtual std::string_view Name() const = 0;
  virtual bool Visible() const = 0;
  virtual Rect Bounds() const = 0;  // on the screen
  // Draws the whole layer, (0, 0) being its top left corner.
  virtual void Paint(Canvas& canvas) = 0;

  // True while all pen and key input belongs to this layer, wherever the pen is.
  virtual bool Modal() const { return false; }
  // Pen positions are screen points. A pen that went down in a layer stays with it until it is lifted.
  virtual void PenDown(Point) {}
  virtual void PenMove(Point) {}
  virtual void PenUp(Point) {}
  virtual void Wheel(Point, int /*notches*/) {}  // up and down only; positive = away from the user
  // True when the layer used the key; the windows do not see it then.
  virtual bool KeyDown(int /*key*/, Modifiers) { return false; }
  virtual bool Character(Char) { return false; }

  // Called in every Device::Step after messages and timers and before painting: what follows the windows (the
  // title) or has been put off to the next step catches up here. It may send, post and change the layer.
  virtual void CatchUp() {}
  // True while CatchUp has something to do; the device is not quiescent then.
  virtual bool Behind() const { return false; }
};

}  // namespace orvane
