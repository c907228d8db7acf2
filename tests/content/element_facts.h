// The facts that the values of the elements database rest on, content/facts/elements/*.tsv, and the rules by
// which a value is held to them. The README of that folder describes the columns.
#pragma once

#include <string>
#include <vector>

#include "base/text.h"

namespace orvane::testing {

struct Figure {
  std::string source;  // key in SOURCES.md
  std::string text;    // without style codes
};

struct FactLine {
  std::string place;  // file and line, for messages
  int id = 0;         // of the property
  int element = 0;    // atomic number
  std::vector<Figure> accepted;
  std::vector<Figure> setAside;
  std::string reason;
};

// The lines of one file's content. What is malformed is named in `problems` and left out.
std::vector<FactLine> ReadFacts(const std::string& file, const std::string& content,
                                std::vector<std::string>& problems);

// The lines of all files, in their order.
std::vector<FactLine> ReadAllFacts(std::vector<std::string>& problems);

// What a person reads of a text: style codes removed, UTF-8.
std::string PlainText(TextView text);

// The number of a bare decimal, or of a mass number in brackets.
double NumberOf(const std::string& text);

// Each returns what is wrong, as a clause, or nothing.
// A number must lie between the least and the greatest accepted figure, give or take half a unit of its last
// digit; a whole number that ends in 0 may have been rounded to tens.
std::string CheckNumber(const std::string& value, const std::vector<Figure>& accepted);
// Every part of a text, as commas and "; also" cut it, must be a part of an accepted text.
std::string CheckText(const std::string& value, const std::vector<Figure>& accepted);

}  // namespace orvane::testing
