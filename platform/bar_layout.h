// Where the buttons of a menu bar stand. Knows label widths, not fonts.
#pragma once

#include <functional>
#include <vector>

#include "platform/menu_bar.h"

namespace orvane {

inline constexpr int kBarButtonWidth = 24;
inline constexpr int kBarLabelPadding = 4;  // on each side of a menu button's label
inline constexpr int kBarSeparatorWidth = 2;
inline constexpr int kPanelButtonWidth = 26;

// One rectangle a button, on the screen, from the left without gaps. `labelWidth` measures a label. A button
// that would reach beyond `right` is cut there, and one that lies wholly beyond it is empty.
std::vector<Rect> LayOutBar(const std::vector<BarButton>& buttons, int right,
                            const std::function<int(TextView)>& labelWidth);

}  // namespace orvane
