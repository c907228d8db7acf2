// A program that is being played: its host, its clock and what it writes, between start and end.
#pragma once

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>

#include "platform/host_headless.h"
#include "platform/play.h"
#include "platform/play_trace.h"

namespace orvane {

class PlaySession {
 public:
  PlaySession(const PlayOptions& options, std::ostream& errors);

  // Starts the program anew and lets it come to rest; false when it could not be made.
  bool Start();
  // Ends it as its own Exit does; nothing when it has ended already.
  void End();
  // Ends it and starts it again. Clock, clipboard and trace go on.
  bool Restart();

  // Steps the program until nothing is left to do or it has ended.
  void Settle();
  // Moves the clock from timer to timer, so that each fires at its own time and in order.
  void Wait(int milliseconds);

  bool Started() const { return program_ != nullptr; }
  // The program can be played on: it has not ended, and it comes to rest.
  bool Running() const { return program_ && !program_->Ended() && !stuck_; }
  bool Stuck() const { return stuck_; }
  PlayedProgram& Program() { return *program_; }
  Device& TheDevice() { return program_->GetDevice(); }
  HeadlessHost& Host() { return host_; }

  void SetLine(int line) { line_ = line; }
  // Tells what failed on the present line.
  void Fail(const std::string& message);
  bool Failed() const { return failed_; }

  // Files below the output folder, their folders made as needed.
  void Shoot(const std::string& file);
  void BeginTrace(const std::string& file);

 private:
  void ShowWhatIsLeft();
  std::string OutPath(const std::string& file) const;

  const PlayOptions& options_;
  std::ostream& errors_;
  HeadlessHost host_;
  JsonTrace trace_;
  std::unique_ptr<PlayedProgram> program_;
  std::optional<std::int64_t> nextTimer_;
  int line_ = 0;
  bool failed_ = false;
  bool stuck_ = false;  // it never came to rest, or never ended: nothing more can be played
};

}  // namespace orvane
