#include "chemistry/element_search.h"

#include <algorithm>

namespace orvane {

bool BeginsWith(TextView text, TextView prefix) {
  return text.size() >= prefix.size() &&
         std::equal(prefix.begin(), prefix.end(), text.begin(),
                    [](Char a, Char b) { return AsciiLower(a) == AsciiLower(b); });
}

std::vector<int> FindElements(TextView text, const NamesOfElements& names) {
  std::vector<int> found;
  for (int element = 0; element < kSearchedElements; ++element) {
    const ElementNames& one = names[static_cast<std::size_t>(element)];
    if (BeginsWith(DecimalText(element + 1), text) || BeginsWith(one.symbol, text) ||
        BeginsWith(one.name, text)) {
      found.push_back(element);
    }
  }
  return found;
}

}  // namespace orvane
