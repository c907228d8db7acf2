// Molecular mass: a box for a formula, and its molar mass while it is typed. It does no arithmetic itself
// (chemistry/mass.h) and keeps one thing from run to run, the formula.
#pragma once

#include "chemistry/element_table.h"
#include "chemistry/mass.h"
#include "tools/input_tool.h"
#include "tools/token_box.h"

namespace orvane {

class wnd_mass : public InputTool {
 public:
  // The formula comes from the settings. The table outlives the screen.
  wnd_mass(Shell& shell, const ElementTable& elements);
  // Writes the formula back.
  ~wnd_mass() override;

  FormulaBox& Box() { return *box_; }
  const MassResult& Shown() const { return result_; }

  // ZelWindow
  std::string ClassName() const override { return "wnd_mass"; }

 protected:
  // ZelToolWindow
  void Paint(Canvas& canvas, int width, int height) override;
  // InputTool
  CInputBox* EditedBox() override { return box_.get(); }
  void OnFocus() override;
  void OnBeforeShow() override;
  void OnAfterShow() override;

 private:
  void LoadFormula();
  void SaveFormula();
  void Calculate();

  const ElementTable& elements_;
  FontFamily title_;
  FontFamily labels_;
  FontFamily messages_;
  std::unique_ptr<FormulaBox> box_;
  MassResult result_;
};

}  // namespace orvane
