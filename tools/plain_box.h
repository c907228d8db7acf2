// The box for words: every printable ASCII character can be typed, and nothing is told apart by colour.
#pragma once

#include "tools/FormulaEditor.h"

namespace orvane {

class PlainBox : public CInputBox {
 public:
  PlainBox(Shell& shell, WindowHandle owner, int x, int y, int width, int height);

  // CInputBox: every character is a token of kind 0.
  void retokenise() override;
};

}  // namespace orvane
