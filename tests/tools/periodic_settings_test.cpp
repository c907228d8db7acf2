#include "tools/periodic_settings.h"

#include <gtest/gtest.h>

#include <string>

#include "data/memory_settings.h"
#include "data/zel_registry.h"

namespace orvane {
namespace {

constexpr TextView kKey = u"Software\\Zel Software\\Orvane";

// The bits of 0..31 as a look and as a preset.
PeriodicSettings SettingsFrom(int bits) {
  PeriodicSettings settings;
  settings.modeWide = (bits & 1) != 0;
  settings.showNum = (bits & 2) != 0;
  settings.showName = (bits & 4) != 0;
  settings.showMass = (bits & 8) != 0;
  settings.colorType = (bits & 16) != 0;
  return settings;
}
PeriodicPreset PresetFrom(int bits) {
  PeriodicPreset preset;
  preset.modeWide = (bits & 1) != 0;
  preset.colorType = (bits & 2) != 0;
  preset.showNum = (bits & 4) != 0;
  preset.showName = (bits & 8) != 0;
  preset.showMass = (bits & 16) != 0;
  return preset;
}

std::string Describe(const PeriodicSettings& s) {
  return std::to_string(s.modeWide) + std::to_string(s.showNum) + std::to_string(s.showName) +
         std::to_string(s.showMass) + std::to_string(s.colorType);
}
std::string Describe(const PeriodicPreset& p) {
  return std::to_string(p.modeWide) + std::to_string(p.colorType) + std::to_string(p.showNum) +
         std::to_string(p.showName) + std::to_string(p.showMass);
}

// --- The mapping between the two orders of fields

TEST(PresetMappingTest, SavingPutsTheNumberIntoTheColouringAndLeavesTheColouringOut) {
  for (int look = 0; look < 32; ++look) {
    for (int before = 0; before < 32; ++before) {
      const PeriodicSettings current = SettingsFrom(look);
      PeriodicPreset preset = PresetFrom(before);
      SavePreset(current, preset);
      EXPECT_EQ(preset.modeWide, current.modeWide);
      EXPECT_EQ(preset.colorType, current.showNum);
      EXPECT_EQ(preset.showNum, PresetFrom(before).showNum);  // as it was
      EXPECT_EQ(preset.showName, current.showName);
      EXPECT_EQ(preset.showMass, current.showMass);
    }
  }
}

TEST(PresetMappingTest, LoadingTakesNumberAndColouringFromTheColouring) {
  for (int stored = 0; stored < 32; ++stored) {
    for (int before = 0; before < 32; ++before) {
      const PeriodicPreset preset = PresetFrom(stored);
      PeriodicSettings current = SettingsFrom(before);
      LoadPreset(preset, current);
      EXPECT_EQ(current.modeWide, preset.modeWide);
      EXPECT_EQ(current.showNum, preset.colorType);
      EXPECT_EQ(current.colorType, preset.colorType);
      EXPECT_EQ(current.showName, preset.showName);
      EXPECT_EQ(current.showMass, preset.showMass);
    }
  }
}

TEST(PresetMappingTest, NumbersColouredByBlockComeBackColouredByFamily) {
  PeriodicSettings current;
  current.showNum = true;
  PeriodicPreset preset;
  SavePreset(current, preset);
  current = {};
  LoadPreset(preset, current);
  EXPECT_EQ(Describe(current), "01001");  // form, number, name, mass, colouring
}

// --- Which preset is the current look

TEST(MatchingPresetTest, TellsAllLooksApart) {
  PeriodicPresets presets;
  presets[0] = {true, true, false, true, false};
  presets[1] = {false, true, true, false, true};
  presets[2] = {true, false, true, true, true};
  for (int look = 0; look < 32; ++look) {
    const PeriodicSettings s = SettingsFrom(look);
    const std::string described = Describe(s);  // form, number, name, mass, colouring
    const int expected = described == "10101" ? 0 : described == "01011" ? 1 : described == "11110" ? 2 : -1;
    EXPECT_EQ(MatchingPreset(presets, s), expected) << described;
  }
}

TEST(MatchingPresetTest, IsTheFirstOfEqualOnes) {
  PeriodicPresets presets;
  EXPECT_EQ(MatchingPreset(presets, {}), 0);
  presets[0].showMass = true;
  EXPECT_EQ(MatchingPreset(presets, {}), 1);
  presets[1].showMass = true;
  EXPECT_EQ(MatchingPreset(presets, {}), 2);
  presets[2].showMass = true;
  EXPECT_EQ(MatchingPreset(presets, {}), -1);
}

// --- The settings store

class PeriodicStoreTest : public ::testing::Test {
 protected:
  PeriodicStoreTest() { registry_.SetKey(kKey); }

  void Put(TextView name, SettingKind kind, std::vector<std::uint8_t> bytes) {
    store_.OpenKey(kKey);
    store_.Write(name, {kind, std::move(bytes)});
    store_.CloseKey();
  }
  // "0" and "1" for booleans as they are written, "-" for a missing value, "?" for anything else.
  std::string Stored(TextView name) {
    store_.OpenKey(kKey);
    const SettingValue* value = store_.Find(name);
    std::string text = "-";
    if (value) {
      const bool isBool = value->kind == SettingKind::kLong && value->bytes.size() == 4 &&
                          value->bytes[0] <= 1 && !value->bytes[1] && !value->bytes[2] && !value->bytes[3];
      text = isBool ? std::to_string(value->bytes[0]) : "?";
    }
    store_.CloseKey();
    return text;
  }
  void Read() { ReadPeriodicSettings(registry_, current_, presets_); }
  void Write() { WritePeriodicSettings(registry_, current_, presets_); }

  MemorySettings store_;
  ZelRegistry registry_{store_};
  PeriodicSettings current_;
  PeriodicPresets presets_;
};

TEST_F(PeriodicStoreTest, AnEmptyStoreGivesTheFirstLook) {
  current_ = SettingsFrom(31);
  for (PeriodicPreset& preset : presets_) preset = PresetFrom(21);
  Read();
  EXPECT_EQ(Describe(current_), "00000");
  EXPECT_EQ(Describe(presets_[0]), "00000");  // form, colouring, number, name, mass
  EXPECT_EQ(Describe(presets_[1]), "11100");
  EXPECT_EQ(Describe(presets_[2]), "11110");
  EXPECT_EQ(MatchingPreset(presets_, current_), 0);
}

// Every name alone, so that two names that are mixed up cannot hide each other.
TEST_F(PeriodicStoreTest, EachOfTheTwentyValuesHasItsName) {
  const std::vector<std::pair<std::u16string, bool PeriodicSettings::*>> looks = {
      {u"wnd_periodic.ModeWide", &PeriodicSettings::modeWide},
      {u"wnd_periodic.ColorType", &PeriodicSettings::colorType},
      {u"wnd_periodic.ShowNum", &PeriodicSettings::showNum},
      {u"wnd_periodic.ShowName", &PeriodicSettings::showName},
      {u"wnd_periodic.ShowMass", &PeriodicSettings::showMass},
  };
  const std::vector<std::pair<std::u16string, bool PeriodicPreset::*>> fields = {
      {u"ModeWide", &PeriodicPreset::modeWide}, {u"ColorType", &PeriodicPreset::colorType},
      {u"ShowNum", &PeriodicPreset::showNum},   {u"ShowName", &PeriodicPreset::showName},
      {u"ShowMass", &PeriodicPreset::showMass},
  };
  std::vector<std::pair<Text, bool*>> all;
  for (const auto& [name, field] : looks) all.emplace_back(name, &(current_.*field));
  const std::u16string prefixes[] = {u"wnd_periodic.Preset[0].", u"wnd_periodic.Preset[1].",
                                     u"wnd_periodic.Preset[2]."};
  for (std::size_t i = 0; i < 3; ++i) {
    for (const auto& [name, field] : fields) all.emplace_back(prefixes[i] + name, &(presets_[i].*field));
  }
  ASSERT_EQ(all.size(), 20u);
  for (const auto& [name, value] : all) {
    current_ = {};
    presets_ = {};
    *value = true;
    Write();
    for (const auto& [other, unused] : all) {
      EXPECT_EQ(Stored(other), other == name ? "1" : "0") << ToUtf8(name) << " / " << ToUtf8(other);
    }
    current_ = {};
    presets_ = {};
    Read();
    for (const auto& [other, read] : all) EXPECT_EQ(*read, other == name) << ToUtf8(other);
  }
}

TEST_F(PeriodicStoreTest, ValuesThatAPersonWroteCountAsOnOrOff) {
  Put(u"wnd_periodic.ModeWide", SettingKind::kLong, {2, 0, 0, 0});
  Put(u"wnd_periodic.ShowNum", SettingKind::kLong, {0xFF, 0xFF, 0xFF, 0xFF});
  Put(u"wnd_periodic.ShowName", SettingKind::kString, {u'y', 0, 0, 0});  // "y"
  Put(u"wnd_periodic.ShowMass", SettingKind::kString, {u'y', 0, u'e', 0, u's', 0, 0, 0});
  Put(u"wnd_periodic.ColorType", SettingKind::kBinary, {});
  Put(u"wnd_periodic.Preset[1].ModeWide", SettingKind::kBinary, {1});
  Put(u"wnd_periodic.Preset[2].ShowName", SettingKind::kLong, {0, 0, 0, 0});
  Read();
  EXPECT_EQ(Describe(current_), "11100");  // what is no number of four bytes is the default
  EXPECT_EQ(Describe(presets_[1]), "11100");
  EXPECT_EQ(Describe(presets_[2]), "11100");
}

}  // namespace
}  // namespace orvane
