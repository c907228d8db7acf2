// The tree of the help contents as it is drawn, tapped and moved through by keys.
#pragma once

#include <functional>
#include <vector>

#include "framework/zel_panel.h"
#include "help/contents_tree.h"

namespace orvane {

class ContentsPanel : public ZelPanel {
 public:
  ContentsPanel(Shell& shell, WindowHandle parent, const HelpFile& help);

  // Closes every heading, selects the first entry of this page, or entry 0 when no entry has it, scrolls to
  // the top and then to the selected entry.
  void StartAt(int pageId);

  const ContentsTree& Tree() const { return tree_; }

  std::function<void()> selectionChanged;
  std::function<void()> entered;  // Enter on a page

  // ZelWindow
  // The keys move the selection; none of them scrolls by itself.
  Result WndProc(WindowHandle window, std::uint32_t message, WParam w, LParam l) override;
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override;

 protected:
  // ZelPanel
  void Paint(Canvas& canvas, int left, int top, int right, int bottom) override;

 private:
  int IndentOf(int entry) const;
  int TextWidth(int entry) const { return textWidths_[static_cast<std::size_t>(entry)]; }
  void OnTap(Point content);
  bool OnKey(int key);
  bool OnEnter();
  void Changed();
  void LayOut();
  void RevealSelected();
  void DrawRow(Canvas& canvas, int entry, int y) const;

  const HelpFile& help_;
  ContentsTree tree_;
  std::vector<int> textWidths_;
  FontFamily font_;
  std::vector<std::shared_ptr<const Image>> images_;
};

}  // namespace orvane
