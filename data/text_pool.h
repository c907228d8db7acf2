// Many short texts in one block of memory: what a table of thousands of values costs is its
// characters and six bytes each.
#pragma once

#include <cstdint>
#include <vector>

#include "base/text.h"

namespace orvane {

class TextPool {
 public:
  using Id = std::uint32_t;
  static constexpr Id kEmpty = 0;
  static constexpr std::size_t kLongestText = 0xFFFF;
  // Data files are some hundred kilobytes; what an absurd one holds beyond 64 MB is kept as empty.
  static constexpr std::size_t kMostUnits = std::size_t{1} << 25;

  // Adds a text, cut after its 65,535th character, and returns its id. Views stay valid until the next Add.
  Id Add(TextView text) {
    text = text.substr(0, kLongestText);
    if (text.empty() || units_.size() + text.size() + 1 > kMostUnits) return kEmpty;
    const Id id = static_cast<Id>(units_.size());
    units_.push_back(static_cast<Char>(text.size()));
    units_.insert(units_.end(), text.begin(), text.end());
    return id;
  }

  TextView At(Id id) const { return {units_.data() + id + 1, units_[id]}; }

  void ShrinkToFit() { units_.shrink_to_fit(); }

 private:
  // Each text is its length followed by its characters; the empty text stands at id 0.
  std::vector<Char> units_ = {0};
};

}  // namespace orvane
