// A whole device on a host that shows nothing, with a main window, a tool on it, and notes of what both are
// sent.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/device.h"

namespace orvane::chrome_test {

struct Noted {
  WindowHandle window = kNoWindow;
  std::uint32_t message = 0;
  WParam w = 0;
  LParam l = 0;
  BarNotification notification;  // a copy of what WM_NOTIFY pointed to
};

class NotingTrace : public TraceSink {
 public:
  void MessageDispatched(WindowHandle, std::uint32_t, WParam, LParam) override {}
  void CursorChanged(bool) override {}
  void BarCall(std::string_view call, int bar, int commandOrIndex, int value) override;
  void MessageBoxShown(TextView caption, TextView text, MessageIcon icon) override;

  std::vector<std::string> barCalls;  // "insert 1 40 0"
  std::vector<std::string> boxes;     // "error|Orvane|text"
};

class MemoryHost : public Host {
 public:
  FrameBuffer Frame(int width, int height) override;
  std::uint32_t Pixel(int x, int y) const {
    return pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                   static_cast<std::size_t>(x)];
  }

 private:
  std::vector<std::uint32_t> pixels_;
  int width_ = 0;
};

class Bed {
 public:
  explicit Bed(PanelMode mode = PanelMode::kAlways);

  Device& Get() { return *device; }
  void Step();
  void Tap(Point point, PointerKind kind = PointerKind::kMouse);
  void Key(int key);  // down and up
  WindowHandle MakeTool(TextView title);
  // The noted messages of this number, oldest first.
  std::vector<Noted> Of(std::uint32_t message) const;
  // Command ids that the window was sent, in order.
  std::vector<int> Commands(WindowHandle window) const;
  // The texts that a layer ("menu", "message"…) shows, line by line from the top left.
  std::vector<std::string> Shown(std::string_view layer) const;
  bool Shows(std::string_view layer, std::string_view text) const;

  NotingTrace trace;
  MemoryHost host;
  std::unique_ptr<Device> device;
  WindowHandle main = kNoWindow;
  WindowHandle tool = kNoWindow;  // has the focus
  std::vector<Noted> notes;
  std::function<void(const Noted&)> whenNoted;  // runs inside the window's procedure
};

MenuItem Entry(int id, TextView label);
MenuItem Separator();
Menu MenuOf(std::vector<MenuItem> items);
// A bar of the menus App (1, 2) and Tools (11, 12, 13) with a separator after them, as the program's own.
std::vector<BarButton> MainButtons();
BarButton Push(int id);
BarButton DropDown(int id);
// The middle of the drawn bar's button at this position; of the row with this label in the open menu.
Point ButtonPoint(Bed& bed, int position);
Point RowPoint(Bed& bed, std::string_view label);
// Where the label of a key or button of a layer stands; the middle of its run.
Point LabelPoint(Bed& bed, std::string_view layer, std::string_view label);

}  // namespace orvane::chrome_test
