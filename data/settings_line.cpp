#include "data/settings_line.h"

#include <utility>

namespace orvane {

namespace {

constexpr std::string_view kDword = "dword:";
constexpr std::string_view kHex = "hex:";

// A cursor over a line. Each Take consumes what it recognises and leaves the rest.
class LineScanner {
 public:
  explicit LineScanner(std::string_view line) : rest_(line) {}

  bool AtEnd() const { return rest_.empty(); }

  void SkipBlanks() {
    while (!rest_.empty() && (rest_.front() == ' ' || rest_.front() == '\t')) rest_.remove_prefix(1);
  }

  bool Take(std::string_view expected) {
    if (!rest_.starts_with(expected)) return false;
    rest_.remove_prefix(expected.size());
    return true;
  }

  // `least` to `most` hexadecimal digits, as many as there are up to `most`.
  std::optional<std::uint32_t> TakeHex(std::size_t least, std::size_t most) {
    std::uint32_t value = 0;
    std::size_t digits = 0;
    for (; digits < most && digits < rest_.size(); ++digits) {
      const int digit = HexDigitValue(static_cast<unsigned char>(rest_[digits]));
      if (digit < 0) break;
      value = value << 4 | static_cast<std::uint32_t>(digit);
    }
    if (digits < least) return std::nullopt;
    rest_.remove_prefix(digits);
    return value;
  }

  // A text in quotes.
  std::optional<Text> TakeQuoted() {
    if (!Take("\"")) return std::nullopt;
    Text text;
    while (!Take("\"")) {
      const std::string_view plain = rest_.substr(0, rest_.find_first_of("\"\\"));
      if (!plain.empty()) {
        text += FromUtf8(plain);
        rest_.remove_prefix(plain.size());
      } else if (!TakeEscape(text)) {
        return std::nullopt;
      }
    }
    return text;
  }

 private:
  bool TakeEscape(Text& text) {
    if (Take("\\\\")) {
      text.push_back(u'\\');
    } else if (Take("\\\"")) {
      text.push_back(u'"');
    } else {
      if (!Take("\\u")) return false;
      const std::optional<std::uint32_t> unit = TakeHex(4, 4);
      if (!unit) return false;
      text.push_back(static_cast<Char>(*unit));
    }
    return true;
  }

  std::string_view rest_;
};

SettingValue LongValue(std::uint32_t value) {
  SettingValue out{SettingKind::kLong, {}};
  for (int shift = 0; shift < 32; shift += 8) {
    out.bytes.push_back(static_cast<std::uint8_t>(value >> shift));
  }
  return out;
}

SettingValue StringValue(TextView text) {
  SettingValue out{SettingKind::kString, {}};
  out.bytes.reserve((text.size() + 1) * 2);
  for (const Char c : text) {
    out.bytes.push_back(static_cast<std::uint8_t>(c & 0xFF));
    out.bytes.push_back(static_cast<std::uint8_t>(c >> 8));
  }
  out.bytes.insert(out.bytes.end(), 2, 0);
  return out;
}

// The bytes after "hex:", up to the end of the line.
std::optional<SettingValue> TakeBytes(LineScanner& line) {
  SettingValue out{SettingKind::kBinary, {}};
  line.SkipBlanks();
  if (line.AtEnd()) return out;
  do {
    line.SkipBlanks();
    const std::optional<std::uint32_t> byte = line.TakeHex(1, 2);
    if (!byte) return std::nullopt;
    out.bytes.push_back(static_cast<std::uint8_t>(*byte));
    line.SkipBlanks();
  } while (line.Take(","));
  return out;
}

std::optional<SettingValue> TakeValue(LineScanner& line) {
  if (line.Take(kDword)) {
    line.SkipBlanks();
    const std::optional<std::uint32_t> number = line.TakeHex(1, 8);
    if (!number) return std::nullopt;
    return LongValue(*number);
  }
  if (line.Take(kHex)) return TakeBytes(line);
  const std::optional<Text> text = line.TakeQuoted();
  if (!text) return std::nullopt;
  return StringValue(*text);
}

// What would hide in an editor, or end the line there.
bool IsHidden(Char c) { return IsControl(c) || IsSurrogate(c) || c == 0x2028 || c == 0x2029; }

void AppendQuoted(std::string& out, TextView text) {
  out.push_back('"');
  for (std::size_t i = 0; i < text.size(); ++i) {
    const Char c = text[i];
    const bool pair = IsSurrogatePairAt(text, i);
    if (pair) {
      out += ToUtf8(text.substr(i++, 2));
    } else if (IsHidden(c)) {
      out += "\\u" + HexText(c, 4);
    } else {
      if (c == u'\\' || c == u'"') out.push_back('\\');
      out += ToUtf8(TextView(&c, 1));
    }
  }
  out.push_back('"');
}

bool EndsWithZeroCharacter(const std::vector<std::uint8_t>& bytes) {
  const std::size_t n = bytes.size();
  return n >= 2 && n % 2 == 0 && bytes[n - 1] == 0 && bytes[n - 2] == 0;
}

}  // namespace

std::optional<NamedSetting> ParseSettingLine(std::string_view text) {
  if (!IsValidUtf8(text)) return std::nullopt;
  LineScanner line(text);
  line.SkipBlanks();
  std::optional<Text> name = line.TakeQuoted();
  if (!name) return std::nullopt;
  line.SkipBlanks();
  if (!line.Take("=")) return std::nullopt;
  line.SkipBlanks();
  std::optional<SettingValue> value = TakeValue(line);
  line.SkipBlanks();
  if (!value || !line.AtEnd()) return std::nullopt;
  return NamedSetting{std::move(*name), std::move(*value)};
}

std::string FormatSettingLine(TextView name, const SettingValue& value) {
  const std::vector<std::uint8_t>& bytes = value.bytes;
  std::string line;
  AppendQuoted(line, name);
  line.push_back('=');
  if (value.kind == SettingKind::kLong && bytes.size() == 4) {
    line += kDword;
    for (std::size_t i = 4; i-- > 0;) line += HexText(bytes[i], 2);
  } else if (value.kind == SettingKind::kString && EndsWithZeroCharacter(bytes)) {
    Text text;
    for (std::size_t i = 0; i + 2 < bytes.size(); i += 2) {
      text.push_back(static_cast<Char>(bytes[i] | (bytes[i + 1] << 8)));
    }
    AppendQuoted(line, text);
  } else {
    line += kHex;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      if (i > 0) line.push_back(',');
      line += HexText(bytes[i], 2);
    }
  }
  return line;
}

}  // namespace orvane
