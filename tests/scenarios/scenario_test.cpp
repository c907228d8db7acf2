// Plays every script of tests/scenarios/scripts; README.md there says what is compared.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

#include "app/played_application.h"
#include "data/memory_settings.h"
#include "data/settings_file.h"
#include "platform/host_headless.h"
#include "tests/scenarios/picture.h"
#include "tests/scenarios/stage.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

constexpr double kAllowedShare = 1.0 / 200;

const fs::path kFolder = fs::path(ORVANE_SOURCE_DIR) / "tests/scenarios";

bool Accepting() { return std::getenv("ORVANE_ACCEPT") != nullptr; }

std::vector<std::string> ScriptNames() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(kFolder / "scripts")) {
    if (entry.path().extension() == ".play") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

// The visible texts, a line of the screen to a line: its place, its window and its joined runs.
std::string TextDump(Device& device) {
  struct Line {
    Rect rect;
    std::string window;
    Text text;
  };
  std::vector<Line> lines;
  std::map<std::uint32_t, std::size_t> numbers;
  for (const ScreenRun& run : device.VisibleRuns()) {
    const auto [at, isNew] = numbers.try_emplace(run.run.line, lines.size());
    if (isNew) lines.push_back({run.run.rect, run.window, {}});
    Line& line = lines[at->second];
    line.rect = Unite(line.rect, run.run.rect);
    line.text += run.run.text;
  }
  std::ostringstream out;
  for (const Line& line : lines) {
    out << line.window << ' ' << line.rect.left << ' ' << line.rect.top << ' ' << line.rect.Width() << 'x'
        << line.rect.Height() << ' ' << ToUtf8(line.text) << '\n';
  }
  return out.str();
}

std::string ReadText(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class Scenario : public ::testing::TestWithParam<std::string> {
 protected:
  void SetUp() override {
    work_ = fs::path(ORVANE_BIN_DIR).parent_path() / "scenarios" / GetParam();
    fs::remove_all(work_);
    fs::create_directories(work_ / "out");
    expected_ = kFolder / "expected" / GetParam();
    stage_ = SetStage((kFolder / "scripts" / (GetParam() + ".play")).string(), work_.string());
  }

  int PlayIt(std::ostream& errors) {
    MemorySettings memory;
    std::optional<SettingsFile> file;
    if (stage_.settings) file.emplace(*stage_.settings);
    SettingsStore* store = &memory;
    if (file) store = &*file;
    PlayOptions options;
    options.scale = stage_.scale;
    options.outFolder = (work_ / "out").string();
    options.start = [&](Host& host, const DeviceOptions& deviceOptions) -> std::unique_ptr<PlayedProgram> {
      host_ = static_cast<HeadlessHost*>(&host);
      return std::make_unique<PlayedApplication>(host, deviceOptions, *store,
                                                 ApplicationOptions{stage_.dataFolder, StandardTools()});
    };
    options.afterVerb = [this](PlayedProgram& program, int line) { AfterVerb(program, line); };
    std::ofstream reports(work_ / "out" / "reports.json");
    return Play(stage_.script, options, reports, errors);
  }

  void AfterVerb(PlayedProgram& program, int line) {
    DumpNewShots(program.GetDevice());
    if (program.Ended()) return;
    // Everything painted anew, the panels' own buffers included, must look as it did.
    Device& device = program.GetDevice();
    const std::vector<std::uint32_t> before = host_->Pixels();
    for (const WindowHandle window : device.VisibleWindows()) device.Send(window, WM_DISPLAYCHANGE);
    device.RepaintEverything();
    EXPECT_TRUE(before == host_->Pixels())
        << GetParam() << " line " << line << ": a full repaint looks different";
  }

  // The texts beside each picture that the script has just written.
  void DumpNewShots(Device& device) {
    for (const auto& entry : fs::directory_iterator(work_ / "out")) {
      fs::path dump = entry.path();
      if (dump.extension() != ".png" || fs::exists(dump.replace_extension(".txt"))) continue;
      std::ofstream(dump) << TextDump(device);
    }
  }

  void CompareText(const fs::path& actual) {
    const fs::path expected = expected_ / actual.filename();
    EXPECT_EQ(ReadText(expected), ReadText(actual)) << expected;
  }

  void ComparePicture(const fs::path& actual) {
    const fs::path path = expected_ / actual.filename();
    const Picture is = ReadPicture(actual.string());
    const Picture should = ReadPicture(path.string());
    const double share = DifferingShare(should, is);
    EXPECT_LE(share, kAllowedShare) << path << ": see " << work_;
    if (share <= kAllowedShare) return;
    const std::string stem = actual.stem().string();
    if (should.width > 0) WritePicture((work_ / (stem + ".expected.png")).string(), should);
    WritePicture((work_ / (stem + ".actual.png")).string(), is);
    WritePicture((work_ / (stem + ".difference.png")).string(), DifferencePicture(is, should));
  }

  void Accept() {
    fs::remove_all(expected_);
    for (const auto& entry : fs::directory_iterator(work_ / "out")) {
      const fs::path extension = entry.path().extension();
      if (extension != ".png" && extension != ".txt") continue;
      fs::create_directories(expected_);
      fs::copy(entry.path(), expected_ / entry.path().filename());
    }
  }

  fs::path work_;
  fs::path expected_;
  Stage stage_;
  HeadlessHost* host_ = nullptr;
};

TEST_P(Scenario, GoesAsItShould) {
  std::ostringstream errors;
  const int status = PlayIt(errors);
  EXPECT_EQ(status, stage_.exit) << errors.str();
  EXPECT_EQ(errors.str().empty(), !stage_.wrongOnPurpose) << errors.str();
  if (Accepting()) return Accept();
  std::size_t shots = 0;
  for (const auto& entry : fs::directory_iterator(work_ / "out")) {
    if (entry.path().extension() == ".txt") CompareText(entry.path());
    if (entry.path().extension() == ".png") ComparePicture(entry.path()), ++shots;
  }
  std::size_t accepted = 0;
  if (fs::exists(expected_)) {
    for (const auto& entry : fs::directory_iterator(expected_))
      accepted += entry.path().extension() == ".png" ? 1u : 0u;
  }
  EXPECT_EQ(shots, accepted) << "every accepted picture must be made";
}

INSTANTIATE_TEST_SUITE_P(Scripts, Scenario, ::testing::ValuesIn(ScriptNames()), [](const auto& script) {
  std::string name = script.param;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
});

}  // namespace
}  // namespace orvane
