#include "base/program_folder.h"

#include <filesystem>
#include <system_error>

namespace orvane {

std::string ExecutablePath(std::string_view otherwise) {
  std::error_code error;
  const std::filesystem::path path = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::string(otherwise) : path.string();
}

std::string ProgramFolder(std::string_view executablePath, char separator) {
  const std::size_t last = executablePath.rfind(separator);
  if (last == std::string_view::npos) return std::string(1, separator);
  return std::string(executablePath.substr(0, last + 1));
}

}  // namespace orvane
