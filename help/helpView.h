// The help viewer: one page of the manual at a time, with the way back, the contents and the neighbours on
// its own menu bar. It opens help.dat with the first wish for a page, and never tries again when that fails.
// It does not become the current tool: it stands in front of what the user was doing and gives that back.
#pragma once

#include <memory>
#include <string>

#include "data/help_file.h"
#include "framework/ctl_toolbar.h"
#include "framework/shell_reporter.h"
#include "framework/zel_tool_window.h"
#include "help/contents_window.h"
#include "help/page_history.h"
#include "help/page_panel.h"

namespace orvane {

class helpView : public ZelToolWindow {
 public:
  // `path` is that of help.dat, which is not touched yet; the contents are made once it has been opened.
  helpView(Shell& shell, std::string path, ContentsMaker makeContents);
  ~helpView() override;

  // Shows the page with this id, and the viewer where it is hidden. With `record` the page that it replaces
  // can be gone back to. An id that no page has gives a message box and changes nothing. When the file cannot
  // be read, the viewer says so in place of the page.
  void ShowPage(int id, bool record = true);
  bool HasPage() const { return currentIndex_ != kNoPage; }

  const HelpFile& File() const { return help_; }
  HelpPagePanel& Panel() { return *panel_; }
  ContentsWindow* Contents() { return contents_.get(); }  // null until the file has been opened

  // ZelWindow
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override;
  std::string ClassName() const override { return "helpView"; }

 protected:
  // ZelToolWindow: the title strip, and the whole tool while there is no page.
  void Paint(Canvas& canvas, int width, int height) override;
  void OnCommand(int command) override;

 private:
  enum class State { kNotOpened, kOpened, kFailed };

  void EnsureOpened();
  void ReplacePage(int id, int index);
  void GoBack();
  void ShowContents();
  void ShowNeighbour(int id);
  void OnKey(int key);
  void OnBeforeShow();
  void OnAfterHide();
  void UpdateButtons();

  State state_ = State::kNotOpened;
  ShellReporter reporter_;
  std::string path_;
  ContentsMaker makeContents_;
  HelpFile help_;
  int currentId_ = kNoPage;
  int currentIndex_ = kNoPage;
  HelpHistory history_;
  bool panelWasUp_ = false;  // the input panel, when the viewer was shown
  FontFamily font_;
  ctlToolbar toolbar_;
  std::unique_ptr<HelpPagePanel> panel_;
  std::unique_ptr<ContentsWindow> contents_;
};

}  // namespace orvane
