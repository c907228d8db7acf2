// What the periodic table remembers: how it looks now, and three presets.
#pragma once

#include <array>

#include "tools/periodic_layout.h"

namespace orvane {

class ZelRegistry;

// The current look.
struct PeriodicSettings {
  bool modeWide = false;
  bool showNum = false;
  bool showName = false;
  bool showMass = false;
  bool colorType = false;  // false: colour by block, true: by family

  PeriodicView View() const { return {modeWide, showNum, showName, showMass}; }
};

// A stored look. Its fields stand in another order than the current ones, which is what the mapping below
// goes back to.
struct PeriodicPreset {
  bool modeWide = false;
  bool colorType = false;
  bool showNum = false;
  bool showName = false;
  bool showMass = false;
};

inline constexpr int kPeriodicPresets = 3;
using PeriodicPresets = std::array<PeriodicPreset, kPeriodicPresets>;

// Saving puts the current ShowNum into the preset's ColorType; the preset keeps its own ShowNum, and the
// current ColorType is not saved. Loading takes both ShowNum and ColorType from the preset's ColorType.
// People have presets that were made so, and a preset must go on to mean what it meant; so a look with
// numbers comes back with numbers and coloured by family.
void SavePreset(const PeriodicSettings& current, PeriodicPreset& preset);
void LoadPreset(const PeriodicPreset& preset, PeriodicSettings& current);

// The first preset that equals the current look in all five fields, or −1.
int MatchingPreset(const PeriodicPresets& presets, const PeriodicSettings& current);

// The twenty values of the settings store; what is missing there takes its default.
void ReadPeriodicSettings(ZelRegistry& registry, PeriodicSettings& current, PeriodicPresets& presets);
void WritePeriodicSettings(ZelRegistry& registry, const PeriodicSettings& current,
                           const PeriodicPresets& presets);

}  // namespace orvane
