// The command line of the hand-held.
#pragma once

#include <optional>
#include <string>
#include <variant>

#include "platform/input_panel.h"

namespace orvane {

struct Options {
  std::string dataFolder;               // empty: the program's own folder
  std::optional<std::string> settings;  // nothing: the user's settings file, or memory under a script
  std::optional<double> scale;
  std::optional<PanelMode> inputPanel;  // nothing: auto in a window, always under a script
  std::string instance = "Orvane";
  std::optional<std::string> script;  // "-" for standard input
  std::string outFolder = ".";
  bool firstFrameOnly = false;  // ends once the first frame has been painted: for measuring
};

// The options, or the exit status with which the program ends at once: 0 after --help and --version, which
// print to standard output, 2 after a wrong command line, which is explained on standard error.
std::variant<Options, int> ParseOptions(int argc, const char* const* argv);

}  // namespace orvane
