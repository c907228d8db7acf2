#include "tools/plot_painter.h"

namespace orvane {

namespace {

constexpr Colour kPointOutline = kBlack;
constexpr Colour kPointFill = Rgb(255, 0, 0);
constexpr Colour kLineColour = Rgb(0, 0, 255);
constexpr Colour kLabelColour = Rgb(0, 128, 0);
constexpr Colour kNameColour = Rgb(128, 0, 0);

constexpr int kNamePoints = 8;
constexpr Rect kArea = Rect::At(0, 0, kPlotWidth, kPlotHeight);

// A point is a circle of 4 × 4 about its place; its label stands on the circle. Its middle is a corner of the
// pixel grid, while lines run through the middle of pixels: half a logical pixel apart, at every scale alike,
// so that the picture shows the same at each.
constexpr int kRadius = 2;
// A point is drawn when this box about its place touches the area. It holds the circle and most of a label: a
// label that only reaches in from the side comes with its point.
constexpr Rect kPointBox{-7, -17, 7, 2};

// Where the X property's name ends and the Y property's name begins.
constexpr Point kXNameEnd{236, 266};
constexpr Point kYNameStart{4, 1};

}  // namespace

PlotPainter::PlotPainter(Shell& shell, WindowHandle owner, const ElementsDatabase& elements)
    : engine_(shell.Engine()), elements_(elements) {
  CreateFontFamily(shell.GetDevice(), owner, small_, u"Tahoma", kNamePoints, false, false);
  engine_.SelectFontFamily(&small_);
  for (int i = 0; i < kPlotElements; ++i) {
    labelSizes_[static_cast<std::size_t>(i)] = engine_.MeasureText(ValueOf(elements_.Symbol(), i));
  }
  engine_.SelectFontFamily(nullptr);
}

// In element order: a line starts on top of its first point and ends below its second.
void PlotPainter::Paint(Canvas& canvas, const PlotState& state) const {
  const Plot& plot = state.GetPlot();
  const PlotLook& look = state.Look();
  canvas.FillRect(kArea, kWhite);
  engine_.SelectFontFamily(&small_);
  engine_.SetTextColour(kLabelColour);
  for (int i = 0; i < kPlotElements; ++i) {
    if (!plot.At(i).valid) continue;
    const Point at = plot.PlaceOf(i);
    if (look.showPoints && !Intersect(kPointBox.Offset(at.x, at.y), kArea).Empty()) {
      PaintPoint(canvas, at);
      if (look.labels[static_cast<std::size_t>(i)]) PaintLabel(canvas, i, at);
    }
    if (!look.showLines) continue;
    if (const std::optional<PlotLine> line = plot.LineFrom(i)) canvas.Line(line->from, line->to, kLineColour);
  }
  if (look.showAxes) PaintAxisNames(canvas, state);
}

void PlotPainter::PaintPoint(Canvas& canvas, Point at) const {
  canvas.Ellipse({at.x - kRadius, at.y - kRadius, at.x + kRadius, at.y + kRadius}, kPointOutline, kPointFill);
}

void PlotPainter::PaintLabel(Canvas& canvas, int element, Point at) const {
  const Size size = labelSizes_[static_cast<std::size_t>(element)];
  engine_.DrawText(canvas, ValueOf(elements_.Symbol(), element), at.x - size.width / 2,
                   at.y - kRadius - size.height);
}

void PlotPainter::PaintAxisNames(Canvas& canvas, const PlotState& state) const {
  engine_.SetTextColour(kNameColour);
  if (const ElementProperty* x = FindProperty(elements_, state.Look().x)) {
    const Size size = engine_.MeasureText(x->Name());
    engine_.DrawText(canvas, x->Name(), kXNameEnd.x - size.width, kXNameEnd.y - size.height);
  }
  if (const ElementProperty* y = FindProperty(elements_, state.Look().y)) {
    engine_.DrawText(canvas, y->Name(), kYNameStart.x, kYNameStart.y);
  }
}

}  // namespace orvane
