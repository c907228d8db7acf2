// The manual's own sources, for tests.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "content/help_source.h"
#include "tests/data/temp_folder.h"

namespace orvane::testing {

inline std::map<std::string, std::string> ManualFiles() {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(ORVANE_SOURCE_DIR "/content/help")) {
    files[entry.path().filename().string()] = ReadBytes(entry.path().string());
  }
  return files;
}

inline HelpSource Manual(std::vector<TableProblem>& problems) { return ReadHelp(ManualFiles(), problems); }

inline HelpSource Manual() {
  std::vector<TableProblem> ignored;
  return Manual(ignored);
}

}  // namespace orvane::testing
