// Elements for plots, as texts.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>

#include "chemistry/plot.h"

namespace orvane::testing {

// The texts of a plot's elements, by index.
class PlotElements {
 public:
  void Set(int element, TextView x, TextView y) {
    const auto i = static_cast<std::size_t>(element);
    x_[i] = x;
    y_[i] = y;
    has_[i] = true;
  }
  void Build(Plot& plot, TextView xFilter = u"", TextView yFilter = u"") const {
    ValueFilter x;
    ValueFilter y;
    EXPECT_EQ(SetFilter(x, xFilter), FilterError::kNone);
    EXPECT_EQ(SetFilter(y, yFilter), FilterError::kNone);
    std::array<PlotTexts, kPlotElements> texts;
    for (std::size_t i = 0; i < texts.size(); ++i) texts[i] = {has_[i], x_[i], y_[i]};
    plot.Build(texts, x, y);
  }

 private:
  std::array<Text, kPlotElements> x_;
  std::array<Text, kPlotElements> y_;
  std::array<bool, kPlotElements> has_{};
};

inline void ExpectRange(const PlotRange& actual, const PlotRange& expected) {
  EXPECT_DOUBLE_EQ(actual.low, expected.low);
  EXPECT_DOUBLE_EQ(actual.high, expected.high);
}

// The values of plot_oracle.py; a sign counts only behind its digits.
inline PlotElements OracleElements() {
  PlotElements elements;
  for (int i = 0; i < kPlotElements; ++i) {
    if (i % 9 == 4) continue;
    const int halves = (i * 37 % 50) * 8 + i % 3 - 120;
    Text y = DecimalText(std::abs(halves) / 2) + (halves % 2 == 0 ? u".0" : u".5");
    if (halves < 0) y += u'-';
    elements.Set(i, DecimalText(i + 1), y);
  }
  return elements;
}

}  // namespace orvane::testing
