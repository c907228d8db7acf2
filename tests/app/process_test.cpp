// The program from outside: its command line, its exit statuses, what it writes, and that there is one of it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>

#include "tests/app/program.h"

namespace orvane::app_test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

// --- Command line.

TEST(CommandLine, TellsItsVersion) {
  const Ended ended = RunProgram({.words = {"--version"}});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.out, "orvane 1.41\n");
  EXPECT_EQ(ended.errors, "");
}

TEST(CommandLine, ExplainsEveryOption) {
  const Ended ended = RunProgram({.words = {"--help"}});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.errors, "");
  for (const char* option :
       {"--data DIR ", "--settings FILE ", "--scale N ", "--input-panel auto|always|never\n",
        "--instance NAME ", "--play SCRIPT|- ", "--out DIR ", "--version ", "--help ", "--first-frame "}) {
    EXPECT_THAT(ended.out, HasSubstr(option));
  }
  EXPECT_THAT(ended.homeFiles, IsEmpty());
}

TEST(CommandLine, WrongUsageIsToldAndEndsWithTwo) {
  const std::vector<std::vector<std::string>> wrong{
      {"--no-such-option"},
      {"file"},
      {"--data"},
      {"--play"},
      {"--scale", "0", "--play", "-"},
      {"--scale", "0.5", "--play", "-"},
      {"--scale", "17", "--play", "-"},
      {"--scale", "-1", "--play", "-"},
      {"--scale", "nan", "--play", "-"},
      {"--scale", "big", "--play", "-"},
      {"--scale", "", "--play", "-"},
      {"--input-panel", "sometimes", "--play", "-"},
      {"--input-panel", "1", "--play", "-"},
      {"--play", "-", "--play", "-"},
  };
  for (const std::vector<std::string>& words : wrong) {
    const Ended ended = RunProgram({.words = words});
    EXPECT_EQ(ended.status, 2) << words[0] << (words.size() > 1 ? " " + words[1] : "");
    EXPECT_NE(ended.errors, "");
    EXPECT_EQ(ended.out, "");
  }
}

TEST(CommandLine, TakesScalesAndPanelModes) {
  for (const char* scale : {"1", "1.5", "2", "16"}) {
    EXPECT_EQ(RunScript("expect tool wnd_periodic\n", {"--scale", scale}).status, 0) << scale;
  }
  for (const char* mode : {"auto", "always", "never"}) {
    EXPECT_EQ(RunScript("expect tool wnd_periodic\n", {"--input-panel", mode}).status, 0) << mode;
  }
}

// --- Scripts.

TEST(Scripts, AreReadFromStandardInput) {
  const Ended ended = RunScript("expect tool wnd_periodic\nreport\n");
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.errors, "");
  EXPECT_THAT(ended.out, StartsWith("{\"tool\":\"wnd_periodic\",\"current\":\"wnd_periodic\","));
}

TEST(Scripts, AreReadFromAFile) {
  const testing::TempFolder folder;
  testing::WriteBytes(folder.File("one.play"), "menu App Exit\nexpect exit 0\n");
  EXPECT_EQ(RunProgram({.words = {"--play", folder.File("one.play")}}).status, 0);
}

TEST(Scripts, ThatCannotBeReadEndWithFour) {
  const testing::TempFolder folder;
  for (const std::string& path : {folder.File("none.play"), folder.Path().string()}) {
    const Ended ended = RunProgram({.words = {"--play", path}});
    EXPECT_EQ(ended.status, 4) << path;
    EXPECT_THAT(ended.errors, HasSubstr(path));
  }
}

TEST(Scripts, ThatAreWrongAreNotPlayed) {
  const Ended ended = RunScript("report\nfly 3 4\n");
  EXPECT_EQ(ended.status, 4);
  EXPECT_EQ(ended.out, "");
  EXPECT_THAT(ended.errors, StartsWith("line 2: "));
}

TEST(Scripts, GoOnAfterAFailedExpectationAndEndWithThree) {
  const Ended ended = RunScript("expect tool wnd_mass\nbutton 1\nreport\n");
  EXPECT_EQ(ended.status, 3);
  EXPECT_THAT(ended.errors, StartsWith("line 1: "));
  EXPECT_THAT(ended.errors, HasSubstr("\nline 2: "));
  EXPECT_THAT(ended.out, StartsWith("{"));
}

TEST(Scripts, EndWithTheProgramsOwnStatus) {
  EXPECT_EQ(RunScript("").status, 0);
  const std::vector<std::string> nowhere{"--data", "/nowhere"};
  EXPECT_EQ(RunScript("expect message \"File: /nowhere/periodic.dat\"\nok\nexpect exit 1\n", nowhere).status,
            1);
  EXPECT_EQ(RunScript("close\n", nowhere).status, 1);
  // The end of the script is the end of the program, whatever it waits for.
  EXPECT_EQ(RunScript("", nowhere).status, 1);
}

TEST(Scripts, LeaveTheUsersFolderAlone) {
  const Ended ended = RunScript("button 8869\nchoose \"Preset 2\"\nrestart\nreport\n");
  EXPECT_EQ(ended.status, 0);
  EXPECT_THAT(ended.homeFiles, IsEmpty());
}

TEST(Scripts, KeepSettingsInMemoryAcrossARestart) {
  EXPECT_EQ(
      RunScript("button 8867\nchoose \"Wide mode\"\nrestart\nbutton 8867\nexpect checked \"Wide mode\"\n")
          .status,
      0);
}

TEST(Scripts, WriteTheirPicturesWhereTheyAreTold) {
  const testing::TempFolder folder;
  const std::string out = folder.File("new/pictures");
  EXPECT_EQ(RunScript("shot one.png\n", {"--out", out, "--scale", "2"}).status, 0);
  EXPECT_THAT(testing::ReadBytes(out + "/one.png"), StartsWith("\x89PNG"));
}

// --- The program's folder.

TEST(ProgramFolder, IsThatOfTheProgramItselfBehindEveryLink) {
  const testing::TempFolder folder;
  fs::create_symlink(ORVANE_BIN_DIR "/orvane", folder.File("linked"));
  ProgramOptions options{.words = {"--play", "-"}, .input = "expect no-message\nexpect text Uub\n"};
  options.path = folder.File("linked");
  EXPECT_EQ(RunProgram(options).status, 0);
}

TEST(ProgramFolder, IsWhereTheElementsAreLookedFor) {
  const testing::TempFolder folder;
  fs::copy_file(ORVANE_BIN_DIR "/orvane", folder.File("orvane"));
  ProgramOptions options{.words = {"--play", "-"}};
  options.path = folder.File("orvane");
  options.input = "expect message \"File: " + fs::canonical(folder.Path()).string() + "/periodic.dat\"\n";
  EXPECT_EQ(RunProgram(options).status, 1);
}

TEST(ProgramFolder, CanBeNamedWithAndWithoutASlash) {
  for (const char* data : {ORVANE_BIN_DIR, ORVANE_BIN_DIR "/"}) {
    EXPECT_EQ(RunScript("expect text Uub\n", {"--data", data}).status, 0);
  }
}

// --- Settings.

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    lines.push_back(text.substr(at, end - at));
    at = end + 1;
  }
  return lines;
}

// The periodic table's values of a file of settings; the other screens have tests of their own for theirs.
std::vector<std::string> PeriodicLines(const std::string& text) {
  std::vector<std::string> lines = Lines(text);
  std::erase_if(lines, [](const std::string& line) { return line.rfind("\"wnd_periodic.", 0) != 0; });
  return lines;
}

// A first run's values of the table: its look, and its three presets.
std::vector<std::string> FirstRunLines() {
  std::vector<std::string> lines;
  const auto add = [&lines](const std::string& prefix, std::string_view bits) {
    const char* const names[] = {"ModeWide", "ColorType", "ShowNum", "ShowName", "ShowMass"};
    for (std::size_t i = 0; i < bits.size(); ++i) {
      lines.push_back("\"wnd_periodic." + prefix + names[i] + "\"=dword:0000000" + bits[i]);
    }
  };
  add("", "00000");
  add("Preset[0].", "00000");
  add("Preset[1].", "11100");
  add("Preset[2].", "11110");
  return lines;
}

TEST(Settings, AreAllWrittenAtTheEndOfARun) {
  const testing::TempFolder folder;
  const Ended ended = RunScript("", {"--settings", folder.File("deep/own.reg")});
  EXPECT_EQ(ended.status, 0);
  const std::string written = testing::ReadBytes(folder.File("deep/own.reg"));
  EXPECT_EQ(Lines(written).front(), "[Software\\Zel Software\\Orvane]");
  EXPECT_THAT(PeriodicLines(written), ::testing::UnorderedElementsAreArray(FirstRunLines()));
  EXPECT_THAT(ended.homeFiles, IsEmpty());
  // No other file is left beside it.
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path() / "deep"), fs::directory_iterator()), 1);
}

TEST(Settings, OfAPersonAreKeptWhenTheyAreNotOurs) {
  const testing::TempFolder folder;
  const std::string path = folder.File("own.reg");
  testing::WriteBytes(path,
                      "[Software\\Zel Software\\Orvane]\n\"wnd_periodic.ModeWide\"=dword:00000001\n"
                      "\"mine\"=\"kept\"\n");
  EXPECT_EQ(RunScript("button 8867\nexpect checked \"Wide mode\"\n", {"--settings", path}).status, 0);
  const std::vector<std::string> lines = Lines(testing::ReadBytes(path));
  EXPECT_THAT(lines, ::testing::Contains("\"mine\"=\"kept\""));
  EXPECT_THAT(lines, ::testing::Contains("\"wnd_periodic.ModeWide\"=dword:00000001"));
  EXPECT_EQ(PeriodicLines(testing::ReadBytes(path)).size(), 20u);
}

TEST(Settings, ThatCannotBeWrittenAreNoMatterForAMessage) {
  const testing::TempFolder folder;
  testing::WriteBytes(folder.File("file"), "no folder");
  const std::string paths[] = {folder.File("file/own.reg"), folder.Path().string(), "/proc/own.reg"};
  for (const std::string& path : paths) {
    const Ended ended = RunScript("expect no-message\nrestart\nexpect no-message\n", {"--settings", path});
    EXPECT_EQ(ended.status, 0) << path;
    EXPECT_EQ(ended.errors, "") << path;
  }
  EXPECT_EQ(testing::ReadBytes(folder.File("file")), "no folder");
}

// --- In a window. The library's own driver without a screen stands for one.

const std::map<std::string, std::string> kWindow{{"SDL_VIDEODRIVER", "dummy"}};

std::string InstanceName() {
  return "test-" + std::to_string(getpid()) + "-" +
         ::testing::UnitTest::GetInstance()->current_test_info()->name();
}

// Whether a program holds the name: the sockets of the system name it.
bool Held(const std::string& name) {
  return testing::ReadBytes("/proc/net/unix").find("-" + name + "\n") != std::string::npos;
}

// Waits until the condition holds; a failure when the program ends before, or after a minute.
template <typename Condition>
::testing::AssertionResult ComesTo(Program& program, const Condition& condition) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::minutes(1);
  while (!condition()) {
    if (!program.Running()) return ::testing::AssertionFailure() << "it has ended: " << program.Errors();
    if (std::chrono::steady_clock::now() > end) return ::testing::AssertionFailure() << "it never does";
    poll(nullptr, 0, 2);
  }
  return ::testing::AssertionSuccess();
}

::testing::AssertionResult ComesToHold(Program& program, const std::string& name) {
  return ComesTo(program, [&] { return Held(name); });
}

TEST(Window, TheFirstFrameAloneCanBeAskedFor) {
  const Ended ended = RunProgram({.words = {"--first-frame", "--instance", InstanceName()}, .set = kWindow});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.errors, "");
}

TEST(Window, SettingsAreInTheUsersFolder) {
  Program program({.words = {"--first-frame", "--instance", InstanceName()}, .set = kWindow});
  EXPECT_EQ(program.Wait(), 0);
  EXPECT_THAT(program.HomeFiles(), ElementsAre(".config/orvane/settings.reg"));
  EXPECT_THAT(PeriodicLines(program.HomeFile(".config/orvane/settings.reg")),
              ::testing::UnorderedElementsAreArray(FirstRunLines()));
}

TEST(Window, SettingsAreInTheConfigurationFolderWhenThereIsOne) {
  const testing::TempFolder folder;
  std::map<std::string, std::string> set = kWindow;
  set["XDG_CONFIG_HOME"] = folder.Path().string();
  const Ended ended = RunProgram({.words = {"--first-frame", "--instance", InstanceName()}, .set = set});
  EXPECT_EQ(ended.status, 0);
  EXPECT_THAT(ended.homeFiles, IsEmpty());
  EXPECT_TRUE(fs::exists(folder.File("orvane/settings.reg")));
}

TEST(Window, ThatCannotOpenIsToldAndEndsWithFive) {
  const Ended ended = RunProgram({.words = {"--instance", InstanceName()}});
  EXPECT_EQ(ended.status, 5);
  EXPECT_THAT(ended.errors, HasSubstr("orvane: no display can be opened: "));
  EXPECT_THAT(ended.homeFiles, IsEmpty());
}

TEST(Window, EndsInTheOrdinaryWayWhenTheSystemAsksItTo) {
  Program program({.words = {"--instance", InstanceName()}, .set = kWindow});
  ASSERT_TRUE(ComesTo(program, [&] { return program.Handles(SIGTERM); }));
  program.Signal(SIGTERM);
  EXPECT_EQ(program.Wait(), 0);
  EXPECT_THAT(program.HomeFiles(), ElementsAre(".config/orvane/settings.reg"));
}

TEST(Instance, ASecondStartEndsAtOnceAndReadsNothing) {
  const testing::TempFolder folder;
  const std::string name = InstanceName();
  Program first({.words = {"--instance", name}, .set = kWindow});
  ASSERT_TRUE(ComesToHold(first, name));
  // Without elements a first start would wait for its message to be read.
  Program second({.words = {"--instance", name, "--data", "/nowhere", "--settings", folder.File("own.reg")},
                  .set = kWindow});
  EXPECT_EQ(second.Wait(), 0);
  EXPECT_EQ(second.Errors(), "");
  EXPECT_FALSE(fs::exists(folder.File("own.reg")));
  EXPECT_TRUE(first.Running());
  // It needs no display either.
  EXPECT_EQ(RunProgram({.words = {"--instance", name}}).status, 0);
}

TEST(Instance, AnotherNameIsAnotherProgram) {
  const std::string name = InstanceName();
  Program first({.words = {"--instance", name}, .set = kWindow});
  ASSERT_TRUE(ComesToHold(first, name));
  Program other({.words = {"--instance", name + "2", "--first-frame"}, .set = kWindow});
  EXPECT_EQ(other.Wait(), 0);
  EXPECT_THAT(other.HomeFiles(), ElementsAre(".config/orvane/settings.reg"));
}

TEST(Instance, AScriptTakesNoNotice) {
  const std::string name = InstanceName();
  Program first({.words = {"--instance", name}, .set = kWindow});
  ASSERT_TRUE(ComesToHold(first, name));
  EXPECT_THAT(RunScript("report\n", {"--instance", name}).out, StartsWith("{"));
}

TEST(Instance, OneThatWasKilledIsForgotten) {
  const std::string name = InstanceName();
  Program first({.words = {"--instance", name}, .set = kWindow});
  ASSERT_TRUE(ComesToHold(first, name));
  first.Signal(SIGKILL);
  EXPECT_EQ(first.Wait(), -1);
  Program next({.words = {"--instance", name, "--first-frame"}, .set = kWindow});
  EXPECT_EQ(next.Wait(), 0);
  // It ran as a first one does.
  EXPECT_THAT(next.HomeFiles(), ElementsAre(".config/orvane/settings.reg"));
}

}  // namespace
}  // namespace orvane::app_test
