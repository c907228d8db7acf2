#include "chemistry/balance.h"

#include "chemistry/equation_solver.h"
#include "chemistry/wrapped_integer.h"

namespace orvane {

BalanceResult BalanceEquation(const FormulaTokens& left, const FormulaTokens& right,
                              MessageReporter& reporter) {
  return BalanceEquationWith<Wrapped32>(left, right, BalanceLimits{}, reporter);
}

}  // namespace orvane
