#include "tools/periodic_settings.h"

#include "data/zel_registry.h"

namespace orvane {

namespace {

constexpr TextView kUnit = u"wnd_periodic.";

// The five fields of a look, current or stored, under their names.
template <class Look>
struct Field {
  TextView name;
  bool Look::*field;
};
template <class Look>
constexpr Field<Look> kFields[] = {
    {u"ModeWide", &Look::modeWide}, {u"ColorType", &Look::colorType}, {u"ShowNum", &Look::showNum},
    {u"ShowName", &Look::showName}, {u"ShowMass", &Look::showMass},
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
  for (const auto& f : kFields<PeriodicSettings>)
    current.*f.field = registry.ReadBool(CurrentName(f.name), false);
  for (std::size_t i = 0; i < presets.size(); ++i) {
    for (const auto& f : kFields<PeriodicPreset>) {
      presets[i].*f.field = registry.ReadBool(PresetName(i, f.name), kDefaultPresets[i].*f.field);
    }
  }
  registry.Close();
}

void WritePeriodicSettings(ZelRegistry& registry, const PeriodicSettings& current,
                           const PeriodicPresets& presets) {
  registry.Open();
  for (const auto& f : kFields<PeriodicSettings>) registry.WriteBool(CurrentName(f.name), current.*f.field);
  for (std::size_t i = 0; i < presets.size(); ++i) {
    for (const auto& f : kFields<PeriodicPreset>)
      registry.WriteBool(PresetName(i, f.name), presets[i].*f.field);
  }
  registry.Close();
}

}  // namespace orvane
