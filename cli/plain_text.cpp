#include "cli/plain_text.h"

#include "base/styled_text.h"

namespace orvane {

namespace {

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

Char ShiftedForm(Char c, TextPosition position) {
  for (const Shifted& entry : kShifted) {
    if (entry.plain == c) return position == TextPosition::kRaised ? entry.raised : entry.lowered;
  }
  return 0;
}

void AppendRun(Text& out, const Text& run, TextPosition position) {
  if (run.empty() || position == TextPosition::kNormal) {
    out += run;
    return;
  }
  Text shifted;
  for (const Char c : run) {
    const Char form = ShiftedForm(c, position);
    if (form == 0) {
      out += position == TextPosition::kRaised ? u'^' : u'_';
      out += run;
      return;
    }
    shifted += form;
  }
  out += shifted;
}

}  // namespace

std::string PlainText(TextView styled) {
  Text out;
  Text run;  // since the last code
  TextPosition position = TextPosition::kNormal;
  StyledStep step = FirstStep(styled);
  for (; step.kind != StyledStep::Kind::kEnd; step = FirstStep(styled)) {
    if (step.kind == StyledStep::Kind::kCode) {
      AppendRun(out, run, position);
      run.clear();
      position = StyleFromFlags(step.value).position;
    } else if (!IsControl(step.value) || step.value == kNewLine) {
      run += step.value;
    }
    styled.remove_prefix(step.length);
  }
  AppendRun(out, run, position);
  return ToUtf8(WithoutLoneSurrogates(out));
}

}  // namespace orvane
