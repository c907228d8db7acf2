#include "framework/text_engine.h"

#include <algorithm>
#include <limits>

#include "framework/text_flow.h"

namespace orvane {

namespace {

constexpr TextView kDots = u"...";

// Cuts drawing at the rectangle's left and right edges for as long as it lives.
class SideClip {
 public:
  SideClip(Canvas& canvas, const Rect* clip) : canvas_(canvas), active_(clip != nullptr) {
    if (!active_) return;
    const Rect bounds = canvas.ClipBounds();
    canvas.PushClip({clip->left, bounds.top, clip->right, bounds.bottom});
  }
  ~SideClip() {
    if (active_) canvas_.PopClip();
  }
  SideClip(const SideClip&) = delete;
  SideClip& operator=(const SideClip&) = delete;

 private:
  Canvas& canvas_;
  bool active_;
};

TextFlow MakeFlow(const FontFamily& family, TextStyle style, Point pen, int x, const Rect* clip,
                  TextFlow::Sink sink) {
  const int left = clip ? clip->left : x;
  const int right = clip ? clip->right : std::numeric_limits<int>::max();
  return TextFlow(family, style, pen, left, right, clip != nullptr, std::move(sink));
}

void DrawRunOf(Canvas& canvas, const FontFamily& family, const PlacedRun& run, Colour colour,
               std::uint32_t line) {
  const int top = run.lineTop + family.TopInLine(run.style);
  canvas.DrawRun(run.text, {run.x, top}, *family.Variant(run.style).font, colour, line);
}

// Where a text that is too wide is cut: behind this many visible characters, in this style.
struct Cut {
  int length = 0;
  TextStyle style;
};

// Leaves as many characters as are at most `room` wide together with dots in the style of the last of them.
// `widths` are those of the visible characters. A surrogate pair is never parted: its second half is 0 wide.
Cut FindCut(const FontFamily& family, TextStyle style, TextView text, const std::vector<int>& widths,
            int room) {
  Cut cut{0, style};
  int length = 0;
  int width = 0;
  for (StyledStep step = FirstStep(text); step.kind != StyledStep::Kind::kEnd; step = FirstStep(text)) {
    if (step.kind == StyledStep::Kind::kCode) {
      style = StyleFromFlags(step.value);
    } else {
      width += widths[static_cast<std::size_t>(length)];
      if (width > room) break;
      ++length;
      if (width + family.Variant(style).font->TextWidth(kDots) <= room) cut = {length, style};
    }
    text.remove_prefix(step.length);
  }
  return cut;
}

}  // namespace

void TextEngine::SelectFontFamily(const FontFamily* family) {
  family_ = family;
  bold_ = italic_ = false;
}

void TextEngine::SetTextStyle(bool bold, bool italic) {
  bold_ = bold;
  italic_ = italic;
}

void TextEngine::DrawText(Canvas& canvas, TextView text, int x, int y, const Rect* clip) const {
  TextOrigin origin{{x, y}, 0, 0};
  DrawTextAt(canvas, text, x, y, clip, origin);
}

void TextEngine::DrawTextAt(Canvas& canvas, TextView text, int x, int /*y*/, const Rect* clip,
                            TextOrigin& origin) const {
  if (!family_ || !family_->Created() || (clip && clip->bottom < 0)) return;
  const SideClip sides(canvas, clip);
  int line = 0;
  std::uint32_t number = origin.line != 0 ? origin.line : canvas.NextTextLine();
  const auto draw = [&](const PlacedRun& run) {
    if (run.line != line) line = run.line, number = canvas.NextTextLine();
    DrawRunOf(canvas, *family_, run, colour_, number);
  };
  TextFlow flow = MakeFlow(*family_, BaseStyle(), origin.pen, x, clip, draw);
  flow.Add(text);
  const int extent = std::max(origin.lineExtent, flow.WidestLine());
  origin = {flow.Pen(), extent, flow.Lines() - 1 == line ? number : 0};
}

Size TextEngine::MeasureText(TextView text, const Rect* clip) const {
  TextOrigin origin;
  if (clip) origin.pen = clip->TopLeft();
  return MeasureTextAt(text, clip, origin);
}

Size TextEngine::MeasureTextAt(TextView text, const Rect* clip, TextOrigin& origin) const {
  if (!family_ || !family_->Created()) return {};
  TextFlow flow = MakeFlow(*family_, BaseStyle(), origin.pen, 0, clip, nullptr);
  flow.Add(text);
  origin = {flow.Pen(), std::max(origin.lineExtent, flow.WidestLine()), 0};
  return {origin.lineExtent, flow.Lines() * family_->lineHeight};
}

std::vector<int> TextEngine::GetCharWidths(TextView text) const {
  std::vector<int> widths;
  TextStyle style = BaseStyle();
  for (StyledStep step = FirstStep(text); step.kind != StyledStep::Kind::kEnd; step = FirstStep(text)) {
    if (step.kind == StyledStep::Kind::kCode) {
      style = StyleFromFlags(step.value);
      text.remove_prefix(step.length);
      continue;
    }
    // A whole stretch of characters at once, so that surrogate pairs are measured as pairs.
    const std::size_t length = std::min(text.find_first_of(TextView(u"\x0001\x0000", 2)), text.size());
    if (family_ && family_->Created()) {
      family_->Variant(style).font->AppendWidths(text.substr(0, length), widths);
    } else {
      widths.insert(widths.end(), length, 0);
    }
    text.remove_prefix(length);
  }
  return widths;
}

void TextEngine::DrawTextEllipsis(Canvas& canvas, TextView text, int x, int y, const Rect& clip) const {
  if (!family_ || !family_->Created() || clip.bottom < 0 || clip.Width() <= 0) return;
  const SideClip sides(canvas, &clip);
  if (MeasureText(text).width <= clip.Width()) {
    DrawText(canvas, text, x, y);
    return;
  }
  const Cut cut = FindCut(*family_, BaseStyle(), text, GetCharWidths(text), clip.Width());
  const std::uint32_t line = canvas.NextTextLine();
  const Text prefix = CopyVisible(text, 0, cut.length);
  TextFlow flow = MakeFlow(*family_, BaseStyle(), {x, y}, x, nullptr,
                           [&](const PlacedRun& run) { DrawRunOf(canvas, *family_, run, colour_, line); });
  flow.Add(prefix);
  DrawRunOf(canvas, *family_, {kDots, cut.style, flow.Pen().x, flow.Pen().y, 0}, colour_, line);
}

}  // namespace orvane
