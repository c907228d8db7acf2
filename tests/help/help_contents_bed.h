// The contents of the help over its viewer, with a small tree.
#pragma once

#include "tests/help/help_bed.h"

namespace orvane::testing {

class HelpContentsTest : public HelpTest {
 protected:
  //  0 First
  //  1   1 One
  //  2   Inner
  //  3     2 Two
  //  4 Second
  //  5   3 Three
  //  6 4 Four
  void SaveSample() {
    Save({Heading(0, u"First"), PageAt(1, 1), Heading(1, u"Inner"), PageAt(2, 2), Heading(0, u"Second"),
          PageAt(1, 3), PageAt(0, 4)},
         Pages({1, 2, 3, 4, 9}));
  }
  static std::vector<BuiltPage> Pages(const std::vector<int>& ids) {
    std::vector<BuiltPage> pages;
    for (const int id : ids) {
      pages.push_back({id, u"Page " + DecimalText(id), {u"Text."}, {}, 10000, 10000});
    }
    return pages;
  }
  // The contents over the page with this id.
  void ShowContentsAt(int id) {
    Show(id);
    EXPECT_TRUE(Press(8922));
    ASSERT_EQ(FrontTool(), "helpCont");
  }
  int Selected() { return Tree().Tree().Selected(); }
  const std::vector<int>& VisibleRows() { return Tree().Tree().Rows(); }
  bool CanOpen() { return Bar()[0] == "8510 0"; }
  // A content point in the row of an entry, from the entry's indent.
  Point In(int entry, int x, int y = 9) {
    const int row = Tree().Tree().RowOf(entry);
    return {17 * Tree().Tree().Level(entry) + x, 2 + 18 * row + y};
  }
  void Tap(Point content) { TapPanel(Tree(), content); }
  TextRun RunOf(TextView text) {
    for (const TextRun& run : Runs(Tree().Handle())) {
      if (run.text == text) return run;
    }
    ADD_FAILURE() << "no run " << ToUtf8(text);
    return {};
  }
};

}  // namespace orvane::testing
