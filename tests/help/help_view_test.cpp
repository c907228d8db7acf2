// The viewer: opening, failing, showing and leaving.
#include "framework/standard_commands.h"
#include "tests/help/help_bed.h"

namespace orvane::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr const char* kNoSuchPage =
    "Orvane|error|Help page with ID 77 cannot be found. This is an internal error. Please report it to "
    "orvane@example.org.";
constexpr const char* kUnavailable =
    "There was an error while loading the help file (help.dat). The file is missing or corrupt. "
    "Reinstalling the application might solve the problem.Help is not available.";

class HelpViewTest : public HelpTest {
 protected:
  // Pages 1 to 3 in a chain.
  void SaveChain() {
    Save({PageAt(0, 1), PageAt(0, 2), PageAt(0, 3)}, {{1, u"One", {u"First."}, {2, 3}, 10000, 2},
                                                      {2, u"Two", {u"Second."}, {}, 1, 3},
                                                      {3, u"Three", {u"Third."}, {}, 2, 10000}});
  }
};

TEST_F(HelpViewTest, TouchesNoFileBeforeTheFirstWish) {
  EXPECT_FALSE(viewer_->HasPage());
  EXPECT_FALSE(viewer_->IsVisible());
  EXPECT_EQ(viewer_->Contents(), nullptr);
  EXPECT_EQ(Box(), "");
}

TEST_F(HelpViewTest, IsAToolOfItsOwn) {
  SaveChain();
  Show(1);
  EXPECT_EQ(shell_.GetDevice().Title(viewer_->Handle()), u"Help viewer");
  EXPECT_EQ(shell_.GetDevice().WindowRect(viewer_->Handle()), Rect::At(0, 0, 240, 268));
  EXPECT_EQ(shell_.GetDevice().WindowRect(Page().Handle()), Rect::At(0, 23, 240, 245));
  EXPECT_EQ(FrontTool(), "helpView");
  EXPECT_NE(shell_.currentTool, viewer_->Handle());
  EXPECT_EQ(shell_.helpTopic, 0);
}

TEST_F(HelpViewTest, HasItsButtonsInOrder) {
  SaveChain();
  Show(2);
  EXPECT_THAT(Bar(), ElementsAre("8920 0", "|", "8921 18 off", "8922 19", "|", "8923 16", "8924 17"));
  Show(1);
  EXPECT_THAT(Bar(), ElementsAre("8920 0", "|", "8921 18", "8922 19", "|", "8923 16 off", "8924 17"));
  Show(3);
  EXPECT_THAT(Bar(), ElementsAre("8920 0", "|", "8921 18", "8922 19", "|", "8923 16", "8924 17 off"));
  EXPECT_FALSE(shell_.GetDevice().Bars().HasPanelButton());
}

TEST_F(HelpViewTest, ShowsTitleAndPage) {
  SaveChain();
  Show(1);
  EXPECT_EQ(shell_.titles.back(), (DrawnTitle{u"One", false, false}));
  EXPECT_EQ(JoinedText(Page().Handle()), "First.TwoThree");
  EXPECT_EQ(CurrentId(), 1);
}

TEST_F(HelpViewTest, FreesThePageThatAnotherReplaces) {
  SaveChain();
  for (const int id : {1, 2, 3, 3, 1}) {
    Show(id);
    EXPECT_EQ(CurrentId(), id);
    EXPECT_EQ(LoadedBodies(), 1);
  }
}

TEST_F(HelpViewTest, StaysOnItsPageForAnUnknownId) {
  SaveChain();
  Show(2);
  Show(77);
  EXPECT_EQ(Box(), kNoSuchPage);
  Dismiss();
  EXPECT_EQ(CurrentId(), 2);
  EXPECT_TRUE(viewer_->IsVisible());
  EXPECT_EQ(Bar()[2], "8921 18 off");  // nothing was recorded
}

TEST_F(HelpViewTest, DoesNotComeForwardForAnUnknownId) {
  SaveChain();
  Show(77);
  EXPECT_EQ(Box(), kNoSuchPage);
  Dismiss();
  EXPECT_FALSE(viewer_->IsVisible());
  EXPECT_FALSE(viewer_->HasPage());
  Show(1);
  EXPECT_EQ(CurrentId(), 1);
}

TEST_F(HelpViewTest, SaysOnceThatTheFileIsMissing) {
  Show(1);
  EXPECT_EQ(Box(), "Orvane|error|The help file cannot be opened. File name:\n" + Path());
  EXPECT_EQ(shell_.GetDevice().Boxes().Waiting(), 0);
  Dismiss();
  EXPECT_TRUE(viewer_->IsVisible());
  EXPECT_EQ(shell_.titles.back(), (DrawnTitle{u"Orvane Help", true, false}));
  EXPECT_THAT(JoinedText(viewer_->Handle()), HasSubstr(kUnavailable));
  // The title, then the text in (8, 28)-(232, 268) below the title area.
  const std::vector<TextRun> runs = Runs(viewer_->Handle());
  EXPECT_EQ(runs[1].rect.TopLeft(), (Point{8, 26 + 28}));
  for (const TextRun& run : runs) EXPECT_LE(run.rect.right, 232);
  EXPECT_FALSE(viewer_->HasPage());

  // It does not try again, though the file has come.
  EXPECT_TRUE(Press(8920));
  SaveChain();
  for (const int id : {1, 77}) {
    Show(id);
    EXPECT_EQ(Box(), "");
    EXPECT_TRUE(viewer_->IsVisible());
    EXPECT_THAT(JoinedText(viewer_->Handle()), HasSubstr(kUnavailable));
  }
}

TEST_F(HelpViewTest, SaysThatTheFileIsCorrupt) {
  WriteBytes(Path(), "\xDE\xEB");
  Show(1);
  EXPECT_EQ(Box(), "Orvane|error|The help file is corrupt (1).");
  Dismiss();
  EXPECT_THAT(JoinedText(viewer_->Handle()), HasSubstr(kUnavailable));
}

TEST_F(HelpViewTest, SaysThatItIsNoHelpFile) {
  WriteBytes(Path(), "PNG file");
  Show(1);
  EXPECT_EQ(Box(), "Orvane|error|The help file is corrupt (2).");
}

TEST_F(HelpViewTest, HasNoContentsAfterAFailure) {
  Show(1);
  Dismiss();
  EXPECT_TRUE(Press(8922));
  EXPECT_EQ(Box(), "Orvane|exclamation|Cannot show contents because of problems with help file.");
  EXPECT_EQ(viewer_->Contents(), nullptr);
  Dismiss();
  EXPECT_EQ(FrontTool(), "helpView");
  // Escape closes it, page or not.
  EXPECT_EQ(shell_.GetDevice().Send(viewer_->Handle(), kAskStandardCommand,
                                    PackStandardCommand(StandardCommand::kClose)),
            8920);
  EXPECT_TRUE(Press(8920));
  EXPECT_FALSE(viewer_->IsVisible());
}

TEST_F(HelpViewTest, AsksForPatienceUntilItHasTried) {
  viewer_->Show();
  shell_.Settle();
  EXPECT_EQ(shell_.titles.back(), (DrawnTitle{u"Orvane Help", true, false}));
  EXPECT_THAT(JoinedText(viewer_->Handle()), HasSubstr("Please wait while the help file is being loaded..."));
}

TEST_F(HelpViewTest, ShowsWhatADamagedPageLeaves) {
  DatWriter file = BuildHelp({}, {{1, u"One", {u"Text."}, {}, 10000, 10000}});
  std::string bytes = file.Bytes();
  bytes.resize(bytes.size() - 3);  // the last character and the number of links
  WriteBytes(Path(), bytes);
  Show(1);
  EXPECT_EQ(Box(),
            "Orvane|error|ZelBinary::ReadTCharFromChar_C() - attempted to read beyond end of file (2)");
  EXPECT_EQ(shell_.GetDevice().Boxes().Waiting(), 1);
  Dismiss();
  EXPECT_TRUE(viewer_->IsVisible());
  EXPECT_EQ(CurrentId(), 1);
}

TEST_F(HelpViewTest, TakesAMissingNeighbourForAnUnknownPage) {
  Save({}, {{1, u"One", {u"Text."}, {}, 77, 10000}});
  Show(1);
  EXPECT_TRUE(Press(8923));
  EXPECT_EQ(Box(), kNoSuchPage);
  Dismiss();
  EXPECT_EQ(CurrentId(), 1);
}

// --- The way back.

TEST_F(HelpViewTest, GoesBackToWhereItCameFrom) {
  SaveChain();
  Show(1);
  EXPECT_FALSE(Press(8921));
  EXPECT_TRUE(Press(8924));
  EXPECT_EQ(CurrentId(), 2);
  Show(3);
  EXPECT_TRUE(Press(8923));
  EXPECT_EQ(CurrentId(), 2);
  for (const int id : {3, 2, 1}) {
    EXPECT_TRUE(Press(8921));
    EXPECT_EQ(CurrentId(), id);
  }
  EXPECT_FALSE(Press(8921));  // as soon as the oldest is reached
  EXPECT_EQ(Bar()[2], "8921 18 off");
}

TEST_F(HelpViewTest, RemembersTheSamePageTwice) {
  SaveChain();
  Show(1);
  Show(1);
  EXPECT_TRUE(Press(8921));
  EXPECT_EQ(CurrentId(), 1);
  EXPECT_FALSE(Press(8921));
}

TEST_F(HelpViewTest, DoesNotRecordWithoutBeingAsked) {
  SaveChain();
  Show(1);
  viewer_->ShowPage(2, false);
  shell_.Settle();
  EXPECT_EQ(CurrentId(), 2);
  EXPECT_FALSE(Press(8921));
}

TEST_F(HelpViewTest, KeepsNinetyNineOfAHundredAndFiftyPages) {
  std::vector<BuiltPage> pages;
  for (int id = 0; id < 151; ++id) pages.push_back({id, u"P", {u"Text."}, {}, 10000, 10000});
  Save({}, pages);
  for (int id = 0; id < 151; ++id) Show(id);
  int steps = 0;
  while (Press(8921)) {
    ++steps;
    ASSERT_EQ(CurrentId(), 150 - steps);
  }
  EXPECT_EQ(steps, 99);
  EXPECT_EQ(CurrentId(), 51);
  // And on from here.
  Show(3);
  EXPECT_TRUE(Press(8921));
  EXPECT_EQ(CurrentId(), 51);
  EXPECT_FALSE(Press(8921));
}

TEST_F(HelpViewTest, KeepsItsHistoryWhileItIsClosed) {
  SaveChain();
  Show(1);
  Show(2);
  EXPECT_TRUE(Press(8920));
  EXPECT_FALSE(viewer_->IsVisible());
  viewer_->Show();
  shell_.Settle();
  EXPECT_EQ(CurrentId(), 2);
  EXPECT_TRUE(Press(8921));
  EXPECT_EQ(CurrentId(), 1);
}

// --- Coming and going.

TEST_F(HelpViewTest, GivesTheToolBelowBack) {
  SaveChain();
  const BarHandle main = shell_.GetDevice().Bars().Shown();
  Show(1);
  EXPECT_NE(shell_.GetDevice().Bars().Shown(), main);
  EXPECT_EQ(shell_.GetDevice().Focus(), Page().Handle());
  EXPECT_TRUE(Press(8920));
  EXPECT_EQ(FrontTool(), "wnd_probe");
  EXPECT_EQ(shell_.GetDevice().Focus(), below_->Handle());
  EXPECT_EQ(shell_.GetDevice().Bars().Shown(), main);
}

TEST_F(HelpViewTest, PutsTheInputPanelDownAndUpAgain) {
  SaveChain();
  InputPanel& panel = shell_.GetDevice().Panel();
  panel.Request(true);
  shell_.Settle();
  ASSERT_TRUE(panel.Visible());
  Show(1);
  EXPECT_FALSE(panel.Visible());
  Show(2);  // visible already: what is remembered stays
  EXPECT_TRUE(Press(8922));
  EXPECT_TRUE(Press(8511));
  EXPECT_FALSE(panel.Visible());
  EXPECT_TRUE(Press(8920));
  EXPECT_TRUE(panel.Visible());
  // A page out of the contents changes nothing of that.
  Show(1);
  EXPECT_TRUE(Press(8922));
  EXPECT_TRUE(Press(8510));
  EXPECT_TRUE(Press(8920));
  EXPECT_TRUE(panel.Visible());
  // The user may have raised it meanwhile.
  Show(1);
  panel.Toggle();
  ASSERT_TRUE(panel.Visible());
  EXPECT_TRUE(Press(8920));
  EXPECT_TRUE(panel.Visible());
  panel.Request(false);
  Show(1);
  EXPECT_TRUE(Press(8920));
  EXPECT_FALSE(panel.Visible());
}

TEST_F(HelpViewTest, RaisesThePanelThatAUserRaised) {
  // Also where text boxes may not raise it.
  TestShell shell({.panelMode = PanelMode::kNever});
  SaveChain();
  auto viewer = MakeWindow<helpView>(shell, Path(), [&shell](const HelpFile& help, auto openPage) {
    return MakeWindow<helpCont>(shell, help, std::move(openPage));
  });
  shell.GetDevice().Panel().Toggle();
  shell.Settle();
  viewer->ShowPage(1);
  shell.Settle();
  EXPECT_FALSE(shell.GetDevice().Panel().Visible());
  viewer->Hide();
  shell.Settle();
  EXPECT_TRUE(shell.GetDevice().Panel().Visible());
}

TEST_F(HelpViewTest, MayShowAnotherPageWhenAMessageIsDismissed) {
  SaveChain();
  Show(1);
  Show(77);
  shell_.GetDevice().Boxes().WhenAllDismissed([this] { viewer_->ShowPage(3); });
  shell_.GetDevice().Boxes().Dismiss();
  shell_.Settle();
  EXPECT_EQ(CurrentId(), 3);
  EXPECT_EQ(JoinedText(Page().Handle()), "Third.");
}

TEST_F(HelpViewTest, CanBeDestroyedWhileItShows) {
  SaveChain();
  Show(1);
  EXPECT_TRUE(Press(8922));
  const WindowHandle viewer = viewer_->Handle();
  const WindowHandle contents = contents_->Handle();
  viewer_.reset();
  shell_.Settle();
  EXPECT_FALSE(shell_.GetDevice().IsWindow(viewer));
  EXPECT_FALSE(shell_.GetDevice().IsWindow(contents));
  EXPECT_EQ(FrontTool(), "wnd_probe");
}

TEST_F(HelpViewTest, IgnoresCommandsThatAreNotItsOwn) {
  SaveChain();
  for (const int command : {8921, 8923, 8924, 0, 8820, 40064}) {
    shell_.GetDevice().Send(viewer_->Handle(), WM_COMMAND, PackCommand(command, 0));
  }
  EXPECT_FALSE(viewer_->HasPage());
  Show(1);
  for (const int command : {8921, 8923, 0, 8820, 40064}) {
    shell_.GetDevice().Send(viewer_->Handle(), WM_COMMAND, PackCommand(command, 0));
  }
  EXPECT_EQ(CurrentId(), 1);
}

}  // namespace
}  // namespace orvane::testing
