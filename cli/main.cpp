// orvane-calc: the calculators and data files on the command line.
#include <filesystem>
#include <iostream>

#include "cli/calculator.h"

namespace {

// The folder of the program with symbolic links resolved, ending with its separator. Where the system does
// not tell the program's path, the path it was started by serves.
std::string ProgramFolder(const char* startedAs) {
  std::error_code error;
  std::filesystem::path path = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error) path = std::filesystem::weakly_canonical(startedAs, error);
  return path.parent_path().string() + "/";
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  return orvane::RunCalculator(argc, argv, ProgramFolder(argc > 0 ? argv[0] : ""), std::cout, std::cerr);
}
