#include <algorithm>

#include "content/dat_writer.h"
#include "content/elements_source.h"

namespace orvane {

namespace {

std::uint16_t Count(std::size_t count) { return static_cast<std::uint16_t>(count); }

void WriteProperty(DatWriter& out, const PropertySource& property) {
  out.Short(static_cast<std::uint16_t>(property.id));
  out.ZeroTerminatedString(property.name);
  out.Bool(property.plottable);
  out.ZeroTerminatedString(property.units);
  const auto isPresent = [](const std::optional<Text>& value) { return value.has_value(); };
  out.Short(Count(
      static_cast<std::size_t>(std::count_if(property.values.begin(), property.values.end(), isPresent))));
  for (std::size_t slot = 0; slot < property.values.size(); ++slot) {
    if (!property.values[slot]) continue;
    out.Short(Count(slot + 1));
    out.CountedString(*property.values[slot]);
  }
}

}  // namespace

std::string EncodeElements(const ElementsSource& source) {
  DatWriter out;
  out.Long(ElementsDatabase::kMagic);
  out.Short(Count(source.categories.size()));
  for (const CategorySource& category : source.categories) {
    out.ZeroTerminatedString(category.name);
    out.Short(Count(category.properties.size()));
    for (const PropertySource& property : category.properties) WriteProperty(out, property);
  }
  return out.Bytes();
}

}  // namespace orvane
