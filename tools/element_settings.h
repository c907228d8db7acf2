// What the element view remembers between runs.
#pragma once

#include <array>
#include <optional>

#include "tools/element_summary.h"

namespace orvane {

class ZelRegistry;

// What a newly opened element shows first.
inline constexpr std::int32_t kStartWithSummary = 0;
inline constexpr std::int32_t kStartWithFullInfo = 1;
inline constexpr std::int32_t kRememberLastUsed = 2;

struct ElementSettings {
  bool doSummary = true;  // the summary shows, not the full list
  std::int32_t initialView = kStartWithSummary;
  bool showMainProperties = true;
  bool showFamilyAndBlock = true;
  std::array<ElementPreset, kElementPresets> presets;
};

// Reads all that is stored; what is not has its default, and a list its built-in one. `longestList` bounds
// what a damaged count can ask for. `last` becomes the summary as it was; nothing when none is stored.
void ReadElementSettings(ZelRegistry& registry, int longestList, ElementSettings& settings,
                         std::optional<PropertyList>& last);
// Writes everything but the lists when `withLists` is false: a program that could not load its elements must
// not cut the lists that it could not check. `last` is left alone when it is nothing.
void WriteElementSettings(ZelRegistry& registry, const ElementSettings& settings, bool withLists,
                          const std::optional<PropertyList>& last);

}  // namespace orvane
