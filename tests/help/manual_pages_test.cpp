// The manual's own pages on the screen: nothing is cut, and no heading or link stands by itself.
#include "base/styled_text.h"
#include "help/look.h"
#include "tests/help/help_bed.h"

namespace orvane::testing {
namespace {

class ManualPages : public HelpTest {
 protected:
  ManualPages() {
    std::filesystem::copy_file(ORVANE_BIN_DIR "/help.dat", Path());
    CreateHelpFont(shell_.GetDevice(), kNoWindow, font_, false);
    viewer_->ShowPage(0);
    shell_.Settle();
  }
  int WidthOf(TextView text) {
    TextEngine& engine = shell_.Engine();
    engine.SelectFontFamily(&font_);
    const int width = engine.MeasureText(text).width;
    engine.SelectFontFamily(nullptr);
    return width;
  }

  FontFamily font_;
};

TEST_F(ManualPages, HaveTitlesAndLinksThatFit) {
  for (const HelpPage& page : viewer_->File().Pages()) {
    EXPECT_LE(WidthOf(page.title), kHelpTextRight - kHelpTextLeft) << ToUtf8(page.title);
  }
  for (const ContentsEntry& entry : viewer_->File().Contents()) {
    const int width = 17 * entry.level + 50 + WidthOf(viewer_->File().EntryText(entry));
    EXPECT_LE(width, kHelpWidth) << ToUtf8(viewer_->File().EntryText(entry));
  }
}

// A word that is wider than the page would be broken in two.
TEST_F(ManualPages, BreakLinesBetweenWordsOnly) {
  const std::vector<HelpPage>& pages = viewer_->File().Pages();
  for (std::size_t i = 0; i < pages.size(); ++i) {
    Show(pages[i].id);
    const std::shared_ptr<const HelpPageBody> body = pages[i].body;
    for (const Text& paragraph : body->paragraphs) {
      Text word;
      for (const Char c : paragraph + u" ") {
        const bool ends = c == u' ' || c == kNewLine;
        if (!ends) word.push_back(c);
        if (!ends) continue;
        EXPECT_LE(WidthOf(word), kHelpTextRight - kHelpTextLeft) << ToUtf8(WithoutCodes(word));
        word.clear();
      }
    }
  }
}

TEST_F(ManualPages, HaveTextBelowTheirHeadings) {
  const std::vector<HelpPage>& pages = viewer_->File().Pages();
  for (std::size_t i = 0; i < pages.size(); ++i) {
    Show(pages[i].id);
    const HelpPageBody& body = *pages[i].body;
    ASSERT_FALSE(body.paragraphs.empty()) << ToUtf8(pages[i].title);
    for (const TextView paragraph : body.paragraphs) {
      const bool bold =
          paragraph.size() > 1 && paragraph[0] == kStyleMark && StyleFromFlags(paragraph[1]).bold;
      const bool headingAlone = bold && paragraph.find(kNewLine) == TextView::npos &&
                                paragraph.find(kStyleMark, 2) == paragraph.size() - 2;
      EXPECT_FALSE(headingAlone) << ToUtf8(pages[i].title) << ": " << ToUtf8(WithoutCodes(paragraph));
    }
  }
}

TEST_F(ManualPages, CanBeReadFromTheFirstToTheLast) {
  std::vector<int> read = {CurrentId()};
  while (Press(8924)) read.push_back(CurrentId());
  EXPECT_EQ(read.size(), viewer_->File().Pages().size());
  while (Press(8923)) {
  }
  EXPECT_EQ(CurrentId(), 0);
}

}  // namespace
}  // namespace orvane::testing
