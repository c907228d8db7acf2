// What the screens with text boxes have in common: copy and paste go to the box that is edited, by button or
// key, and whatever concerns the typing arrives at methods of its own. It has no box itself: the screen that
// is derived from it makes its boxes and says which one is meant.
#pragma once

#include "framework/standard_commands.h"
#include "framework/zel_tool_window.h"
#include "tools/FormulaEditor.h"

namespace orvane {

class InputTool : public ZelToolWindow {
 public:
  // A screen of 240 × 268 logical pixels under this title. The commands are the screen's own, which the keys
  // of the desktop run; their copy and paste are carried out here.
  InputTool(Shell& shell, TextView title, const OwnCommands& commands);

  // ZelWindow
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override;

 protected:
  // ZelToolWindow. Copies and pastes; a derived class hands on the commands that it does not know.
  void OnCommand(int command) override;

  // The box that copy and paste are for; null for none.
  virtual CInputBox* EditedBox() = 0;
  // The screen has got the focus, which it hands on to the window that its user begins with.
  virtual void OnFocus() = 0;
  virtual void OnBeforeShow() {}
  virtual void OnAfterShow() {}
  // A key that none of the screen's windows had a use for.
  virtual void OnKeyDown(int /*key*/) {}
  // The input panel has come or gone while this was the current tool.
  virtual void OnPanelChanged() {}

  // The buttons for copying and pasting, on the main bar.
  void AddCopyAndPaste();
  // From the box to the other window, and back.
  void ToggleFocus(CInputBox& box, WindowHandle other);

 private:
  OwnCommands commands_;
};

}  // namespace orvane
