// The whole process, from exec to the end after the first painted frame, in a window of the display at hand
// (a virtual one serves) or, without a display, in a window that nobody sees. Wall time is the mean a start;
// peak_kb is the most memory that any of the starts had resident.
#include <benchmark/benchmark.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <string>
#include <vector>

namespace {

// Starts the program once and waits for its end; its exit status, or −1 when it could not be started.
int RunOnce(const std::vector<std::string>& arguments) {
  std::vector<std::string> words = arguments;
  std::vector<char*> argv;
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);
  pid_t process = 0;
  if (posix_spawn(&process, argv[0], nullptr, nullptr, argv.data(), environ) != 0) return -1;
  int status = 0;
  waitpid(process, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void FirstFrame(benchmark::State& state) {
  if (std::getenv("DISPLAY") == nullptr && std::getenv("WAYLAND_DISPLAY") == nullptr) {
    setenv("SDL_VIDEODRIVER", "dummy", 1);
  }
  const std::vector<std::string> arguments{ORVANE_BIN_DIR "/orvane",
                                           "--first-frame",
                                           "--instance",
                                           "orvane-bench",
                                           "--settings",
                                           ORVANE_BIN_DIR "/bench-settings.reg",
                                           "--scale",
                                           std::to_string(state.range(0))};
  RunOnce(arguments);  // warms the caches
  for ([[maybe_unused]] auto _ : state) {
    if (RunOnce(arguments) != 0) {
      state.SkipWithError("the program did not start");
      break;
    }
  }
  rusage usage{};
  getrusage(RUSAGE_CHILDREN, &usage);
  state.counters["peak_kb"] = static_cast<double>(usage.ru_maxrss);
}

BENCHMARK(FirstFrame)->ArgName("scale")->Arg(1)->Arg(2)->Arg(3)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
