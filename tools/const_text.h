// The texts that the constants screen makes of a constant.
#pragma once

#include "data/constants_database.h"

namespace orvane {

// The constant in full: "symbol = value units", and the remark on a line of its own. Parts that are empty are
// left out with what joins them, and a style left open by a part ends with it.
Text ConstantInFull(const ConstEntry& constant);

// A value as other programs read it: * for the multiplication sign, - for the en dash, ^ before what is
// raised; all other style codes are left out. At most 254 characters.
Text ValueForClipboard(TextView value);

}  // namespace orvane
