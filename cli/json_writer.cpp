#include "cli/json_writer.h"

#include <string>

#include "cli/real_text.h"

namespace orvane {

namespace {

// Appends one unit that is no part of a surrogate pair.
void AppendUnit(std::string& out, Char c) {
  if (c == u'"' || c == u'\\') {
    out.push_back('\\');
    out.push_back(static_cast<char>(c));
  } else if (c == u'\n') {
    out += "\\n";
  } else if (IsControl(c) || IsSurrogate(c)) {
    out += "\\u" + HexText(c, 4);
  } else {
    out += ToUtf8(TextView(&c, 1));
  }
}

void AppendQuoted(std::string& out, TextView text) {
  out += '"';
  for (std::size_t i = 0; i < text.size(); ++i) {
    const Char c = text[i];
    if (c >= u' ' && c < 0x7F && c != u'"' && c != u'\\') {
      out += static_cast<char>(c);
    } else if (IsSurrogatePairAt(text, i)) {
      out += ToUtf8(text.substr(i, 2));
      ++i;
    } else {
      AppendUnit(out, c);
    }
  }
  out += '"';
}

// A damaged file's dump can be long, and no line needs to be held whole.
constexpr std::size_t kHeldBack = 65536;

}  // namespace

JsonWriter& JsonWriter::Key(std::string_view asciiName) {
  Separate();
  written_.append(1, '"').append(asciiName).append("\":");
  afterKey_ = true;
  return *this;
}

JsonWriter& JsonWriter::String(TextView text) {
  Separate();
  AppendQuoted(written_, text);
  HandOver();
  return *this;
}

// The digits are never grouped, whatever locale the stream has.
JsonWriter& JsonWriter::Number(std::int64_t value) { return Value(std::to_string(value)); }
JsonWriter& JsonWriter::Digits(TextView digits) { return Value(ToUtf8(digits)); }
JsonWriter& JsonWriter::Bool(bool value) { return Value(value ? "true" : "false"); }
JsonWriter& JsonWriter::Null() { return Value("null"); }

JsonWriter& JsonWriter::Real(double value) { return Value(RealText(value)); }

JsonWriter& JsonWriter::Value(std::string_view json) {
  Separate();
  written_ += json;
  HandOver();
  return *this;
}

JsonWriter& JsonWriter::Begin(char bracket) {
  Separate();
  written_ += bracket;
  hasItems_.push_back(false);
  return *this;
}

JsonWriter& JsonWriter::End(char bracket) {
  written_ += bracket;
  hasItems_.pop_back();
  HandOver();
  return *this;
}

void JsonWriter::Separate() {
  if (afterKey_) {
    afterKey_ = false;
    return;
  }
  if (hasItems_.empty()) return;
  if (hasItems_.back()) written_ += ',';
  hasItems_.back() = true;
}

void JsonWriter::HandOver() {
  if (!hasItems_.empty() && written_.size() < kHeldBack) return;
  out_.write(written_.data(), static_cast<std::streamsize>(written_.size()));
  written_.clear();
}

}  // namespace orvane
