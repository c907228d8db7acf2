// Formulas and equation sides, cut into tokens: symbols, numbers, brackets, plus signs.
//
// Every character of the text belongs to exactly one token, in order; a zero ends the text. A token's text is
// what was typed, but that the first letter of a symbol is a capital.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "base/text.h"

namespace orvane {

// The last two exist in equations only.
enum TokenKind : std::int32_t {
  TokenUnknown = 0,      // nothing that is understood; shown red
  TokenElement = 1,      // an element's symbol
  TokenNumber = 2,       // an index: how many of the symbol or group before it
  TokenOpen = 3,         // (
  TokenClose = 4,        // )
  TokenPlus = 5,         // + between the terms of an equation
  TokenCoefficient = 6,  // digits that begin a term of an equation
};

struct FormulaToken {
  static constexpr std::size_t kLongestText = 3;

  std::array<Char, kLongestText + 1> text{};  // up to three characters and a zero
  TokenKind kind = TokenUnknown;
  std::int16_t element = -1;  // of TokenElement: its index in the table that the text was read with
  std::uint8_t length = 0;    // in characters

  TextView View() const { return {text.data(), length}; }
};

using FormulaTokens = std::vector<FormulaToken>;

class ElementTable;

// A letter begins a symbol, which goes on with up to two small letters; the longest that is an element's
// symbol wins, and a letter that fits nothing stands alone. A capital always begins a new symbol. A small
// first letter is taken for carelessness, which has one risk: ten pairs that are far more often two elements
// than one (co, hs, no, po, cs, os, ho, cf, sc, sn) are read as two when their first letter is small.
// Digits make numbers of at most three; what is left of a longer run is the next number.
//
// The tokens replace what `tokens` held, whose memory is used again.
void TokeniseFormula(TextView text, const ElementTable& elements, FormulaTokens& tokens);
FormulaTokens TokeniseFormula(TextView text, const ElementTable& elements);

// The same for one side of an equation: a plus sign has a kind of its own, and a number at the very start or
// behind a plus sign is a coefficient.
void TokeniseEquationSide(TextView text, const ElementTable& elements, FormulaTokens& tokens);
FormulaTokens TokeniseEquationSide(TextView text, const ElementTable& elements);

// The texts of the tokens, one behind the other.
Text TokensText(const FormulaTokens& tokens);

}  // namespace orvane
