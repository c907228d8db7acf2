// What a device is made of, and the rules that several of its operations share.
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "platform/device.h"
#include "platform/device_factories.h"
#include "platform/key_state.h"
#include "platform/layer_stack.h"
#include "platform/message_queue.h"
#include "platform/screen_composer.h"
#include "platform/timers.h"
#include "platform/window_table.h"

namespace orvane {

// The one rule for everything here: a window procedure, a layer or an action may call back into the device
// and destroy anything. So the state is changed first and others are called last, and after a call every
// record is looked up again by its handle.
struct Device::Parts {
  Parts(Device& device, Host& host, const DeviceOptions& options, const DeviceFactories& factories);

  // Messages (device_messages.cpp).
  Result Send(WindowHandle window, std::uint32_t message, WParam w, LParam l);
  void HandleQueue();
  void HandleTimers(std::int64_t now);
  void CatchUpLayers();
  void Quit(int code);

  // Windows (device_windows.cpp).
  void Destroy(WindowHandle window);
  WindowHandle NextToDestroy(WindowHandle window) const;
  void Blank(Window& window);
  void DropDescendantSurfaces(const Window& window);
  void Damage(const Window& window);  // where it and all that lies in it can be seen

  // Focus and capture (device_focus.cpp).
  void ChangeFocus(WindowHandle window);
  void ReleaseInput(WindowHandle window);  // it and all in it are gone from the screen

  // Input (device_pen.cpp, device_keys.cpp).
  void Input(QueuedAction action);
  void HandlePenDown(Point point, PointerKind kind, bool withActionKey);
  void HandlePenMove(Point point);
  void HandlePenUp(Point point);
  void HandleWheel(Point point, int notches, bool sideways);
  void PenToLayer(Layer& layer, void (Layer::*operation)(Point), Point point);
  void PenToWindow(std::uint32_t message, Point point);
  WindowHandle WindowAt(Point point) const;
  void HandleKeyDown(int key, Modifiers modifiers, bool byPen);
  void HandleKeyUp(int key, Modifiers modifiers);
  void HandleCharacter(Char character);
  bool ChangeScaleByKey(int key, Modifiers modifiers);
  bool FireAccelerator(int key, Modifiers modifiers);
  void OpenFirstMenu();
  bool PressButtonByKey(int key, Modifiers modifiers);
  void HandleClose();

  // Painting (device_paint.cpp).
  std::vector<std::pair<PlacedWindow, Area>> ShownWindows() const;  // bottom first, with what shows
  void Paint(WindowHandle window);
  void PaintInvalid();
  bool EnsureSurface(Window& window);

  // The screen (device_screen.cpp).
  void Compose();
  void FreeCoveredSurfaces();
  bool ScreenPending() const;
  void BlankEverything();

  Device& device;
  Host& host;
  TraceSink* trace;
  bool recordRuns;
  double scale;
  std::unique_ptr<Graphics> graphics;
  std::unique_ptr<Surface> scratch;  // what is drawn for windows that do not exist goes here
  LayerStack layers;
  ScreenComposer composer;

  WindowTable windows;
  MessageQueue queue;
  Timers timers;
  KeyState keys;
  std::vector<Accelerator> accelerators;

  WindowHandle mainWindow = kNoWindow;
  WindowHandle focus = kNoWindow;
  WindowHandle capture = kNoWindow;
  WindowHandle active = kNoWindow;

  Layer* penLayer = nullptr;           // took the pen when it went down
  WindowHandle penWindow = kNoWindow;  // likewise
  bool altAlone = false;               // Alt went down and no other key since
  bool layerTookKey = false;           // the key that is down is a layer's, and so is its character
  bool lastPressWasTouch = false;
  int layerHasPen = 0;  // calls of a layer's pen operations that have not returned
  bool waitCursor = false;

  int busy = 0;  // calls of window procedures, layers and actions that have not returned
  bool stepping = false;
  bool presenting = false;
  std::optional<int> quitCode;
};

}  // namespace orvane
