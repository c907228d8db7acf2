#include "tools/token_box.h"

#include <utility>

#include "base/styled_text.h"
#include "chemistry/formula_tokens.h"

namespace orvane {

namespace {

constexpr Colour kUnknown = Rgb(255, 0, 0);
constexpr Colour kElement = Rgb(45, 45, 255);
constexpr Colour kNumber = Rgb(0, 159, 0);
constexpr Colour kBracket = Rgb(179, 89, 0);

Text Code(Char flags) { return {kStyleMark, flags}; }

InputBoxVariant FormulaVariant() {
  InputBoxVariant variant;
  for (unsigned c = 0; c < 128; ++c) {
    const Char character = static_cast<Char>(c);
    if (IsAsciiLetter(character) || IsAsciiDigit(character)) variant.typeable.set(c);
  }
  variant.typeable.set(u'(');
  variant.typeable.set(u')');
  variant.looks = {
      {kUnknown, {}, {}}, {kElement, {}, {}}, {kNumber, Code(kLoweredFlags), Code(kPlainFlags)},
      {kBracket, {}, {}}, {kBracket, {}, {}},
  };
  return variant;
}

InputBoxVariant EquationVariant() {
  InputBoxVariant variant = FormulaVariant();
  variant.typeable.set(u'+');
  variant.looks.push_back({kBracket, u" ", u" "});
  // A small gap, as wide as a space of an index, keeps a coefficient apart from what it multiplies.
  variant.looks.push_back({kNumber, {}, Code(kLoweredFlags) + u" " + Code(kPlainFlags)});
  return variant;
}

std::vector<InputToken> AsInput(const FormulaTokens& tokens) {
  std::vector<InputToken> input;
  input.reserve(tokens.size());
  for (const FormulaToken& token : tokens) input.push_back({Text(token.View()), token.kind});
  return input;
}

}  // namespace

Tokeniser FormulaTokeniser(const ElementTable& elements) {
  return [&elements](TextView text) { return AsInput(TokeniseFormula(text, elements)); };
}

Tokeniser EquationTokeniser(const ElementTable& elements) {
  return [&elements](TextView text) { return AsInput(TokeniseEquationSide(text, elements)); };
}

FormulaBox::FormulaBox(Shell& shell, WindowHandle owner, int x, int y, int width, int height,
                       Tokeniser tokeniser)
    : CInputBox(shell, owner, x, y, width, height, FormulaVariant()), tokeniser_(std::move(tokeniser)) {}

void FormulaBox::retokenise() { SetTokens(tokeniser_(GetText())); }

EquationBox::EquationBox(Shell& shell, WindowHandle owner, int x, int y, int width, int height,
                         Tokeniser tokeniser)
    : CInputBox(shell, owner, x, y, width, height, EquationVariant()), tokeniser_(std::move(tokeniser)) {}

void EquationBox::retokenise() { SetTokens(tokeniser_(GetText())); }

}  // namespace orvane
