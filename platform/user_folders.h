// Where the user's files are. Paths are UTF-8.
#pragma once

#include <string>

namespace orvane {

// The user's configuration folder, without a slash at its end: $XDG_CONFIG_HOME when that is an absolute
// path, else ".config" in the home folder. Empty when there is no home folder either.
std::string ConfigFolder();

}  // namespace orvane
