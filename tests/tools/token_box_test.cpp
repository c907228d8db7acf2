// The boxes whose tokens have kinds: their looks with a tokeniser of the test, and with chemistry's own.
#include <algorithm>

#include "chemistry/element_table.h"
#include "tests/tools/element_files.h"
#include "tests/tools/input_box_fixture.h"

namespace orvane {
namespace {

constexpr Colour kRed = Rgb(255, 0, 0);
constexpr Colour kBlue = Rgb(45, 45, 255);
constexpr Colour kGreen = Rgb(0, 159, 0);
constexpr Colour kBrown = Rgb(179, 89, 0);

// Equal neighbours make one token, of at most three characters; the kind is the character's place here.
std::vector<InputToken> StandIn(TextView text) {
  constexpr TextView kKinds = u"uE2()+c";
  std::vector<InputToken> tokens;
  for (const Char c : text) {
    const std::size_t kind = kKinds.find(c);
    if (!tokens.empty() && tokens.back().text[0] == c && tokens.back().text.size() < 3) {
      tokens.back().text += c;
    } else {
      tokens.push_back({Text(1, c), kind == TextView::npos ? 0 : static_cast<int>(kind)});
    }
  }
  return tokens;
}

class TokenBoxTest : public testing::InputBoxTest {
 protected:
  // With the mass calculator's font: 12 points, shifted characters 10 points, both spacings 3.
  template <class Box>
  void MakeTokens(Tokeniser tokeniser = StandIn) {
    box_ = Make<Box>(std::move(tokeniser));
    box_->SetFont(u"Tahoma", 12, 10, 10, 3, 3);
    box_->TakeFocus();
    shell_.Settle();
  }
  std::vector<Text> Texts() {
    std::vector<Text> texts;
    for (const InputToken& token : box_->Tokens()) texts.push_back(token.text);
    return texts;
  }
  std::vector<int> Kinds() {
    std::vector<int> kinds;
    for (const InputToken& token : box_->Tokens()) kinds.push_back(token.kind);
    return kinds;
  }
  // What each colour shows, in the order of the runs.
  std::vector<std::pair<Text, Colour>> Coloured() {
    std::vector<std::pair<Text, Colour>> shown;
    for (const TextRun& run : Runs()) shown.emplace_back(run.text, run.colour);
    return shown;
  }
  int TypedCharacters() {
    int typed = 0;
    for (unsigned c = 0; c < 256; ++c) {
      const std::size_t before = box_->GetText().size();
      Type(Text(1, static_cast<Char>(c)));
      if (box_->GetText().size() > before) ++typed;
    }
    return typed;
  }
};

using Shown = std::vector<std::pair<Text, Colour>>;

// --- What can be typed

TEST_F(TokenBoxTest, AFormulaTakesLettersDigitsAndRoundBrackets) {
  MakeTokens<FormulaBox>();
  EXPECT_EQ(TypedCharacters(), 26 + 26 + 10 + 2);
  for (const Char c : box_->GetText()) {
    EXPECT_TRUE(IsAsciiLetter(c) || IsAsciiDigit(c) || c == u'(' || c == u')') << int{c};
  }
}

TEST_F(TokenBoxTest, AnEquationTakesThePlusSignToo) {
  MakeTokens<EquationBox>();
  EXPECT_EQ(TypedCharacters(), 26 + 26 + 10 + 2 + 1);
  EXPECT_NE(box_->GetText().find(u'+'), Text::npos);
}

TEST_F(TokenBoxTest, WhatCannotBeTypedCanBePasted) {
  MakeTokens<FormulaBox>();
  Type(u" +.");
  EXPECT_EQ(box_->GetText(), u"");
  GetDevice().SetClipboardText(u"E .+");
  box_->Paste();
  EXPECT_EQ(box_->GetText(), u"E .+");
}

// --- Looks

TEST_F(TokenBoxTest, EachKindHasItsColour) {
  MakeTokens<EquationBox>();
  Put(u"uE2()+c");
  EXPECT_EQ(Kinds(), (std::vector<int>{0, 1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(Coloured(), (Shown{{u"u", kRed},
                               {u"E", kBlue},
                               {u"2", kGreen},
                               {u"(", kBrown},
                               {u")", kBrown},
                               {u" + ", kBrown},
                               {u"c", kGreen},
                               {u" ", kGreen}}));
}

TEST_F(TokenBoxTest, AKindBeyondTheTableLooksUnknown) {
  MakeTokens<FormulaBox>();
  Put(u"+c");  // kinds 5 and 6 are an equation's
  EXPECT_EQ(Coloured(), (Shown{{u"+", kRed}, {u"c", kRed}}));
}

TEST_F(TokenBoxTest, IndicesAreLoweredAndSmall) {
  MakeTokens<FormulaBox>();
  Put(u"E2E");
  const std::vector<TextRun> runs = Runs();
  ASSERT_EQ(runs.size(), 3u);
  EXPECT_EQ(runs[0].font.pixels, 16);
  EXPECT_EQ(runs[1].font.pixels, 13);
  EXPECT_EQ(runs[2].font.pixels, 16);
  // The line box is the normal height and both spacings; the index stands at its bottom.
  const int normal = box_->Font().Variant({}).font->Height();
  EXPECT_EQ(runs[0].rect.top, 2 + 3);
  EXPECT_EQ(runs[1].rect.bottom, 2 + normal + 3 + 3);
  EXPECT_EQ(runs[2].rect.top, runs[0].rect.top);
  EXPECT_EQ(runs[0].rect.left, 4);
  EXPECT_EQ(runs[1].rect.left, runs[0].rect.right);
  EXPECT_EQ(runs[2].rect.left, runs[1].rect.right);
}

TEST_F(TokenBoxTest, TheGapBehindACoefficientIsALoweredSpace) {
  MakeTokens<EquationBox>();
  Put(u"ccE");
  const std::vector<TextRun> runs = Runs();
  ASSERT_EQ(runs.size(), 3u);
  EXPECT_EQ(runs[0].text, u"cc");
  EXPECT_EQ(runs[0].font.pixels, 16);
  EXPECT_EQ(runs[1].text, u" ");
  EXPECT_EQ(runs[1].font.pixels, 13);
  EXPECT_EQ(runs[2].font.pixels, 16);
  EXPECT_EQ(runs[2].rect.left, 4 + WidthOf(u"cc") + WidthOf(u" ", TextPosition::kLowered));
}

// --- Caret positions

// A caret stands before what precedes its token, behind what follows it, and between its characters.
TEST_F(TokenBoxTest, CaretPositionsFollowTheTokens) {
  MakeTokens<EquationBox>();
  Put(u"cc+EE22");
  const int gap = WidthOf(u" ", TextPosition::kLowered);
  const int plus = WidthOf(u" + ");
  const int index = WidthOf(u"2", TextPosition::kLowered);
  const int c = WidthOf(u"c");
  const int e = WidthOf(u"E");
  const std::vector<int> expected{0,
                                  c,
                                  2 * c + gap,
                                  2 * c + gap + plus,
                                  2 * c + gap + plus + e,
                                  2 * c + gap + plus + 2 * e,
                                  2 * c + gap + plus + 2 * e + index,
                                  2 * c + gap + plus + 2 * e + 2 * index};
  Key(VK_HOME);
  for (const int x : expected) {
    EXPECT_EQ(Pixel(4 + x, 5), 0x000000u) << x;
    Key(VK_RIGHT);
  }
  for (std::size_t i = 1; i < expected.size(); ++i) {
    const int middle = expected[i - 1] + expected[i];  // twice the midpoint
    shell_.Tap(box_->Handle(), {4 + (middle - 1) / 2, 10});
    EXPECT_EQ(box_->Caret(), static_cast<int>(i) - 1);
    shell_.Tap(box_->Handle(), {4 + (middle + 1) / 2, 10});
    EXPECT_EQ(box_->Caret(), static_cast<int>(i));
  }
}

TEST_F(TokenBoxTest, RetokenisesAfterEveryEdit) {
  MakeTokens<FormulaBox>();
  Type(u"E2");
  EXPECT_EQ(Texts(), (std::vector<Text>{u"E", u"2"}));
  Type(u"2");
  EXPECT_EQ(Texts(), (std::vector<Text>{u"E", u"22"}));
  Key(VK_HOME);
  Key(VK_DELETE);
  EXPECT_EQ(Texts(), (std::vector<Text>{u"22"}));
  GetDevice().SetClipboardText(u"(");
  box_->Paste();
  EXPECT_EQ(Texts(), (std::vector<Text>{u"(", u"22"}));
}

// --- With chemistry's tokenisers

class ChemistryBoxTest : public TokenBoxTest {
 protected:
  ChemistryBoxTest() {
    EXPECT_TRUE(testing::LoadShipped(database_));
    elements_ = ElementTable::From(database_.Symbol(), database_.AtomicMass());
  }
  ElementsDatabase database_;
  ElementTable elements_;
};

TEST_F(ChemistryBoxTest, AFormulaIsCapitalisedAndColouredWhileItIsTyped) {
  MakeTokens<FormulaBox>(FormulaTokeniser(elements_));
  Type(u"ca(oh)2x");
  EXPECT_EQ(box_->GetText(), u"ca(oh)2x");  // what was typed stays as it is
  EXPECT_EQ(Coloured(), (Shown{{u"Ca", kBlue},
                               {u"(", kBrown},
                               {u"O", kBlue},
                               {u"H", kBlue},
                               {u")", kBrown},
                               {u"2", kGreen},
                               {u"X", kRed}}));
}

TEST_F(ChemistryBoxTest, PastedBlanksAndPointsAreRedInAFormula) {
  MakeTokens<FormulaBox>(FormulaTokeniser(elements_));
  GetDevice().SetClipboardText(u"h .+");
  box_->Paste();
  EXPECT_EQ(Kinds(), (std::vector<int>{1, 0, 0, 0}));
  EXPECT_EQ(Coloured(), (Shown{{u"H", kBlue}, {u" ", kRed}, {u".", kRed}, {u"+", kRed}}));
}

TEST_F(ChemistryBoxTest, PastedBlanksAndPointsAreBlackInAPlainBox) {
  MakeFocused();
  GetDevice().SetClipboardText(u" .");
  box_->Paste();
  EXPECT_EQ(Coloured(), (Shown{{u" ", kBlack}, {u".", kBlack}}));
}

TEST_F(ChemistryBoxTest, AnEquationHasCoefficientsAndPlusSigns) {
  MakeTokens<EquationBox>(EquationTokeniser(elements_));
  Type(u"2h2+o2");
  EXPECT_EQ(Kinds(), (std::vector<int>{6, 1, 2, 5, 1, 2}));
  EXPECT_EQ(Coloured(), (Shown{{u"2", kGreen},
                               {u" ", kGreen},
                               {u"H", kBlue},
                               {u"2", kGreen},
                               {u" + ", kBrown},
                               {u"O", kBlue},
                               {u"2", kGreen}}));
}

// --- Any text at all

// What must hold of a box whatever is in it.
void Check(const CInputBox& box) {
  const int length = static_cast<int>(box.GetText().size());
  ASSERT_LE(length, 511);
  ASSERT_GE(box.Caret(), 0);
  ASSERT_LE(box.Caret(), length);
  ASSERT_GE(box.SelectionStart(), 0);
  ASSERT_LE(box.SelectionStart() + box.SelectionLength(), length);
  ASSERT_LE(box.Offset(), 4);
  std::size_t covered = 0;
  for (const InputToken& token : box.Tokens()) covered += token.text.size();
  ASSERT_EQ(covered, box.GetText().size());
}

// A generator of its own, so that every system plays the same.
class Chance {
 public:
  explicit Chance(std::uint32_t seed) : state_(seed) {}
  unsigned Below(unsigned limit) {
    state_ = state_ * 1664525u + 1013904223u;
    return (state_ >> 8) % limit;
  }

 private:
  std::uint32_t state_;
};

Text RandomText(Chance& chance) {
  constexpr Char kOdd[] = {1, 2, 10, 13, 127, 0xA0, 0xD800, 0xDC00, 0xD83E, 0xDDEA, 0xFFFF, u'`', u'+', u'('};
  Text text;
  const unsigned length = chance.Below(600);
  for (unsigned i = 0; i < length; ++i) {
    const unsigned which = chance.Below(3);
    text += which == 0   ? kOdd[chance.Below(std::size(kOdd))]
            : which == 1 ? static_cast<Char>(32 + chance.Below(95))
                         : static_cast<Char>(1 + chance.Below(0xFFFE));
  }
  return text;
}

TEST_F(ChemistryBoxTest, NoTextAndNoKeyBreaksABox) {
  Chance chance(20031);
  for (int round = 0; round < 60; ++round) {
    switch (round % 3) {
      case 0:
        MakeTokens<FormulaBox>(FormulaTokeniser(elements_));
        break;
      case 1:
        MakeTokens<EquationBox>(EquationTokeniser(elements_));
        break;
      default:
        MakeFocused();
    }
    for (int step = 0; step < 40; ++step) {
      constexpr int kKeys[] = {VK_HOME, VK_END, VK_LEFT, VK_RIGHT, VK_BACK, VK_DELETE};
      switch (chance.Below(6)) {
        case 0:
          GetDevice().SetClipboardText(RandomText(chance));
          box_->Paste();
          break;
        case 1:
          Type(RandomText(chance).substr(0, 5));
          break;
        case 2:
          Key(kKeys[chance.Below(6)], {.shift = chance.Below(2) == 0, .control = false, .alt = false});
          break;
        case 3:
          shell_.Stroke(box_->Handle(), {{static_cast<int>(chance.Below(224)), 10},
                                         {static_cast<int>(chance.Below(300)) - 40, 10}});
          break;
        case 4:
          box_->CopySelection();
          break;
        default:
          box_->ReplaceText(RandomText(chance));
          box_->retokenise();
          box_->Reset();
      }
      Check(*box_);
      if (step % 8 == 0) shell_.Settle();
    }
  }
}

// --- Surrogate pairs

TEST_F(ChemistryBoxTest, APairIsOneCharacterForCaretAndKeys) {
  const Text cell = u"\U0001F9EA";  // a test tube
  MakeFocused(u"a" + cell + u"b");
  Key(VK_LEFT);
  EXPECT_EQ(box_->Caret(), 3);
  Key(VK_LEFT);
  EXPECT_EQ(box_->Caret(), 1);
  ShiftKey(VK_RIGHT);
  EXPECT_EQ(State(), "3 1 2");
  Key(VK_RIGHT);
  EXPECT_EQ(State(), "4 0 0");
  Key(VK_LEFT);
  Key(VK_BACK);
  EXPECT_EQ(box_->GetText(), u"ab");
  Put(u"a" + cell);
  Key(VK_LEFT);
  Key(VK_DELETE);
  EXPECT_EQ(box_->GetText(), u"a");
  Put(cell);
  Text shown;
  for (const TextRun& run : Runs()) shown += run.text;
  EXPECT_EQ(shown, cell);
  EXPECT_EQ(Runs().size(), 1u);
}

// Typed, pasted or left behind, two halves may come to stand beside each other: the caret is not put between.
TEST_F(ChemistryBoxTest, HalvesThatMeetMakeOneCharacter) {
  const Text high(1, 0xD83E);
  const Text low(1, 0xDDEA);
  MakeFocused(high + u"x" + low);
  Key(VK_LEFT);
  Key(VK_BACK);
  EXPECT_EQ(State(), "0 0 0");
  Put(high + u"x" + low);
  Key(VK_HOME);
  Key(VK_RIGHT);
  Key(VK_DELETE);
  EXPECT_EQ(State(), "0 0 0");
  Put(high);
  GetDevice().SetClipboardText(low);
  box_->Paste();
  EXPECT_EQ(State(), "2 0 0");
  Put(u"abcd");
  Key(VK_LEFT);
  ShiftKey(VK_LEFT);
  ASSERT_EQ(State(), "2 2 1");
  box_->ReplaceText(u"a" + high + low + u"d");
  EXPECT_EQ(State(), "1 1 2");
}

TEST_F(ChemistryBoxTest, PasteDoesNotCutAPair) {
  MakeFocused(Text(510, u'x'));
  GetDevice().SetClipboardText(u"\U0001F9EA");
  box_->Paste();
  EXPECT_EQ(box_->GetText(), Text(510, u'x'));
}

}  // namespace
}  // namespace orvane
