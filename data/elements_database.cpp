#include "data/elements_database.h"

#include <algorithm>
#include <bit>

#include "data/zel_binary.h"

namespace orvane {

namespace {

constexpr TextView kCannotOpen =
    u"Failed to open the elements database file. Some of the features will not be available. "
    u"Try to reinstall the application.\n\nFile: %s";
constexpr TextView kCorrupted =
    u"The elements database file is corrupted. Some of the features will not be available. "
    u"Try to reinstall the application.\n\nFile: %s";

constexpr int kWordBits = 64;

bool IsElement(int element) { return element >= 0 && element < ElementsDatabase::kElementCount; }

std::uint64_t BitOf(int element) { return std::uint64_t{1} << (element % kWordBits); }

// The item, or null when the index is outside. `Items` is a vector, constant or not.
template <typename Items>
auto FindAt(Items& items, int index) {
  const bool exists = index >= 0 && static_cast<std::size_t>(index) < items.size();
  return exists ? &items[static_cast<std::size_t>(index)] : nullptr;
}

}  // namespace

bool ElementProperty::HasValue(int element) const {
  return IsElement(element) &&
         (present_[static_cast<std::size_t>(element / kWordBits)] & BitOf(element)) != 0;
}

TextView ElementProperty::Value(int element) const {
  if (!HasValue(element)) return {};
  const std::uint64_t before = BitOf(element) - 1;
  const int rank = element < kWordBits ? std::popcount(present_[0] & before)
                                       : std::popcount(present_[0]) + std::popcount(present_[1] & before);
  return texts_->pool.At(texts_->values[firstValue_ + static_cast<std::size_t>(rank)]);
}

int ElementProperty::ValueCount() const { return std::popcount(present_[0]) + std::popcount(present_[1]); }

ElementsDatabase::ElementsDatabase() : texts_(std::make_unique<ElementTexts>()) {}

ElementsDatabase::~ElementsDatabase() = default;

void ElementsDatabase::Free() {
  special_ = {};
  categories_ = {};
  texts_ = std::make_unique<ElementTexts>();
}

int ElementsDatabase::Load(const std::string& path, MessageReporter& reporter) {
  Free();
  const auto fail = [&](TextView message) {
    reporter.Report(WithText(message, FromUtf8(path)), kProgramName, MessageIcon::kError);
    return 0;
  };
  ZelBinary file(reporter);
  if (file.Open(path) == 0) return fail(kCannotOpen);
  if (static_cast<std::uint32_t>(file.ReadLong()) != kMagic) return fail(kCorrupted);

  const std::int32_t count = file.ReadShort();
  for (std::int32_t i = 0; i < count; ++i) ReadCategory(file);
  LocateSpecialProperties();

  texts_->pool.ShrinkToFit();
  texts_->values.shrink_to_fit();
  scratch_ = {};
  return 1;
}

void ElementsDatabase::ReadCategory(ZelBinary& file) {
  ElementCategory& category = categories_.emplace_back(ElementCategory(texts_.get()));
  file.ReadTCharFromChar_Z(scratch_, kLongestCategoryName + 1);
  category.name_ = texts_->pool.Add(scratch_);
  const std::int32_t count = file.ReadShort();
  for (std::int32_t i = 0; i < count; ++i) ReadProperty(file, category.properties_);
}

void ElementsDatabase::ReadProperty(ZelBinary& file, std::vector<ElementProperty>& properties) {
  ElementProperty& property = properties.emplace_back(ElementProperty(texts_.get()));
  property.id_ = file.ReadShort();
  file.ReadTCharFromChar_Z(scratch_, kLongestPropertyName + 1);
  property.name_ = texts_->pool.Add(scratch_);
  property.plottable_ = file.ReadBool();
  file.ReadTCharFromChar_Z(scratch_, kLongestUnits + 1);
  property.units_ = texts_->pool.Add(scratch_);
  ReadValues(file, property);
}

void ElementsDatabase::ReadValues(ZelBinary& file, ElementProperty& property) {
  const std::int32_t count = file.ReadShort();
  if (count <= 0) return;
  // The entries may come in any order and repeat; they are packed by element once all are read.
  std::array<TextPool::Id, kElementCount> slots{};
  for (std::int32_t i = 0; i < count; ++i) {
    const int element = file.ReadShort() - 1;
    file.ReadTCharFromChar_C(scratch_);
    if (!IsElement(element)) continue;
    property.present_[static_cast<std::size_t>(element / kWordBits)] |= BitOf(element);
    slots[static_cast<std::size_t>(element)] = texts_->pool.Add(scratch_);
  }
  property.firstValue_ = static_cast<std::uint32_t>(texts_->values.size());
  for (int element = 0; element < kElementCount; ++element) {
    if (property.HasValue(element)) texts_->values.push_back(slots[static_cast<std::size_t>(element)]);
  }
}

void ElementsDatabase::LocateSpecialProperties() {
  std::size_t missing = special_.size();
  for (const ElementCategory& category : categories_) {
    for (const ElementProperty& property : category.properties_) {
      const std::int32_t id = property.id_;
      if (id < 0 || id >= static_cast<std::int32_t>(special_.size())) continue;
      const ElementProperty*& slot = special_[static_cast<std::size_t>(id)];
      if (slot == nullptr) --missing;
      // Of several with one id the last before the set is complete counts.
      slot = &property;
      if (missing == 0) return;
    }
  }
}

ElementProperty* ElementsDatabase::FindProperty(int category, int property) {
  ElementCategory* const found = FindAt(categories_, category);
  return found == nullptr ? nullptr : FindAt(found->properties_, property);
}

const ElementProperty* ElementsDatabase::FindProperty(int category, int property) const {
  const ElementCategory* const found = FindAt(categories_, category);
  return found == nullptr ? nullptr : FindAt(found->properties_, property);
}

TextView ElementsDatabase::Value(int category, int property, int element) const {
  return ValueOf(FindProperty(category, property), element);
}

}  // namespace orvane
