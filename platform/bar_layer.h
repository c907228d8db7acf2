// The bar at the bottom of the screen: the bars as data and the one that is drawn.
#pragma once

#include "platform/bar_set.h"
#include "platform/chrome.h"
#include "platform/device.h"

namespace orvane {

class MenuBarArea final : public BarLayer {
 public:
  explicit MenuBarArea(Device& device) : device_(device) {}

  // MenuBars: the calls
  BarHandle Create(WindowHandle owner, int flags, std::vector<BarButton> buttons) override;
  void Destroy(BarHandle bar) override;
  void Show(BarHandle bar, bool visible) override;
  void SetImages(BarHandle bar, std::vector<std::shared_ptr<const Image>> cells) override;
  void Insert(BarHandle bar, int position, BarButton button) override;
  void Delete(BarHandle bar, int position) override;
  void Enable(BarHandle bar, int id, bool enabled) override;
  void Check(BarHandle bar, int id, bool checked) override;
  int Count(BarHandle bar) const override;
  Menu* ButtonMenu(BarHandle bar, int position) override;

  // MenuBars: the drawn bar
  BarHandle Shown() const override { return bars_.Shown(); }
  std::vector<BarButtonPlace> Places() const override;
  bool HasPanelButton() const override;
  Rect PanelButtonRect() const override;
  bool Press(int id) override;
  bool PressPanelButton() override;
  bool OpenMenu(int position) override;
  void MenuClosed() override;
  void StepMenu(int step) override;

  // Layer
  std::string_view Name() const override { return "bar"; }
  bool Visible() const override { return true; }
  Rect Bounds() const override { return kBarArea; }
  void Paint(Canvas& canvas) override;
  void PenDown(Point point) override;
  void PenMove(Point point) override;
  void PenUp(Point point) override;
  bool Behind() const override { return device_.Panel().Visible() != panelShown_; }
  void CatchUp() override;

 private:
  static constexpr int kNone = -1;

  void Changed() { device_.LayerChanged(*this); }
  void SetState(BarHandle bar, int id, int bit, bool on, std::string_view call);
  void Trace(std::string_view call, BarHandle bar, int commandOrIndex, int value) const;
  void ForgetPressesFrom(BarHandle bar, int position);
  void DrawnBarMayHaveChanged(BarHandle before);

  std::vector<Rect> ButtonRects() const;  // of the drawn bar, on the screen
  const BarButton* ButtonAt(int position) const;
  int PositionAt(Point point) const;
  bool CanPress(int position) const;
  bool Reachable() const;
  bool LooksPressed(int position) const;
  void Activate(int position);

  void PaintButton(Canvas& canvas, int position, const Rect& rect) const;
  void PaintPicture(Canvas& canvas, const BarButton& button, const Rect& face, bool enabled) const;
  void PaintPanelButton(Canvas& canvas, const Rect& rect) const;

  Device& device_;
  BarSet bars_;
  int pressed_ = kNone;        // position under the pen that went down on it
  bool panelPressed_ = false;  // or it went down on the input-panel button
  bool inside_ = false;        // and is still there
  int opened_ = kNone;         // position whose menu is open
  bool panelShown_ = false;    // the input panel as last drawn
};

}  // namespace orvane
