#include "tools/wnd_mass.h"

#include "data/zel_registry.h"
#include "framework/standard_commands.h"
#include "resources/help_pages.h"

namespace orvane {

namespace {

constexpr int kWidth = 240;
constexpr int kHeight = 268;

constexpr int kCopyButton = 8820;
constexpr int kPasteButton = 8821;
constexpr int kCopyImage = 3;
constexpr int kPasteImage = 4;

constexpr Point kLabel{8, 28};
constexpr Rect kBox = Rect::At(8, 46, 224, 30);
constexpr Colour kBoxSurround = Rgb(230, 242, 255);
constexpr int kFormulaSize = 12;
constexpr int kShiftedSize = 10;
constexpr int kShiftedSpacing = 3;
constexpr Rect kMessage{8, 86, 232, 268};
constexpr Point kResult{8, 101};

constexpr TextView kFormulaSetting = u"wnd_mass.Formula";
constexpr TextView kDefaultFormula = u"h2o";

}  // namespace

wnd_mass::wnd_mass(Shell& shell, const ElementsDatabase& elements)
    : ZelToolWindow(shell, shell.MainWindow(), true),
      elements_(ElementTable::From(elements.Symbol(), elements.AtomicMass())) {
  SetStyle(0, 0);
  Move(0, 0, kWidth, kHeight);
  SetText(u"Molecular mass");
  CreateFontFamily(GetDevice(), Handle(), title_, u"Tahoma", 10, false, false);
  CreateFontFamily(GetDevice(), Handle(), labels_, u"Tahoma", 10, false, false);
  CreateFontFamily(GetDevice(), Handle(), messages_, u"Tahoma", 8, false, false);

  box_ = std::make_unique<FormulaBox>(shell, Handle(), kBox.left, kBox.top, kBox.Width(), kBox.Height(),
                                      FormulaTokeniser(elements_));
  box_->SetFont(u"Tahoma", kFormulaSize, kShiftedSize, kShiftedSize, kShiftedSpacing, kShiftedSpacing);
  box_->surround = kBoxSurround;
  box_->changed = [this](CInputBox&) { Calculate(); };
  LoadFormula();
}

wnd_mass::~wnd_mass() { SaveFormula(); }

void wnd_mass::LoadFormula() {
  ZelRegistry& settings = GetShell().Settings();
  Text formula;
  settings.Open();
  settings.ReadString(kFormulaSetting, formula, kDefaultFormula);
  settings.Close();
  box_->ReplaceText(formula);
}

void wnd_mass::SaveFormula() {
  ZelRegistry& settings = GetShell().Settings();
  settings.Open();
  settings.WriteString(kFormulaSetting, box_->GetText());
  settings.Close();
}

Result wnd_mass::OnMessage(std::uint32_t message, WParam w, LParam l) {
  switch (message) {
    case WM_SETFOCUS:
      OnFocus();
      return 0;
    case kAskStandardCommand:
      return AnswerStandardCommand(w, {.copy = kCopyButton, .paste = kPasteButton, .close = 0});
    case kBeforeShow:
      OnBeforeShow();
      return 0;
    case kAfterShow:
      // The box has the focus by now and has asked for the panel; the screen begins with all of it in sight.
      GetDevice().Panel().Request(false);
      return 0;
    default:
      return ZelToolWindow::OnMessage(message, w, l);
  }
}

void wnd_mass::OnBeforeShow() {
  Shell& shell = GetShell();
  shell.AddBarButton(kCopyButton, kCopyImage, -1, TBSTATE_ENABLED, ButtonStyle::kPush);
  shell.AddBarButton(kPasteButton, kPasteImage, -1, TBSTATE_ENABLED, ButtonStyle::kPush);
  shell.SetHelpTopic(kHelpMass);
  shell.SetCurrentTool(Handle());
  box_->retokenise();
  box_->Reset();
  Calculate();
}

void wnd_mass::OnFocus() {
  box_->TakeFocus();
  GetShell().SetCurrentTool(Handle());
}

void wnd_mass::OnCommand(int command) {
  switch (command) {
    case kCopyButton:
      return box_->CopySelection();
    case kPasteButton:
      return box_->Paste();
    default:
      return;
  }
}

void wnd_mass::Calculate() {
  result_ = CalculateMass(TokeniseFormula(box_->GetText(), elements_), elements_);
  Invalidate();
}

void wnd_mass::Paint(Canvas& canvas, int, int) {
  GetShell().DrawTitleStrip(canvas, title_, u"Molecular mass", true, true);
  TextEngine& engine = GetShell().Engine();
  engine.SetTextColour(kBlack);
  engine.SelectFontFamily(&labels_);
  engine.DrawText(canvas, u"Type your formula below:", kLabel.x, kLabel.y);
  engine.SelectFontFamily(&messages_);
  engine.DrawText(canvas, result_.message, kMessage.left, kMessage.top, &kMessage);
  engine.SelectFontFamily(&box_->Font());
  engine.DrawText(canvas, result_.line, kResult.x, kResult.y);
}

}  // namespace orvane
