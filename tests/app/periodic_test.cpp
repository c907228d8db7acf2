// The periodic table in the program: what its taps and its menus come to.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/app/app_bed.h"

namespace orvane::app_test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

Point MiddleOf(Bed& bed, std::string_view symbol) {
  for (const ScreenRun& run : bed.TheDevice().VisibleRuns()) {
    const Rect rect = run.run.rect;
    if (ToUtf8(run.run.text) == symbol) return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
  }
  ADD_FAILURE() << "no " << symbol;
  return {};
}

TEST(PeriodicTable, ATapSelectsAnElementAndShowsIt) {
  Bed bed({.realPeriodic = true});
  bed.Start();
  bed.log.clear();
  bed.Tap(MiddleOf(bed, "He"));
  EXPECT_THAT(Only(bed.log, "element"), ElementsAre("element 1"));
  EXPECT_EQ(bed.App().SelectedElement(), 1);
  EXPECT_THAT(bed.VisibleTools(), ElementsAre("wnd_element", "wnd_periodic"));
  EXPECT_THAT(Only(bed.log, "bar"), IsEmpty());
  EXPECT_TRUE(InOrder(bed.log, "cursor wait", "show wnd_element"));
  EXPECT_FALSE(bed.TheDevice().WaitCursor());

  // From anywhere else the menu leads to the same element.
  bed.Command(40007);
  bed.log.clear();
  bed.Command(40010);
  EXPECT_THAT(Only(bed.log, "element"), ElementsAre("element 1"));
}

TEST(PeriodicTable, ATapIsRememberedWhereNoElementCanBeShown) {
  Bed bed({.realPeriodic = true, .absent = {ToolSlot::kElement}});
  bed.Start();
  bed.Tap(MiddleOf(bed, "Uub"));
  EXPECT_EQ(bed.App().SelectedElement(), 111);
  EXPECT_THAT(bed.VisibleTools(), ElementsAre("wnd_periodic"));
  EXPECT_FALSE(bed.TheDevice().WaitCursor());
}

TEST(PeriodicTable, IsRevealedWithItsButtonsWhenTheElementGoes) {
  Bed bed({.realPeriodic = true});
  bed.Start();
  bed.Tap(MiddleOf(bed, "Li"));
  EXPECT_EQ(bed.App().CurrentTool(), bed.Tool(ToolSlot::kElement).Handle());
  bed.Tool(ToolSlot::kElement).Hide();
  bed.Settle();
  EXPECT_EQ(bed.App().CurrentTool(), bed.App().Tool(ToolSlot::kPeriodic)->Handle());
  EXPECT_THAT(bed.BarIds(), ElementsAre(0, 0, 0, 8867, 8868, 8869));
}

TEST(PeriodicTable, SetsNoTopicAndTakesItsButtonsAlong) {
  Bed bed({.realPeriodic = true});
  bed.PartOf(ToolSlot::kMass).buttons = {8820};
  bed.PartOf(ToolSlot::kMass).topic = 2100;
  bed.Start();
  EXPECT_EQ(bed.App().HelpTopic(), 0);
  bed.Command(40007);
  EXPECT_THAT(bed.BarIds(), ElementsAre(0, 0, 0, 8820));
  bed.Command(40008);
  EXPECT_THAT(bed.BarIds(), ElementsAre(0, 0, 0, 8867, 8868, 8869));
  EXPECT_EQ(bed.App().HelpTopic(), 0);
  bed.Command(40008);
  EXPECT_THAT(bed.BarIds(), ElementsAre(0, 0, 0, 8867, 8868, 8869));
}

// Exit and Color by block share their number, but not the window that gets it.
TEST(PeriodicTable, ItsMenuDoesNotEndTheProgram) {
  Bed bed({.realPeriodic = true});
  bed.Start();
  ASSERT_TRUE(bed.Bars().Press(8867));
  bed.Settle();
  ASSERT_TRUE(bed.TheDevice().Popups().ChooseLabel(u"Color by family"));
  bed.Settle();
  ASSERT_TRUE(bed.Bars().Press(8867));
  bed.Settle();
  ASSERT_TRUE(bed.TheDevice().Popups().ChooseLabel(u"Color by block"));
  bed.Settle();
  EXPECT_EQ(bed.App().Ended(), std::nullopt);
  bed.Command(40016);
  EXPECT_EQ(bed.App().Ended(), 0);
}

}  // namespace
}  // namespace orvane::app_test
