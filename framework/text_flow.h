// Breaks a styled text into placed runs: the part of the text engine that decides where everything stands.
#pragma once

#include <functional>
#include <vector>

#include "base/styled_text.h"
#include "framework/font_family.h"

namespace orvane {

// A run in one style on one line.
struct PlacedRun {
  TextView text;
  TextStyle style;
  int x = 0;
  int lineTop = 0;
  int line = 0;  // counted from 0 in this flow
};

class TextFlow {
 public:
  using Sink = std::function<void(const PlacedRun&)>;

  // Lines start at `left`; nothing but spaces passes `right` when `wraps`.
  TextFlow(const FontFamily& family, TextStyle style, Point pen, int left, int right, bool wraps, Sink sink);

  // Places the whole text, ends included.
  void Add(TextView text);

  Point Pen() const { return pen_; }
  int Lines() const { return line_ + 1; }
  int WidestLine() const { return widest_; }
  int LineWidth() const { return pen_.x - left_; }

 private:
  struct Piece {
    TextView text;
    TextStyle style;
    int width = 0;
  };

  void AddPiece(TextView text);
  void PlaceWord();
  void PlaceSplit();
  void Place(const Piece& piece);
  void BreakLine();
  int WordWidth() const;
  int TrailingSpaceWidth() const;

  const FontFamily& family_;
  TextStyle style_;
  Point pen_;
  int left_;
  int right_;
  bool wraps_;
  Sink sink_;
  std::vector<Piece> word_;  // the word being read: it may change style inside
  int line_ = 0;
  int widest_ = 0;
};

}  // namespace orvane
