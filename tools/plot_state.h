// The quick plot without its window: the current setup with its filters, the presets, and the plot they give.
#pragma once

#include "base/message_reporter.h"
#include "tools/plot_settings.h"

namespace orvane {

class PlotState {
 public:
  // Errors of filters go to the reporter, which outlives the state; so does the database.
  PlotState(const ElementsDatabase& elements, MessageReporter& reporter, const PlotSettings& settings);

  const PlotLook& Look() const { return look_; }
  const Plot& GetPlot() const { return plot_; }
  const PlotPresets& Presets() const { return presets_; }
  // The preset that was loaded, while nothing has been changed since; −1 for none.
  int CurrentPreset() const { return currentPreset_; }
  TextView FilterText(bool isXAxis) const { return (isXAxis ? xFilter_ : yFilter_).text; }
  const PropertyAddress& AxisProperty(bool isXAxis) const { return isXAxis ? look_.x : look_.y; }
  // The current setup as it is stored.
  PlotSetup Setup() const;

  // Each of these forgets which preset is current, where it changes something.
  void Toggle(bool PlotLook::*flag);
  void ToggleLabel(int element);
  void ToggleAllLabels();
  // Changes the view by one of the plot's own changes; false when that changed nothing.
  template <class Change>
  bool ChangeView(const Change& change) {
    if (!change(plot_)) return false;
    currentPreset_ = kNoPreset;
    return true;
  }
  void Fit();

  // Reports a text that is no filter, and then changes nothing. The plot is made anew by SetAxisProperty.
  bool SetAxisFilter(bool isXAxis, TextView text);
  void SetAxisProperty(bool isXAxis, const PropertyAddress& address);

  // Keeps what is shown now, with its view, as that preset, 0 to 2. None becomes the current one by it.
  void SaveAsPreset(int preset);
  // Takes over everything of the preset. A filter text that cannot be read is taken over too and reported,
  // and the ranges of the last good one stay. The preset's view is used only when no bound of the automatic
  // view is 0: a plot that begins at 0 always shows all of itself.
  void LoadPreset(int preset);

 private:
  static constexpr int kNoPreset = -1;

  void TakeFilter(ValueFilter& filter, TextView text);
  void Report(FilterError error);
  void Rebuild();

  const ElementsDatabase& elements_;
  MessageReporter& reporter_;
  PlotLook look_;
  ValueFilter xFilter_;
  ValueFilter yFilter_;
  Plot plot_;
  PlotPresets presets_;
  int currentPreset_ = kNoPreset;
};

}  // namespace orvane
