// Drawing that several of the hand-held's own parts share.
#pragma once

#include "base/text.h"
#include "platform/canvas.h"
#include "platform/dialogs.h"
#include "platform/message_boxes.h"

namespace orvane {

enum class Direction { kUp, kDown, kLeft, kRight };

// The longest beginning of the text that fits the width, with "..." where something had to go; the text
// itself when it fits. Never parts a surrogate pair, whose second unit has no width.
Text FitText(TextView text, const Font& font, int width);

// The left end of what is `width` wide and stands so in the rectangle.
int AlignedLeft(const Rect& rect, int width, Align align);

// One line of text in the rectangle, centred vertically by its capitals, cut with an ellipsis where it is
// wider.
void DrawLine(Canvas& canvas, TextView text, const Rect& rect, const Font& font, Colour colour,
              Align align = Align::kLeft);

struct PushLook {
  bool pressed = false;
  bool preferred = false;  // Enter presses it
};
void DrawPush(Canvas& canvas, const Rect& rect, TextView label, const Font& font, PushLook look);

// A small filled triangle with a base of 2 × `reach` and a height of `reach`; `at` is the top left corner of
// the box round it.
void DrawArrow(Canvas& canvas, Direction direction, Point at, int reach, Colour colour);

void DrawTick(Canvas& canvas, Point topLeft, Colour colour);  // 9 × 7
void DrawCross(Canvas& canvas, const Rect& rect, Colour colour, int width);
// The sign of a message box, of kMessageSign's size.
void DrawMessageSign(Canvas& canvas, MessageIcon icon, Point topLeft);

}  // namespace orvane
