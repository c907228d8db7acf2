#include "framework/text_flow.h"

#include <algorithm>

namespace orvane {

TextFlow::TextFlow(const FontFamily& family, TextStyle style, Point pen, int left, int right, bool wraps,
                   Sink sink)
    : family_(family),
      style_(style),
      pen_(pen),
      left_(left),
      right_(right),
      wraps_(wraps),
      sink_(std::move(sink)) {
  widest_ = std::max(0, LineWidth());
}

void TextFlow::Add(TextView text) {
  std::size_t start = 0;  // of the run that has not been made a piece yet
  std::size_t at = 0;
  for (;;) {
    const StyledStep step = FirstStep(text.substr(at));
    const bool character = step.kind == StyledStep::Kind::kCharacter;
    // Without wrapping a space ends no word, so that a line has as few runs as its styles need.
    const bool space = wraps_ && character && step.value == u' ';
    const bool newLine = character && step.value == kNewLine;
    const bool ordinary = character && !space && !newLine;
    if (!ordinary) AddPiece(text.substr(start, at - start + (space ? 1 : 0)));
    if (space || newLine || step.kind == StyledStep::Kind::kEnd) PlaceWord();
    if (step.kind == StyledStep::Kind::kEnd) return;
    if (step.kind == StyledStep::Kind::kCode) style_ = StyleFromFlags(step.value);
    if (newLine) BreakLine();
    at += step.length;
    if (!ordinary) start = at;
  }
}

void TextFlow::AddPiece(TextView text) {
  if (!text.empty()) word_.push_back({text, style_, family_.Variant(style_).font->TextWidth(text)});
}

int TextFlow::WordWidth() const {
  int width = 0;
  for (const Piece& piece : word_) width += piece.width;
  return width;
}

int TextFlow::TrailingSpaceWidth() const {
  if (word_.empty() || word_.back().text.back() != u' ') return 0;
  return family_.Variant(word_.back().style).font->TextWidth(u" ");
}

void TextFlow::PlaceWord() {
  if (word_.empty()) return;
  const int width = WordWidth();
  if (wraps_ && pen_.x > left_ && pen_.x + width > right_) BreakLine();
  if (wraps_ && pen_.x + width - TrailingSpaceWidth() > right_) {
    PlaceSplit();
  } else {
    for (const Piece& piece : word_) Place(piece);
  }
  word_.clear();
}

// A word wider than the rectangle: as many characters a line as fit, at least one.
void TextFlow::PlaceSplit() {
  for (const Piece& piece : word_) {
    std::vector<int> widths;
    family_.Variant(piece.style).font->AppendWidths(piece.text, widths);
    std::size_t start = 0;
    int width = 0;
    for (std::size_t i = 0; i < widths.size(); ++i) {
      // A width of 0 belongs to the character before it: the second half of a pair.
      const bool fits = pen_.x + width + widths[i] <= right_ || widths[i] == 0 || piece.text[i] == u' ';
      const bool lineStart = width == 0 && pen_.x <= left_;
      if (!fits && !lineStart) {
        Place({piece.text.substr(start, i - start), piece.style, width});
        BreakLine();
        start = i;
        width = 0;
      }
      width += widths[i];
    }
    Place({piece.text.substr(start), piece.style, width});
  }
}

void TextFlow::Place(const Piece& piece) {
  if (piece.text.empty()) return;
  if (sink_) sink_({piece.text, piece.style, pen_.x, pen_.y, line_});
  pen_.x += piece.width;
  widest_ = std::max(widest_, LineWidth());
}

void TextFlow::BreakLine() {
  pen_ = {left_, pen_.y + family_.lineHeight};
  ++line_;
}

}  // namespace orvane
