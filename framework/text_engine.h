// Draws and measures texts with style codes, wrapped inside a rectangle where one is given. Between calls
// the engine keeps the selected family, the style and the colour; a call starts with them, and the codes
// inside its text last for that call only.
//
// With a clip rectangle a text is wrapped at spaces to stay left of the rectangle's right edge, further lines
// start at its left edge, and drawing is cut at both edges. A word counts with its trailing space; one that
// is wider than the rectangle breaks after the last character that fits. Without a rectangle nothing is
// wrapped, and further lines start at x.
#pragma once

#include <cstdint>
#include <vector>

#include "framework/font_family.h"
#include "platform/canvas.h"

namespace orvane {

// A place in a flow of text, for going on there in the next call.
struct TextOrigin {
  Point pen;               // where the next run begins: x, and the top of its line
  int lineExtent = 0;      // how wide the lines so far are, from the start of the line
  std::uint32_t line = 0;  // the run number of the line that is being continued, 0 for none
};

class TextEngine {
 public:
  // Later calls draw in this family, in plain style. It must outlive its selection; null selects none, and
  // then every text is 0 wide and nothing is drawn.
  void SelectFontFamily(const FontFamily* family);
  void SetTextStyle(bool bold, bool italic);
  void SetTextColour(Colour colour) { colour_ = colour; }
  const FontFamily* Family() const { return family_; }
  Colour TextColour() const { return colour_; }

  // The top left corner of the first line box is (x, y). Nothing is drawn when the rectangle's bottom is
  // negative.
  void DrawText(Canvas& canvas, TextView text, int x, int y, const Rect* clip = nullptr) const;
  // Goes on at `origin` and moves it behind the text, unless nothing is drawn; x is where further lines start
  // without a rectangle, and y does not count: the origin holds the line's top.
  void DrawTextAt(Canvas& canvas, TextView text, int x, int y, const Rect* clip, TextOrigin& origin) const;

  // Width of the widest line and the lines' heights together; an empty text is one line high. With a
  // rectangle the text is measured as it would be wrapped from the rectangle's top left corner.
  Size MeasureText(TextView text, const Rect* clip = nullptr) const;
  // Goes on at `origin` and moves it behind the text. Without a rectangle further lines start at x 0. The
  // width is that of the widest line since the flow began, the height that of the lines this text touches.
  Size MeasureTextAt(TextView text, const Rect* clip, TextOrigin& origin) const;

  // One width for each visible character, in the style it would have.
  std::vector<int> GetCharWidths(TextView text) const;

  // The text on one line when it is no wider than the rectangle; otherwise the longest prefix that leaves
  // room for "..." and that right behind it, in the style in force at the cut. Both are cut at the
  // rectangle's edges.
  void DrawTextEllipsis(Canvas& canvas, TextView text, int x, int y, const Rect& clip) const;

 private:
  TextStyle BaseStyle() const { return {bold_, italic_, TextPosition::kNormal}; }

  const FontFamily* family_ = nullptr;
  bool bold_ = false;
  bool italic_ = false;
  Colour colour_ = kBlack;
};

}  // namespace orvane
