// Small scanners over 16-bit text: numbers, lines and delimited fields. None of them fails and none
// follows the locale.
#pragma once

#include <cstddef>
#include <cstdint>

#include "base/message_reporter.h"
#include "base/text.h"

namespace orvane {

// The decimal number at the front of the text: blanks (space, tab), one sign, digits up to the first
// other character. "12abc" is 12, "abc" and "" are 0. A number outside 32 bits wraps.
std::int32_t ToInteger(TextView text);

// A forgiving decimal scan: digits before the first point count upwards, digits after it downwards by
// tenths, every minus sign wherever it stands flips the sign of the result, and every other character
// (further points too) is skipped. "-2.5" is -2.5, "2-5" is -25, "--3" is 3, "" is 0.
double ToReal(TextView text);

// The text before its first line feed; the whole text when there is none.
TextView FirstLine(TextView text);

// Takes the field of `buffer` that begins at `position`: the characters up to the next carriage
// return, tab or zero, or up to the end of the buffer, which counts as a zero. `position` then stands
// behind the delimiter and behind a line feed that follows it (never behind the end of the buffer).
//
// `maximum` is the room of the destination with its terminating zero. A field of `maximum` characters
// or more is reported, and only its last `maximum` - 1 characters are returned.
Text TakeTextField(TextView buffer, std::size_t& position, std::size_t maximum, MessageReporter& reporter);

}  // namespace orvane
