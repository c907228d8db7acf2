// The two ways to run the hand-held: in a window, or under a script without one. Each returns the process's
// exit status.
#pragma once

#include "app/options.h"

namespace orvane {

// The window's own endings, beside those of the program itself (application.h) and of a script (play.h).
inline constexpr int kExitNoDisplay = 5;
inline constexpr int kExitUnreadableScript = 4;

int RunInWindow(const Options& options);
int RunScript(const Options& options);

}  // namespace orvane
