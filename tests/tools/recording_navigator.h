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
  void SetUpAxis(const AxisRequest& request) override {
    calls.push_back(request.isXAxis ? "axis x" : "axis y");
    request_ = request;
  }
  // The last one that was made.
  const AxisRequest& Request() const { return request_; }

  void ShowHelp(int page) override { calls.push_back("help " + std::to_string(page)); }

  std::vector<std::string> calls;
  std::function<void()> whenShown;

 private:
  AxisRequest request_;
};

}  // namespace orvane::testing
