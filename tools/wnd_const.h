// The constants of physics and chemistry: the categories of constants.dat in a menu, the groups of one
// category in a list, and the constant that was tapped in full in a strip below. Values can be copied.
//
// It changes nothing of what it shows. The file's names are read when the screen is first used, a category's
// constants whenever it is chosen. Once the file cannot be opened, the screen only says so, for the rest of
// the run.
#pragma once

#include <string>

#include "data/constants_database.h"
#include "framework/ctl_grouped_list.h"
#include "framework/zel_tool_window.h"
#include "tools/const_settings.h"
#include "tools/const_strip.h"
#include "tools/navigator.h"

namespace orvane {

class wnd_const : public ZelToolWindow {
 public:
  // Reads its settings; writes them when it is destroyed. `dataFolder` ends with its separator.
  wnd_const(Shell& shell, Navigator& navigator, const std::string& dataFolder);
  ~wnd_const() override;

  // Reads the file, in the first call only.
  void LoadOnce();

  // ZelWindow
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override;
  std::string ClassName() const override { return "wnd_const"; }

  int Category() const { return settings_.category; }
  bool LoadFailed() const { return loadFailed_; }
  ctlGroupedList& List() { return *list_; }
  ConstStrip& Strip() { return *strip_; }

 protected:
  // ZelToolWindow: the title and what the list does not cover, or what is said without the file.
  void Paint(Canvas& canvas, int width, int height) override;
  void OnCommand(int command) override;

 private:
  // Loading
  bool ReadCategories();
  void AppendToMenu(int category);
  void LoadCategory(int category);
  void FillList();
  void FailLoading();

  // Activation
  void OnBeforeShow();
  void FocusList();
  int OwnCommandFor(WParam standard) const;

  // Commands
  void OpenCategoryMenu();
  void ToggleTitle();
  void ToggleStrip();
  void FoldOrUnfold();
  void ToggleColumn(std::size_t column);
  void ChooseCategory(int category);
  void Copy();
  void OnRowTapped(const ListRow& row);

  void Layout();
  TextView Caption() const;
  const ConstEntry* At(const ListRow& row) const;

  Navigator& navigator_;
  ConstantsDatabase database_;
  ConstSettings settings_;
  std::vector<ConstGroup> groups_;  // of the category that shows
  bool loadedOnce_ = false;
  bool loadFailed_ = false;
  bool stripShown_ = false;

  FontFamily titleFont_;  // "Tahoma" 10: the title and the groups' titles
  FontFamily textFont_;   // "Tahoma" 8: the rows
  std::unique_ptr<ctlGroupedList> list_;
  std::unique_ptr<ConstStrip> strip_;
};

}  // namespace orvane
