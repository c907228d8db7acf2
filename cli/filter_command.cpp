#include "cli/filter_command.h"

#include <optional>

#include "chemistry/value_filter.h"
#include "cli/json_writer.h"
#include "cli/plain_text.h"
#include "cli/real_text.h"

namespace orvane {

namespace {

struct TestedValue {
  std::string word;
  std::optional<bool> passes;  // nothing for what is no number
};

void WriteBound(JsonWriter& json, const FilterBound& bound) {
  if (bound.isReal) {
    json.Real(bound.real);
  } else {
    json.Number(bound.integer);
  }
}

void WriteJson(Session& session, TextView filter, FilterError error, const std::vector<FilterRange>& ranges,
               const std::vector<TestedValue>& values) {
  JsonWriter json(session.out);
  const bool ok = error == FilterError::kNone;
  json.BeginObject().Key("filter").String(filter).Key("ok").Bool(ok).Key("error");
  if (ok) {
    json.Null();
  } else {
    json.String(FilterMessage(error));
  }
  json.Key("ranges").BeginArray();
  for (const FilterRange& range : ranges) {
    json.BeginArray();
    WriteBound(json, range.low);
    WriteBound(json, range.high);
    json.EndArray();
  }
  json.EndArray().Key("passes").BeginArray();
  for (const TestedValue& value : values) {
    if (value.passes) {
      json.Bool(*value.passes);
    } else {
      json.Null();
    }
  }
  json.EndArray().EndObject();
  session.out << '\n';
}

void WriteForPeople(Session& session, const std::vector<FilterRange>& ranges,
                    const std::vector<TestedValue>& values) {
  for (const TestedValue& value : values) {
    if (value.passes) session.out << value.word << '\t' << (*value.passes ? "yes" : "no") << '\n';
  }
  if (!values.empty()) return;
  if (ranges.empty()) session.out << "every value\n";
  for (const FilterRange& range : ranges) {
    session.out << RealText(range.low.Value()) << " to " << RealText(range.high.Value()) << '\n';
  }
}

}  // namespace

void ShowFilter(Session& session, const std::string& filter, const std::vector<std::string>& values,
                bool asJson) {
  const Text text = FromUtf8(filter);
  std::vector<FilterRange> ranges;
  const FilterError error = ParseFilter(text, ranges);
  std::vector<TestedValue> tested;
  if (error != FilterError::kNone) {
    session.Fail(PlainText(FilterMessage(error)));
  } else {
    for (const std::string& word : values) {
      const std::optional<double> value = ParseReal(word);
      if (!value) session.Fail("\"" + PlainText(FromUtf8(word)) + "\" is no number");
      tested.push_back({word, value ? std::optional(PassesFilter(ranges, *value)) : std::nullopt});
    }
  }
  if (asJson) {
    WriteJson(session, text, error, ranges, tested);
  } else if (error == FilterError::kNone) {
    WriteForPeople(session, ranges, tested);
  }
}

}  // namespace orvane
