// Which keys and modifiers are held, as of the input handled last.
#pragma once

#include <set>

#include "platform/layer.h"

namespace orvane {

class KeyState {
 public:
  void Down(int key, Modifiers modifiers);
  void Up(int key, Modifiers modifiers);
  void SetPen(bool down) { pen_ = down; }
  void SetPenAction(bool held) { penAction_ = held; }
  void SetAction(bool held) { action_ = held; }

  bool PenIsDown() const { return pen_; }
  bool IsDown(int key) const;
  Modifiers Current() const;

  // A window sees a key come up only when it saw it go down: Enter that closes a message box is not its own.
  void RememberWindowSaw(int key) { seenByWindow_.insert(key); }
  bool ForgetWindowSaw(int key) { return seenByWindow_.erase(key) != 0; }

 private:
  std::set<int> held_;
  std::set<int> seenByWindow_;
  Modifiers withKey_;  // of the ordinary key that went down last, while it is held
  int keyWithModifiers_ = 0;
  bool pen_ = false;
  bool penAction_ = false;
  bool action_ = false;
};

}  // namespace orvane
