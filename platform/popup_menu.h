// The open pop-up menu. It does not hold up the caller: the choice arrives later as WM_COMMAND at the owner.
#pragma once

#include "platform/menu.h"
#include "platform/messages.h"

namespace orvane {

class PopupMenus {
 public:
  virtual ~PopupMenus() = default;
  // Shows a copy of the menu with its bottom left corner at the screen point, moved as far as needed to stand
  // on the screen; a menu taller than the screen scrolls. Replaces an open menu. An empty menu shows nothing.
  virtual void Track(const Menu& menu, Point bottomLeft, WindowHandle owner) = 0;
  virtual void Close() = 0;
  virtual bool Open() const = 0;
  virtual const Menu& Current() const = 0;       // the open menu's entries; empty when none is open
  virtual Point Anchor() const = 0;              // as given to Track
  virtual bool ChooseLabel(TextView label) = 0;  // false when absent, disabled or a separator

  // From the bar: the menu was opened by key, so its first entry is selected; and the pen that went down on
  // the button which opened the menu moves on or is lifted, so that one stroke opens the menu and chooses.
  virtual void SelectFirst() {}
  virtual void FollowPen(Point) {}
  virtual void LiftPen(Point) {}
};

}  // namespace orvane
