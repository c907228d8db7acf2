#include "platform/menu.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

MenuItem Entry(int id, std::vector<MenuItem> submenu = {}) {
  MenuItem item;
  item.id = id;
  item.label = u"x";
  item.submenu = std::move(submenu);
  return item;
}

MenuItem Separator(int id = 0) {
  MenuItem item = Entry(id);
  item.separator = true;
  return item;
}

TEST(MenuMarks, CheckMarksEveryEntryOfTheId) {
  Menu menu({Entry(1), Entry(2), Entry(1)});
  menu.Check(1, true);
  EXPECT_TRUE(menu.Items()[0].checked);
  EXPECT_FALSE(menu.Items()[1].checked);
  EXPECT_TRUE(menu.Items()[2].checked);
  menu.Check(1, false);
  EXPECT_FALSE(menu.Items()[0].checked);
  menu.Check(77, true);  // absent: ignored
  EXPECT_FALSE(menu.Items()[1].checked);
}

TEST(MenuMarks, CheckAtMarksThePositionAndIgnoresOthers) {
  Menu menu({Entry(1), Entry(2)});
  menu.CheckAt(1, true);
  EXPECT_FALSE(menu.Items()[0].checked);
  EXPECT_TRUE(menu.Items()[1].checked);
  menu.CheckAt(-1, true);
  menu.CheckAt(2, true);
  EXPECT_FALSE(menu.Items()[0].checked);
}

TEST(MenuMarks, EnableActsOnTheIdInSubmenusToo) {
  Menu menu({Entry(1), Entry(0, {Entry(1), Entry(5)})});
  menu.Enable(1, false);
  EXPECT_FALSE(menu.Items()[0].enabled);
  EXPECT_FALSE(menu.Items()[1].submenu[0].enabled);
  EXPECT_TRUE(menu.Items()[1].submenu[1].enabled);
}

TEST(MenuMarks, CheckRadioMarksOneOfTheRangeWithADot) {
  Menu menu({Entry(10), Entry(11), Separator(11), Entry(12), Entry(20)});
  menu.Check(10, true);
  menu.Check(20, true);
  menu.CheckRadio(10, 12, 11);
  EXPECT_FALSE(menu.Items()[0].checked);
  EXPECT_TRUE(menu.Items()[1].checked);
  EXPECT_TRUE(menu.Items()[1].radio);
  EXPECT_FALSE(menu.Items()[2].checked);
  EXPECT_FALSE(menu.Items()[3].checked);
  EXPECT_TRUE(menu.Items()[4].checked);
  EXPECT_FALSE(menu.Items()[4].radio);
}

TEST(MenuMarks, TheUncheckedEntriesOfARadioGroupAreRadioEntriesToo) {
  Menu menu({Entry(10), Entry(11), Separator(11), Entry(20)});
  menu.CheckRadio(10, 11, 11);
  EXPECT_TRUE(menu.Items()[0].radio);
  EXPECT_FALSE(menu.Items()[2].radio);
  menu.CheckRadio(10, 11, 0);
  EXPECT_TRUE(menu.Items()[0].radio);
  EXPECT_TRUE(menu.Items()[1].radio);
  EXPECT_FALSE(menu.Items()[3].radio);
}

TEST(MenuMarks, CheckRadioOutsideTheRangeMarksNothing) {
  Menu menu({Entry(10), Entry(11), Entry(30)});
  menu.CheckRadio(10, 11, 10);
  menu.CheckRadio(10, 11, 30);
  for (const MenuItem& item : menu.Items()) EXPECT_FALSE(item.checked);
}

TEST(MenuMarks, AnAppendedEntryStandsLast) {
  Menu menu;
  EXPECT_EQ(menu.Count(), 0);
  menu.Append(Entry(4));
  EXPECT_EQ(menu.Count(), 1);
  EXPECT_EQ(menu.Items().back().id, 4);
}

}  // namespace
}  // namespace orvane
