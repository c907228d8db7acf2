#include "content/cell_text.h"

#include <algorithm>

#include "base/styled_text.h"

namespace orvane {

namespace {

// The four digits of a unit in capitals, as in U+00E9.
std::string UnitText(Char unit) {
  std::string hex = HexText(unit, 4);
  std::transform(hex.begin(), hex.end(), hex.begin(),
                 [](char c) { return static_cast<char>(AsciiUpper(static_cast<Char>(c))); });
  return hex;
}

class CellParser {
 public:
  explicit CellParser(TextView cell) : cell_(cell) {}

  CellText Run() {
    while (at_ < cell_.size() && out_.problem.empty()) Step();
    if (out_.problem.empty() && braceOpen_) Fail("a ^{ or _{ is not closed by }");
    if (out_.problem.empty()) CheckUnits();
    return out_;
  }

 private:
  void Fail(std::string problem) { out_.problem = std::move(problem); }

  void Step() {
    const Char c = cell_[at_];
    if (IsControl(c)) {
      Fail("control character U+" + UnitText(c) + " (write \\n or \\u" + UnitText(c) + ")");
    } else if (c == u'\\') {
      Escape();
    } else if (c == u'^' || c == u'_') {
      OpenBrace(c);
    } else if (c == u'}' && braceOpen_) {
      braceOpen_ = false;
      Put(kStyleMark), Put(kPlainFlags);
      ++at_;
    } else {
      Put(c);
      ++at_;
    }
  }

  void OpenBrace(Char mark) {
    const std::string name(1, static_cast<char>(mark));
    if (at_ + 1 >= cell_.size() || cell_[at_ + 1] != u'{') {
      return Fail("a lone " + name + " (write \\" + name + ", or " + name + "{...})");
    }
    if (braceOpen_) return Fail("a ^{ or _{ inside another one");
    braceOpen_ = true;
    Put(kStyleMark), Put(mark == u'^' ? kRaisedFlags : kLoweredFlags);
    at_ += 2;
  }

  void Escape() {
    if (at_ + 1 >= cell_.size()) return Fail("a backslash at the end (write \\\\)");
    const Char next = cell_[at_ + 1];
    if (next == u'u') return UnitEscape();
    if (next == u'n') {
      Put(u'\n');
    } else if (TextView(u"\\^_@-").find(next) != TextView::npos) {
      Put(next);
    } else {
      return Fail("an unknown escape (known: \\n \\uXXXX \\\\ \\^ \\_ \\@ \\-)");
    }
    at_ += 2;
  }

  void UnitEscape() {
    int unit = 0;
    for (std::size_t i = at_ + 2; i < at_ + 6; ++i) {
      const int digit = i < cell_.size() ? HexDigitValue(cell_[i]) : -1;
      if (digit < 0) return Fail("\\u without four hexadecimal digits");
      unit = unit * 16 + digit;
    }
    Put(static_cast<Char>(unit));
    at_ += 6;
  }

  void CheckUnits() {
    TextView rest = out_.text;
    StyledStep step = FirstStep(rest);
    for (; step.kind != StyledStep::Kind::kEnd; step = FirstStep(rest)) {
      if (step.kind == StyledStep::Kind::kCharacter && IsControl(step.value) && step.value != kNewLine) {
        return FailUnshown(step.value);
      }
      rest.remove_prefix(step.length);
    }
    if (rest.empty()) return;
    // What would end the text on a screen.
    if (rest.front() != kStyleMark) return FailUnshown(rest.front());
    Fail("a style code U+0001 without its flags character");
  }

  void FailUnshown(Char c) { Fail("control character U+" + UnitText(c) + ", which no screen shows"); }

  void Put(Char c) { out_.text.push_back(c); }

  TextView cell_;
  std::size_t at_ = 0;
  bool braceOpen_ = false;
  CellText out_;
};

// The end of the styled run that starts at `start` when it can be written in braces: the position of the
// plain code that closes it, with no other code and no brace between. npos when it cannot.
std::size_t BraceEnd(TextView text, std::size_t start) {
  for (std::size_t i = start; i + 1 < text.size(); ++i) {
    if (text[i] == u'}') return TextView::npos;
    if (text[i] == kStyleMark) return text[i + 1] == kPlainFlags ? i : TextView::npos;
  }
  return TextView::npos;
}

void WriteUnit(std::string& out, TextView text, std::size_t& i) {
  const Char c = text[i];
  if (c == u'\n') {
    out += "\\n";
  } else if (IsSurrogatePairAt(text, i)) {
    out += ToUtf8(text.substr(i, 2));
    ++i;
  } else if (IsControl(c) || IsSurrogate(c) || (c == u' ' && (i == 0 || i + 1 == text.size()))) {
    // A blank at either end would be lost on a reader's eye, and the tables refuse it.
    out += "\\u" + UnitText(c);
  } else {
    if (TextView(u"\\^_@-").find(c) != TextView::npos && (c != u'-' || text.size() == 1)) out += '\\';
    out += ToUtf8(text.substr(i, 1));
  }
}

}  // namespace

CellText ParseCellText(std::string_view cell) {
  if (!IsValidUtf8(cell)) return {{}, "bytes that are not UTF-8"};
  return CellParser(FromUtf8(cell)).Run();
}

std::string WriteCellText(TextView text) {
  std::string out;
  std::size_t braceEnd = TextView::npos;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != kStyleMark || i + 1 >= text.size()) {
      WriteUnit(out, text, i);
      continue;
    }
    const Char flags = text[i + 1];
    if (i == braceEnd) {
      out += '}';
      braceEnd = TextView::npos;
    } else if ((flags == kRaisedFlags || flags == kLoweredFlags) && BraceEnd(text, i + 2) != TextView::npos) {
      braceEnd = BraceEnd(text, i + 2);
      out += flags == kRaisedFlags ? "^{" : "_{";
    } else {
      out += "\\u0001\\u" + UnitText(flags);
    }
    ++i;
  }
  return out;
}

}  // namespace orvane
