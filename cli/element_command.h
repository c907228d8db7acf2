// "orvane-calc element NAME|SYMBOL|NUMBER...": every property of the elements that are asked for.
#pragma once

#include <string>
#include <vector>

#include "cli/session.h"
#include "data/elements_database.h"

namespace orvane {

// One answer a query, for people or as a line of JSON. A query that names no element is an error; the others
// are answered all the same.
void ShowElements(Session& session, const std::vector<std::string>& queries, bool asJson);

// The index of the element with this atomic number, symbol or name, or -1. Case does not count (ASCII and
// Latin-1). A name with a second one in brackets answers to either: "Copernicium (Cn)" to "copernicium" and
// to "Cn".
int FindElement(const ElementsDatabase& elements, TextView query);

}  // namespace orvane
