#include "data/element_codes.h"

#include <array>

namespace orvane {

namespace {

// The families of the codes A, B, C...
constexpr std::array<TextView, 10> kFamilies = {u"Alkali metal",     u"Alkaline earth metal",
                                                u"Transition metal", u"Metal",
                                                u"Non-metal",        u"Noble gas",
                                                u"Actinide",         u"Lanthanide",
                                                u"Halogen",          u"Transactinide"};

}  // namespace

TextView FamilyText(TextView value) {
  if (value.empty() || value[0] < u'A') return {};
  const std::size_t index = static_cast<std::size_t>(value[0] - u'A');
  return index < kFamilies.size() ? kFamilies[index] : TextView();
}

TextView BlockText(TextView value) {
  if (value.empty()) return {};
  switch (value[0]) {
    case u'D':
      return u"d-block";
    case u'F':
      return u"f-block";
    case u'P':
      return u"p-block";
    case u'S':
      return u"s-block";
    default:
      return {};
  }
}

}  // namespace orvane
