// The quick plot: one property of the elements against another, zoomed and panned by pen. This is the tool's
// window: pen, keys, menu-bar buttons and commands. What is shown is its state's, drawn by its painter; the
// axis setup is another tool, asked for through the navigator.
#pragma once

#include <optional>

#include "framework/shell_reporter.h"
#include "framework/zel_tool_window.h"
#include "tools/navigator.h"
#include "tools/plot_painter.h"
#include "tools/plot_state.h"

namespace orvane {

class wnd_plot : public ZelToolWindow {
 public:
  // Reads its settings, which may report filters that cannot be read; writes them when it is destroyed.
  wnd_plot(Shell& shell, const ElementsDatabase& elements, Navigator& navigator);
  ~wnd_plot() override;

  // ZelWindow
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override;
  std::string ClassName() const override { return "wnd_plot"; }

  const PlotState& State() const { return state_; }
  // What the pen does, chosen by the first two buttons: pan and label, or zoom.
  enum class PenMode { kPan, kZoom };
  PenMode Mode() const { return mode_; }
  // The rectangle that the pen is drawing; nothing when it draws none.
  std::optional<Rect> RubberBand() const;

 protected:
  // ZelToolWindow
  void Paint(Canvas& canvas, int width, int height) override;
  void OnCommand(int command) override;

 private:
  // From the pen's way down to its way up. Until the pen has moved far enough it is a tap.
  struct Stroke {
    PenMode mode = PenMode::kPan;
    bool withKey = false;  // the action key was held when the pen went down
    bool dragging = false;
    Point start;
    Point previous;
    Point current;

    bool Pans() const { return mode == PenMode::kPan && !withKey; }
  };

  void OnBeforeShow();
  void OnFocus();

  void OnPenDown(Point point);
  void OnPenMove(Point point);
  void OnPenUp(Point point);
  void EndStroke();
  void FinishDrag(const Stroke& stroke);
  void FinishTap(const Stroke& stroke);
  void ToggleLabelAt(Point point);
  void ShowElementAt(Point point);

  void OnWheel(Point point, int notches, bool sideways);
  bool OnKey(int key);
  bool OnCharacter(Char character);

  void SetMode(PenMode mode);
  void OpenSettingsMenu();
  void OpenPresetsMenu();
  void SetUpAxis(bool isXAxis);
  bool AcceptAxis(bool isXAxis, TextView filter, const std::optional<PropertyAddress>& property);
  void Fit();
  void Toggle(bool PlotLook::*flag);
  void ToggleAllLabels();
  void SavePreset(int preset);
  void LoadPreset(int preset);
  template <class Change>
  void ChangeView(const Change& change) {
    if (state_.ChangeView(change)) Invalidate();
  }

  Navigator& navigator_;
  ShellReporter reporter_;  // of the state
  PlotState state_;
  PlotPainter painter_;
  PenMode mode_ = PenMode::kPan;
  std::optional<Stroke> stroke_;
};

}  // namespace orvane
