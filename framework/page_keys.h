// Keys that go through a list by screenfuls, beside the arrows of every panel.
#pragma once

#include "framework/zel_panel.h"

namespace orvane {

// Page Up, Page Down, Home and End; Ctrl with Left and Right go sideways by screenfuls. `kept` is how much of
// a screenful the next one shows again, for the eye to find its place: a row. False for any other key, which
// has no effect.
bool ScrollByPageKey(ZelPanel& panel, Device& device, int key, int kept);

}  // namespace orvane
