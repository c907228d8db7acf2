#include "base/styled_text.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr Char kBold = 1;
constexpr Char kItalic = 2;
constexpr Char kLowered = 64;
constexpr Char kRaised = 128;

}  // namespace

TextStyle StyleFromFlags(Char flags) {
  TextStyle style;
  style.bold = (flags & kBold) != 0;
  style.italic = (flags & kItalic) != 0;
  if ((flags & kRaised) != 0) {
    style.position = TextPosition::kRaised;
  } else if ((flags & kLowered) != 0) {
    style.position = TextPosition::kLowered;
  }
  return style;
}

StyledStep FirstStep(TextView rest) {
  if (rest.empty() || rest[0] == 0) return {};
  if (rest[0] != kStyleMark) return {StyledStep::Kind::kCharacter, rest[0], 1};
  if (rest.size() < 2 || rest[1] == 0) return {};
  return {StyledStep::Kind::kCode, rest[1], 2};
}

int VisibleLength(TextView text) {
  int length = 0;
  for (StyledStep step = FirstStep(text); step.kind != StyledStep::Kind::kEnd; step = FirstStep(text)) {
    if (step.kind == StyledStep::Kind::kCharacter) ++length;
    text.remove_prefix(step.length);
  }
  return length;
}

Text CopyVisible(TextView text, int first, int count) {
  const long long begin = std::max(first, 0);
  const long long end = static_cast<long long>(first) + count;
  Text copy;
  Text codes;  // met since the last copied character; only a character after them makes them count
  long long index = 0;
  for (StyledStep step = FirstStep(text); step.kind != StyledStep::Kind::kEnd && index < end;
       step = FirstStep(text)) {
    if (step.kind == StyledStep::Kind::kCode) {
      if (copy.empty()) codes.clear();  // before the range only the code in force matters
      codes.append({kStyleMark, step.value});
    } else {
      if (index >= begin) {
        copy.append(codes);
        codes.clear();
        copy.push_back(step.value);
      }
      ++index;
    }
    text.remove_prefix(step.length);
  }
  return copy;
}

Text WithoutCodes(TextView text) {
  Text plain;
  for (StyledStep step = FirstStep(text); step.kind != StyledStep::Kind::kEnd; step = FirstStep(text)) {
    if (step.kind == StyledStep::Kind::kCharacter) plain.push_back(step.value);
    text.remove_prefix(step.length);
  }
  return plain;
}

}  // namespace orvane
