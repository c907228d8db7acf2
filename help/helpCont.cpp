#include "help/helpCont.h"

#include "framework/standard_commands.h"
#include "help/look.h"

namespace orvane {

namespace {

// Menu-bar buttons: command, cell of the bar images.
constexpr int kOpen = 8510;
constexpr int kClose = 8511;
constexpr int kOpenImage = 0;
constexpr int kCloseImage = 1;

}  // namespace

helpCont::helpCont(Shell& shell, const HelpFile& help, std::function<void(int id)> openPage)
    : ZelToolWindow(shell, shell.MainWindow(), true),
      help_(help),
      openPage_(std::move(openPage)),
      toolbar_(shell, Handle(), false) {
  SetStyle(0, 0);
  Move(0, 0, kHelpWidth, kHelpHeight);
  SetText(u"Contents window");
  CreateHelpFont(GetDevice(), Handle(), font_, false);
  toolbar_.AddButton(kOpen, kOpenImage, TBSTATE_ENABLED, ButtonStyle::kPush);
  toolbar_.AddButton(kClose, kCloseImage, TBSTATE_ENABLED, ButtonStyle::kPush);
  panel_ = MakeWindow<ContentsPanel>(shell, Handle(), help);
  panel_->Move(0, kHelpStripBottom, kHelpWidth, kHelpHeight - kHelpStripBottom);
  panel_->selectionChanged = [this] { UpdateButtons(); };
  panel_->entered = [this] { OpenSelected(); };
  panel_->Show();
}

helpCont::~helpCont() { Hide(); }

void helpCont::ShowAt(int pageId) {
  panel_->StartAt(pageId);
  Show();
}

Result helpCont::OnMessage(std::uint32_t message, WParam w, LParam l) {
  switch (message) {
    case WM_SETFOCUS:
      GetDevice().SetFocus(panel_ ? panel_->Handle() : kNoWindow);
      return 0;
    case kAskStandardCommand:
      return AnswerStandardCommand(w, {.copy = 0, .paste = 0, .close = kClose});
    case kBeforeShow:
      GetDevice().Panel().Request(false);
      toolbar_.Show();
      return 0;
    case kAfterHide:
      toolbar_.Hide();
      return 0;
    default:
      return ZelToolWindow::OnMessage(message, w, l);
  }
}

void helpCont::OnCommand(int command) {
  switch (command) {
    case kOpen:
      return OpenSelected();
    case kClose:
      return Hide();
    default:
      return;
  }
}

void helpCont::UpdateButtons() {
  const int selected = panel_->Tree().Selected();
  toolbar_.EnableButton(kOpen, selected >= 0 && !panel_->Tree().IsHeading(selected));
}

void helpCont::OpenSelected() {
  const int selected = panel_->Tree().Selected();
  if (selected < 0 || panel_->Tree().IsHeading(selected)) return;
  openPage_(help_.Contents()[static_cast<std::size_t>(selected)].pageId);
  Hide();
}

void helpCont::Paint(Canvas& canvas, int, int) {
  GetShell().DrawTitleStrip(canvas, font_, u"Help contents", false, true);
}

}  // namespace orvane
