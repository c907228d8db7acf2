// Any bytes as the settings file.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "data/memory_settings.h"
#include "data/settings_document.h"
#include "data/zel_registry.h"
#include "fuzz/require.h"

namespace orvane::fuzz {

inline constexpr TextView kSettingsKey = u"Software\\Zel Software\\Orvane";

// Every read of the value, whatever it is.
inline void ReadEveryWay(const NamedSetting& setting) {
  MemorySettings store;
  ZelRegistry registry(store);
  registry.SetKey(kSettingsKey);
  registry.Open();
  store.Write(setting.name, setting.value);
  const std::size_t size = setting.value.bytes.size();
  Require(registry.Exists(setting.name) == (size <= 4));
  Require(size == 4 || registry.ReadLong(setting.name, -7) == -7);
  Require(size == 4 || registry.ReadBool(setting.name, true));
  Require(size == 8 || registry.ReadDouble(setting.name, 0.5) == 0.5);
  Text text;
  const std::int32_t result = registry.ReadString(setting.name, text, u"default");
  Require(text == u"default" || result == static_cast<std::int32_t>(size) - 1);
  Require(text.size() <= 256);
  std::array<std::uint8_t, 16> buffer{};
  Require(registry.ReadBinary(setting.name, {}) == static_cast<std::int32_t>(size));
  Require(registry.ReadBinary(setting.name, buffer) <= 16);
}

// A value that could be read is written in a form that reads the same.
inline void CheckSettingLine(std::string_view line) {
  const std::optional<NamedSetting> setting = ParseSettingLine(line);
  if (!setting) return;
  const std::string written = FormatSettingLine(setting->name, setting->value);
  Require(written.find('\n') == std::string::npos);
  Require(ParseSettingLine(written) == setting);
  ReadEveryWay(*setting);
}

inline void CheckSettings(std::string_view bytes) {
  SettingsDocument document(kSettingsKey, bytes);
  const std::string written = document.Bytes();
  SettingsDocument again(kSettingsKey, written);
  Require(again.Bytes() == written);

  const SettingValue value{SettingKind::kString, {'a', 0, 0, 0}};
  document.Set(u"name", value);
  Require(document.Find(u"name") != nullptr && *document.Find(u"name") == value);
  SettingsDocument changed(kSettingsKey, document.Bytes());
  Require(changed.Find(u"name") != nullptr && *changed.Find(u"name") == value);

  while (!bytes.empty()) {
    const std::string_view line = bytes.substr(0, bytes.find('\n'));
    CheckSettingLine(line);
    bytes.remove_prefix(line.size() < bytes.size() ? line.size() + 1 : line.size());
  }
}

}  // namespace orvane::fuzz
