#include "data/property_address.h"

namespace orvane {

namespace {

template <class Matches>
std::optional<PropertyAddress> FirstThat(const ElementsDatabase& elements, const Matches& matches) {
  std::int32_t categoryIndex = 0;
  for (const ElementCategory& category : elements.Categories()) {
    std::int32_t propertyIndex = 0;
    for (const ElementProperty& property : category.Properties()) {
      if (matches(property)) return PropertyAddress{categoryIndex, propertyIndex};
      ++propertyIndex;
    }
    ++categoryIndex;
  }
  return std::nullopt;
}

}  // namespace

std::optional<PropertyAddress> AddressOfId(const ElementsDatabase& elements, std::int32_t id) {
  return FirstThat(elements, [id](const ElementProperty& property) { return property.Id() == id; });
}

std::optional<PropertyAddress> FirstPlottable(const ElementsDatabase& elements) {
  return FirstThat(elements, [](const ElementProperty& property) { return property.IsPlottable(); });
}

}  // namespace orvane
