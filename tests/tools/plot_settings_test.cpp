#include "tools/plot_settings.h"

#include <gtest/gtest.h>

#include <set>

#include "data/memory_settings.h"
#include "data/zel_registry.h"
#include "tests/tools/plot_database.h"

namespace orvane::testing {
namespace {

constexpr TextView kKey = u"Software\\Zel Software\\Orvane";

class PlotSettingsTest : public ::testing::Test {
 protected:
  PlotSettingsTest() {
    registry_.SetKey(kKey);
    LoadPlotDatabase(elements_);
  }
  PlotSettings Read() { return ReadPlotSettings(registry_, elements_); }
  template <class Write>
  void Store(const Write& write) {
    registry_.Open();
    write(registry_);
    registry_.Close();
  }
  const SettingValue* Find(const Text& name) {
    store_.OpenKey(kKey);
    return store_.Find(name);
  }

  MemorySettings store_;
  ZelRegistry registry_{store_};
  ElementsDatabase elements_;
};

std::set<int> Labelled(const PlotSetup& setup) {
  std::set<int> numbers;
  for (std::size_t i = 0; i < setup.labels.size(); ++i) {
    if (setup.labels[i]) numbers.insert(static_cast<int>(i) + 1);
  }
  return numbers;
}

void ExpectUsual(const PlotSetup& setup) {
  EXPECT_TRUE(setup.showPoints);
  EXPECT_TRUE(setup.showAxes);
  EXPECT_EQ(setup.x, (PropertyAddress{1, 0}));
  EXPECT_EQ(setup.y, (PropertyAddress{1, 1}));
  EXPECT_EQ(setup.xFilter, u"3-48");
  EXPECT_EQ(setup.yFilter, u"");
  EXPECT_EQ(setup.view, PlotView());
}

TEST_F(PlotSettingsTest, AFirstStartHasTheUsualSetup) {
  const PlotSettings settings = Read();
  EXPECT_FALSE(settings.hasCurrent);
  ExpectUsual(settings.current);
  EXPECT_TRUE(settings.current.showLines);
  EXPECT_EQ(Labelled(settings.current), std::set<int>());
}

TEST_F(PlotSettingsTest, AFirstStartHasThreePresetsTheThirdWithoutLines) {
  const PlotSettings settings = Read();
  ASSERT_EQ(settings.presets.size(), 3u);
  for (std::size_t i = 0; i < 3; ++i) {
    SCOPED_TRACE(i);
    ExpectUsual(settings.presets[i]);
    EXPECT_EQ(settings.presets[i].showLines, i != 2);
    EXPECT_EQ(Labelled(settings.presets[i]), (std::set<int>{3, 48}));
  }
}

PlotSetup Unusual(int salt) {
  PlotSetup setup;
  setup.showLines = salt % 2 == 0;
  setup.showPoints = false;
  setup.showAxes = salt % 2 != 0;
  setup.x = {3, 1};
  setup.y = {1, salt % 2};
  setup.xFilter = u" 1 - 2 " + DecimalText(salt);
  setup.yFilter = u"not a filter";
  setup.view = {{salt + 0.1, 2.5}, {-3.75, 1e-9}};
  setup.labels[static_cast<std::size_t>(salt)] = true;
  setup.labels[111] = true;
  return setup;
}

void ExpectSame(const PlotSetup& actual, const PlotSetup& expected) {
  EXPECT_EQ(actual.showLines, expected.showLines);
  EXPECT_EQ(actual.showPoints, expected.showPoints);
  EXPECT_EQ(actual.showAxes, expected.showAxes);
  EXPECT_EQ(actual.x, expected.x);
  EXPECT_EQ(actual.y, expected.y);
  EXPECT_EQ(actual.xFilter, expected.xFilter);
  EXPECT_EQ(actual.yFilter, expected.yFilter);
  EXPECT_EQ(actual.view, expected.view);
  EXPECT_EQ(actual.labels, expected.labels);
}

TEST_F(PlotSettingsTest, EverythingComesBack) {
  WritePlotSettings(registry_, Unusual(4), {Unusual(5), Unusual(6), Unusual(7)});
  const PlotSettings settings = Read();
  EXPECT_TRUE(settings.hasCurrent);
  ExpectSame(settings.current, Unusual(4));
  for (std::size_t i = 0; i < 3; ++i) ExpectSame(settings.presets[i], Unusual(static_cast<int>(i) + 5));
}

TEST_F(PlotSettingsTest, NamesAndKindsAreThoseOfTheStore) {
  WritePlotSettings(registry_, Unusual(4), {Unusual(5), Unusual(6), Unusual(7)});
  const std::pair<TextView, SettingKind> fields[] = {
      {u"ShowLines", SettingKind::kLong}, {u"ShowPoints", SettingKind::kLong},
      {u"ShowAxes", SettingKind::kLong},  {u"xCat", SettingKind::kLong},
      {u"xVal", SettingKind::kLong},      {u"yCat", SettingKind::kLong},
      {u"yVal", SettingKind::kLong},      {u"xcMin", SettingKind::kBinary},
      {u"xcMax", SettingKind::kBinary},   {u"ycMin", SettingKind::kBinary},
      {u"ycMax", SettingKind::kBinary},   {u"xFilter", SettingKind::kString},
      {u"yFilter", SettingKind::kString}, {u"ShowLabel[]", SettingKind::kBinary},
  };
  for (const TextView prefix :
       {u"wnd_plot.Cur.", u"wnd_plot.Preset[0].", u"wnd_plot.Preset[1].", u"wnd_plot.Preset[2]."}) {
    for (const auto& [name, kind] : fields) {
      SCOPED_TRACE(ToUtf8(Text(prefix).append(name)));
      const SettingValue* value = Find(Text(prefix).append(name));
      ASSERT_NE(value, nullptr);
      EXPECT_EQ(value->kind, kind);
    }
  }
  const SettingValue* labels = Find(u"wnd_plot.Cur.ShowLabel[]");
  ASSERT_EQ(labels->bytes.size(), 112u);
  EXPECT_EQ(labels->bytes[4], 1);
  EXPECT_EQ(labels->bytes[5], 0);
  EXPECT_EQ(labels->bytes[111], 1);
  EXPECT_EQ(Find(u"wnd_plot.Cur.xcMax")->bytes.size(), 8u);
}

TEST_F(PlotSettingsTest, TheFirstPresetSpeaksForAllThree) {
  Store([](ZelRegistry& r) { r.WriteBool(u"wnd_plot.Preset[1].ShowLines", false); });
  EXPECT_TRUE(Read().presets[1].showLines);
  Store([](ZelRegistry& r) { r.WriteBool(u"wnd_plot.Preset[0].ShowLines", false); });
  EXPECT_FALSE(Read().presets[0].showLines);
  EXPECT_FALSE(Read().presets[1].showLines);
  EXPECT_FALSE(Read().presets[2].showLines);  // its default
}

TEST_F(PlotSettingsTest, TheCurrentSetupCountsOnlyWithItsLines) {
  Store([](ZelRegistry& r) { r.WriteBool(u"wnd_plot.Cur.ShowPoints", false); });
  EXPECT_FALSE(Read().hasCurrent);
  EXPECT_TRUE(Read().current.showPoints);
  Store([](ZelRegistry& r) { r.WriteBool(u"wnd_plot.Cur.ShowLines", true); });
  EXPECT_TRUE(Read().hasCurrent);
  EXPECT_FALSE(Read().current.showPoints);
}

TEST_F(PlotSettingsTest, WhatIsMissingTakesItsDefault) {
  Store([](ZelRegistry& r) {
    r.WriteBool(u"wnd_plot.Cur.ShowLines", false);
    r.WriteBool(u"wnd_plot.Preset[0].ShowLines", true);
  });
  const PlotSettings settings = Read();
  ExpectUsual(settings.current);
  EXPECT_EQ(Labelled(settings.current), std::set<int>());
  ExpectUsual(settings.presets[1]);
  EXPECT_EQ(Labelled(settings.presets[1]), (std::set<int>{3, 48}));
}

TEST_F(PlotSettingsTest, MissingBytesOfLabelsAreOffAndFurtherOnesDoNotCount) {
  Store([](ZelRegistry& r) {
    r.WriteBool(u"wnd_plot.Cur.ShowLines", true);
    r.WriteBool(u"wnd_plot.Preset[0].ShowLines", true);
    r.WriteBinary(u"wnd_plot.Cur.ShowLabel[]", std::vector<std::uint8_t>{0, 1, 255});
    r.WriteBinary(u"wnd_plot.Preset[0].ShowLabel[]", std::vector<std::uint8_t>(200, 1));
    r.WriteBinary(u"wnd_plot.Preset[1].ShowLabel[]", {});
  });
  const PlotSettings settings = Read();
  EXPECT_EQ(Labelled(settings.current), (std::set<int>{2, 3}));
  EXPECT_EQ(Labelled(settings.presets[0]).size(), 112u);
  EXPECT_EQ(Labelled(settings.presets[1]), std::set<int>());
}

TEST_F(PlotSettingsTest, AddressesOutsideTheDatabaseTakeTheDefaults) {
  const std::pair<int, int> outside[] = {{9, 0}, {1, 3}, {-1, 0}, {0, -1}, {2147483647, 2147483647}};
  for (const auto& pair : outside) {
    const int category = pair.first;
    const int property = pair.second;
    Store([&](ZelRegistry& r) {
      r.WriteBool(u"wnd_plot.Cur.ShowLines", true);
      r.WriteLong(u"wnd_plot.Cur.xCat", category);
      r.WriteLong(u"wnd_plot.Cur.xVal", property);
      r.WriteLong(u"wnd_plot.Cur.yCat", category);
      r.WriteLong(u"wnd_plot.Cur.yVal", property);
    });
    EXPECT_EQ(Read().current.x, (PropertyAddress{1, 0})) << category;
    EXPECT_EQ(Read().current.y, (PropertyAddress{1, 1})) << category;
  }
}

// One that is not offered in the axis setup may still be stored.
TEST_F(PlotSettingsTest, AnAddressOfAnyPropertyIsKept) {
  Store([&](ZelRegistry& r) {
    r.WriteBool(u"wnd_plot.Cur.ShowLines", true);
    r.WriteLong(u"wnd_plot.Cur.xCat", 2);
    r.WriteLong(u"wnd_plot.Cur.xVal", 0);
  });
  EXPECT_EQ(Read().current.x, (PropertyAddress{2, 0}));
}

TEST_F(PlotSettingsTest, WithoutTheUsualPropertiesTheFirstPlottableOneIsShown) {
  DatWriter file;
  file.PeriodicHeader(2).Category(u"A", 1).Property(1, u"Name", false, u"", 0);
  file.Category(u"B", 2).Property(2, u"No", false, u"", 0).Property(3, u"Yes", true, u"", 0);
  const TempFolder folder;
  file.Save(folder.File("periodic.dat"));
  CollectingReporter reporter;
  elements_.Load(folder.File("periodic.dat"), reporter);
  EXPECT_EQ(Read().current.x, (PropertyAddress{1, 1}));
  EXPECT_EQ(Read().current.y, (PropertyAddress{1, 1}));
  elements_.Free();
  EXPECT_EQ(Read().current.x, (PropertyAddress{0, 0}));
  EXPECT_EQ(Read().presets[2].y, (PropertyAddress{0, 0}));
}

TEST_F(PlotSettingsTest, AFilterIsCutToTheLongest) {
  Store([](ZelRegistry& r) {
    r.WriteBool(u"wnd_plot.Cur.ShowLines", true);
    r.WriteString(u"wnd_plot.Cur.xFilter", Text(255, u'1'));
    r.WriteString(u"wnd_plot.Cur.yFilter", Text(300, u'1'));
  });
  EXPECT_EQ(Read().current.xFilter, Text(254, u'1'));
  EXPECT_EQ(Read().current.yFilter, u"");  // too long to be read at all
}

}  // namespace
}  // namespace orvane::testing
