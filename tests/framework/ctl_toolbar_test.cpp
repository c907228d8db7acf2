#include "framework/ctl_toolbar.h"

#include <gtest/gtest.h>

#include <set>

#include "framework/zel_tool_window.h"
#include "tests/framework/test_shell.h"

namespace orvane {
namespace {

using testing::Dispatched;
using testing::TestShell;
using testing::TestShellOptions;

// A tool with a bar of its own, as tools show and hide it.
class BarTool : public ZelToolWindow {
 public:
  explicit BarTool(TestShell& shell)
      : ZelToolWindow(shell, shell.MainWindow(), true), bar(shell, Handle(), true) {
    Move(0, 0, 240, 268);
  }

  Result OnMessage(std::uint32_t message, WParam w, LParam l) override {
    if (message == kAfterShow) bar.Show();
    if (message == kBeforeHide) bar.Hide();
    if (message == WM_COMMAND || message == kToolCommand) commands.push_back({Handle(), message, w, l});
    return ZelToolWindow::OnMessage(message, w, l);
  }

  ctlToolbar bar;
  std::vector<Dispatched> commands;

 protected:
  void Paint(Canvas&, int, int) override {}
};

class ToolbarTest : public ::testing::Test {
 protected:
  MenuBars& Bars() { return shell_.GetDevice().Bars(); }
  std::vector<BarButton> Buttons() {
    std::vector<BarButton> buttons;
    for (const BarButtonPlace& place : Bars().Places()) buttons.push_back(place.button);
    return buttons;
  }

  TestShell shell_;
};

TEST_F(ToolbarTest, StartsHiddenAndWithoutThePlaceholder) {
  shell_.Trace().barCalls.clear();
  const ctlToolbar bar(shell_, shell_.MainWindow(), true);
  ASSERT_NE(bar.Handle(), kNoBar);
  EXPECT_EQ(bar.Owner(), shell_.MainWindow());
  EXPECT_EQ(Bars().Count(bar.Handle()), 0);
  EXPECT_EQ(Bars().Shown(), shell_.MainBar());
  // The resource's bar has one button, which is deleted; the flags are those of a hidden bar.
  const std::string handle = std::to_string(bar.Handle());
  EXPECT_EQ(shell_.Trace().barCalls,
            (std::vector<std::string>{"create " + handle + " 1 2", "images " + handle + " 23 0",
                                      "delete " + handle + " 0 0"}));
  EXPECT_FALSE(shell_.GetDevice().Boxes().Open());
}

TEST_F(ToolbarTest, AnInvisibleBarHasNoInputPanelButton) {
  shell_.Trace().barCalls.clear();
  ctlToolbar without(shell_, shell_.MainWindow(), false);
  EXPECT_EQ(shell_.Trace().barCalls.front(), "create " + std::to_string(without.Handle()) + " 1 6");
  without.Show();
  EXPECT_EQ(Bars().Shown(), without.Handle());
  EXPECT_FALSE(Bars().HasPanelButton());
  ctlToolbar with(shell_, shell_.MainWindow(), true);
  with.Show();
  EXPECT_EQ(Bars().Shown(), with.Handle());
  EXPECT_TRUE(Bars().HasPanelButton());
}

TEST_F(ToolbarTest, AppendsButtonsWithTheirStatesAndStyles) {
  ctlToolbar bar(shell_, shell_.MainWindow(), true);
  bar.AddButton(40176, 3, TBSTATE_ENABLED, ButtonStyle::kPush);
  bar.AddButton(0, 0, TBSTATE_ENABLED, ButtonStyle::kSeparator);
  bar.AddButton(8867, 20, TBSTATE_ENABLED, ButtonStyle::kDropDown);
  bar.Show();
  const std::vector<BarButton> buttons = Buttons();
  ASSERT_EQ(buttons.size(), 3u);
  EXPECT_EQ(buttons[0].id, 40176);
  EXPECT_EQ(buttons[0].image, 3);
  EXPECT_EQ(buttons[0].state, 4);
  EXPECT_EQ(buttons[0].style, ButtonStyle::kPush);
  EXPECT_TRUE(buttons[0].label.empty());
  EXPECT_EQ(buttons[1].id, 0);
  EXPECT_EQ(buttons[1].image, 0);
  EXPECT_EQ(buttons[1].style, ButtonStyle::kSeparator);
  EXPECT_EQ(buttons[2].id, 8867);
  EXPECT_EQ(buttons[2].image, 20);
  EXPECT_EQ(buttons[2].style, ButtonStyle::kDropDown);
  EXPECT_EQ(static_cast<int>(ButtonStyle::kPush), 0);
  EXPECT_EQ(static_cast<int>(ButtonStyle::kSeparator), 1);
  EXPECT_EQ(static_cast<int>(ButtonStyle::kDropDown), 8);
}

TEST_F(ToolbarTest, EnablesAndChecksTheButtonOfTheId) {
  ctlToolbar bar(shell_, shell_.MainWindow(), true);
  bar.AddButton(1, 3, TBSTATE_ENABLED, ButtonStyle::kPush);
  bar.AddButton(2, 4, TBSTATE_ENABLED, ButtonStyle::kPush);
  bar.Show();
  bar.EnableButton(2, false);
  EXPECT_EQ(Buttons()[0].state, 4);
  EXPECT_EQ(Buttons()[1].state, 0);
  EXPECT_FALSE(Bars().Press(2));
  bar.CheckButton(1, true);
  bar.EnableButton(2, true);
  EXPECT_EQ(Buttons()[0].state, 5);
  EXPECT_EQ(Buttons()[1].state, 4);
  bar.CheckButton(1, false);
  bar.EnableButton(77, false);
  bar.CheckButton(77, true);
  EXPECT_EQ(Buttons()[0].state, 4);
  EXPECT_EQ(Buttons()[1].state, 4);
}

TEST_F(ToolbarTest, DrawsTheImagesOfTheSharedStrip) {
  ctlToolbar bar(shell_, shell_.MainWindow(), true);
  bar.AddButton(1, 3, TBSTATE_ENABLED, ButtonStyle::kPush);
  bar.Show();
  shell_.Settle();
  const Rect place = Bars().Places().at(0).rect;
  std::set<std::uint32_t> colours;
  for (int y = place.top; y < place.bottom; ++y) {
    for (int x = place.left; x < place.right; ++x) colours.insert(shell_.Pixel({x, y}));
  }
  EXPECT_GT(colours.size(), 3u);  // an antialiased picture, not an empty face
}

TEST_F(ToolbarTest, IsShownWithItsToolAndHiddenWithIt) {
  const auto tool = MakeWindow<BarTool>(shell_);
  EXPECT_EQ(Bars().Shown(), shell_.MainBar());
  tool->Show();
  EXPECT_EQ(Bars().Shown(), tool->bar.Handle());
  tool->Hide();
  EXPECT_EQ(Bars().Shown(), shell_.MainBar());
}

TEST_F(ToolbarTest, APushButtonIsACommandWithCodeZero) {
  const auto tool = MakeWindow<BarTool>(shell_);
  tool->bar.AddButton(40176, 3, TBSTATE_ENABLED, ButtonStyle::kPush);
  tool->Show();
  EXPECT_TRUE(Bars().Press(40176));
  shell_.Settle();
  EXPECT_EQ(tool->commands,
            (std::vector<Dispatched>{{tool->Handle(), WM_COMMAND, PackCommand(40176, 0), 0}}));
}

TEST_F(ToolbarTest, ADropDownButtonIsAToolCommand) {
  const auto tool = MakeWindow<BarTool>(shell_);
  tool->bar.AddButton(8867, 20, TBSTATE_ENABLED, ButtonStyle::kDropDown);
  tool->Show();
  shell_.Settle();
  const Rect place = Bars().Places().at(0).rect;
  const Point middle{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
  shell_.GetDevice().PenDown(middle);
  shell_.GetDevice().PenUp(middle);
  shell_.Settle();
  EXPECT_EQ(tool->commands, (std::vector<Dispatched>{{tool->Handle(), 0xA080, 8867, 1}}));
}

TEST_F(ToolbarTest, DestroyingItBringsTheMainBarBack) {
  ctlToolbar bar(shell_, shell_.MainWindow(), true);
  bar.Show();
  const BarHandle handle = bar.Handle();
  bar.Destroy();
  EXPECT_EQ(bar.Handle(), kNoBar);
  EXPECT_EQ(Bars().Shown(), shell_.MainBar());
  bar.Destroy();
  bar.AddButton(1, 3, TBSTATE_ENABLED, ButtonStyle::kPush);
  bar.Show();
  EXPECT_EQ(Bars().Count(handle), 0);
  EXPECT_EQ(Bars().Shown(), shell_.MainBar());
  {
    ctlToolbar second(shell_, shell_.MainWindow(), true);
    second.Show();
    EXPECT_NE(Bars().Shown(), shell_.MainBar());
  }
  EXPECT_EQ(Bars().Shown(), shell_.MainBar());
}

// --- A bar that cannot be made.

// Makes no bar and notes calls that name one.
class RefusingBars : public BarLayer {
 public:
  explicit RefusingBars(int& calls) : calls_(calls) {}

  BarHandle Create(WindowHandle, int, std::vector<BarButton>) override { return kNoBar; }
  void Destroy(BarHandle bar) override { Note(bar); }
  void Show(BarHandle bar, bool) override { Note(bar); }
  void SetImages(BarHandle bar, std::vector<std::shared_ptr<const Image>>) override { Note(bar); }
  void Insert(BarHandle bar, int, BarButton) override { Note(bar); }
  void Delete(BarHandle bar, int) override { Note(bar); }
  void Enable(BarHandle bar, int, bool) override { Note(bar); }
  void Check(BarHandle bar, int, bool) override { Note(bar); }
  int Count(BarHandle) const override { return 0; }
  Menu* ButtonMenu(BarHandle, int) override { return nullptr; }
  BarHandle Shown() const override { return kNoBar; }
  std::vector<BarButtonPlace> Places() const override { return {}; }
  bool HasPanelButton() const override { return false; }
  Rect PanelButtonRect() const override { return {}; }
  bool Press(int) override { return false; }
  bool PressPanelButton() override { return false; }
  bool OpenMenu(int) override { return false; }

  std::string_view Name() const override { return "bar"; }
  bool Visible() const override { return false; }
  Rect Bounds() const override { return {}; }
  void Paint(Canvas&) override {}

 private:
  void Note(BarHandle bar) {
    if (bar != kNoBar) ++calls_;
  }

  int& calls_;
};

TEST(FailedToolbarTest, AMessageBoxSaysSoAndLaterCallsDoNothing) {
  int calls = 0;
  TestShellOptions options;
  options.factories.bar = [&calls](Device&) { return std::make_unique<RefusingBars>(calls); };
  TestShell shell(options);
  {
    ctlToolbar bar(shell, shell.MainWindow(), true);
    EXPECT_EQ(bar.Handle(), kNoBar);
    bar.AddButton(1, 3, TBSTATE_ENABLED, ButtonStyle::kPush);
    bar.EnableButton(1, true);
    bar.CheckButton(1, true);
    bar.Show();
    bar.Hide();
    bar.Destroy();
  }
  EXPECT_EQ(calls, 0);
  ASSERT_TRUE(shell.GetDevice().Boxes().Open());
  EXPECT_EQ(shell.GetDevice().Boxes().Front().text, u"ctlToolbar::ctlToolbar - failed to create toolbar.");
  EXPECT_EQ(shell.GetDevice().Boxes().Front().caption, u"Orvane");
  EXPECT_EQ(shell.GetDevice().Boxes().Front().icon, MessageIcon::kError);
  EXPECT_EQ(shell.GetDevice().Boxes().Waiting(), 0);
}

}  // namespace
}  // namespace orvane
