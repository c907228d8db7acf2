// What the screens of the help look like, as far as they share it.
#pragma once

#include "base/colour.h"
#include "framework/font_family.h"

namespace orvane {

inline constexpr int kHelpWidth = 240;
inline constexpr int kHelpHeight = 268;
// The bottom of the title strip. It stays; what is below scrolls.
inline constexpr int kHelpStripBottom = 23;
inline constexpr Colour kHelpBackground = Rgb(230, 242, 255);

// "Tahoma" 10 with raised and lowered text of 7 points inside the same line height. Every text of the help
// may be styled: paragraphs, and titles wherever they stand.
inline void CreateHelpFont(Device& device, WindowHandle owner, FontFamily& family, bool underlined) {
  CreateFontFamily(device, owner, family, u"Tahoma", 10, 7, 7, 0, 0, false, underlined);
}

}  // namespace orvane
