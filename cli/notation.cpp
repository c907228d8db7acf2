#include "cli/notation.h"

#include <algorithm>
#include <vector>

#include "cli/matching.h"
#include "cli/plain_text.h"

namespace orvane {

namespace {

bool IsBlank(Char c) { return kBlanks.find(c) != TextView::npos; }
bool IsDot(Char c) { return c == u'\u00B7' || c == u'\u2022' || c == u'*'; }
bool IsLoweredDigit(Char c) { return c >= u'\u2080' && c <= u'\u2089'; }

// The digits at the front of the text, which then begins with what follows the blanks behind them.
TextView TakeNumber(TextView& text) {
  std::size_t length = 0;
  while (length < text.size() && IsAsciiDigit(text[length])) ++length;
  const TextView number = text.substr(0, length);
  text = Trimmed(text.substr(length));
  return number;
}

// What a number with a decimal point would be: an index or a coefficient.
struct WholeNumber {
  const char* one;
  const char* many;
};
constexpr WholeNumber kIndex{"an index", "indices"};
constexpr WholeNumber kCoefficient{"a coefficient", "coefficients"};

constexpr const char* kFullStop = "a full stop could be a hydrate dot or a decimal point; ";

// Why a full stop is no decimal point, given the digits in front of it and the text behind it.
std::string NoDecimalPoint(TextView digits, TextView after, const WholeNumber& kind) {
  const TextView decimals = TakeNumber(after);
  if (digits.empty() || decimals.empty()) {
    return std::string("as a decimal point it would make ") + kind.one + " that is no whole number";
  }
  return PlainText(digits) + "." + PlainText(decimals) + " cannot be meant as " + kind.one + ", since " +
         kind.many + " are whole numbers";
}

// Whether a hydrate dot in front of the text would have something to count.
bool HasFormulaForDot(TextView after) {
  after = Trimmed(after);
  TakeNumber(after);
  if (after.empty() || IsDot(after.front())) return false;
  return TextView(u".)]").find(after.front()) == TextView::npos;
}

// Why a full stop is not read, with both ways to read it, for a text cut at the first one. `hasFormula` tells
// whether a dot there would have something in front of it.
std::string FullStopError(TextView before, TextView after, bool hasFormula) {
  std::size_t count = 0;
  while (count < before.size() && IsAsciiDigit(before[before.size() - 1 - count])) ++count;
  const TextView digits = before.substr(before.size() - count);
  TextView rest = after;
  const TextView decimals = TakeNumber(rest);
  if (!digits.empty() && !decimals.empty() && count < before.size() &&
      IsDot(before[before.size() - 1 - count])) {
    return kFullStop + PlainText(digits) + "." + PlainText(decimals) +
           " behind a hydrate dot cannot be meant, since that number is a whole one";
  }
  std::string error = kFullStop;
  if (!hasFormula) {
    error += "nothing stands before it that a hydrate dot could add to";
  } else if (!HasFormulaForDot(after)) {
    error += "nothing follows it that a hydrate dot could add";
  } else {
    error += "write \"" + PlainText(before) + "*" + PlainText(after) + "\" if it is a hydrate dot";
  }
  return error + "; " + NoDecimalPoint(digits, after, kIndex);
}

// Writes the brackets that the calculators want while it walks through a formula.
class FormulaWriter {
 public:
  Reading Write(TextView formula) {
    for (TextView rest = formula; !rest.empty() && reading_.error.empty();) {
      const Char c = rest.front();
      if (c == u'\0') {
        reading_.error = "a NUL character stands in it";
      } else if (c == u'.') {
        const auto before = static_cast<std::size_t>(rest.data() - formula.data());
        reading_.error = FullStopError(formula.substr(0, before), rest.substr(1), !NothingBefore());
      } else if (IsDot(c)) {
        rest = Trimmed(rest.substr(1));
        BeginHydrate(TakeNumber(rest));
        continue;
      } else {
        Append(c);
      }
      rest.remove_prefix(1);
    }
    if (reading_.error.empty()) EndHydrate();
    if (!reading_.error.empty()) reading_.text.clear();
    return std::move(reading_);
  }

 private:
  // One level of brackets, the outermost included.
  struct Level {
    Char bracket = 0;
    std::size_t begin = 0;  // where the level's text, or that of its last dot, begins
    bool inHydrate = false;
    Text number;  // behind that dot
  };

  // Whether the level, or its last dot, has only just begun.
  bool NothingBefore() const { return reading_.text.size() == levels_.back().begin; }

  void Append(Char c) {
    if (c == u'(' || c == u'[') {
      reading_.text += u'(';
      levels_.push_back({c, reading_.text.size(), false, {}});
    } else if (c == u')' || c == u']') {
      Close(c);
    } else if (IsLoweredDigit(c)) {
      reading_.text += static_cast<Char>(u'0' + (c - u'\u2080'));
    } else {
      reading_.text += c;
    }
  }

  // A bracket that nothing opened is left to the calculator, which has words for it.
  void Close(Char c) {
    EndHydrate();
    if (levels_.size() > 1) {
      const Char opening = levels_.back().bracket;
      levels_.pop_back();
      if ((opening == u'[') != (c == u']')) {
        reading_.error = std::string("\"") + static_cast<char>(opening) + "\" is closed by \"" +
                         static_cast<char>(c) + "\"";
      }
    }
    reading_.text += u')';
  }

  void BeginHydrate(TextView number) {
    const bool nothingBefore = NothingBefore();
    EndHydrate();
    if (!reading_.error.empty()) return;
    if (nothingBefore) {
      reading_.error = "nothing stands before the dot";
      return;
    }
    reading_.text += u'(';
    Level& level = levels_.back();
    level.begin = reading_.text.size();
    level.inHydrate = true;
    level.number = number;
  }

  // Closes the brackets that a dot opened.
  void EndHydrate() {
    Level& level = levels_.back();
    if (!level.inHydrate) return;
    if (reading_.text.size() == level.begin) {
      reading_.error = "nothing follows the dot";
      return;
    }
    level.inHydrate = false;
    reading_.text += u')';
    reading_.text += level.number;
  }

  Reading reading_;
  std::vector<Level> levels_ = std::vector<Level>(1);
};

// Blanks around dots go with the dots; those inside a formula stay, and make it one that nobody can read.
Text WithoutBlanksAtDots(TextView formula) {
  Text out;
  for (std::size_t i = 0; i < formula.size(); ++i) {
    if (!IsBlank(formula[i])) {
      out += formula[i];
      continue;
    }
    std::size_t next = i;
    while (next < formula.size() && IsBlank(formula[next])) ++next;
    const bool atDot = (next < formula.size() && IsDot(formula[next])) || (!out.empty() && IsDot(out.back()));
    if (!atDot) out += formula.substr(i, next - i);
    i = next - 1;
  }
  return out;
}

}  // namespace

Reading ReadFormula(TextView typed) { return FormulaWriter().Write(WithoutBlanksAtDots(Trimmed(typed))); }

Reading ReadSide(TextView typed) {
  Reading side;
  for (;;) {
    const std::size_t plus = std::min(typed.find(u'+'), typed.size());
    TextView term = Trimmed(typed.substr(0, plus));
    const TextView coefficient = TakeNumber(term);
    if (!coefficient.empty() && term.starts_with(u'.')) {
      return {{}, kFullStop + NoDecimalPoint(coefficient, term.substr(1), kCoefficient)};
    }
    side.text += coefficient;
    Reading formula = ReadFormula(term);
    if (!formula.error.empty()) return {{}, std::move(formula.error)};
    side.text += formula.text;
    if (plus == typed.size()) return side;
    side.text += u'+';
    typed.remove_prefix(plus + 1);
  }
}

EquationReading ReadEquation(TextView typed) {
  constexpr TextView kSigns[] = {u"->", u"\u2192", u"="};
  std::size_t at = TextView::npos;
  std::size_t length = 0;
  for (const TextView sign : kSigns) {
    const std::size_t found = typed.find(sign);
    if (found >= at) continue;
    at = found;
    length = sign.size();
  }
  if (at == TextView::npos) return {{}, {}, "no \"=\" or \"->\" stands between two sides"};
  const TextView rest = typed.substr(at + length);
  for (const TextView sign : kSigns) {
    if (rest.find(sign) != TextView::npos) return {{}, {}, "there are more than two sides"};
  }
  Reading left = ReadSide(typed.substr(0, at));
  if (!left.error.empty()) return {{}, {}, std::move(left.error)};
  Reading right = ReadSide(rest);
  return {std::move(left.text), std::move(right.text), std::move(right.error)};
}

}  // namespace orvane
