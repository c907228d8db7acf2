// Notes what a screen asks other screens for.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tools/navigator.h"

namespace orvane::testing {

class RecordingNavigator : public Navigator {
 public:
  void SelectElement(int element) override { calls.push_back("select " + std::to_string(element)); }
  int SelectedElement() const override { return -1; }
  void ShowElement(int element) override {
    calls.push_back("show " + std::to_string(element));
    if (whenShown) whenShown();
  }

  std::vector<std::string> calls;
  std::function<void()> whenShown;
};

}  // namespace orvane::testing
