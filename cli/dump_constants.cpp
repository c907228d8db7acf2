#include "cli/constant_command.h"
#include "cli/dump_command.h"
#include "cli/dump_frame.h"
#include "data/constants_database.h"

namespace orvane {

namespace {

void WriteConstant(JsonWriter& json, const ConstEntry& constant) {
  json.BeginObject().Key("name").String(constant.name).Key("symbol").String(constant.symbol);
  json.Key("value").String(constant.value).Key("units").String(constant.units);
  json.Key("remark").String(constant.remark).EndObject();
}

void WriteGroups(JsonWriter& json, const std::vector<ConstGroup>& groups) {
  json.Key("groups").BeginArray();
  for (const ConstGroup& group : groups) {
    json.BeginObject().Key("title").String(group.title).Key("collapsible").Bool(group.collapsible);
    json.Key("constants").BeginArray();
    for (const ConstEntry& constant : group.constants) WriteConstant(json, constant);
    json.EndArray().EndObject();
  }
  json.EndArray();
}

}  // namespace

// The messages stand before the data, so the categories are read twice: once for what reading them says, once
// for what they hold. Only one is in memory at a time.
void DumpConstants(Session& session, const std::string& path) {
  MessageCollector messages;
  MessageCollector again;
  ConstantsDatabase constants(path);
  const bool loaded = constants.ReadCategories(messages);
  const bool complete =
      constants.LoadAll(messages, [](int, const std::optional<std::vector<ConstGroup>>&) {});

  JsonWriter json(session.out);
  BeginDump(json, path, loaded, messages);
  json.Key("categories").BeginArray();
  constants.LoadAll(again, [&](int category, const std::optional<std::vector<ConstGroup>>& groups) {
    const ConstCategory& known = constants.Categories()[static_cast<std::size_t>(category)];
    json.BeginObject().Key("name").String(known.name).Key("offset").Number(known.offset);
    if (groups) WriteGroups(json, *groups);
    json.EndObject();
  });
  json.EndArray();
  EndDump(session, json, path, loaded, "constants file");
  if (!complete) session.Fail(path + ": " + kCategoriesLeftOut);
}

}  // namespace orvane
