// Texts that are kept in fields of a fixed size.
#pragma once

#include <cstddef>

#include "base/text.h"

namespace orvane {

// A field of 255 characters keeps 254 and a terminator.
inline constexpr std::size_t kLongestField = 254;

// The front of the text, up to its first zero character and `longest` characters at most. A style code or a
// surrogate pair that does not fit whole is left out whole.
TextView CutToField(TextView text, std::size_t longest = kLongestField);

}  // namespace orvane
