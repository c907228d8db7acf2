#include "tools/plain_box.h"

namespace orvane {

namespace {

constexpr Char kFirstTypeable = u' ';
constexpr Char kLastTypeable = u'~';

InputBoxVariant PlainVariant() {
  InputBoxVariant variant;
  for (Char c = kFirstTypeable; c <= kLastTypeable; ++c) variant.typeable.set(c);
  variant.looks = {{kBlack, {}, {}}};
  return variant;
}

}  // namespace

PlainBox::PlainBox(Shell& shell, WindowHandle owner, int x, int y, int width, int height)
    : CInputBox(shell, owner, x, y, width, height, PlainVariant()) {}

void PlainBox::retokenise() {
  std::vector<InputToken> tokens;
  tokens.reserve(GetText().size());
  for (const Char c : GetText()) tokens.push_back({Text(1, c), 0});
  SetTokens(std::move(tokens));
}

}  // namespace orvane
