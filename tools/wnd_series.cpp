#include "tools/wnd_series.h"

#include "resources/help_pages.h"

namespace orvane {

namespace {

constexpr int kWidth = 240;
constexpr int kHeight = 268;

constexpr Size kCorner{8, 8};
constexpr int kLabelTop = 2;  // below the top of its cell
constexpr Colour kHydrogenFill = Rgb(204, 255, 222);

void DrawColumnLines(Canvas& canvas, const Rect& band, int cellWidth) {
  for (int x = band.left + cellWidth; x < band.right; x += cellWidth) {
    canvas.Line({x, band.top}, {x, band.bottom}, kBlack);
  }
}

}  // namespace

wnd_series::wnd_series(Shell& shell, Navigator& navigator)
    : ZelToolWindow(shell, shell.MainWindow(), true), navigator_(navigator) {
  SetStyle(0, 0);
  Move(0, 0, kWidth, kHeight);
  SetText(u"Electrochemical series");
  CreateFontFamily(GetDevice(), Handle(), title_, u"Tahoma", 10, false, false);
  CreateFontFamily(GetDevice(), Handle(), labels_, u"Tahoma", 10, false, false);
}

Result wnd_series::OnMessage(std::uint32_t message, WParam w, LParam l) {
  switch (message) {
    case WM_SETFOCUS:
      GetShell().SetCurrentTool(Handle());
      return 0;
    case WM_LBUTTONDOWN:
      GetDevice().ActivateWindow(Handle());
      GetDevice().SetFocus(Handle());
      return 0;
    case WM_LBUTTONUP:
      OnPenUp(UnpackPoint(l));
      return 0;
    case kBeforeShow:
      OnBeforeShow();
      return 0;
    default:
      return ZelToolWindow::OnMessage(message, w, l);
  }
}

void wnd_series::OnBeforeShow() {
  GetDevice().Panel().Request(false);
  GetShell().SetHelpTopic(kHelpSeries);
  GetShell().SetCurrentTool(Handle());
}

// Where the pen is lifted counts, so that a slip can be corrected by moving on.
void wnd_series::OnPenUp(Point point) {
  if (const SeriesCell* cell = SeriesCellAt(point)) navigator_.ShowElement(cell->number - 1);
}

void wnd_series::Paint(Canvas& canvas, int, int) {
  GetShell().DrawTitleStrip(canvas, title_, u"Electrochemical series", true, true);
  DrawUpperBand(canvas);
  canvas.RoundRect(kHydrogenBand, kCorner, kBlack, kHydrogenFill);
  DrawLowerBand(canvas);
  for (const SeriesCell& cell : SeriesCells()) DrawLabel(canvas, cell);
}

void wnd_series::DrawUpperBand(Canvas& canvas) const {
  canvas.RoundRect(kUpperBand, kCorner, kBlack, kWhite);
  canvas.Line({kUpperBand.left, kUpperRowBoundary}, {kUpperBand.right, kUpperRowBoundary}, kBlack);
  DrawColumnLines(canvas, kUpperBand, kUpperCellWidth);
}

void wnd_series::DrawLowerBand(Canvas& canvas) const {
  canvas.RoundRect(kLowerBand, kCorner, kBlack, kWhite);
  DrawColumnLines(canvas, kLowerBand, kLowerCellWidth);
}

void wnd_series::DrawLabel(Canvas& canvas, const SeriesCell& cell) const {
  TextEngine& engine = GetShell().Engine();
  engine.SelectFontFamily(&labels_);
  engine.SetTextColour(kBlack);
  const int centre = cell.rect.left + (cell.rect.Width() + 1) / 2;
  engine.DrawText(canvas, cell.label, centre - engine.MeasureText(cell.label).width / 2,
                  cell.rect.top + kLabelTop);
}

}  // namespace orvane
