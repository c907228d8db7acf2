#include "tests/tools/wnd_periodic_fixture.h"

namespace orvane {
namespace {

using testing::Calls;
using testing::WndPeriodicTest;

TEST_F(WndPeriodicTest, ATapOpensTheElement) {
  MakeAndShow();
  shell_.Tap(Panel().Handle(), CentreOf(25));
  EXPECT_EQ(navigator_.calls, (Calls{"select 25", "show 25"}));
}

TEST_F(WndPeriodicTest, ATapCountsFromWhatIsScrolledIn) {
  MakeAndShow();
  Command(40201);  // long form with names
  for (const int element : {46, 47, 106}) {
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
