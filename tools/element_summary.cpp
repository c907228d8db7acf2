#include "tools/element_summary.h"

#include <algorithm>
#include <array>
#include <limits>

#include "base/styled_text.h"
#include "base/text_field.h"
#include "data/element_codes.h"

namespace orvane {

namespace {

constexpr std::array<PropertyAddress, 7> kBuiltIn{{
    {3, 5},
    {3, 1},
    {3, 2},
    {4, 0},
    {4, 1},
    {1, 4},
    {1, 6},
}};

// The properties that are known by their ids.
constexpr int kFamilyId = 3;
constexpr int kBlockId = 4;

struct Entry {
  std::int32_t position = 0;
  PropertyAddress address;
};

// Every property of the summary in the order of the database.
std::vector<Entry> Entries(const ElementsDatabase& elements) {
  std::vector<Entry> entries;
  std::int32_t c = 0;
  for (const ElementCategory& category : elements.Categories()) {
    std::int32_t p = 0;
    for (const ElementProperty& property : category.Properties()) {
      if (property.inSummary) entries.push_back({property.summaryPosition, {c, p}});
      ++p;
    }
    ++c;
  }
  return entries;
}

void SortByPosition(std::vector<Entry>& entries) {
  const auto before = [](const Entry& a, const Entry& b) { return a.position < b.position; };
  std::stable_sort(entries.begin(), entries.end(), before);
}

ElementProperty* Find(ElementsDatabase& elements, PropertyAddress address) {
  return elements.FindProperty(address.category, address.property);
}

// Positions only grow; a list that has come to the end of the numbers starts at 0 again, in its order.
void Renumber(ElementsDatabase& elements) {
  std::vector<Entry> entries = Entries(elements);
  SortByPosition(entries);
  std::int32_t position = 0;
  for (const Entry& entry : entries) Find(elements, entry.address)->summaryPosition = position++;
}

std::int32_t LargestPosition(const ElementsDatabase& elements) {
  std::int32_t largest = -1;
  for (const Entry& entry : Entries(elements)) largest = std::max(largest, entry.position);
  return largest;
}

}  // namespace

std::span<const PropertyAddress> BuiltInSummary() { return kBuiltIn; }

int PropertyCount(const ElementsDatabase& elements) {
  int count = 0;
  for (const ElementCategory& category : elements.Categories()) count += category.PropertyCount();
  return count;
}

void SetSummary(ElementsDatabase& elements, std::span<const PropertyAddress> list) {
  for (const Entry& entry : Entries(elements)) Find(elements, entry.address)->inSummary = false;
  std::int32_t position = 0;
  for (const PropertyAddress& address : list) {
    if (ElementProperty* property = Find(elements, address)) {
      property->inSummary = true;
      property->summaryPosition = position;
    }
    ++position;
  }
}

PropertyList SummaryOf(const ElementsDatabase& elements, int element) {
  std::vector<Entry> entries = Entries(elements);
  std::erase_if(
      entries, [&](const Entry& entry) { return !FindProperty(elements, entry.address)->HasValue(element); });
  SortByPosition(entries);
  PropertyList list;
  const Entry* last = nullptr;
  for (const Entry& entry : entries) {
    if (!last || entry.position != last->position) list.push_back(entry.address);
    last = &entry;
  }
  return list;
}

bool IsInSummary(const ElementsDatabase& elements, PropertyAddress address) {
  const ElementProperty* property = FindProperty(elements, address);
  return property && property->inSummary;
}

void AddToSummary(ElementsDatabase& elements, PropertyAddress address) {
  ElementProperty* property = Find(elements, address);
  if (!property) return;
  if (LargestPosition(elements) == std::numeric_limits<std::int32_t>::max()) Renumber(elements);
  // A property that is there already counts too: the last one leaves a gap behind when it is added again.
  property->summaryPosition = LargestPosition(elements) + 1;
  property->inSummary = true;
}

void RemoveFromSummary(ElementsDatabase& elements, PropertyAddress address) {
  if (ElementProperty* property = Find(elements, address)) property->inSummary = false;
}

void ExchangePositions(ElementsDatabase& elements, PropertyAddress a, PropertyAddress b) {
  ElementProperty* first = Find(elements, a);
  ElementProperty* second = Find(elements, b);
  if (first && second) std::swap(first->summaryPosition, second->summaryPosition);
}

TextView ShownValue(const ElementProperty& property, int element) {
  const TextView value = property.Value(element);
  if (property.Id() == kFamilyId) return FamilyText(value);
  if (property.Id() != kBlockId) return value;
  const TextView block = BlockText(value);
  return block.empty() ? value : block;
}

TextView FamilyLineText(const ElementsDatabase& elements, int element) {
  return FamilyText(ValueOf(elements.Family(), element));
}

TextView BlockLineText(const ElementsDatabase& elements, int element) {
  const TextView block = BlockText(ValueOf(elements.Block(), element));
  return block.empty() ? BlockText(u"S") : block;
}

Text SummaryRowText(const ElementProperty& property, int element) {
  Text text;
  text.append({kStyleMark, u'!'}).append(property.Name()).append(u": ");
  text.append({kStyleMark, kPlainFlags}).append(u" ");
  return text.append(ShownValue(property, element)).append(property.Units());
}

Text CopyText(TextView value, TextView units) {
  Text text = WithoutCodes(CutToField(value));
  text.append(WithoutCodes(CutToField(units)));
  text.resize(CutToField(text).size());
  return text;
}

}  // namespace orvane
