#include "tools/wnd_plot.h"

#include <algorithm>
#include <cstdlib>

#include "data/zel_registry.h"
#include "resources/commands.h"
#include "resources/help_pages.h"
#include "resources/menus.h"

namespace orvane {

namespace {

// Menu-bar buttons: command, cell of the bar images.
constexpr int kPanButton = 8120;
constexpr int kZoomButton = 8121;
constexpr int kFitButton = 8122;
constexpr int kSettingsButton = 8123;
constexpr int kPresetsButton = 8124;
constexpr int kPanImage = 7;
constexpr int kZoomImage = 8;
constexpr int kFitImage = 9;
constexpr int kSettingsImage = 10;
constexpr int kPresetsImage = 11;

// The screen points at which the menus' bottom left corners stand.
constexpr Point kSettingsAnchor{110, 295};
constexpr Point kPresetsAnchor{130, 295};

constexpr Colour kRubberBand = Rgb(144, 144, 144);
// A pen that has moved this far along either axis drags.
constexpr int kDragThreshold = 9;
constexpr int kArrowStep = 30;

}  // namespace

wnd_plot::wnd_plot(Shell& shell, const ElementsDatabase& elements, Navigator& navigator)
    : ZelToolWindow(shell, shell.MainWindow(), true),
      navigator_(navigator),
      reporter_(shell),
      state_(elements, reporter_, ReadPlotSettings(shell.Settings(), elements)),
      painter_(shell, Handle(), elements) {
  SetStyle(0, 0);
  Move(0, 0, kPlotWidth, kPlotHeight);
  SetText(u"Quick plot");
}

wnd_plot::~wnd_plot() { WritePlotSettings(GetShell().Settings(), state_.Setup(), state_.Presets()); }

Result wnd_plot::OnMessage(std::uint32_t message, WParam w, LParam l) {
  switch (message) {
    case kBeforeShow:
      OnBeforeShow();
      return 0;
    case kBeforeHide:
      EndStroke();
      return 0;
    case WM_SETFOCUS:
      OnFocus();
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
    case WM_MOUSEWHEEL:
      OnWheel(UnpackPoint(l), WheelNotches(w), WheelSideways(w));
      return 0;
    case WM_KEYDOWN:
      if (OnKey(static_cast<int>(w))) return 0;
      break;
    case WM_CHAR:
      if (OnCharacter(static_cast<Char>(w))) return 0;
      break;
    default:
      break;
  }
  return ZelToolWindow::OnMessage(message, w, l);
}

void wnd_plot::OnBeforeShow() {
  Shell& shell = GetShell();
  GetDevice().Panel().Request(false);
  const auto pressed = [this](PenMode mode) {
    return TBSTATE_ENABLED | (mode_ == mode ? TBSTATE_CHECKED : 0);
  };
  shell.AddBarButton(kPanButton, kPanImage, -1, pressed(PenMode::kPan), ButtonStyle::kPush);
  shell.AddBarButton(kZoomButton, kZoomImage, -1, pressed(PenMode::kZoom), ButtonStyle::kPush);
  shell.AddBarButton(kFitButton, kFitImage, -1, TBSTATE_ENABLED, ButtonStyle::kPush);
  shell.AddBarButton(0, 0, -1, TBSTATE_ENABLED, ButtonStyle::kSeparator);
  shell.AddBarButton(kSettingsButton, kSettingsImage, -1, TBSTATE_ENABLED, ButtonStyle::kDropDown);
  shell.AddBarButton(kPresetsButton, kPresetsImage, -1, TBSTATE_ENABLED, ButtonStyle::kDropDown);
  OnFocus();
}

// Also when a tool that stood over the plot has gone: that one had a topic of its own.
void wnd_plot::OnFocus() {
  GetShell().SetHelpTopic(kHelpPlot);
  GetShell().SetCurrentTool(Handle());
}

void wnd_plot::OnCommand(int command) {
  switch (command) {
    case kPanButton:
      return SetMode(PenMode::kPan);
    case kZoomButton:
      return SetMode(PenMode::kZoom);
    case kFitButton:
      return Fit();
    case kSettingsButton:
      return OpenSettingsMenu();
    case kPresetsButton:
      return OpenPresetsMenu();
    case kCommandXAxis:
    case kCommandYAxis:
      return SetUpAxis(command == kCommandXAxis);
    case kCommandShowLines:
      return Toggle(&PlotLook::showLines);
    case kCommandShowPoints:
      return Toggle(&PlotLook::showPoints);
    case kCommandLabelAxes:
      return Toggle(&PlotLook::showAxes);
    case kCommandToggleLabels:
      return ToggleAllLabels();
    case kCommandFirstSave:
    case kCommandFirstSave + 1:
    case kCommandFirstSave + 2:
      return SavePreset(command - kCommandFirstSave);
    case kCommandFirstLoad:
    case kCommandFirstLoad + 1:
    case kCommandFirstLoad + 2:
      return LoadPreset(command - kCommandFirstLoad);
    default:
      return;
  }
}

void wnd_plot::OnPenDown(Point point) {
  GetDevice().SetCapture(Handle());
  stroke_ = Stroke{mode_, GetDevice().IsKeyDown(VK_ACTION), false, point, point, point};
}

void wnd_plot::OnPenMove(Point point) {
  if (!stroke_) return;
  Stroke& stroke = *stroke_;
  stroke.current = point;
  stroke.dragging = stroke.dragging || std::abs(point.x - stroke.start.x) >= kDragThreshold ||
                    std::abs(point.y - stroke.start.y) >= kDragThreshold;
  if (stroke.dragging && stroke.Pans()) {
    // The plot follows the pen, so the origin goes the other way.
    const int dx = stroke.previous.x - point.x;
    const int dy = stroke.previous.y - point.y;
    ChangeView([dx, dy](Plot& plot) { return plot.Pan(dx, dy); });
  } else if (stroke.dragging) {
    Invalidate();
  }
  stroke.previous = point;
}

void wnd_plot::OnPenUp(Point point) {
  if (!stroke_) return;
  OnPenMove(point);
  const Stroke stroke = *stroke_;
  EndStroke();
  if (stroke.dragging) {
    FinishDrag(stroke);
  } else {
    FinishTap(stroke);
  }
}

void wnd_plot::EndStroke() {
  if (!stroke_) return;
  stroke_.reset();
  if (GetDevice().Capture() == Handle()) GetDevice().ReleaseCapture();
  Invalidate();
}

void wnd_plot::FinishDrag(const Stroke& stroke) {
  if (stroke.Pans()) return;
  const bool widens = stroke.mode == PenMode::kZoom && stroke.withKey;
  ChangeView([&stroke, widens](Plot& plot) {
    return widens ? plot.ZoomOutInto(stroke.start, stroke.current)
                  : plot.ZoomTo(stroke.start, stroke.current);
  });
}

void wnd_plot::FinishTap(const Stroke& stroke) {
  if (stroke.mode == PenMode::kZoom) {
    ChangeView([&stroke](Plot& plot) { return stroke.withKey ? plot.ZoomOut() : plot.ZoomIn(); });
  } else if (stroke.withKey) {
    ShowElementAt(stroke.current);
  } else {
    ToggleLabelAt(stroke.current);
  }
}

void wnd_plot::ToggleLabelAt(Point point) {
  const int element = state_.GetPlot().ElementAt(point);
  if (element < 0) return;
  state_.ToggleLabel(element);
  Invalidate();
}

void wnd_plot::ShowElementAt(Point point) {
  const int element = state_.GetPlot().ElementAt(point);
  if (element >= 0) navigator_.ShowElement(element);
}

// Sideways it pans as the arrows do.
void wnd_plot::OnWheel(Point point, int notches, bool sideways) {
  if (sideways) {
    ChangeView([notches](Plot& plot) { return plot.Pan(-notches * kArrowStep, 0); });
    return;
  }
  for (int i = 0; i < std::abs(notches); ++i) {
    ChangeView([point, notches](Plot& plot) { return plot.ZoomAround(point, notches > 0); });
  }
}

bool wnd_plot::OnKey(int key) {
  const auto pan = [this](int dx, int dy) {
    ChangeView([dx, dy](Plot& plot) { return plot.Pan(dx, dy); });
    return true;
  };
  switch (key) {
    case VK_LEFT:
      return pan(-kArrowStep, 0);
    case VK_RIGHT:
      return pan(kArrowStep, 0);
    case VK_UP:
      return pan(0, -kArrowStep);
    case VK_DOWN:
      return pan(0, kArrowStep);
    case VK_ESCAPE:
      if (!stroke_) return false;
      EndStroke();
      return true;
    default:
      return false;
  }
}

// "=" is the key of "+" without Shift on most keyboards.
bool wnd_plot::OnCharacter(Char character) {
  switch (character) {
    case u'+':
    case u'=':
      ChangeView([](Plot& plot) { return plot.ZoomIn(); });
      return true;
    case u'-':
      ChangeView([](Plot& plot) { return plot.ZoomOut(); });
      return true;
    case u'0':
      Fit();
      return true;
    default:
      return false;
  }
}

void wnd_plot::SetMode(PenMode mode) {
  mode_ = mode;
  GetShell().CheckBarButton(kPanButton, mode == PenMode::kPan);
  GetShell().CheckBarButton(kZoomButton, mode == PenMode::kZoom);
}

void wnd_plot::OpenSettingsMenu() {
  Menu& menu = GetShell().PopupMenu(kPlotSettingsMenu);
  menu.Check(kCommandShowLines, state_.Look().showLines);
  menu.Check(kCommandShowPoints, state_.Look().showPoints);
  menu.Check(kCommandLabelAxes, state_.Look().showAxes);
  GetDevice().Popups().Track(menu, kSettingsAnchor, Handle());
}

void wnd_plot::OpenPresetsMenu() {
  Menu& menu = GetShell().PopupMenu(kPresetsMenu);
  const int current = state_.CurrentPreset();
  menu.CheckRadio(kCommandFirstLoad, kCommandFirstLoad + kPlotPresets - 1,
                  current >= 0 ? kCommandFirstLoad + current : 0);
  GetDevice().Popups().Track(menu, kPresetsAnchor, Handle());
}

void wnd_plot::SetUpAxis(bool isXAxis) {
  AxisRequest request;
  request.isXAxis = isXAxis;
  request.filter = state_.FilterText(isXAxis);
  request.property = state_.AxisProperty(isXAxis);
  request.accept = [this, isXAxis](TextView filter, const std::optional<PropertyAddress>& property) {
    return AcceptAxis(isXAxis, filter, property);
  };
  navigator_.SetUpAxis(request);
}

bool wnd_plot::AcceptAxis(bool isXAxis, TextView filter, const std::optional<PropertyAddress>& property) {
  if (!state_.SetAxisFilter(isXAxis, filter)) return false;
  // Without a choice the axis keeps its property.
  state_.SetAxisProperty(isXAxis, property.value_or(state_.AxisProperty(isXAxis)));
  Invalidate();
  return true;
}

void wnd_plot::Fit() {
  state_.Fit();
  Invalidate();
}

void wnd_plot::Toggle(bool PlotLook::*flag) {
  state_.Toggle(flag);
  Invalidate();
}

void wnd_plot::ToggleAllLabels() {
  state_.ToggleAllLabels();
  Invalidate();
}

// Nothing that shows has changed, so nothing is drawn.
void wnd_plot::SavePreset(int preset) {
  state_.SaveAsPreset(preset);
  GetShell().Tell(WithNumber(u"Plot settings saved as preset %d", preset + 1), MessageIcon::kInformation);
}

void wnd_plot::LoadPreset(int preset) {
  state_.LoadPreset(preset);
  Invalidate();
}

std::optional<Rect> wnd_plot::RubberBand() const {
  if (!stroke_ || !stroke_->dragging || stroke_->Pans()) return std::nullopt;
  const auto [left, right] = std::minmax(stroke_->start.x, stroke_->current.x);
  const auto [top, bottom] = std::minmax(stroke_->start.y, stroke_->current.y);
  return Rect{left, top, right, bottom};
}

void wnd_plot::Paint(Canvas& canvas, int, int) {
  painter_.Paint(canvas, state_);
  if (const std::optional<Rect> band = RubberBand()) canvas.FrameRect(*band, kRubberBand);
}

}  // namespace orvane
