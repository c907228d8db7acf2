// The program in a window of a real window system, handled and seen from outside: a virtual X server of the
// test's own, and a tool that moves the pointer and presses keys there. Where they are not installed there is
// nothing to test.
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <unistd.h>

#include <chrono>
#include <functional>
#include <memory>
#include <sstream>

#include "tests/app/program.h"

namespace orvane::app_test {
namespace {

// Of a program that is looked for as a shell would.
ProgramOptions Foreign(std::vector<std::string> words) {
  ProgramOptions options;
  options.words = std::move(words);
  options.path = "/usr/bin/env";
  return options;
}

bool Installed(const std::string& program) { return RunProgram(Foreign({"which", program})).status == 0; }

class DesktopWindow : public ::testing::Test {
 protected:
  // The screen has room for the hand-held at 3 and, comfortably, at 2.
  void SetUp() override {
    if (!Installed("Xvfb") || !Installed("xdotool")) GTEST_SKIP() << "no virtual X server, or no xdotool";
    server_ = std::make_unique<Program>(
        Foreign({"Xvfb", "-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp", "-noreset"}));
    ASSERT_TRUE(Comes([this] { return server_->Out().find('\n') != std::string::npos; }))
        << server_->Errors();
    display_ = ":" + server_->Out().substr(0, server_->Out().find('\n'));
  }
  void TearDown() override {
    if (!server_) return;
    server_->Signal(SIGTERM);  // it takes its lock away
    server_->Wait();
  }

  // Whether it does so within a minute.
  static bool Comes(const std::function<bool()>& condition) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::minutes(1);
    while (!condition()) {
      if (std::chrono::steady_clock::now() > end) return false;
      poll(nullptr, 0, 10);
    }
    return true;
  }

  static std::string Instance(const std::string& which = "") {
    return "test-" + std::to_string(getpid()) + "-desktop" + which;
  }
  std::unique_ptr<Program> Start(const std::string& instance, std::vector<std::string> words = {}) {
    ProgramOptions options;
    options.words = {"--instance", instance};
    options.words.insert(options.words.end(), words.begin(), words.end());
    options.set = {{"DISPLAY", display_}};
    return std::make_unique<Program>(options);
  }

  std::string Tool(std::vector<std::string> words) const {
    words.insert(words.begin(), "xdotool");
    ProgramOptions options = Foreign(std::move(words));
    options.set = {{"DISPLAY", display_}};
    return RunProgram(options).out;
  }
  // The value behind NAME= in what the tool says.
  std::string Told(std::vector<std::string> words, const std::string& name) const {
    std::istringstream lines(Tool(std::move(words)));
    for (std::string line; std::getline(lines, line);) {
      if (line.rfind(name + "=", 0) == 0) return line.substr(name.size() + 1);
    }
    return {};
  }
  // The window that is not the other one, once it is there.
  std::string NewWindow(const std::string& other = "") const {
    std::string found;
    EXPECT_TRUE(Comes([&] {
      std::istringstream lines(Tool({"search", "--onlyvisible", "--name", "^Orvane$"}));
      for (std::string line; std::getline(lines, line);) {
        if (line != other) found = line;
      }
      return !found.empty();
    }));
    return found;
  }
  bool ComesToBeWide(const std::string& window, int width) const {
    return Comes([&] {
      return Told({"getwindowgeometry", "--shell", window}, "WIDTH") == std::to_string(width);
    });
  }
  bool ComesToTheFront(const std::string& window) const {
    Tool({"mousemove", "640", "512"});  // without a window manager they stand in the middle of the screen
    return Comes([&] { return Told({"getmouselocation", "--shell"}, "WINDOW") == window; });
  }
  void Press(const std::string& window, const std::string& key) const {
    Tool({"windowfocus", "--sync", window, "key", key});
  }
  void Click(int x, int y) const {
    Tool({"mousemove", "--sync", std::to_string(x), std::to_string(y), "click", "1"});
  }

  testing::TempFolder folder_;

 private:
  std::unique_ptr<Program> server_;
  std::string display_;
};

TEST_F(DesktopWindow, ASecondStartBringsTheFirstOneToTheFront) {
  const auto first = Start(Instance());
  const std::string window = NewWindow();
  const auto other = Start(Instance("-other"));
  const std::string cover = NewWindow(window);
  ASSERT_TRUE(ComesToTheFront(cover));
  EXPECT_EQ(Start(Instance())->Wait(), 0);
  EXPECT_TRUE(ComesToTheFront(window));
  EXPECT_TRUE(first->Running());
}

TEST_F(DesktopWindow, HasAtTheNextStartTheSizeItWasLastUsedAt) {
  const std::string path = folder_.File("own.reg");
  const std::vector<std::string> words{"--settings", path};
  {
    const auto program = Start(Instance(), words);
    const std::string window = NewWindow();
    EXPECT_TRUE(ComesToBeWide(window, 480));
    Press(window, "ctrl+minus");
    EXPECT_TRUE(ComesToBeWide(window, 240));
    Press(window, "ctrl+q");
    EXPECT_EQ(program->Wait(), 0) << program->Errors();
  }
  EXPECT_NE(testing::ReadBytes(path).find("\"shell.Scale\"=dword:00000064\n"), std::string::npos);
  {
    const auto program = Start(Instance(), words);
    const std::string window = NewWindow();
    EXPECT_TRUE(ComesToBeWide(window, 240));
    Press(window, "ctrl+0");
    EXPECT_TRUE(ComesToBeWide(window, 480));
    Press(window, "ctrl+plus");
    EXPECT_TRUE(ComesToBeWide(window, 720));
    Press(window, "ctrl+q");
    EXPECT_EQ(program->Wait(), 0) << program->Errors();
  }
  EXPECT_NE(testing::ReadBytes(path).find("\"shell.Scale\"=dword:0000012c\n"), std::string::npos);
}

TEST_F(DesktopWindow, HasTheSizeThatTheCommandLineAsksFor) {
  const std::string path = folder_.File("own.reg");
  testing::WriteBytes(path, "[Software\\Zel Software\\Orvane]\n\"shell.Scale\"=dword:00000064\n");
  const auto program = Start(Instance(), {"--settings", path, "--scale", "1.5"});
  EXPECT_TRUE(ComesToBeWide(NewWindow(), 360));
}

TEST_F(DesktopWindow, OpensItsMenuAndEndsByTheLeftButton) {
  const auto program = Start(Instance());
  const std::string window = NewWindow();
  ASSERT_TRUE(ComesToBeWide(window, 480));
  Tool({"windowmove", "--sync", window, "0", "0"});
  Click(36, 614);  // App on the bar
  Click(36, 572);  // Exit, the entry right above it
  EXPECT_EQ(program->Wait(), 0) << program->Errors();
}

}  // namespace
}  // namespace orvane::app_test
