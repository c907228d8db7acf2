// The boxes of the calculators: chemical formulas and sides of equations, each piece in the colour of its
// kind, indices lowered, what cannot be recognised in red. How the text is cut is chemistry's business and
// comes as a function, so that the boxes know no element.
#pragma once

#include "tools/FormulaEditor.h"

namespace orvane {

class ElementTable;

// Cuts a text into tokens that cover it from its beginning to its end.
using Tokeniser = std::function<std::vector<InputToken>(TextView text)>;

// Those of formulas and of sides of equations. The table of symbols must outlive them.
Tokeniser FormulaTokeniser(const ElementTable& elements);
Tokeniser EquationTokeniser(const ElementTable& elements);

// Formulas: letters, digits and round brackets can be typed; tokens of the kinds 0 to 4.
class FormulaBox : public CInputBox {
 public:
  FormulaBox(Shell& shell, WindowHandle owner, int x, int y, int width, int height, Tokeniser tokeniser);

  // CInputBox
  void retokenise() override;

 private:
  Tokeniser tokeniser_;
};

// Sides of equations: the plus sign can be typed too, and there are the kinds 5 and 6.
class EquationBox : public CInputBox {
 public:
  EquationBox(Shell& shell, WindowHandle owner, int x, int y, int width, int height, Tokeniser tokeniser);

  // CInputBox
  void retokenise() override;

 private:
  Tokeniser tokeniser_;
};

}  // namespace orvane
