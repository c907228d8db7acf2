#include "content/help_markup.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr TextView kEscapable = u"*`~^[]\\";

class LineParser {
 public:
  explicit LineParser(TextView text) : text_(text) {}

  ParsedHelpLine Run() {
    while (at_ < text_.size() && out_.problem.empty()) Step();
    if (out_.problem.empty()) CheckClosed();
    Flush();
    return std::move(out_);
  }

 private:
  void Fail(std::string problem) { out_.problem = std::move(problem); }

  void Step() {
    const Char c = text_[at_];
    if (IsControl(c)) return Fail("a control character");
    if (c == u'\\') return Escape();
    if (c == u'*') return Star();
    if (c == u'`') return Typed();
    if (c == u'~') return Shift(TextPosition::kLowered, TextPosition::kRaised);
    if (c == u'^') return Shift(TextPosition::kRaised, TextPosition::kLowered);
    if (c == u'[') return OpenLink();
    if (c == u']') return CloseLink();
    Put(c);
  }

  void Put(Char c) {
    current_.text.push_back(c);
    ++at_;
  }

  void Escape() {
    ++at_;
    if (at_ >= text_.size() || kEscapable.find(text_[at_]) == TextView::npos) {
      return Fail("a backslash before a character that is no mark");
    }
    Put(text_[at_]);
  }

  void Star() {
    Flush();
    if (at_ + 1 < text_.size() && text_[at_ + 1] == u'*') {
      current_.style.bold = !current_.style.bold;
      at_ += 2;
    } else {
      current_.style.italic = !current_.style.italic;
      ++at_;
    }
  }

  void Shift(TextPosition position, TextPosition other) {
    Flush();
    if (current_.style.position == other) return Fail("raised and lowered text inside each other");
    current_.style.position = current_.style.position == position ? TextPosition::kNormal : position;
    ++at_;
  }

  void Typed() {
    const std::size_t end = text_.find(u'`', at_ + 1);
    if (end == TextView::npos) return Fail("a ` that is not closed");
    const TextView inside = text_.substr(at_ + 1, end - at_ - 1);
    if (inside.empty()) return Fail("nothing between two `");
    if (std::any_of(inside.begin(), inside.end(), IsControl)) return Fail("a control character");
    Flush();
    current_.text = inside;
    current_.typed = true;
    Flush();
    current_.typed = false;
    at_ = end + 1;
  }

  void OpenLink() {
    if (!current_.link.empty()) return Fail("a link inside a link");
    std::size_t close = at_ + 1;
    while (close < text_.size() && text_[close] != u']') close += text_[close] == u'\\' ? 2 : 1;
    const std::size_t end = close + 1 < text_.size() ? text_.find(u')', close) : TextView::npos;
    if (end == TextView::npos || text_[close + 1] != u'(') {
      return Fail("a [ that begins no link (write \\[, or [text](page.md))");
    }
    const std::string target = ToUtf8(text_.substr(close + 2, end - close - 2));
    const bool isPage = target.size() > 3 && target.substr(target.size() - 3) == ".md" &&
                        target.find('/') == std::string::npos && target.front() != '.';
    if (!isPage) return Fail("a link to \"" + target + "\", which is no page of this folder");
    if (close == at_ + 1) return Fail("a link without a text");
    Flush();
    current_.link = target;
    linkEnd_ = end;
    ++at_;
  }

  void CloseLink() {
    if (current_.link.empty()) return Fail("a ] without its [ (write \\])");
    Flush();
    current_.link.clear();
    at_ = linkEnd_ + 1;
  }

  void CheckClosed() {
    if (current_.style.bold) return Fail("a ** that is not closed");
    if (current_.style.italic) return Fail("a * that is not closed");
    if (current_.style.position == TextPosition::kLowered) return Fail("a ~ that is not closed");
    if (current_.style.position == TextPosition::kRaised) return Fail("a ^ that is not closed");
  }

  void Flush() {
    if (!current_.text.empty()) out_.line.push_back(current_);
    current_.text.clear();
  }

  TextView text_;
  std::size_t at_ = 0;
  HelpSpan current_;
  std::size_t linkEnd_ = 0;
  ParsedHelpLine out_;
};

// The flags of a style code; every one has the bit of a blank, so that it is a character that can be seen.
Char FlagsOf(const HelpSpan& span) {
  Char flags = kPlainFlags;
  if (span.style.bold) flags |= 1;
  if (span.style.italic || span.typed) flags |= 2;
  if (span.style.position == TextPosition::kLowered) flags |= kLoweredFlags;
  if (span.style.position == TextPosition::kRaised) flags |= kRaisedFlags;
  return flags;
}

// Where Markdown would read more into a character than it says.
std::string Escaped(TextView text) {
  std::string out;
  for (const char c : ToUtf8(text)) {
    if (std::string_view("\\`*_[]<>~^|#").find(c) != std::string_view::npos) out.push_back('\\');
    out.push_back(c);
  }
  return out;
}

std::string MarkdownSpan(const HelpSpan& span) {
  if (span.typed) return "`" + ToUtf8(span.text) + "`";
  std::string out = Escaped(span.text);
  if (span.style.position == TextPosition::kLowered) out = "<sub>" + out + "</sub>";
  if (span.style.position == TextPosition::kRaised) out = "<sup>" + out + "</sup>";
  if (span.style.italic) out = "*" + out + "*";
  if (span.style.bold) out = "**" + out + "**";
  return span.link.empty() ? out : "[" + out + "](" + span.link + ")";
}

}  // namespace

ParsedHelpLine ParseHelpLine(std::string_view utf8) {
  if (!IsValidUtf8(utf8)) return {{}, "bytes that are not UTF-8"};
  const Text text = FromUtf8(utf8);
  return LineParser(text).Run();
}

Text StyledText(const HelpLine& line) {
  Text out;
  Char flags = kPlainFlags;
  for (const HelpSpan& span : line) {
    if (FlagsOf(span) != flags) {
      flags = FlagsOf(span);
      out.push_back(kStyleMark);
      out.push_back(flags);
    }
    out += span.text;
  }
  // What follows in the same paragraph begins plain.
  if (flags != kPlainFlags) {
    out.push_back(kStyleMark);
    out.push_back(kPlainFlags);
  }
  return out;
}

Text PlainLine(const HelpLine& line) {
  Text out;
  for (const HelpSpan& span : line) out += span.text;
  return out;
}

std::string MarkdownText(const HelpLine& line) {
  std::string out;
  for (const HelpSpan& span : line) out += MarkdownSpan(span);
  return out;
}

}  // namespace orvane
