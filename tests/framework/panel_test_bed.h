// A panel of 240 × 268 in a tool, with a pen.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "tests/framework/probe_panel.h"
#include "tests/framework/test_shell.h"

namespace orvane::testing {

using Codes = std::vector<std::uint32_t>;

class ZelPanelTest : public ::testing::Test {
 protected:
  ZelPanelTest()
      : tool_(MakeWindow<ZelWindow>(shell_, shell_.MainWindow(), true)),
        panel_(MakeWindow<ProbePanel>(shell_, tool_->Handle(), false)) {
    tool_->SetStyle(0, 0);
    tool_->Move(0, 0, 240, 268);
    panel_->Move(0, 0, 240, 268);
    panel_->Show();
    tool_->Show();
    shell_.Settle();
    Forget();
  }

  void Forget() {
    panel_->seen.clear();
    panel_->painted.clear();
    panel_->clips.clear();
  }
  // A content that scrolls a long way, and raw steps.
  void MakeLarge() {
    panel_->contentWidth = 1000;
    panel_->contentHeight = 2000;
    panel_->acceleratedDrag = false;
  }
  void Down(Point client) { GetDevice().PenDown(shell_.OnScreen(panel_->Handle(), client)); }
  void MoveTo(Point client) { GetDevice().PenMove(shell_.OnScreen(panel_->Handle(), client)); }
  void Up(Point client) { GetDevice().PenUp(shell_.OnScreen(panel_->Handle(), client)); }
  Device& GetDevice() { return shell_.GetDevice(); }
  bool Invalid() { return !GetDevice().InvalidRect(panel_->Handle()).Empty(); }

  TestShell shell_;
  std::unique_ptr<ZelWindow> tool_;
  std::unique_ptr<ProbePanel> panel_;
};

}  // namespace orvane::testing
