#include "tools/input_tool.h"

namespace orvane {

namespace {

constexpr int kWidth = 240;
constexpr int kHeight = 268;
constexpr int kCopyImage = 3;
constexpr int kPasteImage = 4;

}  // namespace

InputTool::InputTool(Shell& shell, TextView title, const OwnCommands& commands)
    : ZelToolWindow(shell, shell.MainWindow(), true), commands_(commands) {
  SetStyle(0, 0);
  Move(0, 0, kWidth, kHeight);
  SetText(title);
}

Result InputTool::OnMessage(std::uint32_t message, WParam w, LParam l) {
  switch (message) {
    case WM_SETFOCUS:
      OnFocus();
      return 0;
    case kAskStandardCommand:
      return AnswerStandardCommand(w, commands_);
    case WM_KEYDOWN:
      OnKeyDown(static_cast<int>(w));
      return 0;
    case WM_SETTINGCHANGE:
      OnPanelChanged();
      return 0;
    case kBeforeShow:
      OnBeforeShow();
      return 0;
    case kAfterShow:
      OnAfterShow();
      return 0;
    default:
      return ZelToolWindow::OnMessage(message, w, l);
  }
}

void InputTool::OnCommand(int command) {
  CInputBox* box = EditedBox();
  if (box == nullptr || command == 0) return;
  if (command == commands_.copy) box->CopySelection();
  if (command == commands_.paste) box->Paste();
}

void InputTool::AddCopyAndPaste() {
  GetShell().AddBarButton(commands_.copy, kCopyImage, -1, TBSTATE_ENABLED, ButtonStyle::kPush);
  GetShell().AddBarButton(commands_.paste, kPasteImage, -1, TBSTATE_ENABLED, ButtonStyle::kPush);
}

void InputTool::ToggleFocus(CInputBox& box, WindowHandle other) {
  if (box.HasFocus()) {
    GetDevice().SetFocus(other);
  } else {
    box.TakeFocus();
  }
}

}  // namespace orvane
