// Runs a command of the system's shell, for tests of scripts and of the installation.
#pragma once

#include <string>

namespace orvane::project {

struct Outcome {
  std::string output;  // standard output and standard error, as they came
  std::string lastLine;
  bool succeeded = false;
};

Outcome RunShellCommand(const std::string& command);

}  // namespace orvane::project
