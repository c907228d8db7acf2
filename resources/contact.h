// Where users may write to. The about box and the messages that ask for a report name the same address.
#pragma once

#include "base/text.h"

namespace orvane {

inline constexpr TextView kContactAddress = u"orvane@example.org";

}  // namespace orvane
