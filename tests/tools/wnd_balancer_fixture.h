// The balancer on a hand-held of its own.
#pragma once

#include "tests/tools/calculator_bed.h"
#include "tools/wnd_balancer.h"

namespace orvane::testing {

inline constexpr TextView kExampleLeft = u"h2+ca(cn)2+naalf4+feso4+mgsio3+ki+h3po4+pbcro4+brcl+cf2cl2+so2";
inline constexpr TextView kExampleRight = u"pbbr2+crcl3+mgco3+kal(oh)4+fe(scn)3+pi3+na2sio3+caf2+h2o";

class WndBalancerTest : public CalculatorBed<wnd_balancer> {
 protected:
  using CalculatorBed::CalculatorBed;

  EquationBox& Left() { return tool_->LeftBox(); }
  EquationBox& Right() { return tool_->RightBox(); }
  SolutionView& Solution() { return tool_->Solution(); }
  void Fill(TextView left, TextView right) {
    PasteOver(Left(), left);
    if (left.empty()) Enter(Left(), u"");
    PasteOver(Right(), right);
    if (right.empty()) Enter(Right(), u"");
  }
  void PressBalance() { Tap(tool_->BalanceButton().Handle(), {70, 10}); }
  void PressClear() { Tap(tool_->ClearButton().Handle(), {38, 10}); }
  void Balance(TextView left, TextView right) {
    Fill(left, right);
    PressBalance();
  }
  std::string Texts() { return ToUtf8(Left().GetText()) + " = " + ToUtf8(Right().GetText()); }
  // The line below the buttons, and what stands below it.
  std::vector<TextRun> TitleRuns() { return RunsBetween(160, 185); }
  std::vector<TextRun> TextRuns() { return RunsBetween(185, 268); }
  std::vector<TextRun> RunsBetween(int top, int bottom) {
    std::vector<TextRun> runs;
    for (const TextRun& run : RunsBelow(top)) {
      if (run.rect.top < bottom) runs.push_back(run);
    }
    return runs;
  }
};

}  // namespace orvane::testing
