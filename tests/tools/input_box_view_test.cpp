// What of an input box can be seen: how it starts, its caret in view, its blinking, its colours.
#include <set>

#include "tests/tools/input_box_fixture.h"

namespace orvane {
namespace {

class InputBoxViewTest : public testing::InputBoxTest {
 protected:
  void Wait(int milliseconds) {
    shell_.now += milliseconds;
    shell_.Settle();
  }
  int CaretX() {
    return box_->Offset() + WidthOf(box_->GetText().substr(0, static_cast<std::size_t>(box_->Caret())));
  }
  // Of the box's timer.
  int Ticks() {
    int ticks = 0;
    for (const testing::Dispatched& one : shell_.Trace().messages) {
      if (one.window != box_->Handle() || one.message != WM_TIMER) continue;
      EXPECT_EQ(one.w, 8840u);
      ++ticks;
    }
    return ticks;
  }
  int Paints() {
    int count = 0;
    for (const testing::Dispatched& one : shell_.Trace().messages) {
      if (one.window == box_->Handle() && one.message == WM_PAINT) ++count;
    }
    return count;
  }
};

constexpr int kRightmost = testing::kBoxWidth - 20;

// --- Making

TEST_F(InputBoxViewTest, StartsEmpty) {
  MakePlain();
  EXPECT_EQ(GetDevice().ClassName(box_->Handle()), u"ZelFormulaBox");
  EXPECT_EQ(GetDevice().Title(box_->Handle()), u"Caption");
  EXPECT_EQ(GetDevice().Parent(box_->Handle()), owner_->Handle());
  EXPECT_EQ(GetDevice().WindowRect(box_->Handle()), Rect::At(8, 48, 224, 24));
  EXPECT_EQ(GetDevice().Style(box_->Handle()), WS_CHILD | WS_VISIBLE);
  EXPECT_TRUE(GetDevice().IsVisible(box_->Handle()));
  EXPECT_EQ(box_->GetText(), u"");
  EXPECT_TRUE(box_->Tokens().empty());
  EXPECT_EQ(State(), "0 0 0");
  EXPECT_EQ(box_->Offset(), 4);
  EXPECT_FALSE(box_->HasFocus());
}

TEST_F(InputBoxViewTest, HasNoCallbackUntilItsOwnerSetsOne) {
  const PlainBox box(shell_, owner_->Handle(), 0, 0, 100, 24);
  EXPECT_EQ(box.changed, nullptr);
  EXPECT_EQ(box.Font().lineHeight, 0);
}

TEST_F(InputBoxViewTest, ABoxWithoutAWindowSaysSoAndDoesNothing) {
  PlainBox box(shell_, 4711, 0, 0, 100, 24);  // there is no such owner
  EXPECT_EQ(box.Handle(), kNoWindow);
  const auto& shown = shell_.Trace().boxes;
  ASSERT_EQ(shown.size(), 1u);
  EXPECT_EQ(shown[0].caption, u"Orvane");
  EXPECT_EQ(shown[0].text, u"FormulaEditor::CInputBox - CreateWindow failed.");
  EXPECT_EQ(shown[0].icon, MessageIcon::kError);
  box.SetFont(u"Tahoma", 10);
  box.ReplaceText(u"iron");
  box.retokenise();
  box.Reset();
  box.SelectAll();
  box.CopySelection();
  box.Paste();
  box.TakeFocus();
  EXPECT_EQ(box.GetText(), u"iron");
}

TEST_F(InputBoxViewTest, ReportsItsTextCaretAndSelection) {
  MakeFocused(u"iron");
  ShiftKey(VK_LEFT);
  const WindowReport report = box_->Describe();
  EXPECT_EQ(report.className, "ZelFormulaBox");
  EXPECT_EQ(report.text, u"iron");
  EXPECT_EQ(report.caret, 3);
  EXPECT_EQ(report.selection, (std::pair{3, 1}));
  EXPECT_EQ(report.scroll, std::nullopt);
  EXPECT_EQ(box_->UnitName(), "");
}

// --- Keeping the caret in view

TEST_F(InputBoxViewTest, ATextThatFitsStandsAtTheMargin) {
  MakeFocused();
  while (4 + WidthOf(box_->GetText() + u"w") < kRightmost) {
    Type(u"w");
    EXPECT_EQ(box_->Offset(), 4);
  }
  ASSERT_GT(box_->GetText().size(), 10u);
  Key(VK_HOME);
  EXPECT_EQ(box_->Offset(), 4);
}

TEST_F(InputBoxViewTest, ALongTextKeepsTheCaretTwentyPixelsFromTheRightEdge) {
  MakeFocused();
  Type(Text(40, u'w'));
  EXPECT_EQ(CaretX(), kRightmost);
  const int before = box_->Offset();
  Type(u"i");
  EXPECT_EQ(CaretX(), kRightmost);
  EXPECT_EQ(box_->Offset(), before - WidthOf(u"i"));
}

TEST_F(InputBoxViewTest, ACaretBetweenTheBordersLeavesTheTextWhereItIs) {
  MakeFocused(Text(60, u'w'));
  const int offset = box_->Offset();
  ASSERT_LT(offset, 0);
  while (CaretX() - WidthOf(u"w") > 20) {
    Key(VK_LEFT);
    EXPECT_EQ(box_->Offset(), offset);
  }
}

TEST_F(InputBoxViewTest, ACaretAtTheLeftBorderTakesTheTextAlong) {
  MakeFocused(Text(60, u'w'));
  const int offset = box_->Offset();
  while (CaretX() - WidthOf(u"w") > 20) Key(VK_LEFT);
  Key(VK_LEFT);
  EXPECT_EQ(CaretX(), 20);
  EXPECT_GT(box_->Offset(), offset);
  Key(VK_LEFT);
  EXPECT_EQ(CaretX(), 20);
  Key(VK_HOME);
  EXPECT_EQ(box_->Offset(), 4);
  EXPECT_EQ(CaretX(), 4);
  Key(VK_RIGHT);
  EXPECT_EQ(box_->Offset(), 4);
  Key(VK_END);
  EXPECT_EQ(CaretX(), kRightmost);
}

TEST_F(InputBoxViewTest, ATextThatHasBecomeShortIsBackAtTheMargin) {
  MakeFocused(Text(60, u'w'));
  ASSERT_LT(box_->Offset(), 0);
  while (box_->GetText().size() > 5) Key(VK_BACK);
  EXPECT_EQ(box_->Offset(), 4);
  Put(Text(60, u'w'));
  ASSERT_LT(box_->Offset(), 0);
  box_->ReplaceText(u"tin");
  box_->retokenise();
  box_->Reset();
  EXPECT_EQ(box_->Offset(), 4);
}

TEST_F(InputBoxViewTest, DraggingTowardsAnEdgeScrolls) {
  MakeFocused(Text(60, u'w'));
  Key(VK_HOME);
  GetDevice().PenDown(OnScreen(100));
  const int start = box_->Caret();
  for (int i = 0; i < 100; ++i) GetDevice().PenMove(OnScreen(i % 2 == 0 ? 222 : 223));
  EXPECT_EQ(box_->Caret(), 60);
  EXPECT_EQ(box_->SelectionLength(), 60 - start);
  EXPECT_EQ(CaretX(), kRightmost);
  GetDevice().PenUp(OnScreen(222));
}

// --- Blinking

TEST_F(InputBoxViewTest, TheCaretBlinksTwiceASecond) {
  MakeFocused(u"iron");
  EXPECT_TRUE(box_->CaretVisible());
  Wait(499);
  EXPECT_TRUE(box_->CaretVisible());
  Wait(1);
  EXPECT_FALSE(box_->CaretVisible());
  Wait(500);
  EXPECT_TRUE(box_->CaretVisible());
  Wait(500);
  EXPECT_FALSE(box_->CaretVisible());
}

TEST_F(InputBoxViewTest, EveryMoveOfTheCaretShowsIt) {
  MakeFocused(u"iron");
  const std::vector<std::function<void()>> moves{
      [&] { Key(VK_LEFT); },
      [&] { Key(VK_HOME); },
      [&] { Type(u"x"); },
      [&] { Key(VK_BACK); },
      [&] { Key(VK_DELETE); },
      [&] {
        shell_.Tap(box_->Handle(), {10, 10});
      },
      [&] { Key('A', {.shift = false, .control = true, .alt = false}); },
  };
  for (std::size_t i = 0; i < moves.size(); ++i) {
    while (box_->CaretVisible()) Wait(100);
    moves[i]();
    shell_.Settle();
    EXPECT_TRUE(box_->CaretVisible()) << i;
    Wait(499);
    EXPECT_TRUE(box_->CaretVisible()) << i;  // the half second begins with the move
    Wait(1);
    EXPECT_FALSE(box_->CaretVisible()) << i;
  }
}

TEST_F(InputBoxViewTest, ManyMovesLeaveOneTimer) {
  MakeFocused(u"iron");
  for (int i = 0; i < 50; ++i) Key(i % 2 == 0 ? VK_LEFT : VK_RIGHT);
  shell_.Settle();
  shell_.Trace().messages.clear();
  Wait(500);
  EXPECT_EQ(Ticks(), 1);
}

TEST_F(InputBoxViewTest, ItsTimerRunsFromTheStart) {
  MakePlain();
  shell_.Trace().messages.clear();
  Wait(499);
  EXPECT_EQ(Ticks(), 0);
  Wait(1);
  EXPECT_EQ(Ticks(), 1);
}

TEST_F(InputBoxViewTest, AnotherTimerDoesNotBlink) {
  MakeFocused(u"iron");
  GetDevice().Send(box_->Handle(), WM_TIMER, 8841);
  EXPECT_TRUE(box_->CaretVisible());
  GetDevice().Send(box_->Handle(), WM_TIMER, 8840);
  EXPECT_FALSE(box_->CaretVisible());
}

TEST_F(InputBoxViewTest, WithoutTheFocusNothingBlinksAndNothingWakesTheHandHeld) {
  MakePlain();
  shell_.Trace().messages.clear();
  Wait(500);
  EXPECT_EQ(Paints(), 0);
  EXPECT_EQ(GetDevice().Step(shell_.now), std::nullopt);
  box_->TakeFocus();
  EXPECT_NE(GetDevice().Step(shell_.now), std::nullopt);
  Wait(500);
  EXPECT_FALSE(box_->CaretVisible());
  GetDevice().SetFocus(owner_->Handle());
  shell_.Settle();
  shell_.Trace().messages.clear();
  Wait(2000);
  EXPECT_EQ(Paints(), 0);
  EXPECT_EQ(GetDevice().Step(shell_.now), std::nullopt);
}

// --- Colours and places

TEST_F(InputBoxViewTest, IsARoundedFieldOnItsSurround) {
  MakePlain();
  box_->surround = Rgb(230, 242, 255);
  box_->field = Rgb(255, 255, 240);
  box_->outline = Rgb(0, 0, 128);
  box_->Redraw();
  EXPECT_EQ(Pixel(0, 0), 0xE6F2FFu);
  EXPECT_EQ(Pixel(223, 0), 0xE6F2FFu);
  EXPECT_EQ(Pixel(0, 23), 0xE6F2FFu);
  EXPECT_EQ(Pixel(223, 23), 0xE6F2FFu);
  EXPECT_EQ(Pixel(100, 0), 0x000080u);
  EXPECT_EQ(Pixel(100, 23), 0x000080u);
  EXPECT_EQ(Pixel(0, 12), 0x000080u);
  EXPECT_EQ(Pixel(223, 12), 0x000080u);
  EXPECT_EQ(Pixel(100, 12), 0xFFFFF0u);
}

TEST_F(InputBoxViewTest, TheCaretIsALineFourPixelsFromTopAndBottom) {
  MakeFocused(u"iron");
  Key(VK_END);
  const int x = CaretX();
  EXPECT_EQ(Pixel(x, 3), 0xFFFFFFu);
  for (int y = 4; y < 20; ++y) EXPECT_EQ(Pixel(x, y), 0x000000u) << y;
  EXPECT_EQ(Pixel(x, 20), 0xFFFFFFu);
  EXPECT_EQ(Pixel(x + 1, 12), 0xFFFFFFu);
  Wait(500);
  EXPECT_EQ(Pixel(x, 12), 0xFFFFFFu);
  Wait(500);
  EXPECT_EQ(Pixel(x, 12), 0x000000u);
  GetDevice().SetFocus(owner_->Handle());
  EXPECT_EQ(Pixel(x, 12), 0xFFFFFFu);
}

TEST_F(InputBoxViewTest, TheSelectionIsABandBehindTheText) {
  MakeFocused(u"iron");
  Key(VK_HOME);
  Key(VK_RIGHT);
  ShiftKey(VK_RIGHT);
  ShiftKey(VK_RIGHT);
  const int from = 4 + WidthOf(u"i");
  const int to = 4 + WidthOf(u"iro");
  EXPECT_EQ(Pixel(from, 4), 0x93C9FFu);
  EXPECT_EQ(Pixel(to - 1, 4), 0x93C9FFu);
  EXPECT_EQ(Pixel(from, 19), 0x93C9FFu);
  EXPECT_EQ(Pixel(from - 1, 4), 0xFFFFFFu);
  EXPECT_EQ(Pixel(from, 3), 0xFFFFFFu);
  EXPECT_EQ(Pixel(from, 20), 0xFFFFFFu);
  EXPECT_EQ(Pixel(to, 19), 0x000000u);  // the caret
  GetDevice().SetFocus(owner_->Handle());
  EXPECT_EQ(Pixel(to, 19), 0xFFFFFFu);
  EXPECT_EQ(Pixel(from, 19), 0x93C9FFu);  // what is selected stays so
}

TEST_F(InputBoxViewTest, ThePlainTextIsBlackAndOneLine) {
  MakeFocused(u"iron ore");
  const std::vector<TextRun> runs = Runs();
  Text shown;
  int x = 4;
  for (const TextRun& run : runs) {
    EXPECT_EQ(run.rect.left, x);
    EXPECT_EQ(run.rect.top, 2);
    EXPECT_EQ(run.colour, kBlack);
    EXPECT_EQ(run.font.pixels, 13);
    EXPECT_EQ(run.line, runs.front().line);
    x = run.rect.right;
    shown += run.text;
  }
  EXPECT_EQ(shown, u"iron ore");
}

TEST_F(InputBoxViewTest, AScrolledTextIsCutAtTheOutline) {
  MakeFocused(Text(60, u'W'));
  for (const Point edge : {Point{0, 12}, Point{223, 12}}) EXPECT_EQ(Pixel(edge.x, edge.y), 0x000000u);
  Key(VK_HOME);
  Key(VK_RIGHT);
  for (int y = 4; y < 20; ++y) EXPECT_EQ(Pixel(223, y), 0x000000u);
  for (const TextRun& run : Runs()) {
    for (const Rect& shown : run.shown) {
      EXPECT_GE(shown.left, 9);  // in screen coordinates: the box begins at 8
      EXPECT_LE(shown.right, 8 + 223);
    }
  }
}

TEST_F(InputBoxViewTest, ControlCharactersShowAsPlaceholders) {
  MakeFocused();
  GetDevice().SetClipboardText(u"a\u0001!b\nc\u007fd");
  box_->Paste();
  Text shown;
  std::set<std::uint32_t> lines;
  for (const TextRun& run : Runs()) {
    shown += run.text;
    lines.insert(run.line);
    EXPECT_FALSE(run.font.bold);
    EXPECT_EQ(run.rect.top, 2);
  }
  EXPECT_EQ(shown, u"a\uFFFD!b\uFFFDc\uFFFDd");
  EXPECT_EQ(lines.size(), 1u);
  EXPECT_EQ(Pixel(4 + WidthOf(shown), 12), 0x000000u);  // the caret stands behind them all
}

TEST_F(InputBoxViewTest, WithoutAFontThereIsNothingToSee) {
  auto box = std::make_unique<PlainBox>(shell_, owner_->Handle(), 8, 48, 224, 24);
  box->ReplaceText(u"iron");
  box->retokenise();
  box->Reset();
  box_ = std::move(box);
  box_->TakeFocus();
  Key(VK_END);
  EXPECT_EQ(box_->Offset(), 4);
  EXPECT_TRUE(Runs().empty());
  EXPECT_EQ(Pixel(4, 12), 0x000000u);  // the caret
}

}  // namespace
}  // namespace orvane
