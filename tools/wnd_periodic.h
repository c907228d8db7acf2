// The periodic table: 112 coloured cells in a short or a long form. This is the tool's frame: menu-bar
// buttons, commands and settings. The table itself is drawn and tapped in its panel.
#pragma once

#include "framework/zel_tool_window.h"
#include "tools/periodic_panel.h"
#include "tools/periodic_settings.h"

namespace orvane {

class wnd_periodic : public ZelToolWindow {
 public:
  // Reads its settings; writes them when it is destroyed.
  wnd_periodic(Shell& shell, const ElementsDatabase& elements, Navigator& navigator);
  ~wnd_periodic() override;

  // ZelWindow
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override;
  std::string ClassName() const override { return "wnd_periodic"; }

  const PeriodicSettings& Settings() const { return settings_; }
  const PeriodicPresets& Presets() const { return presets_; }
  PeriodicPanel& Panel() { return *panel_; }

 protected:
  // ZelToolWindow: the panel covers the whole tool.
  void Paint(Canvas& canvas, int width, int height) override;
  void OnCommand(int command) override;

 private:
  void OnBeforeShow();
  void OpenSizeMenu();
  void OpenShowMenu();
  void OpenPresetsMenu();
  void SetMode(bool wide);
  void Toggle(bool& shown);
  void SetColouring(bool byFamily);
  void SaveToPreset(int preset);
  void LoadFromPreset(int preset);
  void StartOver();  // scrolls back to the top left and lays the table out

  PeriodicSettings settings_;
  PeriodicPresets presets_;
  std::unique_ptr<PeriodicPanel> panel_;
};

}  // namespace orvane
