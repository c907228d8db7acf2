// The page that lists the coverage and the contested values of the elements database, made from the tables
// and the facts so that it cannot tell anything else.
#pragma once

#include <string>
#include <vector>

#include "tests/content/content_tables.h"
#include "tests/content/element_facts.h"

namespace orvane::testing {

// Markdown.
std::string ElementsReport(const ContentTables& tables, const std::vector<FactLine>& facts);

}  // namespace orvane::testing
