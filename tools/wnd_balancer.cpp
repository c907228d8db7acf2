#include "tools/wnd_balancer.h"

#include "data/zel_registry.h"
#include "framework/control_messages.h"
#include "framework/shell_reporter.h"
#include "resources/help_pages.h"

namespace orvane {

namespace {

constexpr int kCopyButton = 8820;
constexpr int kPasteButton = 8821;

constexpr Point kLeftLabel{8, 31};
constexpr Point kRightLabel{8, 81};
constexpr Rect kLeftBox = Rect::At(8, 45, 224, 27);
constexpr Rect kRightBox = Rect::At(8, 95, 224, 27);
constexpr int kBoxSize = 10;
constexpr int kBoxShiftedSize = 7;
constexpr int kBoxSpacing = 2;
constexpr Colour kSurround = Rgb(230, 242, 255);  // of boxes and buttons

constexpr Rect kBalanceButton = Rect::At(8, 135, 140, 20);
constexpr Rect kClearButton = Rect::At(156, 135, 76, 20);
constexpr int kButtonSize = 9;
constexpr int kButtonRaisedSize = 8;
constexpr int kButtonSpacing = 2;
constexpr TextView kClearCaption = u"Clear eq\u0001\u00A0n";  // the n is raised

constexpr Point kMessageTitle{8, 163};
constexpr Rect kMessageText{8, 188, 224, 264};
constexpr Rect kSolution = Rect::At(7, 188, 226, 72);
constexpr Colour kTitleColour = Rgb(193, 0, 0);

constexpr TextView kTitle = u"Equation balancer";

// The example that a first run shows is typed without a single capital on purpose: it balances all the same.
constexpr TextView kLeftSetting = u"wnd_balancer.LHStext";
constexpr TextView kRightSetting = u"wnd_balancer.RHStext";
constexpr TextView kLeftDefault = u"h2+ca(cn)2+naalf4+feso4+mgsio3+ki+h3po4+pbcro4+brcl+cf2cl2+so2";
constexpr TextView kRightDefault = u"pbbr2+crcl3+mgco3+kal(oh)4+fe(scn)3+pi3+na2sio3+caf2+h2o";

}  // namespace

wnd_balancer::wnd_balancer(Shell& shell, const ElementTable& elements)
    : InputTool(shell, kTitle, {.copy = kCopyButton, .paste = kPasteButton, .close = 0}),
      elements_(elements) {
  CreateFontFamily(GetDevice(), Handle(), title_, u"Tahoma", 10, false, false);
  CreateFontFamily(GetDevice(), Handle(), labels_, u"Tahoma", 8, false, false);
  CreateFontFamily(GetDevice(), Handle(), messageTitle_, u"Tahoma", 10, false, false);
  CreateFontFamily(GetDevice(), Handle(), messageText_, u"Tahoma", 8, false, false);
  MakeBoxes();
  MakeButtons();
  solution_ = MakeWindow<SolutionView>(shell, Handle());
  solution_->Move(kSolution.left, kSolution.top, kSolution.Width(), kSolution.Height());
  LoadTexts();
}

wnd_balancer::~wnd_balancer() { SaveTexts(); }

void wnd_balancer::MakeBoxes() {
  const auto make = [this](const Rect& place) {
    auto box = std::make_unique<EquationBox>(GetShell(), Handle(), place.left, place.top, place.Width(),
                                             place.Height(), EquationTokeniser(elements_));
    box->SetFont(u"Tahoma", kBoxSize, kBoxShiftedSize, kBoxShiftedSize, kBoxSpacing, kBoxSpacing);
    box->surround = kSurround;
    box->changed = [this](CInputBox&) { ReturnToPrompt(); };
    return box;
  };
  left_ = make(kLeftBox);
  right_ = make(kRightBox);
}

void wnd_balancer::MakeButtons() {
  const auto make = [this](const Rect& place) {
    auto button =
        MakeWindow<ctlButton>(GetShell(), Handle(), place.left, place.top, place.Width(), place.Height());
    button->background = kSurround;
    return button;
  };
  balance_ = make(kBalanceButton);
  CreateFontFamily(GetDevice(), balance_->Handle(), balance_->font, u"Tahoma", kButtonSize, false, false);
  balance_->caption = u"Balance the equation";
  clear_ = make(kClearButton);
  CreateFontFamily(GetDevice(), clear_->Handle(), clear_->font, u"Tahoma", kButtonSize, kButtonRaisedSize,
                   kButtonRaisedSize, kButtonSpacing, kButtonSpacing, false, false);
  clear_->caption = kClearCaption;
}

void wnd_balancer::Put(EquationBox& box, TextView text) {
  box.ReplaceText(text);
  box.retokenise();
  box.Reset();
}

void wnd_balancer::LoadTexts() {
  ZelRegistry& settings = GetShell().Settings();
  Text left;
  Text right;
  settings.Open();
  settings.ReadString(kLeftSetting, left, kLeftDefault);
  settings.ReadString(kRightSetting, right, kRightDefault);
  settings.Close();
  Put(*left_, left);
  Put(*right_, right);
}

void wnd_balancer::SaveTexts() {
  ZelRegistry& settings = GetShell().Settings();
  settings.Open();
  settings.WriteString(kLeftSetting, left_->GetText());
  settings.WriteString(kRightSetting, right_->GetText());
  settings.Close();
}

Result wnd_balancer::OnMessage(std::uint32_t message, WParam w, LParam l) {
  switch (message) {
    case kButtonClicked:
      OnClick(SenderOf(w));
      return 0;
    default:
      return InputTool::OnMessage(message, w, l);
  }
}

void wnd_balancer::OnBeforeShow() {
  Shell& shell = GetShell();
  AddCopyAndPaste();
  shell.SetHelpTopic(kHelpBalancer);
  shell.SetCurrentTool(Handle());
}

// The box has the focus by now and has asked for the panel; the screen begins with all of it in sight.
void wnd_balancer::OnAfterShow() { GetDevice().Panel().Request(false); }

void wnd_balancer::OnFocus() {
  left_->TakeFocus();
  GetShell().SetCurrentTool(Handle());
}

// The one with the focus.
CInputBox* wnd_balancer::EditedBox() {
  if (left_->HasFocus()) return left_.get();
  return right_->HasFocus() ? right_.get() : nullptr;
}

// From a box, which has no use for them, or from a button; Tab also from the solution, which scrolls by
// its keys itself when it has the focus.
void wnd_balancer::OnKeyDown(int key) {
  switch (key) {
    case VK_TAB:
      return (left_->HasFocus() ? right_ : left_)->TakeFocus();
    case VK_RETURN:
      return Balance();
    case VK_UP:
    case VK_DOWN:
    case VK_PRIOR:
    case VK_NEXT:
      if (solution_->IsVisible()) GetDevice().Send(solution_->Handle(), WM_KEYDOWN, static_cast<WParam>(key));
      return;
    default:
      return;
  }
}

void wnd_balancer::OnClick(WindowHandle button) {
  if (button == balance_->Handle()) Balance();
  if (button == clear_->Handle()) Clear();
}

void wnd_balancer::ReturnToPrompt() {
  result_ = {};
  solution_->Hide();
  Invalidate();
}

void wnd_balancer::Balance() {
  GetDevice().Panel().Request(false);
  ReturnToPrompt();
  ShellReporter reporter(GetShell());
  result_ = BalanceEquation(TokeniseEquationSide(left_->GetText(), elements_),
                            TokeniseEquationSide(right_->GetText(), elements_), reporter);
  if (result_.rewritten) {
    Put(*left_, result_.newLhs);
    Put(*right_, result_.newRhs);
  }
  if (result_.state == BalanceState::kLines) {
    solution_->SetLines(result_.lines, result_.leftLineCount);
    solution_->Show();
  }
  Invalidate();
}

// The box to type the next equation into has the focus, and the panel to type with is up.
void wnd_balancer::Clear() {
  Put(*left_, {});
  Put(*right_, {});
  ReturnToPrompt();
  left_->TakeFocus();
  GetDevice().Panel().Request(true);
}

void wnd_balancer::Paint(Canvas& canvas, int, int) {
  GetShell().DrawTitleStrip(canvas, title_, kTitle, true, true);
  TextEngine& engine = GetShell().Engine();
  engine.SetTextColour(kBlack);
  engine.SelectFontFamily(&labels_);
  engine.DrawText(canvas, u"Enter the left hand side of the equation:", kLeftLabel.x, kLeftLabel.y);
  engine.DrawText(canvas, u"Enter the right hand side of the equation:", kRightLabel.x, kRightLabel.y);

  const bool prompt = result_.state == BalanceState::kPrompt;
  engine.SetTextColour(kTitleColour);
  engine.SelectFontFamily(&messageTitle_);
  engine.DrawText(canvas, prompt ? TextView(u"Press the button to balance equation") : result_.title,
                  kMessageTitle.x, kMessageTitle.y);
  engine.SetTextColour(kBlack);
  if (result_.state != BalanceState::kMessage) return;
  engine.SelectFontFamily(&messageText_);
  engine.DrawText(canvas, result_.text, kMessageText.left, kMessageText.top, &kMessageText);
}

}  // namespace orvane
