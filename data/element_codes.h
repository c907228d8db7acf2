// The one-letter codes in which the elements database keeps families and blocks.
#pragma once

#include "base/text.h"

namespace orvane {

// The text of the code that is the value's first character: "Alkali metal" for "A", up to
// "Transactinide" for "J". Any other value, the empty one too, has no text and gives an empty one.
TextView FamilyText(TextView value);

// Likewise for blocks: "s-block" for "S", "p-block", "d-block" and "f-block" for "P", "D" and "F".
TextView BlockText(TextView value);

}  // namespace orvane
