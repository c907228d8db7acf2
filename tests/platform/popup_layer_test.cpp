#include <gtest/gtest.h>

#include "tests/platform/chrome_test_bed.h"

namespace orvane::chrome_test {
namespace {

MenuItem Disabled(int id, TextView label) {
  MenuItem item = Entry(id, label);
  item.enabled = false;
  return item;
}

struct MenuBed : Bed {
  MenuBed() {
    Get().Popups().Track(MenuOf({Entry(1, u"Narrow"), Entry(2, u"Wide"), Separator(), Disabled(3, u"Dim")}),
                         {30, 295}, tool);
    Step();
  }
  PopupMenus& Popups() { return Get().Popups(); }
};

TEST(PopupMenu, ShowsItsEntries) {
  MenuBed bed;
  EXPECT_TRUE(bed.Popups().Open());
  EXPECT_EQ(bed.Popups().Current().Count(), 4);
  EXPECT_EQ(bed.Popups().Anchor(), (Point{30, 295}));
  EXPECT_EQ(bed.Shown("menu"), (std::vector<std::string>{"Narrow", "Wide", "Dim"}));
}

TEST(PopupMenu, AnEmptyMenuShowsNothingAndClosesTheOpenOne) {
  MenuBed bed;
  bed.Popups().Track(Menu(), {0, 0}, bed.tool);
  EXPECT_FALSE(bed.Popups().Open());
  EXPECT_EQ(bed.Popups().Current().Count(), 0);
}

TEST(PopupMenu, AnotherMenuReplacesTheOpenOne) {
  MenuBed bed;
  Menu again = bed.Popups().Current();
  again.Append(Entry(9, u"Extra"));
  bed.Popups().Track(again, {0, 100}, bed.tool);
  bed.Step();
  EXPECT_EQ(bed.Popups().Current().Count(), 5);
  EXPECT_TRUE(bed.Shows("menu", "Extra"));
}

TEST(PopupMenu, ATapChoosesAfterTheMenuHasClosed) {
  MenuBed bed;
  bool openThen = true;
  bed.whenNoted = [&](const Noted& noted) {
    if (noted.message == WM_COMMAND) openThen = bed.Popups().Open();
  };
  bed.Tap(RowPoint(bed, "Wide"));
  EXPECT_FALSE(openThen);
  ASSERT_EQ(bed.Of(WM_COMMAND).size(), 1u);
  EXPECT_EQ(bed.Of(WM_COMMAND)[0].w, PackCommand(2, 0));
  EXPECT_EQ(bed.Of(WM_COMMAND)[0].window, bed.tool);
}

TEST(PopupMenu, TheRowUnderThePenIsHighlightedAndTheLastOneCounts) {
  MenuBed bed;
  const Point narrow = RowPoint(bed, "Narrow");
  bed.Get().PenDown(narrow);
  bed.Step();
  EXPECT_EQ(bed.host.Pixel(33, narrow.y), 0x00428Au);
  const Point wide = RowPoint(bed, "Wide");
  bed.Get().PenMove(wide);
  bed.Step();
  EXPECT_EQ(bed.host.Pixel(33, narrow.y), 0xF0FAFFu);
  bed.Get().PenUp(wide);
  bed.Step();
  EXPECT_EQ(bed.Commands(bed.tool), (std::vector<int>{2}));
}

TEST(PopupMenu, DisabledEntriesAndSeparatorsCannotBeChosen) {
  MenuBed bed;
  const Point dim = RowPoint(bed, "Dim");
  bed.Tap(dim);
  EXPECT_TRUE(bed.Popups().Open());
  bed.Tap({dim.x, dim.y - 15});  // the separator
  EXPECT_TRUE(bed.Popups().Open());
  EXPECT_TRUE(bed.Commands(bed.tool).empty());
}

TEST(PopupMenu, ATapOutsideClosesItAndGoesNowhereElse) {
  MenuBed bed;
  bed.Tap({200, 50});
  EXPECT_FALSE(bed.Popups().Open());
  EXPECT_TRUE(bed.Of(WM_LBUTTONDOWN).empty());
  EXPECT_TRUE(bed.Of(WM_LBUTTONUP).empty());
  EXPECT_TRUE(bed.Commands(bed.tool).empty());
  bed.Tap({200, 50});
  EXPECT_EQ(bed.Of(WM_LBUTTONDOWN).size(), 1u);
}

TEST(PopupMenu, APressThatSlidesOutChoosesNothing) {
  MenuBed bed;
  bed.Get().PenDown(RowPoint(bed, "Wide"));
  bed.Get().PenMove({200, 50});
  bed.Get().PenUp({200, 50});
  bed.Step();
  EXPECT_TRUE(bed.Popups().Open());
  EXPECT_TRUE(bed.Commands(bed.tool).empty());
}

TEST(PopupMenu, KeysSelectAndChoose) {
  MenuBed bed;
  bed.Key(VK_DOWN);
  bed.Key(VK_DOWN);
  bed.Key(VK_RETURN);
  EXPECT_EQ(bed.Commands(bed.tool), (std::vector<int>{2}));
  EXPECT_TRUE(bed.Of(WM_KEYDOWN).empty());
}

TEST(PopupMenu, HomeEndAndLettersSelect) {
  MenuBed bed;
  bed.Key(VK_END);
  bed.Key(VK_RETURN);
  EXPECT_EQ(bed.Commands(bed.tool), (std::vector<int>{2}));  // the disabled last entry is passed over
  bed.Popups().Track(MenuOf({Entry(1, u"Alpha"), Entry(2, u"Beta")}), {0, 100}, bed.tool);
  bed.Key('B');
  bed.Key(VK_RETURN);
  bed.Popups().Track(MenuOf({Entry(1, u"Alpha"), Entry(2, u"Beta")}), {0, 100}, bed.tool);
  bed.Key(VK_END);
  bed.Key(VK_HOME);
  bed.Key(VK_SPACE);
  EXPECT_EQ(bed.Commands(bed.tool), (std::vector<int>{2, 2, 1}));
}

TEST(PopupMenu, EnterWithoutASelectionChoosesNothing) {
  MenuBed bed;
  bed.Key(VK_RETURN);
  EXPECT_TRUE(bed.Popups().Open());
  EXPECT_TRUE(bed.Commands(bed.tool).empty());
}

TEST(PopupMenu, EscapeCloses) {
  MenuBed bed;
  bed.Key(VK_ESCAPE);
  EXPECT_FALSE(bed.Popups().Open());
  EXPECT_TRUE(bed.Of(WM_KEYDOWN).empty());
  EXPECT_TRUE(bed.Of(WM_KEYUP).empty());
}

TEST(PopupMenu, KeysAndTypedCharactersDoNotReachTheWindow) {
  MenuBed bed;
  bed.Get().KeyDown('Q', {});
  bed.Get().Character(u'q');
  bed.Get().KeyUp('Q', {});
  bed.Step();
  EXPECT_TRUE(bed.Of(WM_KEYDOWN).empty());
  EXPECT_TRUE(bed.Of(WM_CHAR).empty());
}

TEST(PopupMenu, EntriesAreChosenByTheirLabels) {
  MenuBed bed;
  EXPECT_FALSE(bed.Popups().ChooseLabel(u"Dim"));
  EXPECT_FALSE(bed.Popups().ChooseLabel(u""));
  EXPECT_FALSE(bed.Popups().ChooseLabel(u"Absent"));
  EXPECT_TRUE(bed.Popups().ChooseLabel(u"Narrow"));
  EXPECT_FALSE(bed.Popups().ChooseLabel(u"Narrow"));
  bed.Step();
  EXPECT_EQ(bed.Commands(bed.tool), (std::vector<int>{1}));
}

struct SubmenuBed : Bed {
  SubmenuBed() {
    MenuItem more = Entry(0, u"More");
    more.submenu = {Entry(7, u"First"), Entry(8, u"Second")};
    Get().Popups().Track(MenuOf({Entry(1, u"Plain"), more}), {30, 295}, tool);
    Step();
  }
};

TEST(PopupMenu, ANestedEntryIsReachedByPen) {
  SubmenuBed bed;
  bed.Tap(RowPoint(bed, "More"));
  EXPECT_EQ(bed.Shown("menu"), (std::vector<std::string>{"More", "First", "Second"}));
  bed.Tap(RowPoint(bed, "More"));  // the way back
  EXPECT_TRUE(bed.Shows("menu", "Plain"));
  bed.Tap(RowPoint(bed, "More"));
  bed.Tap(RowPoint(bed, "Second"));
  EXPECT_EQ(bed.Commands(bed.tool), (std::vector<int>{8}));
}

TEST(PopupMenu, ANestedEntryIsReachedByKeys) {
  SubmenuBed bed;
  bed.Key(VK_END);
  bed.Key(VK_RIGHT);
  EXPECT_TRUE(bed.Shows("menu", "Second"));
  bed.Key(VK_ESCAPE);
  EXPECT_TRUE(bed.Shows("menu", "Plain"));
  bed.Key(VK_RETURN);
  bed.Key(VK_LEFT);
  EXPECT_TRUE(bed.Shows("menu", "Plain"));
  bed.Key(VK_RETURN);
  bed.Key(VK_RETURN);
  EXPECT_EQ(bed.Commands(bed.tool), (std::vector<int>{7}));
}

struct LongMenuBed : Bed {
  LongMenuBed() {
    Menu menu;
    for (int i = 0; i < 40; ++i) menu.Append(Entry(100 + i, u"Entry " + DecimalText(i)));
    Get().Popups().Track(menu, {30, 295}, tool);
    Step();
  }
};

TEST(PopupMenu, ALongMenuScrollsByItsArrowsAndTheWheel) {
  LongMenuBed bed;
  EXPECT_TRUE(bed.Shows("menu", "Entry 0"));
  EXPECT_FALSE(bed.Shows("menu", "Entry 20"));
  bed.Tap({60, 315});
  EXPECT_TRUE(bed.Get().Popups().Open());
  EXPECT_FALSE(bed.Shows("menu", "Entry 0"));
  EXPECT_TRUE(bed.Shows("menu", "Entry 20"));
  bed.Get().Wheel({60, 150}, 100, false);
  bed.Step();
  EXPECT_TRUE(bed.Shows("menu", "Entry 0"));
  bed.Get().Wheel({60, 150}, -1, false);
  bed.Step();
  EXPECT_FALSE(bed.Shows("menu", "Entry 2"));
  EXPECT_TRUE(bed.Shows("menu", "Entry 3"));
}

TEST(PopupMenu, APenThatIsDraggedOntoAnArrowScrolls) {
  LongMenuBed bed;
  bed.Get().PenDown({60, 150});
  for (int i = 0; i < 60; ++i) bed.Get().PenMove({60, 312});
  const Point last = RowPoint(bed, "Entry 39");
  bed.Get().PenMove(last);
  bed.Get().PenUp(last);
  bed.Step();
  EXPECT_EQ(bed.Commands(bed.tool), (std::vector<int>{139}));
}

TEST(PopupMenu, ItClosesWhenItsOwnerIsGone) {
  MenuBed bed;
  bed.Get().DestroyWindow(bed.tool);
  bed.Step();
  EXPECT_FALSE(bed.Popups().Open());
}

TEST(PopupMenu, AChoiceForAnOwnerThatIsGoneIsHarmless) {
  MenuBed bed;
  bed.Get().DestroyWindow(bed.tool);
  EXPECT_TRUE(bed.Popups().ChooseLabel(u"Wide"));
  bed.Step();
  EXPECT_TRUE(bed.Of(WM_COMMAND).empty());
}

TEST(PopupMenu, AMessageBoxAboveItHasTheInput) {
  MenuBed bed;
  bed.Get().Boxes().Show(bed.tool, u"text", u"Orvane", MessageIcon::kNone);
  EXPECT_FALSE(bed.Popups().ChooseLabel(u"Wide"));
  bed.Tap({5, 315});
  EXPECT_TRUE(bed.Popups().Open());
  bed.Key(VK_ESCAPE);
  EXPECT_FALSE(bed.Get().Boxes().Open());
  EXPECT_TRUE(bed.Popups().Open());
  bed.Key(VK_ESCAPE);
  EXPECT_FALSE(bed.Popups().Open());
}

}  // namespace
}  // namespace orvane::chrome_test
