// Molecular mass: a box for a formula, and its molar mass while it is typed. It does no arithmetic itself
// (chemistry/mass.h) and keeps one thing from run to run, the formula.
#pragma once

#include "chemistry/element_table.h"
#include "chemistry/mass.h"
#include "data/elements_database.h"
#include "framework/zel_tool_window.h"
#include "tools/token_box.h"

namespace orvane {

class wnd_mass : public ZelToolWindow {
 public:
  // The formula comes from the settings; the symbols and masses are read from the database once, here.
  wnd_mass(Shell& shell, const ElementsDatabase& elements);
  // Writes the formula back.
  ~wnd_mass() override;

  FormulaBox& Box() { return *box_; }
  const MassResult& Shown() const { return result_; }

  // ZelWindow
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override;
  std::string ClassName() const override { return "wnd_mass"; }

 protected:
  // ZelToolWindow
  void Paint(Canvas& canvas, int width, int height) override;
  void OnCommand(int command) override;

 private:
  void OnBeforeShow();
  void OnFocus();
  void LoadFormula();
  void SaveFormula();
  void Calculate();

  ElementTable elements_;
  FontFamily title_;
  FontFamily labels_;
  FontFamily messages_;
  std::unique_ptr<FormulaBox> box_;
  MassResult result_;
};

}  // namespace orvane
