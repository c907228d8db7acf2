#include "tools/solution_view.h"

#include <algorithm>
#include <utility>

#include "framework/page_keys.h"

namespace orvane {

namespace {

constexpr int kFontSize = 8;
constexpr int kLeftColumn = 4;
constexpr int kColumnGap = 25;
constexpr int kAllGaps = 33;  // before, between and behind the columns
constexpr int kLeastWidth = 224;

}  // namespace

SolutionView::SolutionView(Shell& shell, WindowHandle parent) : ZelPanel(shell, parent, false) {
  CreateFontFamily(GetDevice(), Handle(), font_, u"Tahoma", kFontSize, false, false);
  background = kWhite;
  bordered = true;
}

void SolutionView::SetLines(std::vector<Text> lines, std::size_t leftCount) {
  lines_ = std::move(lines);
  leftCount_ = std::min(leftCount, lines_.size());
  TextEngine& engine = GetShell().Engine();
  engine.SelectFontFamily(&font_);
  int leftWidth = 0;
  int rightWidth = 0;
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    int& width = i < leftCount_ ? leftWidth : rightWidth;
    width = std::max(width, engine.MeasureText(lines_[i]).width);
  }
  rightColumn_ = kLeftColumn + leftWidth + kColumnGap;
  contentWidth = std::max(leftWidth + rightWidth + kAllGaps, kLeastWidth);
  contentHeight = static_cast<int>(std::max(leftCount_, lines_.size() - leftCount_)) * font_.lineHeight;
  scrollX = 0;
  scrollY = 0;
  ResetBuffer();
  Redraw();
}

Result SolutionView::WndProc(WindowHandle window, std::uint32_t message, WParam w, LParam l) {
  if (message == WM_KEYDOWN && OnViewKey(static_cast<int>(w))) return 0;
  return ZelPanel::WndProc(window, message, w, l);
}

// Keys beyond those of every panel; Tab is for the screen that the view lies in.
bool SolutionView::OnViewKey(int key) {
  if (key != VK_TAB) return ScrollByPageKey(*this, GetDevice(), key, font_.lineHeight);
  GetDevice().Send(GetDevice().Parent(Handle()), WM_KEYDOWN, VK_TAB);
  return true;
}

void SolutionView::Paint(Canvas& canvas, int left, int top, int right, int bottom) {
  canvas.FillRect({left, top, right, bottom}, kWhite);
  TextEngine& engine = GetShell().Engine();
  engine.SelectFontFamily(&font_);
  engine.SetTextColour(kBlack);
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const bool onLeft = i < leftCount_;
    const int y = static_cast<int>(onLeft ? i : i - leftCount_) * font_.lineHeight;
    if (y + font_.lineHeight <= top || y >= bottom) continue;
    engine.DrawText(canvas, lines_[i], onLeft ? kLeftColumn : rightColumn_, y);
  }
}

}  // namespace orvane
