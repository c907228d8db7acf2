// Constants files for tests of screens.
#pragma once

#include <string>
#include <vector>

#include "data/constants_database.h"
#include "tests/data/dat_builder.h"

namespace orvane::testing {

struct CategoryOfConstants {
  Text name;
  std::vector<ConstGroup> groups;
};

inline std::string BytesOf(const std::vector<CategoryOfConstants>& categories) {
  DatWriter header;
  header.Short(static_cast<int>(categories.size()));
  std::string blocks;
  for (const CategoryOfConstants& category : categories) {
    header.Long(static_cast<std::uint32_t>(2 + 4 * categories.size() + blocks.size()));
    DatWriter block;
    block.Counted(category.name).Short(static_cast<int>(category.groups.size()));
    for (const ConstGroup& group : category.groups) {
      block.Counted(group.title).Bool(group.collapsible).Short(static_cast<int>(group.constants.size()));
      for (const ConstEntry& constant : group.constants) {
        block.ZeroTerminated(constant.name).ZeroTerminated(constant.symbol).ZeroTerminated(constant.value);
        block.ZeroTerminated(constant.units).ZeroTerminated(constant.remark);
      }
    }
    blocks += block.Bytes();
  }
  return header.Bytes() + blocks;
}

// Two categories: "First" with two groups that fold and one that does not, "Second" with thirty constants.
inline std::vector<CategoryOfConstants> SmallConstants() {
  const Text ten23 = u"6.022\u00D710\u0001\u00A023";
  const ConstGroup numbers{u"Numbers",
                           true,
                           {{u"Avogadro", u"N\u0001`A", ten23, u"mol\u0001\u00A0\u20131", u"exact"},
                            {u"bare", u"", u"42", u"", u""},
                            {u"range", u"pH", u"3.1\u20134.4", u"", u"styles \u0001!bold"}}};
  const ConstGroup open{u"Never shown", false, {{u"open", u"o", u"", u"m", u""}}};
  const ConstGroup more{
      u"More", true, {{u"styled", u"s", u"\u0001!1\u0001`2\u0001\u00A03\u0001 ", u"", u""}}};
  ConstGroup many{u"Many", true, {}};
  for (int i = 0; i < 30; ++i) many.constants.push_back({DecimalText(i), u"x", DecimalText(i), u"kg", u""});
  return {{u"First", {numbers, open, more}}, {u"Second", {many}}};
}

}  // namespace orvane::testing
