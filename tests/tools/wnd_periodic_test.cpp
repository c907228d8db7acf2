#include "tools/wnd_periodic.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/framework/test_shell.h"
#include "tests/tools/element_files.h"
#include "tests/tools/recording_navigator.h"

namespace orvane {
namespace {

using testing::AddedButton;
using testing::TestShell;

constexpr TextView kKey = u"Software\\Zel Software\\Orvane";
using Calls = std::vector<std::string>;

// "form number name mass colouring", each 0 or 1.
std::string Look(const PeriodicSettings& s) {
  return std::to_string(s.modeWide) + std::to_string(s.showNum) + std::to_string(s.showName) +
         std::to_string(s.showMass) + std::to_string(s.colorType);
}

class WndPeriodicTest : public ::testing::Test {
 protected:
  WndPeriodicTest() : shell_({.panelMode = PanelMode::kAlways}) {
    EXPECT_TRUE(testing::LoadShipped(elements_));
  }

  void Make() { tool_ = MakeWindow<wnd_periodic>(shell_, elements_, navigator_); }
  void MakeAndShow() {
    Make();
    tool_->Show();
    shell_.Settle();
    shell_.Trace().messages.clear();
  }
  Device& GetDevice() { return shell_.GetDevice(); }
  PeriodicPanel& Panel() { return tool_->Panel(); }
  std::string Look() const { return orvane::Look(tool_->Settings()); }

  void Command(int command) { GetDevice().Send(tool_->Handle(), WM_COMMAND, PackCommand(command, 0)); }
  // As the main window passes on a drop-down button of the menu bar.
  void DropDown(int command) {
    GetDevice().Send(tool_->Handle(), kToolCommand, static_cast<WParam>(command), kFromDropDown);
  }
  void ScrollTo(int x, int y) {
    Panel().ScrollBy(-100000, -100000);
    Panel().ScrollBy(x, y);
    ASSERT_EQ(Scroll(), (Point{x, y}));
  }
  Point Scroll() { return {Panel().scrollX, Panel().scrollY}; }
  // The commands that are marked in the open menu: "40049*" with a dot, "40054+" with a tick.
  Calls Marks() {
    Calls marks;
    for (const MenuItem& item : GetDevice().Popups().Current().Items()) {
      if (item.checked) marks.push_back(std::to_string(item.id) + (item.radio ? "*" : "+"));
    }
    return marks;
  }
  Calls Labels() {
    Calls labels;
    for (const MenuItem& item : GetDevice().Popups().Current().Items()) {
      labels.push_back(item.separator ? "-" : ToUtf8(item.label));
    }
    return labels;
  }
  // 1 and 0 for booleans in the store, −1 for what is not there.
  int Stored(TextView name) {
    shell_.Store().OpenKey(kKey);
    const SettingValue* value = shell_.Store().Find(name);
    const int number = value && value->bytes.size() == 4 ? value->bytes[0] : -1;
    shell_.Store().CloseKey();
    return number;
  }
  void Store(TextView name, bool value) {
    shell_.Settings().Open();
    shell_.Settings().WriteBool(name, value);
    shell_.Settings().Close();
  }
  int CountOf(WindowHandle window, std::uint32_t message) {
    int count = 0;
    for (const testing::Dispatched& d : shell_.Trace().messages) {
      if (d.window == window && d.message == message) ++count;
    }
    return count;
  }
  Point CentreOf(int element) {
    const Rect& rect = Panel().Layout().cells[static_cast<std::size_t>(element)].rect;
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
  }

  TestShell shell_;
  ElementsDatabase elements_;
  testing::RecordingNavigator navigator_;
  std::unique_ptr<wnd_periodic> tool_;
};

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

// --- Commands

class WndPeriodicCommandTest : public WndPeriodicTest {
 protected:
  // From the wide form with all texts and block colours, scrolled; what the command leaves.
  void Expect(int command, const std::string& look, bool startsOver) {
    SCOPED_TRACE(command);
    tool_.reset();
    for (const TextView name : {u"ModeWide", u"ShowNum", u"ShowName", u"ShowMass"}) {
      Store(Text(u"wnd_periodic.").append(name), true);
    }
    Store(u"wnd_periodic.ColorType", false);
    MakeAndShow();
    ASSERT_EQ(Look(), "11110");
    ScrollTo(150, 60);
    GetDevice().SetFocus(shell_.MainWindow());
    shell_.Settle();
    shell_.Trace().messages.clear();
    Command(command);
    EXPECT_EQ(Look(), look);
    EXPECT_EQ(Scroll(), startsOver ? (Point{0, 0}) : (Point{150, 60}));
    EXPECT_EQ(GetDevice().Focus(), Panel().Handle());
    EXPECT_GE(CountOf(Panel().Handle(), WM_PAINT), 1);
    EXPECT_EQ((Size{Panel().contentWidth, Panel().contentHeight}), Panel().Layout().content);
    EXPECT_EQ((Size{Panel().bufferWidth, Panel().bufferHeight}), Panel().Layout().content);
    EXPECT_FALSE(GetDevice().Boxes().Open());
  }
};

TEST_F(WndPeriodicCommandTest, ChangeTheLookAndLayTheTableOut) {
  Expect(40049, "01110", true);
  Expect(40050, "11110", true);  // even when nothing changes
  Expect(40054, "10110", true);
  Expect(40052, "11010", true);
  Expect(40053, "11100", true);
  Expect(40016, "11110", false);  // colours keep the place
  Expect(40018, "11111", false);
  Expect(40199, "00000", true);
  Expect(40200, "11001", true);
  Expect(40201, "11101", true);
}

TEST_F(WndPeriodicTest, EveryCommandWorksFromBothValues) {
  MakeAndShow();
  const std::pair<int, const char*> steps[] = {{40050, "10000"}, {40049, "00000"}, {40054, "01000"},
                                               {40054, "00000"}, {40052, "00100"}, {40052, "00000"},
                                               {40053, "00010"}, {40053, "00000"}, {40018, "00001"},
                                               {40018, "00001"}, {40016, "00000"}, {40016, "00000"}};
  for (const auto& [command, look] : steps) {
    Command(command);
    EXPECT_EQ(Look(), look) << command;
  }
}

TEST_F(WndPeriodicTest, ThePrivateCommandDoesTheSame) {
  MakeAndShow();
  GetDevice().Send(tool_->Handle(), kToolCommand, 40050, kFromMenu);
  EXPECT_EQ(Look(), "10000");
}

TEST_F(WndPeriodicTest, NotificationsAndUnknownCommandsDoNothing) {
  MakeAndShow();
  ScrollTo(0, 0);
  for (const int code : {1, 0x300, 0xFFFF}) {
    GetDevice().Send(tool_->Handle(), WM_COMMAND, PackCommand(40050, code));
  }
  for (const int command : {0, 40017, 40051, 40195, 40202, 8866, 8870}) Command(command);
  EXPECT_EQ(Look(), "00000");
  EXPECT_FALSE(GetDevice().Popups().Open());
  EXPECT_EQ(CountOf(Panel().Handle(), WM_PAINT), 0);
}

TEST_F(WndPeriodicTest, ColoursChangeOnTheScreenAtOnce) {
  MakeAndShow();
  const Rect iron = Panel().Layout().cells[25].rect;
  const Point corner{iron.left + 1, iron.top + 26 + 1};
  EXPECT_EQ(shell_.Pixel(corner), 0x9BCDFFu);
  Command(40018);
  shell_.Settle();
  EXPECT_EQ(shell_.Pixel(corner), 0xBE7DFFu);
}

TEST_F(WndPeriodicTest, LoadingThePresetThatIsShownStartsOver) {
  MakeAndShow();
  Command(40200);
  ScrollTo(100, 0);
  shell_.Settle();
  shell_.Trace().messages.clear();
  Command(40200);
  EXPECT_EQ(Look(), "11001");
  EXPECT_EQ(Scroll(), (Point{0, 0}));
  EXPECT_EQ(CountOf(Panel().Handle(), WM_PAINT), 1);
}

TEST_F(WndPeriodicTest, SavingTellsWhereAndRedrawsNothing) {
  MakeAndShow();
  Command(40050);
  Command(40054);
  ScrollTo(100, 0);
  shell_.Settle();
  for (int preset = 0; preset < 3; ++preset) {
    shell_.Trace().messages.clear();
    Command(40196 + preset);
    shell_.Settle();
    ASSERT_TRUE(GetDevice().Boxes().Open());
    const MessageBoxText box = GetDevice().Boxes().Front();
    EXPECT_EQ(box.caption, u"Orvane");
    EXPECT_EQ(ToUtf8(box.text), "Settings saved as preset " + std::to_string(preset + 1) + ".");
    EXPECT_EQ(box.icon, MessageIcon::kInformation);
    EXPECT_EQ(GetDevice().Boxes().Waiting(), 0);
    GetDevice().Boxes().Dismiss();
    shell_.Settle();
    EXPECT_EQ(CountOf(Panel().Handle(), WM_PAINT), 0);
    EXPECT_EQ(Scroll(), (Point{100, 0}));
    EXPECT_EQ(Look(), "11000");
    const PeriodicPreset& saved = tool_->Presets()[static_cast<std::size_t>(preset)];
    EXPECT_TRUE(saved.modeWide);
    EXPECT_TRUE(saved.colorType);           // took the number
    EXPECT_EQ(saved.showNum, preset != 0);  // as it was
    EXPECT_FALSE(saved.showName || saved.showMass);
  }
  Command(40196);
  Command(40196 + 3);  // loads the first
  EXPECT_EQ(Look(), "11001");
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

// --- Pen, keys and wheel

TEST_F(WndPeriodicTest, ATapOpensTheElement) {
  MakeAndShow();
  shell_.Tap(Panel().Handle(), CentreOf(25));
  EXPECT_EQ(navigator_.calls, (Calls{"select 25", "show 25"}));
}

TEST_F(WndPeriodicTest, ATapCountsFromWhatIsScrolledIn) {
  MakeAndShow();
  Command(40201);  // long form with names
  for (const int element : {46, 47, 103}) {
    const Point centre = CentreOf(element);
    ASSERT_GT(centre.x, 240);
    ScrollTo(std::clamp(centre.x - 100, 0, Panel().contentWidth - 240), 41);
    navigator_.calls.clear();
    shell_.Tap(Panel().Handle(), {centre.x - Scroll().x, centre.y - Scroll().y});
    EXPECT_EQ(navigator_.calls,
              (Calls{"select " + std::to_string(element), "show " + std::to_string(element)}));
  }
}

TEST_F(WndPeriodicTest, ATapOnABorderOpensTheCellThatBeginsThere) {
  MakeAndShow();
  const Rect magnesium = Panel().Layout().cells[11].rect;
  const std::pair<Point, int> taps[] = {{{magnesium.left, magnesium.top}, 11},
                                        {{magnesium.left - 1, magnesium.top}, 10},
                                        {{magnesium.left, magnesium.top - 1}, 3},
                                        {{magnesium.left - 1, magnesium.top - 1}, 2}};
  for (const auto& [point, element] : taps) {
    navigator_.calls.clear();
    shell_.Tap(Panel().Handle(), point);
    EXPECT_EQ(navigator_.calls.back(), "show " + std::to_string(element));
  }
}

TEST_F(WndPeriodicTest, ATapBesideTheCellsDoesNothing) {
  MakeAndShow();
  for (const Point point : {Point{5, 5}, Point{5, 100}, Point{100, 5}, Point{70, 20}, Point{40, 230},
                            Point{236, 266}, Point{0, 0}, Point{239, 267}}) {
    shell_.Tap(Panel().Handle(), point);
    EXPECT_EQ(navigator_.calls, Calls{}) << point.x << ", " << point.y;
  }
}

TEST_F(WndPeriodicTest, TheTapIsWhereThePenLeaves) {
  MakeAndShow();
  const Rect lithium = Panel().Layout().cells[2].rect;
  shell_.Stroke(Panel().Handle(),
                {{lithium.right - 2, lithium.top + 5}, {lithium.right + 2, lithium.top + 5}});
  EXPECT_EQ(navigator_.calls, (Calls{"select 3", "show 3"}));
}

TEST_F(WndPeriodicTest, ADragScrollsAndOpensNothing) {
  MakeAndShow();
  Command(40050);
  const int content = Panel().contentWidth;
  ASSERT_GT(content, 300);
  shell_.Stroke(Panel().Handle(), {{120, 60}, {110, 60}});
  EXPECT_EQ(navigator_.calls, Calls{});
  EXPECT_EQ(Scroll().x, static_cast<int>(10.0 * content * 1.8 / 240));  // accelerated
  EXPECT_EQ(Scroll().y, 0);
}

TEST_F(WndPeriodicTest, ArrowKeysScrollByTwenty) {
  MakeAndShow();
  Command(40201);
  ASSERT_GT(Panel().contentHeight, 268 + 20);
  const auto press = [&](int key) {
    GetDevice().KeyDown(key, {});
    GetDevice().KeyUp(key, {});
    return Scroll();
  };
  EXPECT_EQ(press(VK_RIGHT), (Point{20, 0}));
  EXPECT_EQ(press(VK_DOWN), (Point{20, 20}));
  EXPECT_EQ(press(VK_RIGHT), (Point{40, 20}));
  EXPECT_EQ(press(VK_LEFT), (Point{20, 20}));
  EXPECT_EQ(press(VK_UP), (Point{20, 0}));
  EXPECT_EQ(press(VK_UP), (Point{20, 0}));
  EXPECT_EQ(press(VK_LEFT), (Point{0, 0}));
}

TEST_F(WndPeriodicTest, TheWheelScrollsThreeArrowSteps) {
  MakeAndShow();
  Command(40050);
  GetDevice().Wheel({120, 150}, -1, true);
  EXPECT_EQ(Scroll(), (Point{60, 0}));
  GetDevice().Wheel({120, 150}, 1, true);
  EXPECT_EQ(Scroll(), (Point{0, 0}));
  Command(40049);
  Command(40054);
  ASSERT_GT(Panel().contentHeight, 268 + 60);
  GetDevice().Wheel({120, 150}, -1, false);
  EXPECT_EQ(Scroll(), (Point{0, 60}));
}

TEST_F(WndPeriodicTest, OpeningAnElementMayHideTheTable) {
  MakeAndShow();
  navigator_.whenShown = [this] { tool_->Hide(); };
  shell_.Tap(Panel().Handle(), CentreOf(0));
  shell_.Settle();
  EXPECT_FALSE(tool_->IsVisible());
  EXPECT_EQ(navigator_.calls.back(), "show 0");
  tool_->Show();
  shell_.Settle();
  EXPECT_EQ(GetDevice().Focus(), Panel().Handle());
}

TEST_F(WndPeriodicTest, CanBeDestroyedWithTheFocusAndAnOpenMenu) {
  MakeAndShow();
  DropDown(8867);
  const WindowHandle tool = tool_->Handle();
  tool_.reset();
  shell_.Settle();
  EXPECT_FALSE(GetDevice().IsWindow(tool));
  EXPECT_FALSE(GetDevice().Popups().Open());
}

TEST_F(WndPeriodicTest, WorksWithoutAnyElements) {
  elements_.Free();
  MakeAndShow();
  for (const int command : {40050, 40054, 40052, 40053, 40018, 40049, 40054, 40052, 40053}) {
    Command(command);
    shell_.Settle();
    shell_.Tap(Panel().Handle(), {20, 20});
  }
  EXPECT_EQ(navigator_.calls.back(), "show 0");
}

TEST_F(WndPeriodicTest, KeepsItsPlaceWhenTheScaleChanges) {
  MakeAndShow();
  Command(40050);
  ScrollTo(80, 0);
  GetDevice().SetScale(2.0);
  shell_.Settle();
  EXPECT_EQ(Scroll(), (Point{80, 0}));
  EXPECT_EQ(shell_.GetHost().Width(), 480);
}

}  // namespace
}  // namespace orvane
