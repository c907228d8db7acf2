#include "cli/dump_command.h"

#include "cli/dump_frame.h"
#include "data/elements_database.h"

namespace orvane {

namespace {

void WriteProperty(JsonWriter& json, const ElementProperty& property) {
  json.BeginObject().Key("id").Number(property.Id()).Key("name").String(property.Name());
  json.Key("plottable").Bool(property.IsPlottable()).Key("units").String(property.Units());
  json.Key("values").BeginArray();
  for (int element = 0; element < ElementsDatabase::kElementCount; ++element) {
    if (!property.HasValue(element)) continue;
    json.BeginObject().Key("number").Number(element + 1);
    json.Key("value").String(property.Value(element)).EndObject();
  }
  json.EndArray().EndObject();
}

void WriteCategories(JsonWriter& json, const ElementsDatabase& elements) {
  json.Key("categories").BeginArray();
  for (const ElementCategory& category : elements.Categories()) {
    json.BeginObject().Key("name").String(category.Name()).Key("properties").BeginArray();
    for (const ElementProperty& property : category.Properties()) WriteProperty(json, property);
    json.EndArray().EndObject();
  }
  json.EndArray();
}

// The address of a special property, [category, property], or null when the file has none.
void WriteAddress(JsonWriter& json, const ElementsDatabase& elements, const ElementProperty* wanted) {
  for (int c = 0; wanted != nullptr && c < elements.CategoryCount(); ++c) {
    for (int v = 0; elements.FindProperty(c, v) != nullptr; ++v) {
      if (elements.FindProperty(c, v) != wanted) continue;
      json.BeginArray().Number(c).Number(v).EndArray();
      return;
    }
  }
  json.Null();
}

void WriteSpecial(JsonWriter& json, const ElementsDatabase& elements) {
  json.Key("special").BeginObject();
  WriteAddress(json.Key("symbol"), elements, elements.Symbol());
  WriteAddress(json.Key("name"), elements, elements.Name());
  WriteAddress(json.Key("mass"), elements, elements.AtomicMass());
  WriteAddress(json.Key("family"), elements, elements.Family());
  WriteAddress(json.Key("block"), elements, elements.Block());
  json.EndObject();
}

}  // namespace

void DumpPeriodic(Session& session, const std::string& path) {
  MessageCollector messages;
  ElementsDatabase elements;
  const bool loaded = elements.Load(path, messages) == 1;

  JsonWriter json(session.out);
  BeginDump(json, path, loaded, messages);
  WriteCategories(json, elements);
  WriteSpecial(json, elements);
  EndDump(session, json, path, loaded, "elements database");
}

}  // namespace orvane
