// The whole program on a headless host with settings in memory, for the benchmarks of its screens.
#pragma once

#include <utility>

#include "app/played_application.h"
#include "data/memory_settings.h"
#include "platform/host_headless.h"

namespace orvane {

class RunningProgram {
 public:
  // As on a first run, or as with these settings; the first frame has been made.
  explicit RunningProgram(double scale, PanelMode panel = PanelMode::kAuto, MemorySettings store = {})
      : store_(std::move(store)),
        program_(host_, OptionsOf(scale, panel), store_, {ORVANE_BIN_DIR "/", StandardTools()}) {
    Step();
  }

  Device& GetDevice() { return program_.GetDevice(); }
  template <class Window>
  Window& Tool(ToolSlot slot) {
    return static_cast<Window&>(*program_.GetApplication().Tool(slot));
  }

  // Handles what is due, up to the frame.
  void Step() { GetDevice().Step(host_.Now()); }
  // As from the main menu; up to the frame.
  void Choose(int command) {
    GetDevice().Send(GetDevice().MainWindow(), WM_COMMAND, PackCommand(command, 0));
    Step();
  }
  // As from the tool's own menus and buttons; up to the frame.
  void Command(ToolSlot slot, int command) {
    const WindowHandle tool = program_.GetApplication().Tool(slot)->Handle();
    GetDevice().Send(tool, kToolCommand, static_cast<WParam>(command), kFromMenu);
    Step();
  }
  void Tap(Point point) {
    GetDevice().PenDown(point);
    GetDevice().PenUp(point);
    Step();
  }
  void Key(int key, Modifiers modifiers = {}) {
    GetDevice().KeyDown(key, modifiers);
    GetDevice().KeyUp(key, modifiers);
    Step();
  }

 private:
  static DeviceOptions OptionsOf(double scale, PanelMode panel) {
    DeviceOptions options;
    options.scale = scale;
    options.panelMode = panel;
    return options;
  }

  HeadlessHost host_;
  MemorySettings store_;
  PlayedApplication program_;
};

}  // namespace orvane
