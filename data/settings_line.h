// One value of the settings file as a line of text:
//
//   "wnd_plot.Cur.xCat"=dword:00000002
//   "wnd_mass.Formula"="h2o"
//   "wnd_plot.Cur.xcMin"=hex:00,00,00,00,00,00,e8,3f
//
// `dword` takes up to eight hexadecimal digits, `hex` bytes of one or two separated by commas. In
// quotes \\ and \" stand for themselves and \uXXXX for a 16-bit character; every other escape is an
// error. Blanks around the parts are allowed. Lines are UTF-8.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "data/settings_store.h"

namespace orvane {

struct NamedSetting {
  Text name;
  SettingValue value;
  friend bool operator==(const NamedSetting&, const NamedSetting&) = default;
};

// The value that the line holds, or nothing when anything is wrong with it.
std::optional<NamedSetting> ParseSettingLine(std::string_view line);

// The line, without a line feed. Control characters and lone surrogates are escaped. A long that has not
// four bytes and a string that does not end with a zero character are written as bytes.
std::string FormatSettingLine(TextView name, const SettingValue& value);

}  // namespace orvane
