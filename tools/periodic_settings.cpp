#include "tools/periodic_settings.h"

#include "data/zel_registry.h"

namespace orvane {

namespace {

constexpr TextView kUnit = u"wnd_periodic.";

// The five fields under their names, with the current look's defaults.
struct CurrentField {
  TextView name;
  bool PeriodicSettings::*field;
};
constexpr CurrentField kCurrentFields[] = {
    {u"ModeWide", &PeriodicSettings::modeWide}, {u"ColorType", &PeriodicSettings::colorType},
    {u"ShowNum", &PeriodicSettings::showNum},   {u"ShowName", &PeriodicSettings::showName},
    {u"ShowMass", &PeriodicSettings::showMass},
};

struct PresetField {
  TextView name;
  bool PeriodicPreset::*field;
};
constexpr PresetField kPresetFields[] = {
    {u"ModeWide", &PeriodicPreset::modeWide}, {u"ColorType", &PeriodicPreset::colorType},
    {u"ShowNum", &PeriodicPreset::showNum},   {u"ShowName", &PeriodicPreset::showName},
    {u"ShowMass", &PeriodicPreset::showMass},
};

// In the order ModeWide, ColorType, ShowNum, ShowName, ShowMass.
constexpr PeriodicPreset kDefaultPresets[kPeriodicPresets] = {
    {false, false, false, false, false},
    {true, true, true, false, false},
    {true, true, true, true, false},
};

Text CurrentName(TextView field) { return Text(kUnit).append(field); }

Text PresetName(std::size_t preset, TextView field) {
  return WithNumber(u"wnd_periodic.Preset[%d].", static_cast<int>(preset)).append(field);
}

}  // namespace

void SavePreset(const PeriodicSettings& current, PeriodicPreset& preset) {
  preset.modeWide = current.modeWide;
  preset.colorType = current.showNum;
  preset.showName = current.showName;
  preset.showMass = current.showMass;
}

void LoadPreset(const PeriodicPreset& preset, PeriodicSettings& current) {
  current.modeWide = preset.modeWide;
  current.showNum = preset.colorType;
  current.colorType = preset.colorType;
  current.showName = preset.showName;
  current.showMass = preset.showMass;
}

int MatchingPreset(const PeriodicPresets& presets, const PeriodicSettings& current) {
  for (std::size_t i = 0; i < presets.size(); ++i) {
    const PeriodicPreset& preset = presets[i];
    if (preset.modeWide == current.modeWide && preset.colorType == current.colorType &&
        preset.showNum == current.showNum && preset.showName == current.showName &&
        preset.showMass == current.showMass) {
      return static_cast<int>(i);
    }
  }
  return -1;
}

void ReadPeriodicSettings(ZelRegistry& registry, PeriodicSettings& current, PeriodicPresets& presets) {
  registry.Open();
  for (const CurrentField& f : kCurrentFields)
    current.*f.field = registry.ReadBool(CurrentName(f.name), false);
  for (std::size_t i = 0; i < presets.size(); ++i) {
    for (const PresetField& f : kPresetFields) {
      presets[i].*f.field = registry.ReadBool(PresetName(i, f.name), kDefaultPresets[i].*f.field);
    }
  }
  registry.Close();
}

void WritePeriodicSettings(ZelRegistry& registry, const PeriodicSettings& current,
                           const PeriodicPresets& presets) {
  registry.Open();
  for (const CurrentField& f : kCurrentFields) registry.WriteBool(CurrentName(f.name), current.*f.field);
  for (std::size_t i = 0; i < presets.size(); ++i) {
    for (const PresetField& f : kPresetFields) registry.WriteBool(PresetName(i, f.name), presets[i].*f.field);
  }
  registry.Close();
}

}  // namespace orvane
