#include "platform/message_layout.h"

#include <algorithm>

namespace orvane {

int MessageTextWidth(bool hasSign) {
  return kBoxWidth - 2 * kBoxPadding - (hasSign ? kBoxSignColumn : 0) - kBoxScrollRoom;
}

MessageLayout LayOutMessage(Size screen, int textHeight, bool hasSign, bool offersDismissAll) {
  constexpr int kFixed = kBoxCaptionHeight + 3 * kBoxPadding + kBoxButtonHeight;
  const int wanted = hasSign ? std::max(textHeight, kMessageSign.height) : textHeight;
  const int shown = std::min(wanted, kBoxTallest - kFixed);
  const int height = kFixed + shown;

  MessageLayout at;
  at.bounds = Rect::At((screen.width - kBoxWidth) / 2, (screen.height - height) / 2, kBoxWidth, height);
  at.caption = {0, 0, kBoxWidth, kBoxCaptionHeight};
  const int top = kBoxCaptionHeight + kBoxPadding;
  int left = kBoxPadding;
  if (hasSign) {
    at.sign = Rect::At({left, top}, kMessageSign);
    left += kBoxSignColumn;
  }
  // A text lower than the sign stands in its middle.
  const int inset = textHeight < shown ? (shown - textHeight) / 2 : 0;
  at.text = {left, top + inset, left + MessageTextWidth(hasSign), top + shown};
  at.scrollLimit = std::max(0, textHeight - shown);

  const int buttonTop = height - kBoxPadding - kBoxButtonHeight;
  const int row = offersDismissAll ? kBoxOkWidth + kBoxPadding + kBoxDismissAllWidth : kBoxOkWidth;
  int x = (kBoxWidth - row) / 2;
  at.ok = Rect::At(x, buttonTop, kBoxOkWidth, kBoxButtonHeight);
  x += kBoxOkWidth + kBoxPadding;
  if (offersDismissAll) at.dismissAll = Rect::At(x, buttonTop, kBoxDismissAllWidth, kBoxButtonHeight);
  return at;
}

}  // namespace orvane
