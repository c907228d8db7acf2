#include "cli/json_writer.h"

#include <string>

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

std::string Quoted(TextView text) {
  std::string out = "\"";
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (IsSurrogatePairAt(text, i)) {
      out += ToUtf8(text.substr(i, 2));
      ++i;
    } else {
      AppendUnit(out, text[i]);
    }
  }
  return out + '"';
}

}  // namespace

JsonWriter& JsonWriter::Key(std::string_view asciiName) {
  Separate();
  out_ << '"' << asciiName << "\":";
  afterKey_ = true;
  return *this;
}

JsonWriter& JsonWriter::String(TextView text) {
  Separate();
  out_ << Quoted(text);
  return *this;
}

JsonWriter& JsonWriter::Number(std::int64_t value) {
  Separate();
  out_ << std::to_string(value);  // never grouped, whatever locale the stream has
  return *this;
}

JsonWriter& JsonWriter::Bool(bool value) {
  Separate();
  out_ << (value ? "true" : "false");
  return *this;
}

JsonWriter& JsonWriter::Null() {
  Separate();
  out_ << "null";
  return *this;
}

JsonWriter& JsonWriter::Begin(char bracket) {
  Separate();
  out_ << bracket;
  hasItems_.push_back(false);
  return *this;
}

JsonWriter& JsonWriter::End(char bracket) {
  out_ << bracket;
  hasItems_.pop_back();
  return *this;
}

void JsonWriter::Separate() {
  if (afterKey_) {
    afterKey_ = false;
    return;
  }
  if (hasItems_.empty()) return;
  if (hasItems_.back()) out_ << ',';
  hasItems_.back() = true;
}

}  // namespace orvane
