#include "tools/input_layout.h"

#include <algorithm>

#include "base/styled_text.h"
#include "framework/text_engine.h"

namespace orvane {

namespace {

// Stands for a character that nothing shows. Were it drawn itself it could begin a style code or a new line.
constexpr Char kPlaceholder = 0xFFFD;

// Characters that only steer the text around them: joiners, spaces without width, marks of direction and of
// annotation. Fonts have nothing to draw for them.
constexpr bool IsFormat(Char c) {
  return c == 0x034F || c == 0x061C || (c >= 0x200B && c <= 0x200F) || (c >= 0x2028 && c <= 0x202E) ||
         (c >= 0x2060 && c <= 0x206F) || c == 0xFEFF || (c >= 0xFFF9 && c <= 0xFFFB);
}

void AppendShown(Text& drawn, TextView text) {
  for (const Char c : text) drawn.push_back(IsControl(c) || IsFormat(c) ? kPlaceholder : c);
}

// Each half of a surrogate pair can come as a token of its own; drawn apart they would show nothing.
bool MakesPair(const InputToken& token, const InputToken& next) {
  return token.text.size() == 1 && next.text.size() == 1 && token.kind == next.kind &&
         IsHighSurrogate(token.text[0]) && IsLowSurrogate(next.text[0]);
}

}  // namespace

InputLayout::InputLayout(const TextEngine& engine, const std::vector<InputToken>& tokens, int length,
                         const std::function<KindLook(int kind)>& lookOf) {
  const auto positions = static_cast<std::size_t>(std::max(length, 0)) + 1;
  caretX_.reserve(positions);
  caretX_.push_back(0);
  int x = 0;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    const KindLook look = lookOf(tokens[i].kind);
    Text text = tokens[i].text;
    if (i + 1 < tokens.size() && MakesPair(tokens[i], tokens[i + 1])) text += tokens[++i].text;
    Piece piece{look.prefix, look.colour, x, 0};
    AppendShown(piece.drawn, text);
    piece.drawn += look.suffix;
    // Before its first character the caret stands before the prefix, behind its last one behind the suffix.
    const std::vector<int> widths = engine.GetCharWidths(piece.drawn);
    const auto before = static_cast<std::size_t>(VisibleLength(look.prefix));
    int inside = 0;
    for (std::size_t k = 0; k < widths.size(); ++k) {
      inside += widths[k];
      if (k >= before && k + 1 < before + text.size()) caretX_.push_back(x + inside);
    }
    piece.width = inside;
    x += inside;
    if (!text.empty()) caretX_.push_back(x);
    pieces_.push_back(std::move(piece));
  }
  caretX_.resize(positions, x);
}

int InputLayout::CaretX(int index) const {
  return caretX_[static_cast<std::size_t>(std::clamp(index, 0, static_cast<int>(caretX_.size()) - 1))];
}

int InputLayout::IndexAt(int x) const {
  for (std::size_t i = 1; i < caretX_.size(); ++i) {
    // Twice the midpoint, so that halves count.
    if (2LL * x < static_cast<long long>(caretX_[i - 1]) + caretX_[i]) return static_cast<int>(i) - 1;
  }
  return static_cast<int>(caretX_.size()) - 1;
}

}  // namespace orvane
