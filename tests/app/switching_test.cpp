// Going from one tool to another.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/app/app_bed.h"

namespace orvane::app_test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(Switching, GoesStepByStepUnderTheWaitCursor) {
  Bed bed;
  bed.PartOf(ToolSlot::kPeriodic).buttons = {8867, 8868, 8869};
  bed.PartOf(ToolSlot::kMass).buttons = {8820, 8821};
  bed.Start();
  bed.log.clear();
  bed.Command(40007);
  EXPECT_THAT(Steps(bed.log), ElementsAre("cursor wait", "bar delete 2 3 0", "bar delete 2 3 0",
                                          "bar delete 2 3 0", "show wnd_mass", "bar add 2 8820 3",
                                          "bar add 2 8821 4", "hide wnd_periodic", "cursor arrow"));
}

TEST(Switching, SetsTheTopicBackBeforeTheToolSetsItsOwn) {
  Bed bed;
  bed.PartOf(ToolSlot::kPeriodic).topic = 31;
  bed.PartOf(ToolSlot::kMass).topic = 2100;
  bed.Start();
  EXPECT_EQ(bed.App().HelpTopic(), 31);
  bed.Command(40007);
  EXPECT_EQ(bed.App().HelpTopic(), 2100);
  bed.Command(40009);  // sets none
  EXPECT_EQ(bed.App().HelpTopic(), 0);
}

TEST(Switching, LeavesOneToolVisibleFromEveryStack) {
  Bed bed;
  bed.Start();
  bed.Command(40010);
  bed.Command(40064);
  bed.Tool(ToolSlot::kPlotSettings).Show();
  bed.Settle();
  EXPECT_EQ(bed.VisibleTools().size(), 4u);
  bed.Command(40013);
  EXPECT_THAT(bed.VisibleTools(), ElementsAre("wnd_balancer"));
  EXPECT_EQ(bed.App().Tools().Tools().size(), 1u);
  EXPECT_EQ(bed.App().CurrentTool(), bed.Tool(ToolSlot::kBalancer).Handle());
}

// The contents of the help are made by the viewer when they are asked for: a tool without a slot.
TEST(Switching, HidesAToolThatAnotherHasMade) {
  Bed bed;
  bed.Start();
  const Part part;
  const auto contents = MakeWindow<StandIn>(bed.App(), "helpCont", part, bed.log);
  contents->Show();
  bed.Settle();
  EXPECT_EQ(bed.App().Tools().Top(), contents.get());
  bed.log.clear();
  bed.Command(40007);
  EXPECT_FALSE(contents->IsVisible());
  EXPECT_EQ(Only(bed.log, "hide helpCont").size(), 1u);
  EXPECT_THAT(bed.VisibleTools(), ElementsAre("wnd_mass"));
  EXPECT_EQ(bed.App().Tools().Tools().size(), 1u);
}

TEST(Switching, ToTheCurrentToolRunsTheWholeSwitchAgain) {
  Bed bed;
  bed.PartOf(ToolSlot::kPeriodic).buttons = {8867, 8868};
  bed.PartOf(ToolSlot::kPeriodic).topic = 31;
  bed.Start();
  bed.App().SetHelpTopic(99);
  bed.log.clear();
  bed.Command(40008);
  EXPECT_THAT(Steps(bed.log),
              ElementsAre("cursor wait", "bar delete 2 3 0", "bar delete 2 3 0", "hide wnd_periodic",
                          "show wnd_periodic", "bar add 2 8867 3", "bar add 2 8868 4", "cursor arrow"));
  EXPECT_EQ(bed.App().HelpTopic(), 31);
  EXPECT_THAT(bed.BarIds(), ElementsAre(0, 0, 0, 8867, 8868));
  EXPECT_THAT(bed.VisibleTools(), ElementsAre("wnd_periodic"));
  EXPECT_EQ(bed.TheDevice().Focus(), bed.Tool(ToolSlot::kPeriodic).Handle());
}

TEST(Switching, ToAToolUnderAnotherBringsItForwardWithItsButtonsOnce) {
  Bed bed;
  bed.PartOf(ToolSlot::kPeriodic).buttons = {8867, 8868};
  bed.Start();
  bed.Command(40010);
  bed.log.clear();
  bed.Command(40008);
  EXPECT_EQ(Only(bed.log, "show").size(), 1u);
  EXPECT_EQ(Only(bed.log, "hide wnd_element").size(), 1u);
  EXPECT_THAT(bed.BarIds(), ElementsAre(0, 0, 0, 8867, 8868));
  EXPECT_THAT(bed.VisibleTools(), ElementsAre("wnd_periodic"));
  EXPECT_EQ(bed.App().CurrentTool(), bed.Tool(ToolSlot::kPeriodic).Handle());
}

TEST(Switching, NeverMakesAToolAnew) {
  Bed bed;
  bed.Start();
  for (int round = 0; round < 3; ++round) {
    for (const int id : {40007, 40008, 40009, 40011, 40013, 40065, 40146}) bed.Command(id);
  }
  EXPECT_EQ(Only(bed.log, "make").size(), kToolSlots);
  EXPECT_THAT(Only(bed.log, "destroy"), IsEmpty());
}

TEST(Switching, ToTheConstantsLoadsThemFirst) {
  Bed bed;
  bed.PartOf(ToolSlot::kPeriodic).buttons = {8867};
  bed.Start();
  for (const int id : {40007, 40008, 40009, 40010, 40011, 40013, 40064, 40065, 40167}) bed.Command(id);
  EXPECT_THAT(Only(bed.log, "load"), IsEmpty());
  bed.Command(40008);
  bed.log.clear();
  bed.Command(40146);
  EXPECT_TRUE(InOrder(bed.log, "load constants", "bar delete 2 3 0"));
  EXPECT_TRUE(InOrder(bed.log, "load constants", "show wnd_const"));
  EXPECT_THAT(bed.VisibleTools(), ElementsAre("wnd_const"));
}

// --- What the switch rests on.

TEST(AddedButtons, StandBehindTheSeparatorInTheirOrder) {
  Bed bed;
  bed.Start();
  Application& app = bed.App();
  app.AddBarButton(100, 5, -1, TBSTATE_ENABLED, ButtonStyle::kDropDown);
  app.AddBarButton(0, -1, -1, 0, ButtonStyle::kSeparator);
  app.AddBarButton(101, 3, 2, TBSTATE_ENABLED | TBSTATE_CHECKED, ButtonStyle::kPush);
  app.AddBarButton(102, 4, -1, 0, ButtonStyle::kPush);
  const std::vector<BarButtonPlace> places = bed.Bars().Places();
  ASSERT_EQ(places.size(), 7u);
  EXPECT_EQ(places[3].button.id, 100);
  EXPECT_EQ(places[3].button.image, 5);
  EXPECT_EQ(places[3].button.style, ButtonStyle::kDropDown);
  EXPECT_EQ(places[4].button.style, ButtonStyle::kSeparator);
  EXPECT_EQ(places[5].button.id, 101);
  EXPECT_EQ(places[5].button.state, TBSTATE_ENABLED | TBSTATE_CHECKED);
  EXPECT_EQ(places[6].button.state, 0);
  EXPECT_FALSE(bed.Bars().Press(102));
}

TEST(AddedButtons, GoAllTogetherAndLeaveTheFixedOnes) {
  Bed bed;
  bed.Start();
  Application& app = bed.App();
  app.RemoveAddedButtons();
  EXPECT_EQ(bed.BarIds().size(), 3u);
  for (int id = 100; id < 104; ++id) app.AddBarButton(id, 5, -1, TBSTATE_ENABLED, ButtonStyle::kPush);
  bed.log.clear();
  app.RemoveAddedButtons();
  EXPECT_THAT(Only(bed.log, "bar"),
              ElementsAre("bar delete 2 3 0", "bar delete 2 3 0", "bar delete 2 3 0", "bar delete 2 3 0"));
  app.RemoveAddedButtons();
  ASSERT_EQ(bed.Bars().Places().size(), 3u);
  EXPECT_EQ(bed.Bars().Places()[1].button.label, u"Tools");
  EXPECT_EQ(bed.Bars().Places()[2].button.style, ButtonStyle::kSeparator);
  app.AddBarButton(105, 5, -1, TBSTATE_ENABLED, ButtonStyle::kPush);
  EXPECT_THAT(bed.BarIds(), ElementsAre(0, 0, 0, 105));
}

TEST(AddedButtons, CanBeDisabledAndCheckedByTheirIds) {
  Bed bed;
  bed.Start();
  Application& app = bed.App();
  app.AddBarButton(100, 5, -1, TBSTATE_ENABLED, ButtonStyle::kPush);
  app.EnableBarButton(100, false);
  EXPECT_EQ(bed.Bars().Places()[3].button.state, 0);
  app.EnableBarButton(100, true);
  app.CheckBarButton(100, true);
  EXPECT_EQ(bed.Bars().Places()[3].button.state, TBSTATE_ENABLED | TBSTATE_CHECKED);
  app.CheckBarButton(100, false);
  EXPECT_EQ(bed.Bars().Places()[3].button.state, TBSTATE_ENABLED);
}

TEST(Tell, ShowsABoxWithTheProgramsCaption) {
  Bed bed;
  bed.Start();
  bed.App().Tell(u"Settings saved.", MessageIcon::kInformation);
  bed.Settle();
  EXPECT_THAT(Only(bed.log, "box"), ElementsAre("box information|Orvane|Settings saved."));
}

}  // namespace
}  // namespace orvane::app_test
