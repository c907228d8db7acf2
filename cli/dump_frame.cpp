#include "cli/dump_frame.h"

namespace orvane {

void BeginDump(JsonWriter& json, const std::string& path, bool accepted, const MessageCollector& messages) {
  json.BeginObject().Key("file").String(FromUtf8(path)).Key("ok").Bool(accepted);
  json.Key("messages").BeginArray();
  for (const MessageRun& run : messages.Runs()) {
    for (std::size_t i = 0; i < run.count; ++i) json.String(run.text);
  }
  json.EndArray();
  json.Key("data").BeginObject();
}

void EndDump(Session& session, JsonWriter& json, const std::string& path, bool accepted,
             std::string_view kind) {
  json.EndObject().EndObject();
  session.out << '\n';
  if (!accepted) session.Fail(path + ": not a readable " + std::string(kind));
}

}  // namespace orvane
