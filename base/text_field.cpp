#include "base/text_field.h"

#include "base/styled_text.h"

namespace orvane {

TextView CutToField(TextView text, std::size_t longest) {
  text = text.substr(0, text.find(Char{0}));
  if (text.size() <= longest) return text;
  std::size_t length = 0;
  while (length < longest) {
    const bool pair = text[length] == kStyleMark || IsSurrogatePairAt(text, length);
    const std::size_t step = pair ? 2 : 1;
    if (length + step > longest) break;
    length += step;
  }
  return text.substr(0, length);
}

}  // namespace orvane
