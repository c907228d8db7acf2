// A grouped list at (0, 23) of a tool, 240 × 245, that is at (0, 49) of the screen. Titles are 19 high
// (Tahoma 10: 13 + 3, and 3), rows 12 (Tahoma 8: 10 + 2).
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

#include "framework/ctl_grouped_list.h"
#include "tests/framework/test_shell.h"

namespace orvane::testing {

inline constexpr int kTitle = 19;
inline constexpr int kRow = 12;

// The list's owner: writes down which rows it was told of.
class ListOwner : public ZelWindow {
 public:
  using ZelWindow::ZelWindow;
  Result OnMessage(std::uint32_t message, WParam w, LParam l) override {
    if (message == kListRowTapped) {
      tapped.push_back(TappedRow(w, l));
      if (whenTapped) whenTapped();
      return 0;
    }
    return ZelWindow::OnMessage(message, w, l);
  }
  std::vector<ListRow> tapped;
  std::function<void()> whenTapped;
};

class GroupedListTest : public ::testing::Test {
 protected:
  explicit GroupedListTest(const TestShellOptions& options = {.recordRuns = true})
      : shell_(options),
        owner_(MakeWindow<ListOwner>(shell_, shell_.MainWindow(), true)),
        list_(MakeWindow<ctlGroupedList>(shell_, owner_->Handle())) {
    owner_->SetStyle(0, 0);
    owner_->Move(0, 0, 240, 268);
    list_->Move(0, 23, 240, 245);
    CreateFontFamily(GetDevice(), list_->Handle(), titles_, u"Tahoma", 10, false, false);
    CreateFontFamily(GetDevice(), list_->Handle(), rows_, u"Tahoma", 8, false, false);
    list_->UseFonts(titles_, rows_);
    list_->Show();
    owner_->Show();
    GetDevice().SetFocus(list_->Handle());
    shell_.Settle();
  }

  Device& GetDevice() { return shell_.GetDevice(); }
  // Fixed columns of these widths, all visible, of the ellipsis kind.
  void Columns(const std::vector<int>& widths) {
    list_->columns.clear();
    for (const int width : widths) list_->columns.push_back({true, false, false, width});
  }
  // Adds a group with a title whose rows hold one text each; an empty title means none.
  void Group(TextView title, const std::vector<Text>& texts, bool expanded = true) {
    ListGroup group{Text(title), expanded, !title.empty(), {}};
    for (const Text& text : texts) group.rows.push_back({text});
    list_->groups.push_back(std::move(group));
  }
  void LayOut() {
    list_->Relayout();
    shell_.Settle();
  }
  // Two groups of titles A and B with three and two rows in columns of 100, 60 and 40:
  // title A 0..19, rows 19..55; title B 55..74, rows 74..98; content 200 × 99.
  void FillTwoGroups() {
    Columns({100, 60, 40});
    Group(u"A", {u"a0", u"a1", u"a2"});
    Group(u"B", {u"b0", u"b1"});
    LayOut();
  }
  // By content points; nothing may be scrolled.
  void Tap(int x, int y) {
    shell_.Tap(list_->Handle(), {x - list_->scrollX, y - list_->scrollY});
    shell_.Settle();
  }
  void Press(int key, Modifiers held = {}) {
    GetDevice().KeyDown(key, held);
    GetDevice().KeyUp(key, held);
    shell_.Settle();
  }
  ListRow Selected() const { return {list_->selectedGroup, list_->selectedRow}; }
  // The pixel of a content point, as shown.
  std::uint32_t At(int x, int y) const { return shell_.Pixel({x - list_->scrollX, 49 + y - list_->scrollY}); }
  int WidthOf(TextView text) {
    shell_.Engine().SelectFontFamily(&rows_);
    return shell_.Engine().MeasureText(text).width;
  }
  // The texts that the list shows, from the top.
  std::vector<std::string> Shown() {
    std::vector<std::string> texts;
    for (const ScreenRun& run : GetDevice().VisibleRuns()) {
      if (run.handle == list_->Handle()) texts.push_back(ToUtf8(run.run.text));
    }
    return texts;
  }

  TestShell shell_;
  FontFamily titles_;
  FontFamily rows_;
  std::unique_ptr<ListOwner> owner_;
  std::unique_ptr<ctlGroupedList> list_;
};

}  // namespace orvane::testing
