#include "framework/zel_window.h"

#include "tests/framework/window_test_bed.h"

namespace orvane {
namespace {

using testing::Dispatched;
using testing::Probe;
using testing::Tools;
using testing::ZelWindowTest;

// --- Making.

TEST_F(ZelWindowTest, AToolIsHiddenWithoutStyleOrTitleInTheOneClass) {
  Probe tool(shell_, shell_.MainWindow(), true);
  ASSERT_NE(tool.Handle(), kNoWindow);
  EXPECT_EQ(GetDevice().ClassName(tool.Handle()), u"ZelWindowWC");
  EXPECT_EQ(GetDevice().Title(tool.Handle()), u"");
  EXPECT_EQ(GetDevice().Style(tool.Handle()), 0u);
  EXPECT_EQ(GetDevice().Parent(tool.Handle()), shell_.MainWindow());
  EXPECT_EQ(GetDevice().UserData(tool.Handle()), &tool);
  EXPECT_TRUE(tool.IsTopLevel());
  EXPECT_FALSE(tool.IsVisible());
  EXPECT_TRUE(Stack().empty());
}

TEST_F(ZelWindowTest, AChildIsAChildOfItsParent) {
  Probe tool(shell_, shell_.MainWindow(), true);
  Probe child(shell_, tool.Handle(), false);
  EXPECT_EQ(GetDevice().Style(child.Handle()), WS_CHILD);
  EXPECT_EQ(GetDevice().Parent(child.Handle()), tool.Handle());
  EXPECT_EQ(GetDevice().ClassName(child.Handle()), u"ZelWindowWC");
  EXPECT_FALSE(child.IsTopLevel());
}

TEST_F(ZelWindowTest, TheClassIsRegisteredByTheFirstWindow) {
  Probe tool(shell_, shell_.MainWindow(), true);
  EXPECT_FALSE(GetDevice().RegisterWindowClass({Text(kZelWindowClass), nullptr, {}}));
}

TEST_F(ZelWindowTest, TheClassHasAWhiteBackground) {
  const auto tool = MakeTool();
  tool->Show();
  shell_.Settle();
  EXPECT_EQ(shell_.Pixel({120, 150}), 0xFFFFFFu);
  EXPECT_EQ(shell_.Pixel({0, 26}), 0xFFFFFFu);
}

TEST_F(ZelWindowTest, TheFinishedObjectSeesWmCreateOnceAndIsBoundByThen) {
  const auto tool = MakeWindow<Probe>(shell_, shell_.MainWindow(), true);
  EXPECT_EQ(tool->Order({WM_CREATE}), std::vector<std::uint32_t>{WM_CREATE});
  EXPECT_EQ(tool->seen.front().message, WM_CREATE);
  EXPECT_TRUE(tool->bound);
  ASSERT_TRUE(tool->record.has_value());
  EXPECT_EQ(tool->record->parent, shell_.MainWindow());
  EXPECT_EQ(tool->record->style, 0u);
  EXPECT_EQ(tool->record->className, u"ZelWindowWC");
  const auto child = MakeWindow<Probe>(shell_, tool->Handle(), false);
  EXPECT_EQ(child->record->parent, tool->Handle());
  EXPECT_EQ(child->record->style, WS_CHILD);
}

TEST_F(ZelWindowTest, TheRootIsCalledZelWindow) {
  ZelWindow root(shell_, shell_.MainWindow(), true);
  EXPECT_EQ(root.ClassName(), "ZelWindow");
  EXPECT_EQ(root.Describe().className, "ZelWindow");
  Probe tool(shell_, shell_.MainWindow(), true);
  EXPECT_EQ(tool.ClassName(), "wnd_probe");
  EXPECT_EQ(tool.Describe().className, "wnd_probe");
  EXPECT_EQ(tool.UnitName(), "wnd_probe");
  Probe child(shell_, tool.Handle(), false);
  EXPECT_EQ(child.UnitName(), "");  // what a child draws is listed under its tool
}

// --- A window that could not be made.

class FailedWindowTest : public ZelWindowTest {
 protected:
  // The class is taken by windows that refuse to be made.
  FailedWindowTest() {
    GetDevice().RegisterWindowClass({Text(kZelWindowClass),
                                     [](WindowHandle, std::uint32_t message, WParam, LParam) -> Result {
                                       return message == WM_CREATE ? -1 : 0;
                                     },
                                     {}});
  }
};

TEST_F(FailedWindowTest, AMessageBoxNamesTheRootClass) {
  const auto tool = MakeWindow<Probe>(shell_, shell_.MainWindow(), true);
  EXPECT_EQ(tool->Handle(), kNoWindow);
  ASSERT_TRUE(GetDevice().Boxes().Open());
  EXPECT_EQ(GetDevice().Boxes().Front().text, u"Failed to create window: 'ZelWindow'");
  EXPECT_EQ(GetDevice().Boxes().Front().caption, u"Error in ZelWindow");
  EXPECT_EQ(GetDevice().Boxes().Front().icon, MessageIcon::kNone);
  EXPECT_EQ(GetDevice().Boxes().Waiting(), 0);
  EXPECT_TRUE(tool->seen.empty());
}

TEST_F(FailedWindowTest, TheObjectStaysAndDoesNothing) {
  const WindowHandle focus = GetDevice().Focus();
  {
    const auto tool = MakeWindow<Probe>(shell_, shell_.MainWindow(), true);
    tool->Show();
    tool->Hide();
    tool->HideOnly();
    tool->Move(1, 2, 3, 4);
    tool->Redraw();
    tool->Invalidate();
    tool->SetStyle(0, 0);
    tool->SetText(u"Nobody");
    tool->Created();
    EXPECT_FALSE(tool->IsVisible());
    EXPECT_TRUE(Stack().empty());
    EXPECT_TRUE(tool->seen.empty());
  }
  shell_.Settle();
  EXPECT_EQ(GetDevice().Focus(), focus);
  EXPECT_TRUE(Stack().empty());
}

// --- Show and Hide.

const std::vector<std::uint32_t> kShowing{kBeforeShow, WM_SHOWWINDOW, WM_PAINT, WM_SETFOCUS, kAfterShow};
const std::vector<std::uint32_t> kPrivate{0x89A0, 0x89A1, 0x89A2, 0x89A3};

TEST_F(ZelWindowTest, AHiddenToolIsToldPushedShownPaintedFocusedAndTold) {
  const auto tool = MakeTool();
  tool->Show();
  EXPECT_EQ(tool->Order(kShowing),
            (std::vector<std::uint32_t>{0x89A0, WM_SHOWWINDOW, WM_PAINT, WM_SETFOCUS, 0x89A1}));
  EXPECT_TRUE(tool->First(0x89A0).onTop);
  EXPECT_FALSE(tool->First(0x89A0).visible);
  EXPECT_TRUE(tool->First(WM_PAINT).visible);
  EXPECT_FALSE(tool->First(WM_PAINT).focused);
  EXPECT_TRUE(tool->First(0x89A1).visible);
  EXPECT_TRUE(tool->First(0x89A1).focused);
  EXPECT_EQ(Stack(), Tools{tool.get()});
  EXPECT_TRUE(tool->IsVisible());
}

TEST_F(ZelWindowTest, AHiddenChildIsToldAndShownWithoutStackOrFocus) {
  const auto tool = MakeTool();
  tool->Show();
  const auto child = MakeChild(*tool);
  child->Show();
  EXPECT_EQ(child->Order(kShowing), (std::vector<std::uint32_t>{0x89A0, WM_SHOWWINDOW, WM_PAINT, 0x89A1}));
  EXPECT_TRUE(child->IsVisible());
  EXPECT_EQ(Stack(), Tools{tool.get()});
  EXPECT_EQ(GetDevice().Focus(), tool->Handle());
}

TEST_F(ZelWindowTest, AVisibleChildComesToTheTopOfItsSiblings) {
  const auto tool = MakeTool();
  tool->Show();
  const auto first = MakeChild(*tool);
  const auto second = MakeChild(*tool);
  first->Show();
  second->Show();
  shell_.Settle();
  first->seen.clear();
  first->Show();
  EXPECT_TRUE(first->Order(kPrivate).empty());
  EXPECT_EQ(GetDevice().VisibleWindows().back(), first->Handle());
  EXPECT_EQ(GetDevice().Focus(), tool->Handle());
  EXPECT_TRUE(GetDevice().InvalidRect(first->Handle()).Empty());
}

TEST_F(ZelWindowTest, AVisibleToolMovesToTheTopOfTheStackWithoutBeingTold) {
  const auto a = MakeTool();
  const auto b = MakeTool();
  const auto c = MakeTool();
  a->Show();
  b->Show();
  c->Show();
  EXPECT_EQ(Stack(), (Tools{a.get(), b.get(), c.get()}));
  a->seen.clear();
  a->Show();
  EXPECT_EQ(Stack(), (Tools{b.get(), c.get(), a.get()}));
  EXPECT_TRUE(a->Order(kPrivate).empty());
  EXPECT_EQ(GetDevice().VisibleWindows().back(), a->Handle());
  EXPECT_EQ(GetDevice().Focus(), a->Handle());
  c->Show();
  EXPECT_EQ(Stack(), (Tools{b.get(), a.get(), c.get()}));
}

TEST_F(ZelWindowTest, ShowingTheFrontToolOnlyGivesItTheFocus) {
  const auto a = MakeTool();
  const auto b = MakeTool();
  a->Show();
  b->Show();
  GetDevice().SetFocus(a->Handle());
  b->seen.clear();
  b->Show();
  EXPECT_EQ(Stack(), (Tools{a.get(), b.get()}));
  EXPECT_TRUE(b->Order(kPrivate).empty());
  EXPECT_EQ(GetDevice().Focus(), b->Handle());
}

TEST_F(ZelWindowTest, HidingAHiddenWindowDoesNothing) {
  const auto tool = MakeTool();
  const auto other = MakeTool();
  other->Show();
  other->seen.clear();
  tool->Hide();
  EXPECT_TRUE(tool->seen.empty());
  EXPECT_TRUE(other->seen.empty());
  EXPECT_EQ(Stack(), Tools{other.get()});
}

TEST_F(ZelWindowTest, HidingAToolLeavesTheStackTellsHidesTellsAndRevealsTheOneBefore) {
  const auto a = MakeTool();
  const auto b = MakeTool();
  a->Show();
  b->Show();
  a->seen.clear();
  b->seen.clear();
  std::vector<std::string> order;
  b->hook = [&](std::uint32_t message) {
    if (message == 0x89A3) order.push_back("told");
  };
  a->hook = [&](std::uint32_t message) {
    if (message == WM_SETFOCUS) order.push_back("revealed");
  };
  b->Hide();
  EXPECT_EQ(b->Order({0x89A2, WM_SHOWWINDOW, 0x89A3}),
            (std::vector<std::uint32_t>{0x89A2, WM_SHOWWINDOW, 0x89A3}));
  EXPECT_TRUE(b->First(0x89A2).visible);
  EXPECT_FALSE(b->First(0x89A2).onTop);
  EXPECT_FALSE(b->First(0x89A3).visible);
  EXPECT_EQ(order, (std::vector<std::string>{"told", "revealed"}));
  EXPECT_EQ(Stack(), Tools{a.get()});
  EXPECT_EQ(GetDevice().Focus(), a->Handle());
  EXPECT_TRUE(a->Order(kPrivate).empty());  // it was visible all the time, only covered
  EXPECT_EQ(GetDevice().VisibleWindows().back(), a->Handle());
}

TEST_F(ZelWindowTest, HidingAToolThatIsNotOnTopKeepsTheFrontTool) {
  const auto a = MakeTool();
  const auto b = MakeTool();
  const auto c = MakeTool();
  a->Show();
  b->Show();
  c->Show();
  b->Hide();
  EXPECT_EQ(Stack(), (Tools{a.get(), c.get()}));
  EXPECT_EQ(GetDevice().VisibleWindows().back(), c->Handle());
  c->Hide();
  EXPECT_EQ(Stack(), Tools{a.get()});
}

TEST_F(ZelWindowTest, HidingTheOnlyToolEmptiesTheStack) {
  const auto tool = MakeTool();
  tool->Show();
  tool->Hide();
  EXPECT_TRUE(Stack().empty());
  EXPECT_FALSE(tool->IsVisible());
  EXPECT_EQ(tool->Order(kPrivate), kPrivate);
}

TEST_F(ZelWindowTest, HidingAChildDoesNotTouchTheStack) {
  const auto tool = MakeTool();
  tool->Show();
  const auto child = MakeChild(*tool);
  child->Show();
  GetDevice().SetFocus(shell_.MainWindow());
  child->Hide();
  EXPECT_EQ(child->Order(kPrivate), kPrivate);
  EXPECT_EQ(Stack(), Tools{tool.get()});
  EXPECT_EQ(GetDevice().Focus(), shell_.MainWindow());  // no tool is brought forward
}

TEST_F(ZelWindowTest, HideOnlyBringsNoOtherToolForward) {
  const auto a = MakeTool();
  const auto b = MakeTool();
  a->Show();
  b->Show();
  a->seen.clear();
  b->HideOnly();
  EXPECT_EQ(b->Order(kPrivate), kPrivate);
  EXPECT_EQ(Stack(), Tools{a.get()});
  EXPECT_FALSE(a->Saw(WM_SETFOCUS));
  b->seen.clear();
  b->HideOnly();
  EXPECT_TRUE(b->seen.empty());
}

TEST_F(ZelWindowTest, AToolThatIsShownWhileItHidesIsNotLostInTheStack) {
  for (const std::uint32_t moment : {kBeforeHide, kAfterHide}) {
    const auto a = MakeTool();
    const auto b = MakeTool();
    a->Show();
    b->Show();
    b->hook = [&](std::uint32_t message) {
      if (message == moment) b->Show();
    };
    b->Hide();
    b->hook = nullptr;
    // Shown before it is hidden, it is hidden all the same; shown afterwards, it is back.
    EXPECT_EQ(b->IsVisible(), moment == kAfterHide);
    EXPECT_EQ(Stack(), moment == kAfterHide ? (Tools{a.get(), b.get()}) : Tools{a.get()});
  }
  EXPECT_TRUE(Stack().empty());
}

TEST_F(ZelWindowTest, AToolInAHiddenMainWindowStandsInTheStackOnce) {
  GetDevice().ShowWindow(shell_.MainWindow(), false);
  const auto a = MakeTool();
  const auto b = MakeTool();
  a->Show();
  b->Show();
  a->Show();
  EXPECT_EQ(Stack(), (Tools{b.get(), a.get()}));
}

// --- The end.

TEST_F(ZelWindowTest, DestructionHidesUnbindsThenDestroys) {
  const auto a = MakeTool();
  auto b = MakeTool();
  a->Show();
  b->Show();
  const WindowHandle handle = b->Handle();
  shell_.Trace().messages.clear();
  bool boundAtDestroy = true;
  a->hook = [&](std::uint32_t message) {
    // The next tool comes forward while the window that goes still exists.
    if (message == WM_SETFOCUS) boundAtDestroy = GetDevice().IsWindow(handle);
  };
  b.reset();
  a->hook = nullptr;
  EXPECT_TRUE(boundAtDestroy);
  EXPECT_FALSE(GetDevice().IsWindow(handle));
  EXPECT_EQ(Stack(), Tools{a.get()});
  EXPECT_EQ(GetDevice().Focus(), a->Handle());
  std::vector<std::uint32_t> order;
  for (const Dispatched& one : shell_.Trace().messages) {
    if (one.window == handle && (one.message >= 0x89A0 || one.message == WM_DESTROY)) {
      order.push_back(one.message);
    }
  }
  EXPECT_EQ(order, (std::vector<std::uint32_t>{0x89A2, 0x89A3, WM_DESTROY}));
}

TEST_F(ZelWindowTest, TheLastMessagesDoNotReachTheObject) {
  auto tool = MakeTool();
  const WindowHandle handle = tool->Handle();
  bool destroyed = false;
  WindowObject* boundThen = tool.get();
  shell_.Trace().watch = [&](const Dispatched& one) {
    if (one.window != handle || one.message != WM_DESTROY) return;
    destroyed = true;
    boundThen = GetDevice().UserData(handle);
  };
  tool.reset();
  EXPECT_TRUE(destroyed);
  EXPECT_EQ(boundThen, nullptr);
}

TEST_F(ZelWindowTest, AnObjectWhoseWindowIsGoneLeavesTheStack) {
  auto tool = MakeTool();
  tool->Show();
  GetDevice().DestroyWindow(tool->Handle());
  tool->Hide();
  tool->Redraw();
  tool.reset();
  EXPECT_TRUE(Stack().empty());
}

// --- The rest.

TEST_F(ZelWindowTest, SetTextIsTheTitleInTheTitleArea) {
  const auto tool = MakeTool();
  tool->SetText(u"Periodic table");
  EXPECT_EQ(GetDevice().Title(tool->Handle()), u"Periodic table");
}

TEST_F(ZelWindowTest, SetStyleReplacesTheStyle) {
  const auto tool = MakeTool();
  const auto child = MakeWindow<Probe>(shell_, tool->Handle(), false);
  child->SetStyle(0, 0);
  EXPECT_EQ(GetDevice().Style(child->Handle()), 0u);
  tool->Show();
  tool->SetStyle(0, 0);
  EXPECT_TRUE(tool->IsVisible());
}

TEST_F(ZelWindowTest, MovePlacesInTheParentAndRepaints) {
  const auto tool = MakeTool();
  tool->Show();
  shell_.Settle();
  tool->seen.clear();
  tool->Move(10, 20, 100, 50);
  EXPECT_EQ(GetDevice().WindowRect(tool->Handle()), (Rect{10, 20, 110, 70}));
  EXPECT_EQ(GetDevice().ScreenRect(tool->Handle()), (Rect{10, 46, 110, 96}));
  shell_.Settle();
  EXPECT_TRUE(tool->Saw(WM_PAINT));
}

TEST_F(ZelWindowTest, RedrawPaintsAtOnceAndInvalidateWaits) {
  const auto tool = MakeTool();
  tool->Show();
  shell_.Settle();
  tool->seen.clear();
  tool->Invalidate();
  EXPECT_FALSE(tool->Saw(WM_PAINT));
  EXPECT_EQ(GetDevice().InvalidRect(tool->Handle()), (Rect{0, 0, 240, 268}));
  tool->Redraw();
  EXPECT_EQ(tool->Order({WM_PAINT}).size(), 1u);
  EXPECT_TRUE(GetDevice().InvalidRect(tool->Handle()).Empty());
  tool->Invalidate();
  shell_.Settle();
  EXPECT_EQ(tool->Order({WM_PAINT}).size(), 2u);
}

}  // namespace
}  // namespace orvane
