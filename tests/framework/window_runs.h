// The texts of one window of a test's hand-held, as they show.
#pragma once

#include <vector>

#include "tests/framework/test_shell.h"

namespace orvane::testing {

// In the window's client coordinates. The shell must have been made with recordRuns.
inline std::vector<TextRun> RunsOf(TestShell& shell, WindowHandle window) {
  shell.Settle();
  std::vector<TextRun> runs;
  const Rect place = shell.GetDevice().ScreenRect(window);
  for (ScreenRun& one : shell.GetDevice().VisibleRuns()) {
    if (one.handle != window) continue;
    one.run.rect = one.run.rect.Offset(-place.left, -place.top);
    runs.push_back(one.run);
  }
  return runs;
}

}  // namespace orvane::testing
