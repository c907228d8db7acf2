// Styled text for a terminal.
#pragma once

#include <string>

#include "base/text.h"

namespace orvane {

// The text as UTF-8 without style codes. A raised or lowered run is written with the raised and lowered
// characters of Unicode where all of it has them, else behind ^ or _ so that 10 to the 23rd never reads as
// 1023. Control characters other than line feed are left out, since a terminal would act on them; a lone
// surrogate is U+FFFD. The text ends where it ends on a screen (base/styled_text.h).
std::string PlainText(TextView styled);

}  // namespace orvane
