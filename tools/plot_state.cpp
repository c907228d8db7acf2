#include "tools/plot_state.h"

namespace orvane {

namespace {

bool IsNonZero(const PlotRange& range) { return range.low != 0 && range.high != 0; }

}  // namespace

PlotState::PlotState(const ElementsDatabase& elements, MessageReporter& reporter,
                     const PlotSettings& settings)
    : elements_(elements), reporter_(reporter), look_(settings.current.Look()), presets_(settings.presets) {
  TakeFilter(xFilter_, settings.current.xFilter);
  TakeFilter(yFilter_, settings.current.yFilter);
  Rebuild();
  if (settings.hasCurrent) plot_.SetView(settings.current.view);
}

PlotSetup PlotState::Setup() const { return {look_, xFilter_.text, yFilter_.text, plot_.View()}; }

void PlotState::Toggle(bool PlotLook::*flag) {
  look_.*flag = !(look_.*flag);
  currentPreset_ = kNoPreset;
}

void PlotState::ToggleLabel(int element) {
  bool& label = look_.labels[static_cast<std::size_t>(element)];
  label = !label;
  currentPreset_ = kNoPreset;
}

void PlotState::ToggleAllLabels() {
  ToggleLabels(plot_, look_.labels);
  currentPreset_ = kNoPreset;
}

void PlotState::Fit() {
  plot_.Fit();
  currentPreset_ = kNoPreset;
}

bool PlotState::SetAxisFilter(bool isXAxis, TextView text) {
  const FilterError error = SetFilter(isXAxis ? xFilter_ : yFilter_, text);
  Report(error);
  return error == FilterError::kNone;
}

void PlotState::SetAxisProperty(bool isXAxis, const PropertyAddress& address) {
  (isXAxis ? look_.x : look_.y) = address;
  currentPreset_ = kNoPreset;
  Rebuild();
}

void PlotState::SaveAsPreset(int preset) { presets_[static_cast<std::size_t>(preset)] = Setup(); }

void PlotState::LoadPreset(int preset) {
  const PlotSetup& setup = presets_[static_cast<std::size_t>(preset)];
  currentPreset_ = preset;
  look_ = setup.Look();
  TakeFilter(xFilter_, setup.xFilter);
  TakeFilter(yFilter_, setup.yFilter);
  Rebuild();
  const PlotView automatic = plot_.Automatic();
  if (IsNonZero(automatic.x) && IsNonZero(automatic.y)) plot_.SetView(setup.view);
}

// Unlike an axis that is set up, stored texts are the user's even when they cannot be read.
void PlotState::TakeFilter(ValueFilter& filter, TextView text) {
  filter.text = text;
  Report(ParseFilter(text, filter.ranges));
}

void PlotState::Report(FilterError error) {
  if (error == FilterError::kNone) return;
  reporter_.Report(FilterMessage(error), kProgramName, MessageIcon::kExclamation);
}

void PlotState::Rebuild() {
  const ElementProperty* x = FindProperty(elements_, look_.x);
  const ElementProperty* y = FindProperty(elements_, look_.y);
  std::array<PlotTexts, kPlotElements> texts;
  for (int i = 0; i < kPlotElements; ++i) {
    const bool hasValues = x != nullptr && y != nullptr && x->HasValue(i) && y->HasValue(i);
    texts[static_cast<std::size_t>(i)] = {hasValues, ValueOf(x, i), ValueOf(y, i)};
  }
  plot_.Build(texts, xFilter_, yFilter_);
}

}  // namespace orvane
