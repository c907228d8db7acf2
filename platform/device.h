// The hand-held: its windows, messages, input, timers and screen. One object is one hand-held; nothing here
// is shared between two of them. There is no nested loop: the host feeds input and calls Step, and whatever
// asks the user something (a menu, a message box, a dialog) is shown and answered by a later message.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/canvas.h"
#include "platform/dialogs.h"
#include "platform/host.h"
#include "platform/input_panel.h"
#include "platform/layer.h"
#include "platform/menu_bar.h"
#include "platform/message_boxes.h"
#include "platform/messages.h"
#include "platform/popup_menu.h"
#include "platform/trace.h"
#include "platform/window_object.h"

namespace orvane {

inline constexpr Size kScreenSize{240, 320};
inline constexpr Rect kScreenArea{0, 0, 240, 320};
inline constexpr Rect kTitleArea{0, 0, 240, 26};
inline constexpr Rect kClientArea{0, 26, 240, 294};
inline constexpr Rect kBarArea{0, 294, 240, 320};
inline constexpr Rect kPanelArea{0, 214, 240, 294};

// Window styles. A child lies in its parent's client area; a window without WS_CHILD that has a parent is a
// top-level window owned by it: it stands in the owner's client area too, above the owner, in a stacking
// order of its own.
inline constexpr std::uint32_t WS_VISIBLE = 0x10000000;
inline constexpr std::uint32_t WS_CHILD = 0x40000000;

using WindowProcedure = std::function<Result(WindowHandle, std::uint32_t, WParam, LParam)>;

struct WindowClass {
  Text name;
  WindowProcedure procedure;
  std::optional<Colour> background;  // what the default WM_PAINT fills with
  int icon = 0;                      // resource id; the host gets the picture when it is made
};

struct CreateParams {
  Text className;
  Text title;
  std::uint32_t style = 0;
  Rect rect;  // in the parent's client area; on the screen without a parent
  WindowHandle parent = kNoWindow;
};

struct DeviceOptions {
  double scale = 1.0;       // device pixels a logical pixel, 1 to 16
  bool recordRuns = false;  // keep the text runs that VisibleRuns lists
  PanelMode panelMode = PanelMode::kAuto;
  std::string fontFolder;  // searched after the system's font folders
  TraceSink* trace = nullptr;
};

enum class PointerKind { kMouse, kTouch };

// A text run on the screen, with the unit name, window class or layer that shows it.
struct ScreenRun {
  TextRun run;
  std::string window;
  WindowHandle handle = kNoWindow;  // kNoWindow for a layer
};

// An accelerator: the key posts WM_COMMAND(command) to the window, unless a modal layer takes the key first.
struct Accelerator {
  int key = 0;
  Modifiers modifiers;
  WindowHandle window = kNoWindow;
  int command = 0;
};

struct DeviceFactories;  // device_factories.h

class Device {
 public:
  Device(Host& host, const DeviceOptions& options);
  // With other drawing objects and layers than the standard ones; tests put their own in.
  Device(Host& host, const DeviceOptions& options, const DeviceFactories& factories);
  ~Device();
  Device(const Device&) = delete;
  Device& operator=(const Device&) = delete;

  // --- Windows. Every operation on a window that does not exist does nothing and returns 0, false or empty.
  bool RegisterWindowClass(WindowClass windowClass);  // false when the name is taken
  // Sends WM_CREATE before it returns; a result of −1 destroys the window again. 0 when the class is unknown.
  WindowHandle CreateWindow(const CreateParams& params);
  void DestroyWindow(WindowHandle window);  // children first; sends WM_DESTROY
  bool IsWindow(WindowHandle window) const;
  WindowHandle FindWindow(TextView className, TextView title) const;  // an empty title fits every window

  void SetUserData(WindowHandle window, WindowObject* object);
  WindowObject* UserData(WindowHandle window) const;
  void SetStyle(WindowHandle window, std::uint32_t style);  // WS_VISIBLE keeps its value
  std::uint32_t Style(WindowHandle window) const;
  void SetTitle(WindowHandle window, TextView title);
  Text Title(WindowHandle window) const;
  Text ClassName(WindowHandle window) const;
  int ClassIcon(WindowHandle window) const;  // resource id, 0 without one
  WindowHandle Parent(WindowHandle window) const;
  std::vector<WindowHandle> VisibleWindows() const;  // bottom first

  void ShowWindow(WindowHandle window, bool visible);
  bool IsVisible(WindowHandle window) const;               // with all its parents and owners
  void MoveWindow(WindowHandle window, const Rect& rect);  // sends WM_MOVE, WM_SIZE; repaints
  Rect WindowRect(WindowHandle window) const;              // as last given to MoveWindow
  Size ClientSize(WindowHandle window) const;
  Rect ScreenRect(WindowHandle window) const;
  void BringToTop(WindowHandle window);

  void SetFocus(WindowHandle window);
  WindowHandle Focus() const;
  void ActivateWindow(WindowHandle window);  // its top-level window comes to the front of its kind
  void SetCapture(WindowHandle window);
  void ReleaseCapture();
  WindowHandle Capture() const;

  // --- Messages.
  Result Send(WindowHandle window, std::uint32_t message, WParam w = 0, LParam l = 0);
  // Lost when the window goes first, when the program has quit, or when ten thousand messages wait already.
  void Post(WindowHandle window, std::uint32_t message, WParam w = 0, LParam l = 0);
  Result DefaultProcedure(WindowHandle window, std::uint32_t message, WParam w, LParam l);
  void AtNextStep(std::function<void()> action);  // queued like a message, for what has no window
  void PostQuit(int code);
  std::optional<int> QuitCode() const;  // set once the quit message has been taken from the queue

  void SetTimer(WindowHandle window, int id, int milliseconds);  // again: restarts it
  void KillTimer(WindowHandle window, int id);

  // --- Painting. A window that is covered wholly by opaque others is not asked to paint until it shows.
  void Invalidate(WindowHandle window);
  void Invalidate(WindowHandle window, const Rect& clientRect);
  void Validate(WindowHandle window);
  void Update(WindowHandle window);  // paints now if anything is invalid
  Rect InvalidRect(WindowHandle window) const;
  Canvas& WindowCanvas(WindowHandle window);  // only inside WM_PAINT, or for a window that exists
  // Moves a part of the window's content by (dx, dy) and invalidates what the move uncovered.
  void ScrollWindowRect(WindowHandle window, const Rect& rect, int dx, int dy);

  std::unique_ptr<Surface> CreateSurface(Size size);
  std::shared_ptr<const Image> LoadImage(const EncodedImage& image);
  FontLibrary& Fonts();

  // --- Input, from the host or a script. Points are screen points, logical. Input is handled at once, or by
  // the next step when messages wait that came before it, so that the order of arrival is kept.
  void PenDown(Point point, PointerKind kind = PointerKind::kMouse, bool withActionKey = false);
  void PenMove(Point point);  // ignored while the pen is up: a pen has no hover
  void PenUp(Point point);
  void Wheel(Point point, int notches, bool sideways);
  void KeyDown(int key, Modifiers modifiers);
  void KeyUp(int key, Modifiers modifiers);
  void Character(Char character);
  void HoldActionKey(bool held);
  void CloseFromOutside();  // WM_CLOSE to the main window
  // The last press came from a finger or pen (PointerKind::kTouch) rather than from a mouse or a key. Keys
  // that a layer presses while it handles the pen are the pen's.
  bool LastPressWasTouch() const;
  bool IsKeyDown(int key) const;  // the state now; VK_ACTION: Ctrl, the right button or HoldActionKey
  Modifiers CurrentModifiers() const;
  void SetAccelerators(std::vector<Accelerator> accelerators);

  // --- Steps. Handles all that is due at `now` (milliseconds of any steady clock): queued messages, timers,
  // painting, compositing. Returns when the next timer is due, or nothing when only input can wake it.
  std::optional<std::int64_t> Step(std::int64_t now);
  bool Quiescent() const;    // nothing queued, nothing invalid, nothing to composite
  void PresentNow();         // paints what is invalid and composites at once (start-up's splash)
  void InvalidateScreen();   // the host lost the frame's content
  void RepaintEverything();  // every surface is painted anew and the screen composited whole

  void SetScale(double scale);  // WM_DISPLAYCHANGE to every window when it changes
  double Scale() const;
  void SetWaitCursor(bool wait);
  bool WaitCursor() const;

  bool SetClipboardText(TextView text);  // false when the clipboard cannot be opened
  std::optional<Text> ClipboardText();

  // Gets WM_CLOSE and WM_SETTINGCHANGE; its title is the host's.
  void SetMainWindow(WindowHandle window);
  WindowHandle MainWindow() const;

  // --- The parts above the windows.
  MenuBars& Bars();
  PopupMenus& Popups();
  MessageBoxes& Boxes();
  Dialogs& DialogBoxes();
  InputPanel& Panel();
  void LayerChanged(const Layer& layer);  // a layer looks different or has moved, appeared, gone
  TraceSink* Trace() const;

  std::vector<ScreenRun> VisibleRuns() const;  // bottom first; empty unless recording

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace orvane
