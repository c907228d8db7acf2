// The molar mass of a formula in g/mol, worked out on decimal digits as a chemist does on paper: no binary
// fraction ever stands between the data and the digits that are shown, and only those decimals are shown that
// the data justify.
#pragma once

#include "base/text.h"
#include "chemistry/element_table.h"
#include "chemistry/formula_tokens.h"

namespace orvane {

// Why a formula has no mass.
enum class FormulaFault {
  kNone,
  kEmpty,
  kUnknownSymbol,
  kLeadingNumber,
  kNumberAfterOpening,
  kLongNumber,        // a fourth digit
  kUnmatchedClosing,  // a closing bracket that nothing opened
  kUnmatchedOpening,  // a bracket still open at the end
};

// The first fault, in this order: no tokens; an unknown token anywhere; from the front, a number that may not
// stand where it does; the first closing bracket too many; an opening one too many. Empty brackets are none.
FormulaFault CheckFormula(const FormulaTokens& tokens);

// What is said of a fault; both are empty for kNone. An explanation begins with two line breaks.
TextView FaultHeadline(FormulaFault fault);
TextView FaultExplanation(FormulaFault fault);

struct MassResult {
  bool ok = false;
  // Of a fault: its headline, without style codes, and its explanation. Empty when there is a mass.
  TextView headline;
  TextView explanation;
  // What stands in the message area, styled: "Calculation was successful." or headline and explanation.
  Text message;
  // The line with the mass, styled; empty on a fault.
  Text line;
  // The rounded mass, "18.015", and the number of its decimals; empty and 0 on a fault. Zeros may stand in
  // front: the mass of "()12" is "00.0000000".
  Text mass;
  int dp = 0;
};

// Everything that the calculator shows for a formula.
MassResult CalculateMass(const FormulaTokens& tokens, const ElementTable& elements);

// The mass alone, for those who count by the million: `mass` and `dp` are set as above and their memory is
// used again. On a fault `mass` is empty.
FormulaFault CalculateMass(const FormulaTokens& tokens, const ElementTable& elements, Text& mass, int& dp);

// "Mass: 18.015, 3 d.p." with the value in bold.
Text MassLine(TextView mass, int dp);

}  // namespace orvane
