// A panel on a screen whose pixels can be read.
#pragma once

#include <memory>
#include <vector>

#include "tests/framework/probe_panel.h"
#include "tests/framework/test_shell.h"

namespace orvane::testing {

inline std::uint32_t Pixels(Colour colour) {
  return (static_cast<std::uint32_t>(colour.red) << 16) | (static_cast<std::uint32_t>(colour.green) << 8) |
         colour.blue;
}

// A panel of 200 × 150 at (0, 0) of its tool, that is at (0, 26) of the screen.
class Hand {
 public:
  explicit Hand(double scale = 1.0)
      : shell({.scale = scale}),
        tool(MakeWindow<ZelWindow>(shell, shell.MainWindow(), true)),
        panel(MakeWindow<ProbePanel>(shell, tool->Handle(), false)) {
    tool->SetStyle(0, 0);
    tool->Move(0, 0, 240, 268);
    panel->Move(0, 0, 200, 150);
    panel->Show();
    tool->Show();
  }
  // The whole content in the panel's own buffer.
  void KeepPrivately(int width, int height) {
    panel->contentWidth = panel->bufferWidth = width;
    panel->contentHeight = panel->bufferHeight = height;
    panel->privateBuffer = true;
    panel->ResetBuffer();
    panel->Redraw();
  }
  void Forget() {
    panel->painted.clear();
    panel->clips.clear();
  }
  // The composed screen once all that waits is done.
  std::vector<std::uint32_t> Screen() {
    shell.Settle();
    return shell.GetHost().Pixels();
  }
  // A logical pixel of the panel at scale 1.
  std::uint32_t At(int x, int y) { return shell.Pixel({x, y + 26}); }

  TestShell shell;
  std::unique_ptr<ZelWindow> tool;
  std::unique_ptr<ProbePanel> panel;
};

using Rects = std::vector<Rect>;

}  // namespace orvane::testing
