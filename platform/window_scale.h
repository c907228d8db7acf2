// Which scales a host's window takes: arithmetic alone, the same for every host.
#pragma once

#include "base/geometry.h"

namespace orvane {

// The largest whole scale at which the screen leaves some of the desktop free (a twelfth of its width and
// height, for title bar and neighbours); at least 1.
double ComfortableScale(Size desktop);

// A scale as it was remembered: one that this desktop cannot show becomes the largest that it can. Anything
// that is no scale (0, below 1, not a number) becomes the comfortable one.
double RememberedScale(double remembered, Size desktop);

// The largest scale at which the whole screen lies in a window of this many device pixels, 1 to 16.
double ScaleForWindow(Size window);

// The device pixels of the whole screen at a scale, as the device asks for its frame.
Size FrameSize(double scale);

// The scale after a step: +1 to the next larger whole one, −1 to the next smaller, 0 to the standard one.
double SteppedScale(double scale, int step, double standard);

}  // namespace orvane
