#include "tools/const_strip.h"

#include <algorithm>

namespace orvane {

namespace {

// Sizes in points. Raised and lowered text is smaller, so that it stands apart within the line's height.
constexpr int kTextPoints = 11;
constexpr int kShiftedPoints = 8;

constexpr int kLeastWidth = 240;
constexpr Point kTextPlace{8, 3};
constexpr int kAroundText = 6;  // above and below the text

}  // namespace

ConstStrip::ConstStrip(Shell& shell, WindowHandle parent, int closeCommand)
    : ZelPanel(shell, parent, false), closeCommand_(closeCommand) {
  background = kWhite;
  CreateFontFamily(GetDevice(), Handle(), font_, u"Courier New", kTextPoints, kShiftedPoints, kShiftedPoints,
                   0, 0, false, false);
  SetContent({});
}

void ConstStrip::SetContent(Text text) {
  content_ = std::move(text);
  TextEngine& engine = GetShell().Engine();
  engine.SelectFontFamily(&font_);
  const Size size = engine.MeasureText(content_);
  contentWidth = std::max(kLeastWidth, size.width);
  // The content is as wide as the text, which begins at the inset: where it does not fit, the same again is
  // left behind its end.
  marginX = kTextPlace.x + size.width > kLeastWidth ? 2 * kTextPlace.x : 0;
  contentHeight = size.height + kAroundText;
  scrollX = scrollY = 0;
  Redraw();
}

Result ConstStrip::OnMessage(std::uint32_t message, WParam w, LParam l) {
  if (message != WM_CLOSE) return ZelPanel::OnMessage(message, w, l);
  GetDevice().Send(GetDevice().Parent(Handle()), kToolCommand, static_cast<WParam>(closeCommand_), kFromMenu);
  return 0;
}

// The separator stays at the strip's top whatever part of the text shows.
void ConstStrip::Paint(Canvas& canvas, int, int, int, int) {
  TextEngine& engine = GetShell().Engine();
  engine.SelectFontFamily(&font_);
  engine.SetTextColour(kBlack);
  engine.DrawText(canvas, content_, kTextPlace.x, kTextPlace.y);
  GetShell().SeparatorBitmap().Draw(canvas, scrollX, scrollY);
}

}  // namespace orvane
