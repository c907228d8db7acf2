// Tokens as the calculators' answers show them.
#pragma once

#include <string>

#include "chemistry/formula_tokens.h"
#include "cli/json_writer.h"

namespace orvane {

// [["H",1],["2",2]]: the text and the kind of each.
void WriteTokens(JsonWriter& json, const FormulaTokens& tokens);

// `not recognized: "x", "Q"; check spelling and capitalization`: the tokens that a screen shows in red,
// control characters by their numbers ("\u000d"). Empty when there are none.
std::string UnrecognisedPieces(const FormulaTokens& tokens);

}  // namespace orvane
