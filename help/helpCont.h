// The contents of the manual as a tree that opens and closes; its pages open in the help viewer, which makes
// this window once it has opened the help file.
#pragma once

#include <functional>
#include <memory>

#include "framework/ctl_toolbar.h"
#include "framework/zel_tool_window.h"
#include "help/contents_panel.h"
#include "help/contents_window.h"

namespace orvane {

class helpCont : public ZelToolWindow, public ContentsWindow {
 public:
  helpCont(Shell& shell, const HelpFile& help, std::function<void(int id)> openPage);
  ~helpCont() override;

  // ContentsWindow: all headings are closed but those above the page.
  void ShowAt(int pageId) override;
  void PutAway() override { Hide(); }

  ContentsPanel& Panel() { return *panel_; }

  // ZelWindow
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override;
  std::string ClassName() const override { return "helpCont"; }

 protected:
  // ZelToolWindow: the title strip; the tree covers the rest.
  void Paint(Canvas& canvas, int width, int height) override;
  void OnCommand(int command) override;

 private:
  void OpenSelected();
  void UpdateButtons();

  const HelpFile& help_;
  std::function<void(int id)> openPage_;
  FontFamily font_;
  ctlToolbar toolbar_;
  std::unique_ptr<ContentsPanel> panel_;
};

}  // namespace orvane
