// A table of elements for the formulas of the fuzz targets: symbols of one to three letters, masses of every
// kind.
#pragma once

#include "chemistry/element_table.h"

namespace orvane::fuzz {

inline ElementTable FuzzElements() {
  constexpr struct {
    TextView symbol;
    TextView mass;
  } kElements[] = {{u"H", u"1.008"},       {u"C", u"12.011"},     {u"O", u"15.999"},
                   {u"N", u"14.007"},      {u"S", u"32.06"},      {u"Na", u"22.98976928"},
                   {u"Cl", u"35.45"},      {u"Co", u"58.933194"}, {u"Tc", u"[97]"},
                   {u"Uub", u"[285]"},     {u"Sn", u"118.710"},   {u"Pb", u"207.2"},
                   {u"Qa", u"99999999.5"}, {u"Qb", u""},          {u"Qc", u"1.2.3e4,-5"},
                   {u"Qd", u"."}};
  ElementTable elements;
  for (const auto& element : kElements) elements.Add(element.symbol, element.mass);
  return elements;
}

}  // namespace orvane::fuzz
