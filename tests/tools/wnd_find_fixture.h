// The search on a hand-held of its own.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "framework/standard_commands.h"
#include "tests/framework/window_runs.h"
#include "tests/tools/element_files.h"
#include "tests/tools/recording_navigator.h"
#include "tools/wnd_find.h"

namespace orvane::testing {

using Calls = std::vector<std::string>;

inline constexpr Modifiers kControl{.shift = false, .control = true, .alt = false};
inline constexpr Modifiers kShift{.shift = true, .control = false, .alt = false};

class WndFindTest : public ::testing::Test {
 protected:
  explicit WndFindTest(PanelMode mode = PanelMode::kAlways)
      : shell_({.recordRuns = true, .panelMode = mode}) {
    EXPECT_TRUE(LoadShipped(elements_));
  }
  void Make() { tool_ = MakeWindow<wnd_find>(shell_, elements_, navigator_); }
  void MakeAndShow() {
    Make();
    tool_->Show();
    shell_.Settle();
    Forward();
  }
  // As the main window passes on the change of the input panel.
  void Forward() {
    GetDevice().Send(tool_->Handle(), WM_SETTINGCHANGE);
    shell_.Settle();
  }
  Device& GetDevice() { return shell_.GetDevice(); }
  FindList& List() { return tool_->List(); }
  PlainBox& Box() { return tool_->Box(); }

  // Another text in the box, typed.
  void Search(TextView text) {
    Box().TakeFocus();
    Box().SelectAll();
    if (text.empty()) GetDevice().KeyDown(VK_DELETE, {});
    for (const Char c : text) GetDevice().Character(c);
    shell_.Settle();
  }
  void Key(int key, Modifiers modifiers = {}) {
    GetDevice().KeyDown(key, modifiers);
    GetDevice().KeyUp(key, modifiers);
    shell_.Settle();
  }
  void TapList(int clientY, int clientX = 60) {
    shell_.Tap(List().Handle(), {clientX, clientY});
    shell_.Settle();
  }
  int ListHeight() { return GetDevice().WindowRect(List().Handle()).Height(); }
  std::uint32_t ListPixel(int x, int y) {
    shell_.Settle();
    return shell_.Pixel(shell_.OnScreen(List().Handle(), {x, y}));
  }
  std::vector<TextRun> RunsOf(WindowHandle window) { return testing::RunsOf(shell_, window); }

  TestShell shell_;
  ElementsDatabase elements_;
  RecordingNavigator navigator_;
  std::unique_ptr<wnd_find> tool_;
};

}  // namespace orvane::testing
