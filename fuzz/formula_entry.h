// Any bytes as a formula, typed or read as people write them.
#pragma once

#include <string_view>

#include "base/text.h"
#include "chemistry/formula_tokens.h"
#include "chemistry/mass.h"
#include "cli/notation.h"
#include "fuzz/fuzz_elements.h"
#include "fuzz/require.h"

namespace orvane::fuzz {

// The tokens give the text back, up to capitals and its first zero.
inline void CheckTokens(TextView text, const FormulaTokens& tokens) {
  const TextView upToZero = text.substr(0, text.find(u'\0'));
  const Text read = TokensText(tokens);
  Require(read.size() == upToZero.size());
  for (std::size_t i = 0; i < read.size(); ++i) {
    Require(read[i] == upToZero[i] || read[i] == AsciiUpper(upToZero[i]));
  }
  for (const FormulaToken& token : tokens) {
    Require(token.length >= 1 && token.length <= FormulaToken::kLongestText);
    Require((token.kind == TokenElement) == (token.element >= 0));
  }
}

inline void CheckMass(TextView text, const ElementTable& elements) {
  const FormulaTokens tokens = TokeniseFormula(text, elements);
  CheckTokens(text, tokens);
  const MassResult result = CalculateMass(tokens, elements);
  Require(result.ok == (CheckFormula(tokens) == FormulaFault::kNone));
  Require(result.ok == result.headline.empty());
  Require(result.ok != result.mass.empty());
  if (!result.ok) return;
  // Digits with a point that leaves as many decimals as are told; with brackets around, the same.
  const std::size_t point = result.mass.find(u'.');
  Require(result.dp >= 0 && result.dp <= 8);
  Require(result.dp == 0 ? point == Text::npos
                         : point + 1 + static_cast<std::size_t>(result.dp) == result.mass.size());
  for (const Char c : result.mass) Require(IsAsciiDigit(c) || c == u'.');
  const Text around = u"(" + TokensText(tokens) + u")";
  Require(CalculateMass(TokeniseFormula(around, elements), elements).mass == result.mass);
}

inline void CheckFormulaText(std::string_view bytes) {
  const ElementTable elements = FuzzElements();
  const Text text = FromUtf8(bytes).substr(0, 511);
  CheckMass(text, elements);
  const Reading reading = ReadFormula(text);
  Require(reading.error.empty() || reading.text.empty());
  CheckMass(reading.text, elements);
}

}  // namespace orvane::fuzz
