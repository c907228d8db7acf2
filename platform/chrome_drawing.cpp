#include "platform/chrome_drawing.h"

#include <array>
#include <vector>

#include "platform/chrome_style.h"

namespace orvane {
namespace {

constexpr TextView kEllipsis = u"...";

// The capitals of the face are 0.73 em high: what the eye takes for the height of a line of labels.
int CapitalHeight(const Font& font) { return (font.Spec().pixels * 73 + 50) / 100; }

}  // namespace

Text FitText(TextView text, const Font& font, int width) {
  std::vector<int> widths;
  widths.reserve(text.size());
  font.AppendWidths(text, widths);
  std::int64_t whole = 0;
  for (const int advance : widths) whole += advance;
  if (whole <= width) return Text(text);

  const int room = width - font.TextWidth(kEllipsis);
  std::size_t kept = 0;
  int used = 0;
  while (kept < text.size() && used + widths[kept] <= room) used += widths[kept++];
  return Text(text.substr(0, kept)) + Text(kEllipsis);
}

int AlignedLeft(const Rect& rect, int width, Align align) {
  const int spare = rect.Width() - width;
  if (align == Align::kCentre) return rect.left + spare / 2;
  return align == Align::kRight ? rect.left + spare : rect.left;
}

void DrawLine(Canvas& canvas, TextView text, const Rect& rect, const Font& font, Colour colour, Align align) {
  const Text shown = FitText(text, font, rect.Width());
  if (shown.empty()) return;
  const int x = AlignedLeft(rect, font.TextWidth(shown), align);
  const int baseline = rect.top + (rect.Height() + CapitalHeight(font)) / 2;
  canvas.PushClip(rect);
  canvas.DrawRun(shown, {x, baseline - font.Ascent()}, font, colour, canvas.NextTextLine());
  canvas.PopClip();
}

void DrawPush(Canvas& canvas, const Rect& rect, TextView label, const Font& font, PushLook look) {
  constexpr Size kCorner{6, 6};
  const Colour fill = look.pressed ? kDeepBlue : kWhite;
  const Colour outline = look.pressed ? kDeepBlue : look.preferred ? kAccent : kOutline;
  canvas.RoundRect(rect, kCorner, outline, fill);
  DrawLine(canvas, label, rect.Inset(3), font, look.pressed ? kWhite : kDeepBlue, Align::kCentre);
}

void DrawArrow(Canvas& canvas, Direction direction, Point at, int reach, Colour colour) {
  const bool upright = direction == Direction::kUp || direction == Direction::kDown;
  const int right = at.x + (upright ? 2 * reach : reach);
  const int bottom = at.y + (upright ? reach : 2 * reach);
  std::array<Point, 3> corners{};
  switch (direction) {
    case Direction::kUp:
      corners = {Point{at.x, bottom}, {at.x + reach, at.y}, {right, bottom}};
      break;
    case Direction::kDown:
      corners = {Point{at.x, at.y}, {right, at.y}, {at.x + reach, bottom}};
      break;
    case Direction::kLeft:
      corners = {Point{right, at.y}, {right, bottom}, {at.x, at.y + reach}};
      break;
    case Direction::kRight:
      corners = {Point{at.x, at.y}, {right, at.y + reach}, {at.x, bottom}};
      break;
  }
  canvas.Polygon(corners, colour);
}

void DrawTick(Canvas& canvas, Point p, Colour colour) {
  const std::array<Point, 3> stroke{Point{p.x, p.y + 3}, {p.x + 3, p.y + 6}, {p.x + 9, p.y}};
  canvas.Polyline(stroke, colour, 2);
}

void DrawCross(Canvas& canvas, const Rect& rect, Colour colour, int width) {
  const int right = rect.right - 1;
  const int bottom = rect.bottom - 1;
  canvas.Line({rect.left, rect.top}, {right, bottom}, colour, width);
  canvas.Line({right, rect.top}, {rect.left, bottom}, colour, width);
}

void DrawMessageSign(Canvas& canvas, MessageIcon icon, Point p) {
  const Rect box = Rect::At(p, kMessageSign);
  switch (icon) {
    case MessageIcon::kNone:
      return;
    case MessageIcon::kError:
      canvas.Ellipse(box, kErrorRed, kErrorRed);
      DrawCross(canvas, box.Inset(7), kWhite, 3);
      return;
    case MessageIcon::kExclamation: {
      const std::array<Point, 3> triangle{Point{p.x + 12, p.y + 1}, {p.x + 24, p.y + 23}, {p.x, p.y + 23}};
      canvas.Polygon(triangle, kAmber);
      canvas.FillRect(Rect::At(p.x + 11, p.y + 9, 2, 7), kText);
      canvas.FillRect(Rect::At(p.x + 11, p.y + 18, 2, 2), kText);
      return;
    }
    case MessageIcon::kInformation:
      canvas.Ellipse(box, kAccent, kAccent);
      canvas.FillRect(Rect::At(p.x + 11, p.y + 5, 3, 3), kWhite);
      canvas.FillRect(Rect::At(p.x + 11, p.y + 10, 3, 9), kWhite);
      return;
  }
}

}  // namespace orvane
