#include "tools/const_text.h"

#include "base/styled_text.h"
#include "base/text_field.h"

namespace orvane {

namespace {

constexpr Char kTimes = 0x00D7;
constexpr Char kEnDash = 0x2013;
constexpr TextView kPlain = u"\u0001 ";

}  // namespace

Text ConstantInFull(const ConstEntry& constant) {
  Text out;
  if (!constant.symbol.empty()) out.append(constant.symbol).append(kPlain).append(u" = ");
  out += constant.value;
  if (!constant.units.empty()) out.append(kPlain).append(u" ").append(constant.units);
  if (!constant.remark.empty()) out.append(kPlain).append(u"\n").append(constant.remark);
  return out;
}

Text ValueForClipboard(TextView value) {
  Text out;
  for (std::size_t i = 0; i < value.size(); ++i) {
    const Char c = value[i];
    if (c == kStyleMark) {
      // A code without its flags ends the text.
      if (++i < value.size() && value[i] == kRaisedFlags) out += u'^';
    } else if (c == kTimes) {
      out += u'*';
    } else if (c == kEnDash) {
      out += u'-';
    } else {
      out += c;
    }
  }
  return out.substr(0, kLongestField);
}

}  // namespace orvane
