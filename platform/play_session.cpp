#include "platform/play_session.h"

#include <algorithm>
#include <filesystem>
#include <ostream>

namespace orvane {
namespace {

// A program at rest needs a handful of steps after each input; one that takes this many never rests.
constexpr int kMostSteps = 10000;

}  // namespace

PlaySession::PlaySession(const PlayOptions& options, std::ostream& errors)
    : options_(options), errors_(errors), host_(options.scale) {}

bool PlaySession::Start() {
  DeviceOptions deviceOptions;
  deviceOptions.scale = options_.scale;
  deviceOptions.recordRuns = true;
  deviceOptions.panelMode = options_.panelMode;
  deviceOptions.fontFolder = options_.fontFolder;
  deviceOptions.trace = &trace_;
  nextTimer_.reset();
  trace_.SetTime(host_.Now());
  program_ = options_.start(host_, deviceOptions);
  if (!program_) {
    Fail("the program could not be started");
    return false;
  }
  Settle();
  return true;
}

void PlaySession::End() {
  if (program_->Ended()) return;
  TheDevice().PostQuit(0);
  for (int step = 0; step < kMostSteps && !program_->Ended(); ++step) {
    TheDevice().Step(host_.Now());
    program_->AfterStep();
  }
  if (!program_->Ended()) {
    Fail("the program does not end");
    stuck_ = true;
  }
}

bool PlaySession::Restart() {
  End();
  program_.reset();
  return !stuck_ && Start();
}

void PlaySession::Settle() {
  trace_.SetTime(host_.Now());
  for (int step = 0; step < kMostSteps; ++step) {
    if (!Running()) return;
    nextTimer_ = TheDevice().Step(host_.Now());
    program_->AfterStep();
    if (!Running()) return ShowWhatIsLeft();
    if (!host_.ApplyScale(TheDevice()) && TheDevice().Quiescent()) return;
  }
  Fail("the program does not come to rest");
  stuck_ = true;
}

// What the program took off the screen at its end is not seen any more.
void PlaySession::ShowWhatIsLeft() { TheDevice().Step(host_.Now()); }

void PlaySession::Wait(int milliseconds) {
  const std::int64_t end = host_.Now() + milliseconds;
  while (Running() && nextTimer_ && *nextTimer_ <= end && host_.Now() < end) {
    host_.SetNow(std::max(*nextTimer_, host_.Now() + 1));
    Settle();
  }
  host_.SetNow(end);
  Settle();
}

void PlaySession::Fail(const std::string& message) {
  errors_ << "line " << line_ << ": " << message << '\n';
  failed_ = true;
}

void PlaySession::Shoot(const std::string& file) {
  const std::string path = OutPath(file);
  if (!host_.WritePng(path)) Fail("cannot write " + path);
}

void PlaySession::BeginTrace(const std::string& file) {
  const std::string path = OutPath(file);
  if (!trace_.Open(path)) Fail("cannot write " + path);
}

std::string PlaySession::OutPath(const std::string& file) const {
  const std::filesystem::path path = std::filesystem::path(options_.outFolder) / file;
  std::error_code ignored;  // A folder that cannot be made shows when the file is opened.
  std::filesystem::create_directories(path.parent_path(), ignored);
  return path.string();
}

}  // namespace orvane
