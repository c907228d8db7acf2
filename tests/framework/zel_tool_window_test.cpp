#include "framework/zel_tool_window.h"

#include "tests/framework/window_test_bed.h"

namespace orvane {
namespace {

using testing::Dispatched;
using testing::ZelWindowTest;

class PaintedTool : public ZelToolWindow {
 public:
  using ZelToolWindow::ZelToolWindow;

  Result OnMessage(std::uint32_t message, WParam w, LParam l) override {
    seen.push_back({Handle(), message, w, l});
    focusedThen = GetShell().GetDevice().Focus() == Handle();
    return message == WM_LBUTTONDOWN ? 77 : ZelToolWindow::OnMessage(message, w, l);
  }

  std::vector<Dispatched> seen;
  std::vector<Size> painted;
  std::vector<int> commands;
  const Canvas* paintedOn = nullptr;
  bool focusedThen = false;

 protected:
  void Paint(Canvas& canvas, int width, int height) override {
    painted.push_back({width, height});
    paintedOn = &canvas;
    canvas.FillRect({0, 0, width, height}, Rgb(0, 121, 255));
    canvas.FillRect({width - 1, height - 1, width, height}, Rgb(255, 0, 0));
  }
  void OnCommand(int command) override { commands.push_back(command); }
};

class ZelToolWindowTest : public ZelWindowTest {
 protected:
  ZelToolWindowTest() : tool_(MakeWindow<PaintedTool>(shell_, shell_.MainWindow(), true)) {
    tool_->SetStyle(0, 0);
    tool_->Move(0, 0, 240, 268);
    tool_->Show();
    shell_.Settle();
    tool_->seen.clear();
  }

  std::unique_ptr<PaintedTool> tool_;
};

TEST_F(ZelToolWindowTest, GetsCommandsOfMenusAndBarsButNotWhatItsChildrenTell) {
  EXPECT_EQ(GetDevice().Send(tool_->Handle(), WM_COMMAND, PackCommand(8820, 0), 0), 0);
  EXPECT_EQ(GetDevice().Send(tool_->Handle(), WM_COMMAND, PackCommand(8821, 1), 0), 0);
  EXPECT_EQ(GetDevice().Send(tool_->Handle(), kToolCommand, 8822, kFromMenu), 0);
  EXPECT_EQ(GetDevice().Send(tool_->Handle(), kToolCommand, 8823, kFromDropDown), 0);
  EXPECT_EQ(tool_->commands, (std::vector<int>{8820, 8822, 8823}));
}

TEST_F(ZelToolWindowTest, PaintsItsWholeClientAreaThroughTheSharedBuffer) {
  tool_->painted.clear();
  tool_->Redraw();
  EXPECT_EQ(tool_->painted, (std::vector<Size>{{240, 268}}));
  EXPECT_EQ(tool_->paintedOn, &shell_.BackBuffer().GetCanvas());
  EXPECT_TRUE(tool_->seen.empty());  // WM_PAINT is not passed on
  shell_.Settle();
  EXPECT_EQ(shell_.Pixel({0, 26}), 0x0079FFu);
  EXPECT_EQ(shell_.Pixel({239, 293}), 0xFF0000u);
  EXPECT_EQ(shell_.Pixel({238, 293}), 0x0079FFu);
  EXPECT_TRUE(GetDevice().InvalidRect(tool_->Handle()).Empty());
}

TEST_F(ZelToolWindowTest, ASmallerWindowCopiesItsClientAreaOnly) {
  tool_->Move(10, 20, 50, 30);
  shell_.Settle();
  EXPECT_EQ(tool_->painted.back(), (Size{50, 30}));
  EXPECT_EQ(shell_.Pixel({10, 46}), 0x0079FFu);
  EXPECT_EQ(shell_.Pixel({59, 75}), 0xFF0000u);
  EXPECT_EQ(shell_.Pixel({60, 75}), 0xFFFFFFu);
}

TEST_F(ZelToolWindowTest, APenThatGoesDownGivesTheFocusAndIsPassedOn) {
  GetDevice().SetFocus(shell_.MainWindow());
  const Result result = GetDevice().Send(tool_->Handle(), WM_LBUTTONDOWN, 0, PackPoint({5, 6}));
  EXPECT_EQ(result, 77);
  EXPECT_EQ(GetDevice().Focus(), tool_->Handle());
  ASSERT_FALSE(tool_->seen.empty());
  EXPECT_EQ(tool_->seen.back(), (Dispatched{tool_->Handle(), WM_LBUTTONDOWN, 0, PackPoint({5, 6})}));
  EXPECT_TRUE(tool_->focusedThen);
}

// A tool that was made before the one in front stands below it until it is shown.
TEST_F(ZelToolWindowTest, AnOlderToolComesToTheFrontBeforeItPaints) {
  const auto newer = MakeWindow<PaintedTool>(shell_, shell_.MainWindow(), true);
  newer->SetStyle(0, 0);
  newer->Move(0, 0, 240, 268);
  tool_->Hide();
  newer->Show();
  shell_.Settle();
  tool_->painted.clear();
  tool_->Show();
  EXPECT_EQ(tool_->painted.size(), 1u);
  EXPECT_EQ(GetDevice().VisibleWindows().back(), tool_->Handle());
}

TEST_F(ZelToolWindowTest, EveryOtherMessageIsPassedOn) {
  GetDevice().Send(tool_->Handle(), WM_KEYDOWN, VK_LEFT, 3);
  GetDevice().Send(tool_->Handle(), WM_COMMAND, 40017, 0);
  EXPECT_EQ(tool_->seen, (std::vector<Dispatched>{{tool_->Handle(), WM_KEYDOWN, VK_LEFT, 3},
                                                  {tool_->Handle(), WM_COMMAND, 40017, 0}}));
}

}  // namespace
}  // namespace orvane
