// Equation balancer: two boxes for the sides of an equation, a button that balances it, one that clears it,
// and what came of it. It does no chemistry itself (chemistry/balance.h) and keeps the two texts from run to
// run.
#pragma once

#include "chemistry/balance.h"
#include "chemistry/element_table.h"
#include "framework/ctl_button.h"
#include "tools/input_tool.h"
#include "tools/solution_view.h"
#include "tools/token_box.h"

namespace orvane {

class wnd_balancer : public InputTool {
 public:
  // The texts come from the settings. The table outlives the screen.
  wnd_balancer(Shell& shell, const ElementTable& elements);
  // Writes the texts back.
  ~wnd_balancer() override;

  EquationBox& LeftBox() { return *left_; }
  EquationBox& RightBox() { return *right_; }
  ctlButton& BalanceButton() { return *balance_; }
  ctlButton& ClearButton() { return *clear_; }
  SolutionView& Solution() { return *solution_; }
  BalanceState DisplayState() const { return result_.state; }

  // ZelWindow
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override;
  std::string ClassName() const override { return "wnd_balancer"; }

 protected:
  // ZelToolWindow
  void Paint(Canvas& canvas, int width, int height) override;
  // InputTool
  CInputBox* EditedBox() override;
  void OnFocus() override;
  void OnBeforeShow() override;
  void OnAfterShow() override;
  void OnKeyDown(int key) override;

 private:
  void MakeBoxes();
  void MakeButtons();
  void LoadTexts();
  void SaveTexts();

  void OnClick(WindowHandle button);
  void Balance();
  void Clear();
  void ReturnToPrompt();
  // Puts the text into the box as the program's own change, of which the box does not tell.
  static void Put(EquationBox& box, TextView text);

  const ElementTable& elements_;
  FontFamily title_;
  FontFamily labels_;
  FontFamily messageTitle_;
  FontFamily messageText_;
  std::unique_ptr<EquationBox> left_;
  std::unique_ptr<EquationBox> right_;
  std::unique_ptr<ctlButton> balance_;
  std::unique_ptr<ctlButton> clear_;
  std::unique_ptr<SolutionView> solution_;
  BalanceResult result_;
};

}  // namespace orvane
