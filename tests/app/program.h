// The real program as a process: with an environment of its own, standard input from a text, and its output
// kept in files.
#pragma once

#include <sys/types.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tests/data/temp_folder.h"

namespace orvane::app_test {

struct ProgramOptions {
  std::vector<std::string> words{};          // its command line, without its name
  std::string input{};                       // on standard input
  std::map<std::string, std::string> set{};  // environment variables beside the standard ones
  std::string path = ORVANE_BIN_DIR "/orvane";
};

// A home folder that is empty at first and no display, unless the options say otherwise.
class Program {
 public:
  explicit Program(const ProgramOptions& options);
  ~Program();  // ends it by force when it still runs
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // The exit status once it has ended, waited for a minute at most; -1 when a signal ended it, nothing when
  // it still runs.
  std::optional<int> Wait();
  bool Running();
  void Signal(int signal) const;
  // Whether it has said by now that it handles the signal itself.
  bool Handles(int signal) const;

  std::string Out() const { return testing::ReadBytes(folder_.File("out")); }
  std::string Errors() const { return testing::ReadBytes(folder_.File("err")); }
  // The files below the home folder, by their paths in it.
  std::vector<std::string> HomeFiles() const;
  std::string HomeFile(const std::string& path) const;

 private:
  void Reap(int flags);

  testing::TempFolder folder_;
  pid_t process_ = -1;
  std::optional<int> status_;
};

// Runs it to its end.
struct Ended {
  std::optional<int> status;
  std::string out;
  std::string errors;
  std::vector<std::string> homeFiles;
};
Ended RunProgram(const ProgramOptions& options);
Ended RunScript(const std::string& script, std::vector<std::string> words = {});

}  // namespace orvane::app_test
