// Where the characters of an input box stand: its tokens laid side by side, each with what is drawn before
// and behind it. Widths are whole logical pixels; x counts from the beginning of the text.
#pragma once

#include <functional>
#include <vector>

#include "base/colour.h"
#include "base/text.h"

namespace orvane {

class TextEngine;

// A piece of a box's text. The text of a token may differ from what was typed in capitals, never in length.
struct InputToken {
  Text text;
  int kind = 0;
  friend bool operator==(const InputToken&, const InputToken&) = default;
};

// How the tokens of one kind are drawn. Prefix and suffix may hold style codes and visible characters; they
// are drawn with the token and widen it, and no caret position lies inside them.
struct KindLook {
  Colour colour = kBlack;
  Text prefix;
  Text suffix;
};

class InputLayout {
 public:
  // A stretch of the text that is drawn at once in one colour.
  struct Piece {
    Text drawn;  // with prefix, suffix and style codes
    Colour colour;
    int x = 0;
    int width = 0;
  };

  // Measures with the engine's selected family. Positions behind the last token's end, up to `length`, are
  // that end.
  InputLayout(const TextEngine& engine, const std::vector<InputToken>& tokens, int length,
              const std::function<KindLook(int kind)>& lookOf);
  InputLayout() : caretX_{0} {}

  // The x of the caret before the character with this index; behind the last one for the length.
  int CaretX(int index) const;
  int Width() const { return caretX_.back(); }
  // The index whose caret stands nearest, decided by the midpoints between neighbouring positions.
  int IndexAt(int x) const;

  const std::vector<Piece>& Pieces() const { return pieces_; }

 private:
  std::vector<Piece> pieces_;
  std::vector<int> caretX_;  // one entry more than the text has characters
};

}  // namespace orvane
