// The state of a played program: as one line of JSON, and as the answers that expectations ask for.
#pragma once

#include <string>

#include "platform/play.h"

namespace orvane {

// The state as one JSON object on one line, without the line's end.
std::string ReportLine(PlayedProgram& program);

// The visible lines of text, bottom window first: the runs of each line joined without blanks.
std::vector<Text> VisibleLines(const Device& device);

// The first entry with this label in a menu or below it; null when there is none.
const MenuItem* FindEntry(const std::vector<MenuItem>& items, TextView label);

}  // namespace orvane
