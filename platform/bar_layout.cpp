#include "platform/bar_layout.h"

#include "platform/device.h"

namespace orvane {

std::vector<Rect> LayOutBar(const std::vector<BarButton>& buttons, int right,
                            const std::function<int(TextView)>& labelWidth) {
  std::vector<Rect> places;
  places.reserve(buttons.size());
  int x = kBarArea.left;
  for (const BarButton& button : buttons) {
    int width = kBarButtonWidth;
    if (button.style == ButtonStyle::kSeparator) width = kBarSeparatorWidth;
    if (button.style == ButtonStyle::kMenu) width = labelWidth(button.label) + 2 * kBarLabelPadding;
    const int end = std::min(x + width, right);
    places.push_back(x < end ? Rect{x, kBarArea.top, end, kBarArea.bottom} : Rect{});
    x = end;
  }
  return places;
}

}  // namespace orvane
