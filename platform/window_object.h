// The object behind a window, as the window's user-data slot holds it: what reports and scripts may ask of
// it. The device never owns it and never calls it but for a report.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "base/geometry.h"
#include "base/text.h"

namespace orvane {

// What a report says of a window beyond its place; fields that a window does not have stay empty.
struct WindowReport {
  std::string className;        // "wnd_mass", "ZelPanel", "ZelFormulaBox"
  std::optional<Point> scroll;  // content point at the top left
  std::optional<Size> content;  // size of the scrolled content
  std::optional<Text> text;     // of a text box
  std::optional<int> caret;
  std::optional<std::pair<int, int>> selection;  // start, length
  std::optional<std::pair<int, int>> selected;   // of a list: group, row
};

class WindowObject {
 public:
  virtual ~WindowObject() = default;
  virtual WindowReport Describe() const = 0;
  // The name under which text drawn by this window is listed; empty means that of the window it lies in.
  virtual std::string UnitName() const = 0;
};

}  // namespace orvane
