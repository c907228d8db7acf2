// What reading formulas takes to know of the elements: their symbols and their atomic masses.
#pragma once

#include <cstdint>
#include <vector>

#include "base/text.h"
#include "chemistry/decimal.h"

namespace orvane {

// An atomic mass in g/mol.
struct AtomicMass {
  LongDecimal value;
  ShortDecimal shortValue;
  // How many decimals the mass was given with; more than eight are counted but not kept.
  int decimalPlaces = 0;

  // The text may be a mass number in square brackets, which count for nothing. Any character but digits and
  // one point counts as the digit 0 in its column, an empty text as "0".
  static AtomicMass Read(TextView text);
};

class ElementTable {
 public:
  static constexpr int kElementCount = 112;
  static constexpr std::size_t kLongestSymbol = 3;

  ElementTable();

  // The table of an elements database's symbols and masses: any two properties that have a Value(index) for
  // the indices 0 to 111. A missing property leaves its side of the table empty.
  template <class Property>
  static ElementTable From(const Property* symbols, const Property* masses) {
    ElementTable table;
    for (int element = 0; element < kElementCount; ++element) {
      table.Add(symbols == nullptr ? TextView() : TextView(symbols->Value(element)),
                masses == nullptr ? TextView() : TextView(masses->Value(element)));
    }
    return table;
  }

  // Adds the next element; beyond the last one nothing happens. Only a symbol of one to three ASCII letters
  // can ever be found, and of equal symbols the first.
  void Add(TextView symbol, TextView mass);

  // The index of the element with this symbol, whatever the case of either, or −1.
  int Find(TextView symbol) const;

  // `element` is an index that Find gave.
  const AtomicMass& Mass(int element) const { return masses_[static_cast<std::size_t>(element)]; }

 private:
  std::vector<std::int8_t> elementOf_;  // by the letters of a symbol: an index, or −1
  std::vector<AtomicMass> masses_;
};

}  // namespace orvane
