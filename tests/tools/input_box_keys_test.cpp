// What keys do to an input box.
#include <algorithm>

#include "tests/tools/input_box_fixture.h"

namespace orvane {
namespace {

class InputBoxKeysTest : public testing::InputBoxTest {};

using Changes = std::vector<Text>;

// --- The six keys

TEST_F(InputBoxKeysTest, HomeEndLeftAndRightMoveTheCaret) {
  MakeFocused(u"helium");
  EXPECT_EQ(State(), "6 0 0");
  Key(VK_HOME);
  EXPECT_EQ(State(), "0 0 0");
  Key(VK_RIGHT);
  Key(VK_RIGHT);
  EXPECT_EQ(State(), "2 0 0");
  Key(VK_LEFT);
  EXPECT_EQ(State(), "1 0 0");
  Key(VK_END);
  EXPECT_EQ(State(), "6 0 0");
  EXPECT_EQ(changes_, Changes{});
}

TEST_F(InputBoxKeysTest, TheCaretStopsAtBothEnds) {
  MakeFocused(u"he");
  Key(VK_RIGHT);
  EXPECT_EQ(State(), "2 0 0");
  Key(VK_HOME);
  Key(VK_LEFT);
  EXPECT_EQ(State(), "0 0 0");
}

TEST_F(InputBoxKeysTest, WithShiftTheySelect) {
  MakeFocused(u"helium");
  ShiftKey(VK_LEFT);
  EXPECT_EQ(State(), "5 5 1");
  ShiftKey(VK_HOME);
  EXPECT_EQ(State(), "0 0 6");
  ShiftKey(VK_RIGHT);
  EXPECT_EQ(State(), "1 1 5");
  ShiftKey(VK_END);
  EXPECT_EQ(State(), "6 0 0");
}

// The end that is not at the caret stays, on whichever side of it the caret goes.
TEST_F(InputBoxKeysTest, TheOtherEndOfTheSelectionIsItsAnchor) {
  MakeFocused(u"abcdef");
  Key(VK_HOME);
  Key(VK_RIGHT);
  Key(VK_RIGHT);
  Key(VK_RIGHT);
  ShiftKey(VK_RIGHT);
  ShiftKey(VK_RIGHT);
  EXPECT_EQ(State(), "5 3 2");
  ShiftKey(VK_HOME);
  EXPECT_EQ(State(), "0 0 3");
  ShiftKey(VK_END);
  EXPECT_EQ(State(), "6 3 3");
  ShiftKey(VK_LEFT);
  EXPECT_EQ(State(), "5 3 2");
}

TEST_F(InputBoxKeysTest, AMoveWithoutShiftDropsTheSelection) {
  MakeFocused(u"helium");
  ShiftKey(VK_LEFT);
  ShiftKey(VK_LEFT);
  Key(VK_LEFT);
  EXPECT_EQ(State(), "3 0 0");
  ShiftKey(VK_RIGHT);
  Key(VK_RIGHT);
  EXPECT_EQ(State(), "5 0 0");
}

TEST_F(InputBoxKeysTest, BackspaceRemovesTheCharacterBeforeTheCaret) {
  MakeFocused(u"helium");
  Key(VK_LEFT);
  Key(VK_BACK);
  EXPECT_EQ(box_->GetText(), u"helim");
  EXPECT_EQ(State(), "4 0 0");
  EXPECT_EQ(changes_, (Changes{u"helim"}));
  EXPECT_EQ(box_->Tokens().size(), 5u);
}

TEST_F(InputBoxKeysTest, DeleteRemovesTheCharacterAtTheCaret) {
  MakeFocused(u"helium");
  Key(VK_HOME);
  Key(VK_DELETE);
  EXPECT_EQ(box_->GetText(), u"elium");
  EXPECT_EQ(State(), "0 0 0");
  EXPECT_EQ(changes_, (Changes{u"elium"}));
}

TEST_F(InputBoxKeysTest, BothRemoveTheSelection) {
  MakeFocused(u"helium");
  ShiftKey(VK_HOME);
  ShiftKey(VK_RIGHT);
  Key(VK_BACK);
  EXPECT_EQ(box_->GetText(), u"h");
  EXPECT_EQ(State(), "1 0 0");
  Put(u"neon");
  ShiftKey(VK_HOME);  // the caret is at 0, where Backspace alone does nothing
  Key(VK_BACK);
  EXPECT_EQ(box_->GetText(), u"");
  Put(u"neon");
  Key(VK_HOME);
  ShiftKey(VK_END);  // the caret is at the end, where Delete alone does nothing
  Key(VK_DELETE);
  EXPECT_EQ(box_->GetText(), u"");
}

TEST_F(InputBoxKeysTest, AtTheEndsThereIsNothingToRemove) {
  MakeFocused(u"he");
  Key(VK_DELETE);
  Key(VK_HOME);
  Key(VK_BACK);
  EXPECT_EQ(box_->GetText(), u"he");
  EXPECT_EQ(changes_, Changes{});
  Put(u"");
  Key(VK_BACK);
  Key(VK_DELETE);
  EXPECT_EQ(changes_, Changes{});
}

// --- Typing

TEST_F(InputBoxKeysTest, TypedCharactersStandAtTheCaret) {
  MakeFocused();
  Type(u"hium");
  Key(VK_HOME);
  Key(VK_RIGHT);
  Type(u"el");
  EXPECT_EQ(box_->GetText(), u"helium");
  EXPECT_EQ(State(), "3 0 0");
  EXPECT_EQ(changes_, (Changes{u"h", u"hi", u"hiu", u"hium", u"heium", u"helium"}));
  EXPECT_EQ(box_->Tokens().size(), 6u);
}

TEST_F(InputBoxKeysTest, TypingReplacesTheSelection) {
  MakeFocused(u"helium");
  ShiftKey(VK_LEFT);
  Type(u"x");
  EXPECT_EQ(box_->GetText(), u"heliux");
  EXPECT_EQ(State(), "6 0 0");
  ShiftKey(VK_HOME);
  Type(u"y");
  EXPECT_EQ(box_->GetText(), u"y");
  EXPECT_EQ(State(), "1 0 0");
}

TEST_F(InputBoxKeysTest, APlainBoxTakesEveryPrintableCharacterOfAscii) {
  MakeFocused();
  for (unsigned c = 0; c < 256; ++c) {
    changes_.clear();
    Type(Text(1, static_cast<Char>(c)));
    EXPECT_EQ(changes_.size(), c >= 32 && c <= 126 ? 1u : 0u) << c;
  }
  EXPECT_EQ(box_->GetText().size(), 95u);
  EXPECT_EQ(box_->GetText().front(), u' ');
  EXPECT_EQ(box_->GetText().back(), u'~');
}

// Only the low eight bits are looked up: U+0141 has those of "A", U+0100 those of a control character.
TEST_F(InputBoxKeysTest, ACharacterOfAnotherScriptIsTakenByItsLowBits) {
  MakeFocused();
  Type(u"Ł");
  Type(u"Ā");
  EXPECT_EQ(box_->GetText(), u"Ł");
}

TEST_F(InputBoxKeysTest, TheTwoHundredAndFiftyFirstCharacterIsRefused) {
  MakeFocused(Text(249, u'x'));
  Type(u"y");
  EXPECT_EQ(box_->GetText().size(), 250u);
  EXPECT_EQ(changes_.size(), 1u);
  Type(u"z");
  EXPECT_EQ(box_->GetText(), Text(249, u'x') + u"y");
  EXPECT_EQ(changes_.size(), 1u);
}

TEST_F(InputBoxKeysTest, AFullTextRefusesACharacterThatWouldReplaceASelection) {
  MakeFocused(Text(250, u'x'));
  ShiftKey(VK_HOME);
  Type(u"y");
  EXPECT_EQ(box_->GetText(), Text(250, u'x'));
  EXPECT_EQ(State(), "0 0 250");
  EXPECT_EQ(changes_, Changes{});
  Key(VK_DELETE);
  Type(u"y");
  EXPECT_EQ(box_->GetText(), u"y");
}

// --- Other keys

TEST_F(InputBoxKeysTest, ControlASelectsEverything) {
  MakeFocused(u"helium");
  Key(VK_HOME);
  Key('A', {.shift = false, .control = true, .alt = false});
  EXPECT_EQ(State(), "6 0 6");
  Type(u"x");
  EXPECT_EQ(box_->GetText(), u"x");
  Put(u"");
  Key('A', {.shift = false, .control = true, .alt = false});
  EXPECT_EQ(State(), "0 0 0");
}

// Control and Alt together are how some keyboards type a character.
TEST_F(InputBoxKeysTest, WithFurtherKeysHeldControlASelectsNothing) {
  MakeFocused(u"helium");
  owner_->seen.clear();
  Key('A', {.shift = false, .control = true, .alt = true});
  Key('A', {.shift = true, .control = true, .alt = false});
  EXPECT_EQ(State(), "6 0 0");
  const std::pair<std::uint32_t, WParam> toOwner{WM_KEYDOWN, 'A'};
  EXPECT_EQ(std::count(owner_->seen.begin(), owner_->seen.end(), toOwner), 2);
}

TEST_F(InputBoxKeysTest, KeysThatAreNotItsOwnGoToTheOwner) {
  MakeFocused(u"helium");
  owner_->seen.clear();
  for (const int key : {VK_UP, VK_DOWN, VK_TAB, VK_RETURN, VK_ESCAPE, VK_NEXT, VK_PRIOR, int{'A'}}) Key(key);
  std::vector<std::pair<std::uint32_t, WParam>> expected;
  for (const int key : {VK_UP, VK_DOWN, VK_TAB, VK_RETURN, VK_ESCAPE, VK_NEXT, VK_PRIOR, int{'A'}}) {
    expected.emplace_back(WM_KEYDOWN, static_cast<WParam>(key));
  }
  EXPECT_EQ(owner_->seen, expected);
  EXPECT_EQ(State(), "6 0 0");
  EXPECT_EQ(changes_, Changes{});
  for (const int key : {VK_HOME, VK_END, VK_LEFT, VK_RIGHT, VK_BACK, VK_DELETE}) Key(key);
  EXPECT_EQ(owner_->seen, expected);
}

}  // namespace
}  // namespace orvane
