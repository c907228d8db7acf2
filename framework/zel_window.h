// The root of everything that owns a window: tools, panels and controls. It binds the object to its window,
// routes every message into the object, and keeps the stack of open tools.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "framework/shell.h"
#include "platform/device.h"

namespace orvane {

// Sent by Show and Hide to the window itself.
inline constexpr std::uint32_t kBeforeShow = 0x89A0;
inline constexpr std::uint32_t kAfterShow = 0x89A1;
inline constexpr std::uint32_t kBeforeHide = 0x89A2;
inline constexpr std::uint32_t kAfterHide = 0x89A3;

// The private tool command: wParam is the command id, lParam 0 from a menu and 1 from a drop-down button.
inline constexpr std::uint32_t kToolCommand = 0xA080;
inline constexpr LParam kFromMenu = 0;
inline constexpr LParam kFromDropDown = 1;

inline constexpr TextView kZelWindowClass = u"ZelWindowWC";

// What WM_CREATE's lParam points to.
struct CreationRecord {
  WindowHandle parent = kNoWindow;
  std::uint32_t style = 0;
  Rect rect;
  TextView className;
};

class ZelWindow : public WindowObject {
 public:
  // A full-screen tool when `topLevel`, otherwise a child of `parent`. The window is hidden and has no place
  // yet. When it cannot be made a message box says so and the object stays without a window: every operation
  // then does nothing. Make objects with MakeWindow, which sends WM_CREATE to the finished object.
  ZelWindow(Shell& shell, WindowHandle parent, bool topLevel);
  // Hides the window, then takes the object out of the user-data slot, so that the last messages go to the
  // default procedure, then destroys the window.
  ~ZelWindow() override;
  ZelWindow(const ZelWindow&) = delete;
  ZelWindow& operator=(const ZelWindow&) = delete;

  // Every message for the window arrives here.
  virtual Result WndProc(WindowHandle window, std::uint32_t message, WParam w, LParam l);
  virtual void Move(int x, int y, int width, int height);
  virtual void Redraw();  // invalidates the whole client area and paints at once
  // What WndProc does not use itself. The default hands it to the device's default procedure.
  virtual Result OnMessage(std::uint32_t message, WParam w, LParam l);
  // "wnd_periodic", "ctlButton" and the like; the root's is "ZelWindow".
  virtual std::string ClassName() const { return "ZelWindow"; }

  void SetStyle(std::uint32_t style, std::uint32_t extendedStyle);
  void SetText(TextView title);

  // Brings the window forward, whatever its state. A tool that was hidden goes on top of the stack and is
  // told before (kBeforeShow) and after (kAfterShow); one that is visible moves to the top and gets the
  // focus.
  void Show();
  // Takes a visible window off the screen, telling it before and after; a tool leaves the stack and the tool
  // that is then on top is shown.
  void Hide();
  // Hide without bringing the next tool forward: for switching to another tool at once.
  void HideOnly();
  bool IsVisible() const;
  void Invalidate();

  WindowHandle Handle() const { return hwnd_; }
  bool IsTopLevel() const { return topLevel_; }
  Shell& GetShell() const { return *shell_; }

  // Tells the finished object that its window exists (WM_CREATE); once, by MakeWindow.
  void Created();

  WindowReport Describe() const override;
  std::string UnitName() const override;

 protected:
  Device& GetDevice() const { return shell_->GetDevice(); }
  Size ClientSize() const { return GetDevice().ClientSize(hwnd_); }

 private:
  void ReportFailure();

  bool topLevel_;
  WindowHandle hwnd_ = kNoWindow;
  WindowHandle parent_;
  Shell* shell_;
};

// Makes a window object. An object learns its final type only when its last constructor ends, so WM_CREATE is
// sent from here.
template <class Window, class... Arguments>
std::unique_ptr<Window> MakeWindow(Arguments&&... arguments) {
  auto window = std::make_unique<Window>(std::forward<Arguments>(arguments)...);
  window->Created();
  return window;
}

}  // namespace orvane
