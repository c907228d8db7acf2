// The summary list of the element view: which properties it holds, in which order, and what their texts are.
// The list itself lives in the database, as two marks of each property; everything here works on those.
#pragma once

#include <span>
#include <vector>

#include "data/property_address.h"

namespace orvane {

using PropertyList = std::vector<PropertyAddress>;

// A stored summary: its list, and whether the header and the line for family and block are shown.
struct ElementPreset {
  bool showMain = true;
  bool showFamily = true;
  PropertyList list;
};

inline constexpr int kElementPresets = 3;

// What stands in for a list that was never stored.
std::span<const PropertyAddress> BuiltInSummary();

// The number of properties in all categories.
int PropertyCount(const ElementsDatabase& elements);

// Replaces the summary: entry k comes to position k. Entries that the database does not have are left out,
// and of an entry that repeats the last position counts.
void SetSummary(ElementsDatabase& elements, std::span<const PropertyAddress> list);

// The properties of the summary that have a value for the element, by rising position; of several at one
// position only the first in the order of the database.
PropertyList SummaryOf(const ElementsDatabase& elements, int element);

bool IsInSummary(const ElementsDatabase& elements, PropertyAddress address);
// Puts the property behind all others, also when it is in the summary already.
void AddToSummary(ElementsDatabase& elements, PropertyAddress address);
void RemoveFromSummary(ElementsDatabase& elements, PropertyAddress address);
void ExchangePositions(ElementsDatabase& elements, PropertyAddress a, PropertyAddress b);

// The value as people read it: of family and block the text of their code. A family code that is in no table
// has no text; a block's stays as it is.
TextView ShownValue(const ElementProperty& property, int element);
// The texts of the element's family and block for the line below the header, where every block but d, f and p
// is the s-block.
TextView FamilyLineText(const ElementsDatabase& elements, int element);
TextView BlockLineText(const ElementsDatabase& elements, int element);

// A row of the summary: the name in bold and a colon, then in plain the value with its units.
Text SummaryRowText(const ElementProperty& property, int element);

// Value and units for the clipboard: as they would stand in fields of 255 characters, without style codes, in
// 254 characters at most.
Text CopyText(TextView value, TextView units);

}  // namespace orvane
