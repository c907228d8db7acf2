// The text of a settings file, with the values of one of its sections at hand.
//
// A file is lines. A line in square brackets begins a section, named as it stands there; the lines up
// to the next such line belong to it. What a person added survives a rewrite: other sections as they
// are, and in ours blank lines and comments (lines that begin with ; or #) at their places. A line of
// our section that holds no sound value is dropped, since the program writes that value anew; of
// several values of one name the last counts. Line ends become single line feeds.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "data/settings_line.h"

namespace orvane {

class SettingsDocument {
 public:
  // A document of no lines, for values of that section.
  explicit SettingsDocument(TextView section) : section_(section) {}
  SettingsDocument(TextView section, std::string_view bytes);

  // The value, or null. It stays valid until the next Set.
  const SettingValue* Find(TextView name) const;
  // True when this changed anything.
  bool Set(TextView name, SettingValue value);

  std::string Bytes() const;

 private:
  struct Line {
    bool isValue = false;
    std::string raw;       // of a line that is kept as it is
    NamedSetting setting;  // of a value
  };

  void ParseLine(std::string_view line, bool& inSection);

  Text section_;
  std::vector<Line> lines_;
  std::vector<NamedSetting> added_;  // values that the file did not have; they stand before line insertAt_
  std::size_t insertAt_ = 0;         // behind the section's last value, or behind its header
  bool hasSection_ = false;
  std::map<Text, std::size_t, std::less<>> index_;  // by name: a line, or lines_.size() + a place in added_
};

}  // namespace orvane
