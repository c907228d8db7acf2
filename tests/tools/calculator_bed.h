// A calculator of the program on a hand-held of its own, with the program's own elements.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "chemistry/element_table.h"
#include "framework/standard_commands.h"
#include "tests/framework/window_runs.h"
#include "tests/tools/element_files.h"
#include "tools/FormulaEditor.h"

namespace orvane::testing {

inline constexpr Modifiers kCalculatorControl{.shift = false, .control = true, .alt = false};

template <class Tool>
class CalculatorBed : public ::testing::Test {
 protected:
  explicit CalculatorBed(PanelMode mode = PanelMode::kAlways)
      : shell_({.recordRuns = true, .panelMode = mode}) {
    ElementsDatabase database;
    EXPECT_TRUE(LoadShipped(database));
    elements_ = ElementTable::From(database.Symbol(), database.AtomicMass());
  }
  void Make() { tool_ = MakeWindow<Tool>(shell_, elements_); }
  void MakeAndShow() {
    Make();
    tool_->Show();
    shell_.Settle();
  }
  // Ends the tool, which writes its settings, and makes it anew.
  void MakeAgain() {
    tool_.reset();
    Make();
  }
  Device& GetDevice() { return shell_.GetDevice(); }

  // Another text in a box, by keys.
  void Enter(CInputBox& box, TextView text) {
    box.TakeFocus();
    box.SelectAll();
    if (text.empty()) GetDevice().KeyDown(VK_DELETE, {});
    for (const Char c : text) GetDevice().Character(c);
    shell_.Settle();
  }
  // Another text in a box, from the clipboard, which takes what cannot be typed.
  void PasteOver(CInputBox& box, TextView text) {
    box.TakeFocus();
    box.SelectAll();
    GetDevice().SetClipboardText(Text(text));
    Command(8821);
  }
  void Key(int key, Modifiers modifiers = {}) {
    GetDevice().KeyDown(key, modifiers);
    GetDevice().KeyUp(key, modifiers);
    shell_.Settle();
  }
  void Tap(WindowHandle window, Point client) {
    shell_.Tap(window, client);
    shell_.Settle();
  }
  // As the bar's button or the main window's key gives it.
  void Command(int id) {
    GetDevice().Send(tool_->Handle(), kToolCommand, static_cast<WParam>(id), kFromMenu);
    shell_.Settle();
  }
  Result Ask(StandardCommand command) {
    return GetDevice().Send(tool_->Handle(), kAskStandardCommand, PackStandardCommand(command));
  }

  void Store(TextView name, TextView value) {
    shell_.Settings().Open();
    shell_.Settings().WriteString(name, value);
    shell_.Settings().Close();
  }
  Text Stored(TextView name) {
    Text value;
    shell_.Settings().Open();
    shell_.Settings().ReadString(name, value, u"(none)");
    shell_.Settings().Close();
    return value;
  }

  std::vector<TextRun> RunsOf(WindowHandle window) { return testing::RunsOf(shell_, window); }
  // The tool's own runs below a client y, from the top.
  std::vector<TextRun> RunsBelow(int y) {
    std::vector<TextRun> runs;
    for (const TextRun& run : RunsOf(tool_->Handle())) {
      if (run.rect.top >= y) runs.push_back(run);
    }
    return runs;
  }
  // What a list of runs says; a text that was wrapped reads as it was before.
  static Text Joined(const std::vector<TextRun>& runs) {
    Text joined;
    for (const TextRun& run : runs) joined += run.text;
    return joined;
  }
  static std::vector<TextRun> OnlyBold(const std::vector<TextRun>& runs, bool bold) {
    std::vector<TextRun> found;
    for (const TextRun& run : runs) {
      if (run.font.bold == bold) found.push_back(run);
    }
    return found;
  }
  std::uint32_t Pixel(WindowHandle window, Point client) {
    shell_.Settle();
    return shell_.Pixel(shell_.OnScreen(window, client));
  }

  TestShell shell_;
  ElementTable elements_;
  std::unique_ptr<Tool> tool_;
};

}  // namespace orvane::testing
