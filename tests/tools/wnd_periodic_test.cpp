#include "tests/tools/wnd_periodic_fixture.h"

namespace orvane {
namespace {

using testing::AddedButton;
using testing::Calls;
using testing::WndPeriodicTest;

// --- How it is made and shown

TEST_F(WndPeriodicTest, IsMadeHiddenWithItsPanelInside) {
  Make();
  EXPECT_FALSE(tool_->IsVisible());
  EXPECT_TRUE(tool_->IsTopLevel());
  EXPECT_EQ(GetDevice().Title(tool_->Handle()), u"Periodic table");
  EXPECT_EQ(GetDevice().Parent(tool_->Handle()), shell_.MainWindow());
  EXPECT_EQ(GetDevice().Style(tool_->Handle()), 0u);
  EXPECT_EQ(GetDevice().WindowRect(tool_->Handle()), (Rect{0, 0, 240, 268}));
  EXPECT_EQ(tool_->ClassName(), "wnd_periodic");

  EXPECT_EQ(GetDevice().Parent(Panel().Handle()), tool_->Handle());
  EXPECT_EQ(GetDevice().Style(Panel().Handle()), WS_CHILD | WS_VISIBLE);
  EXPECT_EQ(GetDevice().WindowRect(Panel().Handle()), (Rect{0, 0, 240, 268}));
  EXPECT_EQ(Panel().arrowStep, 20);
  EXPECT_TRUE(Panel().acceleratedDrag);
  EXPECT_TRUE(Panel().privateBuffer);
  EXPECT_TRUE(Panel().invalidateOnPenUp);
  EXPECT_FALSE(Panel().bordered);
  EXPECT_EQ(Panel().background, kWhite);
  EXPECT_EQ(Panel().marginX, 0);
  EXPECT_EQ(Panel().marginY, 0);
}

TEST_F(WndPeriodicTest, IsLaidOutFromTheStart) {
  Make();
  const Size content = Panel().Layout().content;
  EXPECT_EQ((Size{Panel().contentWidth, Panel().contentHeight}), content);
  EXPECT_EQ((Size{Panel().bufferWidth, Panel().bufferHeight}), content);
  EXPECT_FALSE(Panel().Layout().cells[111].rect.Empty());
}

TEST_F(WndPeriodicTest, ShowingAddsThreeDropDownsAndLowersTheInputPanel) {
  Make();
  GetDevice().Panel().Request(true);
  ASSERT_TRUE(GetDevice().Panel().Visible());
  tool_->Show();
  EXPECT_FALSE(GetDevice().Panel().Visible());
  EXPECT_EQ(shell_.buttons,
            (std::vector<AddedButton>{{8867, 5, -1, TBSTATE_ENABLED, ButtonStyle::kDropDown},
                                      {8868, 6, -1, TBSTATE_ENABLED, ButtonStyle::kDropDown},
                                      {8869, 21, -1, TBSTATE_ENABLED, ButtonStyle::kDropDown}}));
  EXPECT_EQ(shell_.currentTool, tool_->Handle());
  EXPECT_EQ(shell_.helpTopic, 0);
}

TEST_F(WndPeriodicTest, TheMessageBeforeShowingIsEnoughToBecomeTheCurrentTool) {
  Make();
  shell_.currentTool = kNoWindow;
  GetDevice().Send(tool_->Handle(), kBeforeShow);
  EXPECT_EQ(shell_.currentTool, tool_->Handle());
  EXPECT_EQ(shell_.buttons.size(), 3u);
}

TEST_F(WndPeriodicTest, AfterHidingNothingChanges) {
  MakeAndShow();
  GetDevice().Send(tool_->Handle(), kAfterHide);
  EXPECT_EQ(shell_.buttons.size(), 3u);
  EXPECT_EQ(shell_.currentTool, tool_->Handle());
}

TEST_F(WndPeriodicTest, PassesTheFocusOnToItsPanelAndBecomesCurrent) {
  MakeAndShow();
  EXPECT_EQ(GetDevice().Focus(), Panel().Handle());
  GetDevice().SetFocus(shell_.MainWindow());
  shell_.currentTool = kNoWindow;
  GetDevice().SetFocus(tool_->Handle());
  EXPECT_EQ(GetDevice().Focus(), Panel().Handle());
  EXPECT_EQ(shell_.currentTool, tool_->Handle());
}

TEST_F(WndPeriodicTest, APenThatGoesDownOnTheToolTakesTheFocus) {
  MakeAndShow();
  GetDevice().SetFocus(shell_.MainWindow());
  GetDevice().Send(tool_->Handle(), WM_LBUTTONDOWN, 0, PackPoint({5, 5}));
  EXPECT_EQ(GetDevice().Focus(), Panel().Handle());
  GetDevice().SetFocus(shell_.MainWindow());
  tool_->OnMessage(WM_LBUTTONDOWN, 0, PackPoint({5, 5}));
  EXPECT_EQ(GetDevice().Focus(), Panel().Handle());
}

// --- Menus

TEST_F(WndPeriodicTest, TheSizeMenuMarksFormAndColouring) {
  struct Case {
    int form;
    int colouring;
    Calls marks;
  };
  const Case cases[] = {{40049, 40016, {"40049*", "40016*"}},
                        {40050, 40016, {"40050*", "40016*"}},
                        {40050, 40018, {"40050*", "40018*"}},
                        {40049, 40018, {"40049*", "40018*"}}};
  MakeAndShow();
  for (const Case& c : cases) {
    Command(c.form);
    Command(c.colouring);
    DropDown(8867);
    EXPECT_EQ(Marks(), c.marks);
    EXPECT_EQ(GetDevice().Popups().Anchor(), (Point{30, 295}));
  }
  EXPECT_EQ(Labels(), (Calls{"Narrow mode", "Wide mode", "-", "Color by block", "Color by family"}));
}

TEST_F(WndPeriodicTest, TheShowMenuTicksWhatIsShown) {
  MakeAndShow();
  for (int bits = 0; bits < 8; ++bits) {
    if (tool_->Settings().showNum != ((bits & 1) != 0)) Command(40054);
    if (tool_->Settings().showName != ((bits & 2) != 0)) Command(40052);
    if (tool_->Settings().showMass != ((bits & 4) != 0)) Command(40053);
    DropDown(8868);
    Calls marks;
    if (bits & 1) marks.emplace_back("40054+");
    if (bits & 2) marks.emplace_back("40052+");
    if (bits & 4) marks.emplace_back("40053+");
    EXPECT_EQ(Marks(), marks);
    EXPECT_EQ(GetDevice().Popups().Anchor(), (Point{65, 295}));
  }
  EXPECT_EQ(Labels(), (Calls{"Show number", "Show name", "Show mass"}));
}

TEST_F(WndPeriodicTest, ThePresetsMenuMarksTheFirstThatEqualsTheLook) {
  MakeAndShow();
  DropDown(8869);
  EXPECT_EQ(Marks(), Calls{"40199*"});  // a first start looks as the first preset
  EXPECT_EQ(GetDevice().Popups().Anchor(), (Point{70, 295}));
  EXPECT_EQ(Labels(), (Calls{"Preset 1", "Preset 2", "Preset 3", "-", "Save as Preset 1", "Save as Preset 2",
                             "Save as Preset 3"}));
  Command(40201);
  DropDown(8869);
  EXPECT_EQ(Marks(), Calls{"40201*"});
  Command(40052);  // without the name
  DropDown(8869);
  EXPECT_EQ(Marks(), Calls{"40200*"});
  Command(40053);  // with the mass: no preset
  DropDown(8869);
  EXPECT_EQ(Marks(), Calls{});
  Command(40199);
  Command(40197);
  Command(40198);
  DropDown(8869);
  EXPECT_EQ(Marks(), Calls{"40199*"});
}

// The third preset's own number bit stays on when a plain look is saved there, so that the look is not it.
TEST_F(WndPeriodicTest, ASavedPresetNeedNotEqualTheLookItWasSavedFrom) {
  MakeAndShow();
  Command(40053);
  Command(40198);
  DropDown(8869);
  EXPECT_EQ(Marks(), Calls{});
}

// The number of "Color by block" is that of "Exit" in the main menu; chosen here it reaches the tool alone.
TEST_F(WndPeriodicTest, ChoosingInItsMenusReachesTheTool) {
  MakeAndShow();
  Command(40018);
  DropDown(8867);
  ASSERT_TRUE(GetDevice().Popups().ChooseLabel(u"Color by block"));
  shell_.Settle();
  EXPECT_EQ(Look(), "00000");
  EXPECT_FALSE(GetDevice().QuitCode().has_value());
  EXPECT_EQ(CountOf(shell_.MainWindow(), WM_COMMAND), 0);
  DropDown(8868);
  ASSERT_TRUE(GetDevice().Popups().ChooseLabel(u"Show mass"));
  shell_.Settle();
  EXPECT_EQ(Look(), "00010");
  DropDown(8869);
  ASSERT_TRUE(GetDevice().Popups().ChooseLabel(u"Preset 3"));
  shell_.Settle();
  EXPECT_EQ(Look(), "11101");
}

TEST_F(WndPeriodicTest, TheButtonsOfTheBarOpenTheMenus) {
  MakeAndShow();
  ASSERT_TRUE(GetDevice().Bars().Press(8868));
  shell_.Settle();
  EXPECT_TRUE(GetDevice().Popups().Open());
  EXPECT_EQ(Labels().front(), "Show number");
}

// --- Settings

TEST_F(WndPeriodicTest, SettingsAreWrittenWhenItIsDestroyedAndNotBefore) {
  MakeAndShow();
  for (const int command : {40050, 40052, 40053, 40018, 40197}) Command(command);
  GetDevice().Boxes().Dismiss();
  tool_->Hide();
  shell_.Settle();
  EXPECT_EQ(Stored(u"wnd_periodic.ModeWide"), -1);
  EXPECT_EQ(Stored(u"wnd_periodic.Preset[1].ModeWide"), -1);
  tool_.reset();
  const std::pair<TextView, int> expected[] = {
      {u"wnd_periodic.ModeWide", 1},
      {u"wnd_periodic.ColorType", 1},
      {u"wnd_periodic.ShowNum", 0},
      {u"wnd_periodic.ShowName", 1},
      {u"wnd_periodic.ShowMass", 1},
      {u"wnd_periodic.Preset[0].ModeWide", 0},
      {u"wnd_periodic.Preset[0].ColorType", 0},
      {u"wnd_periodic.Preset[0].ShowNum", 0},
      {u"wnd_periodic.Preset[0].ShowName", 0},
      {u"wnd_periodic.Preset[0].ShowMass", 0},
      {u"wnd_periodic.Preset[1].ModeWide", 1},
      {u"wnd_periodic.Preset[1].ColorType", 0},
      {u"wnd_periodic.Preset[1].ShowNum", 1},
      {u"wnd_periodic.Preset[1].ShowName", 1},
      {u"wnd_periodic.Preset[1].ShowMass", 1},
      {u"wnd_periodic.Preset[2].ModeWide", 1},
      {u"wnd_periodic.Preset[2].ColorType", 1},
      {u"wnd_periodic.Preset[2].ShowNum", 1},
      {u"wnd_periodic.Preset[2].ShowName", 1},
      {u"wnd_periodic.Preset[2].ShowMass", 0},
  };
  for (const auto& [name, value] : expected) EXPECT_EQ(Stored(name), value) << ToUtf8(name);
  Make();
  EXPECT_EQ(Look(), "10111");
  EXPECT_TRUE(tool_->Presets()[1].showMass);
  EXPECT_GT(Panel().contentWidth, 1000);  // laid out as the settings say
}

}  // namespace
}  // namespace orvane
