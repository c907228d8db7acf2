// The general solution of an equation that has many: a line for each term, those of the left side in one
// column and those of the right side in another, scrolled where they do not fit.
#pragma once

#include "framework/font_family.h"
#include "framework/zel_panel.h"

namespace orvane {

class SolutionView : public ZelPanel {
 public:
  SolutionView(Shell& shell, WindowHandle parent);

  // Lays the lines out and paints them from their beginning. The first `leftCount` go to the left column.
  void SetLines(std::vector<Text> lines, std::size_t leftCount);

  // ZelWindow
  Result WndProc(WindowHandle window, std::uint32_t message, WParam w, LParam l) override;

 protected:
  // ZelPanel
  void Paint(Canvas& canvas, int left, int top, int right, int bottom) override;

 private:
  bool OnViewKey(int key);

  std::vector<Text> lines_;
  std::size_t leftCount_ = 0;
  int rightColumn_ = 0;
  FontFamily font_;
};

}  // namespace orvane
