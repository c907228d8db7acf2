#include "help/helpView.h"

#include "framework/standard_commands.h"
#include "help/look.h"
#include "resources/contact.h"

namespace orvane {

namespace {

// Menu-bar buttons: command, cell of the bar images.
constexpr int kClose = 8920;
constexpr int kBack = 8921;
constexpr int kContents = 8922;
constexpr int kNeighbour1 = 8923;  // the page before, by the data's convention
constexpr int kNeighbour2 = 8924;  // the page after
constexpr int kCloseImage = 0;
constexpr int kBackImage = 18;
constexpr int kContentsImage = 19;
constexpr int kNeighbour1Image = 16;
constexpr int kNeighbour2Image = 17;

constexpr Rect kMessageRect{8, 28, 232, 268};
constexpr TextView kNoPageTitle = u"Orvane Help";
constexpr TextView kWaiting = u"Please wait while the help file is being loaded...";
constexpr TextView kUnavailable =
    u"There was an error while loading the help file (help.dat). The file is missing or corrupt. "
    u"Reinstalling "
    u"the application might solve the problem.\n\nHelp is not available.";
constexpr TextView kNoSuchPage =
    u"Help page with ID %d cannot be found. This is an internal error. Please report it to ";
constexpr TextView kNoContents = u"Cannot show contents because of problems with help file.";

}  // namespace

helpView::helpView(Shell& shell, std::string path, ContentsMaker makeContents)
    : ZelToolWindow(shell, shell.MainWindow(), true),
      reporter_(shell),
      path_(std::move(path)),
      makeContents_(std::move(makeContents)),
      toolbar_(shell, Handle(), false) {
  SetStyle(0, 0);
  Move(0, 0, kHelpWidth, kHelpHeight);
  SetText(u"Help viewer");
  CreateHelpFont(GetDevice(), Handle(), font_, false);
  toolbar_.AddButton(kClose, kCloseImage, TBSTATE_ENABLED, ButtonStyle::kPush);
  toolbar_.AddButton(0, 0, TBSTATE_ENABLED, ButtonStyle::kSeparator);
  toolbar_.AddButton(kBack, kBackImage, 0, ButtonStyle::kPush);
  toolbar_.AddButton(kContents, kContentsImage, TBSTATE_ENABLED, ButtonStyle::kPush);
  toolbar_.AddButton(0, 0, TBSTATE_ENABLED, ButtonStyle::kSeparator);
  toolbar_.AddButton(kNeighbour1, kNeighbour1Image, 0, ButtonStyle::kPush);
  toolbar_.AddButton(kNeighbour2, kNeighbour2Image, 0, ButtonStyle::kPush);
  panel_ = MakeWindow<HelpPagePanel>(shell, Handle());
  panel_->Move(0, kHelpStripBottom, kHelpWidth, kHelpHeight - kHelpStripBottom);
  panel_->linkTapped = [this](int page) { ShowPage(help_.Pages()[static_cast<std::size_t>(page)].id); };
  panel_->keyPressed = [this](int key) { OnKey(key); };
}

// The bar and the panels answer to this window, so it hides while they are still there.
helpView::~helpView() { Hide(); }

void helpView::EnsureOpened() {
  if (state_ != State::kNotOpened) return;
  state_ = help_.Open(path_, reporter_) ? State::kOpened : State::kFailed;
  if (state_ != State::kOpened) return;
  contents_ = makeContents_(help_, [this](int id) { ShowPage(id); });
}

void helpView::ShowPage(int id, bool record) {
  EnsureOpened();
  if (state_ == State::kOpened) {
    const int index = help_.FindPage(id);
    if (index == kNoPage) {
      return GetShell().Tell(WithNumber(kNoSuchPage, id) + Text(kContactAddress) + u".", MessageIcon::kError);
    }
    if (record && HasPage()) history_.Record(currentIndex_);
    ReplacePage(id, index);
  }
  Redraw();
  if (!IsVisible()) Show();
  // The contents may stand in front of the viewer, when F1 is pressed in them.
  if (contents_) contents_->PutAway();
}

void helpView::ReplacePage(int id, int index) {
  if (HasPage()) help_.FreeBody(currentId_);
  currentId_ = id;
  currentIndex_ = index;
  help_.LoadBody(id, reporter_);
  UpdateButtons();
  panel_->SetPage(help_, help_.Pages()[static_cast<std::size_t>(index)].body);
  panel_->Show();
}

void helpView::UpdateButtons() {
  const HelpPageBody& body = *help_.Pages()[static_cast<std::size_t>(currentIndex_)].body;
  toolbar_.EnableButton(kBack, history_.CanGoBack());
  toolbar_.EnableButton(kNeighbour1, body.neighbour1 != kNoPage);
  toolbar_.EnableButton(kNeighbour2, body.neighbour2 != kNoPage);
}

Result helpView::OnMessage(std::uint32_t message, WParam w, LParam l) {
  switch (message) {
    case WM_SETFOCUS:
      toolbar_.Show();
      if (HasPage()) GetDevice().SetFocus(panel_->Handle());
      return 0;
    case kAskStandardCommand:
      return AnswerStandardCommand(w, {.copy = 0, .paste = 0, .close = kClose});
    case WM_KEYDOWN:
      OnKey(static_cast<int>(w));
      return 0;
    case kBeforeShow:
      OnBeforeShow();
      return 0;
    case kAfterHide:
      OnAfterHide();
      return 0;
    default:
      return ZelToolWindow::OnMessage(message, w, l);
  }
}

void helpView::OnBeforeShow() {
  InputPanel& panel = GetDevice().Panel();
  panelWasUp_ = panel.Visible();
  panel.Request(false);
  toolbar_.Show();
}

// The panel comes back whatever the mode for text boxes says: it is as it was before.
void helpView::OnAfterHide() {
  toolbar_.Hide();
  InputPanel& panel = GetDevice().Panel();
  if (panelWasUp_ && !panel.Visible()) panel.Toggle();
  panelWasUp_ = false;
}

void helpView::OnCommand(int command) {
  switch (command) {
    case kClose:
      return Hide();
    case kBack:
      return GoBack();
    case kContents:
      return ShowContents();
    case kNeighbour1:
      if (HasPage()) ShowNeighbour(help_.Pages()[static_cast<std::size_t>(currentIndex_)].body->neighbour1);
      return;
    case kNeighbour2:
      if (HasPage()) ShowNeighbour(help_.Pages()[static_cast<std::size_t>(currentIndex_)].body->neighbour2);
      return;
    default:
      return;
  }
}

void helpView::OnKey(int key) {
  if (key == VK_BACK) GoBack();
}

void helpView::GoBack() {
  if (!history_.CanGoBack()) return;
  const int index = history_.GoBack();
  ShowPage(help_.Pages()[static_cast<std::size_t>(index)].id, false);
}

void helpView::ShowNeighbour(int id) {
  if (id != kNoPage) ShowPage(id);
}

void helpView::ShowContents() {
  EnsureOpened();
  if (!contents_) return GetShell().Tell(kNoContents, MessageIcon::kExclamation);
  contents_->ShowAt(currentId_);
}

void helpView::Paint(Canvas& canvas, int, int) {
  Shell& shell = GetShell();
  if (HasPage()) {
    const Text& title = help_.Pages()[static_cast<std::size_t>(currentIndex_)].title;
    return shell.DrawTitleStrip(canvas, font_, title, false, false);
  }
  shell.DrawTitleStrip(canvas, font_, kNoPageTitle, true, false);
  TextEngine& engine = shell.Engine();
  engine.SetTextColour(kBlack);
  engine.SelectFontFamily(&font_);
  engine.DrawText(canvas, state_ == State::kFailed ? kUnavailable : kWaiting, kMessageRect.left,
                  kMessageRect.top, &kMessageRect);
}

}  // namespace orvane
