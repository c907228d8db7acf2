// Any bytes as "periodic.dat".
#pragma once

#include <array>
#include <fstream>
#include <string>
#include <string_view>

#include "data/elements_database.h"
#include "data/zel_binary.h"
#include "fuzz/require.h"

namespace orvane::fuzz {

class CountingReporter : public MessageReporter {
 public:
  void Report(TextView text, TextView caption, MessageIcon icon) override {
    Require(!text.empty() && caption == kProgramName && icon == MessageIcon::kError);
    ++count;
  }
  int count = 0;
};

// What is read of a property can be asked for in full, and beyond.
inline void CheckProperty(const ElementProperty& property) {
  Require(property.Name().size() <= ElementsDatabase::kLongestPropertyName);
  Require(property.Units().size() <= ElementsDatabase::kLongestUnits);
  Require(!property.inSummary);
  int values = 0;
  for (int element = -1; element <= ElementsDatabase::kElementCount; ++element) {
    const TextView value = property.Value(element);
    Require(property.HasValue(element) || value.empty());
    Require(value.size() <= TextPool::kLongestText);
    values += property.HasValue(element) ? 1 : 0;
  }
  Require(values == property.ValueCount());
}

inline void CheckDatabase(const ElementsDatabase& database) {
  // A short input can announce thousands of properties that are all alike: empty. The first are enough.
  constexpr int kMostChecked = 200;
  int checkedCount = 0;
  for (const ElementCategory& category : database.Categories()) {
    Require(category.Name().size() <= ElementsDatabase::kLongestCategoryName);
    Require(category.PropertyCount() <= 32767);
    for (const ElementProperty& property : category.Properties()) {
      if (property.ValueCount() > 0 || checkedCount++ < kMostChecked) CheckProperty(property);
    }
  }
  const std::array special = {database.Symbol(), database.Name(), database.AtomicMass(), database.Family(),
                              database.Block()};
  for (std::size_t id = 0; id < special.size(); ++id) {
    Require(special[id] == nullptr || special[id]->Id() == static_cast<std::int32_t>(id));
  }
}

// Reads and moves as the file's own bytes say.
inline void ReadAtRandom(const std::string& path, std::string_view script) {
  CountingReporter reporter;
  ZelBinary file(reporter);
  Text text;
  for (const char step : script.substr(0, 200)) {
    switch (static_cast<unsigned char>(step) % 11) {
      case 0:
        file.Open(path);
        break;
      case 1:
        if (static_cast<unsigned char>(step) > 240) file.Close();
        break;
      case 2:
        Require(file.SeekTo(step) >= -1);
        break;
      case 3:
        file.SeekBy(step * 3);
        break;
      case 4:
        file.SeekEnd();
        break;
      case 5:
        file.ReadBool();
        Require(file.IsOpen() || file.FilePos() == 0xFFFFFFFFu);
        break;
      case 6:
        file.ReadLong();
        break;
      case 7:
        file.ReadShort();
        break;
      case 8:
        Require(file.ReadTCharFromChar_C(text) >= static_cast<std::int32_t>(text.size()) || text.empty());
        break;
      case 9:
        file.ReadTCharFromChar_C(text, 5);
        Require(text.size() <= 4);
        break;
      default:
        file.ReadTCharFromChar_Z(text, 20);
        Require(text.size() <= 19);
        break;
    }
  }
}

// The bytes are written to the file of that name, which is read and left there.
inline void CheckPeriodic(std::string_view bytes, const std::string& path) {
  std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  CountingReporter reporter;
  ElementsDatabase database;
  const int loaded = database.Load(path, reporter);
  Require(loaded == 1 || (database.CategoryCount() == 0 && reporter.count > 0));
  CheckDatabase(database);
  ReadAtRandom(path, bytes);
}

}  // namespace orvane::fuzz
