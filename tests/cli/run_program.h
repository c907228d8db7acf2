// Runs a built program as a user's shell would, and keeps what it wrote.
#pragma once

#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "tests/data/temp_folder.h"

namespace orvane::testing {

struct ProgramResult {
  int status = -1;  // the exit status, -1 when the program was ended by a signal
  std::string out;
  std::string err;
};

inline std::string ShellQuoted(const std::string& word) {
  std::string out = "'";
  for (const char c : word) out += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return out + "'";
}

inline ProgramResult RunProgram(const std::string& program, const std::vector<std::string>& words,
                                const std::string& input = {}) {
  const TempFolder folder;
  std::ofstream(folder.File("in"), std::ios::binary) << input;
  std::string line = ShellQuoted(program);
  for (const std::string& word : words) line += " " + ShellQuoted(word);
  line += " >" + ShellQuoted(folder.File("out")) + " 2>" + ShellQuoted(folder.File("err")) + " <" +
          ShellQuoted(folder.File("in"));
  const int status = std::system(line.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadBytes(folder.File("out")),
          ReadBytes(folder.File("err"))};
}

}  // namespace orvane::testing
