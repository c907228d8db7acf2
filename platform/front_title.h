// What stands in the title area.
#pragma once

#include "base/text.h"

namespace orvane {

class Device;

// The title of the tool in front: the topmost visible top-level window that the main window owns and that has
// a title. The program's name when there is none.
Text FrontTitle(const Device& device);

}  // namespace orvane
