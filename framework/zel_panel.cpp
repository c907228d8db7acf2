#include "framework/zel_panel.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace orvane {

namespace {

constexpr int kFrame = 1;
constexpr int kWheelArrowSteps = 3;  // one notch of a wheel
constexpr double kAcceleration = 1.8;
constexpr double kLargestStep = 1'000'000;  // keeps the step an int, whatever the sizes are

// A pen step along one axis, scaled by content over client, or the raw one where that is larger.
int AcceleratedStep(int raw, int content, int client) {
  if (content <= 0 || client <= 0) return raw;
  const double scaled = static_cast<double>(raw) * content * kAcceleration / client;
  const int step = static_cast<int>(std::clamp(scaled, -kLargestStep, kLargestStep));
  return std::abs(step) > std::abs(raw) ? step : raw;
}

int Scrolled(int scroll, int delta, int content, int usable, int margin) {
  const long long limit = static_cast<long long>(content) - usable + margin;
  long long moved = scroll;
  if (scroll <= limit) {
    moved = std::min(moved + delta, limit);
  } else if (delta < 0) {
    moved += delta;
  }
  return static_cast<int>(std::clamp<long long>(moved, 0, std::numeric_limits<int>::max()));
}

}  // namespace

ZelPanel::ZelPanel(Shell& shell, WindowHandle parent, bool topLevel)
    : ZelWindow(shell, parent, topLevel), buffer_(shell.GetDevice()) {}

Result ZelPanel::WndProc(WindowHandle, std::uint32_t message, WParam w, LParam l) {
  switch (message) {
    case WM_PAINT:
      PaintWindow();
      return 0;
    case WM_LBUTTONDOWN:
      OnPenDown(UnpackPoint(l));
      return 0;
    case WM_MOUSEMOVE:
      OnPenMove(UnpackPoint(l));
      return 0;
    case WM_LBUTTONUP:
      OnPenUp(UnpackPoint(l));
      return 0;
    case WM_KEYDOWN:
      OnKeyDown(static_cast<int>(w));
      return 0;
    case WM_MOUSEWHEEL: {
      const int step = -WheelNotches(w) * kWheelArrowSteps * arrowStep;
      WheelSideways(w) ? ScrollBy(step, 0) : ScrollBy(0, step);
      return 0;
    }
    case WM_DISPLAYCHANGE:
      ResetBuffer();
      Redraw();
      return OnMessage(message, w, l);
    default:
      return OnMessage(message, w, l);
  }
}

Size ZelPanel::UsableSize() const {
  const Size client = ClientSize();
  const int frame = bordered ? 2 * kFrame : 0;
  return {client.width - frame, client.height - frame};
}

Size ZelPanel::BufferedSize() const {
  return {std::min(bufferWidth, contentWidth), std::min(bufferHeight, contentHeight)};
}

Rect ZelPanel::VisibleContent() const { return Rect::At({scrollX, scrollY}, UsableSize()); }

Point ZelPanel::ContentPoint(Point client) const {
  const int frame = bordered ? kFrame : 0;
  return {client.x - frame + scrollX, client.y - frame + scrollY};
}

PanelBuffer::Painter ZelPanel::Painter() {
  return [this](Canvas& canvas, const Rect& part) {
    Paint(canvas, part.left, part.top, part.right, part.bottom);
  };
}

void ZelPanel::ResetBuffer() {
  buffer_.Reset();
  if (!privateBuffer) {
    bufferWidth = UsableSize().width;
    bufferHeight = UsableSize().height;
  }
  stale_ = true;
}

// While the panel does not show, the painting waits until it does.
void ZelPanel::Redraw() {
  stale_ = true;
  ZelWindow::Redraw();
}

void ZelPanel::RedrawRect(int left, int top, int right, int bottom) {
  if (privateBuffer && !stale_) buffer_.RenderRect({left, top, right, bottom}, Painter());
  Invalidate();
}

void ZelPanel::PaintWindow() {
  Canvas& canvas = GetDevice().WindowCanvas(Handle());
  const int frame = bordered ? kFrame : 0;
  const Rect visible = VisibleContent();
  const Rect inside = Rect::At({frame, frame}, visible.GetSize());
  if (privateBuffer) {
    if (stale_) {
      buffer_.Render(BufferedSize(), visible, Painter());
    } else {
      buffer_.Hold(visible, Painter());
    }
    stale_ = false;
    canvas.PushClip(inside);
    FillUncovered(canvas);
    buffer_.Copy(canvas, visible, inside.TopLeft());
    canvas.PopClip();
  } else {
    Bitmap& shared = GetShell().BackBuffer();
    Canvas& back = shared.GetCanvas();
    back.SetOrigin({-scrollX, -scrollY});
    back.PushClip(visible);
    back.FillRect(visible, background);
    Paint(back, visible.left, visible.top, visible.right, visible.bottom);
    back.PopClip();
    if (const Surface* surface = shared.GetSurface()) {
      canvas.CopySurface(*surface, Rect::At({0, 0}, visible.GetSize()), inside.TopLeft());
    }
  }
  if (bordered) canvas.FrameRect(Rect::At({0, 0}, ClientSize()), kBlack);
  GetDevice().Validate(Handle());
}

// The background to the right of and below the content that the buffer has.
void ZelPanel::FillUncovered(Canvas& canvas) const {
  const int frame = bordered ? kFrame : 0;
  const Size size = UsableSize();
  const int right = std::clamp(BufferedSize().width - scrollX, 0, std::max(size.width, 0));
  const int bottom = std::clamp(BufferedSize().height - scrollY, 0, std::max(size.height, 0));
  canvas.FillRect(Rect{right, 0, size.width, size.height}.Offset(frame, frame), background);
  canvas.FillRect(Rect{0, bottom, right, size.height}.Offset(frame, frame), background);
}

void ZelPanel::OnPenDown(Point point) {
  GetDevice().ActivateWindow(Handle());
  GetDevice().SetFocus(Handle());
  dragging = false;
  stroke_ = true;
  penDown = penPrevious = penCurrent = point;
  OnMessage(PN_PENDOWN, 0, 0);
  GetDevice().SetCapture(Handle());
}

// A panel that was hidden during a stroke has lost the pen, and with it the stroke.
void ZelPanel::OnPenMove(Point point) {
  stroke_ = stroke_ && GetDevice().Capture() == Handle();
  if (!stroke_) return;
  penCurrent = point;
  OnMessage(PN_PENMOVE, 0, 0);
  const bool moved =
      std::abs(point.x - penDown.x) >= kDragThreshold || std::abs(point.y - penDown.y) >= kDragThreshold;
  if (!dragging && moved) {
    dragging = true;
    panelScrolls = OnMessage(PN_DRAGQUERY, 0, 0) == 0;
  }
  if (dragging) {
    OnMessage(PN_DRAG, 0, 0);
    if (panelScrolls) ScrollByPen();
  }
  penPrevious = penCurrent;
}

void ZelPanel::ScrollByPen() {
  int dx = penPrevious.x - penCurrent.x;
  int dy = penPrevious.y - penCurrent.y;
  if (acceleratedDrag) {
    const Size client = ClientSize();
    dx = AcceleratedStep(dx, contentWidth, client.width);
    dy = AcceleratedStep(dy, contentHeight, client.height);
  }
  ScrollBy(dx, dy);
}

// A pen that went down elsewhere and is lifted here is no stroke of this panel.
void ZelPanel::OnPenUp(Point point) {
  const bool own = stroke_ && GetDevice().Capture() == Handle();
  stroke_ = false;
  if (!own) return;
  penCurrent = point;
  OnMessage(PN_PENUP, 0, 0);
  OnMessage(dragging ? PN_DRAGEND : PN_TAP, 0, 0);
  if (invalidateOnPenUp) Invalidate();
  penDown = penPrevious = penCurrent = {};
  dragging = false;
  if (GetDevice().Capture() == Handle()) GetDevice().ReleaseCapture();
}

void ZelPanel::OnKeyDown(int key) {
  OnMessage(PN_KEYDOWN, static_cast<WParam>(key), 0);
  switch (key) {
    case VK_LEFT:
      return ScrollBy(-arrowStep, 0);
    case VK_RIGHT:
      return ScrollBy(arrowStep, 0);
    case VK_UP:
      return ScrollBy(0, -arrowStep);
    case VK_DOWN:
      return ScrollBy(0, arrowStep);
    default:
      return;
  }
}

void ZelPanel::ScrollBy(int dx, int dy) {
  const Size usable = UsableSize();
  scrollX = Scrolled(scrollX, dx, contentWidth, usable.width, marginX);
  scrollY = Scrolled(scrollY, dy, contentHeight, usable.height, marginY);
  Invalidate();
}

WindowReport ZelPanel::Describe() const {
  WindowReport report = ZelWindow::Describe();
  report.scroll = Point{scrollX, scrollY};
  report.content = Size{contentWidth, contentHeight};
  return report;
}

}  // namespace orvane
