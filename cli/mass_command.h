// "orvane-calc mass [FORMULA...]": the molar masses of formulas.
#pragma once

#include <string>
#include <vector>

#include "cli/session.h"

namespace orvane {

// One answer a formula, for people or as a line of JSON. Without formulas, those on standard input are
// answered, one a line, as many as there are. A formula without a mass is an error; the others are answered
// all the same.
void ShowMasses(Session& session, const std::vector<std::string>& formulas, bool asJson);

}  // namespace orvane
