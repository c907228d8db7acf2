// The table of rooms (tests/project/layers.txt) and the checks that hold the code to it.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>

#include "tests/project/source_text.h"

namespace orvane::project {

struct Room {
  std::set<std::string> mayInclude;  // as the row says, not passed on
  std::set<std::string> libraries;
};
using Layers = std::map<std::string, Room>;

// Reads the table; a damaged row or an unknown room in a row is a finding.
Layers ParseLayers(std::string_view table, Findings& findings);

// The room itself, what its row gives, and what those rows give.
std::set<std::string> Reach(const Layers& layers, const std::string& room);

// Quoted includes of every room against the table: from the root, into rooms within reach, hosts only
// from the program's main file, screens never into one another.
Findings CheckIncludes(const FileMap& files, const Layers& layers);

// Angle-bracket includes of every room: the standard library and the row's libraries.
Findings CheckLibraries(const FileMap& files, const Layers& layers);

// The DEPENDS list of each room's CMakeLists.txt is its row; other link lines stay within reach.
Findings CheckBuildFiles(const FileMap& files, const Layers& layers);

// The table of the architecture page has the same rows.
Findings CheckArchitecturePage(const FileMap& files, const Layers& layers);

}  // namespace orvane::project
