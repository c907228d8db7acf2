// How a plot reads the texts of element properties as numbers. They are made for people: "[98]", "1.2
// (est.)".
#pragma once

#include "base/text.h"

namespace orvane {

// Digits build up a number, after a point as its decimals; a further point begins the decimals anew, so that
// they are added to what is there ("1.2.3" is 1.5). A "-" negates what has been read so far: a trailing one
// makes the number negative ("2.5-" is -2.5), one in front of it has nothing to negate and is lost ("-2.5" is
// 2.5), one in the middle turns the digits behind it around ("2-5" is -15). Every other character is skipped,
// and a text without digits is 0. Hundreds of digits give an infinite number.
double ReadPlotValue(TextView text);

}  // namespace orvane
