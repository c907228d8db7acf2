#include "platform/text_wrap.h"

namespace orvane {
namespace {

bool IsPathSeparator(Char c) { return c == u'/' || c == u'\\'; }

// Where the line that starts at `first` ends and where the next one starts, within one paragraph.
struct Break {
  std::size_t last = 0;
  std::size_t next = 0;
};

// Whether the word that begins at `first` has no room on any line.
bool TooWide(TextView text, std::span<const int> widths, std::size_t first, std::size_t end, int width) {
  int used = 0;
  for (std::size_t i = first; i < end && text[i] != u' '; ++i) {
    used += widths[i];
    if (used > width) return true;
  }
  return false;
}

Break FindBreak(TextView text, std::span<const int> widths, std::size_t first, std::size_t end, int width) {
  std::size_t afterBlank = first;  // the next line's start if broken at the last blank; `first`: none yet
  std::size_t blankLast = first;
  std::size_t afterSlash = first;
  int used = 0;
  for (std::size_t i = first; i < end; ++i) {
    const bool blank = text[i] == u' ';
    if (blank) {
      if (i > first && text[i - 1] != u' ') blankLast = i;
      afterBlank = i + 1;
    }
    used += widths[i];
    if (used > width && !blank) {
      const bool atSlash = afterSlash > afterBlank && TooWide(text, widths, afterBlank, end, width);
      if (afterBlank > first && blankLast > first && !atSlash) return {blankLast, afterBlank};
      if (afterSlash > first) return {afterSlash, afterSlash};
      std::size_t cut = i > first ? i : first + 1;
      if (cut < end && IsLowSurrogate(text[cut]) && cut - 1 > first) --cut;
      if (cut < end && IsLowSurrogate(text[cut])) ++cut;
      return {cut, cut};
    }
    if (IsPathSeparator(text[i])) afterSlash = i + 1;
  }
  std::size_t last = end;
  while (last > first && text[last - 1] == u' ') --last;
  return {last, end};
}

}  // namespace

std::vector<WrappedLine> WrapText(TextView text, std::span<const int> widths, int width) {
  std::vector<WrappedLine> lines;
  std::size_t start = 0;
  while (true) {
    const std::size_t feed = text.find(u'\n', start);
    std::size_t end = feed == TextView::npos ? text.size() : feed;
    if (end > start && feed != TextView::npos && text[end - 1] == u'\r') --end;
    std::size_t first = start;
    do {
      const Break at = FindBreak(text, widths, first, end, width);
      lines.push_back({first, at.last});
      first = at.next;
    } while (first < end);
    if (feed == TextView::npos) return lines;
    start = feed + 1;
  }
}

}  // namespace orvane
