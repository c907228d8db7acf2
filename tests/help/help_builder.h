// Makes help files for tests, page by page.
#pragma once

#include <string>
#include <vector>

#include "tests/data/dat_builder.h"

namespace orvane::testing {

struct BuiltPage {
  int id = 0;
  Text title;
  std::vector<Text> paragraphs;
  std::vector<int> links;
  int neighbour1 = 10000;
  int neighbour2 = 10000;
};

struct BuiltEntry {
  int level = 0;
  int page = -1;  // an id; a heading when negative
  Text heading;
};

inline BuiltEntry Heading(int level, Text text) { return {level, -1, std::move(text)}; }
inline BuiltEntry PageAt(int level, int id) { return {level, id, {}}; }

inline DatWriter BuildHelp(const std::vector<BuiltEntry>& entries, const std::vector<BuiltPage>& pages) {
  std::vector<std::string> bodies;
  for (const BuiltPage& page : pages) {
    DatWriter body;
    body.Short(page.neighbour1).Short(page.neighbour2).Short(static_cast<int>(page.paragraphs.size()));
    for (const Text& paragraph : page.paragraphs) body.Counted(paragraph);
    body.Short(static_cast<int>(page.links.size()));
    for (const int link : page.links) body.Short(link);
    bodies.push_back(body.Bytes());
  }
  DatWriter head;
  head.Raw("\xDE\xEB\xFF").Byte(0).Short(static_cast<int>(entries.size()));
  for (const BuiltEntry& entry : entries) {
    head.Bool(entry.page >= 0).Short(entry.level);
    entry.page >= 0 ? head.Short(entry.page) : head.Counted(entry.heading);
  }
  head.Short(static_cast<int>(pages.size()));
  // The directory's size does not depend on the offsets in it.
  const auto directory = [&](std::size_t start) {
    DatWriter out;
    for (std::size_t i = 0; i < pages.size(); ++i) {
      out.Short(pages[i].id).Long(static_cast<std::uint32_t>(start)).Counted(pages[i].title);
      start += bodies[i].size();
    }
    return out.Bytes();
  };
  const std::size_t bodiesStart = head.Bytes().size() + directory(0).size();
  head.Raw(directory(bodiesStart));
  for (const std::string& body : bodies) head.Raw(body);
  return head;
}

}  // namespace orvane::testing
