// Any bytes as a text with style codes and a place to draw it.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <vector>

#include "base/styled_text.h"
#include "framework/text_engine.h"
#include "fuzz/require.h"
#include "tests/framework/fake_drawing.h"

namespace orvane::fuzz {

// More than any text that a screen shows.
inline constexpr std::size_t kLongestStyledText = 2000;

// What a text of the input is drawn with.
struct StyledInput {
  Rect clip;
  int x = 0;
  int first = 0;  // of a copied range
  int count = 0;
  Text text;
};

// Six bytes of numbers, each -128 to 127 or 0 to 255, then the text in 16-bit units, low byte first.
inline StyledInput ReadStyledInput(std::string_view bytes) {
  const auto take = [&bytes] {
    const int value = bytes.empty() ? 0 : static_cast<signed char>(bytes.front());
    if (!bytes.empty()) bytes.remove_prefix(1);
    return value;
  };
  StyledInput input;
  input.clip.left = take();
  input.clip.right = input.clip.left + take();
  input.clip.bottom = take();
  input.x = input.clip.left + take();
  input.first = take();
  input.count = take();
  for (std::size_t i = 0; i + 1 < bytes.size() && input.text.size() < kLongestStyledText; i += 2) {
    input.text.push_back(static_cast<Char>(static_cast<unsigned char>(bytes[i]) |
                                           (static_cast<unsigned char>(bytes[i + 1]) << 8)));
  }
  return input;
}

inline Text WithoutNewLines(Text text) {
  std::erase(text, kNewLine);
  return text;
}

inline void CheckCopies(const StyledInput& input) {
  const int length = VisibleLength(input.text);
  const Text plain = WithoutCodes(input.text);
  Require(static_cast<int>(plain.size()) == length);
  Require(WithoutCodes(CopyVisible(input.text, 0, length)) == plain);
  const int begin = std::clamp(input.first, 0, length);
  const int end = std::clamp(input.first + input.count, begin, length);
  const Text part = CopyVisible(input.text, input.first, input.count);
  Require(VisibleLength(part) == end - begin);
  Require(WithoutCodes(part) ==
          plain.substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin)));
  Require(part.size() <= input.text.size());
}

// Lines go downwards, runs on a line to the right, and only spaces, characters without width and a line's
// first run pass the right edge. All of the text is drawn, in order.
inline void CheckWrapped(const StyledInput& input, const TextEngine& engine, const FontFamily& family) {
  testing::RecordingCanvas canvas;
  TextOrigin drawn{{input.x, 0}, 0, 0};
  TextOrigin measured = drawn;
  engine.DrawTextAt(canvas, input.text, input.x, 0, &input.clip, drawn);
  if (input.clip.bottom < 0) {
    Require(canvas.runs.empty());
    return;
  }
  const Size size = engine.MeasureTextAt(input.text, &input.clip, measured);
  Require(measured.pen == drawn.pen && measured.lineExtent == drawn.lineExtent);
  Require(size.height == drawn.pen.y + family.lineHeight);
  Text all;
  Point last{input.x, 0};
  for (const testing::DrawnRun& run : canvas.runs) {
    const testing::FakeFont font(run.font);
    const int line = run.at.y / family.lineHeight;
    Require(!run.text.empty());
    Require(line > last.y || (line == last.y && run.at.x >= last.x));
    Require(run.at.x >= std::min(input.clip.left, input.x));
    const std::size_t inked = run.text.find_last_not_of(u' ') + 1;
    const int width = font.TextWidth(run.text.substr(0, inked));
    Require(width == 0 || run.at.x + width <= input.clip.right ||
            run.at.x <= std::max(input.clip.left, input.x));
    last = {run.at.x + font.TextWidth(run.text), line};
    all += run.text;
  }
  Require(all == WithoutNewLines(WithoutCodes(input.text)));
}

inline void CheckUnwrapped(const StyledInput& input, const TextEngine& engine, const FontFamily& family) {
  testing::RecordingCanvas canvas;
  engine.DrawText(canvas, input.text, 0, 0);
  const Size size = engine.MeasureText(input.text);
  const Text plain = WithoutCodes(input.text);
  Require(size.height ==
          family.lineHeight * (1 + static_cast<int>(std::count(plain.begin(), plain.end(), kNewLine))));
  int right = 0;
  Text all;
  for (const testing::DrawnRun& run : canvas.runs) {
    right = std::max(right, run.at.x + testing::FakeFont(run.font).TextWidth(run.text));
    all += run.text;
  }
  Require(right == size.width);
  Require(all == WithoutNewLines(plain));
}

// What is kept is a prefix, and it and the dots are no wider than the rectangle, unless the dots alone are.
inline void CheckEllipsis(const StyledInput& input, const TextEngine& engine) {
  testing::RecordingCanvas canvas;
  engine.DrawTextEllipsis(canvas, input.text, input.x, 0, input.clip);
  Require(canvas.OpenClips() == 0);
  if (input.clip.bottom < 0 || input.clip.Width() <= 0) {
    Require(canvas.runs.empty());
    return;
  }
  const Text plain = WithoutNewLines(WithoutCodes(input.text));
  if (engine.MeasureText(input.text).width <= input.clip.Width()) {
    Text all;
    for (const testing::DrawnRun& run : canvas.runs) all += run.text;
    Require(all == plain);
    return;
  }
  Require(!canvas.runs.empty() && canvas.runs.back().text == u"...");
  Text kept;
  for (std::size_t i = 0; i + 1 < canvas.runs.size(); ++i) kept += canvas.runs[i].text;
  Require(kept.size() < plain.size() && plain.compare(0, kept.size(), kept) == 0);
  // Halves of a pair that a code parts are lone ones and have a width; the second half of a pair has none.
  if (plain.size() == WithoutCodes(input.text).size()) {
    Require(!IsLowSurrogate(plain[kept.size()]) || engine.GetCharWidths(input.text)[kept.size()] > 0);
  }
  const testing::DrawnRun& dots = canvas.runs.back();
  const int right = dots.at.x + testing::FakeFont(dots.font).TextWidth(dots.text);
  Require(kept.empty() || right - input.x <= input.clip.Width());
}

inline void CheckStyledText(std::string_view bytes) {
  const StyledInput input = ReadStyledInput(bytes);
  testing::FakeFonts fonts;
  const FontFamily family = testing::MakeFakeFamily(fonts);
  TextEngine engine;
  engine.SelectFontFamily(&family);
  engine.SetTextStyle((input.first & 1) != 0, (input.first & 2) != 0);
  CheckCopies(input);
  CheckWrapped(input, engine, family);
  CheckUnwrapped(input, engine, family);
  CheckEllipsis(input, engine);
  Require(static_cast<int>(engine.GetCharWidths(input.text).size()) == VisibleLength(input.text));
}

}  // namespace orvane::fuzz
