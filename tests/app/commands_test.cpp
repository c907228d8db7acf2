// What the main window does with commands and with what it is told besides.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/app/app_bed.h"

namespace orvane::app_test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Entry {
  const char16_t* label;
  int id;
};

TEST(Commands, TheMenusOfferEveryCommandInItsPlace) {
  Bed bed;
  bed.Start();
  const std::vector<Entry> app{{u"About", 40017}, {u"Help", 40064}, {u"Exit", 40016}};
  const std::vector<Entry> tools{
      {u"Periodic table", 40008}, {u"Find element", 40009},           {u"Show element info", 40010},
      {u"Show help", 40167},      {u"Electrochemical series", 40011}, {u"Constants database", 40146},
      {u"Molecular mass", 40007}, {u"Equation balancer", 40013},      {u"Quick plot", 40065}};
  const std::vector<Entry>* const expected[] = {&app, &tools};
  for (int position = 0; position < 2; ++position) {
    const Menu* menu = bed.Bars().ButtonMenu(bed.App().MainBar(), position);
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->Items().size(), expected[position]->size());
    for (std::size_t i = 0; i < expected[position]->size(); ++i) {
      EXPECT_EQ(menu->Items()[i].label, (*expected[position])[i].label);
      EXPECT_EQ(menu->Items()[i].id, (*expected[position])[i].id);
      EXPECT_TRUE(menu->Items()[i].enabled);
    }
  }
}

struct Switch {
  int command;
  ToolSlot slot;
};
constexpr Switch kSwitches[] = {
    {40007, ToolSlot::kMass},      {40008, ToolSlot::kPeriodic}, {40009, ToolSlot::kFind},
    {40011, ToolSlot::kSeries},    {40013, ToolSlot::kBalancer}, {40065, ToolSlot::kPlot},
    {40146, ToolSlot::kConstants},
};

TEST(Commands, EachToolHasItsOwn) {
  Bed bed;
  bed.Start();
  for (const Switch& s : kSwitches) {
    bed.Command(s.command);
    EXPECT_THAT(bed.VisibleTools(), ElementsAre(NameOf(s.slot))) << s.command;
    EXPECT_EQ(bed.App().CurrentTool(), bed.Tool(s.slot).Handle()) << s.command;
    EXPECT_EQ(bed.App().Tools().Top(), &bed.Tool(s.slot)) << s.command;
    EXPECT_EQ(bed.App().Tools().Tools().size(), 1u) << s.command;
  }
}

TEST(Commands, AMenuEntryLeadsToItsTool) {
  Bed bed;
  bed.Start();
  ASSERT_TRUE(bed.Bars().OpenMenu(1));
  bed.Settle();
  ASSERT_TRUE(bed.TheDevice().Popups().ChooseLabel(u"Electrochemical series"));
  bed.Settle();
  EXPECT_THAT(bed.VisibleTools(), ElementsAre("wnd_series"));
}

TEST(Commands, ThoseOfNobodyGoToTheCurrentTool) {
  Bed bed;
  bed.Start();
  bed.Command(40007);
  bed.log.clear();
  for (const int id : {8820, 1, 0, 40018, 65535}) bed.Command(id);
  EXPECT_THAT(Only(bed.log, "command"),
              ElementsAre("command wnd_mass 8820 0", "command wnd_mass 1 0", "command wnd_mass 0 0",
                          "command wnd_mass 40018 0", "command wnd_mass 65535 0"));
}

TEST(Commands, NeitherPlotSettingsNorHelpContentsAreSwitchedTo) {
  // The screens without a command of their own; whatever number they may be given goes on to the tool.
  Bed bed;
  bed.Start();
  bed.log.clear();
  for (int id = 40000; id < 40220; ++id) {
    const bool mainCommand = id == 40007 || id == 40008 || id == 40009 || id == 40010 || id == 40011 ||
                             id == 40013 || id == 40016 || id == 40017 || id == 40064 || id == 40065 ||
                             id == 40146 || id == 40167;
    if (!mainCommand) bed.Command(id);
  }
  EXPECT_EQ(Only(bed.log, "command wnd_periodic").size(), 220u - 12u);
  EXPECT_THAT(bed.VisibleTools(), ElementsAre("wnd_periodic"));
}

TEST(Commands, WithoutACurrentToolNothingHappens) {
  Bed bed({.absent = {ToolSlot::kPeriodic}});
  bed.Start();
  ASSERT_EQ(bed.App().CurrentTool(), kNoWindow);
  bed.log.clear();
  bed.Command(8820);
  BarNotification notification{bed.App().MainBar(), TBN_DROPDOWN, 8867};
  EXPECT_EQ(
      bed.TheDevice().Send(bed.App().MainWindow(), WM_NOTIFY, 0, reinterpret_cast<LParam>(&notification)), 0);
  EXPECT_EQ(bed.TheDevice().Send(bed.App().MainWindow(), WM_SETTINGCHANGE, 1, 2), 0);
  EXPECT_THAT(bed.log, IsEmpty());
}

TEST(Commands, ADropDownButtonTellsTheToolThatItWasOne) {
  Bed bed;
  bed.PartOf(ToolSlot::kPeriodic).buttons = {8867};
  bed.Start();
  bed.log.clear();
  EXPECT_TRUE(bed.Bars().Press(8867));
  bed.Settle();
  EXPECT_THAT(Only(bed.log, "command"), ElementsAre("command wnd_periodic 8867 1"));
}

TEST(Commands, APushButtonIsACommandLikeAMenuEntry) {
  Bed bed;
  bed.Start();
  bed.App().AddBarButton(600, 3, -1, TBSTATE_ENABLED, ButtonStyle::kPush);
  bed.log.clear();
  EXPECT_TRUE(bed.Bars().Press(600));
  bed.Settle();
  EXPECT_THAT(Only(bed.log, "command"), ElementsAre("command wnd_periodic 600 0"));
}

TEST(Commands, OtherNotificationsAreNoDropDowns) {
  Bed bed;
  bed.Start();
  bed.log.clear();
  BarNotification notification{bed.App().MainBar(), TBN_DROPDOWN + 1, 8867};
  bed.TheDevice().Send(bed.App().MainWindow(), WM_NOTIFY, 0, reinterpret_cast<LParam>(&notification));
  bed.TheDevice().Send(bed.App().MainWindow(), WM_NOTIFY, 0, 0);
  EXPECT_THAT(bed.log, IsEmpty());
}

TEST(Commands, ASettingChangeGoesToTheCurrentToolAndItsAnswerBack) {
  Bed bed;
  bed.PartOf(ToolSlot::kPeriodic).settingResult = 77;
  bed.PartOf(ToolSlot::kMass).settingResult = -3;
  bed.Start();
  bed.log.clear();
  EXPECT_EQ(bed.TheDevice().Send(bed.App().MainWindow(), WM_SETTINGCHANGE, 11, 22), 77);
  bed.Command(40007);
  EXPECT_EQ(bed.TheDevice().Send(bed.App().MainWindow(), WM_SETTINGCHANGE, 33, -44), -3);
  EXPECT_THAT(Only(bed.log, "setting"), ElementsAre("setting wnd_periodic 11 22", "setting wnd_mass 33 -44"));
}

TEST(Commands, TheInputPanelTellsTheCurrentToolThatItRises) {
  Bed bed;
  bed.Start();
  bed.log.clear();
  bed.TheDevice().Panel().Request(true);
  bed.Settle();
  EXPECT_EQ(Only(bed.log, "setting wnd_periodic").size(), 1u);
  EXPECT_TRUE(bed.Bars().PressPanelButton());
  bed.Settle();
  EXPECT_EQ(Only(bed.log, "setting wnd_periodic").size(), 2u);
  EXPECT_FALSE(bed.TheDevice().Panel().Visible());
}

// --- Element info and help.

TEST(ElementInfo, ShowsTheFirstElementWhenNoneIsSelected) {
  Bed bed;
  bed.Start();
  bed.log.clear();
  bed.Command(40010);
  EXPECT_THAT(Only(bed.log, "element"), ElementsAre("element 0"));
}

TEST(ElementInfo, ShowsTheSelectedElement) {
  Bed bed;
  bed.Start();
  for (const int element : {25, 0, 111}) {
    bed.log.clear();
    bed.App().SelectElement(element);
    EXPECT_EQ(bed.App().SelectedElement(), element);
    bed.Command(40010);
    EXPECT_THAT(Only(bed.log, "element"), ElementsAre("element " + std::to_string(element)));
  }
}

TEST(ElementInfo, LeavesTopicButtonsAndTheToolBelow) {
  Bed bed;
  bed.PartOf(ToolSlot::kPeriodic).buttons = {8867, 8868};
  bed.PartOf(ToolSlot::kPeriodic).topic = 31;
  bed.Start();
  bed.log.clear();
  bool waiting = false;
  bed.PartOf(ToolSlot::kElement).whenShown = [&] { waiting = bed.TheDevice().WaitCursor(); };
  bed.Command(40010);
  EXPECT_TRUE(waiting);
  EXPECT_FALSE(bed.TheDevice().WaitCursor());
  EXPECT_EQ(bed.App().HelpTopic(), 31);
  EXPECT_THAT(Only(bed.log, "bar"), IsEmpty());
  EXPECT_THAT(bed.BarIds(), ElementsAre(0, 0, 0, 8867, 8868));
  EXPECT_THAT(bed.VisibleTools(), ElementsAre("wnd_element", "wnd_periodic"));
  EXPECT_EQ(bed.App().Tools().Top(), &bed.Tool(ToolSlot::kElement));

  // Put away again, it uncovers the tool as it was.
  bed.Tool(ToolSlot::kElement).Hide();
  bed.Settle();
  EXPECT_EQ(bed.App().CurrentTool(), bed.Tool(ToolSlot::kPeriodic).Handle());
  EXPECT_THAT(bed.BarIds(), ElementsAre(0, 0, 0, 8867, 8868));
}

TEST(Help, OpensTheTopicOfTheCurrentTool) {
  Bed bed;
  bed.PartOf(ToolSlot::kPeriodic).buttons = {8867};
  bed.Start();
  bed.log.clear();
  bool waiting = false;
  bed.PartOf(ToolSlot::kHelpViewer).whenShown = [&] { waiting = bed.TheDevice().WaitCursor(); };
  bed.Command(40064);
  bed.App().SetHelpTopic(2100);
  bed.Command(40064);
  EXPECT_THAT(Only(bed.log, "page"), ElementsAre("page 0", "page 2100"));
  EXPECT_TRUE(waiting);
  EXPECT_FALSE(bed.TheDevice().WaitCursor());
  EXPECT_EQ(bed.App().HelpTopic(), 2100);
  EXPECT_THAT(bed.BarIds(), ElementsAre(0, 0, 0, 8867));
  EXPECT_THAT(bed.VisibleTools(), ElementsAre("helpView", "wnd_periodic"));
}

TEST(Help, ShowHelpOpensTheFirstPageOnceAndComesBackAfterwards) {
  Bed bed;
  bed.Start();
  bed.log.clear();
  bed.App().SetHelpTopic(2100);
  bed.Command(40167);
  EXPECT_THAT(Only(bed.log, "page"), ElementsAre("page 0"));
  EXPECT_EQ(bed.App().HelpTopic(), 2100);
  bed.Command(40007);
  EXPECT_THAT(bed.VisibleTools(), ElementsAre("wnd_mass"));
  bool waiting = false;
  bed.PartOf(ToolSlot::kHelpViewer).whenShown = [&] { waiting = bed.TheDevice().WaitCursor(); };
  bed.Command(40167);
  EXPECT_THAT(Only(bed.log, "page"), ElementsAre("page 0"));
  EXPECT_TRUE(waiting);
  EXPECT_FALSE(bed.TheDevice().WaitCursor());
  EXPECT_THAT(bed.VisibleTools(), ElementsAre("helpView", "wnd_mass"));
  EXPECT_EQ(bed.App().Tools().Top(), &bed.Tool(ToolSlot::kHelpViewer));
}

// --- Screens that are not there.

TEST(AbsentScreens, TheirMenuEntriesAreDisabled) {
  Bed bed({.absent = {ToolSlot::kMass, ToolSlot::kHelpViewer, ToolSlot::kElement, ToolSlot::kConstants}});
  bed.Start();
  std::vector<int> disabled;
  for (const int position : {0, 1}) {
    for (const MenuItem& item : bed.Bars().ButtonMenu(bed.App().MainBar(), position)->Items()) {
      if (!item.enabled) disabled.push_back(item.id);
    }
  }
  EXPECT_THAT(disabled, ElementsAre(40064, 40010, 40167, 40146, 40007));
}

TEST(AbsentScreens, TheirCommandsLeaveEverythingAsItIs) {
  Bed bed({.absent = {ToolSlot::kMass, ToolSlot::kHelpViewer, ToolSlot::kElement, ToolSlot::kConstants}});
  bed.PartOf(ToolSlot::kPeriodic).buttons = {8867};
  bed.Start();
  bed.App().SetHelpTopic(5);
  bed.log.clear();
  for (const int id : {40064, 40010, 40167, 40146, 40007}) bed.Command(id);
  bed.Key(VK_F1);
  EXPECT_THAT(Only(bed.log, "command"), IsEmpty());
  EXPECT_THAT(Only(bed.log, "bar"), IsEmpty());
  EXPECT_EQ(bed.App().HelpTopic(), 5);
  EXPECT_THAT(bed.VisibleTools(), ElementsAre("wnd_periodic"));
}

// --- Keys.

constexpr Modifiers kControl{.shift = false, .control = true, .alt = false};

TEST(Shortcuts, F1OpensTheHelp) {
  Bed bed;
  bed.Start();
  bed.App().SetHelpTopic(8);
  bed.Key(VK_F1);
  EXPECT_THAT(Only(bed.log, "page"), ElementsAre("page 8"));
}

TEST(Shortcuts, ControlQLeaves) {
  Bed bed;
  bed.Start();
  bed.Key('Q');
  bed.Key('Q', {.shift = true, .control = true, .alt = false});
  EXPECT_EQ(bed.App().Ended(), std::nullopt);
  bed.Key('Q', kControl);
  EXPECT_EQ(bed.App().Ended(), 0);
}

// Without what the screen showed in between.
Log CommandsOf(const Log& log) {
  Log commands;
  for (const std::string& line : log) {
    if (line.rfind("command ", 0) == 0) commands.push_back(line);
  }
  return commands;
}

TEST(StandardKeys, RunTheCommandsOfTheToolInFront) {
  Bed bed;
  bed.PartOf(ToolSlot::kMass).standard = [](StandardCommand command) -> Result {
    return command == StandardCommand::kCopy ? 8820 : command == StandardCommand::kPaste ? 8821 : 0;
  };
  bed.PartOf(ToolSlot::kElement).standard = [](StandardCommand command) -> Result {
    return command == StandardCommand::kClose ? 8350 : command == StandardCommand::kCopy ? 40186 : 0;
  };
  bed.Start();
  bed.Command(40007);
  bed.log.clear();
  bed.Key('C', kControl);
  bed.Key('V', kControl);
  EXPECT_EQ(CommandsOf(bed.log), (Log{"command wnd_mass 8820 0", "command wnd_mass 8821 0"}));
  bed.Tool(ToolSlot::kElement).Show();
  bed.log.clear();
  bed.Key('C', kControl);
  bed.Key(VK_ESCAPE);
  EXPECT_EQ(CommandsOf(bed.log), (Log{"command wnd_element 40186 0", "command wnd_element 8350 0"}));
}

TEST(StandardKeys, DoNothingInAToolThatHasNoSuchCommand) {
  Bed bed;
  bed.Start();
  bed.Command(40011);
  bed.log.clear();
  bed.Key('C', kControl);
  bed.Key('V', kControl);
  bed.Key(VK_ESCAPE);
  EXPECT_EQ(CommandsOf(bed.log), Log{});
  for (ZelWindow* tool : std::vector<ZelWindow*>(bed.App().Tools().Tools())) tool->HideOnly();
  bed.log.clear();
  bed.Key(VK_ESCAPE);
  EXPECT_EQ(CommandsOf(bed.log), Log{});
}

// Escape closes the menu that is open; only the next one is for the tool.
TEST(StandardKeys, WaitForAnOpenMenuOrMessageBox) {
  Bed bed;
  bed.PartOf(ToolSlot::kElement).standard = [](StandardCommand) -> Result { return 8350; };
  bed.Start();
  bed.Tool(ToolSlot::kElement).Show();
  bed.Tap({18, 307});  // App on the bar
  ASSERT_TRUE(bed.TheDevice().Popups().Open());
  bed.log.clear();
  bed.Key(VK_ESCAPE);
  EXPECT_FALSE(bed.TheDevice().Popups().Open());
  EXPECT_EQ(CommandsOf(bed.log), Log{});
  bed.App().Tell(u"Wait.", MessageIcon::kInformation);
  bed.Settle();
  bed.log.clear();
  bed.Key('C', kControl);
  EXPECT_EQ(CommandsOf(bed.log), Log{});
  bed.TheDevice().Boxes().DismissAll();
  bed.Key(VK_ESCAPE);
  EXPECT_EQ(CommandsOf(bed.log), (Log{"command wnd_element 8350 0"}));
}

TEST(Shortcuts, AMessageBoxOrTheAboutBoxTakesTheKeys) {
  Bed bed;
  bed.Start();
  bed.App().Tell(u"First.", MessageIcon::kInformation);
  bed.Key(VK_F1);
  bed.Key('Q', kControl);
  bed.TheDevice().Boxes().DismissAll();
  bed.Settle();
  bed.Command(40017);
  bed.Key(VK_F1);
  bed.Key('Q', kControl);
  EXPECT_EQ(bed.App().Ended(), std::nullopt);
  EXPECT_THAT(Only(bed.log, "page"), IsEmpty());
}

// --- The about box.

TEST(AboutBox, CoversTheAreaOfTheTools) {
  Bed bed;
  bed.Start();
  const std::vector<std::uint32_t> before = bed.host.Pixels();
  bed.Command(40017);
  const std::vector<std::uint32_t>& after = bed.host.Pixels();
  ASSERT_EQ(before.size(), std::size_t{240 * 320});
  for (std::size_t i = 0; i < before.size(); ++i) {
    const std::size_t y = i / 240;
    if (y < 26 || y >= 294) {
      ASSERT_EQ(before[i], after[i]) << "at " << i % 240 << ", " << y;
    }
  }
  // The stand-in below is white all over.
  for (const Point corner : {Point{0, 26}, Point{239, 26}, Point{0, 293}, Point{239, 293}}) {
    EXPECT_NE(bed.host.PixelAt(corner, 1), kWhite);
  }
}

TEST(AboutBox, NamesProgramAndVersion) {
  Bed bed;
  bed.Start();
  bed.Command(40017);
  EXPECT_EQ(bed.TheDevice().DialogBoxes().FrontName(), "about");
  const std::vector<std::string> texts = bed.Texts("dialog");
  EXPECT_THAT(texts, ::testing::Contains("Orvane"));
  EXPECT_THAT(texts, ::testing::Contains("Version 1.41 (ARM 2003)"));
  EXPECT_THAT(texts, ::testing::Contains(::testing::MatchesRegex("_+")).Times(2));
  for (const ScreenRun& run : bed.TheDevice().VisibleRuns()) {
    if (run.window != "dialog") continue;
    EXPECT_EQ(run.run.font.face, u"Tahoma");
  }
}

Point MiddleOf(Bed& bed, std::string_view text) {
  for (const ScreenRun& run : bed.TheDevice().VisibleRuns()) {
    const Rect rect = run.run.rect;
    if (run.window == "dialog" && ToUtf8(run.run.text) == text) {
      return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
    }
  }
  ADD_FAILURE() << "no " << text;
  return {};
}

TEST(AboutBox, TakesAllInputUntilOk) {
  Bed bed;
  bed.Start();
  bed.Command(40017);
  EXPECT_TRUE(bed.TheDevice().DialogBoxes().ModalOpen());
  bed.Tap({18, 307});   // App on the bar
  bed.Tap({227, 13});   // the close box
  bed.Tap({120, 100});  // a text of the dialog
  EXPECT_FALSE(bed.TheDevice().Popups().Open());
  EXPECT_EQ(bed.App().Ended(), std::nullopt);
  EXPECT_EQ(bed.TheDevice().DialogBoxes().FrontName(), "about");
  bed.Tap(MiddleOf(bed, "OK"));
  EXPECT_EQ(bed.TheDevice().DialogBoxes().FrontName(), "");
  bed.Command(40017);
  bed.Key(VK_RETURN);
  EXPECT_EQ(bed.TheDevice().DialogBoxes().FrontName(), "");
}

}  // namespace
}  // namespace orvane::app_test
