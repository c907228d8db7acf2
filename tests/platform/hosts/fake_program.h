// A small program on a real device, for scripts to play: one tool with a text box, a menu bar, boxes, a
// dialog and timers. Its commands are named below.
#pragma once

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "platform/host_headless.h"
#include "platform/play.h"

namespace orvane::hosts_test {

inline constexpr int kPushId = 100;      // a push button
inline constexpr int kDisabledId = 101;  // a push button that is disabled
inline constexpr int kDropDownId = 102;  // opens a pop-up menu at (30, 295)
inline constexpr int kCheckedId = 103;   // a push button that is checked

// Menu "App": About, Exit, Later (disabled), Two boxes, Spin, Timers, Copy, Wait cursor, Quit with 1.
inline constexpr int kAbout = 1;
inline constexpr int kExit = 2;
inline constexpr int kLater = 3;
inline constexpr int kTwoBoxes = 4;
inline constexpr int kSpin = 5;    // posts to itself for ever
inline constexpr int kTimers = 6;  // timer 1 every 500 ms, timer 2 every 300 ms
inline constexpr int kCopy = 7;
inline constexpr int kWaitCursor = 8;
inline constexpr int kQuitWithOne = 9;

// What outlives a restart: what was seen, and the "settings".
struct Memory {
  std::vector<std::string> log;
  int starts = 0;
  int ends = 0;
  double lastScale = 0;
};

// What one script came to.
struct Outcome {
  int status = 0;
  std::string out;
  std::string errors;
  Memory memory;
};

Outcome PlayFake(const std::string& script, PlayOptions options = {});

}  // namespace orvane::hosts_test
