// A scrolling panel: a child window that shows a part of a larger content. It turns the pen into
// notifications for the class above it and into scrolling.
#pragma once

#include "framework/panel_buffer.h"
#include "framework/zel_window.h"

namespace orvane {

// The panel's own notifications, given to its OnMessage. The derived class reads the recorded pen points.
inline constexpr std::uint32_t PN_DRAGQUERY = 0x80CC;  // a drag begins; non-zero: the panel shall not scroll
inline constexpr std::uint32_t PN_DRAG = 0x80CD;       // every move of a drag
inline constexpr std::uint32_t PN_DRAGEND = 0x80CE;    // pen up after a drag
inline constexpr std::uint32_t PN_TAP = 0x80CF;        // pen up without a drag
inline constexpr std::uint32_t PN_PENDOWN = 0x80D0;
inline constexpr std::uint32_t PN_PENMOVE = 0x80D1;
inline constexpr std::uint32_t PN_PENUP = 0x80D2;    // before PN_DRAGEND or PN_TAP
inline constexpr std::uint32_t PN_KEYDOWN = 0x80D3;  // wParam: key code; before the arrows scroll

// A stroke that moves less than this along both axes is a tap. Logical pixels.
inline constexpr int kDragThreshold = 5;

class ZelPanel : public ZelWindow {
 public:
  ZelPanel(Shell& shell, WindowHandle parent, bool topLevel);

  // What the owner sets, in logical pixels. After a change of privateBuffer: ResetBuffer; after a change of
  // the buffer's or the content's size: Redraw.
  int bufferWidth = 0;
  int bufferHeight = 0;
  int contentWidth = 100;
  int contentHeight = 100;
  int marginX = 0;  // room to scroll beyond the content
  int marginY = 0;
  int scrollX = 0;  // the content point at the panel's top left
  int scrollY = 0;
  bool invalidateOnPenUp = true;
  bool acceleratedDrag = true;
  bool privateBuffer = false;  // paint the content once and scroll without painting
  int arrowStep = 10;
  Colour background = Rgb(64, 64, 64);  // beyond the content
  bool bordered = false;                // a one-pixel frame; the content shows inside it

  Result WndProc(WindowHandle window, std::uint32_t message, WParam w, LParam l) override;
  // Paints the content anew, as far as it is kept, and shows it at once.
  void Redraw() override;
  // Paints a content rectangle anew.
  void RedrawRect(int left, int top, int right, int bottom);
  // Takes the buffer that the fields ask for: a private one of bufferWidth × bufferHeight, or the shared one,
  // in which case the buffer size becomes the client size, less the frame.
  void ResetBuffer();
  // Moves the view, within the content and its margins. A view that stands beyond the content because that
  // shrank can only move back.
  void ScrollBy(int dx, int dy);

  std::string ClassName() const override { return "ZelPanel"; }
  WindowReport Describe() const override;

 protected:
  // Draws the content rectangle given; the canvas is in content coordinates and clipped to it.
  virtual void Paint(Canvas& canvas, int left, int top, int right, int bottom) = 0;

  // The pen's points in client coordinates; all zero while the pen is up.
  Point penDown;
  Point penPrevious;
  Point penCurrent;
  bool dragging = false;
  bool panelScrolls = false;  // the present drag scrolls the panel

  // The content point that shows at a client point.
  Point ContentPoint(Point client) const;
  Size UsableSize() const;      // the client size, less the frame
  Rect VisibleContent() const;  // the content rectangle that shows; may reach beyond the content

 private:
  Size BufferedSize() const;  // how much of the content a private buffer has
  void PaintWindow();
  void FillUncovered(Canvas& canvas) const;
  void OnPenDown(Point point);
  void OnPenMove(Point point);
  void OnPenUp(Point point);
  void ScrollByPen();
  void OnKeyDown(int key);
  PanelBuffer::Painter Painter();

  PanelBuffer buffer_;
  bool stale_ = true;    // the private buffer must be painted before it shows
  bool stroke_ = false;  // the pen went down on this panel and has not been lifted
};

}  // namespace orvane
