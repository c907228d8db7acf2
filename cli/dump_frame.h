// What every dump of a data file has around its data: the file, whether it was accepted, and the messages.
#pragma once

#include <string>

#include "cli/json_writer.h"
#include "cli/message_collector.h"
#include "cli/session.h"

namespace orvane {

// Writes everything up to the opened object of the data.
void BeginDump(JsonWriter& json, const std::string& path, bool accepted, const MessageCollector& messages);

// Closes what BeginDump opened and ends the line. A file that was not accepted is an error: it is not a
// readable `kind`.
void EndDump(Session& session, JsonWriter& json, const std::string& path, bool accepted,
             std::string_view kind);

}  // namespace orvane
