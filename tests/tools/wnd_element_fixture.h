// The element view on a hand-held of its own, with a made-up database in which every value tells its place:
//
//   0 Identification  Symbol, Name, Atomic mass, Family, Block (ids 0 to 4)
//   1 General         7 properties
//   2 Rare            1 property, of helium alone
//   3 Third           6 properties
//   4 Fourth          2 properties, the second of hydrogen alone
//
// Property p of category c is named "Pcp", has the value "c.p" and the units " Ucp". The exceptions: value
// (1, 6) is 10 with 5 raised, and its units are " m" with 3 raised.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "base/styled_text.h"
#include "tests/framework/test_shell.h"
#include "tests/tools/element_files.h"
#include "tests/tools/recording_navigator.h"
#include "tools/wnd_element.h"

namespace orvane::testing {

// What a database for these tests may have otherwise.
struct ElementViewData {
  int extraProperties = 0;  // in a sixth category, all with values
  Text family = u"A";       // of hydrogen; the others are halogens
  Text block = u"S";        // of hydrogen; the others are in the p-block
  Text longValue{};         // of (3, 0) instead of "3.0"
};

inline Text NumberedName(TextView letter, int category, int property) {
  return Text(letter).append(DecimalText(category)).append(DecimalText(property));
}

inline void LoadElementViewData(ElementsDatabase& database, const ElementViewData& data = {}) {
  constexpr int kElements = ElementsDatabase::kElementCount;
  DatWriter file;
  file.PeriodicHeader(data.extraProperties > 0 ? 6 : 5);
  file.Category(u"Identification", 5);
  const auto special = [&](int id, TextView name, TextView units, auto valueOf) {
    file.Property(id, name, false, units, kElements);
    for (int e = 0; e < kElements; ++e) file.Value(e + 1, valueOf(e));
  };
  special(0, u"Symbol", u"", [](int e) { return e == 0 ? Text(u"H") : Text(u"X").append(DecimalText(e)); });
  special(1, u"Name", u"", [](int e) { return e == 0 ? Text(u"Hydrogen") : Text(u"Other"); });
  special(2, u"Atomic mass", u" u", [](int e) { return e == 0 ? Text(u"1.008") : Text(u"[99]"); });
  special(3, u"Family", u"", [&](int e) { return e == 0 ? data.family : Text(u"I"); });
  special(4, u"Block", u"", [&](int e) { return e == 0 ? data.block : Text(u"P"); });
  const auto category = [&](int c, TextView name, int properties) {
    file.Category(name, properties);
    for (int p = 0; p < properties; ++p) {
      const bool power = c == 1 && p == 6;
      const int first = c == 2 ? 2 : 1;
      const int last = c == 2 ? 2 : c == 4 && p == 1 ? 1 : kElements;
      file.Property(100 + 10 * c + p, NumberedName(u"P", c, p), true,
                    power ? Text(u" m\x0001\x00A0") + u"3" : NumberedName(u" U", c, p), last - first + 1);
      Text value = DecimalText(c).append(u".").append(DecimalText(p));
      if (power) value = Text(u"10\x0001\x00A0") + u"5\x0001 ";
      if (c == 3 && p == 0 && !data.longValue.empty()) value = data.longValue;
      for (int z = first; z <= last; ++z) file.Value(z, value);
    }
  };
  category(1, u"General", 7);
  category(2, u"Rare", 1);
  category(3, u"Third", 6);
  category(4, u"Fourth", 2);
  if (data.extraProperties > 0) category(5, u"Fifth", data.extraProperties);
  const TempFolder folder;
  file.Save(folder.File("periodic.dat"));
  CollectingReporter reporter;
  database.Load(folder.File("periodic.dat"), reporter);
}

// The built-in list, as texts.
inline const std::vector<std::string> kBuiltInRows{"3.5", "3.1", "3.2", "4.0", "4.1", "1.4", "1.6"};

class WndElementTest : public ::testing::Test {
 protected:
  WndElementTest() : shell_({.recordRuns = true, .panelMode = PanelMode::kAlways}) {
    LoadElementViewData(elements_);
  }

  void Make() { tool_ = MakeWindow<wnd_element>(shell_, elements_, navigator_); }
  void MakeAndShow(int element = 0) {
    if (!tool_) Make();
    tool_->ShowElement(element);
    shell_.Settle();
  }
  // The program ends and starts again with the same settings.
  void Restart() {
    tool_.reset();
    LoadElementViewData(elements_);
    Make();
  }
  Device& GetDevice() { return shell_.GetDevice(); }
  ElementSummaryPanel& Summary() { return tool_->Summary(); }
  ctlGroupedList& List() { return tool_->List(); }

  void Command(int command) {
    GetDevice().Send(tool_->Handle(), WM_COMMAND, PackCommand(command, 0));
    shell_.Settle();
  }
  // The rows of the summary by their addresses: "3.5".
  std::vector<std::string> Rows() {
    std::vector<std::string> rows;
    for (const ElementSummaryPanel::Row& row : Summary().Rows()) {
      rows.push_back(std::to_string(row.address.category) + "." + std::to_string(row.address.property));
    }
    return rows;
  }
  // A tap in the middle of a summary row.
  void TapRow(int row) {
    const ElementSummaryPanel::Row& of = Summary().Rows()[static_cast<std::size_t>(row)];
    shell_.Tap(Summary().Handle(), {100, (of.top + of.bottom) / 2 - Summary().scrollY});
    shell_.Settle();
  }
  // Selects a property of the full list as a tap would.
  void SelectListed(TextView name) {
    for (int g = 0; g < static_cast<int>(List().groups.size()); ++g) {
      const auto& rows = List().groups[static_cast<std::size_t>(g)].rows;
      for (int r = 0; r < static_cast<int>(rows.size()); ++r) {
        if (rows[static_cast<std::size_t>(r)][0] != name) continue;
        List().selectedGroup = g;
        List().selectedRow = r;
        return;
      }
    }
    FAIL() << ToUtf8(name);
  }
  // The text of the message box that was shown last, once it has been dismissed; "" for none.
  std::string Message() {
    const bool any = !shell_.Trace().boxes.empty();
    const MessageBoxText box = any ? shell_.Trace().boxes.back() : MessageBoxText{};
    if (any) {
      EXPECT_EQ(box.caption, u"Orvane");
      EXPECT_EQ(box.icon, MessageIcon::kInformation);
    }
    shell_.Trace().boxes.clear();
    GetDevice().Boxes().DismissAll();
    shell_.Settle();
    return ToUtf8(box.text);
  }
  std::string Clipboard() { return ToUtf8(GetDevice().ClipboardText().value_or(u"(nothing)")); }
  // The bar's button; one that is not there fails the test.
  BarButtonPlace Button(int id) {
    for (const BarButtonPlace& place : GetDevice().Bars().Places()) {
      if (place.button.id == id) return place;
    }
    ADD_FAILURE() << "no button " << id;
    return {};
  }
  // The commands that are marked in the open menu: "40190*" with a dot, "40180+" with a tick.
  std::vector<std::string> Marks() {
    std::vector<std::string> marks;
    for (const MenuItem& item : GetDevice().Popups().Current().Items()) {
      if (item.checked) marks.push_back(std::to_string(item.id) + (item.radio ? "*" : "+"));
    }
    return marks;
  }
  std::vector<int> MenuCommands() {
    std::vector<int> commands;
    for (const MenuItem& item : GetDevice().Popups().Current().Items()) commands.push_back(item.id);
    return commands;
  }
  // The visual lines of a window in screen coordinates: "x,y text".
  std::vector<std::string> Lines(WindowHandle window) {
    std::vector<std::string> lines;
    std::uint32_t line = 0;
    for (const ScreenRun& run : GetDevice().VisibleRuns()) {
      if (run.handle != window) continue;
      if (lines.empty() || run.run.line != line) {
        lines.push_back(std::to_string(run.run.rect.left) + "," + std::to_string(run.run.rect.top) + " ");
      }
      line = run.run.line;
      lines.back() += ToUtf8(run.run.text);
    }
    return lines;
  }
  void StoreLong(const std::string& name, int value) {
    shell_.Settings().Open();
    shell_.Settings().WriteLong(FromUtf8("wnd_element." + name), value);
    shell_.Settings().Close();
  }
  // The summary of the last run: so many of the sixth category's properties.
  void StoreExtraProperties(int count) {
    StoreLong("Last.Count", count);
    for (int k = 0; k < count; ++k) {
      StoreLong("Last.Cat[" + std::to_string(k) + "]", 5);
      StoreLong("Last.Val[" + std::to_string(k) + "]", k);
    }
  }
  // −1000 for what is not there.
  int Stored(const std::string& name) {
    shell_.Settings().Open();
    const int value = shell_.Settings().ReadLong(FromUtf8("wnd_element." + name), -1000);
    shell_.Settings().Close();
    return value;
  }
  // A stored list: "3.5 3.1".
  std::string StoredList(const std::string& owner) {
    std::string list;
    for (int k = 0; k < Stored(owner + "Count"); ++k) {
      const std::string index = "[" + std::to_string(k) + "]";
      list += (k ? " " : "") + std::to_string(Stored(owner + "Cat" + index)) + "." +
              std::to_string(Stored(owner + "Val" + index));
    }
    return list;
  }

  TestShell shell_;
  ElementsDatabase elements_;
  RecordingNavigator navigator_;
  std::unique_ptr<wnd_element> tool_;
};

}  // namespace orvane::testing
