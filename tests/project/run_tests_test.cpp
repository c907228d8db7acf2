// The script that runs and counts the tests, tried on small programs of its own making.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "tests/project/shell_command.h"

namespace orvane::project {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::Not;

class RunTests : public ::testing::Test {
 protected:
  RunTests() {
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  ~RunTests() override { fs::remove_all(folder_); }

  // A stand-in for a test program: a shell script that lists `cases` and otherwise runs `body`, with
  // $report as the path of the report it has to write.
  void Program(const std::string& name, int cases, const std::string& body) {
    const fs::path path = folder_ / name;
    std::ofstream out(path);
    out << "#!/bin/sh\ncase $1 in --gtest_list_tests) echo Suite.\n";
    for (int i = 0; i < cases; ++i) out << "echo '  Case" << i << "'\n";
    out << "exit 0;; --gtest_output=xml:*) report=${1#*xml:};; esac\n" << body;
    out.close();
    fs::permissions(path, fs::perms::owner_all);
    programs_ += " '" + path.string() + "'";
  }

  static std::string Report(int tests, int failures, int disabled, const std::string& cases = "") {
    return "cat >\"$report\" <<'END'\n<?xml version=\"1.0\"?>\n<testsuites tests=\"" + std::to_string(tests) +
           "\" failures=\"" + std::to_string(failures) + "\" disabled=\"" + std::to_string(disabled) +
           "\" errors=\"0\" time=\"0.\" name=\"AllTests\">\n" + cases + "</testsuites>\nEND\n";
  }

  Outcome Go(const std::string& environment = "") {
    const std::string command = environment + " " ORVANE_SOURCE_DIR "/tests/run-tests.sh '" +
                                (folder_ / "results").string() + "'" + programs_;
    return RunShellCommand(command);
  }

 private:
  const fs::path folder_ =
      fs::path(::testing::TempDir()) /
      (std::string("run-tests-") + ::testing::UnitTest::GetInstance()->current_test_info()->name());
  std::string programs_;
};

TEST_F(RunTests, AddsUpPrograms) {
  Program("test-a", 2, Report(2, 0, 0));
  Program("test-b", 3, Report(3, 0, 0));
  const Outcome run = Go();
  EXPECT_EQ(run.lastLine, "5 passed, 0 failed");
  EXPECT_TRUE(run.succeeded);
}

TEST_F(RunTests, CutsLongProgramsIntoShards) {
  // The stand-in reports one case of the thirty for each shard that it is asked for.
  Program("test-a", 30, "echo shard $GTEST_SHARD_INDEX of $GTEST_TOTAL_SHARDS\n" + Report(1, 0, 0));
  EXPECT_EQ(Go("TEST_JOBS=2").lastLine, "2 passed, 0 failed");
  EXPECT_EQ(Go("TEST_JOBS=1").lastLine, "1 passed, 0 failed");
}

TEST_F(RunTests, PrintsWhatFailed) {
  Program("test-a", 2,
          "echo '[ RUN      ] S.Good'\necho noise\necho '[       OK ] S.Good (0 ms)'\n"
          "echo '[ RUN      ] S.Bad'\necho 'a.cpp:3: Failure'\necho '[  FAILED  ] S.Bad (0 ms)'\n" +
              Report(2, 1, 0) + "exit 1\n");
  const Outcome run = Go();
  EXPECT_EQ(run.lastLine, "1 passed, 1 failed");
  EXPECT_FALSE(run.succeeded);
  EXPECT_THAT(run.output, HasSubstr("a.cpp:3: Failure"));
  EXPECT_THAT(run.output, Not(HasSubstr("noise")));
}

TEST_F(RunTests, CountsACrashAsAFailureBesideWhatHadPassed) {
  Program("test-a", 3,
          "echo '[ RUN      ] S.One'\necho '[       OK ] S.One (0 ms)'\necho '[ RUN      ] S.Two'\n"
          "echo 'about to fall'\nkill -SEGV $$\n");
  const Outcome run = Go();
  EXPECT_EQ(run.lastLine, "1 passed, 1 failed");
  EXPECT_FALSE(run.succeeded);
  EXPECT_THAT(run.output, HasSubstr("about to fall"));
  EXPECT_THAT(run.output, HasSubstr("ended with status 139"));
}

TEST_F(RunTests, CountsABadEndAfterGoodCasesAsAFailure) {
  Program("test-a", 2, "echo 'leaked 3 bytes'\n" + Report(2, 0, 0) + "exit 23\n");
  const Outcome run = Go();
  EXPECT_EQ(run.lastLine, "2 passed, 1 failed");
  EXPECT_THAT(run.output, HasSubstr("leaked 3 bytes"));
}

TEST_F(RunTests, StopsWhatHangs) {
  Program("test-a", 1, "exec sleep 60\n");
  const Outcome run = Go("TEST_SECONDS=1");
  EXPECT_EQ(run.lastLine, "0 passed, 1 failed");
  EXPECT_THAT(run.output, HasSubstr("stopped after 1 seconds"));
}

TEST_F(RunTests, LeavesSkippedAndDisabledCasesOut) {
  Program("test-a", 4,
          Report(4, 0, 1,
                 "    <testcase name=\"A\" status=\"run\" result=\"skipped\" time=\"0.\" />\n"
                 "    <testcase name=\"B\" status=\"notrun\" result=\"suppressed\" time=\"0.\" />\n"));
  const Outcome run = Go();
  EXPECT_EQ(run.lastLine, "2 passed, 0 failed");
  EXPECT_THAT(run.output, HasSubstr("2 skipped or disabled"));
}

TEST_F(RunTests, FailsWhenAProgramHoldsNoTestOrIsMissing) {
  Program("test-a", 0, Report(0, 0, 0));
  Program("test-b", 1, Report(1, 0, 0));
  const Outcome run = Go();
  EXPECT_EQ(run.lastLine, "1 passed, 1 failed");
  EXPECT_THAT(run.output, HasSubstr("test-a: lists no test"));
}

TEST_F(RunTests, FailsWhenNothingRan) {
  const Outcome run = Go();
  EXPECT_EQ(run.lastLine, "0 passed, 0 failed");
  EXPECT_FALSE(run.succeeded);
}

TEST_F(RunTests, GivesEachShardAHomeOfItsOwn) {
  Program("test-a", 1,
          "echo '[ RUN      ] S.A'\necho \"$HOME|$TEST_TMPDIR|$XDG_CONFIG_HOME\"\n"
          "test -d \"$HOME\" && test -d \"$TEST_TMPDIR\" || exit 3\n" +
              Report(1, 1, 0) + "exit 1\n");
  EXPECT_THAT(Go().output,
              ::testing::ContainsRegex("results/test-a.0/home.*results/test-a.0/tmp/.*home/.config"));
}

}  // namespace
}  // namespace orvane::project
