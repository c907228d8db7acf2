#include "cli/plain_text.h"

#include <array>

namespace orvane {

namespace {

constexpr Char kStyleCode = 1;
constexpr unsigned kLoweredBit = 0x40;
constexpr unsigned kRaisedBit = 0x80;

enum class Position { kNormal, kLowered, kRaised };

struct Shifted {
  Char plain;
  Char lowered;  // 0 where Unicode has none
  Char raised;
};

constexpr Shifted kShifted[] = {
    {u'0', u'₀', u'⁰'}, {u'1', u'₁', u'¹'}, {u'2', u'₂', u'²'}, {u'3', u'₃', u'³'}, {u'4', u'₄', u'⁴'},
    {u'5', u'₅', u'⁵'}, {u'6', u'₆', u'⁶'}, {u'7', u'₇', u'⁷'}, {u'8', u'₈', u'⁸'}, {u'9', u'₉', u'⁹'},
    {u'+', u'₊', u'⁺'}, {u'-', u'₋', u'⁻'}, {u'–', u'₋', u'⁻'}, {u'(', u'₍', u'⁽'}, {u')', u'₎', u'⁾'},
    {u'i', u'ᵢ', u'ⁱ'}, {u'n', u'ₙ', u'ⁿ'},
};

Char ShiftedForm(Char c, Position position) {
  for (const Shifted& entry : kShifted) {
    if (entry.plain == c) return position == Position::kRaised ? entry.raised : entry.lowered;
  }
  return 0;
}

constexpr bool IsTerminalControl(Char c) { return (c < 0x20 && c != u'\n') || (c >= 0x7F && c <= 0x9F); }

// Raised wins when a code asks for both.
Position PositionOf(Char flags) {
  if ((flags & kRaisedBit) != 0) return Position::kRaised;
  return (flags & kLoweredBit) != 0 ? Position::kLowered : Position::kNormal;
}

void AppendRun(Text& out, const Text& run, Position position) {
  if (run.empty() || position == Position::kNormal) {
    out += run;
    return;
  }
  Text shifted;
  for (const Char c : run) {
    const Char form = ShiftedForm(c, position);
    if (form == 0) {
      out += position == Position::kRaised ? u'^' : u'_';
      out += run;
      return;
    }
    shifted += form;
  }
  out += shifted;
}

Text WithoutLoneSurrogates(Text text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (IsSurrogatePairAt(text, i)) {
      ++i;
    } else if (IsSurrogate(text[i])) {
      text[i] = 0xFFFD;
    }
  }
  return text;
}

}  // namespace

std::string PlainText(TextView styled) {
  Text out;
  Text run;
  Position position = Position::kNormal;
  for (std::size_t i = 0; i < styled.size(); ++i) {
    if (styled[i] == kStyleCode) {
      AppendRun(out, run, position);
      run.clear();
      if (++i < styled.size()) position = PositionOf(styled[i]);
    } else if (!IsTerminalControl(styled[i])) {
      run += styled[i];
    }
  }
  AppendRun(out, run, position);
  return ToUtf8(WithoutLoneSurrogates(out));
}

}  // namespace orvane
