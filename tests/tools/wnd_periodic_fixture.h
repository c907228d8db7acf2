// The periodic table's screen on a hand-held of its own, with the elements that the program ships with.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/framework/test_shell.h"
#include "tests/tools/element_files.h"
#include "tests/tools/recording_navigator.h"
#include "tools/wnd_periodic.h"

namespace orvane::testing {

inline constexpr TextView kSettingsKey = u"Software\\Zel Software\\Orvane";
using Calls = std::vector<std::string>;

// "form number name mass colouring", each 0 or 1.
inline std::string LookOf(const PeriodicSettings& s) {
  return std::to_string(s.modeWide) + std::to_string(s.showNum) + std::to_string(s.showName) +
         std::to_string(s.showMass) + std::to_string(s.colorType);
}

class WndPeriodicTest : public ::testing::Test {
 protected:
  WndPeriodicTest() : shell_({.panelMode = PanelMode::kAlways}) { EXPECT_TRUE(LoadShipped(elements_)); }

  void Make() { tool_ = MakeWindow<wnd_periodic>(shell_, elements_, navigator_); }
  void MakeAndShow() {
    Make();
    tool_->Show();
    shell_.Settle();
    shell_.Trace().messages.clear();
  }
  Device& GetDevice() { return shell_.GetDevice(); }
  PeriodicPanel& Panel() { return tool_->Panel(); }
  std::string Look() const { return LookOf(tool_->Settings()); }

  void Command(int command) { GetDevice().Send(tool_->Handle(), WM_COMMAND, PackCommand(command, 0)); }
  // As the main window passes on a drop-down button of the menu bar.
  void DropDown(int command) {
    GetDevice().Send(tool_->Handle(), kToolCommand, static_cast<WParam>(command), kFromDropDown);
  }
  void ScrollTo(int x, int y) {
    Panel().ScrollBy(-100000, -100000);
    Panel().ScrollBy(x, y);
    ASSERT_EQ(Scroll(), (Point{x, y}));
  }
  Point Scroll() { return {Panel().scrollX, Panel().scrollY}; }
  // The commands that are marked in the open menu: "40049*" with a dot, "40054+" with a tick.
  Calls Marks() {
    Calls marks;
    for (const MenuItem& item : GetDevice().Popups().Current().Items()) {
      if (item.checked) marks.push_back(std::to_string(item.id) + (item.radio ? "*" : "+"));
    }
    return marks;
  }
  Calls Labels() {
    Calls labels;
    for (const MenuItem& item : GetDevice().Popups().Current().Items()) {
      labels.push_back(item.separator ? "-" : ToUtf8(item.label));
    }
    return labels;
  }
  // 1 and 0 for booleans in the store, −1 for what is not there.
  int Stored(TextView name) {
    shell_.Store().OpenKey(kSettingsKey);
    const SettingValue* value = shell_.Store().Find(name);
    const int number = value && value->bytes.size() == 4 ? value->bytes[0] : -1;
    shell_.Store().CloseKey();
    return number;
  }
  void Store(TextView name, bool value) {
    shell_.Settings().Open();
    shell_.Settings().WriteBool(name, value);
    shell_.Settings().Close();
  }
  int CountOf(WindowHandle window, std::uint32_t message) {
    int count = 0;
    for (const Dispatched& d : shell_.Trace().messages) {
      if (d.window == window && d.message == message) ++count;
    }
    return count;
  }
  Point CentreOf(int element) {
    const Rect& rect = Panel().Layout().cells[static_cast<std::size_t>(element)].rect;
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
  }

  TestShell shell_;
  ElementsDatabase elements_;
  RecordingNavigator navigator_;
  std::unique_ptr<wnd_periodic> tool_;
};

}  // namespace orvane::testing
