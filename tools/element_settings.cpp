#include "tools/element_settings.h"

#include <algorithm>

#include "data/zel_registry.h"

namespace orvane {

namespace {

// Name, kind and default of each value:
//   wnd_element.DoSummary              bool  true
//   wnd_element.InitialView            long  0
//   wnd_element.ShowMainProperties     bool  true
//   wnd_element.ShowFamilyAndBlock     bool  true
//   wnd_element.Preset[n].ShowMain     bool  true
//   wnd_element.Preset[n].ShowFamily   bool  true
//   wnd_element.Preset[n].Count        long  the built-in list; then of each entry k
//   wnd_element.Preset[n].Cat[k], Val[k]     long  0
//   wnd_element.Last.Count, Cat[k], Val[k]   likewise
constexpr TextView kDoSummary = u"wnd_element.DoSummary";
constexpr TextView kInitialView = u"wnd_element.InitialView";
constexpr TextView kShowMainProperties = u"wnd_element.ShowMainProperties";
constexpr TextView kShowFamilyAndBlock = u"wnd_element.ShowFamilyAndBlock";
constexpr TextView kPreset = u"wnd_element.Preset[%d].";
constexpr TextView kLast = u"wnd_element.Last.";

Text Joined(Text owner, TextView name) { return owner.append(name); }

std::optional<PropertyList> ReadList(const ZelRegistry& registry, const Text& owner, int longest) {
  const Text countName = Joined(owner, u"Count");
  if (!registry.Exists(countName)) return std::nullopt;
  const int count = std::clamp(registry.ReadLong(countName, 0), 0, std::max(longest, 0));
  PropertyList list;
  for (int k = 0; k < count; ++k) {
    list.push_back({registry.ReadLong(WithNumber(Joined(owner, u"Cat[%d]"), k), 0),
                    registry.ReadLong(WithNumber(Joined(owner, u"Val[%d]"), k), 0)});
  }
  return list;
}

void WriteList(ZelRegistry& registry, const Text& owner, const PropertyList& list) {
  registry.WriteLong(Joined(owner, u"Count"), static_cast<std::int32_t>(list.size()));
  int k = 0;
  for (const PropertyAddress& address : list) {
    registry.WriteLong(WithNumber(Joined(owner, u"Cat[%d]"), k), address.category);
    registry.WriteLong(WithNumber(Joined(owner, u"Val[%d]"), k), address.property);
    ++k;
  }
}

PropertyList BuiltInList() { return {BuiltInSummary().begin(), BuiltInSummary().end()}; }

}  // namespace

void ReadElementSettings(ZelRegistry& registry, int longestList, ElementSettings& settings,
                         std::optional<PropertyList>& last) {
  registry.Open();
  settings.doSummary = registry.ReadBool(kDoSummary, true);
  settings.initialView = registry.ReadLong(kInitialView, kStartWithSummary);
  settings.showMainProperties = registry.ReadBool(kShowMainProperties, true);
  settings.showFamilyAndBlock = registry.ReadBool(kShowFamilyAndBlock, true);
  int n = 0;
  for (ElementPreset& preset : settings.presets) {
    const Text owner = WithNumber(kPreset, n++);
    preset.showMain = registry.ReadBool(Joined(owner, u"ShowMain"), true);
    preset.showFamily = registry.ReadBool(Joined(owner, u"ShowFamily"), true);
    preset.list = ReadList(registry, owner, longestList).value_or(BuiltInList());
  }
  last = ReadList(registry, Text(kLast), longestList);
  registry.Close();
}

void WriteElementSettings(ZelRegistry& registry, const ElementSettings& settings, bool withLists,
                          const std::optional<PropertyList>& last) {
  registry.Open();
  registry.WriteBool(kDoSummary, settings.doSummary);
  registry.WriteLong(kInitialView, settings.initialView);
  registry.WriteBool(kShowMainProperties, settings.showMainProperties);
  registry.WriteBool(kShowFamilyAndBlock, settings.showFamilyAndBlock);
  int n = 0;
  for (const ElementPreset& preset : settings.presets) {
    const Text owner = WithNumber(kPreset, n++);
    registry.WriteBool(Joined(owner, u"ShowMain"), preset.showMain);
    registry.WriteBool(Joined(owner, u"ShowFamily"), preset.showFamily);
    if (withLists) WriteList(registry, owner, preset.list);
  }
  if (withLists && last) WriteList(registry, Text(kLast), *last);
  registry.Close();
}

}  // namespace orvane
