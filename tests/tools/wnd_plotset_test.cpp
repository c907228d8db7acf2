// The axis setup on a hand-held of its own, with a made-up database (plot_database.h).
#include "tools/wnd_plotset.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "framework/standard_commands.h"
#include "tests/framework/test_shell.h"
#include "tests/tools/plot_database.h"
#include "tests/tools/recording_navigator.h"

namespace orvane::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr PropertyAddress kEnergy{1, 1};
constexpr ListRow kEnergyRow{0, 1};  // in the list: Number, Energy; Across, Down
constexpr PropertyAddress kDown{3, 1};
constexpr ListRow kDownRow{1, 1};

class WndPlotsetTest : public ::testing::Test {
 protected:
  WndPlotsetTest() : shell_({.recordRuns = true, .panelMode = PanelMode::kAlways}) {
    LoadPlotDatabase(elements_);
    tool_ = MakeWindow<wnd_plotset>(shell_, elements_, navigator_);
  }

  void Open(bool isXAxis = true, TextView filter = u"3-48", PropertyAddress property = kEnergy) {
    tool_->Open({isXAxis, Text(filter), property,
                 [this](TextView text, const std::optional<PropertyAddress>& chosen) {
                   accepted_.emplace_back(text);
                   chosen_ = chosen;
                   return accepts_;
                 }});
    shell_.Settle();
  }
  Device& GetDevice() { return shell_.GetDevice(); }
  AxisList& List() { return tool_->List(); }
  PlainBox& Box() { return tool_->Box(); }
  ListRow Selected() { return {List().selectedGroup, List().selectedRow}; }
  void Button(int id) {
    ASSERT_TRUE(GetDevice().Bars().Press(id));
    shell_.Settle();
  }
  void Key(int key, Modifiers modifiers = {}) {
    GetDevice().KeyDown(key, modifiers);
    GetDevice().KeyUp(key, modifiers);
    shell_.Settle();
  }
  void Type(TextView text) {
    for (const Char c : text) GetDevice().Character(c);
    shell_.Settle();
  }
  void TapRow(const ListRow& row) {
    const Rect rect = List().RectOf(row.group, row.row);
    shell_.Tap(List().Handle(), {100, rect.top + 5 - List().scrollY + 1});
    shell_.Settle();
  }
  Rect Place(WindowHandle window) { return GetDevice().ScreenRect(window).Offset(0, -26); }

  TestShell shell_;
  ElementsDatabase elements_;
  RecordingNavigator navigator_;
  std::unique_ptr<wnd_plotset> tool_;
  bool accepts_ = true;
  std::vector<Text> accepted_;
  std::optional<PropertyAddress> chosen_;
};

TEST_F(WndPlotsetTest, HasItsTitleAndItsCaption) {
  Open(true);
  EXPECT_EQ(GetDevice().Title(tool_->Handle()), u"Plot settings");
  EXPECT_EQ(tool_->ClassName(), "wnd_plotset");
  ASSERT_FALSE(shell_.titles.empty());
  EXPECT_EQ(shell_.titles.back(), (DrawnTitle{u"Axis setup - X axis", true, true}));
  tool_->Hide();
  Open(false);
  EXPECT_EQ(shell_.titles.back(), (DrawnTitle{u"Axis setup - Y axis", true, true}));
}

TEST_F(WndPlotsetTest, EverythingStandsInItsPlace) {
  Open();
  EXPECT_EQ(Place(tool_->Handle()), Rect::At(0, 0, 240, 268));
  EXPECT_EQ(Place(Box().Handle()), Rect::At(8, 44, 224, 24));
  EXPECT_EQ(Place(List().Handle()), Rect::At(7, 92, 226, 165));
  ASSERT_EQ(List().columns.size(), 1u);
  EXPECT_EQ(List().columns[0].width, 224);
  EXPECT_EQ(Box().surround, Rgb(230, 242, 255));
  EXPECT_EQ(Box().Font().variants[0].points, 10);
  std::vector<std::string> captions;
  for (const ScreenRun& run : GetDevice().VisibleRuns()) {
    if (run.handle != tool_->Handle() || run.run.font.pixels != 10) continue;
    captions.push_back(ToUtf8(run.run.text) + " " + std::to_string(run.run.rect.left) + "," +
                       std::to_string(run.run.rect.top - 26));
  }
  EXPECT_THAT(captions, ElementsAre("Enter value filter (see help for format): 8,28",
                                    "Select value to be plotted: 8,76"));
}

TEST_F(WndPlotsetTest, ListsWhatCanBePlottedByCategory) {
  Open();
  ASSERT_EQ(List().groups.size(), 2u);
  EXPECT_EQ(List().groups[0].title, u"Usual");
  EXPECT_EQ(List().groups[1].title, u"Places");
  EXPECT_THAT(List().groups[0].rows, ElementsAre(std::vector<Text>{u"Number"}, std::vector<Text>{u"Energy"}));
  EXPECT_THAT(List().groups[1].rows, ElementsAre(std::vector<Text>{u"Across"}, std::vector<Text>{u"Down"}));
  for (const ListGroup& group : List().groups) EXPECT_TRUE(group.hasTitle && group.expanded);
}

TEST_F(WndPlotsetTest, HasABarOfItsOwn) {
  Open();
  std::vector<std::string> buttons;
  for (const BarButtonPlace& place : GetDevice().Bars().Places()) {
    const bool separator = place.button.style == ButtonStyle::kSeparator;
    buttons.push_back(separator ? "|"
                                : std::to_string(place.button.id) + " " + std::to_string(place.button.image));
  }
  EXPECT_THAT(buttons, ElementsAre("8820 0", "8821 1", "|", "8822 2"));
  EXPECT_TRUE(GetDevice().Bars().HasPanelButton());
  tool_->Hide();
  EXPECT_EQ(GetDevice().Bars().Shown(), shell_.MainBar());
}

TEST_F(WndPlotsetTest, OpensWithFilterAndPropertyAndTheListFocused) {
  GetDevice().Panel().Request(true);
  shell_.Settle();
  Open();
  EXPECT_EQ(Box().GetText(), u"3-48");
  EXPECT_EQ(Selected(), kEnergyRow);
  EXPECT_EQ(GetDevice().Focus(), List().Handle());
  EXPECT_FALSE(GetDevice().Panel().Visible());
  EXPECT_EQ(Place(List().Handle()).Height(), 165);
  EXPECT_EQ(shell_.currentTool, tool_->Handle());
  EXPECT_EQ(shell_.helpTopic, 2320);
}

TEST_F(WndPlotsetTest, APropertyThatIsNotOfferedIsNotSelected) {
  Open();
  for (const PropertyAddress address :
       {PropertyAddress{1, 2}, PropertyAddress{0, 0}, PropertyAddress{9, 9}}) {
    Open(true, u"", address);
    EXPECT_EQ(Selected(), ListRow());
  }
}

TEST_F(WndPlotsetTest, OpeningUnfoldsTheGroupAndScrollsToTheRow) {
  Open();
  for (ListGroup& group : List().groups) group.expanded = false;
  List().Relayout();
  tool_->Hide();
  Open(false, u"", kDown);
  EXPECT_FALSE(List().groups[0].expanded);
  EXPECT_TRUE(List().groups[1].expanded);
  EXPECT_EQ(Selected(), kDownRow);
}

TEST_F(WndPlotsetTest, OpeningScrollsBack) {
  Open();
  List().scrollY = 20;
  tool_->Hide();
  Open(true, u"", PropertyAddress{1, 0});
  EXPECT_EQ(List().scrollY, 0);
}

TEST_F(WndPlotsetTest, TheListMakesRoomForTheInputPanel) {
  Open();
  shell_.Tap(Box().Handle(), {100, 10});
  shell_.Settle();
  ASSERT_TRUE(GetDevice().Panel().Visible());
  // As the main window passes it on to the current tool.
  GetDevice().Send(shell_.currentTool, WM_SETTINGCHANGE);
  EXPECT_EQ(Place(List().Handle()), Rect::At(7, 92, 226, 77));
  GetDevice().SetFocus(List().Handle());
  shell_.Settle();
  EXPECT_FALSE(GetDevice().Panel().Visible());
  GetDevice().Send(shell_.currentTool, WM_SETTINGCHANGE);
  EXPECT_EQ(Place(List().Handle()), Rect::At(7, 92, 226, 165));
}

TEST_F(WndPlotsetTest, AcceptingHandsOverFilterAndProperty) {
  Open();
  TapRow(kDownRow);
  shell_.Tap(Box().Handle(), {200, 10});
  Type(u";50-60");
  ASSERT_TRUE(GetDevice().Panel().Visible());
  Button(8820);
  EXPECT_THAT(accepted_, ElementsAre(u"3-48;50-60"));
  EXPECT_EQ(chosen_, kDown);
  EXPECT_FALSE(tool_->IsVisible());
  EXPECT_FALSE(GetDevice().Panel().Visible());
}

TEST_F(WndPlotsetTest, AcceptingWithoutARowHandsOverNoProperty) {
  Open(true, u"1-2", {0, 0});
  Button(8820);
  EXPECT_THAT(accepted_, ElementsAre(u"1-2"));
  EXPECT_EQ(chosen_, std::nullopt);
  EXPECT_FALSE(tool_->IsVisible());
}

TEST_F(WndPlotsetTest, AFilterThatIsRefusedKeepsItOpen) {
  accepts_ = false;
  Open(true, u"5");
  Button(8820);
  EXPECT_EQ(accepted_.size(), 1u);
  EXPECT_TRUE(tool_->IsVisible());
  EXPECT_EQ(Box().GetText(), u"5");
  EXPECT_EQ(Selected(), kEnergyRow);
}

TEST_F(WndPlotsetTest, CancellingHandsOverNothing) {
  Open();
  TapRow(kDownRow);
  Button(8821);
  EXPECT_THAT(accepted_, IsEmpty());
  EXPECT_FALSE(tool_->IsVisible());
  Open();
  EXPECT_EQ(Selected(), kEnergyRow);
}

TEST_F(WndPlotsetTest, HelpIsAPageOfItsOwn) {
  Open();
  Button(8822);
  EXPECT_THAT(navigator_.calls, ElementsAre("help 2320"));
  EXPECT_TRUE(tool_->IsVisible());
}

TEST_F(WndPlotsetTest, NamesItsCommandsForTheKeysOfTheDesktop) {
  const auto command = [this](StandardCommand key) {
    return GetDevice().Send(tool_->Handle(), kAskStandardCommand, PackStandardCommand(key));
  };
  EXPECT_EQ(command(StandardCommand::kClose), 8821);
  Open();
  Box().TakeFocus();
  Box().SelectAll();
  GetDevice().Send(tool_->Handle(), kToolCommand, static_cast<WParam>(command(StandardCommand::kCopy)),
                   kFromMenu);
  Key(VK_END);
  GetDevice().Send(tool_->Handle(), kToolCommand, static_cast<WParam>(command(StandardCommand::kPaste)),
                   kFromMenu);
  EXPECT_EQ(Box().GetText(), u"3-483-48");
}

TEST_F(WndPlotsetTest, TabGoesBetweenListAndBox) {
  Open();
  Key(VK_TAB);
  EXPECT_TRUE(Box().HasFocus());
  Key(VK_TAB);
  EXPECT_EQ(GetDevice().Focus(), List().Handle());
}

TEST_F(WndPlotsetTest, EnterAccepts) {
  Open();
  Key(VK_TAB);
  Key(VK_RETURN);
  EXPECT_EQ(accepted_.size(), 1u);
  Open();
  Key(VK_RETURN);
  EXPECT_EQ(accepted_.size(), 2u);
}

// The first Enter selects, the second accepts.
TEST_F(WndPlotsetTest, EnterSelectsTheRowUnderTheCursorFirst) {
  Open(true, u"", {1, 0});
  Key(VK_DOWN, {.shift = false, .control = true, .alt = false});
  ASSERT_EQ(List().Cursor(), kEnergyRow);
  Key(VK_RETURN);
  EXPECT_EQ(Selected(), kEnergyRow);
  EXPECT_THAT(accepted_, IsEmpty());
  Key(VK_RETURN);
  EXPECT_EQ(chosen_, kEnergy);
  EXPECT_FALSE(tool_->IsVisible());
}

TEST_F(WndPlotsetTest, AFilterIsNoLongerThanCanBeKept) {
  Open(true, Text(300, u'1'));
  EXPECT_EQ(Box().GetText().size(), 254u);
}

TEST_F(WndPlotsetTest, WithoutPropertiesTheListIsEmpty) {
  ElementsDatabase none;
  tool_ = MakeWindow<wnd_plotset>(shell_, none, navigator_);
  Open();
  EXPECT_TRUE(List().groups.empty());
  Button(8820);
  EXPECT_EQ(chosen_, std::nullopt);
}

TEST_F(WndPlotsetTest, BeforeItIsOpenedThereIsNothingToAccept) {
  GetDevice().Send(tool_->Handle(), kToolCommand, 8820, kFromMenu);
  EXPECT_THAT(accepted_, IsEmpty());
}

}  // namespace
}  // namespace orvane::testing
