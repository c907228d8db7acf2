// Find element: a box in which the beginning of a number, a symbol or a name is typed, and the list of the
// elements that fit, which changes with every key. It does not show an element itself: the navigator does.
#pragma once

#include "data/elements_database.h"
#include "tools/find_list.h"
#include "tools/input_tool.h"
#include "tools/navigator.h"
#include "tools/plain_box.h"

namespace orvane {

class wnd_find : public InputTool {
 public:
  // The database and the navigator outlive it.
  wnd_find(Shell& shell, const ElementsDatabase& elements, Navigator& navigator);

  PlainBox& Box() { return *box_; }
  FindList& List() { return *list_; }

  // ZelWindow
  std::string ClassName() const override { return "wnd_find"; }

 protected:
  // ZelToolWindow
  void Paint(Canvas& canvas, int width, int height) override;
  // InputTool
  CInputBox* EditedBox() override { return box_.get(); }
  void OnFocus() override;
  void OnBeforeShow() override;
  void OnAfterShow() override { FitList(); }  // where the panel stays down nobody says that it does
  void OnKeyDown(int key) override;
  void OnPanelChanged() override { FitList(); }

 private:
  void OnListFocused();
  void Search();
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
