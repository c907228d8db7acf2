// How the element view is made, shown, laid out and drawn.
#include "tests/tools/wnd_element_fixture.h"

namespace orvane {
namespace {

using testing::LoadElementViewData;
using testing::WndElementTest;
using Strings = std::vector<std::string>;

TEST_F(WndElementTest, IsMadeHiddenWithItsViewsBelowTheStrip) {
  Make();
  EXPECT_FALSE(tool_->IsVisible());
  EXPECT_TRUE(tool_->IsTopLevel());
  EXPECT_EQ(tool_->ClassName(), "wnd_element");
  EXPECT_EQ(GetDevice().Title(tool_->Handle()), u"Element properties");
  EXPECT_EQ(GetDevice().Style(tool_->Handle()), 0u);
  EXPECT_EQ(GetDevice().WindowRect(tool_->Handle()), (Rect{0, 0, 240, 268}));
  EXPECT_EQ(GetDevice().WindowRect(Summary().Handle()), (Rect{0, 23, 240, 268}));
  EXPECT_EQ(GetDevice().WindowRect(List().Handle()), (Rect{0, 23, 240, 268}));
  EXPECT_EQ(tool_->Element(), -1);
  EXPECT_EQ(tool_->CurrentPreset(), -1);
  EXPECT_EQ(Summary().SelectedRow(), -1);
  EXPECT_EQ(GetDevice().Bars().Shown(), shell_.MainBar());
}

TEST_F(WndElementTest, ShowsTheElementAndBecomesTheCurrentTool) {
  GetDevice().Panel().Request(true);
  shell_.helpTopic = 1100;
  MakeAndShow(5);
  EXPECT_TRUE(tool_->IsVisible());
  EXPECT_EQ(tool_->Element(), 5);
  EXPECT_EQ(navigator_.calls, Strings{"select 5"});
  EXPECT_EQ(shell_.currentTool, tool_->Handle());
  EXPECT_EQ(shell_.Tools().Top(), tool_.get());
  EXPECT_FALSE(GetDevice().Panel().Visible());
  EXPECT_EQ(shell_.helpTopic, 1400);
  EXPECT_EQ(GetDevice().Focus(), Summary().Handle());
  EXPECT_FALSE(GetDevice().WaitCursor());
}

TEST_F(WndElementTest, WaitsWithTheWaitCursorWhileItIsBeingShown) {
  Make();
  bool waited = false;
  shell_.Trace().watch = [&](const testing::Dispatched& message) {
    if (message.message == kBeforeShow && message.window == tool_->Handle()) {
      waited = GetDevice().WaitCursor();
    }
  };
  tool_->ShowElement(0);
  EXPECT_TRUE(waited);
  EXPECT_FALSE(GetDevice().WaitCursor());
}

TEST_F(WndElementTest, ElementsThatDoNotExistAreNotShown) {
  Make();
  for (const int element : {-1, 112, 2'000'000'000}) {
    tool_->ShowElement(element);
    EXPECT_FALSE(tool_->IsVisible());
    EXPECT_EQ(tool_->Element(), -1);
  }
  EXPECT_TRUE(navigator_.calls.empty());
  EXPECT_FALSE(Summary().LaidOut());
}

TEST_F(WndElementTest, HasABarOfItsOwn) {
  MakeAndShow();
  struct Expected {
    int id;
    int image;
    ButtonStyle style;
  };
  const Expected expected[] = {{8350, 0, ButtonStyle::kPush},
                               {8351, 2, ButtonStyle::kPush},
                               {8352, 20, ButtonStyle::kDropDown},
                               {8355, 21, ButtonStyle::kDropDown},
                               {8354, 22, ButtonStyle::kPush}};
  const std::vector<BarButtonPlace> places = GetDevice().Bars().Places();
  ASSERT_EQ(places.size(), std::size(expected));
  for (std::size_t i = 0; i < places.size(); ++i) {
    EXPECT_EQ(places[i].button.id, expected[i].id);
    EXPECT_EQ(places[i].button.image, expected[i].image);
    EXPECT_EQ(places[i].button.style, expected[i].style);
    EXPECT_NE(places[i].button.state & TBSTATE_ENABLED, 0);
  }
}

TEST_F(WndElementTest, ClosingRevealsTheToolUnderneath) {
  auto under = MakeWindow<ZelWindow>(shell_, shell_.MainWindow(), true);
  under->Show();
  shell_.helpTopic = 1100;
  MakeAndShow();
  Command(8350);
  EXPECT_FALSE(tool_->IsVisible());
  EXPECT_EQ(shell_.Tools().Top(), under.get());
  EXPECT_EQ(GetDevice().Bars().Shown(), shell_.MainBar());
  EXPECT_EQ(shell_.helpTopic, 1100);
}

// The tool that takes its place has set a topic of its own by then.
TEST_F(WndElementTest, ANewTopicIsNotTakenBack) {
  MakeAndShow();
  shell_.helpTopic = 2100;
  tool_->HideOnly();
  EXPECT_EQ(shell_.helpTopic, 2100);
}

TEST_F(WndElementTest, HelpOpensItsPage) {
  MakeAndShow();
  Command(8351);
  EXPECT_EQ(navigator_.calls.back(), "help 1400");
}

TEST_F(WndElementTest, ReturningToItMakesItCurrentAgain) {
  MakeAndShow();
  auto over = MakeWindow<ZelWindow>(shell_, shell_.MainWindow(), true);
  over->Show();
  shell_.currentTool = over->Handle();
  over->Hide();
  shell_.Settle();
  EXPECT_EQ(shell_.currentTool, tool_->Handle());
  EXPECT_EQ(GetDevice().Focus(), Summary().Handle());
}

// --- Which view

TEST_F(WndElementTest, TheInitialViewDecides) {
  struct Case {
    int initialView;
    bool before;
    bool after;
  };
  for (const Case& c : {Case{0, false, true},
                        {0, true, true},
                        {1, true, false},
                        {1, false, false},
                        {2, true, true},
                        {2, false, false},
                        {7, false, false},
                        {-3, true, true}}) {
    tool_.reset();
    StoreLong("InitialView", c.initialView);
    StoreLong("DoSummary", c.before ? 1 : 0);
    Make();
    EXPECT_EQ(tool_->Settings().doSummary, c.before);
    MakeAndShow();
    EXPECT_EQ(tool_->Settings().doSummary, c.after) << c.initialView;
    EXPECT_EQ(Summary().IsVisible(), c.after) << c.initialView;
    EXPECT_EQ(List().IsVisible(), !c.after) << c.initialView;
    EXPECT_EQ((Button(8354).button.state & TBSTATE_CHECKED) != 0, c.after);
    EXPECT_EQ((Button(8355).button.state & TBSTATE_ENABLED) != 0, c.after);
  }
}

TEST_F(WndElementTest, TheToggleSwapsTheViewsAndKeepsTheSelections) {
  MakeAndShow();
  TapRow(2);
  SelectListed(u"P12");
  Command(8354);
  EXPECT_FALSE(Summary().IsVisible());
  EXPECT_TRUE(List().IsVisible());
  EXPECT_EQ(GetDevice().Focus(), List().Handle());
  EXPECT_EQ(Button(8354).button.state & TBSTATE_CHECKED, 0);
  EXPECT_EQ(Button(8355).button.state & TBSTATE_ENABLED, 0);
  Command(8354);
  EXPECT_TRUE(Summary().IsVisible());
  EXPECT_FALSE(List().IsVisible());
  EXPECT_EQ(GetDevice().Focus(), Summary().Handle());
  EXPECT_NE(Button(8354).button.state & TBSTATE_CHECKED, 0);
  EXPECT_NE(Button(8355).button.state & TBSTATE_ENABLED, 0);
  EXPECT_EQ(Summary().SelectedRow(), 2);
  EXPECT_EQ(List().selectedGroup, 1);
  EXPECT_EQ(List().selectedRow, 2);
}

TEST_F(WndElementTest, EveryElementBeginsWithoutSelectionAtTheTop) {
  MakeAndShow(0);
  TapRow(1);
  SelectListed(u"P12");
  List().ScrollBy(10, 50);
  List().groups[0].expanded = false;
  List().Relayout();
  ASSERT_EQ(List().scrollX, 10);
  ASSERT_EQ(List().scrollY, 50);
  tool_->ShowElement(1);
  EXPECT_EQ(Summary().SelectedRow(), -1);
  EXPECT_EQ(List().selectedGroup, -1);
  EXPECT_EQ(List().selectedRow, -1);
  EXPECT_EQ(List().scrollX, 0);
  EXPECT_EQ(List().scrollY, 0);
  EXPECT_TRUE(List().groups[0].expanded);
}

// Coming back to the same element does not lose the place.
TEST_F(WndElementTest, TheSameElementAgainStaysWhereItWas) {
  MakeAndShow(0);
  List().ScrollBy(0, 50);
  TapRow(1);
  tool_->ShowElement(0);
  EXPECT_EQ(List().scrollY, 50);
  EXPECT_EQ(Summary().SelectedRow(), -1);
}

// --- The full list

TEST_F(WndElementTest, TheListHasAGroupForEachCategoryWithValues) {
  MakeAndShow(0);
  Strings titles;
  for (const ListGroup& group : List().groups) {
    titles.push_back(ToUtf8(group.title));
    EXPECT_TRUE(group.hasTitle);
    EXPECT_TRUE(group.expanded);
  }
  EXPECT_EQ(titles, (Strings{"Identification", "General", "Third", "Fourth"}));
  MakeAndShow(1);
  ASSERT_EQ(List().groups.size(), 5u);
  EXPECT_EQ(List().groups[2].title, u"Rare");
  EXPECT_EQ(List().groups[2].rows, (std::vector<std::vector<Text>>{{u"P20", u"2.0", u" U20"}}));
  EXPECT_EQ(List().groups[4].rows.size(), 1u);  // (4, 1) is hydrogen's alone
}

TEST_F(WndElementTest, ItsRowsAreNameValueAndUnits) {
  MakeAndShow(0);
  const std::vector<std::vector<Text>> expected{{u"Symbol", u"H", u""},
                                                {u"Name", u"Hydrogen", u""},
                                                {u"Atomic mass", u"1.008", u" u"},
                                                {u"Family", u"Alkali metal", u""},
                                                {u"Block", u"s-block", u""}};
  EXPECT_EQ(List().groups[0].rows, expected);
  EXPECT_EQ(List().groups[1].rows.size(), 7u);
  EXPECT_EQ(List().groups[1].rows[3], (std::vector<Text>{u"P13", u"1.3", u" U13"}));
}

TEST_F(WndElementTest, InTheListUnknownBlocksStayAndUnknownFamiliesHaveNoText) {
  LoadElementViewData(elements_, {.family = u"Q", .block = u"G"});
  MakeAndShow(0);
  EXPECT_EQ(List().groups[0].rows[3][1], u"");
  EXPECT_EQ(List().groups[0].rows[4][1], u"G");
}

TEST_F(WndElementTest, TheListsColumns) {
  MakeAndShow(0);
  ASSERT_EQ(List().columns.size(), 3u);
  EXPECT_FALSE(List().columns[0].autoSize);
  EXPECT_EQ(List().columns[0].width, 112);
  EXPECT_TRUE(List().columns[1].autoSize);
  EXPECT_TRUE(List().columns[2].autoSize);
  for (const ListColumn& column : List().columns) {
    EXPECT_TRUE(column.visible);
    EXPECT_FALSE(column.plain);
  }
  EXPECT_EQ(List().margin, 3);
  EXPECT_EQ(List().minimumColumnWidth, 15);
  EXPECT_EQ(List().titleHeight, 16 + 3);
  EXPECT_EQ(List().rowHeight, 14);
}

TEST_F(WndElementTest, LongTextsOfTheListAreCutToTheirFields) {
  LoadElementViewData(elements_, {.longValue = Text(253, u'x') + u"\x0001!bold"});
  MakeAndShow(0);
  EXPECT_EQ(List().groups[2].rows[0][1], Text(253, u'x'));
}

TEST_F(WndElementTest, TheStripShowsTheTitle) {
  MakeAndShow();
  ASSERT_FALSE(shell_.titles.empty());
  EXPECT_EQ(shell_.titles.back(), (testing::DrawnTitle{u"Element properties", false, true}));
}

TEST_F(WndElementTest, WorksWithoutAnyElements) {
  elements_.Free();
  MakeAndShow(0);
  EXPECT_TRUE(List().groups.empty());
  EXPECT_EQ(Rows(), Strings{});
  for (const int command :
       {8354, 40176, 40175, 8354, 40177, 40178, 40179, 40186, 40180, 40181, 40196, 40199}) {
    Command(command);
    Message();
  }
  EXPECT_EQ(tool_->CurrentPreset(), 0);
}

}  // namespace
}  // namespace orvane
