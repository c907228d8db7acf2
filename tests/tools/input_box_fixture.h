// An input box on a hand-held of its own, in a window that notes what it is sent.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "framework/control_messages.h"
#include "framework/zel_window.h"
#include "tests/framework/test_shell.h"
#include "tools/FormulaEditor.h"
#include "tools/plain_box.h"
#include "tools/token_box.h"

namespace orvane::testing {

// Every message that it is sent, with its first parameter; 1416 and 1417 with the box's state at that moment.
class OwnerWindow : public ZelWindow {
 public:
  using ZelWindow::ZelWindow;
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override {
    seen.emplace_back(message, w);
    if (hook) hook(message);
    return ZelWindow::OnMessage(message, w, l);
  }
  int Count(std::uint32_t message) const {
    int count = 0;
    for (const auto& [one, w] : seen) count += one == message ? 1 : 0;
    return count;
  }
  std::vector<std::pair<std::uint32_t, WParam>> seen;
  std::function<void(std::uint32_t)> hook;
};

inline constexpr int kBoxWidth = 224;
inline constexpr int kBoxHeight = 24;

class InputBoxTest : public ::testing::Test {
 protected:
  explicit InputBoxTest(PanelMode mode = PanelMode::kAlways)
      : shell_({.recordRuns = true, .panelMode = mode}),
        owner_(MakeWindow<OwnerWindow>(shell_, shell_.MainWindow(), true)) {
    owner_->Move(0, 0, 240, 268);
    owner_->Show();
  }

  // With the search's place and font.
  template <class Box, class... Arguments>
  std::unique_ptr<Box> Make(Arguments&&... arguments) {
    auto box = std::make_unique<Box>(shell_, owner_->Handle(), 8, 48, kBoxWidth, kBoxHeight,
                                     std::forward<Arguments>(arguments)...);
    box->SetFont(u"Tahoma", 10);
    box->changed = [this](CInputBox& changed) { changes_.push_back(changed.GetText()); };
    return box;
  }
  void MakePlain() {
    box_ = Make<PlainBox>();
    shell_.Settle();
  }
  void MakeFocused(TextView text = {}) {
    MakePlain();
    box_->TakeFocus();
    Put(text);
  }
  // As an owner puts a text into the box, with the caret at its end.
  void Put(TextView text) {
    box_->ReplaceText(text);
    box_->retokenise();
    box_->Reset();
    Key(VK_END);
    changes_.clear();
    shell_.Settle();
  }

  void Key(int key, Modifiers modifiers = {}) {
    if (modifiers.shift) GetDevice().KeyDown(VK_SHIFT, modifiers);
    GetDevice().KeyDown(key, modifiers);
    GetDevice().KeyUp(key, modifiers);
    if (modifiers.shift) GetDevice().KeyUp(VK_SHIFT, {});
  }
  void ShiftKey(int key) { Key(key, {.shift = true, .control = false, .alt = false}); }
  void Type(TextView text) {
    for (const Char c : text) GetDevice().Character(c);
  }
  Point OnScreen(int clientX, int clientY = 12) {
    return shell_.OnScreen(box_->Handle(), {clientX, clientY});
  }

  // "caret start length".
  std::string State() const {
    return std::to_string(box_->Caret()) + " " + std::to_string(box_->SelectionStart()) + " " +
           std::to_string(box_->SelectionLength());
  }
  // The width of a text in the box's font, all in one style.
  int WidthOf(TextView text, TextPosition position = TextPosition::kNormal) const {
    return box_->Font().Variant({false, false, position}).font->TextWidth(text);
  }
  // A pixel of the box, 0xRRGGBB, after all that is due.
  std::uint32_t Pixel(int clientX, int clientY) {
    shell_.Settle();
    return shell_.Pixel(OnScreen(clientX, clientY));
  }
  // The runs of text in the box, from left to right, with client coordinates.
  std::vector<TextRun> Runs() {
    shell_.Settle();
    std::vector<TextRun> runs;
    const Rect box = GetDevice().ScreenRect(box_->Handle());
    for (ScreenRun& one : GetDevice().VisibleRuns()) {
      if (one.handle != box_->Handle()) continue;
      one.run.rect = one.run.rect.Offset(-box.left, -box.top);
      runs.push_back(one.run);
    }
    return runs;
  }
  Device& GetDevice() { return shell_.GetDevice(); }

  TestShell shell_;
  std::unique_ptr<OwnerWindow> owner_;
  std::vector<Text> changes_;  // the text at each call of the callback
  std::unique_ptr<CInputBox> box_;
};

}  // namespace orvane::testing
