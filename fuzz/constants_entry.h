// Any bytes as "constants.dat".
#pragma once

#include <fstream>
#include <string>
#include <string_view>

#include "data/constants_database.h"
#include "fuzz/require.h"

namespace orvane::fuzz {

class ConstantsFuzzReporter : public MessageReporter {
 public:
  void Report(TextView text, TextView caption, MessageIcon icon) override {
    Require(!text.empty() && caption == kProgramName && icon == MessageIcon::kError);
    ++count;
  }
  long long count = 0;
};

// One reading of a category stops at the first record that the file does not hold.
inline void CheckGroups(const std::vector<ConstGroup>& groups, long long messages) {
  constexpr std::size_t kLongest = ConstantsDatabase::kLongestText;
  // The record that is cut short has at most five fields, its group and the category's head three each;
  // titles that end inside an escape are reported and read over.
  Require(messages <= 11 + static_cast<long long>(groups.size()));
  std::size_t constants = 0;
  for (const ConstGroup& group : groups) {
    Require(group.title.size() <= kLongest);
    for (const ConstEntry& constant : group.constants) {
      Require(constant.name.size() <= kLongest && constant.symbol.size() <= kLongest);
      Require(constant.value.size() <= kLongest && constant.units.size() <= kLongest);
      Require(constant.remark.size() <= kLongest);
    }
    constants += group.constants.size();
  }
  Require(constants <= ConstantsDatabase::kMostConstants);
}

// The bytes are written to the file of that name, which is read and left there.
inline void CheckConstants(std::string_view bytes, const std::string& path) {
  std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  ConstantsFuzzReporter reporter;
  ConstantsDatabase database(path);
  Require(database.ReadCategories(reporter));
  Require(database.CategoryCount() <= ConstantsDatabase::kMostCategories);
  // Each category takes four bytes of the header. Many may share a block: the first ones are enough.
  Require(static_cast<std::size_t>(database.CategoryCount()) * 4 <= bytes.size());
  constexpr int kMostLoaded = 20;
  for (int category = -1; category <= database.CategoryCount() && category < kMostLoaded; ++category) {
    reporter.count = 0;
    const auto groups = database.LoadCategory(category, reporter);
    Require(groups.has_value() == (category >= 0 && category < database.CategoryCount()));
    if (groups) CheckGroups(*groups, reporter.count);
  }
}

}  // namespace orvane::fuzz
