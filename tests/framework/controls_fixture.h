// Controls inside a tool that notes what they tell it.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "framework/control_messages.h"
#include "framework/pressable_control.h"
#include "framework/zel_tool_window.h"
#include "tests/framework/test_shell.h"

namespace orvane::testing {

struct Told {
  std::uint32_t message = 0;
  WindowHandle sender = kNoWindow;
  LParam l = 0;
  bool pressed = false;  // the control at that moment
  bool checked = false;
  friend bool operator==(const Told&, const Told&) = default;
};

class ControlsParent : public ZelToolWindow {
 public:
  explicit ControlsParent(TestShell& shell) : ZelToolWindow(shell, shell.MainWindow(), true) {
    Move(0, 0, 240, 268);
  }
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override {
    if ((message >= 0x8190 && message <= 0x8192) || (message >= 0x81AE && message <= 0x81B0)) {
      told.push_back({message, SenderOf(w), l, false, false});
      if (state) state(told.back());
    }
    if (message == WM_KEYDOWN) keys.push_back(static_cast<int>(w));
    return ZelToolWindow::OnMessage(message, w, l);
  }
  std::vector<Told> told;
  std::vector<int> keys;
  std::function<void(Told&)> state;

 protected:
  void Paint(Canvas& canvas, int width, int height) override {
    canvas.FillRect({0, 0, width, height}, kWhite);
  }
};

class ControlsTest : public ::testing::Test {
 protected:
  ControlsTest() : shell_({.recordRuns = true}), parent_(MakeWindow<ControlsParent>(shell_)) {
    parent_->Show();
    shell_.Settle();
  }
  Device& GetDevice() { return shell_.GetDevice(); }

  void Down(const ZelWindow& control, Point client) {
    GetDevice().PenDown(shell_.OnScreen(control.Handle(), client));
  }
  void MoveTo(const ZelWindow& control, Point client) {
    GetDevice().PenMove(shell_.OnScreen(control.Handle(), client));
  }
  void Up(const ZelWindow& control, Point client) {
    GetDevice().PenUp(shell_.OnScreen(control.Handle(), client));
  }
  // The values that the parent has been told, in order.
  std::vector<std::uint32_t> Told() const {
    std::vector<std::uint32_t> values;
    for (const auto& one : parent_->told) values.push_back(one.message);
    return values;
  }
  int Paints(const ZelWindow& control) {
    int count = 0;
    for (const Dispatched& one : shell_.Trace().messages) {
      if (one.window == control.Handle() && one.message == WM_PAINT) ++count;
    }
    return count;
  }
  std::uint32_t Pixel(const ZelWindow& control, Point client) {
    shell_.Settle();
    return shell_.Pixel(shell_.OnScreen(control.Handle(), client));
  }
  // The one run of text that the control shows, in client coordinates.
  TextRun Run(const ZelWindow& control) {
    shell_.Settle();
    TextRun found;
    int count = 0;
    const Rect place = GetDevice().ScreenRect(control.Handle());
    for (const ScreenRun& one : GetDevice().VisibleRuns()) {
      if (one.handle != control.Handle()) continue;
      found = one.run;
      found.rect = one.run.rect.Offset(-place.left, -place.top);
      ++count;
    }
    EXPECT_EQ(count, 1);
    return found;
  }

  TestShell shell_;
  std::unique_ptr<ControlsParent> parent_;
};

}  // namespace orvane::testing
