// The look of the hand-held's own parts: one palette, one set of sizes. Sizes are logical pixels.
#pragma once

#include "base/colour.h"
#include "base/geometry.h"
#include "platform/font.h"

namespace orvane {

inline constexpr Colour kDeepBlue = Rgb(0, 66, 138);      // title area, captions, highlights
inline constexpr Colour kAccent = Rgb(0, 121, 255);       // marks, focus, what is switched on
inline constexpr Colour kBarFill = Rgb(240, 250, 255);    // bars, menus, boxes
inline constexpr Colour kPanelFill = Rgb(230, 242, 255);  // input panel, pressed areas
inline constexpr Colour kHairline = Rgb(176, 200, 226);   // separators and quiet outlines
inline constexpr Colour kOutline = Rgb(96, 140, 188);     // outlines of what stands above the windows
inline constexpr Colour kPressed = Rgb(188, 216, 248);    // a button under the pen
inline constexpr Colour kChecked = Rgb(214, 232, 255);    // a button that is switched on
inline constexpr Colour kText = Rgb(16, 32, 56);
inline constexpr Colour kDimText = Rgb(148, 164, 184);
inline constexpr Colour kCaptionHint = Rgb(178, 210, 244);  // small print on deep blue
inline constexpr Colour kErrorRed = Rgb(206, 52, 44);
inline constexpr Colour kAmber = Rgb(245, 181, 46);

inline FontSpec TextFont(int pixels, bool bold = false) { return {u"Tahoma", pixels, bold, false, false}; }

inline constexpr int kTitlePixels = 13;
inline constexpr int kMenuPixels = 13;
inline constexpr int kBodyPixels = 12;
inline constexpr int kSmallPixels = 11;

inline constexpr Size kMessageSign{24, 24};  // the sign of a message box

}  // namespace orvane
