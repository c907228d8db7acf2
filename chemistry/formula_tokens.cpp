#include "chemistry/formula_tokens.h"

#include <algorithm>

#include "chemistry/element_table.h"

namespace orvane {

namespace {

// Pairs that are read as two elements when the first letter is small.
constexpr bool IsSplitPair(Char first, Char second) {
  switch (second) {
    case u'o':
      return first == u'c' || first == u'n' || first == u'p' || first == u'h';
    case u's':
      return first == u'h' || first == u'c' || first == u'o';
    case u'f':
      return first == u'c';
    case u'c':
    case u'n':
      return first == u's';
    default:
      return false;
  }
}

// Cuts the symbol at the front of the text, which begins with a letter.
FormulaToken TakeSymbol(TextView text, const ElementTable& elements) {
  std::size_t length = 1;
  while (length < ElementTable::kLongestSymbol && length < text.size() && IsAsciiLower(text[length])) {
    ++length;
  }
  FormulaToken token;
  for (;; --length) {
    if (length == 2 && IsSplitPair(text[0], text[1])) length = 1;
    token.element = static_cast<std::int16_t>(elements.Find(text.substr(0, length)));
    if (token.element >= 0 || length == 1) break;
  }
  token.kind = token.element >= 0 ? TokenElement : TokenUnknown;
  token.length = static_cast<std::uint8_t>(length);
  std::copy_n(text.begin(), length, token.text.begin());
  token.text[0] = AsciiUpper(token.text[0]);
  return token;
}

FormulaToken TakeNumber(TextView text, TokenKind kind) {
  FormulaToken token;
  token.kind = kind;
  while (token.length < FormulaToken::kLongestText && token.length < text.size() &&
         IsAsciiDigit(text[token.length])) {
    token.text[token.length] = text[token.length];
    ++token.length;
  }
  return token;
}

FormulaToken TakeSign(Char c, bool inEquation) {
  FormulaToken token;
  token.text[0] = c;
  token.length = 1;
  if (c == u'(') token.kind = TokenOpen;
  if (c == u')') token.kind = TokenClose;
  if (c == u'+' && inEquation) token.kind = TokenPlus;
  return token;
}

void Tokenise(TextView text, const ElementTable& elements, bool inEquation, FormulaTokens& tokens) {
  tokens.clear();
  text = text.substr(0, text.find(u'\0'));
  while (!text.empty()) {
    if (IsAsciiLetter(text.front())) {
      tokens.push_back(TakeSymbol(text, elements));
    } else if (IsAsciiDigit(text.front())) {
      const bool beginsTerm = inEquation && (tokens.empty() || tokens.back().kind == TokenPlus);
      tokens.push_back(TakeNumber(text, beginsTerm ? TokenCoefficient : TokenNumber));
    } else {
      tokens.push_back(TakeSign(text.front(), inEquation));
    }
    text.remove_prefix(tokens.back().length);
  }
}

}  // namespace

void TokeniseFormula(TextView text, const ElementTable& elements, FormulaTokens& tokens) {
  Tokenise(text, elements, false, tokens);
}

FormulaTokens TokeniseFormula(TextView text, const ElementTable& elements) {
  FormulaTokens tokens;
  TokeniseFormula(text, elements, tokens);
  return tokens;
}

void TokeniseEquationSide(TextView text, const ElementTable& elements, FormulaTokens& tokens) {
  Tokenise(text, elements, true, tokens);
}

FormulaTokens TokeniseEquationSide(TextView text, const ElementTable& elements) {
  FormulaTokens tokens;
  TokeniseEquationSide(text, elements, tokens);
  return tokens;
}

Text TokensText(const FormulaTokens& tokens) {
  Text text;
  for (const FormulaToken& token : tokens) text += token.View();
  return text;
}

}  // namespace orvane
