// "orvane-calc balance [EQUATION...]": the coefficients of equations.
#pragma once

#include <string>
#include <vector>

#include "cli/session.h"

namespace orvane {

struct BalanceOptions {
  bool asJson = false;
  // Numbers of any size, and texts of any length, in place of the hand-held's.
  bool exact = false;
};

// One answer an equation, for people or as a line of JSON. Without equations, those on standard input are
// answered, one a line, as many as there are. An equation that has no solution, or whose numbers overflowed,
// is an error; the others are answered all the same.
void ShowBalances(Session& session, const std::vector<std::string>& equations, const BalanceOptions& options);

}  // namespace orvane
