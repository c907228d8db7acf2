#include "base/program_folder.h"

namespace orvane {

std::string ProgramFolder(std::string_view executablePath, char separator) {
  const std::size_t last = executablePath.rfind(separator);
  if (last == std::string_view::npos) return std::string(1, separator);
  return std::string(executablePath.substr(0, last + 1));
}

}  // namespace orvane
