// The help viewer with its contents on a hand-held of its own, over another tool.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "help/helpCont.h"
#include "help/helpView.h"
#include "tests/data/temp_folder.h"
#include "tests/framework/test_shell.h"
#include "tests/framework/window_test_bed.h"
#include "tests/help/help_builder.h"

namespace orvane::testing {

using Strings = std::vector<std::string>;

class HelpTest : public ::testing::Test {
 protected:
  explicit HelpTest(PanelMode mode = PanelMode::kAlways) : shell_({.recordRuns = true, .panelMode = mode}) {
    below_ = MakeWindow<Probe>(shell_, shell_.MainWindow(), true);
    below_->SetStyle(0, 0);
    below_->Move(0, 0, 240, 268);
    below_->Show();
    const ContentsMaker makeContents = [this](const HelpFile& help, std::function<void(int id)> openPage) {
      auto contents = MakeWindow<helpCont>(shell_, help, std::move(openPage));
      contents_ = contents.get();
      return contents;
    };
    viewer_ = MakeWindow<helpView>(shell_, Path(), makeContents);
    shell_.Settle();
  }

  std::string Path() const { return folder_.File("help.dat"); }
  void Save(const std::vector<BuiltEntry>& entries, const std::vector<BuiltPage>& pages) {
    BuildHelp(entries, pages).Save(Path());
  }
  void Show(int id) {
    viewer_->ShowPage(id);
    shell_.Settle();
  }
  bool Press(int button) {
    const bool pressed = shell_.GetDevice().Bars().Press(button);
    shell_.Settle();
    return pressed;
  }
  void Key(int key) {
    shell_.GetDevice().KeyDown(key, {});
    shell_.GetDevice().KeyUp(key, {});
    shell_.Settle();
  }
  void TapPanel(ZelPanel& panel, Point content) {
    shell_.Tap(panel.Handle(), {content.x - panel.scrollX, content.y - panel.scrollY});
    shell_.Settle();
  }

  // "8920 0 push" and so on, with " off" for a button that is disabled.
  Strings Bar() {
    Strings bar;
    for (const BarButtonPlace& place : shell_.GetDevice().Bars().Places()) {
      const BarButton& button = place.button;
      const bool separator = button.style == ButtonStyle::kSeparator;
      std::string text = std::to_string(button.id) + " " + std::to_string(button.image);
      if (separator) text = "|";
      if (!separator && (button.state & TBSTATE_ENABLED) == 0) text += " off";
      bar.push_back(text);
    }
    return bar;
  }
  // The lines of text that a window shows, top to bottom.
  std::vector<TextRun> Runs(WindowHandle window) {
    std::vector<TextRun> runs;
    for (const ScreenRun& run : shell_.GetDevice().VisibleRuns()) {
      if (run.handle == window) runs.push_back(run.run);
    }
    return runs;
  }
  std::string JoinedText(WindowHandle window) {
    std::string text;
    for (const TextRun& run : Runs(window)) text += ToUtf8(run.text);
    return text;
  }
  // The box in front: caption, icon and text; empty when none is open.
  std::string Box() {
    MessageBoxes& boxes = shell_.GetDevice().Boxes();
    if (!boxes.Open()) return "";
    const MessageBoxText& box = boxes.Front();
    const char* const icons[] = {"none", "error", "exclamation", "information"};
    return ToUtf8(box.caption) + "|" + icons[static_cast<int>(box.icon)] + "|" + ToUtf8(box.text);
  }
  void Dismiss() {
    shell_.GetDevice().Boxes().DismissAll();
    shell_.Settle();
  }
  std::string FrontTool() {
    const ZelWindow* top = shell_.Tools().Top();
    return top ? top->ClassName() : "";
  }
  int CurrentId() {
    for (const HelpPage& page : viewer_->File().Pages()) {
      if (page.body) return page.id;
    }
    return -1;
  }
  int LoadedBodies() {
    int loaded = 0;
    for (const HelpPage& page : viewer_->File().Pages()) loaded += page.body ? 1 : 0;
    return loaded;
  }
  HelpPagePanel& Page() { return viewer_->Panel(); }
  ContentsPanel& Tree() { return contents_->Panel(); }

  TempFolder folder_;
  TestShell shell_;
  std::unique_ptr<Probe> below_;
  std::unique_ptr<helpView> viewer_;
  helpCont* contents_ = nullptr;  // the viewer's
};

}  // namespace orvane::testing
