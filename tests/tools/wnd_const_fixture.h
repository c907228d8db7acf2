// The constants screen on a hand-held of its own, with a small file of constants.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "framework/standard_commands.h"
#include "tests/data/temp_folder.h"
#include "tests/framework/test_shell.h"
#include "tests/tools/constant_files.h"
#include "tests/tools/recording_navigator.h"
#include "tools/wnd_const.h"

namespace orvane::testing {

class WndConstTest : public ::testing::Test {
 protected:
  WndConstTest() : shell_({.recordRuns = true, .panelMode = PanelMode::kAlways}) { Write(SmallConstants()); }

  std::string Path() const { return folder_.File("constants.dat"); }
  void Write(const std::vector<CategoryOfConstants>& categories) { WriteBytes(Path(), BytesOf(categories)); }
  void RemoveFile() { std::filesystem::remove(Path()); }

  void Make() { tool_ = MakeWindow<wnd_const>(shell_, navigator_, folder_.Path().string() + "/"); }
  void MakeAndShow() {
    Make();
    tool_->Show();
    shell_.Settle();
  }
  // As from a cold start, with what was stored.
  void Restart() {
    tool_.reset();
    Menu& menu = shell_.PopupMenu(kConstCategMenu);
    menu.Items().resize(6);
    shell_.RemoveAddedButtons();
    MakeAndShow();
  }

  Device& GetDevice() { return shell_.GetDevice(); }
  ctlGroupedList& List() { return tool_->List(); }
  ConstStrip& Strip() { return tool_->Strip(); }
  bool IsChecked(int button) {
    for (const BarButtonPlace& place : GetDevice().Bars().Places()) {
      if (place.button.id == button) return (place.button.state & TBSTATE_CHECKED) != 0;
    }
    return false;
  }
  bool StripShown() { return GetDevice().IsVisible(Strip().Handle()); }
  bool ListShown() { return GetDevice().IsVisible(List().Handle()); }

  void Command(int command) {
    GetDevice().Send(tool_->Handle(), kToolCommand, static_cast<WParam>(command), kFromMenu);
    shell_.Settle();
  }
  // As a choice in the menu arrives.
  void Choose(int command) {
    GetDevice().Send(tool_->Handle(), WM_COMMAND, PackCommand(command, 0));
    shell_.Settle();
  }
  void DropDown(int command) {
    GetDevice().Send(tool_->Handle(), kToolCommand, static_cast<WParam>(command), kFromDropDown);
  }
  int OwnCommand(StandardCommand standard) {
    return static_cast<int>(
        GetDevice().Send(tool_->Handle(), kAskStandardCommand, PackStandardCommand(standard)));
  }
  void TapRow(int group, int row) {
    const Rect rect = List().RectOf(group, row);
    shell_.Tap(List().Handle(), {40 - List().scrollX, (rect.top + rect.bottom) / 2 - List().scrollY});
    shell_.Settle();
  }
  std::string Clipboard() { return ToUtf8(GetDevice().ClipboardText().value_or(u"(nothing)")); }
  // Dismisses every box; the texts of those shown since the last call.
  std::vector<std::string> Boxes() {
    // A box that waits is shown when the one before it goes.
    while (GetDevice().Boxes().Open()) GetDevice().Boxes().Dismiss();
    shell_.Settle();
    std::vector<std::string> texts;
    for (const MessageBoxText& box : shell_.Trace().boxes) texts.push_back(ToUtf8(box.text));
    shell_.Trace().boxes.clear();
    return texts;
  }
  std::string Title() { return shell_.titles.empty() ? "(none)" : ToUtf8(shell_.titles.back().title); }
  std::vector<std::string> Labels() {
    std::vector<std::string> labels;
    for (const MenuItem& item : GetDevice().Popups().Current().Items()) {
      const std::string mark = item.checked ? item.radio ? "* " : "+ " : "";
      labels.push_back(item.separator ? "-" : mark + ToUtf8(item.label));
    }
    return labels;
  }
  std::int32_t StoredLong(TextView name, std::int32_t otherwise) {
    shell_.Settings().Open();
    const std::int32_t value = shell_.Settings().ReadLong(name, otherwise);
    shell_.Settings().Close();
    return value;
  }
  void StoreLong(TextView name, std::int32_t value) {
    shell_.Settings().Open();
    shell_.Settings().WriteLong(name, value);
    shell_.Settings().Close();
  }

  TempFolder folder_;
  TestShell shell_;
  RecordingNavigator navigator_;
  std::unique_ptr<wnd_const> tool_;
};

}  // namespace orvane::testing
