// Find element: a box in which the beginning of a number, a symbol or a name is typed, and the list of the
// elements that fit, which changes with every key. It does not show an element itself: the navigator does.
#pragma once

#include "data/elements_database.h"
#include "framework/zel_tool_window.h"
#include "tools/find_list.h"
#include "tools/navigator.h"
#include "tools/plain_box.h"

namespace orvane {

class wnd_find : public ZelToolWindow {
 public:
  // The database and the navigator outlive it.
  wnd_find(Shell& shell, const ElementsDatabase& elements, Navigator& navigator);

  PlainBox& Box() { return *box_; }
  FindList& List() { return *list_; }

  // ZelWindow
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override;
  std::string ClassName() const override { return "wnd_find"; }

 protected:
  // ZelToolWindow
  void Paint(Canvas& canvas, int width, int height) override;
  void OnCommand(int command) override;

 private:
  void OnBeforeShow();
  void OnFocus();
  void OnKeyDown(int key);
  void OnListFocused();
  void Search();
  void ToggleFocus();
  void OpenFirstMatch();
  void FitList();  // above the input panel, or down to where it would be
  void SetListHeight(int height);

  NamesOfElements names_;
  FontFamily title_;
  FontFamily labels_;
  std::unique_ptr<PlainBox> box_;
  std::unique_ptr<FindList> list_;
};

}  // namespace orvane
