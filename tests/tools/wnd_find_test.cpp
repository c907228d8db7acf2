// The search: how it is made and shown, what it finds, and what it opens.
#include <algorithm>

#include "tests/tools/wnd_find_fixture.h"

namespace orvane {
namespace {

using testing::Calls;
using testing::WndFindTest;

int RoomFor(const Font& font, TextView text) { return font.TextWidth(text) + 6; }

// --- How it is made and shown

TEST_F(WndFindTest, IsMadeHiddenWithBoxAndListInside) {
  Make();
  EXPECT_FALSE(tool_->IsVisible());
  EXPECT_TRUE(tool_->IsTopLevel());
  EXPECT_EQ(GetDevice().Title(tool_->Handle()), u"Find element");
  EXPECT_EQ(GetDevice().WindowRect(tool_->Handle()), (Rect{0, 0, 240, 268}));
  EXPECT_EQ(GetDevice().Style(tool_->Handle()), 0u);
  EXPECT_EQ(tool_->ClassName(), "wnd_find");
  EXPECT_EQ(GetDevice().Parent(Box().Handle()), tool_->Handle());
  EXPECT_EQ(GetDevice().WindowRect(Box().Handle()), Rect::At(8, 48, 224, 24));
  EXPECT_EQ(Box().GetText(), u"");
  EXPECT_EQ(Box().surround, Rgb(230, 242, 255));
  EXPECT_EQ(Box().field, kWhite);
  EXPECT_EQ(Box().outline, kBlack);
  EXPECT_EQ(Box().Font().variants[0].face, u"Tahoma");
  EXPECT_EQ(Box().Font().variants[0].points, 10);
  EXPECT_EQ(GetDevice().Parent(List().Handle()), tool_->Handle());
  EXPECT_EQ(GetDevice().WindowRect(List().Handle()), Rect::At(7, 96, 225, 73));
  EXPECT_EQ(GetDevice().Style(List().Handle()), WS_CHILD | WS_VISIBLE);
}

TEST_F(WndFindTest, StartsWithAllElements) {
  Make();
  EXPECT_EQ(List().Matches().size(), 112u);
  EXPECT_EQ(List().contentWidth, 224);
  EXPECT_EQ(List().contentHeight, 2240);
  EXPECT_EQ(List().scrollY, 0);
  EXPECT_EQ(List().Cursor(), FindList::kNoRow);
}

TEST_F(WndFindTest, ItsColumnsAreAsWideAsTheirWidestText) {
  Make();
  const Font& font = GetDevice().Fonts().GetFont({.face = u"Tahoma", .pixels = 13});
  int number = 0;
  int symbol = 0;
  int name = 0;
  for (int i = 0; i < 112; ++i) {
    number = std::max(number, RoomFor(font, DecimalText(i + 1)));
    symbol = std::max(symbol, RoomFor(font, ValueOf(elements_.Symbol(), i)));
    name = std::max(name, RoomFor(font, ValueOf(elements_.Name(), i)));
  }
  EXPECT_EQ(List().NumberWidth(), number);
  EXPECT_EQ(List().SymbolWidth(), symbol);
  EXPECT_EQ(List().NameWidth(), name);
  EXPECT_LE(number + symbol + name, 224);  // no name is cut
}

TEST_F(WndFindTest, ShowingSetsTheTopicTheToolAndTheFocus) {
  MakeAndShow();
  EXPECT_EQ(shell_.helpTopic, 1100);
  EXPECT_EQ(shell_.currentTool, tool_->Handle());
  EXPECT_EQ(GetDevice().Focus(), Box().Handle());
  EXPECT_TRUE(Box().HasFocus());
  EXPECT_TRUE(shell_.buttons.empty());
}

TEST_F(WndFindTest, TheMessageBeforeShowingIsEnoughToBecomeTheCurrentTool) {
  Make();
  GetDevice().Send(tool_->Handle(), kBeforeShow);
  EXPECT_EQ(shell_.helpTopic, 1100);
  EXPECT_EQ(shell_.currentTool, tool_->Handle());
}

TEST_F(WndFindTest, PassesTheFocusOnToTheBoxAndBecomesCurrent) {
  MakeAndShow();
  GetDevice().SetFocus(shell_.MainWindow());
  shell_.currentTool = kNoWindow;
  GetDevice().SetFocus(tool_->Handle());
  EXPECT_EQ(GetDevice().Focus(), Box().Handle());
  EXPECT_EQ(shell_.currentTool, tool_->Handle());
}

TEST_F(WndFindTest, TextAndScrollStayWhileItIsAway) {
  MakeAndShow();
  Search(u"1");
  List().ScrollBy(0, 40);
  tool_->Hide();
  tool_->Show();
  shell_.Settle();
  EXPECT_EQ(Box().GetText(), u"1");
  EXPECT_EQ(List().Matches().size(), 24u);
  EXPECT_EQ(List().scrollY, 40);
}

// --- The input panel

TEST_F(WndFindTest, TheListStandsAboveThePanel) {
  MakeAndShow();
  ASSERT_TRUE(GetDevice().Panel().Visible());
  EXPECT_EQ(GetDevice().WindowRect(List().Handle()), Rect::At(7, 96, 225, 73));
  GetDevice().Panel().Toggle();
  Forward();
  EXPECT_EQ(GetDevice().WindowRect(List().Handle()), Rect::At(7, 96, 225, 163));
  GetDevice().Panel().Toggle();
  Forward();
  EXPECT_EQ(GetDevice().WindowRect(List().Handle()), Rect::At(7, 96, 225, 73));
}

class FindWithoutPanelTest : public WndFindTest {
 protected:
  FindWithoutPanelTest() : WndFindTest(PanelMode::kNever) {}
};

TEST_F(FindWithoutPanelTest, TheListIsLongFromTheStart) {
  Make();
  tool_->Show();
  shell_.Settle();  // nobody says that the panel stays down
  EXPECT_FALSE(GetDevice().Panel().Visible());
  EXPECT_EQ(ListHeight(), 163);
}

TEST_F(WndFindTest, ATapOnTheListLowersThePanelAndMakesItLong) {
  MakeAndShow();
  ASSERT_EQ(ListHeight(), 73);
  GetDevice().PenDown(shell_.OnScreen(List().Handle(), {60, 10}));
  EXPECT_EQ(ListHeight(), 163);
  EXPECT_FALSE(GetDevice().Panel().Visible());
  EXPECT_EQ(GetDevice().Focus(), List().Handle());
  EXPECT_EQ(navigator_.calls, Calls{});
  shell_.Settle();
  GetDevice().PenUp(shell_.OnScreen(List().Handle(), {60, 10}));
  EXPECT_EQ(navigator_.calls, Calls{"show 0"});
}

TEST_F(WndFindTest, ATapInTheBoxBringsThePanelBack) {
  MakeAndShow();
  TapList(10);
  shell_.Tap(Box().Handle(), {10, 10});
  Forward();
  EXPECT_TRUE(GetDevice().Panel().Visible());
  EXPECT_EQ(ListHeight(), 73);
}

TEST_F(WndFindTest, ATapOnTheListLowersThePanelAlsoWhenTheListHasTheFocus) {
  MakeAndShow();
  Search(u"1000");
  TapList(10);
  GetDevice().Panel().Toggle();
  Forward();
  ASSERT_EQ(GetDevice().Focus(), List().Handle());
  ASSERT_EQ(ListHeight(), 73);
  TapList(10);
  EXPECT_FALSE(GetDevice().Panel().Visible());
  EXPECT_EQ(ListHeight(), 163);
}

TEST_F(FindWithoutPanelTest, TheListIsLongAgainWhenThePanelWentDownUnderAnotherTool) {
  MakeAndShow();
  GetDevice().Panel().Toggle();
  Forward();
  ASSERT_EQ(ListHeight(), 73);
  GetDevice().SetFocus(shell_.MainWindow());
  GetDevice().Panel().Request(false);
  shell_.Settle();  // the change is told to the tool that is current then
  ASSERT_EQ(ListHeight(), 73);
  GetDevice().SetFocus(tool_->Handle());
  EXPECT_EQ(GetDevice().Focus(), Box().Handle());
  EXPECT_EQ(ListHeight(), 163);
}

// --- Searching

TEST_F(WndFindTest, EveryKeySearches) {
  MakeAndShow();
  GetDevice().Character(u's');
  // S, Se, Si, Sb, Sn, Sr, Sc, Sm, Sg and what is called so: silicon, sulfur, scandium, selenium, strontium,
  // silver, samarium, sodium, seaborgium.
  const std::vector<int> s = List().Matches();
  GetDevice().Character(u'o');
  EXPECT_EQ(List().Matches(), std::vector<int>{10});
  GetDevice().KeyDown(VK_BACK, {});
  EXPECT_EQ(List().Matches(), s);
  GetDevice().KeyDown(VK_BACK, {});
  EXPECT_EQ(List().Matches().size(), 112u);
}

TEST_F(WndFindTest, ASearchScrollsToTheTopAndCountsItsRows) {
  MakeAndShow();
  List().ScrollBy(0, 500);
  Search(u"1");
  EXPECT_EQ(List().scrollY, 0);
  EXPECT_EQ(List().contentHeight, 480);
  Search(u"1000");
  EXPECT_EQ(List().contentHeight, 0);
  Search(u"");
  EXPECT_EQ(List().contentHeight, 2240);
}

TEST_F(WndFindTest, PastingSearchesToo) {
  MakeAndShow();
  GetDevice().SetClipboardText(u"GOLD");
  GetDevice().Send(tool_->Handle(), kToolCommand, 8821, kFromMenu);
  EXPECT_EQ(List().Matches(), std::vector<int>{78});
}

Text Lower(TextView text) {
  Text lower;
  for (const Char c : text) lower += AsciiLower(c);
  return lower;
}

TEST_F(WndFindTest, EveryNumberSymbolAndNameFindsItsElements) {
  MakeAndShow();
  const auto callings = [this](int element) {
    return std::vector<Text>{DecimalText(element + 1), Text(ValueOf(elements_.Symbol(), element)),
                             Text(ValueOf(elements_.Name(), element))};
  };
  for (int element = 0; element < 112; ++element) {
    for (const Text& calling : callings(element)) {
      ASSERT_FALSE(calling.empty());
      std::vector<int> expected;
      for (int other = 0; other < 112; ++other) {
        const std::vector<Text> others = callings(other);
        if (std::any_of(others.begin(), others.end(),
                        [&](const Text& one) { return Lower(one).rfind(Lower(calling), 0) == 0; })) {
          expected.push_back(other);
        }
      }
      for (const Text& typed : {calling, Lower(calling)}) {
        Search(typed);
        EXPECT_EQ(List().Matches(), expected) << ToUtf8(typed);
      }
    }
  }
}

// --- Opening

TEST_F(WndFindTest, ATapOpensTheElementOfItsRow) {
  MakeAndShow();
  Search(u"c");
  const std::vector<int> matches = List().Matches();
  for (int row = 0; row < 8; ++row) {
    for (const int y : {20 * row, 20 * row + 19}) {
      navigator_.calls.clear();
      TapList(y);
      EXPECT_EQ(navigator_.calls, Calls{"show " + std::to_string(matches[static_cast<std::size_t>(row)])})
          << y;
    }
  }
}

TEST_F(WndFindTest, TheScrollCounts) {
  MakeAndShow();
  TapList(10);
  List().ScrollBy(0, 33);
  navigator_.calls.clear();
  TapList(6);   // content y 39
  TapList(7);   // content y 40
  TapList(27);  // content y 60
  EXPECT_EQ(navigator_.calls, (Calls{"show 1", "show 2", "show 3"}));
}

TEST_F(WndFindTest, ATapBelowTheLastRowOpensNothing) {
  MakeAndShow();
  Search(u"11");  // 11, 110, 111, 112
  Key(VK_TAB);    // makes the list long
  TapList(80);
  TapList(150);
  EXPECT_EQ(navigator_.calls, Calls{});
  TapList(79);
  EXPECT_EQ(navigator_.calls, Calls{"show 111"});
  Search(u"1000");
  navigator_.calls.clear();
  TapList(5);
  EXPECT_EQ(navigator_.calls, Calls{});
}

TEST_F(WndFindTest, ADragScrollsAndOpensNothing) {
  MakeAndShow();
  shell_.Stroke(List().Handle(), {{60, 60}, {60, 40}, {60, 20}});
  shell_.Settle();
  EXPECT_GT(List().scrollY, 0);
  EXPECT_EQ(navigator_.calls, Calls{});
}

TEST_F(WndFindTest, APenThatSlipsOffTheTopEdgeOpensNothing) {
  MakeAndShow();
  shell_.Stroke(List().Handle(), {{60, 1}, {60, -2}});
  shell_.Settle();
  EXPECT_EQ(navigator_.calls, Calls{});
}

// --- A database with nothing in it

class FindWithoutDataTest : public WndFindTest {
 protected:
  FindWithoutDataTest() { elements_.Free(); }
};

TEST_F(FindWithoutDataTest, NumbersAreStillFound) {
  MakeAndShow();
  EXPECT_EQ(List().Matches().size(), 112u);
  EXPECT_EQ(List().SymbolWidth(), 6);
  EXPECT_EQ(List().NameWidth(), 6);
  Search(u"h");
  EXPECT_TRUE(List().Matches().empty());
  Search(u"79");
  EXPECT_EQ(List().Matches(), std::vector<int>{78});
  TapList(5);
  EXPECT_EQ(navigator_.calls, Calls{"show 78"});
}

}  // namespace
}  // namespace orvane
