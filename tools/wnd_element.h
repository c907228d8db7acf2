// Everything the database knows of one element, in two forms: a summary that the user composes, and the full
// list of all categories. This is the tool's frame: its bar, menus, commands and settings. The summary is
// drawn in its panel, the full list in a grouped list.
#pragma once

#include "framework/ctl_grouped_list.h"
#include "framework/ctl_toolbar.h"
#include "framework/zel_tool_window.h"
#include "tools/element_summary_panel.h"
#include "tools/navigator.h"

namespace orvane {

class wnd_element : public ZelToolWindow {
 public:
  // Reads its settings, the summary list among them, which it marks in the database; writes them when it is
  // destroyed. The list that is written is that of the rows as they were laid out last: what the element
  // shown last has no value for is not among them.
  wnd_element(Shell& shell, ElementsDatabase& elements, Navigator& navigator);
  ~wnd_element() override;

  // Shows the element with this index, 0..111, in the form that the settings ask for. Nothing for any other.
  void ShowElement(int element);

  // ZelWindow
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override;
  std::string ClassName() const override { return "wnd_element"; }

  // The element that is shown, −1 before the first.
  int Element() const { return element_; }
  const ElementSettings& Settings() const { return settings_; }
  // The preset that the summary equals because it was saved or applied last; −1 after any edit.
  int CurrentPreset() const { return currentPreset_; }
  ElementSummaryPanel& Summary() { return *summary_; }
  ctlGroupedList& List() { return *list_; }

 protected:
  // ZelToolWindow: the strip; the two views cover the rest.
  void Paint(Canvas& canvas, int width, int height) override;
  void OnCommand(int command) override;

 private:
  void MakeBar();
  void MakeList();
  void LoadSettings();
  void SaveSettings();

  void OnBeforeShow();
  void OnBeforeHide();
  Result StandardCommandFor(WParam w) const;
  bool OnSummaryCommand(int command);

  void BuildList();
  void ShowChosenView();
  ZelPanel& ChosenView();
  void ToggleView();
  void OpenSetupMenu();
  void OpenPresetsMenu();
  void SetInitialView(std::int32_t view) { settings_.initialView = view; }
  void ToggleShown(bool& shown);

  void AddSelected();
  void RemoveSelected();
  void MoveSelected(int step);
  void Edited(int selectedRow);
  void SavePreset(int preset);
  void ApplyPreset(int preset);
  void CopyFromList();
  void CopyFromSummary();
  PropertyList ShownRows() const;
  void Inform(TextView text);

  ElementsDatabase& elements_;
  Navigator& navigator_;
  ElementSettings settings_;
  bool listStored_ = false;  // the settings hold a summary list
  int element_ = -1;
  int currentPreset_ = -1;
  int topicBefore_ = 0;  // the help topic of the tool underneath
  // Of each group and row of the full list.
  std::vector<PropertyList> listed_;

  FontFamily titleFont_;  // Tahoma 10: the strip, and the titles of the full list
  std::unique_ptr<ElementSummaryPanel> summary_;
  std::unique_ptr<ctlGroupedList> list_;
  std::unique_ptr<ctlToolbar> bar_;
};

}  // namespace orvane
