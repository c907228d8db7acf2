#include "base/text_scan.h"

#include <algorithm>

namespace orvane {

namespace {

bool IsFieldDelimiter(Char c) { return c == u'\r' || c == u'\t' || c == u'\0'; }

}  // namespace

std::int32_t ToInteger(TextView text) {
  std::size_t i = 0;
  while (i < text.size() && (text[i] == u' ' || text[i] == u'\t')) ++i;
  const bool negative = i < text.size() && text[i] == u'-';
  if (i < text.size() && (text[i] == u'-' || text[i] == u'+')) ++i;
  std::uint32_t value = 0;  // unsigned, because a long number wraps
  for (; i < text.size() && IsAsciiDigit(text[i]); ++i) value = value * 10u + (text[i] - u'0');
  return static_cast<std::int32_t>(negative ? 0u - value : value);
}

double ToReal(TextView text) {
  double value = 0;
  double place = 0.1;  // of the next digit after the point
  bool afterPoint = false;
  bool negative = false;
  for (const Char c : text) {
    if (c == u'-') {
      negative = !negative;
    } else if (c == u'.') {
      afterPoint = true;
    } else if (IsAsciiDigit(c)) {
      const double digit = c - u'0';
      value = afterPoint ? value + digit * place : value * 10 + digit;
      if (afterPoint) place *= 0.1;
    }
  }
  return negative ? -value : value;
}

TextView FirstLine(TextView text) { return text.substr(0, text.find(u'\n')); }

Text TakeTextField(TextView buffer, std::size_t& position, std::size_t maximum, MessageReporter& reporter) {
  position = std::min(position, buffer.size());
  const TextView rest = buffer.substr(position);
  const auto end = std::find_if(rest.begin(), rest.end(), IsFieldDelimiter);
  TextView field = rest.substr(0, static_cast<std::size_t>(end - rest.begin()));

  position += field.size();
  if (position < buffer.size()) ++position;
  if (position < buffer.size() && buffer[position] == u'\n') ++position;

  if (field.size() >= maximum) {
    const Text text = WithNumber(u"ReadFile: max length exceeded. Max length: %d, actual length: %d",
                                 static_cast<std::int64_t>(maximum));
    reporter.Report(WithNumber(text, static_cast<std::int64_t>(field.size())), kProgramName,
                    MessageIcon::kError);
    field.remove_prefix(field.size() - (maximum == 0 ? 0 : maximum - 1));
  }
  return Text(field);
}

}  // namespace orvane
