// Databases of elements for tests of screens: made-up ones, and the program's own.
#pragma once

#include <functional>
#include <string>

#include "data/elements_database.h"
#include "tests/data/collecting_reporter.h"
#include "tests/data/dat_builder.h"
#include "tests/data/temp_folder.h"

namespace orvane::testing {

// The texts of one element; an element without a text has no value there.
struct ElementFacts {
  Text symbol;
  Text name;
  Text mass;
  Text family;
  Text block;
};
using FactsOf = std::function<ElementFacts(int element)>;

// Fills the database from a file with one category and the five properties 0 to 4 that screens know by
// meaning.
inline void LoadMadeUp(ElementsDatabase& database, const FactsOf& facts) {
  constexpr Text ElementFacts::*kFields[] = {&ElementFacts::symbol, &ElementFacts::name, &ElementFacts::mass,
                                             &ElementFacts::family, &ElementFacts::block};
  DatWriter file;
  file.PeriodicHeader(1).Category(u"All", 5);
  for (int id = 0; id < 5; ++id) {
    DatWriter values;
    int count = 0;
    for (int i = 0; i < ElementsDatabase::kElementCount; ++i) {
      const Text text = facts(i).*kFields[id];
      if (text.empty()) continue;
      values.Value(i + 1, text);
      ++count;
    }
    file.Property(id, u"Property", false, u"", count).Raw(values.Bytes());
  }
  const TempFolder folder;
  const std::string path = folder.File("periodic.dat");
  file.Save(path);
  CollectingReporter reporter;
  database.Load(path, reporter);
}

// The database that the program ships with; false when it cannot be read without a message.
inline bool LoadShipped(ElementsDatabase& database) {
  CollectingReporter reporter;
  return database.Load(ORVANE_BIN_DIR "/periodic.dat", reporter) == 1 && reporter.texts.empty();
}

}  // namespace orvane::testing
