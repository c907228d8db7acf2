// Text is a sequence of 16-bit units, as it is stored in the data files and the settings. Unpaired
// surrogates are legal and survive every operation here; UTF-8 exists at the program's edges only.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvane {

using Char = char16_t;
using Text = std::u16string;
using TextView = std::u16string_view;

// UTF-8 to 16-bit text. Each byte that is not part of a well-formed sequence becomes U+FFFD; an
// encoded surrogate (ED A0..BF xx), as written by ToUtf8, becomes that lone surrogate again.
Text FromUtf8(std::string_view bytes);

// True when the bytes are well-formed UTF-8 (encoded surrogates are not).
bool IsValidUtf8(std::string_view bytes);

// 16-bit text to UTF-8. A lone surrogate is written as its three-byte form, so that
// FromUtf8(ToUtf8(t)) == t for every text.
std::string ToUtf8(TextView text);

// ASCII classes and folding: nothing here follows the locale.
constexpr bool IsAsciiDigit(Char c) { return c >= u'0' && c <= u'9'; }
constexpr bool IsAsciiUpper(Char c) { return c >= u'A' && c <= u'Z'; }
constexpr bool IsAsciiLower(Char c) { return c >= u'a' && c <= u'z'; }
constexpr bool IsAsciiLetter(Char c) { return IsAsciiUpper(c) || IsAsciiLower(c); }
constexpr Char AsciiLower(Char c) { return IsAsciiUpper(c) ? static_cast<Char>(c + 32) : c; }
constexpr Char AsciiUpper(Char c) { return IsAsciiLower(c) ? static_cast<Char>(c - 32) : c; }

// C0, delete and C1: nothing that a screen shows.
constexpr bool IsControl(Char c) { return c < 0x20 || (c >= 0x7F && c <= 0x9F); }

// The value of a hexadecimal digit in either case, or -1.
constexpr int HexDigitValue(Char c) {
  if (IsAsciiDigit(c)) return c - u'0';
  const Char lower = AsciiLower(c);
  return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : -1;
}

// The number's lowest `digits` hexadecimal digits, in lower case.
std::string HexText(std::uint32_t value, int digits);

// The halves of a pair that stands for a character beyond U+FFFF.
constexpr bool IsHighSurrogate(Char c) { return c >= 0xD800 && c <= 0xDBFF; }
constexpr bool IsLowSurrogate(Char c) { return c >= 0xDC00 && c <= 0xDFFF; }
constexpr bool IsSurrogate(Char c) { return c >= 0xD800 && c <= 0xDFFF; }

// Whether such a pair stands at this position of the text; every other surrogate is a lone one.
constexpr bool IsSurrogatePairAt(TextView text, std::size_t at) {
  return at + 1 < text.size() && IsHighSurrogate(text[at]) && IsLowSurrogate(text[at + 1]);
}

// The text with U+FFFD in the place of each lone surrogate, for readers that want well-formed UTF-8.
Text WithoutLoneSurrogates(TextView text);

// Decimal text of a number, with a minus sign when it is negative.
Text DecimalText(std::int64_t value);

// Replaces the first "%d" or "%s" of the template by the value and returns the result. The value is
// never looked into, so it may hold percent signs. A template without the mark comes back unchanged.
Text WithNumber(TextView textTemplate, std::int64_t value);
Text WithText(TextView textTemplate, TextView value);

}  // namespace orvane
