// How an input box looks.
#include "tools/FormulaEditor.h"

namespace orvane {

namespace {

constexpr Size kCorner{8, 8};
constexpr int kCaretInset = 4;  // of the caret and of the selection's band, from top and bottom
constexpr int kTextTop = 2;
constexpr Colour kSelection = Rgb(147, 201, 255);
constexpr Colour kCaret = kBlack;

}  // namespace

void CInputBox::Paint() {
  Bitmap& buffer = shell_->BackBuffer();
  const Rect client = Rect::At({0, 0}, ClientSize());
  Canvas& canvas = buffer.GetCanvas();
  PaintField(canvas, client);
  PaintTokens(canvas, client);
  if (const Surface* surface = buffer.GetSurface()) {
    GetDevice().WindowCanvas(hwnd_).CopySurface(*surface, client, {0, 0});
  }
  GetDevice().Validate(hwnd_);
}

void CInputBox::PaintField(Canvas& canvas, const Rect& client) const {
  canvas.FillRect(client, surround);
  canvas.RoundRect(client, kCorner, outline, field);
  const int bottom = client.bottom - kCaretInset;
  canvas.PushClip(client.Inset(1));
  if (text_.HasSelection()) {
    const int from = layout_.CaretX(SelectionStart()) + offset_;
    const int to = layout_.CaretX(SelectionStart() + SelectionLength()) + offset_;
    canvas.FillRect({from, kCaretInset, to, bottom}, kSelection);
  }
  if (focused_ && caretVisible_) {
    const int x = layout_.CaretX(Caret()) + offset_;
    canvas.Line({x, kCaretInset}, {x, bottom}, kCaret);
  }
  canvas.PopClip();
}

// All tokens make one visual line. A scrolled text is cut at the outline.
void CInputBox::PaintTokens(Canvas& canvas, const Rect& client) const {
  TextEngine& engine = shell_->Engine();
  engine.SelectFontFamily(&font_);
  canvas.PushClip(client.Inset(1));
  TextOrigin line{{0, kTextTop}, 0, canvas.NextTextLine()};
  for (const InputLayout::Piece& piece : layout_.Pieces()) {
    const int x = piece.x + offset_;
    if (x + piece.width <= client.left || x >= client.right) continue;
    line.pen = {x, kTextTop};
    engine.SetTextColour(piece.colour);
    engine.DrawTextAt(canvas, piece.drawn, x, kTextTop, nullptr, line);
  }
  canvas.PopClip();
}

}  // namespace orvane
