// The windows of a device: who lies in whom, in which order, and where on the screen. Knows no messages; the
// device keeps the rules of who is told of what.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include "platform/device.h"

namespace orvane {

struct Window {
  WindowHandle handle = kNoWindow;
  const WindowClass* windowClass = nullptr;
  Text title;
  std::uint32_t style = 0;  // WS_VISIBLE is kept in `shown`
  Rect rect;                // in the parent's client area
  WindowHandle parent = kNoWindow;
  std::vector<WindowHandle> children;  // bottom first
  std::vector<WindowHandle> owned;     // top-level windows that stand above this one, bottom first
  WindowObject* object = nullptr;
  bool shown = false;
  bool dying = false;  // being destroyed: takes no new children, focus or capture

  std::unique_ptr<Surface> surface;  // only while something of the window shows
  Rect invalid;                      // client coordinates
  bool painting = false;             // inside WM_PAINT; `paintClip` is what it was asked for
  Rect paintClip;
  Rect invalidAgain;  // invalidated by the running WM_PAINT itself

  Rect Client() const { return Rect::At({0, 0}, rect.GetSize()); }
  bool IsChild() const { return (style & WS_CHILD) != 0; }
};

// A window that is visible, as it stands on the screen.
struct PlacedWindow {
  WindowHandle handle = kNoWindow;
  Rect screen;  // whole
  Rect clip;    // what its parents and the screen leave of it; empty when it lies outside them
};

class WindowTable {
 public:
  bool AddClass(WindowClass windowClass);
  const WindowClass* FindClass(TextView name) const;

  // Adds a hidden window on top of its kind. The parent must exist or be kNoWindow.
  Window& Add(const WindowClass& windowClass, const CreateParams& params);
  void Remove(WindowHandle window);

  // Null when there is no such window. The record stays where it is until it is removed.
  Window* Find(WindowHandle window);
  const Window* Find(WindowHandle window) const;

  std::vector<WindowHandle> All() const;       // in the order they were made
  std::vector<WindowHandle> TopFirst() const;  // stacking order, hidden ones included
  std::vector<PlacedWindow> Placed() const;    // the visible ones, bottom first
  bool IsVisible(WindowHandle window) const;
  bool IsWithin(WindowHandle window, WindowHandle ancestor) const;  // a window is within itself
  WindowHandle TopLevelOf(WindowHandle window) const;
  Rect ScreenRect(const Window& window) const;
  Rect ClippedScreenRect(const Window& window) const;

  void Restyle(Window& window, std::uint32_t style);
  bool Raise(Window& window);  // true when the order has changed

 private:
  std::vector<WindowHandle>& Siblings(const Window& window);
  void AppendStack(WindowHandle window, std::vector<WindowHandle>& bottomFirst) const;
  void AppendPlaced(WindowHandle window, Point origin, const Rect& clip,
                    std::vector<PlacedWindow>& out) const;

  std::map<Text, std::unique_ptr<WindowClass>, std::less<>> classes_;
  std::map<WindowHandle, std::unique_ptr<Window>> windows_;
  std::vector<WindowHandle> roots_;  // without a parent, bottom first
  WindowHandle lastHandle_ = kNoWindow;
};

// Rectangles keep to what 16-bit client points can name, which also keeps all sums of them far from overflow.
Rect BoundedWindowRect(const Rect& rect);

}  // namespace orvane
