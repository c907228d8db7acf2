// What `expect` asks of a played program.
#pragma once

#include <string>

#include "platform/host_headless.h"
#include "platform/play.h"
#include "platform/play_script.h"

namespace orvane {

// Compares the program with an expect command. Empty when it is as expected; otherwise what was expected and
// what there was instead, in words.
std::string CheckExpectation(const PlayCommand& command, PlayedProgram& program, const HeadlessHost& host);

}  // namespace orvane
