#include "tools/plot_settings.h"

#include <algorithm>
#include <utility>

#include "base/text_field.h"
#include "data/zel_registry.h"

namespace orvane {

namespace {

constexpr TextView kCurrent = u"wnd_plot.Cur.";
constexpr TextView kPreset = u"wnd_plot.Preset[%d].";

struct Flag {
  TextView name;
  bool PlotLook::*field;
};
constexpr Flag kFlags[] = {
    {u"ShowLines", &PlotLook::showLines},
    {u"ShowPoints", &PlotLook::showPoints},
    {u"ShowAxes", &PlotLook::showAxes},
};
struct Address {
  TextView category;
  TextView property;
  PropertyAddress PlotLook::*field;
};
constexpr Address kAddresses[] = {
    {u"xCat", u"xVal", &PlotLook::x},
    {u"yCat", u"yVal", &PlotLook::y},
};
struct Range {
  TextView low;
  TextView high;
  PlotRange PlotView::*field;
};
constexpr Range kRanges[] = {
    {u"xcMin", u"xcMax", &PlotView::x},
    {u"ycMin", u"ycMax", &PlotView::y},
};
struct Filter {
  TextView name;
  Text PlotSetup::*field;
};
constexpr Filter kFilters[] = {
    {u"xFilter", &PlotSetup::xFilter},
    {u"yFilter", &PlotSetup::yFilter},
};
// All labels are one value; the brackets are part of its name.
constexpr TextView kLabels = u"ShowLabel[]";

// The setup whose presence says that this one was stored.
constexpr TextView kWitness = u"ShowLines";

// The ids of the properties that a first plot shows: the atomic number and the first ionization energy.
constexpr std::int32_t kDefaultX = 15;
constexpr std::int32_t kDefaultY = 20;
// From lithium to cadmium, whose labels the presets show.
constexpr TextView kDefaultFilter = u"3-48";
constexpr std::size_t kFirstLabelled = 2;
constexpr std::size_t kLastLabelled = 47;
constexpr std::size_t kPresetWithoutLines = 2;

Text Name(TextView prefix, TextView suffix) { return Text(prefix).append(suffix); }
Text PresetPrefix(std::size_t preset) { return WithNumber(kPreset, static_cast<int>(preset)); }

PropertyAddress DefaultAddress(const ElementsDatabase& elements, std::int32_t id) {
  if (const auto address = AddressOfId(elements, id)) return *address;
  return FirstPlottable(elements).value_or(PropertyAddress());
}

PlotSetup DefaultSetup(const ElementsDatabase& elements) {
  PlotSetup setup;
  setup.x = DefaultAddress(elements, kDefaultX);
  setup.y = DefaultAddress(elements, kDefaultY);
  setup.xFilter = kDefaultFilter;
  return setup;
}

PlotSetup DefaultPreset(const ElementsDatabase& elements, std::size_t preset) {
  PlotSetup setup = DefaultSetup(elements);
  setup.showLines = preset != kPresetWithoutLines;
  setup.labels[kFirstLabelled] = true;
  setup.labels[kLastLabelled] = true;
  return setup;
}

void ReadLabels(const ZelRegistry& registry, const Text& name, PlotLabels& labels) {
  std::array<std::uint8_t, kPlotElements> bytes{};
  if (registry.ReadBinary(name, bytes) < 0) return;
  std::transform(bytes.begin(), bytes.end(), labels.begin(), [](std::uint8_t byte) { return byte != 0; });
}

// `setup` holds the defaults.
void ReadSetup(const ZelRegistry& registry, TextView prefix, const ElementsDatabase& elements,
               PlotSetup& setup) {
  for (const Flag& f : kFlags) {
    setup.*f.field = registry.ReadBool(Name(prefix, f.name), setup.*f.field);
  }
  for (const Address& a : kAddresses) {
    PropertyAddress& standard = setup.*a.field;
    const PropertyAddress stored{registry.ReadLong(Name(prefix, a.category), standard.category),
                                 registry.ReadLong(Name(prefix, a.property), standard.property)};
    if (FindProperty(elements, stored) != nullptr) standard = stored;
  }
  for (const Range& r : kRanges) {
    PlotRange& range = setup.view.*r.field;
    range = {registry.ReadDouble(Name(prefix, r.low), 0), registry.ReadDouble(Name(prefix, r.high), 0)};
  }
  for (const Filter& f : kFilters) {
    Text text;
    registry.ReadString(Name(prefix, f.name), text, setup.*f.field);
    setup.*f.field = CutToField(text, kLongestFilter);
  }
  ReadLabels(registry, Name(prefix, kLabels), setup.labels);
}

void WriteSetup(ZelRegistry& registry, TextView prefix, const PlotSetup& setup) {
  for (const Flag& f : kFlags) registry.WriteBool(Name(prefix, f.name), setup.*f.field);
  for (const Address& a : kAddresses) {
    registry.WriteLong(Name(prefix, a.category), (setup.*a.field).category);
    registry.WriteLong(Name(prefix, a.property), (setup.*a.field).property);
  }
  for (const Range& r : kRanges) {
    registry.WriteDouble(Name(prefix, r.low), (setup.view.*r.field).low);
    registry.WriteDouble(Name(prefix, r.high), (setup.view.*r.field).high);
  }
  for (const Filter& f : kFilters) registry.WriteString(Name(prefix, f.name), setup.*f.field);
  std::array<std::uint8_t, kPlotElements> bytes{};
  std::transform(setup.labels.begin(), setup.labels.end(), bytes.begin(),
                 [](bool on) { return static_cast<std::uint8_t>(on ? 1 : 0); });
  registry.WriteBinary(Name(prefix, kLabels), bytes);
}

}  // namespace

PlotSettings ReadPlotSettings(ZelRegistry& registry, const ElementsDatabase& elements) {
  PlotSettings settings;
  registry.Open();
  // The first preset speaks for all three.
  const bool hasPresets = registry.Exists(Name(PresetPrefix(0), kWitness));
  for (std::size_t i = 0; i < settings.presets.size(); ++i) {
    settings.presets[i] = DefaultPreset(elements, i);
    if (hasPresets) ReadSetup(registry, PresetPrefix(i), elements, settings.presets[i]);
  }
  settings.current = DefaultSetup(elements);
  settings.hasCurrent = registry.Exists(Name(kCurrent, kWitness));
  if (settings.hasCurrent) ReadSetup(registry, kCurrent, elements, settings.current);
  registry.Close();
  return settings;
}

void WritePlotSettings(ZelRegistry& registry, const PlotSetup& current, const PlotPresets& presets) {
  registry.Open();
  WriteSetup(registry, kCurrent, current);
  for (std::size_t i = 0; i < presets.size(); ++i) WriteSetup(registry, PresetPrefix(i), presets[i]);
  registry.Close();
}

}  // namespace orvane
