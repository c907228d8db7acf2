// orvane-calc: the calculators and data files on the command line.
#include <iostream>

#include "base/program_folder.h"
#include "cli/calculator.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  const std::string program = orvane::ExecutablePath(argc > 0 ? argv[0] : "");
  return orvane::RunCalculator(argc, argv, orvane::ProgramFolder(program, '/'), std::cin, std::cout,
                               std::cerr);
}
