// The plot's frame: bar, menus, commands, settings.
#include <gmock/gmock.h>

#include "tests/tools/wnd_plot_fixture.h"

namespace orvane::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(WndPlotTest, IsAToolOfTheWholeArea) {
  MakeAndShow();
  EXPECT_EQ(GetDevice().Title(tool_->Handle()), u"Quick plot");
  EXPECT_EQ(tool_->ClassName(), "wnd_plot");
  EXPECT_EQ(GetDevice().ScreenRect(tool_->Handle()), (Rect{0, 26, 240, 294}));
  EXPECT_EQ(shell_.helpTopic, 2300);
  EXPECT_EQ(shell_.currentTool, tool_->Handle());
  EXPECT_THAT(shell_.titles, IsEmpty());
}

TEST_F(WndPlotTest, BringsItsButtons) {
  MakeAndShow();
  const int on = TBSTATE_ENABLED;
  EXPECT_THAT(shell_.buttons, ElementsAre(AddedButton{8120, 7, -1, on | TBSTATE_CHECKED, ButtonStyle::kPush},
                                          AddedButton{8121, 8, -1, on, ButtonStyle::kPush},
                                          AddedButton{8122, 9, -1, on, ButtonStyle::kPush},
                                          AddedButton{0, 0, -1, on, ButtonStyle::kSeparator},
                                          AddedButton{8123, 10, -1, on, ButtonStyle::kDropDown},
                                          AddedButton{8124, 11, -1, on, ButtonStyle::kDropDown}));
}

TEST_F(WndPlotTest, TheModeShowsOnItsButtons) {
  MakeAndShow();
  const auto pressed = [this] {
    std::vector<int> ids;
    for (const BarButtonPlace& place : GetDevice().Bars().Places()) {
      if (place.button.state & TBSTATE_CHECKED) ids.push_back(place.button.id);
    }
    return ids;
  };
  EXPECT_EQ(tool_->Mode(), wnd_plot::PenMode::kPan);
  EXPECT_THAT(pressed(), ElementsAre(8120));
  Button(8121);
  EXPECT_EQ(tool_->Mode(), wnd_plot::PenMode::kZoom);
  EXPECT_THAT(pressed(), ElementsAre(8121));
  // Also when the tool has been away.
  tool_->Hide();
  shell_.RemoveAddedButtons();
  Show();
  EXPECT_THAT(pressed(), ElementsAre(8121));
  Button(8120);
  EXPECT_EQ(tool_->Mode(), wnd_plot::PenMode::kPan);
  EXPECT_THAT(pressed(), ElementsAre(8120));
}

TEST_F(WndPlotTest, LowersTheInputPanelWhenItComes) {
  Make();
  GetDevice().Panel().Request(true);
  shell_.Settle();
  ASSERT_TRUE(GetDevice().Panel().Visible());
  Show();
  EXPECT_FALSE(GetDevice().Panel().Visible());
}

TEST_F(WndPlotTest, IsTheCurrentToolAgainWhenItGetsTheFocus) {
  MakeAndShow();
  shell_.helpTopic = 2320;
  shell_.currentTool = kNoWindow;
  GetDevice().SetFocus(shell_.MainWindow());
  GetDevice().SetFocus(tool_->Handle());
  shell_.Settle();
  EXPECT_EQ(shell_.currentTool, tool_->Handle());
  EXPECT_EQ(shell_.helpTopic, 2300);
}

TEST_F(WndPlotTest, TheSettingsMenuHasItsMarks) {
  MakeAndShow();
  Button(8123);
  EXPECT_EQ(GetDevice().Popups().Anchor(), (Point{110, 295}));
  EXPECT_THAT(Marks(), ElementsAre("40203+", "40204+", "40208+"));
  GetDevice().Popups().Close();
  for (const int command : {40203, 40204, 40208}) Command(command);
  Button(8123);
  EXPECT_THAT(Marks(), IsEmpty());
}

TEST_F(WndPlotTest, AChoiceFromTheMenuReachesTheTool) {
  MakeAndShow();
  Button(8123);
  ASSERT_TRUE(GetDevice().Popups().ChooseLabel(u"Show lines"));
  shell_.Settle();
  EXPECT_FALSE(State().Look().showLines);
}

TEST_F(WndPlotTest, ThePresetsMenuMarksTheCurrentOne) {
  MakeAndShow();
  Button(8124);
  EXPECT_EQ(GetDevice().Popups().Anchor(), (Point{130, 295}));
  EXPECT_THAT(Marks(), IsEmpty());
  GetDevice().Popups().Close();
  for (const int preset : {40199, 40200, 40201}) {
    Command(preset);
    Button(8124);
    EXPECT_THAT(Marks(), ElementsAre(std::to_string(preset) + "*"));
    GetDevice().Popups().Close();
  }
  Key(VK_LEFT);
  Button(8124);
  EXPECT_THAT(Marks(), IsEmpty());
}

TEST_F(WndPlotTest, SavingAPresetSaysSo) {
  MakeAndShow();
  for (int preset = 0; preset < 3; ++preset) {
    Command(40203);
    Command(40196 + preset);
    ASSERT_TRUE(GetDevice().Boxes().Open());
    EXPECT_EQ(GetDevice().Boxes().Front().text, WithNumber(u"Plot settings saved as preset %d", preset + 1));
    EXPECT_EQ(GetDevice().Boxes().Front().caption, u"Orvane");
    EXPECT_EQ(GetDevice().Boxes().Front().icon, MessageIcon::kInformation);
    GetDevice().Boxes().Dismiss();
    EXPECT_EQ(State().Presets()[static_cast<std::size_t>(preset)].showLines, State().Look().showLines);
  }
}

TEST_F(WndPlotTest, LoadingAPresetShowsIt) {
  MakeAndShow();
  EXPECT_FALSE(Label(2));
  Command(40201);
  EXPECT_TRUE(Label(2));
  EXPECT_TRUE(Label(47));
  EXPECT_FALSE(State().Look().showLines);
  EXPECT_EQ(GetPlot().View(), PlotView());
  EXPECT_EQ(GetPlot().Drawn(), GetPlot().Automatic());
  // Its points are drawn.
  const Point at = GetPlot().PlaceOf(2);
  EXPECT_LT(At(at.x - 1, at.y - 2) & 0xFF, 0x60u);
}

TEST_F(WndPlotTest, FiltersOfAPresetThatCannotBeReadAreToldOnceAnAxis) {
  shell_.Settings().Open();
  shell_.Settings().WriteBool(u"wnd_plot.Preset[0].ShowLines", true);
  shell_.Settings().WriteString(u"wnd_plot.Preset[0].xFilter", u"1-2x");
  shell_.Settings().WriteString(u"wnd_plot.Preset[0].yFilter", u"5");
  shell_.Settings().Close();
  MakeAndShow();
  EXPECT_FALSE(GetDevice().Boxes().Open());
  Command(40199);
  ASSERT_TRUE(GetDevice().Boxes().Open());
  EXPECT_EQ(GetDevice().Boxes().Front().text,
            u"Unexpected character in filter string (2). See help for more info.");
  EXPECT_EQ(GetDevice().Boxes().Front().caption, u"Orvane");
  EXPECT_EQ(GetDevice().Boxes().Front().icon, MessageIcon::kExclamation);
  EXPECT_EQ(GetDevice().Boxes().Waiting(), 1);
  GetDevice().Boxes().Dismiss();
  EXPECT_EQ(GetDevice().Boxes().Front().text,
            u"The filter string ended unexpectedly. See help for more info.");
  EXPECT_EQ(State().FilterText(true), u"1-2x");
  EXPECT_FALSE(GetPlot().IsEmpty());
}

TEST_F(WndPlotTest, StoredFiltersThatCannotBeReadAreToldAtTheStart) {
  shell_.Settings().Open();
  shell_.Settings().WriteBool(u"wnd_plot.Cur.ShowLines", true);
  shell_.Settings().WriteString(u"wnd_plot.Cur.yFilter", u"1..2-3");
  shell_.Settings().Close();
  Make();
  ASSERT_TRUE(GetDevice().Boxes().Open());
  EXPECT_EQ(GetDevice().Boxes().Front().text,
            u"One of the numbers in the filter string has two decimal points in it.");
}

TEST_F(WndPlotTest, TogglesAllLabelsOfWhatIsDrawn) {
  MakeAndShow();
  Command(40205);
  EXPECT_FALSE(Label(1));
  EXPECT_TRUE(Label(2));
  EXPECT_FALSE(Label(9));  // it has no energy
  EXPECT_TRUE(Label(47));
  EXPECT_FALSE(Label(48));
  Command(40205);
  for (int i = 0; i < kPlotElements; ++i) EXPECT_FALSE(Label(i));
}

TEST_F(WndPlotTest, AsksForAnAxisWithWhatIsInForce) {
  MakeAndShow();
  Command(40206);
  EXPECT_THAT(navigator_.calls, ElementsAre("axis x"));
  EXPECT_TRUE(navigator_.Request().isXAxis);
  EXPECT_EQ(navigator_.Request().filter, u"3-48");
  EXPECT_EQ(navigator_.Request().property, (PropertyAddress{1, 0}));
  Command(40207);
  EXPECT_THAT(navigator_.calls, ElementsAre("axis x", "axis y"));
  EXPECT_FALSE(navigator_.Request().isXAxis);
  EXPECT_EQ(navigator_.Request().filter, u"");
  EXPECT_EQ(navigator_.Request().property, (PropertyAddress{1, 1}));
}

TEST_F(WndPlotTest, TakesWhatTheAxisSetupAccepts) {
  MakeAndShow();
  Command(40199);
  Command(40206);
  EXPECT_TRUE(navigator_.Request().accept(u"20-40", PropertyAddress{3, 0}));
  EXPECT_EQ(State().Look().x, (PropertyAddress{3, 0}));
  EXPECT_EQ(State().Look().y, (PropertyAddress{1, 1}));
  EXPECT_EQ(State().FilterText(true), u"20-40");
  EXPECT_EQ(State().CurrentPreset(), -1);
  EXPECT_TRUE(GetPlot().At(0).valid);
  EXPECT_FALSE(GetPlot().At(1).valid);
}

TEST_F(WndPlotTest, KeepsAnAxisPropertyWhenNoneIsChosen) {
  MakeAndShow();
  Command(40207);
  EXPECT_TRUE(navigator_.Request().accept(u"16-20", std::nullopt));
  EXPECT_EQ(State().Look().y, (PropertyAddress{1, 1}));
  EXPECT_EQ(GetPlot().Y().Data(), (PlotRange{-20, -16}));
}

TEST_F(WndPlotTest, RefusesAFilterThatCannotBeRead) {
  MakeAndShow();
  Command(40199);
  Command(40206);
  EXPECT_FALSE(navigator_.Request().accept(u"1-;", PropertyAddress{3, 0}));
  ASSERT_TRUE(GetDevice().Boxes().Open());
  EXPECT_EQ(GetDevice().Boxes().Front().text,
            u"Unexpected character in filter string (4). See help for more info.");
  EXPECT_EQ(GetDevice().Boxes().Waiting(), 0);
  EXPECT_EQ(State().Look().x, (PropertyAddress{1, 0}));
  EXPECT_EQ(State().FilterText(true), u"3-48");
  EXPECT_EQ(State().CurrentPreset(), 0);
}

TEST_F(WndPlotTest, FitShowsTheAutomaticRange) {
  MakeAndShowPlaces();
  Button(8122);
  // Across 40..200: 160 and 8 on either side; down 268 − 140 = 128 to 208 and 6.4 on either side.
  ExpectView(32, 208, -214.4, -121.6);
}

TEST_F(WndPlotTest, EverythingIsWrittenAtTheEnd) {
  MakeAndShow();
  Command(40205);
  Command(40196);
  Key(VK_RIGHT);
  Command(40204);
  const PlotSetup current = State().Setup();
  tool_.reset();
  Make();
  EXPECT_EQ(State().Setup().view, current.view);
  EXPECT_EQ(State().Setup().labels, current.labels);
  EXPECT_FALSE(State().Look().showPoints);
  EXPECT_TRUE(State().Presets()[0].labels[30]);
  EXPECT_FALSE(State().Presets()[1].labels[30]);
}

}  // namespace
}  // namespace orvane::testing
