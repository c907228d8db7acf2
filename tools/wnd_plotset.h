// The axis setup: for one axis of the plot at a time, the property that it shows and the filter of its
// values. It stands over the plot, with a bar of its own. It neither reads filters nor knows the plot: what
// was chosen goes to the request that opened it, which says whether it can be used.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "data/elements_database.h"
#include "framework/ctl_grouped_list.h"
#include "framework/ctl_toolbar.h"
#include "tools/axis_setup.h"
#include "tools/input_tool.h"
#include "tools/navigator.h"
#include "tools/plain_box.h"

namespace orvane {

// A grouped list whose owner sees the keys first.
class AxisList : public ctlGroupedList {
 public:
  using ctlGroupedList::ctlGroupedList;
  // True when the owner has used the key.
  std::function<bool(int key)> keyPressed;

  // ZelWindow
  Result WndProc(WindowHandle window, std::uint32_t message, WParam w, LParam l) override;
};

class wnd_plotset : public InputTool {
 public:
  // The database and the navigator outlive it.
  wnd_plotset(Shell& shell, const ElementsDatabase& elements, Navigator& navigator);

  // Shows the request's axis: its filter in the box, its property selected where it is offered.
  void Open(const AxisRequest& request);

  // ZelWindow
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override;
  std::string ClassName() const override { return "wnd_plotset"; }

  PlainBox& Box() { return *box_; }
  AxisList& List() { return *list_; }

 protected:
  // ZelToolWindow
  void Paint(Canvas& canvas, int width, int height) override;
  void OnCommand(int command) override;
  // InputTool
  CInputBox* EditedBox() override { return box_.get(); }
  void OnFocus() override;
  void OnBeforeShow() override { bar_->Show(); }
  void OnAfterShow() override { FitList(); }  // where the panel stays down nobody says that it does
  void OnKeyDown(int key) override;
  void OnPanelChanged() override { FitList(); }

 private:
  void MakeBar();
  void MakeBox();
  void MakeList();
  void FillList(const ElementsDatabase& elements);

  bool OnListKey(int key);
  void FitList();  // above the input panel, or down to where it would be

  void Accept();
  void Cancel();
  void Select(const PropertyAddress& address);
  std::optional<PropertyAddress> Selected() const;

  Navigator& navigator_;
  AxisRequest request_;
  FontFamily large_;  // "Tahoma" 10: title and list
  FontFamily small_;  // "Tahoma" 8: captions
  // Of the list's rows, by group and row.
  std::vector<std::vector<PropertyAddress>> addresses_;
  std::unique_ptr<PlainBox> box_;
  std::unique_ptr<AxisList> list_;
  std::unique_ptr<ctlToolbar> bar_;
};

}  // namespace orvane
