#include "content/figures.h"

#include <cmath>

#include "base/styled_text.h"

namespace orvane {

namespace {

constexpr int kLargestExponent = 4000;
constexpr Char kTimes = 0x00D7;
constexpr Char kEnDash = 0x2013;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Takes characters from the front of a text.
class Scanner {
 public:
  explicit Scanner(std::string_view text) : rest_(text) {}
  bool Done() const { return rest_.empty(); }
  bool Take(std::string_view expected) {
    if (rest_.substr(0, expected.size()) != expected) return false;
    rest_.remove_prefix(expected.size());
    return true;
  }
  std::string Digits() {
    std::string digits;
    while (!rest_.empty() && IsDigit(rest_.front())) {
      digits += rest_.front();
      rest_.remove_prefix(1);
    }
    return digits;
  }
  std::string_view Rest() const { return rest_; }
  void Skip(std::size_t count) { rest_.remove_prefix(count); }

  // ± digits; nothing without a digit or with an absurd number.
  std::optional<int> Exponent() {
    const bool negative = Take("-");
    const std::string digits = Digits();
    if (digits.empty() || digits.size() > 4) return std::nullopt;
    int value = 0;
    for (const char c : digits) value = value * 10 + (c - '0');
    if (value > kLargestExponent) return std::nullopt;
    return negative ? -value : value;
  }

 private:
  std::string_view rest_;
};

// Digits with perhaps a point and further digits, without a sign.
std::optional<Decimal> ScanDigits(Scanner& in) {
  Decimal figure;
  figure.digits = in.Digits();
  if (figure.digits.empty()) return std::nullopt;
  if (in.Rest().size() >= 2 && in.Rest()[0] == '.' && IsDigit(in.Rest()[1])) {
    in.Skip(1);
    const std::string decimals = in.Digits();
    figure.digits += decimals;
    figure.exponent = -static_cast<int>(decimals.size());
  }
  return figure;
}

// Blanks between groups of three; a last group of one digit joins the one before. `fromRight` counts the
// groups of a whole part.
std::string Grouped(const std::string& digits, bool fromRight) {
  const std::size_t n = digits.size();
  if (n <= 4) return digits;
  std::string out;
  for (std::size_t i = 0; i < n; ++i) {
    const std::size_t distance = fromRight ? n - i : i;
    const bool lastAlone = !fromRight && n - i == 1;
    if (i > 0 && distance % 3 == 0 && !lastAlone) out += ' ';
    out += digits[i];
  }
  return out;
}

// The shown text in the characters of a table of facts; other characters, and codes that are not those of an
// exponent, become '?'.
std::string Plain(TextView shown) {
  std::string out;
  for (std::size_t i = 0; i < shown.size(); ++i) {
    const Char c = shown[i];
    if (c == kStyleMark && i + 1 < shown.size()) {
      const Char flags = shown[++i];
      if (flags == kRaisedFlags) {
        out += '^';
      } else if (flags != kPlainFlags || i + 1 != shown.size()) {
        out += '?';
      }
    } else if (c == kTimes) {
      out += 'x';
    } else if (c == kEnDash) {
      out += '-';
    } else {
      out += c == u' ' || c == u'.' || IsAsciiDigit(c) ? static_cast<char>(c) : '?';
    }
  }
  return out;
}

}  // namespace

std::optional<Decimal> ParseDecimal(std::string_view text) {
  Scanner in(text);
  const bool negative = in.Take("-");
  std::optional<Decimal> figure = ScanDigits(in);
  if (!figure) return std::nullopt;
  figure->negative = negative;
  figure->open = in.Take("...");
  if (in.Take("e")) {
    const std::optional<int> exponent = in.Exponent();
    if (!exponent) return std::nullopt;
    figure->exponent += *exponent;
  }
  return in.Done() ? figure : std::nullopt;
}

std::optional<Decimal> ParseShownFigure(TextView text) {
  std::string plain = Plain(text);
  int shift = 0;
  if (const std::size_t times = plain.find("x10^"); times != std::string::npos) {
    Scanner in(std::string_view(plain).substr(times + 4));
    const std::optional<int> exponent = in.Exponent();
    if (!exponent || !in.Done()) return std::nullopt;
    shift = *exponent;
    plain.resize(times);
  }
  std::string bare;
  for (const char c : plain) {
    if (c != ' ') bare += c;
  }
  std::optional<Decimal> figure = ParseDecimal(bare);
  if (!figure || figure->open) return std::nullopt;
  figure->exponent += shift;
  // What is written must be what would be written.
  if (ShowFigure(*figure, shift) != text) return std::nullopt;
  return figure;
}

Text ShowFigure(const Decimal& figure, int shift) {
  const int decimals = std::max(0, shift - figure.exponent);
  std::string digits = figure.digits;
  if (figure.exponent > shift) digits.append(static_cast<std::size_t>(figure.exponent - shift), '0');
  const std::size_t behind = static_cast<std::size_t>(decimals);
  if (digits.size() <= behind) digits.insert(0, behind + 1 - digits.size(), '0');
  const std::size_t front = digits.size() - behind;
  std::string number = Grouped(digits.substr(0, front), true);
  if (behind > 0) number += '.' + Grouped(digits.substr(front), false);
  Text out = figure.negative ? Text(1, kEnDash) : Text();
  out += FromUtf8(number);
  if (shift != 0) {
    out += Text{kTimes, u'1', u'0', kStyleMark, kRaisedFlags};
    if (shift < 0) out += kEnDash;
    out += DecimalText(std::abs(shift)) + Text{kStyleMark, kPlainFlags};
  }
  return out;
}

long double ValueOf(const Decimal& figure) {
  long double value = 0;
  for (const char c : figure.digits) value = value * 10 + (c - '0');
  const long double power = std::pow(10.0L, static_cast<long double>(std::abs(figure.exponent)));
  value = figure.exponent < 0 ? value / power : value * power;
  return figure.negative ? -value : value;
}

long double LastPlace(const Decimal& figure) {
  return std::pow(10.0L, static_cast<long double>(figure.exponent));
}

}  // namespace orvane
