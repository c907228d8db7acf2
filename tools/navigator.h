// How a screen asks for another one. The application implements it; screens never know each other.
#pragma once

namespace orvane {

class Navigator {
 public:
  virtual ~Navigator() = default;

  // The element that "Show element info" opens: an index 0..111, or −1 when none has been chosen.
  virtual void SelectElement(int element) = 0;
  virtual int SelectedElement() const = 0;
  // Opens the element properties view on the element with this index.
  virtual void ShowElement(int element) = 0;
};

}  // namespace orvane
