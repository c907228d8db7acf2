#include "tools/wnd_mass.h"

#include "data/zel_registry.h"
#include "resources/help_pages.h"

namespace orvane {

namespace {

constexpr int kCopyButton = 8820;
constexpr int kPasteButton = 8821;

constexpr Point kLabel{8, 28};
constexpr Rect kBox = Rect::At(8, 46, 224, 30);
constexpr Colour kBoxSurround = Rgb(230, 242, 255);
constexpr int kFormulaSize = 12;
constexpr int kShiftedSize = 10;
constexpr int kShiftedSpacing = 3;
constexpr Rect kMessage{8, 86, 232, 268};
constexpr Point kResult{8, 101};

constexpr TextView kTitle = u"Molecular mass";

constexpr TextView kFormulaSetting = u"wnd_mass.Formula";
constexpr TextView kDefaultFormula = u"h2o";

}  // namespace

wnd_mass::wnd_mass(Shell& shell, const ElementTable& elements)
    : InputTool(shell, kTitle, {.copy = kCopyButton, .paste = kPasteButton, .close = 0}),
      elements_(elements) {
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

void wnd_mass::OnBeforeShow() {
  Shell& shell = GetShell();
  AddCopyAndPaste();
  shell.SetHelpTopic(kHelpMass);
  shell.SetCurrentTool(Handle());
  box_->retokenise();
  box_->Reset();
  Calculate();
}

// The box has the focus by now and has asked for the panel; the screen begins with all of it in sight.
void wnd_mass::OnAfterShow() { GetDevice().Panel().Request(false); }

void wnd_mass::OnFocus() {
  box_->TakeFocus();
  GetShell().SetCurrentTool(Handle());
}

void wnd_mass::Calculate() {
  result_ = CalculateMass(TokeniseFormula(box_->GetText(), elements_), elements_);
  Invalidate();
}

void wnd_mass::Paint(Canvas& canvas, int, int) {
  GetShell().DrawTitleStrip(canvas, title_, kTitle, true, true);
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
