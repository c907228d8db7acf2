// Runs a play script against the real program. The program is handed in, so that this room knows neither
// tools nor the application.
#pragma once

#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include "platform/device.h"

namespace orvane {

// What a script sees of the running program beyond its device. Made anew by `restart`.
class PlayedProgram {
 public:
  virtual ~PlayedProgram() = default;
  virtual Device& GetDevice() = 0;
  virtual std::string FrontTool() const = 0;    // class name of the front of the tool stack, "" if none
  virtual std::string CurrentTool() const = 0;  // class name of the shell's current tool, "" if none
  virtual std::vector<std::string> ToolStack() const = 0;  // bottom first
  virtual int HelpTopic() const = 0;
  // The exit code once the program has ended (its clean-up done), nothing before.
  virtual std::optional<int> Ended() const = 0;
  // Called after every Device::Step: lets the program end when its device has quit.
  virtual void AfterStep() = 0;
};

struct PlayOptions {
  double scale = 1.0;
  PanelMode panelMode = PanelMode::kAlways;
  std::string outFolder = ".";
  std::string fontFolder;
  // Starts the program on this host; the device options carry scale, panel mode, trace and run recording.
  std::function<std::unique_ptr<PlayedProgram>(Host&, const DeviceOptions&)> start;
  // Called after every verb with the quiescent program: tests compare repaints here.
  std::function<void(PlayedProgram&, int line)> afterVerb;
};

// Plays the script. Reports go to `out`, failed expectations ("line N: …") and script errors to `errors`.
// Returns the process exit status: the program's own, or 3 after a failed expectation or refused press, or 4
// when the script itself is wrong (nothing is played then).
int Play(std::string_view script, const PlayOptions& options, std::ostream& out, std::ostream& errors);

}  // namespace orvane
