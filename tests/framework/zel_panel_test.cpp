// The panel's fields and its pen and key protocol. What it shows is tested beside.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "tests/framework/panel_test_bed.h"

namespace orvane {
namespace {

using testing::Codes;
using testing::Notification;
using testing::ProbePanel;
using testing::ZelPanelTest;

// --- Fields.

TEST_F(ZelPanelTest, StartsWithTheseFields) {
  const ProbePanel panel(shell_, tool_->Handle(), false);
  EXPECT_EQ(panel.contentWidth, 100);
  EXPECT_EQ(panel.contentHeight, 100);
  EXPECT_EQ(panel.marginX, 0);
  EXPECT_EQ(panel.marginY, 0);
  EXPECT_EQ(panel.Scroll(), (Point{0, 0}));
  EXPECT_EQ(panel.arrowStep, 10);
  EXPECT_TRUE(panel.invalidateOnPenUp);
  EXPECT_TRUE(panel.acceleratedDrag);
  EXPECT_FALSE(panel.privateBuffer);
  EXPECT_EQ(panel.background, Rgb(64, 64, 64));
  EXPECT_FALSE(panel.bordered);
  EXPECT_FALSE(panel.Dragging());
  EXPECT_EQ(panel.Down(), Point{});
  EXPECT_EQ(panel.Previous(), Point{});
  EXPECT_EQ(panel.Current(), Point{});
}

TEST_F(ZelPanelTest, ReportsItsScrollAndItsContent) {
  panel_->contentWidth = 500;
  panel_->contentHeight = 600;
  panel_->ScrollBy(30, 40);
  const WindowReport report = panel_->Describe();
  EXPECT_EQ(report.className, "ZelPanel");
  EXPECT_EQ(report.scroll, (Point{30, 40}));
  EXPECT_EQ(report.content, (Size{500, 600}));
}

TEST_F(ZelPanelTest, TheNumbersOfTheNotifications) {
  EXPECT_EQ(PN_DRAGQUERY, 0x80CCu);
  EXPECT_EQ(PN_DRAG, 0x80CDu);
  EXPECT_EQ(PN_DRAGEND, 0x80CEu);
  EXPECT_EQ(PN_TAP, 0x80CFu);
  EXPECT_EQ(PN_PENDOWN, 0x80D0u);
  EXPECT_EQ(PN_PENMOVE, 0x80D1u);
  EXPECT_EQ(PN_PENUP, 0x80D2u);
  EXPECT_EQ(PN_KEYDOWN, 0x80D3u);
}

// --- The pen.

TEST_F(ZelPanelTest, PenDownActivatesFocusesRecordsNotifiesAndCaptures) {
  GetDevice().SetFocus(shell_.MainWindow());
  WindowHandle focusThen = kNoWindow;
  WindowHandle captureThen = panel_->Handle();
  bool draggingThen = true;
  panel_->hook = [&](std::uint32_t message) {
    if (message != PN_PENDOWN) return;
    focusThen = GetDevice().Focus();
    captureThen = GetDevice().Capture();
    draggingThen = panel_->Dragging();
  };
  Down({30, 40});
  EXPECT_EQ(panel_->Notifications(), Codes{PN_PENDOWN});
  EXPECT_EQ(focusThen, panel_->Handle());
  EXPECT_EQ(captureThen, kNoWindow);  // the pen is captured afterwards
  EXPECT_FALSE(draggingThen);
  EXPECT_EQ(GetDevice().Capture(), panel_->Handle());
  const Notification& down = panel_->seen.back();
  EXPECT_EQ(down.down, (Point{30, 40}));
  EXPECT_EQ(down.previous, (Point{30, 40}));
  EXPECT_EQ(down.current, (Point{30, 40}));
  EXPECT_EQ(down.w, 0u);
  EXPECT_EQ(down.l, 0);
}

TEST_F(ZelPanelTest, PenDownBringsItsToolToTheFront) {
  const auto other = MakeWindow<ZelWindow>(shell_, shell_.MainWindow(), true);
  other->Move(0, 100, 240, 100);
  other->Show();
  EXPECT_EQ(GetDevice().VisibleWindows().back(), other->Handle());
  Down({10, 10});
  EXPECT_EQ(GetDevice().VisibleWindows().back(), panel_->Handle());
}

TEST_F(ZelPanelTest, AStrokeOfFourPixelsAlongBothAxesIsATap) {
  Down({30, 40});
  MoveTo({34, 44});
  MoveTo({26, 36});
  Up({34, 36});
  EXPECT_EQ(panel_->Notifications(), (Codes{PN_PENDOWN, PN_PENMOVE, PN_PENMOVE, PN_PENUP, PN_TAP}));
  EXPECT_EQ(panel_->Scroll(), (Point{0, 0}));
}

TEST_F(ZelPanelTest, FivePixelsAlongOneAxisAreADrag) {
  for (const Point end : {Point{35, 40}, Point{25, 40}, Point{30, 45}, Point{30, 35}}) {
    Forget();
    Down({30, 40});
    MoveTo(end);
    Up(end);
    EXPECT_EQ(panel_->Notifications(),
              (Codes{PN_PENDOWN, PN_PENMOVE, PN_DRAGQUERY, PN_DRAG, PN_PENUP, PN_DRAGEND}))
        << end.x << "," << end.y;
  }
}

TEST_F(ZelPanelTest, TheQuestionComesOnceAStrokeAndADragStaysOne) {
  Down({30, 40});
  MoveTo({31, 40});
  MoveTo({35, 40});
  MoveTo({30, 40});  // back where it began: still a drag
  MoveTo({50, 90});
  Up({30, 40});
  EXPECT_EQ(panel_->Notifications(), (Codes{PN_PENDOWN, PN_PENMOVE, PN_PENMOVE, PN_DRAGQUERY, PN_DRAG,
                                            PN_PENMOVE, PN_DRAG, PN_PENMOVE, PN_DRAG, PN_PENUP, PN_DRAGEND}));
  Forget();
  Down({30, 40});
  MoveTo({35, 40});
  Up({35, 40});
  EXPECT_EQ(panel_->Notifications(),
            (Codes{PN_PENDOWN, PN_PENMOVE, PN_DRAGQUERY, PN_DRAG, PN_PENUP, PN_DRAGEND}));
}

// The distance is taken from where the pen went down, not from the move before.
TEST_F(ZelPanelTest, SlowMovesAddUpToADrag) {
  Down({30, 40});
  for (int x = 31; x <= 34; ++x) MoveTo({x, 40});
  EXPECT_FALSE(panel_->Dragging());
  MoveTo({35, 40});
  EXPECT_TRUE(panel_->Dragging());
  Up({35, 40});
}

TEST_F(ZelPanelTest, EachMoveRecordsThePointBeforeItAndItsOwn) {
  Down({30, 40});
  MoveTo({33, 41});
  MoveTo({50, 60});
  std::vector<Notification> moves;
  std::copy_if(panel_->seen.begin(), panel_->seen.end(), std::back_inserter(moves),
               [](const Notification& one) { return one.code == PN_PENMOVE || one.code == PN_DRAG; });
  ASSERT_EQ(moves.size(), 3u);
  EXPECT_EQ(moves[0].previous, (Point{30, 40}));
  EXPECT_EQ(moves[0].current, (Point{33, 41}));
  EXPECT_EQ(moves[1].previous, (Point{33, 41}));
  EXPECT_EQ(moves[1].current, (Point{50, 60}));
  EXPECT_EQ(moves[2].previous, (Point{33, 41}));
  EXPECT_EQ(moves[2].down, (Point{30, 40}));
  EXPECT_EQ(panel_->Previous(), (Point{50, 60}));
  Up({50, 60});
}

TEST_F(ZelPanelTest, PenUpNotifiesInvalidatesForgetsAndReleases) {
  Down({30, 40});
  shell_.Settle();
  Forget();
  bool invalidThen = true;
  panel_->hook = [&](std::uint32_t message) {
    if (message == PN_TAP) invalidThen = Invalid();
  };
  Up({32, 41});
  EXPECT_EQ(panel_->Notifications(), (Codes{PN_PENUP, PN_TAP}));
  EXPECT_FALSE(invalidThen);
  EXPECT_TRUE(Invalid());
  for (const Notification& one : panel_->seen) {
    EXPECT_EQ(one.down, (Point{30, 40}));
    EXPECT_EQ(one.current, (Point{32, 41}));
  }
  EXPECT_EQ(panel_->Down(), Point{});
  EXPECT_EQ(panel_->Previous(), Point{});
  EXPECT_EQ(panel_->Current(), Point{});
  EXPECT_FALSE(panel_->Dragging());
  EXPECT_EQ(GetDevice().Capture(), kNoWindow);
}

TEST_F(ZelPanelTest, PenUpNeedNotInvalidate) {
  panel_->invalidateOnPenUp = false;
  Down({30, 40});
  shell_.Settle();
  Up({30, 40});
  EXPECT_FALSE(Invalid());
}

TEST_F(ZelPanelTest, TheCapturedPenGoesOnOutsideThePanel) {
  MakeLarge();
  Down({120, 200});
  MoveTo({120, -20});  // over the title area
  EXPECT_EQ(panel_->Current(), Point({120, -20}));
  EXPECT_EQ(panel_->Scroll(), (Point{0, 220}));
  Up({-5, -20});
  EXPECT_EQ(panel_->Notifications().back(), PN_DRAGEND);
}

TEST_F(ZelPanelTest, AStrokeThatBeganElsewhereIsNoStrokeOfThePanel) {
  MakeLarge();
  panel_->Move(0, 50, 240, 218);
  shell_.Settle();
  Forget();
  GetDevice().PenDown(shell_.OnScreen(tool_->Handle(), {100, 20}));
  GetDevice().PenMove(shell_.OnScreen(tool_->Handle(), {100, 150}));
  GetDevice().PenUp(shell_.OnScreen(tool_->Handle(), {100, 150}));
  EXPECT_TRUE(panel_->Notifications().empty());
  EXPECT_EQ(panel_->Scroll(), (Point{0, 0}));
}

// --- Keys and the wheel.

TEST_F(ZelPanelTest, ArrowKeysNotifyThenScroll) {
  MakeLarge();
  panel_->arrowStep = 20;
  panel_->scrollX = 100;
  panel_->scrollY = 100;
  const std::vector<std::pair<int, Point>> keys{
      {VK_LEFT, {80, 100}}, {VK_UP, {80, 80}}, {VK_RIGHT, {100, 80}}, {VK_DOWN, {100, 100}}};
  Point scrollThen;
  panel_->hook = [&](std::uint32_t message) {
    if (message == PN_KEYDOWN) scrollThen = panel_->Scroll();
  };
  for (const auto& [key, after] : keys) {
    const Point before = panel_->Scroll();
    Forget();
    EXPECT_EQ(GetDevice().Send(panel_->Handle(), WM_KEYDOWN, static_cast<WParam>(key), 0), 0);
    EXPECT_EQ(panel_->Scroll(), after) << key;
    EXPECT_EQ(scrollThen, before) << key;
    ASSERT_EQ(panel_->seen.size(), 1u) << key;  // the key itself is not passed on
    EXPECT_EQ(panel_->seen[0].code, PN_KEYDOWN);
    EXPECT_EQ(panel_->seen[0].w, static_cast<WParam>(key));
    EXPECT_EQ(panel_->seen[0].l, 0);
  }
}

TEST_F(ZelPanelTest, AnArrowStepIsTenUnlessItIsSet) {
  MakeLarge();
  GetDevice().SetFocus(panel_->Handle());
  GetDevice().KeyDown(VK_DOWN, {});
  GetDevice().KeyDown(VK_RIGHT, {});
  EXPECT_EQ(panel_->Scroll(), (Point{10, 10}));
}

TEST_F(ZelPanelTest, OtherKeysOnlyNotify) {
  MakeLarge();
  panel_->ScrollBy(50, 50);
  shell_.Settle();
  for (const int key : {VK_RETURN, VK_PRIOR, VK_NEXT, VK_HOME, VK_END, VK_ACTION, int{'A'}}) {
    Forget();
    GetDevice().Send(panel_->Handle(), WM_KEYDOWN, static_cast<WParam>(key), 0);
    EXPECT_EQ(panel_->Scroll(), (Point{50, 50}));
    ASSERT_EQ(panel_->seen.size(), 1u) << key;
    EXPECT_EQ(panel_->seen[0].code, PN_KEYDOWN);
    EXPECT_EQ(panel_->seen[0].w, static_cast<WParam>(key));
    EXPECT_FALSE(Invalid());
  }
}

TEST_F(ZelPanelTest, ANotchOfTheWheelIsThreeArrowSteps) {
  MakeLarge();
  panel_->arrowStep = 7;
  GetDevice().Wheel(shell_.OnScreen(panel_->Handle(), {50, 50}), -2, false);
  EXPECT_EQ(panel_->Scroll(), (Point{0, 42}));
  GetDevice().Wheel(shell_.OnScreen(panel_->Handle(), {50, 50}), 1, false);
  EXPECT_EQ(panel_->Scroll(), (Point{0, 21}));
  GetDevice().Wheel(shell_.OnScreen(panel_->Handle(), {50, 50}), -1, true);
  EXPECT_EQ(panel_->Scroll(), (Point{21, 21}));
  EXPECT_TRUE(panel_->Notifications().empty());
}

TEST_F(ZelPanelTest, OtherMessagesArePassedOn) {
  GetDevice().Send(panel_->Handle(), WM_COMMAND, 40017, 5);
  ASSERT_EQ(panel_->seen.size(), 1u);
  EXPECT_EQ(panel_->seen[0].code, WM_COMMAND);
  EXPECT_EQ(panel_->seen[0].w, 40017u);
  EXPECT_EQ(panel_->seen[0].l, 5);
  Forget();
  GetDevice().Send(panel_->Handle(), WM_KEYUP, VK_LEFT, 0);
  GetDevice().Send(panel_->Handle(), WM_CHAR, u'a', 0);
  EXPECT_EQ(panel_->seen.size(), 2u);
}

TEST_F(ZelPanelTest, PenAndPaintMessagesAreNotPassedOn) {
  Down({30, 40});
  MoveTo({40, 40});
  Up({40, 40});
  shell_.Settle();
  for (const Notification& one : panel_->seen) {
    EXPECT_TRUE((one.code >= PN_DRAGQUERY && one.code <= PN_KEYDOWN) || one.code == WM_SETFOCUS ||
                one.code == WM_KILLFOCUS)
        << std::hex << one.code;
  }
}

TEST_F(ZelPanelTest, ACaptureThatAHandlerHandsOnIsNotReleased) {
  panel_->hook = [&](std::uint32_t message) {
    if (message == PN_PENUP) GetDevice().SetCapture(tool_->Handle());
  };
  shell_.Tap(panel_->Handle(), {30, 40});
  EXPECT_EQ(GetDevice().Capture(), tool_->Handle());
}

// A tap often opens another screen; the panel must come out of it in order.
TEST_F(ZelPanelTest, AHandlerMayHideThePanelsTool) {
  MakeLarge();
  panel_->hook = [&](std::uint32_t message) {
    if (message == PN_TAP) tool_->Hide();
  };
  shell_.Tap(panel_->Handle(), {30, 40});
  EXPECT_FALSE(panel_->IsVisible());
  EXPECT_EQ(GetDevice().Capture(), kNoWindow);
  EXPECT_EQ(panel_->Down(), Point{});
  panel_->hook = nullptr;
  tool_->Show();
  Forget();
  shell_.Tap(panel_->Handle(), {30, 40});
  EXPECT_EQ(panel_->Notifications(), (Codes{PN_PENDOWN, PN_PENUP, PN_TAP}));
}

}  // namespace
}  // namespace orvane
