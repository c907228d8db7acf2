// orvane-calc: the calculators and data files on the command line.
#include <filesystem>
#include <iostream>

#include "base/program_folder.h"
#include "cli/calculator.h"

namespace {

// The program's own path with symbolic links resolved. Where the system does not tell it, the path that the
// program was started by serves.
std::string ExecutablePath(const char* startedAs) {
  std::error_code error;
  const std::filesystem::path path = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::string(startedAs) : path.string();
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  return orvane::RunCalculator(
      argc, argv, orvane::ProgramFolder(ExecutablePath(argc > 0 ? argv[0] : ""), '/'), std::cout, std::cerr);
}
