// What a scenario's first comments ask for, and the folders that they name.
#pragma once

#include <optional>
#include <string>

namespace orvane {

struct Stage {
  std::string script;  // the whole text
  std::string dataFolder;
  std::optional<std::string> settings;  // the file to start from
  int exit = 0;
  double scale = 1;
  bool wrongOnPurpose = false;
};

// Reads a script and prepares what it asks for below `workFolder`.
Stage SetStage(const std::string& scriptPath, const std::string& workFolder);

}  // namespace orvane
