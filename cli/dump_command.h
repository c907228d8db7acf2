// "orvane-calc dump periodic|constants|help FILE": everything that the program reads of a data file, as one
// line of JSON in file order, with the messages that reading it gave. The fields are described in
// docs/formats/dump.md.
#pragma once

#include <string>

#include "cli/session.h"

namespace orvane {

void DumpPeriodic(Session& session, const std::string& path);
void DumpConstants(Session& session, const std::string& path);
void DumpHelp(Session& session, const std::string& path);

}  // namespace orvane
