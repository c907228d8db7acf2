// `cmake --install` into an empty folder: what it leaves must work from there.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "tests/project/shell_command.h"

namespace orvane::project {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

class Installation : public ::testing::Test {
 protected:
  Installation() { fs::remove_all(stage_); }
  ~Installation() override { fs::remove_all(stage_); }

  // The test programs lie in the bin folder of the build that is to be installed.
  static std::string BuildFolder() { return fs::path(ORVANE_BIN_DIR).parent_path().string(); }

  Outcome Install() {
    return RunShellCommand("DESTDIR='" + stage_.string() + "' cmake --install '" + BuildFolder() +
                           "' --prefix /usr");
  }

  const fs::path stage_ = fs::path(::testing::TempDir()) / "installation";
};

TEST_F(Installation, HoldsProgramsDataAndMenuEntry) {
  const Outcome outcome = Install();
  ASSERT_TRUE(outcome.succeeded) << outcome.output;
  for (const char* path :
       {"usr/lib/orvane/orvane-calc", "usr/lib/orvane/periodic.dat", "usr/lib/orvane/constants.dat",
        "usr/share/applications/orvane.desktop", "usr/share/icons/hicolor/scalable/apps/orvane.svg",
        "usr/share/doc/orvane/LICENSE", "usr/share/doc/orvane/docs/README.md"}) {
    EXPECT_TRUE(fs::is_regular_file(stage_ / path)) << path;
  }
  EXPECT_EQ(fs::read_symlink(stage_ / "usr/bin/orvane-calc"), "../lib/orvane/orvane-calc");
  EXPECT_FALSE(fs::exists(stage_ / "usr/share/doc/orvane/docs/decisions/CMakeLists.txt"));
}

TEST_F(Installation, FindsItsDataThroughTheLink) {
  ASSERT_TRUE(Install().succeeded);
  const Outcome outcome =
      RunShellCommand("cd / && '" + (stage_ / "usr/bin/orvane-calc").string() + "' element --json iron");
  EXPECT_TRUE(outcome.succeeded) << outcome.output;
  EXPECT_THAT(outcome.output, HasSubstr("\"number\":26"));
}

}  // namespace
}  // namespace orvane::project
