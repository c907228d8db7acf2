// Stoichiometric coefficients by linear algebra. The number of atoms of each element in each term makes a
// matrix, left terms positive and right terms negative; what balances the equation is its null space, read
// off its reduced row echelon form.
//
// The integer type comes from outside: the hand-held's 32 bits, or one that never overflows.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

#include "base/message_reporter.h"
#include "chemistry/balance.h"
#include "chemistry/balance_text.h"
#include "chemistry/element_table.h"
#include "chemistry/equation_check.h"
#include "chemistry/formula_tokens.h"
#include "chemistry/fraction.h"
#include "chemistry/fraction_matrix.h"

namespace orvane {

// The atoms of one element in a term, as its tokens are read from left to right.
template <class Integer>
class AtomCounter {
 public:
  void AddSymbol(bool counts) {
    level_.total = level_.Sum();
    level_.pending = counts ? 1 : 0;
  }
  // An index multiplies the symbol or group before it.
  void Multiply(TextView digits) {
    int index = 0;
    for (const Char digit : digits) index = index * 10 + (digit - u'0');
    level_.total = level_.total + Integer(index) * level_.pending;
    level_.pending = 0;
  }
  void OpenGroup() {
    level_.total = level_.Sum();
    outer_.push_back(level_);
    level_ = {};
  }
  // Ends the group that was opened last, as one of so many atoms. There must be one.
  void CloseGroup(const Integer& atoms) {
    level_ = outer_.back();
    outer_.pop_back();
    level_.pending = atoms;
  }
  bool InGroup() const { return !outer_.empty(); }
  // Of the group that is open, or of the term when none is.
  Integer Atoms() const { return level_.Sum(); }
  // A term that ends inside brackets ends them all.
  Integer AtomsOfTerm() const {
    Integer atoms = level_.Sum();
    for (auto level = outer_.rbegin(); level != outer_.rend(); ++level) atoms = level->total + atoms;
    return atoms;
  }

 private:
  // One level of brackets: the atoms so far, and those of the last symbol or group.
  struct Level {
    Integer total = 0;
    Integer pending = 0;
    Integer Sum() const { return total + pending; }
  };
  std::vector<Level> outer_;
  Level level_;
};

// The number of atoms of an element, given by its index, in the term that begins at a position of a side; the
// position then stands at the plus sign that ends the term, or at the end. A coefficient is passed over. A
// closing bracket without an opening one ends the count, and so does outside brackets a token that no checked
// side has, which is reported; the position then stands behind it.
template <class Integer>
Integer CountElements(const FormulaTokens& side, std::size_t& position, int element,
                      MessageReporter& reporter) {
  AtomCounter<Integer> counter;
  for (; position < side.size() && side[position].kind != TokenPlus; ++position) {
    const FormulaToken& token = side[position];
    Integer atoms = 0;  // of the group that this token ends
    switch (token.kind) {
      case TokenElement:
        counter.AddSymbol(token.element == element);
        continue;
      case TokenNumber:
        counter.Multiply(token.View());
        continue;
      case TokenOpen:
        counter.OpenGroup();
        continue;
      case TokenCoefficient:
        continue;
      case TokenClose:
        atoms = counter.Atoms();
        break;
      default:
        reporter.Report(u"wnd_balancer::CountElements - DEFAULT switch statement reached", kProgramName,
                        MessageIcon::kError);
        break;
    }
    if (!counter.InGroup()) {
      ++position;
      return atoms;
    }
    counter.CloseGroup(atoms);
  }
  return counter.AtomsOfTerm();
}

template <class Integer>
class EquationSolver {
 public:
  // The sides outlive the solver. They should have passed CheckEquation; sides that have not give some
  // answer.
  EquationSolver(const FormulaTokens& left, const FormulaTokens& right, const BalanceLimits& limits,
                 MessageReporter& reporter)
      : left_(left), right_(right), limits_(limits), reporter_(reporter), matrix_(BuildMatrix()) {}

  BalanceResult Solve() {
    matrix_.Reduce(reporter_);
    FindPivots();
    std::size_t freeColumns = 0;
    for (const std::optional<std::size_t>& row : pivotRow_) freeColumns += row ? 0 : 1;
    if (freeColumns == 0) return NoSolution();
    return freeColumns == 1 ? InsertSimpleCoeffs() : SolveGenerally();
  }

  // The number of atoms of the element in row `row` in each term, as it stands before and after Solve.
  const FractionMatrix<Integer>& Matrix() const { return matrix_; }

  // The smallest whole coefficients of an equation with one free column. Anything else is a fault of the
  // program: it is reported, and nothing is shown.
  BalanceResult InsertSimpleCoeffs() const {
    std::size_t freeColumn = 0;
    while (freeColumn < pivotRow_.size() && pivotRow_[freeColumn]) ++freeColumn;
    if (freeColumn == pivotRow_.size()) {
      reporter_.Report(u"wnd_balancer::InsertSimpleCoeffs() - nonpivotal==-1 is true.", kProgramName,
                       MessageIcon::kError);
      return {};
    }
    std::vector<Fraction<Integer>> amounts;
    Wide common = 1;
    for (const std::optional<std::size_t>& row : pivotRow_) {
      amounts.push_back(row ? Negated(matrix_.At(*row, freeColumn)) : Fraction<Integer>{1, 1});
      common = LeastCommonMultiple(common, Traits::Widen(amounts.back().denominator));
    }
    std::vector<Text> coefficients;
    for (const Fraction<Integer>& amount : amounts) {
      const Wide scale = common / Traits::Widen(amount.denominator);
      const Wide product = Traits::Widen(amount.numerator) * scale;
      const Integer coefficient = Traits::Narrow(product);
      if (coefficient < 1) return NoSolution();
      coefficients.push_back(Traits::ToText(coefficient));
    }
    return Balanced(left_, right_, leftTerms_, std::move(coefficients), limits_);
  }

 private:
  using Traits = IntegerTraits<Integer>;
  using Wide = typename Traits::Wide;

  static Wide LeastCommonMultiple(const Wide& a, const Wide& b) {
    const Wide product = a * b;
    return product / Traits::Gcd(a, b);
  }

  static Fraction<Integer> Negated(const Fraction<Integer>& value) {
    Fraction<Integer> negated{-value.numerator, value.denominator};
    fraction_detail::MoveSignUp(negated.numerator, negated.denominator);
    return negated;
  }

  FractionMatrix<Integer> BuildMatrix() {
    rowOf_.fill(-1);
    std::size_t rows = 0;
    leftTerms_ = ListElements(left_, rows);
    const std::size_t terms = leftTerms_ + ListElements(right_, rows);
    pivotRow_.resize(terms);
    FractionMatrix<Integer> matrix(rows, terms);
    FillColumns(left_, 0, false, matrix);
    FillColumns(right_, leftTerms_, true, matrix);
    return matrix;
  }

  // Gives each element of the side that has none yet the next row, and returns the number of terms.
  std::size_t ListElements(const FormulaTokens& side, std::size_t& rows) {
    std::size_t terms = 1;
    for (const FormulaToken& token : side) {
      if (token.kind == TokenPlus) ++terms;
      if (token.kind == TokenElement && RowOf(token) < 0) RowOf(token) = static_cast<int>(rows++);
    }
    return terms;
  }

  void FillColumns(const FormulaTokens& side, std::size_t column, bool negative,
                   FractionMatrix<Integer>& matrix) {
    std::size_t begin = 0;
    for (std::size_t i = 0; i < side.size(); ++i) {
      if (side[i].kind == TokenPlus) {
        begin = i + 1;
        ++column;
      }
      if (side[i].kind != TokenElement) continue;
      // Most terms hold few of the elements, so each is counted where it occurs; a second symbol of the same
      // element counts the same atoms again.
      std::size_t position = begin;
      const Integer atoms = CountElements<Integer>(side, position, side[i].element, reporter_);
      Fraction<Integer>& entry = matrix.At(static_cast<std::size_t>(RowOf(side[i])), column);
      entry.numerator = negative ? Integer(-atoms) : atoms;
    }
  }

  int& RowOf(const FormulaToken& token) { return rowOf_[static_cast<std::size_t>(token.element)]; }

  // The first one of each row marks a pivot column and the row that solves it.
  void FindPivots() {
    for (std::size_t row = 0; row < matrix_.Rows(); ++row) {
      if (const std::optional<std::size_t> column = matrix_.FirstOne(row)) pivotRow_[*column] = row;
    }
  }

  // The least common multiple of the denominators in a column, with which the amounts become whole.
  Wide MultiplierOf(std::size_t column) const {
    Wide multiplier = 1;
    for (std::size_t row = 0; row < matrix_.Rows(); ++row) {
      multiplier = LeastCommonMultiple(multiplier, Traits::Widen(matrix_.At(row, column).denominator));
    }
    return multiplier;
  }

  // Each free column is a multiple of a parameter of its own; the pivot columns follow from them.
  BalanceResult SolveGenerally() const {
    std::vector<std::size_t> freeColumns;
    std::vector<Wide> multipliers;
    for (std::size_t column = 0; column < pivotRow_.size(); ++column) {
      if (pivotRow_[column]) continue;
      freeColumns.push_back(column);
      multipliers.push_back(MultiplierOf(column));
    }
    std::vector<Text> lines;
    std::size_t parameter = 0;
    for (std::size_t column = 0; column < pivotRow_.size(); ++column) {
      SolutionLine line(column);
      if (!pivotRow_[column]) {
        line.AddTerm(false, Traits::ToText(Traits::Narrow(multipliers[parameter])), parameter);
        ++parameter;
      } else {
        for (std::size_t j = 0; j < freeColumns.size(); ++j) {
          AddParameter(line, matrix_.At(*pivotRow_[column], freeColumns[j]), multipliers[j], j);
        }
      }
      lines.push_back(line.Take(limits_));
    }
    return GeneralSolution(left_, right_, leftTerms_, std::move(lines), limits_);
  }

  static void AddParameter(SolutionLine& line, const Fraction<Integer>& entry, const Wide& multiplier,
                           std::size_t parameter) {
    const Wide product = multiplier * Traits::Widen(entry.numerator);
    const Wide amount = product / Traits::Widen(entry.denominator);
    const Integer multiple = Traits::Narrow(-amount);
    if (multiple == 0) return;
    const bool negative = multiple < 0;
    line.AddTerm(negative, Traits::ToText(negative ? Integer(-multiple) : multiple), parameter);
  }

  const FormulaTokens& left_;
  const FormulaTokens& right_;
  BalanceLimits limits_;
  MessageReporter& reporter_;
  std::array<int, ElementTable::kElementCount> rowOf_{};  // of each element: its row, or −1
  std::size_t leftTerms_ = 0;
  std::vector<std::optional<std::size_t>> pivotRow_;  // of each column: the row of its pivot; free without
  FractionMatrix<Integer> matrix_;
};

// Checks an equation and balances it with the given integers.
template <class Integer>
BalanceResult BalanceEquationWith(const FormulaTokens& left, const FormulaTokens& right,
                                  const BalanceLimits& limits, MessageReporter& reporter) {
  if (const std::optional<EquationFault> fault = CheckEquation(left, right)) {
    BalanceResult result;
    result.state = BalanceState::kMessage;
    result.title = fault->title;
    result.text = fault->text;
    return result;
  }
  return EquationSolver<Integer>(left, right, limits, reporter).Solve();
}

}  // namespace orvane
