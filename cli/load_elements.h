// The elements database, for the commands that answer from it.
#pragma once

#include "cli/session.h"
#include "data/elements_database.h"

namespace orvane {

// Reads the database of the session's data folder. What is wrong with it is told; false when there is nothing
// to answer from.
bool LoadElements(Session& session, ElementsDatabase& elements);

}  // namespace orvane
