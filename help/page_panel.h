// The area below the title strip in which a help page shows: its paragraphs, wrapped, and below them its
// links, a line each. It scrolls, and follows a link that is tapped; which page that is decides its owner.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "data/help_file.h"
#include "framework/zel_panel.h"

namespace orvane {

// In content coordinates of the panel, whose top is the bottom of the title strip.
inline constexpr int kHelpTextLeft = 8;
inline constexpr int kHelpTextRight = 232;

struct HelpLink {
  int page = kNoPage;  // index; kNoPage for a link that leads nowhere: its line stays empty
  Text title;
  Rect rect;  // of the title; empty for a link that leads nowhere
};

struct HelpLayout {
  std::vector<int> paragraphTops;
  std::vector<int> paragraphBottoms;
  std::vector<HelpLink> links;
  int height = 0;  // of the whole page
};

class HelpPagePanel : public ZelPanel {
 public:
  HelpPagePanel(Shell& shell, WindowHandle parent);

  // Lays the page out, scrolls to its top and paints it. The panel keeps the body for as long as it shows it.
  void SetPage(const HelpFile& help, std::shared_ptr<const HelpPageBody> body);

  const HelpLayout& Layout() const { return layout_; }

  std::function<void(int page)> linkTapped;  // gets the index of the page
  // Gets every key that goes down, before the panel scrolls by it.
  std::function<void(int key)> keyPressed;

  // ZelWindow
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override;

 protected:
  // ZelPanel
  void Paint(Canvas& canvas, int left, int top, int right, int bottom) override;

 private:
  void LayOut(const HelpFile& help);
  void OnTap(Point content);
  void OnKey(int key);

  FontFamily textFont_;  // "Tahoma" 10
  FontFamily linkFont_;  // the same, underlined
  std::shared_ptr<const HelpPageBody> body_;
  HelpLayout layout_;
};

}  // namespace orvane
