#include "cli/element_command.h"

#include <algorithm>

#include "cli/json_writer.h"
#include "cli/load_elements.h"
#include "cli/matching.h"
#include "cli/plain_text.h"
#include "data/element_codes.h"

namespace orvane {

namespace {

bool NameMatches(TextView name, TextView query) {
  if (SameFolded(name, query)) return true;
  const std::size_t bracket = name.find(u" (");
  if (bracket == TextView::npos || name.back() != u')') return false;
  return SameFolded(name.substr(0, bracket), query) ||
         SameFolded(name.substr(bracket + 2, name.size() - bracket - 3), query);
}

// The index for an atomic number in decimal digits, -1 for anything else.
int IndexOfNumber(TextView query) {
  int number = 0;
  for (const Char c : query) {
    if (!IsAsciiDigit(c) || number > ElementsDatabase::kElementCount) return -1;
    number = number * 10 + (c - u'0');
  }
  return number >= 1 && number <= ElementsDatabase::kElementCount ? number - 1 : -1;
}

// What a one-letter code stands for; empty for every other property.
TextView MeaningOf(const ElementsDatabase& elements, const ElementProperty& property, int element) {
  if (&property == elements.Family()) return FamilyText(property.Value(element));
  if (&property == elements.Block()) return BlockText(property.Value(element));
  return {};
}

void WriteProperty(JsonWriter& json, const ElementsDatabase& elements, const ElementCategory& category,
                   const ElementProperty& property, int element) {
  json.BeginObject().Key("category").String(category.Name()).Key("name").String(property.Name());
  json.Key("value").String(property.Value(element)).Key("units").String(property.Units());
  const TextView meaning = MeaningOf(elements, property, element);
  if (!meaning.empty()) json.Key("meaning").String(meaning);
  json.EndObject();
}

// A query without an answer has null in the place of number, symbol and name.
void WriteJson(Session& session, const ElementsDatabase& elements, TextView query, int element) {
  JsonWriter json(session.out);
  json.BeginObject().Key("input").String(query);
  if (element < 0) {
    json.Key("number").Null().Key("symbol").Null().Key("name").Null();
  } else {
    json.Key("number").Number(element + 1);
    json.Key("symbol").String(ValueOf(elements.Symbol(), element));
    json.Key("name").String(ValueOf(elements.Name(), element));
  }
  json.Key("properties").BeginArray();
  for (const ElementCategory& category : elements.Categories()) {
    for (const ElementProperty& property : category.Properties()) {
      if (property.HasValue(element)) WriteProperty(json, elements, category, property, element);
    }
  }
  json.EndArray().EndObject();
  session.out << '\n';
}

// The number of characters that a terminal shows, near enough to align a column.
std::size_t Width(const std::string& utf8) {
  return static_cast<std::size_t>(std::count_if(
      utf8.begin(), utf8.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0u) != 0x80u; }));
}

std::size_t WidestName(const ElementsDatabase& elements) {
  std::size_t widest = 0;
  for (const ElementCategory& category : elements.Categories()) {
    for (const ElementProperty& property : category.Properties()) {
      widest = std::max(widest, Width(PlainText(property.Name())));
    }
  }
  return widest;
}

// Further lines of a value begin below its first.
std::string Indented(const std::string& text, std::size_t indent) {
  std::string out;
  for (const char c : text) {
    out += c;
    if (c == '\n') out.append(indent, ' ');
  }
  return out;
}

void WriteForPeople(Session& session, const ElementsDatabase& elements, int element) {
  const std::size_t column = WidestName(elements) + 4;
  session.out << PlainText(ValueOf(elements.Name(), element)) << ", "
              << PlainText(ValueOf(elements.Symbol(), element)) << ", " << std::to_string(element + 1)
              << '\n';
  for (const ElementCategory& category : elements.Categories()) {
    bool headingShown = false;
    for (const ElementProperty& property : category.Properties()) {
      if (!property.HasValue(element)) continue;
      if (!headingShown) session.out << '\n' << PlainText(category.Name()) << '\n';
      headingShown = true;
      const TextView meaning = MeaningOf(elements, property, element);
      const std::string name = PlainText(property.Name());
      const std::string value = PlainText(meaning.empty() ? property.Value(element) : meaning);
      session.out << "  " << name << std::string(column - 2 - Width(name), ' ') << Indented(value, column)
                  << PlainText(property.Units()) << '\n';
    }
  }
}

}  // namespace

int FindElement(const ElementsDatabase& elements, TextView query) {
  if (query.empty()) return -1;
  const int byNumber = IndexOfNumber(query);
  if (byNumber >= 0) return byNumber;
  // A symbol goes before a name, so that no name can hide one.
  for (int element = 0; element < ElementsDatabase::kElementCount; ++element) {
    if (SameFolded(ValueOf(elements.Symbol(), element), query)) return element;
  }
  for (int element = 0; element < ElementsDatabase::kElementCount; ++element) {
    if (NameMatches(ValueOf(elements.Name(), element), query)) return element;
  }
  return -1;
}

void ShowElements(Session& session, const std::vector<std::string>& queries, bool asJson) {
  ElementsDatabase elements;
  if (!LoadElements(session, elements)) return;

  bool first = true;
  for (const std::string& word : queries) {
    const Text query = FromUtf8(word);
    const int element = FindElement(elements, asJson ? TextView(query) : Trimmed(query));
    if (element < 0) session.Fail("no element \"" + PlainText(query) + "\"");
    if (asJson) {
      WriteJson(session, elements, query, element);
    } else if (element >= 0) {
      if (!first) session.out << '\n';
      WriteForPeople(session, elements, element);
      first = false;
    }
  }
}

}  // namespace orvane
