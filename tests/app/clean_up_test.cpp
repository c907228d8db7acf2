// The end of the program, whatever brought it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/app/app_bed.h"

namespace orvane::app_test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const Log kDestroyed{"destroy wnd_periodic", "destroy wnd_element", "destroy wnd_mass",
                     "destroy wnd_find",     "destroy wnd_series",  "destroy wnd_balancer",
                     "destroy wnd_plot",     "destroy wnd_plotset", "destroy wnd_const",
                     "destroy helpView"};

TEST(CleanUp, GoesInItsOrder) {
  Bed bed;
  bed.Start();
  bed.Command(40010);
  bed.Command(40064);
  bed.log.clear();
  bed.Command(40016);
  const Log log = Steps(bed.log);
  ASSERT_EQ(log.size(), 3 + kDestroyed.size() + 3);
  Log hidden(log.begin(), log.begin() + 3);
  EXPECT_THAT(hidden,
              ::testing::UnorderedElementsAre("hide wnd_periodic", "hide wnd_element", "hide helpView"));
  EXPECT_EQ(Log(log.begin() + 3, log.begin() + 13), kDestroyed);
  EXPECT_THAT(Log(log.begin() + 13, log.end()),
              ElementsAre("bar destroy 1 0 0", "bar destroy 2 0 0", "main window destroyed"));
  EXPECT_EQ(bed.App().Ended(), 0);
}

TEST(CleanUp, LeavesNothingOfTheProgram) {
  Bed bed;
  bed.Start();
  bed.Command(40016);
  EXPECT_EQ(bed.App().Elements().CategoryCount(), 0);
  EXPECT_EQ(bed.App().BackBuffer().Width(), 0);
  EXPECT_EQ(bed.Bars().Shown(), kNoBar);
  EXPECT_THAT(bed.TheDevice().VisibleWindows(), IsEmpty());
  EXPECT_EQ(bed.TheDevice().FindWindow(kMainWindowClass, u""), kNoWindow);
  EXPECT_EQ(bed.TheDevice().MainWindow(), kNoWindow);
  for (const ToolSlot slot : kAllSlots) EXPECT_EQ(bed.App().Tool(slot), nullptr);
  EXPECT_THAT(bed.App().Tools().Tools(), IsEmpty());
}

TEST(CleanUp, TakesTheSharedIconsAway) {
  Bed bed;
  bed.Start();
  const auto paper = bed.TheDevice().CreateSurface({40, 40});
  paper->GetCanvas().FillRect(Rect::At(0, 0, 40, 40), kWhite);
  bed.Command(40016);
  for (int icon = 1; icon <= 6; ++icon) bed.App().DrawSharedIcon(paper->GetCanvas(), 20, 20, icon);
  for (int y = 0; y < 40; ++y) {
    for (int x = 0; x < 40; ++x) ASSERT_EQ(paper->DevicePixel(x, y) & 0xFFFFFFu, 0xFFFFFFu);
  }
}

// The windows go first then, but every tool object still gets its end, in which it writes its settings.
TEST(CleanUp, AfterTheWindowWasClosedIsTheSame) {
  Bed bed;
  bed.Start();
  bed.log.clear();
  bed.TheDevice().CloseFromOutside();
  bed.Settle();
  EXPECT_EQ(Only(bed.log, "destroy"), kDestroyed);
  EXPECT_EQ(Only(bed.log, "main window destroyed").size(), 1u);
  EXPECT_EQ(Only(bed.log, "bar destroy").size(), 2u);
  EXPECT_EQ(bed.App().Ended(), 0);
}

TEST(CleanUp, HappensOnce) {
  Bed bed;
  bed.Start();
  bed.Command(40016);
  bed.log.clear();
  bed.App().AfterStep();
  bed.Settle();
  bed.Destroy();
  EXPECT_THAT(Steps(bed.log), IsEmpty());
}

TEST(CleanUp, HappensWhenTheProgramIsDroppedWhileItRuns) {
  Bed bed;
  bed.Start();
  bed.log.clear();
  bed.Destroy();
  EXPECT_EQ(Only(bed.log, "destroy"), kDestroyed);
  EXPECT_EQ(bed.TheDevice().FindWindow(kMainWindowClass, u""), kNoWindow);
}

TEST(CleanUp, WaitsForNobodyWithABoxOrDialogOpen) {
  Bed bed;
  bed.Start();
  bed.Command(40017);
  bed.App().Tell(u"Unread.", MessageIcon::kInformation);
  bed.TheDevice().CloseFromOutside();
  bed.Settle();
  EXPECT_EQ(bed.App().Ended(), 0);
  EXPECT_FALSE(bed.TheDevice().Boxes().Open());
  EXPECT_EQ(bed.TheDevice().DialogBoxes().FrontName(), "");
}

TEST(CleanUp, LeavesNoMenuAndNoInputPanelOpen) {
  Bed bed;
  bed.Start();
  bed.TheDevice().Panel().Toggle();
  MenuItem entry;
  entry.id = 5;
  entry.label = u"Entry";
  bed.TheDevice().Popups().Track(Menu({entry}), {30, 295}, bed.TheDevice().MainWindow());
  ASSERT_TRUE(bed.TheDevice().Popups().Open());
  ASSERT_TRUE(bed.TheDevice().Panel().Visible());
  bed.TheDevice().CloseFromOutside();
  bed.Settle();
  EXPECT_FALSE(bed.TheDevice().Popups().Open());
  EXPECT_FALSE(bed.TheDevice().Panel().Visible());
}

TEST(CleanUp, SkipsToolsThatWereNeverThere) {
  Bed bed({.absent = {ToolSlot::kPeriodic, ToolSlot::kHelpViewer, ToolSlot::kMass}});
  bed.Start();
  bed.log.clear();
  bed.Command(40016);
  EXPECT_EQ(Only(bed.log, "destroy").size(), kToolSlots - 3);
  EXPECT_EQ(bed.App().Ended(), 0);
}

TEST(CleanUp, TheFirstExitCodeCounts) {
  Bed bed;
  bed.Start();
  bed.TheDevice().PostQuit(7);
  bed.Settle();
  EXPECT_EQ(bed.App().Ended(), 7);
}

}  // namespace
}  // namespace orvane::app_test
