// A panel that writes down what reaches it, and paints a picture in which every pixel tells its place.
#pragma once

#include <functional>
#include <vector>

#include "framework/zel_panel.h"

namespace orvane::testing {

// A notification with the pen's points at that moment.
struct Notification {
  std::uint32_t code = 0;
  WParam w = 0;
  LParam l = 0;
  Point down;
  Point previous;
  Point current;
};

class ProbePanel : public ZelPanel {
 public:
  using ZelPanel::ZelPanel;

  Result OnMessage(std::uint32_t message, WParam w, LParam l) override {
    seen.push_back({message, w, l, penDown, penPrevious, penCurrent});
    if (hook) hook(message);
    if (message == PN_DRAGQUERY) return dragAnswer;
    return ZelPanel::OnMessage(message, w, l);
  }

  // The panel's own notifications, in order.
  std::vector<std::uint32_t> Notifications() const {
    std::vector<std::uint32_t> codes;
    for (const Notification& one : seen) {
      if (one.code >= PN_DRAGQUERY && one.code <= PN_KEYDOWN) codes.push_back(one.code);
    }
    return codes;
  }
  Point Scroll() const { return {scrollX, scrollY}; }
  Point Down() const { return penDown; }
  Point Previous() const { return penPrevious; }
  Point Current() const { return penCurrent; }
  bool Dragging() const { return dragging; }
  bool PanelScrolls() const { return panelScrolls; }
  using ZelPanel::ContentPoint;
  using ZelPanel::UsableSize;
  using ZelPanel::VisibleContent;

  std::vector<Notification> seen;
  std::vector<Rect> painted;  // the rectangles asked for
  std::vector<Rect> clips;    // and the clips they came with
  std::function<void(std::uint32_t)> hook;
  Result dragAnswer = 0;
  int shade = 0;  // changes the whole picture

 protected:
  static constexpr int kTile = 10;

  // Tiles of different colours with slanting lines across them. All of it is drawn that touches the
  // rectangle, beyond it too, as the clip must hold.
  void Paint(Canvas& canvas, int left, int top, int right, int bottom) override {
    painted.push_back({left, top, right, bottom});
    clips.push_back(canvas.ClipBounds());
    for (int y = top / kTile * kTile; y < std::min(bottom, contentHeight); y += kTile) {
      for (int x = left / kTile * kTile; x < std::min(right, contentWidth); x += kTile) {
        const Rect tile = Intersect(Rect::At(x, y, kTile, kTile), {0, 0, contentWidth, contentHeight});
        canvas.FillRect(tile, TileColour(x / kTile, y / kTile));
        canvas.FillRect({x, y, x + 1, y + 1}, kBlack);
        canvas.PushClip(tile);
        canvas.Line({x, y + 3}, {x + kTile, y + 7}, kWhite);
        canvas.PopClip();
      }
    }
  }

 public:
  Colour TileColour(int column, int row) const {
    return Rgb((column * 37 + shade) % 256, (row * 53) % 256, (column * 11 + row * 7) % 256);
  }
};

}  // namespace orvane::testing
