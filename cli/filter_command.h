// orvane-calc filter: what a value filter lets through.
#pragma once

#include <string>
#include <vector>

#include "cli/session.h"

namespace orvane {

// Reads the filter and tests the values, which are ordinary decimal numbers; the others have no answer. For
// people a line for each value, "yes" or "no" behind it, or without values a line for each range.
void ShowFilter(Session& session, const std::string& filter, const std::vector<std::string>& values,
                bool asJson);

}  // namespace orvane
