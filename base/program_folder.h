// Where the program's data files lie.
#pragma once

#include <string>
#include <string_view>

namespace orvane {

// The running program's file with symbolic links resolved; `otherwise` where the system does not tell.
std::string ExecutablePath(std::string_view otherwise = {});

// The folder of an executable: its path up to and including the last separator. A path without a
// separator gives the separator alone, the root. Paths are the host's own bytes, of any length.
std::string ProgramFolder(std::string_view executablePath, char separator);

}  // namespace orvane
