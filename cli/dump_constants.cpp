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

void DumpConstants(Session& session, const std::string& path) {
  MessageCollector messages;
  ConstantsDatabase constants(path);
  const bool loaded = constants.ReadCategories(messages);
  std::vector<std::vector<ConstGroup>> groups;
  for (int category = 0; category < constants.CategoryCount(); ++category) {
    groups.push_back(constants.LoadCategory(category, messages).value_or(std::vector<ConstGroup>()));
  }

  JsonWriter json(session.out);
  BeginDump(json, path, loaded, messages);
  json.Key("categories").BeginArray();
  for (std::size_t category = 0; category < groups.size(); ++category) {
    const ConstCategory& known = constants.Categories()[category];
    json.BeginObject().Key("name").String(known.name).Key("offset").Number(known.offset);
    WriteGroups(json, groups[category]);
    json.EndObject();
  }
  json.EndArray();
  EndDump(session, json, path, loaded, "constants file");
}

}  // namespace orvane
