// Editing the summary, presets, menus, clipboard, keys.
#include "framework/standard_commands.h"
#include "tests/tools/wnd_element_fixture.h"

namespace orvane {
namespace {

using testing::kBuiltInRows;
using testing::LoadElementViewData;
using testing::WndElementTest;
using Strings = std::vector<std::string>;

const char* const kSelectFirst = "Select a property first by tapping it.";

// --- Add

TEST_F(WndElementTest, AddingNeedsASelection) {
  MakeAndShow();
  Command(40176);
  EXPECT_EQ(Message(), kSelectFirst);
  EXPECT_EQ(Rows(), kBuiltInRows);
}

TEST_F(WndElementTest, AddingPutsThePropertyAtTheEnd) {
  MakeAndShow();
  Command(40199);
  ASSERT_EQ(tool_->CurrentPreset(), 0);
  SelectListed(u"P30");
  Command(40176);
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(Rows(), (Strings{"3.5", "3.1", "3.2", "4.0", "4.1", "1.4", "1.6", "3.0"}));
  EXPECT_EQ(elements_.FindProperty(3, 0)->summaryPosition, 7);
  EXPECT_EQ(tool_->CurrentPreset(), -1);
}

TEST_F(WndElementTest, AddingWhatIsThereMovesItToTheBottom) {
  MakeAndShow();
  SelectListed(u"P31");
  Command(40176);
  EXPECT_EQ(Message(),
            "This property is already in the summary view. It will be moved to the bottom of the list.");
  EXPECT_EQ(Rows(), (Strings{"3.5", "3.2", "4.0", "4.1", "1.4", "1.6", "3.1"}));
  Command(40176);
  EXPECT_NE(Message(), "");
  EXPECT_EQ(Rows().size(), 7u);
}

TEST_F(WndElementTest, TheFirstToBeAddedGetsPosition0) {
  StoreLong("Last.Count", 0);
  MakeAndShow();
  EXPECT_EQ(Rows(), Strings{});
  SelectListed(u"P30");
  Command(40176);
  EXPECT_EQ(elements_.FindProperty(3, 0)->summaryPosition, 0);
}

TEST_F(WndElementTest, AddingKeepsTheSelectedRowWithItsProperty) {
  MakeAndShow();
  TapRow(1);
  SelectListed(u"P35");
  Command(40176);
  Message();
  EXPECT_EQ(Rows()[0], "3.1");
  EXPECT_EQ(Summary().SelectedRow(), 0);
}

// What shows of a category may be less than it holds.
TEST_F(WndElementTest, AddingFindsThePropertyBehindTheRow) {
  MakeAndShow(1);
  SelectListed(u"P20");
  Command(40176);
  EXPECT_EQ(Rows().back(), "2.0");
}

// --- Remove

TEST_F(WndElementTest, RemovingNeedsASelection) {
  MakeAndShow();
  Command(40177);
  EXPECT_EQ(Message(), kSelectFirst);
  EXPECT_EQ(Rows(), kBuiltInRows);
}

TEST_F(WndElementTest, RemovingTakesTheRowOut) {
  MakeAndShow();
  Command(40199);
  TapRow(1);
  Command(40177);
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(Rows(), (Strings{"3.5", "3.2", "4.0", "4.1", "1.4", "1.6"}));
  EXPECT_EQ(Summary().SelectedRow(), 1);
  EXPECT_EQ(tool_->CurrentPreset(), -1);
}

TEST_F(WndElementTest, RemovingTheLastRowMovesTheSelectionUp) {
  MakeAndShow();
  TapRow(6);
  Command(40177);
  EXPECT_EQ(Summary().SelectedRow(), 5);
  for (int left = 6; left > 0; --left) Command(40177);
  EXPECT_EQ(Rows(), Strings{});
  EXPECT_EQ(Summary().SelectedRow(), -1);
  Command(40177);
  EXPECT_EQ(Message(), kSelectFirst);
}

// --- Move

TEST_F(WndElementTest, MovingNeedsASelection) {
  MakeAndShow();
  Command(40178);
  EXPECT_EQ(Message(), kSelectFirst);
  Command(40179);
  EXPECT_EQ(Message(), kSelectFirst);
}

TEST_F(WndElementTest, MovingExchangesAndFollows) {
  MakeAndShow();
  Command(40199);
  TapRow(2);
  Command(40178);
  EXPECT_EQ(Rows(), (Strings{"3.5", "3.2", "3.1", "4.0", "4.1", "1.4", "1.6"}));
  EXPECT_EQ(Summary().SelectedRow(), 1);
  EXPECT_EQ(tool_->CurrentPreset(), -1);
  Command(40199);
  TapRow(1);
  Command(40179);
  EXPECT_EQ(Rows(), (Strings{"3.5", "3.2", "3.1", "4.0", "4.1", "1.4", "1.6"}));
  EXPECT_EQ(Summary().SelectedRow(), 2);
  EXPECT_EQ(tool_->CurrentPreset(), -1);
  EXPECT_EQ(Message(), "");
}

TEST_F(WndElementTest, TheEndsCannotBeMovedFurther) {
  MakeAndShow();
  Command(40199);
  TapRow(0);
  Command(40178);
  EXPECT_EQ(Message(), "Cannot move property up any further.");
  TapRow(6);
  Command(40179);
  EXPECT_EQ(Message(), "Cannot move property down any further.");
  EXPECT_EQ(Rows(), kBuiltInRows);
  EXPECT_EQ(Summary().SelectedRow(), 6);
  EXPECT_EQ(tool_->CurrentPreset(), 0);  // nothing was edited
}

// Exchanged are the rows that show, not what stands between them unseen.
TEST_F(WndElementTest, MovingActsOnTheRowsThatShow) {
  MakeAndShow(1);  // without (4, 1)
  TapRow(4);
  ASSERT_EQ(Rows()[4], "1.4");
  Command(40178);
  EXPECT_EQ(Rows(), (Strings{"3.5", "3.1", "3.2", "1.4", "4.0", "1.6"}));
  MakeAndShow(0);
  EXPECT_EQ(Rows(), (Strings{"3.5", "3.1", "3.2", "1.4", "4.1", "4.0", "1.6"}));
}

// --- Header and family line

TEST_F(WndElementTest, HeaderAndFamilyLineAreToggled) {
  MakeAndShow();
  Command(40199);
  TapRow(1);
  Command(40180);
  EXPECT_FALSE(tool_->Settings().showMainProperties);
  EXPECT_EQ(Summary().Rows()[0].top, 16);
  EXPECT_EQ(tool_->CurrentPreset(), -1);
  EXPECT_EQ(Summary().SelectedRow(), 1);
  Command(40199);
  EXPECT_TRUE(tool_->Settings().showMainProperties);
  Command(40181);
  EXPECT_FALSE(tool_->Settings().showFamilyAndBlock);
  EXPECT_EQ(Summary().Rows()[0].top, 50);
  EXPECT_EQ(tool_->CurrentPreset(), -1);
  Command(40180);
  EXPECT_EQ(Summary().Rows()[0].top, 0);
  Command(40181);
  Command(40180);
  EXPECT_EQ(Summary().Rows()[0].top, 66);
}

// --- Menus

TEST_F(WndElementTest, TheSetupMenuOfTheSummary) {
  MakeAndShow();
  GetDevice().Bars().Press(8352);
  shell_.Settle();
  EXPECT_EQ(GetDevice().Popups().Anchor(), (Point{30, 295}));
  EXPECT_EQ(MenuCommands(),
            (std::vector<int>{40177, 40178, 40179, 40186, 0, 40180, 40181, 0, 40190, 40191, 40192}));
  EXPECT_EQ(Marks(), (Strings{"40180+", "40181+", "40190*"}));
  GetDevice().Popups().ChooseLabel(u"Show family and block");
  shell_.Settle();
  Command(8352);
  EXPECT_EQ(Marks(), (Strings{"40180+", "40190*"}));
  GetDevice().Popups().ChooseLabel(u"Show basic properties");
  shell_.Settle();
  Command(8352);
  EXPECT_EQ(Marks(), (Strings{"40190*"}));
}

TEST_F(WndElementTest, TheSetupMenuOfTheFullList) {
  MakeAndShow();
  Command(8354);
  GetDevice().Bars().Press(8352);
  shell_.Settle();
  EXPECT_EQ(GetDevice().Popups().Anchor(), (Point{30, 295}));
  EXPECT_EQ(MenuCommands(), (std::vector<int>{40176, 40175, 0, 40190, 40191, 40192}));
  EXPECT_EQ(Marks(), (Strings{"40190*"}));
}

TEST_F(WndElementTest, TheInitialViewIsChosenInEitherMenu) {
  MakeAndShow();
  for (const bool summary : {true, false}) {
    for (int view = 0; view < 3; ++view) {
      Command(40190 + view);
      EXPECT_EQ(tool_->Settings().initialView, view);
      EXPECT_EQ(tool_->Settings().doSummary, summary);  // it counts from the next element on
      Command(8352);
      EXPECT_EQ(Marks().back(), std::to_string(40190 + view) + "*");
      GetDevice().Popups().Close();
    }
    Command(8354);
  }
}

TEST_F(WndElementTest, AnInitialViewThatIsUnknownHasNoMark) {
  StoreLong("InitialView", 9);
  MakeAndShow();
  Command(8352);
  EXPECT_EQ(Marks(), (Strings{"40180+", "40181+"}));
}

TEST_F(WndElementTest, ThePresetsMenuMarksTheCurrentPreset) {
  MakeAndShow();
  GetDevice().Bars().Press(8355);
  shell_.Settle();
  EXPECT_EQ(GetDevice().Popups().Anchor(), (Point{40, 295}));
  EXPECT_EQ(MenuCommands(), (std::vector<int>{40199, 40200, 40201, 0, 40196, 40197, 40198}));
  EXPECT_EQ(Marks(), Strings{});
  for (int preset = 0; preset < 3; ++preset) {
    Command(40199 + preset);
    Command(8355);
    EXPECT_EQ(Marks(), Strings{std::to_string(40199 + preset) + "*"});
    GetDevice().Popups().Close();
  }
  TapRow(2);
  Command(40178);
  Command(8355);
  EXPECT_EQ(Marks(), Strings{});
}

// --- Presets

TEST_F(WndElementTest, SavingAPresetKeepsRowsAndSwitches) {
  MakeAndShow();
  TapRow(0);
  Command(40177);
  Command(40181);
  for (int preset = 0; preset < 3; ++preset) {
    Command(40196 + preset);
    EXPECT_EQ(Message(), "Summary settings saved as preset " + std::to_string(preset + 1) + ".");
    EXPECT_EQ(tool_->CurrentPreset(), preset);
    const ElementPreset& saved = tool_->Settings().presets[static_cast<std::size_t>(preset)];
    EXPECT_TRUE(saved.showMain);
    EXPECT_FALSE(saved.showFamily);
    EXPECT_EQ(saved.list, (PropertyList{{3, 1}, {3, 2}, {4, 0}, {4, 1}, {1, 4}, {1, 6}}));
  }
}

TEST_F(WndElementTest, ApplyingAPresetBringsItBack) {
  MakeAndShow();
  TapRow(0);
  Command(40177);
  Command(40180);
  Command(40197);
  Message();
  Command(40199);  // the built-in one
  EXPECT_EQ(Rows(), kBuiltInRows);
  EXPECT_TRUE(tool_->Settings().showMainProperties);
  EXPECT_EQ(tool_->CurrentPreset(), 0);
  TapRow(3);
  Command(40200);
  EXPECT_EQ(Rows(), (Strings{"3.1", "3.2", "4.0", "4.1", "1.4", "1.6"}));
  EXPECT_FALSE(tool_->Settings().showMainProperties);
  EXPECT_EQ(tool_->CurrentPreset(), 1);
  EXPECT_EQ(Summary().SelectedRow(), -1);
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(elements_.FindProperty(1, 6)->summaryPosition, 5);
}

TEST_F(WndElementTest, APresetTakesOnlyTheRowsThatShow) {
  MakeAndShow(1);
  Command(40196);
  Message();
  MakeAndShow(0);
  Command(40199);
  EXPECT_EQ(Rows(), (Strings{"3.5", "3.1", "3.2", "4.0", "1.4", "1.6"}));
}

// --- Clipboard

TEST_F(WndElementTest, CopyingNeedsASelection) {
  MakeAndShow();
  GetDevice().SetClipboardText(u"before");
  Command(40186);
  EXPECT_EQ(Message(), kSelectFirst);
  Command(8354);
  Command(40175);
  EXPECT_EQ(Message(), kSelectFirst);
  EXPECT_EQ(Clipboard(), "before");
}

TEST_F(WndElementTest, CopiesValueAndUnitsOfASummaryRow) {
  MakeAndShow();
  TapRow(6);
  Command(40186);
  EXPECT_EQ(Clipboard(), "105 m3");
  TapRow(0);
  Command(40186);
  EXPECT_EQ(Clipboard(), "3.5 U35");
  EXPECT_EQ(Message(), "");
}

TEST_F(WndElementTest, CopiesValueAndUnitsOfAListItem) {
  MakeAndShow();
  Command(8354);
  SelectListed(u"P16");
  Command(40175);
  EXPECT_EQ(Clipboard(), "105 m3");
  SelectListed(u"Family");
  Command(40175);
  EXPECT_EQ(Clipboard(), "Alkali metal");
  SelectListed(u"Atomic mass");
  Command(40175);
  EXPECT_EQ(Clipboard(), "1.008 u");
}

TEST_F(WndElementTest, CopiesOfLongTextsAreBounded) {
  LoadElementViewData(elements_, {.longValue = Text(400, u'x')});
  MakeAndShow();
  SelectListed(u"P30");
  Command(40175);
  EXPECT_EQ(Clipboard(), std::string(254, 'x'));
  Command(40176);
  TapRow(7);
  Command(40186);
  EXPECT_EQ(Clipboard(), std::string(254, 'x'));
}

// --- The desktop's keys

TEST_F(WndElementTest, TheCopyKeyCopiesWhatShows) {
  MakeAndShow();
  const auto ask = [&](StandardCommand command) {
    return GetDevice().Send(tool_->Handle(), kAskStandardCommand, PackStandardCommand(command));
  };
  EXPECT_EQ(ask(StandardCommand::kCopy), 40186);
  EXPECT_EQ(ask(StandardCommand::kClose), 8350);
  EXPECT_EQ(ask(StandardCommand::kPaste), 0);
  Command(8354);
  EXPECT_EQ(ask(StandardCommand::kCopy), 40175);
  EXPECT_EQ(ask(StandardCommand::kClose), 8350);
}

TEST_F(WndElementTest, ATapInTheListSelectsForTheCommands) {
  MakeAndShow();
  Command(8354);
  const Rect row = List().RectOf(1, 3);
  shell_.Tap(List().Handle(), {50, row.top + 5});
  shell_.Settle();
  Command(40175);
  EXPECT_EQ(Clipboard(), "1.3 U13");
}

TEST_F(WndElementTest, UnknownCommandsDoNothing) {
  MakeAndShow();
  for (const int command : {0, 1, 8353, 8356, 40182, 40193, 40202, 65535}) Command(command);
  EXPECT_EQ(Rows(), kBuiltInRows);
  EXPECT_TRUE(tool_->IsVisible());
  EXPECT_FALSE(GetDevice().Popups().Open());
  // A button's or a box's notification is no command.
  GetDevice().Send(tool_->Handle(), WM_COMMAND, PackCommand(8350, 1));
  EXPECT_TRUE(tool_->IsVisible());
}

}  // namespace
}  // namespace orvane
