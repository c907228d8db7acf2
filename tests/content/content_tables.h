// The tables of the elements as they stand in the source tree, read as the compiler reads them.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "content/elements_source.h"

namespace orvane::testing {

struct ContentTables {
  ElementsSource source;
  std::set<std::string> sourceKeys;
  std::vector<std::string> problems;  // empty when all tables are sound
};

ContentTables LoadContentTables();

}  // namespace orvane::testing
