// The menu bars at the bottom of the screen. Any number exist; the one shown last is drawn. A bar sends its
// owner WM_COMMAND for a push or check button and for a chosen menu entry, WM_NOTIFY for a drop-down button.
#pragma once

#include <memory>
#include <vector>

#include "platform/canvas.h"
#include "platform/menu.h"
#include "platform/messages.h"

namespace orvane {

using BarHandle = int;
inline constexpr BarHandle kNoBar = 0;

// A check button is pressed like a push button and stands for a choice that is on or off; its owner sets the
// checked state.
enum class ButtonStyle { kPush = 0, kSeparator = 1, kCheck = 2, kDropDown = 8, kMenu = 0x100 };

// A button's state bits: enabled and pressed ("checked"), with their usual values.
inline constexpr int TBSTATE_CHECKED = 1;
inline constexpr int TBSTATE_ENABLED = 4;

// Bar flags. Every bar starts hidden, with kBarHidden or without; kBarWithoutPanelButton leaves out the
// input-panel button.
inline constexpr int kBarHidden = 2;
inline constexpr int kBarWithoutPanelButton = 4;

struct BarButton {
  int id = 0;
  int image = -1;  // cell of the bar's images, −1 for none
  ButtonStyle style = ButtonStyle::kPush;
  int state = TBSTATE_ENABLED;
  Text label;  // menu buttons show it
  Menu menu;   // of a menu button
};

// What the bar says with WM_NOTIFY.
struct BarNotification {
  BarHandle bar = kNoBar;
  int code = 0;  // TBN_DROPDOWN
  int id = 0;    // the button's command id
};

// What WM_NOTIFY's lParam points to: null for 0.
inline const BarNotification* NotificationOf(LParam l) { return reinterpret_cast<const BarNotification*>(l); }

// A visible button as it stands on the screen.
struct BarButtonPlace {
  BarButton button;
  Rect rect;  // screen
  bool pressed = false;
};

class MenuBars {
 public:
  virtual ~MenuBars() = default;

  virtual BarHandle Create(WindowHandle owner, int flags, std::vector<BarButton> buttons) = 0;  // hidden
  virtual void Destroy(BarHandle bar) = 0;
  virtual void Show(BarHandle bar, bool visible) = 0;
  virtual void SetImages(BarHandle bar, std::vector<std::shared_ptr<const Image>> cells) = 0;

  // Every operation on a bar or button that does not exist does nothing (false, 0, null).
  virtual void Insert(BarHandle bar, int position, BarButton button) = 0;  // beyond the end: appends
  virtual void Delete(BarHandle bar, int position) = 0;
  virtual void Enable(BarHandle bar, int id, bool enabled) = 0;
  virtual void Check(BarHandle bar, int id, bool checked) = 0;
  virtual int Count(BarHandle bar) const = 0;
  virtual Menu* ButtonMenu(BarHandle bar, int position) = 0;  // the live menu of a menu button

  virtual BarHandle Shown() const = 0;                     // the bar that is drawn, or kNoBar
  virtual std::vector<BarButtonPlace> Places() const = 0;  // buttons of the drawn bar, left to right
  virtual bool HasPanelButton() const = 0;                 // of the drawn bar
  virtual Rect PanelButtonRect() const = 0;
  // Presses an enabled button of the drawn bar as the pen would; false when there is none such.
  virtual bool Press(int id) = 0;
  virtual bool PressPanelButton() = 0;
  // Opens the menu of the button at this place of the drawn bar; false when it has none.
  virtual bool OpenMenu(int position) = 0;

  // From the open menu: it has closed; and, from Left and Right (-1, +1), the bar's next menu is wanted.
  virtual void MenuClosed() {}
  virtual void StepMenu(int /*step*/) {}
};

}  // namespace orvane
