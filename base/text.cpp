#include "base/text.h"

namespace orvane {

namespace {

constexpr std::uint32_t kReplacement = 0xFFFD;

bool IsContinuation(unsigned char byte) { return (byte & 0xC0u) == 0x80u; }

struct Decoded {
  std::uint32_t code = kReplacement;
  std::size_t length = 1;
  bool wellFormed = false;
};

// Decodes the sequence at the front of `bytes` (not empty). Surrogates decode, but count as not well formed.
Decoded DecodeOne(std::string_view bytes) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const unsigned char lead = byte(0);
  if (lead < 0x80) return {lead, 1, true};
  std::size_t length = 0;
  std::uint32_t code = 0;
  std::uint32_t least = 0;
  if (lead >= 0xC2 && lead <= 0xDF) {
    length = 2, code = lead & 0x1Fu, least = 0x80;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    length = 3, code = lead & 0x0Fu, least = 0x800;
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4, code = lead & 0x07u, least = 0x10000;
  } else {
    return {};
  }
  if (bytes.size() < length) return {};
  for (std::size_t i = 1; i < length; ++i) {
    if (!IsContinuation(byte(i))) return {};
    code = (code << 6) | (byte(i) & 0x3Fu);
  }
  if (code < least || code > 0x10FFFF) return {};
  const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
  return {code, length, !surrogate};
}

void AppendUnits(Text& out, std::uint32_t code) {
  if (code < 0x10000) {
    out.push_back(static_cast<Char>(code));
    return;
  }
  const std::uint32_t rest = code - 0x10000;
  out.push_back(static_cast<Char>(0xD800 + (rest >> 10)));
  out.push_back(static_cast<Char>(0xDC00 + (rest & 0x3FF)));
}

void AppendUtf8(std::string& out, std::uint32_t code) {
  const auto put = [&](std::uint32_t byte) { out.push_back(static_cast<char>(byte)); };
  if (code < 0x80) {
    put(code);
  } else if (code < 0x800) {
    put(0xC0 | (code >> 6)), put(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    put(0xE0 | (code >> 12)), put(0x80 | ((code >> 6) & 0x3F)), put(0x80 | (code & 0x3F));
  } else {
    put(0xF0 | (code >> 18)), put(0x80 | ((code >> 12) & 0x3F));
    put(0x80 | ((code >> 6) & 0x3F)), put(0x80 | (code & 0x3F));
  }
}

Text Substitute(TextView textTemplate, TextView mark, TextView value) {
  Text out(textTemplate);
  const std::size_t at = out.find(mark);
  if (at != Text::npos) out.replace(at, mark.size(), value);
  return out;
}

}  // namespace

Text FromUtf8(std::string_view bytes) {
  Text out;
  out.reserve(bytes.size());
  while (!bytes.empty()) {
    const Decoded one = DecodeOne(bytes);
    AppendUnits(out, one.code);
    bytes.remove_prefix(one.length);
  }
  return out;
}

bool IsValidUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const Decoded one = DecodeOne(bytes);
    if (!one.wellFormed) return false;
    bytes.remove_prefix(one.length);
  }
  return true;
}

std::string ToUtf8(TextView text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    std::uint32_t code = text[i];
    if (IsSurrogatePairAt(text, i)) {
      code = 0x10000 + ((code - 0xD800) << 10) + (text[i + 1] - 0xDC00u);
      ++i;
    }
    AppendUtf8(out, code);
  }
  return out;
}

std::string HexText(std::uint32_t value, int digits) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string out;
  for (int i = digits; i-- > 0;) out.push_back(i < 8 ? kDigits[(value >> (4 * i)) & 0xFu] : '0');
  return out;
}

Text WithoutLoneSurrogates(TextView text) {
  Text out(text);
  for (std::size_t i = 0; i < out.size(); ++i) {
    if (IsSurrogatePairAt(text, i)) {
      ++i;
    } else if (IsSurrogate(out[i])) {
      out[i] = static_cast<Char>(kReplacement);
    }
  }
  return out;
}

Text DecimalText(std::int64_t value) { return FromUtf8(std::to_string(value)); }

Text WithNumber(TextView textTemplate, std::int64_t value) {
  return Substitute(textTemplate, u"%d", DecimalText(value));
}

Text WithText(TextView textTemplate, TextView value) { return Substitute(textTemplate, u"%s", value); }

}  // namespace orvane
