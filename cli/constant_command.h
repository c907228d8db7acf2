// "orvane-calc constant TEXT...": the constants that have a name or a symbol.
#pragma once

#include <string>
#include <vector>

#include "cli/session.h"
#include "data/constants_database.h"

namespace orvane {

// Said, behind the file's name, when categories share blocks of the file beyond all measure.
inline constexpr const char* kCategoriesLeftOut =
    "its categories hold far more than the file; the last ones are left out";

// All that answers each query, for people or one JSON object a line. A query without an answer is an error;
// the others are answered all the same.
void ShowConstants(Session& session, const std::vector<std::string>& queries, bool asJson);

// How well a constant answers a query. Symbols are told apart by case, "k" from "K", and may be typed with or
// without marks: "N_A", "NA". Names are not; every word of a query must stand in a name that it is part of.
enum class ConstantMatch { kNone, kSymbolInOtherCase, kPartOfName, kExact };
ConstantMatch MatchConstant(const ConstEntry& constant, TextView query);

}  // namespace orvane
