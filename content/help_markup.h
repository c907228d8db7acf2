// The marks inside a line of the manual's sources, a small part of Markdown:
//   **bold**  *italic*  `typed`   H~2~O lowered   x^2^ raised   [text](page.md) a link
//   \ before a character of  * ` ~ ^ [ ] \  writes the character itself
// Bold, italic, lowered and raised may be combined; what is typed, and a link's address, hold no marks.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/styled_text.h"

namespace orvane {

// A stretch of one look.
struct HelpSpan {
  Text text;
  TextStyle style;
  bool typed = false;  // what a user types, or the program answers, letter by letter
  std::string link;    // the name of a page's source file; empty when the span is no link
};

using HelpLine = std::vector<HelpSpan>;

struct ParsedHelpLine {
  HelpLine line;
  std::string problem;  // empty when the line is well formed, else what is wrong, as a clause in English
};

// Cuts UTF-8 into spans. Refused: bytes that are not UTF-8, control characters, a mark that is not closed,
// raised inside lowered text or the reverse, and links that lead outside the folder of the pages.
ParsedHelpLine ParseHelpLine(std::string_view utf8);

// The line with its style codes as a help page holds it: typed text is italic, a link is its text.
Text StyledText(const HelpLine& line);

// The line without any marks.
Text PlainLine(const HelpLine& line);

// The line as Markdown that common viewers understand, with HTML for raised and lowered text.
std::string MarkdownText(const HelpLine& line);

}  // namespace orvane
