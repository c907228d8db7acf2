// Every fact that the program knows about the chemical elements, read once from "periodic.dat" and
// kept unchanged: categories of properties, and for each property a text for each element that has one.
// An element is addressed by its index 0..111, the atomic number less one; a property by the index of
// its category and its index in that category.
//
// The file: Long 0xFFE8EBDE; Short number of categories; per category its name (Z), Short number of
// properties; per property Short id, name (Z), Bool plottable, units (Z), Short number of values; per
// value Short atomic number, value (counted string). Bytes after the last property are ignored.
//
// The file is not trusted. Names and units are cut at their limits while the reader stays in step,
// negative counts are 0, atomic numbers outside 1..112 are read over, a repeated one keeps its last
// value, and a file that ends early leaves what was read of it. No count in the file costs memory
// before what it counts has been read.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "base/message_reporter.h"
#include "base/text.h"
#include "data/text_pool.h"

namespace orvane {

class ZelBinary;

// The name of the file in the folder of the data files.
inline constexpr const char* kElementsFile = "periodic.dat";

// The texts of all properties. Properties point here, so it stays where it is.
struct ElementTexts {
  TextPool pool;
  std::vector<TextPool::Id> values;  // of each property in turn, by rising element index
};

class ElementProperty {
 public:
  std::int32_t Id() const { return id_; }
  TextView Name() const { return texts_->pool.At(name_); }
  // Whether the property may be a plot's axis.
  bool IsPlottable() const { return plottable_; }
  // What follows a value when it is shown, with nothing in between: the text brings its own blank.
  TextView Units() const { return texts_->pool.At(units_); }

  // Element indices outside 0..111 have no value; an element without a value has an empty text.
  bool HasValue(int element) const;
  TextView Value(int element) const;
  // The number of elements that have a value.
  int ValueCount() const;

  // View state of the element screen, not in the file: whether the property is in its summary, and
  // at which place.
  bool inSummary = false;
  std::int32_t summaryPosition = 0;

 private:
  friend class ElementsDatabase;
  explicit ElementProperty(const ElementTexts* texts) : texts_(texts) {}

  const ElementTexts* texts_;
  std::array<std::uint64_t, 2> present_{};  // one bit an element
  std::uint32_t firstValue_ = 0;            // in texts_->values
  std::int32_t id_ = 0;
  TextPool::Id name_ = TextPool::kEmpty;
  TextPool::Id units_ = TextPool::kEmpty;
  bool plottable_ = false;
};

// The property's value for the element; empty also when there is no such property.
inline TextView ValueOf(const ElementProperty* property, int element) {
  return property == nullptr ? TextView() : property->Value(element);
}

class ElementCategory {
 public:
  TextView Name() const { return texts_->pool.At(name_); }
  int PropertyCount() const { return static_cast<int>(properties_.size()); }
  const std::vector<ElementProperty>& Properties() const { return properties_; }

 private:
  friend class ElementsDatabase;
  explicit ElementCategory(const ElementTexts* texts) : texts_(texts) {}

  const ElementTexts* texts_;
  TextPool::Id name_ = TextPool::kEmpty;
  std::vector<ElementProperty> properties_;
};

class ElementsDatabase {
 public:
  static constexpr int kElementCount = 112;
  // With this number every file begins.
  static constexpr std::uint32_t kMagic = 0xFFE8EBDE;
  // In characters, without a terminating zero.
  static constexpr std::size_t kLongestCategoryName = 255;
  static constexpr std::size_t kLongestPropertyName = 149;
  static constexpr std::size_t kLongestUnits = 50;

  ElementsDatabase();
  ~ElementsDatabase();
  ElementsDatabase(const ElementsDatabase&) = delete;
  ElementsDatabase& operator=(const ElementsDatabase&) = delete;

  // Replaces the content by that of the file. 1 on success, which includes a file that ends early (the
  // reader reports that); 0 and an empty database, with a message, when the file cannot be opened or
  // does not begin as it must.
  int Load(const std::string& path, MessageReporter& reporter);
  // Back to empty.
  void Free();

  int CategoryCount() const { return static_cast<int>(categories_.size()); }
  const std::vector<ElementCategory>& Categories() const { return categories_; }

  // The property at an address, or null when there is none. The view state may be changed.
  const ElementProperty* FindProperty(int category, int property) const;
  ElementProperty* FindProperty(int category, int property);

  // The value of the property for the element; empty when any of the three does not exist.
  TextView Value(int category, int property, int element) const;

  // The properties that several screens need by meaning, known by their ids 0 to 4; null when the file
  // has none. Mass values of elements without a stable isotope are mass numbers in square brackets.
  // Family and block values are codes (element_codes.h).
  const ElementProperty* Symbol() const { return special_[0]; }
  const ElementProperty* Name() const { return special_[1]; }
  const ElementProperty* AtomicMass() const { return special_[2]; }
  const ElementProperty* Family() const { return special_[3]; }
  const ElementProperty* Block() const { return special_[4]; }

 private:
  void ReadCategory(ZelBinary& file);
  void ReadProperty(ZelBinary& file, std::vector<ElementProperty>& properties);
  void ReadValues(ZelBinary& file, ElementProperty& property);
  void LocateSpecialProperties();

  std::unique_ptr<ElementTexts> texts_;
  std::vector<ElementCategory> categories_;
  std::array<const ElementProperty*, 5> special_{};
  Text scratch_;  // the text being read, kept for its memory
};

}  // namespace orvane
