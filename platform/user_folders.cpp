#include "platform/user_folders.h"

#include <cstdlib>

namespace orvane {

std::string ConfigFolder() {
  const char* configured = std::getenv("XDG_CONFIG_HOME");
  if (configured && *configured == '/') return configured;
  const char* home = std::getenv("HOME");
  return home && *home == '/' ? std::string(home) + "/.config" : std::string();
}

}  // namespace orvane
