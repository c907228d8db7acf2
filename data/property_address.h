// Where a property stands in the elements database. Screens and settings keep addresses, not properties: a
// stored one may come from another database and name nothing.
#pragma once

#include <cstdint>
#include <optional>

#include "data/elements_database.h"

namespace orvane {

struct PropertyAddress {
  std::int32_t category = 0;
  std::int32_t property = 0;  // in its category
  friend bool operator==(const PropertyAddress&, const PropertyAddress&) = default;
};

inline const ElementProperty* FindProperty(const ElementsDatabase& elements, const PropertyAddress& address) {
  return elements.FindProperty(address.category, address.property);
}

// The first property with this id, over all categories.
std::optional<PropertyAddress> AddressOfId(const ElementsDatabase& elements, std::int32_t id);
std::optional<PropertyAddress> FirstPlottable(const ElementsDatabase& elements);

}  // namespace orvane
