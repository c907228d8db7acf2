#include "tests/project/shell_command.h"

#include <array>
#include <cstdio>

#include "tests/project/source_text.h"

namespace orvane::project {

Outcome RunShellCommand(const std::string& command) {
  Outcome outcome;
  FILE* pipe = popen(("{ " + command + "; } 2>&1").c_str(), "r");
  if (pipe == nullptr) return outcome;
  std::array<char, 4096> part{};
  for (std::size_t count = 1; count > 0;) {
    count = fread(part.data(), 1, part.size(), pipe);
    outcome.output.append(part.data(), count);
  }
  outcome.succeeded = pclose(pipe) == 0;
  const auto lines = Lines(outcome.output);
  if (!lines.empty()) outcome.lastLine = lines.back();
  return outcome;
}

}  // namespace orvane::project
