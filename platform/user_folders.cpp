#include "platform/user_folders.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace orvane {

std::string ExecutablePath() {
  std::error_code error;
  const std::filesystem::path path = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::string() : path.string();
}

std::string ConfigFolder() {
  const char* configured = std::getenv("XDG_CONFIG_HOME");
  if (configured && *configured == '/') return configured;
  const char* home = std::getenv("HOME");
  return home && *home == '/' ? std::string(home) + "/.config" : std::string();
}

}  // namespace orvane
