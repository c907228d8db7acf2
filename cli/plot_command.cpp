#include "cli/plot_command.h"

#include <optional>

#include "chemistry/plot.h"
#include "cli/json_writer.h"
#include "cli/load_elements.h"
#include "cli/matching.h"
#include "cli/plain_text.h"
#include "cli/real_text.h"
#include "data/property_address.h"

namespace orvane {

namespace {

// A count in decimal digits, −1 for anything else and for one that no database has.
std::int32_t ParseIndex(TextView text) {
  constexpr std::int32_t kLargest = 99'999;
  std::int32_t index = 0;
  for (const Char c : text) {
    if (!IsAsciiDigit(c) || index > kLargest) return -1;
    index = index * 10 + (c - u'0');
  }
  return text.empty() ? -1 : index;
}

// By its index or its name; −1 when there is none.
std::int32_t FindCategory(const ElementsDatabase& elements, TextView query) {
  std::int32_t index = 0;
  for (const ElementCategory& category : elements.Categories()) {
    if (SameFolded(category.Name(), query)) return index;
    ++index;
  }
  return ParseIndex(query);
}

const ElementProperty* FindByAddress(const ElementsDatabase& elements, TextView query) {
  const std::size_t colon = query.find(u':');
  if (colon == TextView::npos) return nullptr;
  return elements.FindProperty(FindCategory(elements, query.substr(0, colon)),
                               ParseIndex(query.substr(colon + 1)));
}

const ElementProperty* FindByName(const ElementsDatabase& elements, TextView query) {
  for (const ElementCategory& category : elements.Categories()) {
    for (const ElementProperty& property : category.Properties()) {
      if (SameFolded(property.Name(), query)) return &property;
    }
  }
  return nullptr;
}

const ElementProperty* FindAxis(Session& session, const ElementsDatabase& elements, const std::string& word) {
  const Text text = FromUtf8(word);
  const TextView query = Trimmed(text);
  const ElementProperty* property = FindByAddress(elements, query);
  if (property == nullptr) property = FindByName(elements, query);
  if (property == nullptr) session.Fail("no property \"" + PlainText(query) + "\"");
  return property;
}

std::optional<ValueFilter> ReadFilter(Session& session, const std::string& word) {
  ValueFilter filter;
  const FilterError error = SetFilter(filter, FromUtf8(word));
  if (error == FilterError::kNone) return filter;
  session.Fail(PlainText(FilterMessage(error)));
  return std::nullopt;
}

// Nothing is in range without points.
void WriteAxis(JsonWriter& json, const PlotAxis& axis) {
  const PlotRange data = axis.Data();
  const PlotRange drawn = axis.Drawn();
  const std::pair<const char*, double> bounds[] = {
      {"min", data.low}, {"max", data.high}, {"low", drawn.low}, {"high", drawn.high}};
  json.BeginObject();
  for (const auto& [name, value] : bounds) {
    json.Key(name);
    if (axis.HasData()) {
      json.Real(value);
    } else {
      json.Null();
    }
  }
  json.EndObject();
}

void WriteJson(Session& session, const Plot& plot) {
  JsonWriter json(session.out);
  json.BeginObject().Key("x");
  WriteAxis(json, plot.X());
  json.Key("y");
  WriteAxis(json, plot.Y());
  json.Key("points").BeginArray();
  for (int i = 0; i < kPlotElements; ++i) {
    if (!plot.At(i).valid) continue;
    const Point place = plot.PlaceOf(i);
    json.BeginArray().Number(i + 1).Real(plot.At(i).x).Real(plot.At(i).y);
    json.Number(place.x).Number(place.y).EndArray();
  }
  json.EndArray().Key("segments").BeginArray();
  for (int i = 0; i < kPlotElements; ++i) {
    if (plot.IsJoined(i)) json.Number(i + 1);
  }
  json.EndArray().EndObject();
  session.out << '\n';
}

void WriteTable(Session& session, const ElementsDatabase& elements, const Plot& plot) {
  for (int i = 0; i < kPlotElements; ++i) {
    const PlotPoint& point = plot.At(i);
    if (!point.valid) continue;
    session.out << std::to_string(i + 1) << '\t' << PlainText(ValueOf(elements.Symbol(), i)) << '\t'
                << RealText(point.x) << '\t' << RealText(-point.y) << '\n';
  }
}

}  // namespace

void ShowPlot(Session& session, const PlotQuestion& question, bool asJson) {
  ElementsDatabase elements;
  if (!LoadElements(session, elements)) return;
  const ElementProperty* x = FindAxis(session, elements, question.x);
  const ElementProperty* y = FindAxis(session, elements, question.y);
  const std::optional<ValueFilter> xFilter = ReadFilter(session, question.xFilter);
  const std::optional<ValueFilter> yFilter = ReadFilter(session, question.yFilter);
  if (x == nullptr || y == nullptr || !xFilter || !yFilter) return;

  std::array<PlotTexts, kPlotElements> texts;
  for (int i = 0; i < kPlotElements; ++i) {
    texts[static_cast<std::size_t>(i)] = {x->HasValue(i) && y->HasValue(i), x->Value(i), y->Value(i)};
  }
  Plot plot;
  plot.Build(texts, *xFilter, *yFilter);
  if (asJson) {
    WriteJson(session, plot);
  } else {
    WriteTable(session, elements, plot);
  }
}

}  // namespace orvane
