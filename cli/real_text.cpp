#include "cli/real_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <locale>
#include <sstream>

namespace orvane {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool IsSign(char c) { return c == '+' || c == '-'; }

// Takes the digits at the front off the text; how many there were.
std::size_t TakeDigits(std::string_view& text) {
  std::size_t count = 0;
  while (count < text.size() && IsDigit(text[count])) ++count;
  text.remove_prefix(count);
  return count;
}

bool IsDecimal(std::string_view text) {
  if (!text.empty() && IsSign(text.front())) text.remove_prefix(1);
  std::size_t digits = TakeDigits(text);
  if (!text.empty() && text.front() == '.') {
    text.remove_prefix(1);
    digits += TakeDigits(text);
  }
  if (digits == 0) return false;
  if (text.empty()) return true;
  if (text.front() != 'e' && text.front() != 'E') return false;
  text.remove_prefix(1);
  if (!text.empty() && IsSign(text.front())) text.remove_prefix(1);
  return TakeDigits(text) > 0 && text.empty();
}

}  // namespace

std::string RealText(double value) {
  if (value == 0) return "0";
  std::array<char, 40> buffer{};  // 17 digits, a sign, a point, an exponent, with room to spare
  const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return error == std::errc() ? std::string(buffer.data(), end) : std::string();
}

std::optional<double> ParseReal(std::string_view text) {
  if (!IsDecimal(text)) return std::nullopt;
  std::istringstream stream{std::string(text)};
  stream.imbue(std::locale::classic());
  double value = 0;
  if (!(stream >> value) || !std::isfinite(value)) return std::nullopt;
  return value;
}

}  // namespace orvane
