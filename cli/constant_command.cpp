#include "cli/constant_command.h"

#include "base/styled_text.h"
#include "cli/json_writer.h"
#include "cli/matching.h"
#include "cli/message_collector.h"
#include "cli/plain_text.h"

namespace orvane {

namespace {

// One constant with its place.
struct Found {
  const Text* category;
  const Text* group;
  const ConstEntry* constant;
};

struct LoadedCategory {
  Text name;
  std::vector<ConstGroup> groups;
};

// Raised and lowered text behind the marks that people type: "N_A", "alpha^-1" with an en dash.
Text WithMarks(TextView styled) {
  Text out;
  for (StyledStep step = FirstStep(styled); step.kind != StyledStep::Kind::kEnd; step = FirstStep(styled)) {
    styled.remove_prefix(step.length);
    const TextPosition position =
        step.kind == StyledStep::Kind::kCode ? StyleFromFlags(step.value).position : TextPosition::kNormal;
    if (step.kind == StyledStep::Kind::kCharacter) out += step.value;
    if (position == TextPosition::kLowered) out += u'_';
    if (position == TextPosition::kRaised) out += u'^';
  }
  return out;
}

bool HasEveryWord(TextView name, TextView query) {
  while (!(query = Trimmed(query)).empty()) {
    const std::size_t end = std::min(query.find_first_of(kBlanks), query.size());
    if (!ContainsFolded(name, query.substr(0, end))) return false;
    query.remove_prefix(end);
  }
  return true;
}

std::vector<LoadedCategory> Load(Session& session) {
  MessageCollector messages;
  const std::string path = session.dataFolder + kConstantsFile;
  ConstantsDatabase database(path);
  database.ReadCategories(messages);
  std::vector<LoadedCategory> categories;
  const bool complete = database.LoadAll(messages, [&](int category, auto groups) {
    if (!groups) return;
    categories.push_back(
        {database.Categories()[static_cast<std::size_t>(category)].name, std::move(*groups)});
  });
  FailWithMessages(session, messages);
  if (!complete) session.Fail(path + ": " + kCategoriesLeftOut);
  return categories;
}

// The constants that answer the query best, all equally well, in file order.
std::vector<Found> Find(const std::vector<LoadedCategory>& categories, TextView query) {
  ConstantMatch best = ConstantMatch::kSymbolInOtherCase;
  std::vector<Found> found;
  for (const LoadedCategory& category : categories) {
    for (const ConstGroup& group : category.groups) {
      for (const ConstEntry& constant : group.constants) {
        const ConstantMatch match = MatchConstant(constant, query);
        if (match < best) continue;
        if (match > best) found.clear();
        best = match;
        found.push_back({&category.name, &group.title, &constant});
      }
    }
  }
  return found;
}

void WriteJson(Session& session, const Found& found) {
  JsonWriter json(session.out);
  json.BeginObject().Key("category").String(*found.category).Key("group").String(*found.group);
  json.Key("name").String(found.constant->name).Key("symbol").String(found.constant->symbol);
  json.Key("value").String(found.constant->value).Key("units").String(found.constant->units);
  json.Key("remark").String(found.constant->remark).EndObject();
  session.out << '\n';
}

// "  electron mass: m = 9.1 × 10 kg (remark)", below the category and the group when those are new.
void WriteForPeople(Session& session, const Found& found, const Found* before) {
  if (before == nullptr || before->group != found.group) {
    session.out << PlainText(*found.category) << ", " << PlainText(*found.group) << '\n';
  }
  const ConstEntry& constant = *found.constant;
  session.out << "  " << PlainText(constant.name) << ": ";
  if (!constant.symbol.empty()) session.out << PlainText(constant.symbol) << " = ";
  session.out << PlainText(constant.value);
  if (!constant.units.empty()) session.out << ' ' << PlainText(constant.units);
  if (!constant.remark.empty()) session.out << " (" << PlainText(constant.remark) << ')';
  session.out << '\n';
}

}  // namespace

ConstantMatch MatchConstant(const ConstEntry& constant, TextView query) {
  if (query.empty()) return ConstantMatch::kNone;
  const Text symbol = WithoutCodes(constant.symbol);
  const Text marked = WithMarks(constant.symbol);
  if (symbol == query || marked == query) return ConstantMatch::kExact;
  const Text name = WithoutCodes(constant.name);
  if (SameFolded(name, query)) return ConstantMatch::kExact;
  if (HasEveryWord(name, query)) return ConstantMatch::kPartOfName;
  const bool otherCase = SameFolded(symbol, query) || SameFolded(marked, query);
  return otherCase ? ConstantMatch::kSymbolInOtherCase : ConstantMatch::kNone;
}

void ShowConstants(Session& session, const std::vector<std::string>& queries, bool asJson) {
  const std::vector<LoadedCategory> categories = Load(session);
  // Without a file to look in the messages have said it all.
  if (categories.empty() && session.status != kAllAnswered) return;
  for (const std::string& word : queries) {
    const Text query = FromUtf8(word);
    const std::vector<Found> found = Find(categories, asJson ? TextView(query) : Trimmed(query));
    if (found.empty()) session.Fail("no constant \"" + PlainText(query) + "\"");
    for (std::size_t i = 0; i < found.size(); ++i) {
      if (asJson) {
        WriteJson(session, found[i]);
      } else {
        WriteForPeople(session, found[i], i == 0 ? nullptr : &found[i - 1]);
      }
    }
  }
}

}  // namespace orvane
