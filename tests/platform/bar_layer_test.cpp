#include <gtest/gtest.h>

#include "tests/platform/chrome_test_bed.h"

namespace orvane::chrome_test {
namespace {

struct BarBed : Bed {
  explicit BarBed(int flags = kBarHidden) {
    bar = Get().Bars().Create(main, flags, MainButtons());
    Get().Bars().Show(bar, true);
    Get().Bars().Insert(bar, 99, Push(40));
    Get().Bars().Insert(bar, 99, DropDown(41));
    Step();
  }
  MenuBars& Bars() { return Get().Bars(); }
  BarHandle bar = kNoBar;
};

constexpr int kApp = 0;
constexpr int kTools = 1;
constexpr int kPushAt = 3;
constexpr int kDropAt = 4;

TEST(MenuBar, ABarIsHiddenUntilItIsShown) {
  Bed bed;
  const BarHandle bar = bed.Get().Bars().Create(bed.main, 0, MainButtons());
  EXPECT_NE(bar, kNoBar);
  EXPECT_EQ(bed.Get().Bars().Shown(), kNoBar);
  EXPECT_TRUE(bed.Get().Bars().Places().empty());
  EXPECT_FALSE(bed.Get().Bars().HasPanelButton());
}

TEST(MenuBar, ButtonsStandAtTheirPlaces) {
  BarBed bed;
  const std::vector<BarButtonPlace> places = bed.Bars().Places();
  ASSERT_EQ(places.size(), 5u);
  EXPECT_EQ(places[0].rect.left, 0);
  EXPECT_EQ(places[kPushAt].rect, Rect::At(70, 294, 24, 26));
  EXPECT_EQ(places[kDropAt].rect, Rect::At(94, 294, 24, 26));
  EXPECT_EQ(bed.Bars().PanelButtonRect(), Rect::At(214, 294, 26, 26));
  EXPECT_TRUE(bed.Shows("bar", "App"));
  EXPECT_TRUE(bed.Shows("bar", "Tools"));
}

TEST(MenuBar, ABarMayGoWithoutThePanelButton) {
  BarBed bed(kBarHidden | kBarWithoutPanelButton);
  EXPECT_FALSE(bed.Bars().HasPanelButton());
  EXPECT_TRUE(bed.Bars().PanelButtonRect().Empty());
  EXPECT_FALSE(bed.Bars().PressPanelButton());
  EXPECT_FALSE(bed.Get().Panel().Visible());
}

TEST(MenuBar, APushButtonSendsItsCommandWhenThePenIsLiftedInIt) {
  BarBed bed;
  const Point button = ButtonPoint(bed, kPushAt);
  bed.Get().PenDown(button);
  bed.Step();
  EXPECT_TRUE(bed.Bars().Places()[kPushAt].pressed);
  EXPECT_TRUE(bed.Commands(bed.main).empty());
  bed.Get().PenUp(button);
  bed.Step();
  ASSERT_EQ(bed.Of(WM_COMMAND).size(), 1u);
  EXPECT_EQ(bed.Of(WM_COMMAND)[0].w, PackCommand(40, 0));
  EXPECT_FALSE(bed.Bars().Places()[kPushAt].pressed);
}

TEST(MenuBar, APressCanBeTakenBackByMovingOut) {
  BarBed bed;
  bed.Get().PenDown(ButtonPoint(bed, kPushAt));
  bed.Get().PenMove({100, 100});
  EXPECT_FALSE(bed.Bars().Places()[kPushAt].pressed);
  bed.Get().PenMove(ButtonPoint(bed, kPushAt));
  EXPECT_TRUE(bed.Bars().Places()[kPushAt].pressed);
  bed.Get().PenUp({100, 100});
  bed.Step();
  EXPECT_TRUE(bed.Commands(bed.main).empty());
}

TEST(MenuBar, ADropDownNotifiesItsOwnerWhenThePenGoesDown) {
  BarBed bed;
  bed.Get().PenDown(ButtonPoint(bed, kDropAt));
  ASSERT_EQ(bed.Of(WM_NOTIFY).size(), 1u);
  const Noted noted = bed.Of(WM_NOTIFY)[0];
  EXPECT_EQ(noted.window, bed.main);
  EXPECT_EQ(noted.notification.bar, bed.bar);
  EXPECT_EQ(noted.notification.code, TBN_DROPDOWN);
  EXPECT_EQ(noted.notification.id, 41);
  bed.Get().PenUp(ButtonPoint(bed, kDropAt));
  bed.Step();
  EXPECT_EQ(bed.Of(WM_NOTIFY).size(), 1u);
  EXPECT_TRUE(bed.Commands(bed.main).empty());
}

TEST(MenuBar, ADropDownLooksPressedWhileItsMenuIsOpen) {
  BarBed bed;
  bed.whenNoted = [&bed](const Noted& noted) {
    if (noted.message == WM_NOTIFY)
      bed.Get().Popups().Track(MenuOf({Entry(5, u"Wide")}), {94, 295}, bed.tool);
  };
  bed.Tap(ButtonPoint(bed, kDropAt));
  EXPECT_TRUE(bed.Get().Popups().Open());
  EXPECT_TRUE(bed.Bars().Places()[kDropAt].pressed);
  bed.Tap(RowPoint(bed, "Wide"));
  EXPECT_FALSE(bed.Bars().Places()[kDropAt].pressed);
  EXPECT_EQ(bed.Commands(bed.tool), (std::vector<int>{5}));
}

TEST(MenuBar, AMenuButtonOpensItsMenuAboveItself) {
  BarBed bed;
  bed.Tap(ButtonPoint(bed, kTools));
  EXPECT_TRUE(bed.Get().Popups().Open());
  EXPECT_EQ(bed.Get().Popups().Anchor(), (Point{bed.Bars().Places()[kTools].rect.left, 294}));
  EXPECT_EQ(bed.Get().Popups().Current().Items()[1].label, u"Find element");
  EXPECT_TRUE(bed.Bars().Places()[kTools].pressed);
  bed.Tap(RowPoint(bed, "Find element"));
  EXPECT_FALSE(bed.Get().Popups().Open());
  EXPECT_FALSE(bed.Bars().Places()[kTools].pressed);
  EXPECT_EQ(bed.Commands(bed.main), (std::vector<int>{12}));
}

TEST(MenuBar, OneStrokeOpensAMenuAndChooses) {
  BarBed bed;
  bed.Get().PenDown(ButtonPoint(bed, kTools));
  const Point row = RowPoint(bed, "Plot");
  bed.Get().PenMove({row.x, row.y + 30});
  bed.Get().PenMove(row);
  bed.Get().PenUp(row);
  bed.Step();
  EXPECT_EQ(bed.Commands(bed.main), (std::vector<int>{13}));
  EXPECT_FALSE(bed.Get().Popups().Open());
}

TEST(MenuBar, AStrokeThroughTheMenuAndOutOfItClosesIt) {
  BarBed bed;
  bed.Get().PenDown(ButtonPoint(bed, kTools));
  bed.Get().PenMove(RowPoint(bed, "Plot"));
  bed.Get().PenMove({230, 60});
  bed.Get().PenUp({230, 60});
  bed.Step();
  EXPECT_FALSE(bed.Get().Popups().Open());
  EXPECT_TRUE(bed.Commands(bed.main).empty());
}

TEST(MenuBar, TheLiveMenuIsWhatOpens) {
  BarBed bed;
  ASSERT_NE(bed.Bars().ButtonMenu(bed.bar, kApp), nullptr);
  bed.Bars().ButtonMenu(bed.bar, kApp)->Enable(2, false);
  EXPECT_TRUE(bed.Bars().OpenMenu(kApp));
  EXPECT_FALSE(bed.Get().Popups().Current().Items()[1].enabled);
  EXPECT_EQ(bed.Bars().ButtonMenu(bed.bar, kPushAt), nullptr);
  EXPECT_EQ(bed.Bars().ButtonMenu(bed.bar, 99), nullptr);
  EXPECT_EQ(bed.Bars().ButtonMenu(77, 0), nullptr);
}

TEST(MenuBar, LeftAndRightGoFromMenuToMenu) {
  BarBed bed;
  bed.Key(VK_F10);
  ASSERT_TRUE(bed.Get().Popups().Open());
  EXPECT_EQ(bed.Get().Popups().Current().Items()[0].label, u"About");
  bed.Key(VK_RIGHT);
  EXPECT_EQ(bed.Get().Popups().Current().Items()[0].label, u"Periodic table");
  bed.Key(VK_RIGHT);
  EXPECT_EQ(bed.Get().Popups().Current().Items()[0].label, u"About");
  bed.Key(VK_LEFT);
  EXPECT_EQ(bed.Get().Popups().Current().Items()[0].label, u"Periodic table");
  EXPECT_TRUE(bed.Bars().Places()[kTools].pressed);
  EXPECT_FALSE(bed.Bars().Places()[kApp].pressed);
  bed.Key(VK_RETURN);  // the first entry is selected
  EXPECT_EQ(bed.Commands(bed.main), (std::vector<int>{11}));
}

TEST(MenuBar, AltAndADigitPressTheButtonsFromTheLeft) {
  BarBed bed;
  const auto press = [&](int key, Modifiers modifiers) {
    bed.Get().KeyDown(key, modifiers);
    bed.Get().KeyUp(key, modifiers);
    bed.Step();
  };
  press('1', {.alt = true});
  EXPECT_EQ(bed.Commands(bed.main), (std::vector<int>{40}));
  press('2', {.alt = true});
  EXPECT_EQ(bed.Of(WM_NOTIFY).size(), 1u);
  // There is no third button, and these are no keys for the bar.
  press('3', {.alt = true});
  press('0', {.alt = true});
  press('1', {});
  press('1', {.shift = true, .alt = true});
  press('1', {.control = true, .alt = true});
  EXPECT_EQ(bed.Commands(bed.main).size(), 1u);
  EXPECT_EQ(bed.Of(WM_NOTIFY).size(), 1u);
  // A disabled button is not pressed, and the next one does not move up to its place.
  bed.Bars().Enable(bed.bar, 40, false);
  press('1', {.alt = true});
  EXPECT_EQ(bed.Commands(bed.main).size(), 1u);
  EXPECT_EQ(bed.Of(WM_NOTIFY).size(), 1u);
  press('2', {.alt = true});
  EXPECT_EQ(bed.Of(WM_NOTIFY).size(), 2u);
}

TEST(MenuBar, DisabledButtonsDoNothing) {
  BarBed bed;
  bed.Bars().Enable(bed.bar, 40, false);
  bed.Bars().Enable(bed.bar, 41, false);
  bed.Tap(ButtonPoint(bed, kPushAt));
  bed.Tap(ButtonPoint(bed, kDropAt));
  EXPECT_TRUE(bed.Commands(bed.main).empty());
  EXPECT_TRUE(bed.Of(WM_NOTIFY).empty());
  EXPECT_FALSE(bed.Bars().Press(40));
  EXPECT_FALSE(bed.Bars().Press(41));
  bed.Bars().Enable(bed.bar, 40, true);
  EXPECT_TRUE(bed.Bars().Press(40));
}

TEST(MenuBar, ButtonsArePressedByTheirIds) {
  BarBed bed;
  EXPECT_TRUE(bed.Bars().Press(40));
  EXPECT_TRUE(bed.Bars().Press(41));
  EXPECT_FALSE(bed.Bars().Press(99));
  bed.Step();
  EXPECT_EQ(bed.Commands(bed.main), (std::vector<int>{40}));
  EXPECT_EQ(bed.Of(WM_NOTIFY).size(), 1u);
}

TEST(MenuBar, ASeparatorCannotBePressed) {
  Bed bed;
  const BarHandle bar = bed.Get().Bars().Create(bed.main, 0, {});
  BarButton separator;
  separator.style = ButtonStyle::kSeparator;
  bed.Get().Bars().Insert(bar, 0, separator);
  bed.Get().Bars().Show(bar, true);
  EXPECT_FALSE(bed.Get().Bars().Press(0));
}

TEST(MenuBar, NothingIsPressedBelowAMessageBoxOrAModalDialog) {
  BarBed bed;
  bed.Get().Boxes().Show(bed.main, u"text", u"Orvane", MessageIcon::kNone);
  EXPECT_FALSE(bed.Bars().Press(40));
  EXPECT_FALSE(bed.Bars().OpenMenu(kApp));
  EXPECT_FALSE(bed.Bars().PressPanelButton());
  bed.Get().Boxes().Dismiss();
  DialogTemplate about;
  about.rect = kClientArea;
  bed.Get().DialogBoxes().ShowModal(about);
  EXPECT_FALSE(bed.Bars().Press(40));
}

TEST(MenuBar, CheckedButtonsAreMarked) {
  BarBed bed;
  bed.Bars().Check(bed.bar, 40, true);
  EXPECT_EQ(bed.Bars().Places()[kPushAt].button.state, TBSTATE_ENABLED | TBSTATE_CHECKED);
  bed.Step();
  EXPECT_EQ(bed.host.Pixel(71, 300), 0x0079FFu);  // the accent frame
  bed.Bars().Check(bed.bar, 40, false);
  bed.Step();
  EXPECT_EQ(bed.host.Pixel(71, 300), 0xF0FAFFu);
}

TEST(MenuBar, ACheckButtonActsOnLiftAndLeavesItsStateToItsOwner) {
  BarBed bed;
  BarButton check = Push(42);
  check.style = ButtonStyle::kCheck;
  bed.Bars().Insert(bed.bar, kPushAt + 1, check);
  const Point button = ButtonPoint(bed, kPushAt + 1);
  bed.Get().PenDown(button);
  bed.Step();
  EXPECT_TRUE(bed.Commands(bed.main).empty());
  bed.Get().PenUp({100, 100});
  bed.Step();
  EXPECT_TRUE(bed.Commands(bed.main).empty());
  bed.Tap(button);
  EXPECT_EQ(bed.Commands(bed.main), (std::vector<int>{42}));
  EXPECT_EQ(bed.Bars().Places()[kPushAt + 1].button.state, TBSTATE_ENABLED);
  bed.Get().KeyDown('2', {.alt = true});  // 40 is the first
  bed.Step();
  EXPECT_EQ(bed.Commands(bed.main), (std::vector<int>{42, 42}));
}

TEST(MenuBar, ThePanelButtonRaisesAndLowersThePanel) {
  BarBed bed;
  bed.Tap({227, 307});
  EXPECT_TRUE(bed.Get().Panel().Visible());
  EXPECT_EQ(bed.host.Pixel(215, 300), 0x0079FFu);  // it looks switched on
  bed.Tap({227, 307});
  EXPECT_FALSE(bed.Get().Panel().Visible());
  EXPECT_EQ(bed.host.Pixel(215, 300), 0xF0FAFFu);
  bed.Get().PenDown({227, 307});
  bed.Get().PenUp({100, 100});
  EXPECT_FALSE(bed.Get().Panel().Visible());
}

TEST(MenuBar, ThePanelButtonFollowsThePanelWhoeverRaisesIt) {
  BarBed bed;
  bed.Get().Panel().Request(true);
  bed.Step();
  EXPECT_EQ(bed.host.Pixel(215, 300), 0x0079FFu);
}

TEST(MenuBar, EveryCallIsTraced) {
  Bed bed;
  MenuBars& bars = bed.Get().Bars();
  const BarHandle bar = bars.Create(bed.main, 6, MainButtons());
  bars.Show(bar, true);
  bars.Insert(bar, 3, Push(40));
  bars.Insert(bar, 3, Push(39));
  bars.Enable(bar, 40, false);
  bars.Check(bar, 40, true);
  bars.Delete(bar, 3);
  bars.Show(bar, false);
  bars.Destroy(bar);
  bars.Destroy(bar);  // gone: not a call of any bar
  EXPECT_EQ(bed.trace.barCalls, (std::vector<std::string>{"create 1 3 6", "show 1 0 0", "add 1 40 3",
                                                          "insert 1 39 3", "enable 1 40 0", "check 1 40 1",
                                                          "delete 1 3 0", "hide 1 0 0", "destroy 1 0 0"}));
}

TEST(MenuBar, CallsOnBarsThatDoNotExistDoNothing) {
  Bed bed;
  MenuBars& bars = bed.Get().Bars();
  bars.Destroy(9);
  bars.Show(9, true);
  bars.SetImages(9, {});
  bars.Insert(9, 0, Push(1));
  bars.Delete(9, 0);
  bars.Enable(9, 1, true);
  bars.Check(9, 1, true);
  EXPECT_EQ(bars.Count(9), 0);
  EXPECT_EQ(bars.Shown(), kNoBar);
  EXPECT_FALSE(bars.Press(1));
  EXPECT_FALSE(bars.OpenMenu(0));
  EXPECT_TRUE(bed.trace.barCalls.empty());
}

TEST(MenuBar, InsertingBeyondTheEndAppendsAndDeletingBeyondItDoesNothing) {
  BarBed bed;
  EXPECT_EQ(bed.Bars().Count(bed.bar), 5);
  bed.Bars().Insert(bed.bar, -1, Push(50));
  EXPECT_EQ(bed.Bars().Places().back().button.id, 50);
  bed.Bars().Delete(bed.bar, 6);
  bed.Bars().Delete(bed.bar, -1);
  EXPECT_EQ(bed.Bars().Count(bed.bar), 6);
  bed.Bars().Delete(bed.bar, 3);
  EXPECT_EQ(bed.Bars().Places()[3].button.id, 41);
}

TEST(MenuBar, APressEndsWhenItsButtonOrBarGoes) {
  BarBed bed;
  bed.Bars().Insert(bed.bar, kPushAt + 1, Push(42));
  const Point button = ButtonPoint(bed, kPushAt);
  bed.Get().PenDown(button);
  bed.Bars().Delete(bed.bar, kPushAt);  // 42 stands there now
  bed.Get().PenUp(button);
  bed.Step();
  EXPECT_TRUE(bed.Commands(bed.main).empty());

  bed.Get().PenDown(ButtonPoint(bed, kApp));
  bed.Bars().Destroy(bed.bar);
  EXPECT_FALSE(bed.Get().Popups().Open());  // its menu went with it
  bed.Get().PenMove(button);
  bed.Get().PenUp(button);
  bed.Step();
  EXPECT_TRUE(bed.Commands(bed.main).empty());
}

TEST(MenuBar, AnOwnerMayDestroyTheBarWhileItIsNotified) {
  BarBed bed;
  bed.whenNoted = [&bed](const Noted& noted) {
    if (noted.message == WM_NOTIFY) bed.Bars().Destroy(bed.bar);
  };
  bed.Tap(ButtonPoint(bed, kDropAt));
  EXPECT_EQ(bed.Bars().Shown(), kNoBar);
}

TEST(MenuBar, AnOwnerThatIsGoneIsNotMissed) {
  BarBed bed;
  bed.Get().DestroyWindow(bed.main);
  bed.notes.clear();
  bed.Tap(ButtonPoint(bed, kPushAt));
  bed.Tap(ButtonPoint(bed, kDropAt));
  bed.Tap(ButtonPoint(bed, kApp));
  EXPECT_TRUE(bed.Of(WM_COMMAND).empty());
  EXPECT_TRUE(bed.Of(WM_NOTIFY).empty());
}

TEST(MenuBar, AnotherBarTakesTheInput) {
  BarBed bed;
  const BarHandle own = bed.Bars().Create(bed.tool, kBarHidden, {Push(70)});
  bed.Bars().Show(own, true);
  bed.Tap({10, 305});
  EXPECT_EQ(bed.Commands(bed.tool), (std::vector<int>{70}));
  bed.Bars().Show(own, false);
  EXPECT_EQ(bed.Bars().Shown(), bed.bar);
}

}  // namespace
}  // namespace orvane::chrome_test
