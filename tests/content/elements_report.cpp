#include "tests/content/elements_report.h"

#include <algorithm>
#include <map>

namespace orvane::testing {

namespace {

constexpr const char* kNothing = "–";

std::string Cell(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '|') escaped += '\\';
    escaped += c;
  }
  return escaped.empty() ? kNothing : escaped;
}

std::string Trimmed(const std::string& units) { return units.empty() ? units : units.substr(1); }

std::string Source(const std::string& key) { return key.empty() ? kNothing : "`" + key + "`"; }

// "`crc-97`, 3 from `gelemental-2.0`"
std::string SourcesOf(const PropertySource& property) {
  std::map<std::string, int> others;
  for (const std::string& own : property.valueSources) {
    if (!own.empty() && own != property.source) ++others[own];
  }
  std::string text = Source(property.source);
  for (const auto& [key, count] : others) text += ", " + std::to_string(count) + " from " + Source(key);
  return text;
}

std::string Coverage(const ElementsSource& source) {
  std::string out =
      "| id | place | property | units | axis | elements | source |\n|---|---|---|---|---|---|---|\n";
  for (std::size_t c = 0; c < source.categories.size(); ++c) {
    const auto& properties = source.categories[c].properties;
    for (std::size_t p = 0; p < properties.size(); ++p) {
      const PropertySource& property = properties[p];
      const auto values = std::count_if(property.values.begin(), property.values.end(),
                                        [](const auto& value) { return value.has_value(); });
      out += "| " + std::to_string(property.id) + " | " + std::to_string(c) + ", " + std::to_string(p) +
             " | " + ToUtf8(property.name) + " | " + Cell(Trimmed(ToUtf8(property.units))) + " | " +
             (property.plottable ? "yes" : kNothing) + " | " + std::to_string(values) + " | " +
             SourcesOf(property) + " |\n";
    }
  }
  return out;
}

std::string Figures(const std::vector<Figure>& figures) {
  std::string text;
  for (const Figure& figure : figures) {
    text += (text.empty() ? "" : "; ") + Cell(figure.text) + " (" + figure.source + ")";
  }
  return text;
}

std::string Contested(const PropertySource& property, const PropertySource& symbols,
                      const std::vector<FactLine>& facts) {
  std::string out;
  for (const FactLine& line : facts) {
    if (line.id != property.id || (line.setAside.empty() && !line.accepted.empty())) continue;
    const std::size_t element = static_cast<std::size_t>(line.element - 1);
    const std::string value =
        property.values[element].has_value() ? PlainText(*property.values[element]) : std::string();
    out += "| " + ToUtf8(symbols.values[element].value_or(u"")) + " | " + Cell(value) + " | " +
           Figures(line.setAside) + " | " + Cell(line.reason) + " |\n";
  }
  return out;
}

}  // namespace

std::string ElementsReport(const ContentTables& tables, const std::vector<FactLine>& facts) {
  std::string out =
      "# Coverage and contested values\n\n"
      "Made from `content/elements/` and `content/facts/elements/`; [the elements database](elements.md) "
      "says how the\n"
      "decisions were taken. After a change of the content `ORVANE_ACCEPT=1 build/bin/test-content` writes "
      "this page\n"
      "anew, and the tests fail until it has.\n\n"
      "## Coverage\n\n"
      "Place: the index of the category and of the property in it. Axis: can be plotted. Elements: how many "
      "have a\n"
      "value. Source: of the column, and of single cells that depart from it.\n\n";
  out += Coverage(tables.source);
  out +=
      "\n## Contested values\n\n"
      "Where good sources disagree beyond rounding, what the database says and why. Without a value: left "
      "out.\n";
  const PropertySource& symbols = tables.source.categories.front().properties.front();
  for (const CategorySource& category : tables.source.categories) {
    for (const PropertySource& property : category.properties) {
      const std::string rows = Contested(property, symbols, facts);
      if (rows.empty()) continue;
      out += "\n### " + ToUtf8(property.name) +
             "\n\n| element | value | set aside | why |\n|---|---|---|---|\n" + rows;
    }
  }
  return out;
}

}  // namespace orvane::testing
