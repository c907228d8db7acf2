#include "tests/app/program.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>

namespace orvane::app_test {

namespace {

namespace fs = std::filesystem;

constexpr auto kPatience = std::chrono::minutes(1);
constexpr int kPauseMilliseconds = 2;
constexpr int kNotStarted = 127;

// In the child: only what is safe between fork and exec.
void Redirect(const char* path, int flags, int number) {
  const int file = open(path, flags, 0600);
  if (file < 0 || dup2(file, number) < 0) _exit(kNotStarted);
  close(file);
}

std::vector<char*> Pointers(std::vector<std::string>& words) {
  std::vector<char*> pointers;
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  return pointers;
}

std::vector<std::string> Environment(const std::map<std::string, std::string>& set, const std::string& home) {
  std::map<std::string, std::string> variables = {{"HOME", home}};
  for (const char* name : {"PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS"}) {
    if (const char* value = std::getenv(name)) variables[name] = value;
  }
  for (const auto& [name, value] : set) variables[name] = value;
  std::vector<std::string> lines;
  for (const auto& [name, value] : variables) lines.push_back(name + "=" + value);
  return lines;
}

}  // namespace

Program::Program(const ProgramOptions& options) {
  const std::string home = folder_.File("home");
  fs::create_directory(home);
  const std::string in = folder_.File("in");
  const std::string out = folder_.File("out");
  const std::string err = folder_.File("err");
  testing::WriteBytes(in, options.input);
  std::vector<std::string> words{options.path};
  words.insert(words.end(), options.words.begin(), options.words.end());
  std::vector<std::string> variables = Environment(options.set, home);
  const std::vector<char*> argv = Pointers(words);
  const std::vector<char*> envp = Pointers(variables);
  process_ = fork();
  if (process_ != 0) return;
  Redirect(in.c_str(), O_RDONLY, STDIN_FILENO);
  Redirect(out.c_str(), O_WRONLY | O_CREAT, STDOUT_FILENO);
  Redirect(err.c_str(), O_WRONLY | O_CREAT, STDERR_FILENO);
  execve(options.path.c_str(), argv.data(), envp.data());
  _exit(kNotStarted);
}

Program::~Program() {
  if (!Running()) return;
  Signal(SIGKILL);
  Reap(0);
}

void Program::Reap(int flags) {
  int status = 0;
  if (status_ || process_ <= 0 || waitpid(process_, &status, flags) != process_) return;
  status_ = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

bool Program::Running() {
  Reap(WNOHANG);
  return process_ > 0 && !status_;
}

void Program::Signal(int signal) const {
  if (process_ > 0 && !status_) kill(process_, signal);
}

bool Program::Handles(int signal) const {
  const std::string status = testing::ReadBytes("/proc/" + std::to_string(process_) + "/status");
  const std::string_view key = "SigCgt:";
  const std::size_t at = status.find(key);
  if (at == std::string::npos) return false;
  const unsigned long long caught = std::strtoull(status.c_str() + at + key.size(), nullptr, 16);
  return ((caught >> (signal - 1)) & 1u) != 0;
}

std::optional<int> Program::Wait() {
  const auto end = std::chrono::steady_clock::now() + kPatience;
  while (Running() && std::chrono::steady_clock::now() < end) poll(nullptr, 0, kPauseMilliseconds);
  return status_;
}

std::vector<std::string> Program::HomeFiles() const {
  std::vector<std::string> files;
  const fs::path home = folder_.Path() / "home";
  for (const auto& entry : fs::recursive_directory_iterator(home)) {
    if (!entry.is_directory()) files.push_back(fs::relative(entry.path(), home).string());
  }
  std::sort(files.begin(), files.end());
  return files;
}

std::string Program::HomeFile(const std::string& path) const {
  return testing::ReadBytes((folder_.Path() / "home" / path).string());
}

Ended RunProgram(const ProgramOptions& options) {
  Program program(options);
  const std::optional<int> status = program.Wait();
  return {status, program.Out(), program.Errors(), program.HomeFiles()};
}

Ended RunScript(const std::string& script, std::vector<std::string> words) {
  ProgramOptions options;
  options.words = {"--play", "-"};
  options.words.insert(options.words.end(), words.begin(), words.end());
  options.input = script;
  return RunProgram(options);
}

}  // namespace orvane::app_test
