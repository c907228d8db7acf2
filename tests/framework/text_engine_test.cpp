#include "framework/text_engine.h"

#include <gtest/gtest.h>

#include "tests/framework/fake_drawing.h"

namespace orvane {
namespace {

using testing::DrawnRun;
using testing::FakeFonts;
using testing::MakeFakeFamily;
using testing::RecordingCanvas;

// Wide enough for no wrapping unless a test says otherwise; a character is 6 wide, bold 7, shifted 4 or 5.
class TextEngineTest : public ::testing::Test {
 protected:
  TextEngineTest() { engine_.SelectFontFamily(&family_); }

  // "text@x,y" of every run so far, y being the top of its line cell.
  std::vector<std::string> Runs() const {
    std::vector<std::string> list;
    for (const DrawnRun& run : canvas_.runs) {
      list.push_back(ToUtf8(run.text) + "@" + std::to_string(run.at.x) + "," + std::to_string(run.at.y));
    }
    return list;
  }
  // How many runs each line number has, in order of drawing.
  std::vector<int> RunsPerLine() const {
    std::vector<int> counts;
    std::uint32_t line = 0;
    for (const DrawnRun& run : canvas_.runs) {
      if (run.line != line) counts.push_back(0);
      line = run.line;
      ++counts.back();
    }
    return counts;
  }

  FakeFonts fonts_;
  FontFamily family_ = MakeFakeFamily(fonts_);
  RecordingCanvas canvas_;
  TextEngine engine_;
};

using List = std::vector<std::string>;

TEST_F(TextEngineTest, DrawsAPlainTextAsOneRun) {
  engine_.DrawText(canvas_, u"two words", 10, 30);
  EXPECT_EQ(Runs(), List{"two words@10,32"});  // the normal text stands 2 below the top of the line
  EXPECT_EQ(canvas_.runs[0].font, (FontSpec{u"Fake", 12, false, false, false}));
  EXPECT_EQ(canvas_.runs[0].colour, kBlack);
}

TEST_F(TextEngineTest, DrawsInTheColourThatWasSet) {
  engine_.SetTextColour(Rgb(1, 2, 3));
  engine_.DrawText(canvas_, u"a", 0, 0);
  EXPECT_EQ(canvas_.runs[0].colour, Rgb(1, 2, 3));
  EXPECT_EQ(engine_.TextColour(), Rgb(1, 2, 3));
}

TEST_F(TextEngineTest, EachCodeStartsARunInItsStyleBehindTheOneBefore) {
  engine_.DrawText(canvas_, u"ab\x0001!cd\x0001\"ef\x0001#gh\x0001 ij", 0, 0);
  // 2 characters of 6, 2 of 7, 2 of 6, 2 of 7.
  EXPECT_EQ(Runs(), (List{"ab@0,2", "cd@12,2", "ef@26,2", "gh@38,2", "ij@52,2"}));
  const std::vector<std::pair<bool, bool>> styles{
      {false, false}, {true, false}, {false, true}, {true, true}, {false, false}};
  for (std::size_t i = 0; i < styles.size(); ++i) {
    EXPECT_EQ(canvas_.runs[i].font.bold, styles[i].first) << i;
    EXPECT_EQ(canvas_.runs[i].font.italic, styles[i].second) << i;
  }
  EXPECT_EQ(RunsPerLine(), std::vector<int>{5});
}

TEST_F(TextEngineTest, LoweredTextStandsAtTheBottomOfTheLineAndRaisedAtTheTop) {
  engine_.DrawText(canvas_, u"H\x0001`2\x0001 O\x0001\u00A0+", 0, 100);
  // The line box is 100 to 120; the small variants are 10 high and 4 wide.
  EXPECT_EQ(Runs(), (List{"H@0,102", "2@6,110", "O@10,102", "+@16,100"}));
  EXPECT_EQ(canvas_.runs[1].font.pixels, 8);
  EXPECT_EQ(canvas_.runs[3].font.pixels, 8);
  EXPECT_EQ(engine_.MeasureText(u"H\x0001`2\x0001 O\x0001\u00A0+"), (Size{20, 20}));
}

TEST_F(TextEngineTest, WithBothPositionBitsTheTextIsRaised) {
  engine_.DrawText(canvas_, u"\x0001\u00C0x", 0, 100);
  EXPECT_EQ(Runs(), List{"x@0,100"});
}

TEST_F(TextEngineTest, CodesAloneDrawNothingAndHaveNoWidth) {
  engine_.DrawText(canvas_, u"\x0001!\x0001 \x0001`", 0, 0);
  EXPECT_TRUE(canvas_.runs.empty());
  EXPECT_EQ(engine_.MeasureText(u"\x0001!\x0001 \x0001`"), (Size{0, 20}));
  EXPECT_TRUE(engine_.GetCharWidths(u"\x0001!\x0001 \x0001`").empty());
}

TEST_F(TextEngineTest, TheStyleThatWasSetIsWhereATextStartsAndCodesLastForOneText) {
  engine_.SetTextStyle(true, false);
  engine_.DrawText(canvas_, u"a\x0001\"b", 0, 0);
  engine_.DrawText(canvas_, u"c", 0, 0);
  ASSERT_EQ(canvas_.runs.size(), 3u);
  EXPECT_TRUE(canvas_.runs[0].font.bold);
  EXPECT_FALSE(canvas_.runs[1].font.bold);  // a code replaces the whole style
  EXPECT_TRUE(canvas_.runs[1].font.italic);
  EXPECT_TRUE(canvas_.runs[2].font.bold);
  EXPECT_FALSE(canvas_.runs[2].font.italic);
  EXPECT_EQ(engine_.MeasureText(u"ab").width, 14);
}

TEST_F(TextEngineTest, SelectingAFamilyMakesTheStylePlain) {
  engine_.SetTextStyle(true, true);
  EXPECT_EQ(engine_.MeasureText(u"a").width, 7);
  engine_.SelectFontFamily(&family_);
  engine_.DrawText(canvas_, u"a", 0, 0);
  EXPECT_FALSE(canvas_.runs[0].font.bold);
  EXPECT_FALSE(canvas_.runs[0].font.italic);
  EXPECT_EQ(engine_.MeasureText(u"a").width, 6);
  EXPECT_EQ(engine_.Family(), &family_);
}

// --- Lines without a rectangle.

TEST_F(TextEngineTest, ANewLineReturnsToXOneLineHeightDown) {
  engine_.DrawText(canvas_, u"ab\ncde\n\nf", 10, 30);
  EXPECT_EQ(Runs(), (List{"ab@10,32", "cde@10,52", "f@10,92"}));
  EXPECT_EQ(RunsPerLine(), (std::vector<int>{1, 1, 1}));
  EXPECT_EQ(engine_.MeasureText(u"ab\ncde\n\nf"), (Size{18, 80}));
}

TEST_F(TextEngineTest, ATextWithoutARectangleIsNeverWrapped) {
  const Text text(1000, u'x');
  EXPECT_EQ(engine_.MeasureText(text + u" " + text), (Size{6 * 2001, 20}));
}

TEST_F(TextEngineTest, AnEmptyTextIsOneLineHigh) {
  EXPECT_EQ(engine_.MeasureText(u""), (Size{0, 20}));
  EXPECT_EQ(engine_.MeasureText(u"\n"), (Size{0, 40}));
}

TEST_F(TextEngineTest, AStyleLastsOverANewLine) {
  engine_.DrawText(canvas_, u"a\x0001!b\nc", 0, 0);
  EXPECT_EQ(Runs(), (List{"a@0,2", "b@6,2", "c@0,22"}));
  EXPECT_TRUE(canvas_.runs[2].font.bold);
  EXPECT_EQ(RunsPerLine(), (std::vector<int>{2, 1}));
}

TEST_F(TextEngineTest, AZeroEndsTheText) {
  const Text text(u"ab\0cd", 5);
  engine_.DrawText(canvas_, text, 0, 0);
  EXPECT_EQ(Runs(), List{"ab@0,2"});
  EXPECT_EQ(engine_.MeasureText(text).width, 12);
}

TEST_F(TextEngineTest, ACodeThatIsCutOffEndsTheText) {
  engine_.DrawText(canvas_, u"ab\x0001", 0, 0);
  EXPECT_EQ(Runs(), List{"ab@0,2"});
  EXPECT_EQ(engine_.MeasureText(u"ab\x0001"), (Size{12, 20}));
  EXPECT_EQ(engine_.MeasureText(Text(u"ab\x0001\0cd", 6)), (Size{12, 20}));
}

// --- Wrapping. The rectangles' right edges are given as so many characters of 6.

TEST_F(TextEngineTest, BreaksBeforeAWordThatPassesTheRightEdge) {
  const Rect clip{0, 0, 7 * 6, 500};
  engine_.DrawText(canvas_, u"aaa bbb", 0, 0, &clip);
  EXPECT_EQ(Runs(), (List{"aaa @0,2", "bbb@24,2"}));  // "aaa bbb" is just as wide as the rectangle
  canvas_.runs.clear();
  engine_.DrawText(canvas_, u"aaa bbbb", 0, 0, &clip);
  EXPECT_EQ(Runs(), (List{"aaa @0,2", "bbbb@0,22"}));
  EXPECT_EQ(RunsPerLine(), (std::vector<int>{1, 1}));
}

TEST_F(TextEngineTest, AWordCountsWithItsTrailingSpace) {
  const Rect clip{0, 0, 7 * 6, 500};
  engine_.DrawText(canvas_, u"aaa bbb c", 0, 0, &clip);
  EXPECT_EQ(Runs(), (List{"aaa @0,2", "bbb @0,22", "c@24,22"}));
}

TEST_F(TextEngineTest, FurtherLinesStartAtTheLeftEdgeOfTheRectangle) {
  const Rect clip{10, 0, 10 + 8 * 6, 500};
  engine_.DrawText(canvas_, u"aaa bbb\ncc dd", 10 + 4 * 6, 5, &clip);
  // The first line has room for four characters only.
  EXPECT_EQ(Runs(), (List{"aaa @34,7", "bbb@10,27", "cc @10,47", "dd@28,47"}));
  EXPECT_EQ(RunsPerLine(), (std::vector<int>{1, 1, 2}));
}

TEST_F(TextEngineTest, AWordThatChangesStyleInsideIsOneWord) {
  const Rect clip{0, 0, 8 * 6, 500};
  engine_.DrawText(canvas_, u"aaaa HO\x0001`2\x0001 O b", 0, 0, &clip);
  // "aaaa " is 30, "HO" 12, "2" 4 and "O " 12 wide: 58 passes 48.
  EXPECT_EQ(Runs(), (List{"aaaa @0,2", "HO@0,22", "2@12,30", "O @16,22", "b@28,22"}));
  EXPECT_EQ(RunsPerLine(), (std::vector<int>{1, 4}));
}

TEST_F(TextEngineTest, AWordWiderThanTheRectangleBreaksAfterTheLastCharacterThatFits) {
  const Rect clip{0, 0, 4 * 6, 500};
  engine_.DrawText(canvas_, u"abcdefghij kl", 0, 0, &clip);
  EXPECT_EQ(Runs(), (List{"abcd@0,2", "efgh@0,22", "ij @0,42", "kl@0,62"}));
  EXPECT_EQ(RunsPerLine(), (std::vector<int>{1, 1, 1, 1}));
}

TEST_F(TextEngineTest, AWideWordBehindOtherTextStartsOnItsOwnLine) {
  const Rect clip{0, 0, 4 * 6, 500};
  engine_.DrawText(canvas_, u"a bcdefg", 0, 0, &clip);
  EXPECT_EQ(Runs(), (List{"a @0,2", "bcde@0,22", "fg@0,42"}));
}

TEST_F(TextEngineTest, AWideWordBreaksInsideItsStyledPieces) {
  const Rect clip{0, 0, 27, 500};
  engine_.DrawText(canvas_, u"abc\x0001!defg", 0, 0, &clip);
  // 18 + 7 = 25 fits, another 7 does not; then three of 7.
  EXPECT_EQ(Runs(), (List{"abc@0,2", "d@18,2", "efg@0,22"}));
}

TEST_F(TextEngineTest, ARectangleNarrowerThanACharacterHasOneALine) {
  const Rect clip{10, 0, 12, 500};
  engine_.DrawText(canvas_, u"abc", 10, 0, &clip);
  EXPECT_EQ(Runs(), (List{"a@10,2", "b@10,22", "c@10,42"}));
  const Rect inverted{10, 0, -50, 500};
  EXPECT_EQ(engine_.MeasureText(u"abc", &inverted).height, 60);
}

TEST_F(TextEngineTest, AWideWordIsNotBrokenInsideASurrogatePair) {
  const Rect clip{0, 0, 2 * 6, 500};
  engine_.DrawText(canvas_, u"a\U0001D400\U0001D401", 0, 0, &clip);
  ASSERT_EQ(canvas_.runs.size(), 2u);
  EXPECT_EQ(canvas_.runs[0].text, u"a\U0001D400");
  EXPECT_EQ(canvas_.runs[1].text, u"\U0001D401");
  canvas_.runs.clear();
  const Rect narrow{0, 0, 2, 500};  // not even one fits
  engine_.DrawText(canvas_, u"\U0001D400\U0001D401", 0, 0, &narrow);
  ASSERT_EQ(canvas_.runs.size(), 2u);
  EXPECT_EQ(canvas_.runs[0].text, u"\U0001D400");
}

// The space that ends a line may stand behind the right edge; the word before it fits.
TEST_F(TextEngineTest, ATrailingSpaceAloneDoesNotBreakAWord) {
  const Rect clip{0, 0, 3 * 6, 500};
  engine_.DrawText(canvas_, u"abc def", 0, 0, &clip);
  EXPECT_EQ(Runs(), (List{"abc @0,2", "def@0,22"}));
}

TEST_F(TextEngineTest, MeasuresAsItWouldBeWrapped) {
  const Rect clip{100, 50, 100 + 8 * 6, 60};
  // "aaa bbb " is just as wide as the rectangle, "cc" goes on a line of its own.
  EXPECT_EQ(engine_.MeasureText(u"aaa bbb cc", &clip), (Size{48, 40}));
  EXPECT_EQ(engine_.MeasureText(u"aaa bbbb cc", &clip), (Size{7 * 6, 40}));  // "aaa ", "bbbb cc"
  EXPECT_EQ(engine_.MeasureText(u"", &clip), (Size{0, 20}));
}

// --- The rectangle's edges.

TEST_F(TextEngineTest, DrawsNothingWhenTheBottomIsNegative) {
  const Rect above{0, -50, 100, -1};
  engine_.DrawText(canvas_, u"abc", 0, -50, &above);
  engine_.DrawTextEllipsis(canvas_, u"abc", 0, -50, above);
  EXPECT_TRUE(canvas_.runs.empty());
  EXPECT_EQ(canvas_.OpenClips(), 0u);
  const Rect touching{0, -50, 100, 0};
  engine_.DrawText(canvas_, u"abc", 0, -50, &touching);
  EXPECT_EQ(Runs(), List{"abc@0,-48"});
}

TEST_F(TextEngineTest, CutsDrawingAtTheSidesButNotAboveOrBelow) {
  const Rect clip{20, 40, 50, 60};
  engine_.DrawText(canvas_, u"abc", 20, 40, &clip);
  EXPECT_EQ(canvas_.runs[0].clip, (Rect{20, 0, 50, 1000}));
  EXPECT_EQ(canvas_.OpenClips(), 0u);
  canvas_.PushClip({30, 10, 500, 500});
  engine_.DrawText(canvas_, u"abc", 20, 40, &clip);
  EXPECT_EQ(canvas_.runs[1].clip, (Rect{30, 10, 50, 500}));
  EXPECT_EQ(canvas_.OpenClips(), 1u);
}

// --- Flows: one call goes on where the one before ended.

TEST_F(TextEngineTest, AFlowGoesOnBehindTheTextBefore) {
  const Rect clip{10, 0, 10 + 8 * 6, 500};
  TextOrigin origin{{10, 30}, 0, 0};
  engine_.DrawTextAt(canvas_, u"aaa ", 10, 30, &clip, origin);
  EXPECT_EQ(origin.pen, (Point{34, 30}));
  EXPECT_EQ(origin.lineExtent, 24);
  engine_.SetTextStyle(true, false);
  engine_.DrawTextAt(canvas_, u"bbb ccc", 10, 30, &clip, origin);
  // Bold: "bbb " is 28 wide and passes 24 + 28 > 48; "bbb ccc" is 49.
  EXPECT_EQ(Runs(), (List{"aaa @10,32", "bbb @10,52", "ccc@10,72"}));
  EXPECT_EQ(origin.pen, (Point{31, 70}));
  EXPECT_EQ(origin.lineExtent, 28);
}

TEST_F(TextEngineTest, RunsOfAFlowOnOneLineHaveOneNumber) {
  TextOrigin origin{{0, 0}, 0, 0};
  engine_.DrawTextAt(canvas_, u"a", 0, 0, nullptr, origin);
  engine_.DrawTextAt(canvas_, u"b\nc", 0, 0, nullptr, origin);
  engine_.DrawTextAt(canvas_, u"d\n", 0, 0, nullptr, origin);
  engine_.DrawTextAt(canvas_, u"e", 0, 0, nullptr, origin);
  EXPECT_EQ(Runs(), (List{"a@0,2", "b@6,2", "c@0,22", "d@6,22", "e@0,42"}));
  EXPECT_EQ(RunsPerLine(), (std::vector<int>{2, 2, 1}));
}

TEST_F(TextEngineTest, SeparateDrawingsHaveNumbersOfTheirOwn) {
  engine_.DrawText(canvas_, u"a", 0, 0);
  engine_.DrawText(canvas_, u"b", 6, 0);
  EXPECT_EQ(RunsPerLine(), (std::vector<int>{1, 1}));
}

TEST_F(TextEngineTest, AMeasuredFlowMovesLikeADrawnOne) {
  const Rect clip{10, 0, 10 + 8 * 6, 500};
  TextOrigin drawn{{10, 30}, 0, 0};
  TextOrigin measured{{10, 30}, 0, 0};
  const std::vector<std::pair<TextView, Size>> parts{
      {u"aaa ", {24, 20}},         // on the first line
      {u"bbbb cc\nd", {42, 60}},   // "bbbb cc" on the second line, "d" on the third
      {u"", {42, 20}},             // still touches the third
      {u"eeeee fffff", {42, 40}},  // "deeeee " and "fffff"
  };
  for (const auto& [text, size] : parts) {
    engine_.DrawTextAt(canvas_, text, 10, 30, &clip, drawn);
    EXPECT_EQ(engine_.MeasureTextAt(text, &clip, measured), size);
    EXPECT_EQ(measured.pen, drawn.pen);
    EXPECT_EQ(measured.lineExtent, drawn.lineExtent);
  }
  EXPECT_EQ(measured.pen, (Point{10 + 5 * 6, 30 + 3 * 20}));
}

TEST_F(TextEngineTest, MeasuringDrawsNothing) {
  TextOrigin origin;
  engine_.MeasureText(u"abc");
  engine_.MeasureTextAt(u"abc", nullptr, origin);
  EXPECT_TRUE(canvas_.runs.empty());
  EXPECT_EQ(origin.pen, (Point{18, 0}));
}

// --- Widths of characters.

TEST_F(TextEngineTest, EachVisibleCharacterHasItsWidth) {
  EXPECT_EQ(engine_.GetCharWidths(u"a\x0001!b\x0001`c\x0001\u00A1d\x0001 e\nf"),
            (std::vector<int>{6, 7, 4, 5, 6, 0, 6}));
  EXPECT_EQ(engine_.GetCharWidths(u"\U0001D400x"), (std::vector<int>{6, 0, 6}));
  engine_.SetTextStyle(true, false);
  EXPECT_EQ(engine_.GetCharWidths(u"a\x0001 b"), (std::vector<int>{7, 6}));
  EXPECT_EQ(engine_.GetCharWidths(u"a\x0001"), std::vector<int>{7});
  EXPECT_EQ(engine_.GetCharWidths(Text(u"a\0b", 3)), std::vector<int>{7});
  EXPECT_TRUE(engine_.GetCharWidths(u"").empty());
}

// --- The ellipsis.

TEST_F(TextEngineTest, ATextThatFitsHasNoDots) {
  const Rect clip{10, 0, 10 + 5 * 6, 20};
  engine_.DrawTextEllipsis(canvas_, u"abcde", 10, 0, clip);
  EXPECT_EQ(Runs(), List{"abcde@10,2"});
}

TEST_F(TextEngineTest, ATextThatDoesNotFitKeepsTheLongestPrefixThatLeavesRoomForDots) {
  const Rect clip{10, 0, 10 + 5 * 6, 20};
  engine_.DrawTextEllipsis(canvas_, u"abcdef", 10, 0, clip);
  EXPECT_EQ(Runs(), (List{"ab@10,2", "...@22,2"}));
  EXPECT_EQ(RunsPerLine(), std::vector<int>{2});
  EXPECT_EQ(canvas_.runs[0].clip, (Rect{10, 0, 40, 1000}));
  canvas_.runs.clear();
  // One pixel less than two characters and the dots need.
  engine_.DrawTextEllipsis(canvas_, u"abcdef", 10, 0, {10, 0, 10 + 29, 20});
  EXPECT_EQ(Runs(), (List{"a@10,2", "...@16,2"}));
}

TEST_F(TextEngineTest, AnEllipsisIsNotWrappedAtSpaces) {
  engine_.DrawTextEllipsis(canvas_, u"a b c d e f", 0, 0, {0, 0, 9 * 6, 20});
  EXPECT_EQ(Runs(), (List{"a b c @0,2", "...@36,2"}));
}

TEST_F(TextEngineTest, TheKeptPrefixKeepsItsCodesAndTheDotsTheStyleAtTheCut) {
  engine_.DrawTextEllipsis(canvas_, u"ab\x0001!cdef\x0001 gh", 0, 0, {0, 0, 50, 20});
  // 12 + 7 + 7 = 26 and bold dots of 21 make 47; a third bold character would make 54.
  EXPECT_EQ(Runs(), (List{"ab@0,2", "cd@12,2", "...@26,2"}));
  EXPECT_FALSE(canvas_.runs[0].font.bold);
  EXPECT_TRUE(canvas_.runs[1].font.bold);
  EXPECT_TRUE(canvas_.runs[2].font.bold);
}

TEST_F(TextEngineTest, TheDotsOfAnIndexStandWhereTheIndexStands) {
  engine_.DrawTextEllipsis(canvas_, u"C\x0001`1234567890", 0, 0, {0, 0, 30, 20});
  // 6 + 3 × 4 and dots of 12 make 30.
  EXPECT_EQ(Runs(), (List{"C@0,2", "123@6,10", "...@18,10"}));
}

TEST_F(TextEngineTest, DotsThatDoNotFitAreDrawnAndCut) {
  engine_.DrawTextEllipsis(canvas_, u"abcdef", 5, 0, {5, 0, 5 + 17, 20});
  EXPECT_EQ(Runs(), List{"...@5,2"});
  EXPECT_EQ(canvas_.runs[0].clip, (Rect{5, 0, 22, 1000}));
}

TEST_F(TextEngineTest, ARectangleWithoutWidthHasNoDots) {
  engine_.DrawTextEllipsis(canvas_, u"abc", 5, 0, {5, 0, 5, 20});
  engine_.DrawTextEllipsis(canvas_, u"", 5, 0, {5, 0, 0, 20});
  EXPECT_TRUE(canvas_.runs.empty());
}

TEST_F(TextEngineTest, AnEllipsisNeverPartsASurrogatePair) {
  // Four pairs of 6 are 24 wide; one pair and the dots take 24, too.
  engine_.DrawTextEllipsis(canvas_, u"\U0001D400\U0001D401\U0001D402\U0001D403\U0001D404", 0, 0,
                           {0, 0, 25, 20});
  ASSERT_EQ(canvas_.runs.size(), 2u);
  EXPECT_EQ(canvas_.runs[0].text, u"\U0001D400");
  EXPECT_EQ(canvas_.runs[1].at.x, 6);
}

TEST_F(TextEngineTest, AnEllipsisStartsInTheStyleThatWasSet) {
  engine_.SetTextStyle(true, false);
  engine_.DrawTextEllipsis(canvas_, u"abcdef", 0, 0, {0, 0, 35, 20});
  EXPECT_EQ(Runs(), (List{"ab@0,2", "...@14,2"}));
  EXPECT_TRUE(canvas_.runs[1].font.bold);
}

// --- No family.

TEST_F(TextEngineTest, WithoutAFamilyEverythingIsZeroWideAndNothingIsDrawn) {
  const FontFamily empty;
  for (const FontFamily* family : {static_cast<const FontFamily*>(nullptr), &empty}) {
    engine_.SelectFontFamily(family);
    const Rect clip{0, 0, 100, 100};
    TextOrigin origin{{5, 6}, 7, 8};
    engine_.DrawText(canvas_, u"abc", 0, 0, &clip);
    engine_.DrawTextAt(canvas_, u"abc", 0, 0, &clip, origin);
    engine_.DrawTextEllipsis(canvas_, u"abc", 0, 0, clip);
    EXPECT_EQ(engine_.MeasureText(u"abc\x0001!d", &clip).width, 0);
    EXPECT_EQ(engine_.MeasureTextAt(u"abc", &clip, origin).width, 0);
    EXPECT_EQ(engine_.GetCharWidths(u"ab\x0001!c"), (std::vector<int>{0, 0, 0}));
  }
  EXPECT_TRUE(canvas_.runs.empty());
  EXPECT_EQ(canvas_.OpenClips(), 0u);
}

}  // namespace
}  // namespace orvane
