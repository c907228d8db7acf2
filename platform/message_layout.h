// Where the parts of a message box stand. Knows sizes, not fonts.
#pragma once

#include "base/geometry.h"
#include "platform/chrome_style.h"

namespace orvane {

inline constexpr int kBoxWidth = 228;
inline constexpr int kBoxTallest = 308;  // a rim of the screen stays free above and below
inline constexpr int kBoxCaptionHeight = 22;
inline constexpr int kBoxPadding = 10;
inline constexpr int kBoxSignColumn = kMessageSign.width + 10;  // the sign and the room to its right
inline constexpr int kBoxButtonHeight = 26;
inline constexpr int kBoxOkWidth = 72;
inline constexpr int kBoxDismissAllWidth = 96;
inline constexpr int kBoxScrollRoom = 8;  // right of the text, where the scroll mark stands

struct MessageLayout {
  Rect bounds;   // on the screen
  Rect caption;  // the rest in the box
  Rect sign;
  Rect text;  // what is seen of the text
  Rect ok;
  Rect dismissAll;  // empty when it is not offered
  int scrollLimit = 0;
};

// The width that the text is wrapped to.
int MessageTextWidth(bool hasSign);
// A box round a text of `textHeight`, in the middle of the screen; it grows with the text up to kBoxTallest.
MessageLayout LayOutMessage(Size screen, int textHeight, bool hasSign, bool offersDismissAll);

}  // namespace orvane
