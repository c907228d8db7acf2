#include "tools/plot_state.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>

#include "tests/data/collecting_reporter.h"
#include "tests/tools/plot_database.h"

namespace orvane::testing {
namespace {

constexpr PropertyAddress kNumber{1, 0};
constexpr PropertyAddress kEnergy{1, 1};
constexpr PropertyAddress kAcross{3, 0};
constexpr PropertyAddress kDown{3, 1};
constexpr PlotView kSomeView{{5, 20}, {-50, -20}};

class PlotStateTest : public ::testing::Test {
 protected:
  PlotStateTest() {
    LoadPlotDatabase(elements_);
    settings_.current.x = kNumber;
    settings_.current.y = kEnergy;
    settings_.current.xFilter = u"3-48";
    settings_.presets.fill(settings_.current);
  }
  PlotState& Make() {
    state_.emplace(elements_, reporter_, settings_);
    return *state_;
  }
  int Valid() const {
    int count = 0;
    for (int i = 0; i < kPlotElements; ++i) count += state_->GetPlot().At(i).valid ? 1 : 0;
    return count;
  }

  ElementsDatabase elements_;
  CollectingReporter reporter_;
  PlotSettings settings_;
  std::optional<PlotState> state_;
};

TEST_F(PlotStateTest, BeginsWithTheFilteredPointsInTheAutomaticRange) {
  PlotState& state = Make();
  EXPECT_EQ(Valid(), 45);  // 3 to 48 but for 10, which has no energy
  EXPECT_FALSE(state.GetPlot().IsJoined(8));
  EXPECT_FALSE(state.GetPlot().IsJoined(9));
  EXPECT_EQ(state.GetPlot().View(), state.GetPlot().Automatic());
  EXPECT_EQ(state.GetPlot().X().Data(), (PlotRange{3, 48}));
  EXPECT_EQ(state.GetPlot().Y().Data(), (PlotRange{-106, -16}));
  EXPECT_EQ(state.CurrentPreset(), -1);
}

TEST_F(PlotStateTest, AStoredViewIsShownAgain) {
  settings_.hasCurrent = true;
  settings_.current.view = kSomeView;
  EXPECT_EQ(Make().GetPlot().View(), kSomeView);
}

// A stored view of zeros is kept as it is, and all points are in view.
TEST_F(PlotStateTest, AStoredViewOfZerosShowsAllPoints) {
  settings_.hasCurrent = true;
  PlotState& state = Make();
  EXPECT_EQ(state.Setup().view, PlotView());
  EXPECT_EQ(state.GetPlot().Drawn(), state.GetPlot().Automatic());
}

TEST_F(PlotStateTest, StoredFiltersThatCannotBeReadAreReportedXFirstAndKept) {
  settings_.current.xFilter = u"5";
  settings_.current.yFilter = u"x";
  PlotState& state = Make();
  ASSERT_EQ(reporter_.texts.size(), 2u);
  EXPECT_EQ(reporter_.texts[0], "The filter string ended unexpectedly. See help for more info.");
  EXPECT_EQ(reporter_.texts[1],
            "Filter expression must begin with a digit or be empty. See help for more info.");
  EXPECT_EQ(Valid(), 111);
  EXPECT_EQ(state.Setup().xFilter, u"5");
  EXPECT_EQ(state.Setup().yFilter, u"x");
}

TEST_F(PlotStateTest, AnAxisTakesAFilterAndAProperty) {
  PlotState& state = Make();
  EXPECT_TRUE(state.SetAxisFilter(true, u""));
  EXPECT_TRUE(state.SetAxisFilter(false, u" 30 - 40 "));
  state.SetAxisProperty(true, kEnergy);
  EXPECT_EQ(state.AxisProperty(true), kEnergy);
  EXPECT_EQ(Valid(), 5);  // 2n + 10 of 30..40 but for n = 10
  EXPECT_EQ(state.FilterText(false), u" 30 - 40 ");
  EXPECT_EQ(state.GetPlot().View(), state.GetPlot().Automatic());
}

TEST_F(PlotStateTest, AFilterThatCannotBeReadChangesNothing) {
  PlotState& state = Make();
  EXPECT_FALSE(state.SetAxisFilter(true, u"1-2x"));
  ASSERT_EQ(reporter_.texts.size(), 1u);
  EXPECT_EQ(reporter_.texts[0], "Unexpected character in filter string (2). See help for more info.");
  EXPECT_EQ(state.FilterText(true), u"3-48");
  EXPECT_EQ(Valid(), 45);
}

TEST_F(PlotStateTest, APresetKeepsTheWholeSetup) {
  PlotState& state = Make();
  state.SetAxisFilter(true, u"1-5");
  state.SetAxisProperty(true, kNumber);
  state.Toggle(&PlotLook::showAxes);
  state.ToggleLabel(4);
  state.ChangeView([](Plot& plot) { return plot.ZoomIn(); });
  const PlotSetup saved = state.Setup();
  state.SaveAsPreset(1);
  EXPECT_EQ(state.CurrentPreset(), -1);
  state.LoadPreset(0);
  EXPECT_EQ(state.CurrentPreset(), 0);
  EXPECT_TRUE(state.Look().showAxes);
  EXPECT_FALSE(state.Look().labels[4]);
  state.LoadPreset(1);
  EXPECT_EQ(state.CurrentPreset(), 1);
  EXPECT_FALSE(state.Look().showAxes);
  EXPECT_TRUE(state.Look().labels[4]);
  EXPECT_EQ(state.FilterText(true), u"1-5");
  EXPECT_EQ(state.GetPlot().View(), saved.view);
}

// The bounds that count are the automatic ones, not the preset's.
TEST_F(PlotStateTest, APresetsViewIsUsedWhenNoAutomaticBoundIsZero) {
  settings_.presets[0].view = kSomeView;
  PlotState& state = Make();
  state.LoadPreset(0);
  EXPECT_EQ(state.GetPlot().View(), kSomeView);
  state.LoadPreset(1);
  EXPECT_EQ(state.GetPlot().View(), PlotView());
  EXPECT_EQ(state.GetPlot().Drawn(), state.GetPlot().Automatic());
}

// Two elements with x and y values of their own, by the usual ids.
void LoadTwoElements(ElementsDatabase& elements, TextView x1, TextView x2, TextView y1, TextView y2) {
  DatWriter file;
  file.PeriodicHeader(1).Category(u"Usual", 2);
  file.Property(15, u"x", true, u"", 2).Value(1, Text(x1)).Value(2, Text(x2));
  file.Property(20, u"y", true, u"", 2).Value(1, Text(y1)).Value(2, Text(y2));
  const TempFolder folder;
  file.Save(folder.File("periodic.dat"));
  CollectingReporter reporter;
  elements.Load(folder.File("periodic.dat"), reporter);
}

// One bound of four is 0: the data end a margin away from it, 1 of 1..21 or 8 of 8..108.
TEST_F(PlotStateTest, APresetsViewIsNotUsedWhenAnAutomaticBoundIsZero) {
  struct Case {
    TextView x1, x2, y1, y2;
    PlotView automatic;
  };
  const Case cases[] = {
      {u"1", u"21", u"50", u"150", {{0, 22}, {-158, -42}}},
      {u"1-", u"21-", u"50", u"150", {{-22, 0}, {-158, -42}}},
      {u"50", u"150", u"8-", u"108-", {{45, 155}, {0, 116}}},
      {u"50", u"150", u"8", u"108", {{45, 155}, {-116, 0}}},
  };
  for (const Case& c : cases) {
    ElementsDatabase elements;
    LoadTwoElements(elements, c.x1, c.x2, c.y1, c.y2);
    PlotSettings settings;
    settings.presets[0].y = {0, 1};
    settings.presets[0].view = kSomeView;
    PlotState state(elements, reporter_, settings);
    state.LoadPreset(0);
    EXPECT_EQ(state.GetPlot().Automatic(), c.automatic);
    EXPECT_EQ(state.GetPlot().View(), c.automatic);
  }
}

TEST_F(PlotStateTest, APresetWithoutPointsShowsNothing) {
  settings_.presets[0].view = kSomeView;
  settings_.presets[0].xFilter = u"48-3";
  PlotState& state = Make();
  state.LoadPreset(0);
  EXPECT_TRUE(state.GetPlot().IsEmpty());
  EXPECT_EQ(state.GetPlot().View(), PlotView());
}

TEST_F(PlotStateTest, APresetsFilterThatCannotBeReadIsTakenOverAndTheOldRangesStay) {
  settings_.presets[2].xFilter = u"7";
  settings_.presets[2].yFilter = u"8;";
  PlotState& state = Make();
  state.LoadPreset(2);
  EXPECT_EQ(reporter_.texts.size(), 2u);
  EXPECT_EQ(state.FilterText(true), u"7");
  EXPECT_EQ(state.FilterText(false), u"8;");
  EXPECT_EQ(Valid(), 45);
  EXPECT_EQ(state.CurrentPreset(), 2);
}

TEST_F(PlotStateTest, EveryChangeForgetsTheCurrentPreset) {
  PlotState& state = Make();
  const std::function<void()> changes[] = {
      [&] { state.Toggle(&PlotLook::showLines); },
      [&] { state.Toggle(&PlotLook::showPoints); },
      [&] { state.Toggle(&PlotLook::showAxes); },
      [&] { state.ToggleLabel(7); },
      [&] { state.ToggleAllLabels(); },
      [&] { state.ChangeView([](Plot& plot) { return plot.Pan(1, 0); }); },
      [&] { state.Fit(); },
      [&] { state.SetAxisProperty(false, kDown); },
  };
  for (const auto& change : changes) {
    state.LoadPreset(1);
    change();
    EXPECT_EQ(state.CurrentPreset(), -1);
  }
  state.LoadPreset(1);
  state.ChangeView([](Plot& plot) { return plot.Pan(0, 0); });
  state.SaveAsPreset(2);
  state.SetAxisFilter(true, u"x");
  EXPECT_EQ(state.CurrentPreset(), 1);
}

TEST_F(PlotStateTest, WithoutItsPropertyAnAxisHasNoPoints) {
  PlotState& state = Make();
  state.SetAxisProperty(true, {99, 99});
  EXPECT_TRUE(state.GetPlot().IsEmpty());
  state.SetAxisProperty(true, kAcross);
  EXPECT_FALSE(state.GetPlot().IsEmpty());
}

}  // namespace
}  // namespace orvane::testing
