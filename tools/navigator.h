// How a screen asks for another one. The application implements it; screens never know each other.
#pragma once

#include "tools/axis_setup.h"

namespace orvane {

class Navigator {
 public:
  virtual ~Navigator() = default;

  // The element that "Show element info" opens: an index 0..111, or −1 when none has been chosen.
  virtual void SelectElement(int element) = 0;
  virtual int SelectedElement() const = 0;
  // Opens the element properties view on the element with this index.
  virtual void ShowElement(int element) = 0;
  // Opens a page of the manual (resources/help_pages.h) in the help viewer.
  virtual void ShowHelp(int page) = 0;
  // Opens the setup of one of the plot's axes; its answer goes to the request's `accept`.
  virtual void SetUpAxis(const AxisRequest& request) = 0;
};

}  // namespace orvane
